#include "network/news_sender.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/tcp_socket.h"
#include "values/number.h"

namespace tallyhut {
namespace {

constexpr std::int32_t kLookEveryMs = 1'000;

struct FailureText {
    int number;
    std::string_view text;
};

constexpr std::array kFailureTexts{
    FailureText{kTcpRefused, "nobody listens there"},
    FailureText{kTcpHostNotFound, "there is no such host"},
    FailureText{kTcpHostNotFoundNow, "the name of the host cannot be looked up now"},
    FailureText{kTcpNameFailure, "the name of the host cannot be looked up"},
    FailureText{kTcpNoAddress, "the host has no address"},
    FailureText{kTcpUnreachable, "it cannot be reached"},
    FailureText{kTcpNetworkDown, "the network is down"},
    FailureText{kTcpAddressNotHere, "it is no address that can be sent to"},
    FailureText{kTcpBroadcastAddress, "the system does not allow it"},
    FailureText{kTcpNoBuffers, "the system has no room for it"},
};

std::string TextOf(int failure) {
    const auto* const row = std::ranges::find(kFailureTexts, failure, &FailureText::number);
    return row == kFailureTexts.end() ? "failure " + PlainText(failure) : std::string{row->text};
}

}  // namespace

/// One address.
struct NewsSender::Line {
    NetworkAddress address;
    std::unique_ptr<DatagramSocket> socket = {};  ///< null where the system gave none
    std::unique_ptr<IoSource> arrived = {};
    std::deque<std::string> waiting = {};  ///< while the host is looked up
    bool isOpening = false;
    Tick openedAt = 0;                          ///< when the host was looked up last
    std::string failure = {};                   ///< empty while the address is well
    Tick failedAt = 0;                          ///< since when, in this way
    std::optional<Tick> sentSinceFailure = {};  ///< when first
};

NewsSender::NewsSender(Desk& owner, DatagramSockets& machineNetwork)
    : desk_{owner}, network_{machineNetwork}, silence_{owner, [this] { LookForSilence(); }} {}

NewsSender::~NewsSender() = default;

void NewsSender::SendTo(const std::vector<NetworkAddress>& addresses) {
    lines_.clear();
    for (const NetworkAddress& address : addresses) {
        Line& line = *lines_.emplace_back(std::make_unique<Line>(Line{.address = address}));
        try {
            line.socket = network_.NewSocket();
            line.arrived =
                std::make_unique<IoSource>(desk_, line.socket->EventDescriptor(), [this, &line] { TakeEvents(line); });
            Open(line);
        } catch (const PlatformError& failure) {
            Fail(line, failure.what());
        }
    }
    failuresChanged();
}

void NewsSender::Send(const std::string& document) {
    for (const std::unique_ptr<Line>& line : lines_) {
        if (line->socket) {
            Send(*line, document);
        }
    }
}

void NewsSender::Send(Line& line, const std::string& document) {
    const bool isTriedAnew =
        !line.failure.empty() && !line.isOpening && desk_.clock.TickMs() - line.openedAt >= kPauseMs;
    if (isTriedAnew) {
        Open(line);
    }
    if (line.socket->IsReady()) {
        HandOver(line, document);
    } else if (line.isOpening) {
        line.waiting.push_back(document);
        if (line.waiting.size() > kMostWaiting) {
            line.waiting.pop_front();
        }
    }
}

void NewsSender::Open(Line& line) {
    line.isOpening = true;
    line.openedAt = desk_.clock.TickMs();
    line.socket->Open(line.address.host, line.address.port);
    TakeEvents(line);  // of a host that is a number they are there
}

void NewsSender::HandOver(Line& line, const std::string& document) {
    if (const int failure = line.socket->Send(document); failure != 0) {
        Fail(line, TextOf(failure));
        return;
    }
    if (!line.failure.empty() && !line.sentSinceFailure) {
        line.sentSinceFailure = desk_.clock.TickMs();
        silence_.Start(kLookEveryMs);
    }
    TakeEvents(line);
}

void NewsSender::TakeEvents(Line& line) {
    using Kind = DatagramEvent::Kind;
    for (DatagramEvent event = line.socket->Take(); event.kind != Kind::Nothing; event = line.socket->Take()) {
        line.isOpening = false;
        if (event.kind == Kind::Ready) {
            SendWaiting(line);
        } else {
            line.waiting.clear();
            Fail(line, TextOf(event.failure));
        }
    }
}

void NewsSender::SendWaiting(Line& line) {
    for (const std::string& document : std::exchange(line.waiting, {})) {
        HandOver(line, document);
    }
}

void NewsSender::Fail(Line& line, const std::string& why) const {
    line.sentSinceFailure.reset();
    std::string failure = AddressText(line.address) + ": " + why;
    if (line.failure == failure) {
        return;  // as before: of several addresses each would be the newest in turn
    }
    line.failure = std::move(failure);
    line.failedAt = desk_.clock.TickMs();
    failuresChanged();
}

void NewsSender::LookForSilence() {
    const Tick now = desk_.clock.TickMs();
    bool looksOn = false;
    for (const std::unique_ptr<Line>& line : lines_) {
        if (line->sentSinceFailure && now - *line->sentSinceFailure >= kSilenceMs) {
            line->failure.clear();
            line->sentSinceFailure.reset();
        }
        looksOn = looksOn || line->sentSinceFailure.has_value();
    }
    if (!looksOn) {
        silence_.Stop();
    }
    failuresChanged();
}

std::optional<NewsFailure> NewsSender::LastFailure() const {
    std::optional<NewsFailure> last;
    for (const std::unique_ptr<Line>& line : lines_) {
        if (!line->failure.empty() && (!last || line->failedAt >= last->at)) {
            last = {.at = line->failedAt, .text = line->failure};
        }
    }
    return last;
}

}  // namespace tallyhut
