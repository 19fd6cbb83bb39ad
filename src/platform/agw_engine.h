#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "platform/clock.h"
#include "platform/tcp_socket.h"

namespace tallyhut {

/// What AGWStartPoll says. Everything but zero means that polling is possible.
enum AgwStart : std::int16_t {
    kAgwNone = 0,        ///< no connection could be made
    kAgwReady = 1,       ///< the engine is there
    kAgwConnecting = 2,  ///< not known yet; AgwEngine::Started says so later
};

/// One frame from the engine.
struct AgwFrame {
    std::string call;  ///< of the other station
    char kind = '\0';
    std::string data;  ///< at most AgwEngine::kLongestData
};

/// A packet radio engine behind its TCP interface: frames of a head of 36 bytes and the data that the head tells, no
/// checksum, no answers that anybody waits for. It is polled, and no operation waits.
///
/// Whatever the engine sends, no more than kMostFrames of kLongestData are kept, and no operation takes more than
/// kMostArrivals of the socket; what comes beyond that waits in the engine.
class AgwEngine {
public:
    static constexpr std::size_t kLongestData = 4'000;
    static constexpr std::size_t kMostFrames = 1'000;
    static constexpr int kMostArrivals = 128;

    AgwEngine(TcpSockets& sockets, Clock& clock);
    AgwEngine(const AgwEngine&) = delete;
    AgwEngine& operator=(const AgwEngine&) = delete;
    AgwEngine(AgwEngine&&) = delete;
    AgwEngine& operator=(AgwEngine&&) = delete;
    ~AgwEngine() { AGWClose(); }

    /// Begins a connection in place of the one that is open. One that is not there within two seconds never will be.
    /// The engine does not ask for an application's name.
    AgwStart AGWStartPoll(const std::string& host, int port, std::string_view ownCall);
    /// What has come of the start by now; kAgwNone too when the connection has failed since, or when there was none.
    AgwStart Started();
    /// The number of the failure behind kAgwNone; 0 where none is known.
    int Failure() const { return failure_; }
    /// The next frame that is for the program; false when none is there. Frames of stations that are connected come
    /// once, not a second time as what was heard on the air.
    bool AGWGetData(AgwFrame& frame);
    /// 'c' connects to a call, 'd' disconnects it, 'D' is data for it; any other kind sends nothing. Does nothing
    /// without a connection to the engine.
    void AGWPutData(std::string_view call, std::string_view data, char kind);
    /// Does nothing where nothing is open.
    void AGWClose();

private:
    struct Heard {
        char kind = '\0';
        char radio = '\0';
        std::string from;
        std::string to;
        std::string data;
    };

    void Look();
    void Greet();
    void TakeBytes(std::string_view bytes);
    void BeginFrame();
    void EndFrame();
    bool IsForProgram(const Heard& heard);
    void Send(char kind, char radio, std::string_view to, std::string_view data);

    Clock& clock_;
    std::unique_ptr<TcpSocket> socket_;
    AgwStart started_ = kAgwNone;
    Tick giveUpAt_ = 0;
    int failure_ = 0;
    std::string ownCall_;
    std::map<std::string, char, std::less<>> links_;  ///< radio ports of the stations connected, by call

    std::string head_;        ///< of the frame that is coming
    Heard coming_;            ///< with the data so far that are kept
    std::uint32_t left_ = 0;  ///< data of the frame that are still to come
    std::size_t told_ = 0;    ///< of the data that have come, how many lie before the NULs at the end
    std::deque<Heard> queue_;
};

}  // namespace tallyhut
