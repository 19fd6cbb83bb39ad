#include "rig/rig_poll.h"

#include <algorithm>

#include "contest/bands.h"
#include "platform/platform_error.h"
#include "values/format.h"
#include "values/hex.h"
#include "values/value_error.h"

namespace tallyhut {

void RigPoll::tmrGetData_Elapsed() {
    if (radio.state.commanding) {
        return;
    }
    const RigRow& rig = radio.Row();
    if (rig.link == RigLink::Server) {
        AskServer();
    } else {
        RunTick(rig);
    }
    LookForLoss(rig);
}

/// In the measure of the told poll: one tick asks. Its answer comes when it comes; the next one only counts.
void RigPoll::AskServer() {
    if (radio.state.ReadPhase == 1) {
        ++radio.state.missedPolls;
        radio.state.ReadPhase = 0;
    } else {
        radio.state.ReadPhase = 1;
        connection.server.Poll();
    }
}

void RigPoll::TakeReading(const RigReading& reading) {
    Take(reading);
    try {
        Use(radio.Row());
    } catch (const PlatformError&) {
        // A band that cannot be saved: the next reading tries again.
    }
}

void RigPoll::RunTick(const RigRow& rig) {
    try {
        if (radio.state.ReadPhase == 1) {
            ++radio.state.missedPolls;
            if (rig.link != RigLink::Files) {
                radio.state.RxBuffer = radio.comComm1.ReadAll();
            }
            if (!radio.state.RxBuffer.empty() || rig.link == RigLink::Files) {
                Read(rig);
            }
            radio.state.RxBuffer.clear();
            radio.state.ReadPhase = 0;
        } else {
            Send();
            radio.state.ReadPhase = 1;
        }
    } catch (const PlatformError&) {
        // A cable that is out, a band that cannot be saved: ReadPhase and RxBuffer stay, and the next tick tries again.
        if (radio.state.ReadPhase == 0) {
            ++radio.state.missedPolls;
            connection.PortHasFailed();
        }
    } catch (const ValueError&) {
        // A string that is no row of pairs, which the operator may be typing.
    }
}

void RigPoll::LookForLoss(const RigRow& rig) {
    constexpr int kPolls = 3;
    constexpr std::int32_t kTicksAPoll = 2;
    constexpr std::int32_t kLeastMs = 5'000;
    RigState& state = radio.state;
    const std::int32_t polls = kPolls * kTicksAPoll * radio.form.tmrGetData.Interval();
    const auto patience = static_cast<Tick>(std::max(kLeastMs, polls));
    if (!state.polls || state.lost || !CanBeLost(rig) || state.missedPolls < kPolls ||
        clock.TickMs() - state.heardAt < patience) {
        return;
    }
    state.lost = true;
    state.frequencyHeard = false;
    connection.server.DropCommands();  // from here on the operator reads that it does not answer
    if (rig.lossEmptiesFrequency) {
        conversion.ForgetFrequency();
    }
}

void RigPoll::Send() {
    if (radio.comComm1.OutputCount() > 0) {
        return;
    }
    const RequestManner& manner = radio.Row().request;
    const bool alternates = manner.turn == RequestTurn::Alternating;
    const bool asksMode = alternates ? radio.state.ModeTurn == 1 : manner.turn == RequestTurn::Both;
    if (!alternates || !asksMode) {
        SendRequest(manner, radio.settings.frequencyString);
    }
    if (asksMode) {
        SendRequest(manner, radio.settings.modeString);
    }
    if (alternates) {
        radio.state.ModeTurn = asksMode ? 0 : 1;
    }
}

void RigPoll::SendRequest(const RequestManner& manner, const std::string& text) {
    const std::string bytes = EncodeRequest(manner, text, radio.form.chkConvToHex.Value());
    if (!bytes.empty()) {
        radio.comComm1.Write(bytes);
    }
}

void RigPoll::Read(const RigRow& rig) {
    Decode(rig);
    Use(rig);
}

void RigPoll::Use(const RigRow& rig) {
    if (radio.form.OptFreq.Value()) {
        ModeFromFrequency();
    }
    if (radio.form.IsVisible()) {
        Show();
    }
    // A radio that is lost, or has told its mode alone since, is on no frequency that is known.
    const bool isKnown = radio.state.frequencyHeard || !rig.lossEmptiesFrequency;
    if (radio.form.chkFrequency.Value() && isKnown) {
        conversion.BandFreqConversion(radio.state.RigFrequency);
    }
    if (!radio.form.OptDont.Value()) {
        conversion.ModeSelection(radio.state.RigMode);
    }
}

void RigPoll::Decode(const RigRow& rig) {
    if (rig.link == RigLink::Files) {
        Take(radio.pegasus.ReadPegasusFile());
        return;
    }
    const bool alternates = rig.request.turn == RequestTurn::Alternating;
    if (!alternates || radio.state.ModeTurn == 1) {
        Run(rig.readFrequency);
    }
    if (!alternates || radio.state.ModeTurn == 0) {
        Run(rig.readMode);
    }
}

void RigPoll::Run(RigDecoder decoder) {
    if (decoder != nullptr) {
        Take(decoder({.rxBuffer = radio.state.RxBuffer,
                      .frequencyString = radio.settings.frequencyString,
                      .modeString = radio.settings.modeString}));
    }
}

void RigPoll::Take(const RigReading& reading) {
    if (reading.frequency || reading.mode) {
        radio.state.lost = false;
        radio.state.missedPolls = 0;
        radio.state.heardAt = clock.TickMs();
    }
    radio.state.frequencyHeard = radio.state.frequencyHeard || reading.frequency;
    radio.state.RigFrequency = reading.frequency.value_or(radio.state.RigFrequency);
    if (reading.mode) {
        radio.state.RigMode = *reading.mode;
    }
    radio.state.VfoDigit = reading.vfoDigit.value_or(radio.state.VfoDigit);
}

void RigPoll::ModeFromFrequency() {
    const std::string_view mode = SegmentMode(radio.state.RigFrequency);
    if (!mode.empty()) {
        radio.state.RigMode = mode;
    }
}

void RigPoll::Show() {
    if (radio.state.RigFrequency > 0) {
        radio.form.lblFreq.SetCaption(FormatNumber(radio.state.RigFrequency, "###.####0"));
    }
    radio.form.lblMode.SetCaption(radio.state.RigMode);
    if (radio.form.ChkConvHex.Value()) {
        radio.state.RxBuffer = BytesToHexDump(radio.state.RxBuffer);
    }
    radio.form.lblUnProcess.SetCaption(radio.state.RxBuffer);
}

}  // namespace tallyhut
