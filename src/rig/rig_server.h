#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/tcp_socket.h"
#include "rig/retry_pauses.h"
#include "rig/server_dialect.h"
#include "toolkit/alarm.h"
#include "toolkit/io_source.h"

namespace tallyhut {

enum class RigServerLink {
    Closed,
    Connecting,  ///< the first attempt, until the radio has told something or the attempt has failed
    Connected,   ///< the last answer was good
    NoAnswer,    ///< all else; attempts go on
};

/// A radio behind a server of radios. One request is open at a time, its answer is waited for, and a connection that
/// fails, or says what nobody asked, is closed and made anew after a pause that grows. Nothing here waits on the stack.
///
/// Outlets run last in whatever calls them, so a handler may call anything here, Close and Open included.
struct RigServer {
    RigServer(TcpSockets& sockets, Desk& owner);

    /// What the server has told, one value a call: the frequency, or the mode as "CW" or "PH". Only while Connected.
    std::function<void(const RigReading&)> read;
    std::function<void()> linkChanged;

    /// Begins with a server, and goes on until Close; what was open before is closed. The dialect is kept as a
    /// reference. As soon as the server is there it is asked once, without a Poll. A host or a port that is none is a
    /// server that does not answer. Throws PlatformError where the machine has no socket left, at the first call.
    void Open(const ServerDialect& dialect, const std::string& host, int port);
    void Close();

    /// Asks for the frequency, and for the mode when that is answered; now and then first whether there is a radio, for
    /// a server that may have none. Does nothing while a request is open and without a connection.
    void Poll();
    /// Sets the mode that the plan names, unless the server has none such, and then the frequency. Behind the request
    /// that is open; of those that wait the newest goes out, with a mode that waits where it has none. What the server
    /// refuses is silent.
    ///
    /// @return false if it is not Connected: then nothing is sent, now or later. What waits when the connection is lost
    ///         is lost too.
    bool Tune(std::int64_t hertz, std::string_view planMode);
    /// The mode alone. A mode that the server has no name for sends nothing, which is no failure.
    bool SetMode(std::string_view planMode);

    /// Forgets what waits to be set.
    void DropCommands() { tuning_.reset(); }

    RigServerLink Link() const { return link_; }

private:
    enum class Stage { Closed, Pausing, Connecting, Idle, Asking };
    struct Tuning {
        std::optional<std::int64_t> hertz;
        std::string mode;
    };

    void Connect();
    void Take();
    void TakeBytes(std::string_view bytes);
    void TakeAnswer(const ServerAnswer& answer);
    void AlarmRang();
    /// Closes the connection, and tries again later.
    void Lose();
    bool RadioAnswers(bool isGood) const;
    void GiveUpWishes();
    void PlanPoll();
    void PlanFirstPoll();
    /// Sends what is to be sent next, if anything.
    void AskNext();
    void Ask(const ServerOrder& order);
    void SetLink(RigServerLink link, const RigReading& reading = {});

    TcpSockets& sockets_;
    Desk& desk_;
    Alarm alarm_;  ///< of the stage: the end of a pause, of an attempt, of the time to answer in
    std::unique_ptr<TcpSocket> socket_;
    std::unique_ptr<IoSource> arrived_;  ///< of the socket, and gone before it

    const ServerDialect* dialect_ = nullptr;
    std::string host_;
    int port_ = 0;
    Stage stage_ = Stage::Closed;
    RigServerLink link_ = RigServerLink::Closed;
    std::uint64_t opened_ = 0;  ///< how often; an outlet may have opened another
    RetryPauses pauses_;
    std::optional<Tick> since_;  ///< when this connection gave its first good answer

    ServerFacts facts_;
    Tick introduced_ = 0;
    std::deque<ServerRequest> wanted_;
    std::optional<Tuning> tuning_;
    ServerRequest asked_ = ServerRequest::Introduction;
    std::string received_;
};

}  // namespace tallyhut
