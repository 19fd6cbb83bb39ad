#pragma once

#include "rig/band_conversion.h"
#include "rig/rig_connection.h"

namespace tallyhut {

/// Asks the radio for frequency and mode, and decodes what has come back: one tick sends, the next one reads what the
/// port holds. Nothing is carried from one read to the next, and nothing is waited for: a lost or broken reply costs
/// one poll.
struct RigPoll {
    Radio& radio;
    BandConversion& conversion;
    RigConnection& connection;
    const Clock& clock;

    /// Silent: a failure ends the tick, and the next one tries again. Between the steps of a command it does nothing.
    /// A radio that has not been understood for five seconds, or three polls if that is longer, is lost.
    void tmrGetData_Elapsed();

    /// What a server has told, whenever it comes.
    void TakeReading(const RigReading& reading);

private:
    void RunTick(const RigRow& rig);
    void LookForLoss(const RigRow& rig);
    void AskServer();
    void Send();
    void SendRequest(const RequestManner& manner, const std::string& text);
    void Read(const RigRow& rig);
    void Use(const RigRow& rig);
    void Decode(const RigRow& rig);
    void Run(RigDecoder decoder);
    void Take(const RigReading& reading);
    void ModeFromFrequency();
    void Show();
};

}  // namespace tallyhut
