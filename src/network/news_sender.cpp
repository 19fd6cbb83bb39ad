#include "network/news_sender.h"

#include <algorithm>
#include <array>
#include <optional>
#include <set>
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

struct NewsSender::WaitingNews {
    News news;
    std::string document;
};

/// One address.
struct NewsSender::Line {
    NetworkAddress address;
    std::unique_ptr<DatagramSocket> socket = {};  ///< null where the system gave none
    std::unique_ptr<IoSource> arrived = {};
    std::set<News> wanted = {};
    std::deque<WaitingNews> waiting = {};  ///< while the host is looked up
    bool isOpening = false;
    Tick openedAt = 0;                          ///< when the host was looked up last
    std::string failure = {};                   ///< empty while the address is well
    Tick failedAt = 0;                          ///< since when, in this way
    std::optional<Tick> sentSinceFailure = {};  ///< when first
};

NewsSender::NewsSender(Desk& owner, DatagramSockets& machineNetwork)
    : desk_{owner}, network_{machineNetwork}, silence_{owner, [this] { LookForSilence(); }} {}

NewsSender::~NewsSender() = default;

void NewsSender::SendTo(News news, const std::vector<NetworkAddress>& addresses) {
    for (const std::unique_ptr<Line>& line : lines_) {
        line->wanted.erase(news);
        std::erase_if(line->waiting, [news](const WaitingNews& each) { return each.news == news; });
    }
    for (const NetworkAddress& address : addresses) {
        LineTo(address).wanted.insert(news);
    }
    std::erase_if(lines_, [](const std::unique_ptr<Line>& line) { return line->wanted.empty(); });
    failuresChanged();
}

NewsSender::Line& NewsSender::LineTo(const NetworkAddress& address) {
    const auto known =
        std::ranges::find(lines_, address, [](const auto& line) -> const NetworkAddress& { return line->address; });
    if (known != lines_.end()) {
        return **known;
    }
    Line& line = *lines_.emplace_back(std::make_unique<Line>(Line{.address = address}));
    try {
        line.socket = network_.NewSocket();
        line.arrived =
            std::make_unique<IoSource>(desk_, line.socket->EventDescriptor(), [this, &line] { TakeEvents(line); });
        Open(line);
    } catch (const PlatformError& failure) {
        Fail(line, failure.what());
    }
    return line;
}

void NewsSender::Send(News news, const std::string& document) {
    std::vector<Line*> triedAnew;
    for (const std::unique_ptr<Line>& line : lines_) {
        if (!line->socket || !line->wanted.contains(news)) {
            continue;
        }
        if (IsToBeTriedAnew(*line)) {
            triedAnew.push_back(line.get());
        } else {
            Send(*line, news, document);
        }
    }
    for (Line* line : triedAnew) {
        Open(*line);
        Send(*line, news, document);
    }
}

bool NewsSender::IsToBeTriedAnew(const Line& line) const {
    return !line.failure.empty() && !line.isOpening && desk_.clock.TickMs() - line.openedAt >= kPauseMs;
}

void NewsSender::Send(Line& line, News news, const std::string& document) {
    if (line.socket->IsReady()) {
        HandOver(line, document);
    } else if (line.isOpening) {
        line.waiting.push_back({news, document});
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
    for (const WaitingNews& each : std::exchange(line.waiting, {})) {
        HandOver(line, each.document);
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

std::string NewsSender::LastFailure() const {
    const Line* last = nullptr;
    for (const std::unique_ptr<Line>& line : lines_) {
        if (!line->failure.empty() && (last == nullptr || line->failedAt >= last->failedAt)) {
            last = line.get();
        }
    }
    return last == nullptr ? "" : last->failure;
}

}  // namespace tallyhut
