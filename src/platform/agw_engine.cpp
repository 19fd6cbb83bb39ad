#include "platform/agw_engine.h"

#include <algorithm>
#include <utility>

#include "values/text.h"

namespace tallyhut {
namespace {

// The head of a frame; what stands at no place of these is 0.
constexpr std::size_t kHeadLength = 36;
constexpr std::size_t kRadioAt = 0;
constexpr std::size_t kKindAt = 4;
constexpr std::size_t kPidAt = 6;
constexpr std::size_t kFromAt = 8;
constexpr std::size_t kToAt = 18;
constexpr std::size_t kLengthAt = 28;
constexpr std::size_t kCallLength = 10;  // with the NUL behind it

constexpr char kPlainText = '\xF0';

// Kinds on the wire, where they are not those of the program.
constexpr char kRegister = 'X';
constexpr char kUnregister = 'x';
constexpr char kMonitor = 'm';  // toggles: once a connection
constexpr char kConnected = 'C';

constexpr Tick kPatience = 2'000;

std::string CallAt(const std::string& head, std::size_t place) {
    const std::string field = head.substr(place, kCallLength);
    return field.substr(0, field.find('\0'));
}

std::uint32_t LengthOf(const std::string& head) {
    std::uint32_t length = 0;
    for (std::size_t i = 4; i-- > 0;) {
        length = length << 8U | static_cast<unsigned char>(head[kLengthAt + i]);
    }
    return length;
}

void PutCall(std::string& head, std::size_t place, std::string_view call) {
    const std::string_view shown = call.substr(0, kCallLength - 1);
    head.replace(place, shown.size(), shown);
}

bool IsHeardOnTheAir(char kind) {
    return kind == 'I' || kind == 'S' || kind == 'T';
}

}  // namespace

AgwEngine::AgwEngine(TcpSockets& sockets, Clock& clock) : clock_{clock}, socket_{sockets.NewSocket()} {}

AgwStart AgwEngine::AGWStartPoll(const std::string& host, int port, std::string_view ownCall) {
    AGWClose();
    ownCall_ = UpperCase(ownCall.substr(0, kCallLength - 1));
    started_ = kAgwConnecting;
    failure_ = 0;
    giveUpAt_ = clock_.TickMs() + kPatience;
    socket_->Connect(host, port);
    return Started();
}

AgwStart AgwEngine::Started() {
    Look();
    if (started_ == kAgwConnecting && clock_.TickMs() >= giveUpAt_) {
        socket_->Close();
        started_ = kAgwNone;
        failure_ = kTcpTimedOut;
    }
    return started_;
}

void AgwEngine::Greet() {
    started_ = kAgwReady;
    Send(kRegister, '\0', "", "");
    Send(kMonitor, '\0', "", "");
}

/// Takes what has come, until enough frames wait. One frame may be of gigabytes, and come as fast as it is taken.
void AgwEngine::Look() {
    for (int taken = 0; taken < kMostArrivals && queue_.size() < kMostFrames; ++taken) {
        const TcpEvent event = socket_->Take();
        switch (event.kind) {
            case TcpEvent::Kind::Nothing:
                return;
            case TcpEvent::Kind::Connected:
                Greet();
                break;
            case TcpEvent::Kind::Chunk:
                TakeBytes(event.bytes);
                break;
            case TcpEvent::Kind::Ended:
                started_ = kAgwNone;
                break;
            case TcpEvent::Kind::Failed:
                started_ = kAgwNone;
                failure_ = event.failure;
                break;
        }
    }
}

void AgwEngine::TakeBytes(std::string_view bytes) {
    while (!bytes.empty()) {
        if (head_.size() < kHeadLength) {
            const std::size_t count = std::min(bytes.size(), kHeadLength - head_.size());
            head_ += bytes.substr(0, count);
            bytes.remove_prefix(count);
            if (head_.size() == kHeadLength) {
                BeginFrame();
            }
            continue;
        }
        const std::string_view data = bytes.substr(0, left_);
        if (const std::size_t last = data.find_last_not_of('\0'); last != std::string_view::npos) {
            told_ = LengthOf(head_) - left_ + last + 1;
        }
        coming_.data += data.substr(0, kLongestData - coming_.data.size());
        left_ -= static_cast<std::uint32_t>(data.size());
        bytes.remove_prefix(data.size());
        if (left_ == 0) {
            EndFrame();
        }
    }
}

void AgwEngine::BeginFrame() {
    coming_ = {.kind = head_[kKindAt],
               .radio = head_[kRadioAt],
               .from = CallAt(head_, kFromAt),
               .to = CallAt(head_, kToAt),
               .data = ""};
    left_ = LengthOf(head_);
    told_ = 0;
    if (left_ == 0) {
        EndFrame();
    }
}

void AgwEngine::EndFrame() {
    if (coming_.kind != 'D') {  // all other kinds are text, and NULs end it
        coming_.data.resize(std::min(coming_.data.size(), told_));
    }
    head_.clear();
    queue_.push_back(std::move(coming_));
}

bool AgwEngine::AGWGetData(AgwFrame& frame) {
    Look();
    while (!queue_.empty()) {
        Heard heard = std::move(queue_.front());
        queue_.pop_front();
        if (IsForProgram(heard)) {
            frame = {.call = std::move(heard.from),
                     .kind = heard.kind == kConnected ? 'c' : heard.kind,
                     .data = std::move(heard.data)};
            return true;
        }
    }
    return false;
}

bool AgwEngine::IsForProgram(const Heard& heard) {
    if (heard.kind == kConnected) {
        links_.insert_or_assign(heard.from, heard.radio);
    } else if (heard.kind == 'd') {
        links_.erase(heard.from);
    } else if (IsHeardOnTheAir(heard.kind)) {
        return !(heard.from == ownCall_ && links_.contains(heard.to)) &&
               !(heard.to == ownCall_ && links_.contains(heard.from));
    } else {
        return heard.kind == 'D' || heard.kind == 'U';
    }
    return true;
}

void AgwEngine::AGWPutData(std::string_view call, std::string_view data, char kind) {
    const auto link = links_.find(call);
    const char radio = link == links_.end() ? '\0' : link->second;
    switch (kind) {
        case 'c':
            Send(kConnected, '\0', call, "");
            break;
        case 'd':
            Send('d', radio, call, "");
            break;
        case 'D':
            Send('D', radio, call, data);
            break;
        default:
            break;  // 'P' is a login on the wire, and an empty one may end the connection
    }
}

void AgwEngine::AGWClose() {
    if (socket_->IsConnected()) {
        Send(kUnregister, '\0', "", "");
    }
    socket_->Close();
    started_ = kAgwNone;
    links_.clear();
    head_.clear();
    coming_ = {};
    queue_.clear();
}

void AgwEngine::Send(char kind, char radio, std::string_view to, std::string_view data) {
    std::string frame(kHeadLength, '\0');
    frame[kRadioAt] = radio;
    frame[kKindAt] = kind;
    frame[kPidAt] = kind == 'D' ? kPlainText : '\0';
    PutCall(frame, kFromAt, ownCall_);
    PutCall(frame, kToAt, to);
    auto length = static_cast<std::uint32_t>(data.size());
    for (std::size_t i = 0; i < 4; ++i, length >>= 8U) {
        frame[kLengthAt + i] = static_cast<char>(length & 0xFFU);
    }
    socket_->Send(frame.append(data));
}

}  // namespace tallyhut
