#include "rig/rig_server.h"

#include <utility>

#include "platform/platform_error.h"
#include "toolkit/desk.h"

namespace tallyhut {
namespace {

constexpr std::int32_t kConnectWait = 2'000;
constexpr std::int32_t kAnswerWait = 5'000;

}  // namespace

RigServer::RigServer(TcpSockets& sockets, Desk& owner)
    : sockets_{sockets}, desk_{owner}, alarm_{owner, [this] { AlarmRang(); }} {}

void RigServer::Open(const ServerDialect& dialect, const std::string& host, int port) {
    if (!socket_) {
        socket_ = sockets_.NewSocket();
        arrived_ = std::make_unique<IoSource>(desk_, socket_->EventDescriptor(), [this] { Take(); });
    }
    ++opened_;
    dialect_ = &dialect;
    host_ = host;
    port_ = port;
    pauses_ = {};
    Connect();
    SetLink(RigServerLink::Connecting);
}

void RigServer::Close() {
    if (stage_ == Stage::Closed) {
        return;
    }
    ++opened_;
    stage_ = Stage::Closed;
    alarm_.Stop();
    socket_->Close();
    SetLink(RigServerLink::Closed);
}

void RigServer::Connect() {
    stage_ = Stage::Connecting;
    since_.reset();
    GiveUpWishes();
    facts_ = dialect_->atTheBeginning;
    alarm_.StartOnce(kConnectWait);
    try {
        socket_->Connect(host_, port_);
    } catch (const PlatformError&) {
        // The machine has nothing left to connect with: the attempt is over with its time.
    }
}

void RigServer::Poll() {
    if (stage_ == Stage::Idle) {
        PlanPoll();
        AskNext();
    }
}

void RigServer::PlanPoll() {
    const Tick again = static_cast<Tick>(dialect_->introductionAgain);
    const bool introduces = again > 0 && desk_.clock.TickMs() - introduced_ >= again;
    if (introduces) {
        wanted_ = {ServerRequest::Introduction};
    } else if (facts_.hasRadio) {
        wanted_ = {ServerRequest::Frequency, ServerRequest::Mode};
    }
}

bool RigServer::Tune(std::int64_t hertz, std::string_view planMode) {
    if (link_ != RigServerLink::Connected) {
        return false;
    }
    std::string mode = dialect_->modeNamed(planMode, facts_);
    if (mode.empty() && tuning_) {
        mode = tuning_->mode;
    }
    tuning_ = {.hertz = hertz, .mode = std::move(mode)};
    if (stage_ == Stage::Idle) {
        AskNext();
    }
    return true;
}

bool RigServer::SetMode(std::string_view planMode) {
    if (link_ != RigServerLink::Connected) {
        return false;
    }
    if (std::string mode = dialect_->modeNamed(planMode, facts_); !mode.empty()) {
        tuning_ = {.hertz = tuning_ ? tuning_->hertz : std::nullopt, .mode = std::move(mode)};
    }
    if (stage_ == Stage::Idle) {
        AskNext();
    }
    return true;
}

void RigServer::AskNext() {
    stage_ = Stage::Idle;
    if (tuning_ && !tuning_->mode.empty()) {
        Ask({.request = ServerRequest::SetMode, .mode = std::exchange(tuning_->mode, {})});
    } else if (tuning_ && tuning_->hertz) {
        Ask({.request = ServerRequest::SetFrequency, .hertz = *std::exchange(tuning_, {})->hertz});
    } else if (!wanted_.empty()) {
        const ServerRequest request = wanted_.front();
        wanted_.pop_front();
        Ask({.request = request});
    }
}

void RigServer::Ask(const ServerOrder& order) {
    stage_ = Stage::Asking;
    asked_ = order.request;
    received_.clear();
    const bool introduces = asked_ == ServerRequest::Introduction;
    if (introduces) {
        introduced_ = desk_.clock.TickMs();
    }
    alarm_.StartOnce(introduces ? dialect_->introductionWait : kAnswerWait);
    socket_->Send(dialect_->request(order, facts_));
}

void RigServer::Take() {
    const TcpEvent event = socket_->Take();
    switch (event.kind) {
        case TcpEvent::Kind::Connected:
            Ask({.request = ServerRequest::Introduction});
            break;
        case TcpEvent::Kind::Chunk:
            TakeBytes(event.bytes);
            break;
        case TcpEvent::Kind::Ended:
        case TcpEvent::Kind::Failed:
            Lose();
            break;
        case TcpEvent::Kind::Nothing:
            break;
    }
}

void RigServer::TakeBytes(std::string_view bytes) {
    if (stage_ != Stage::Asking) {
        Lose();  // nobody asked
        return;
    }
    received_ += bytes;
    TakeAnswer(dialect_->read(asked_, facts_, received_));
}

void RigServer::TakeAnswer(const ServerAnswer& answer) {
    if (answer.kind == ServerAnswer::Kind::NotYet) {
        return;
    }
    if (answer.kind == ServerAnswer::Kind::Broken) {
        Lose();
        return;
    }
    alarm_.Stop();
    facts_ = answer.facts.value_or(facts_);
    RigServerLink link = link_;
    const bool isGood = answer.kind == ServerAnswer::Kind::Good;
    if (!RadioAnswers(isGood)) {
        GiveUpWishes();
        since_.reset();
        link = RigServerLink::NoAnswer;
    } else if (asked_ == ServerRequest::Introduction) {
        PlanFirstPoll();
    } else if (asked_ == ServerRequest::Frequency || (asked_ == ServerRequest::Mode && isGood)) {
        since_ = since_.value_or(desk_.clock.TickMs());
        link = RigServerLink::Connected;
    }
    AskNext();
    SetLink(link, answer.reading);
}

bool RigServer::RadioAnswers(bool isGood) const {
    switch (asked_) {
        case ServerRequest::Introduction:
        case ServerRequest::Modes:
            return facts_.hasRadio;
        case ServerRequest::Frequency:
            return isGood;
        default:
            return true;  // a command that is refused is seen by the next reading; a mode may be what it cannot tell
    }
}

void RigServer::GiveUpWishes() {
    wanted_.clear();
    tuning_.reset();
}

void RigServer::PlanFirstPoll() {
    if (facts_.knowsModes) {
        wanted_ = {ServerRequest::Frequency, ServerRequest::Mode};
    } else {
        wanted_ = {ServerRequest::Modes, ServerRequest::Frequency, ServerRequest::Mode};
    }
}

void RigServer::AlarmRang() {
    if (stage_ == Stage::Pausing) {
        Connect();
    } else if (stage_ == Stage::Asking && asked_ == ServerRequest::Introduction && dialect_->mayIgnoreIntroduction) {
        facts_.owesIntroduction = true;
        PlanFirstPoll();
        AskNext();
    } else {
        Lose();
    }
}

void RigServer::Lose() {
    socket_->Close();
    stage_ = Stage::Pausing;
    GiveUpWishes();
    alarm_.StartOnce(pauses_.After(since_ ? desk_.clock.TickMs() - *since_ : 0));
    SetLink(RigServerLink::NoAnswer);
}

void RigServer::SetLink(RigServerLink link, const RigReading& reading) {
    const std::uint64_t opened = opened_;
    if (std::exchange(link_, link) != link && linkChanged) {
        linkChanged();
    }
    const bool hasReading = reading.frequency || reading.mode;
    if (hasReading && opened == opened_ && link_ == RigServerLink::Connected && read) {
        read(reading);
    }
}

}  // namespace tallyhut
