#include "spots/cluster_login.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/platform_error.h"
#include "spots/spot_line.h"
#include "spots/tcp_failure_text.h"
#include "spots/terminal_text.h"
#include "values/secret.h"
#include "values/text.h"

namespace tallyhut {
namespace {

constexpr std::array kPauses{5, 15, 30, 60};  ///< seconds; the last one again and again
constexpr std::int32_t kSecond = 1'000;
constexpr std::int32_t kGoodAfter = 60 * kSecond;
constexpr std::int32_t kUntilInside = 2 * kSecond;
constexpr std::int32_t kBetweenLines = 2 * kSecond;  ///< nodes take more for a flood
constexpr std::int32_t kAtRest = 300;
constexpr Tick kLongestTurn = 20;
constexpr std::size_t kMostLines = 10;

std::deque<std::string> LinesToSend(std::string_view text) {
    std::deque<std::string> lines;
    for (std::size_t begin = 0; begin < text.size() && lines.size() < kMostLines;) {
        const std::size_t end = std::min(text.find_first_of("\r\n", begin), text.size());
        if (std::string line = Trim(ShownText(text.substr(begin, end - begin))); !line.empty()) {
            lines.push_back(std::move(line));
        }
        begin = end + 1;
    }
    return lines;
}

}  // namespace

ClusterLogin::ClusterLogin(PacketSpotfrm& setupForm, TcpSocket& clusterSocket, Desk& owner,
                           const Preferences& thePreferences)
    : form_{setupForm},
      socket_{clusterSocket},
      desk_{owner},
      preferences_{thePreferences},
      terminal_{setupForm.txtUnProcessed},
      pause_{owner, [this] { Connect(); }},
      good_{owner, [this] { failures_ = 0; }},
      settling_{owner, [this] { GoInside(); }},
      sending_{owner, [this] { SendNextLine(); }},
      rest_{owner, [this] { Rest(); }} {}

void ClusterLogin::Open(const std::string& host, int port) {
    host_ = host;
    port_ = port;
    isOpen_ = true;
    failures_ = 0;
    Connect();
}

void ClusterLogin::Close() {
    isOpen_ = false;
    StopWaiting();
    text_.Forget();
}

void ClusterLogin::StopWaiting() {
    for (Alarm* alarm : {&pause_, &good_, &settling_, &sending_, &rest_}) {
        alarm->Stop();
    }
}

void ClusterLogin::Connect() {
    StopWaiting();
    text_.Forget();
    shown_ = 0;
    answered_.clear();
    isInside_ = false;
    lines_.clear();
    try {
        socket_.Connect(host_, port_);
    } catch (const PlatformError& failure) {  // the machine has nothing left to connect with
        PutOff(failure.what());
    }
}

void ClusterLogin::Arrived() {
    if (!text_.HasLine()) {  // what has come waits its turn on the other side
        TakeEvent();
    }
    TakeText();
}

void ClusterLogin::TakeEvent() {
    const TcpEvent event = socket_.Take();
    switch (event.kind) {
        case TcpEvent::Kind::Connected:
            good_.StartOnce(kGoodAfter);
            break;
        case TcpEvent::Kind::Chunk:
            text_.Add(event.bytes);
            break;
        case TcpEvent::Kind::Ended:
            PutOff("The cluster has ended the connection.");
            break;
        case TcpEvent::Kind::Failed:
            Fail(event.failure);
            break;
        case TcpEvent::Kind::Nothing:
            break;
    }
}

void ClusterLogin::Fail(int number) {
    PutOff(TextOfFailure(number));
}

/// Events run in the handler of a post: the connection may be another one, or none, behind each line.
void ClusterLogin::TakeText() {
    const Tick end = desk_.clock.TickMs() + kLongestTurn;
    std::string line;
    bool took = false;
    while (desk_.clock.TickMs() < end && text_.Take(line)) {
        TakeLine(line);
        took = true;
    }
    if (text_.HasLine()) {
        moreWaits();
    } else if (took || !text_.Unfinished().empty()) {
        LookAtUnfinished();
    }
}

void ClusterLogin::TakeLine(const std::string& line) {
    const std::string plain = ShownText(line);
    const bool isPost = BeginsPost(plain);
    const std::string shown = ShownText(WithoutSecret(line, form_.txtPassword.Text(), true));
    shown_ = std::min(shown_, shown.size());  // of a line that has grown too long nothing is left
    if (isPost || !form_.chkDX.Value()) {
        ShowRest(shown + std::string{kLineEnd});
    }
    shown_ = 0;
    if (EndsInside(plain)) {
        SeeInside();
    }
    if (isPost) {
        received(plain);
    }
}

void ClusterLogin::LookAtUnfinished() {
    const std::string& unfinished = text_.Unfinished();
    if (unfinished.empty()) {
        rest_.Stop();
        return;
    }
    rest_.StartOnce(kAtRest);
    if (const std::optional<ClusterPrompt> prompt = PromptIn(ShownText(unfinished))) {
        ShowUnfinished();
        Answer(*prompt);
    }
}

/// What follows a prompt that rests begins a line, whether a line end comes first or not.
void ClusterLogin::Rest() {
    ShowUnfinished();
    if (EndsInside(ShownText(text_.Unfinished()))) {
        text_.EndUnfinished();
        shown_ = 0;
        SeeInside();
    }
}

void ClusterLogin::ShowRest(const std::string& text) {
    if (shown_ < text.size()) {
        terminal_.Append(std::string_view{text}.substr(shown_));
        shown_ = text.size();
    }
}

void ClusterLogin::ShowUnfinished() {
    if (!form_.chkDX.Value()) {
        ShowRest(ShownText(WithoutSecret(text_.Unfinished(), form_.txtPassword.Text(), false)));
    }
}

/// What somebody says to one who is inside may end like a prompt, and is cut anywhere on its way: it is never answered.
void ClusterLogin::Answer(ClusterPrompt prompt) {
    if (isInside_) {
        return;
    }
    settling_.Stop();
    if (answered_.contains(prompt)) {
        PutOff("The login has failed: the cluster asks again.");
        return;
    }
    const Secret answer{AnswerTo(prompt)};
    if (answer.text.empty()) {
        return;  // the operator's own
    }
    answered_.insert(prompt);
    text_.EndUnfinished();
    shown_ = 0;
    Send(answer.text);
}

std::string ClusterLogin::AnswerTo(ClusterPrompt prompt) const {
    if (prompt == ClusterPrompt::Password) {
        return passwordsNode() == host_ + ':' + std::to_string(port_) ? form_.txtPassword.Text() : std::string{};
    }
    const std::string call = Trim(form_.txtLogin.Text());
    return call.empty() ? Trim(preferences_.gOwnCall) : call;
}

void ClusterLogin::PasswordIsThere() {
    if (isOpen_ && !text_.HasLine() && PromptIn(ShownText(text_.Unfinished())) == ClusterPrompt::Password) {
        Answer(ClusterPrompt::Password);
    }
}

void ClusterLogin::Send(std::string_view text) {
    Secret line;
    AppendSecret(line.text, text);
    AppendSecret(line.text, kLineEnd);
    socket_.Send(line.text);
}

void ClusterLogin::SeeInside() {
    if (!isInside_ && !settling_.IsStarted()) {
        settling_.StartOnce(kUntilInside);
    }
}

void ClusterLogin::GoInside() {
    isInside_ = true;
    lines_ = LinesToSend(form_.txtLoginSend.Text());
    SendNextLine();
}

void ClusterLogin::SendNextLine() {
    if (lines_.empty()) {
        return;
    }
    Send(lines_.front());
    lines_.pop_front();
    if (!lines_.empty()) {
        sending_.StartOnce(kBetweenLines);
    }
}

void ClusterLogin::PutOff(const std::string& reason) {
    if (!isOpen_ || pause_.IsStarted()) {
        return;
    }
    ShowUnfinished();
    StopWaiting();
    socket_.Close();
    text_.Forget();
    shown_ = 0;
    const int seconds = kPauses.at(std::min(failures_, kPauses.size() - 1));
    ++failures_;
    const std::string& terminal = form_.txtUnProcessed.Text();
    const bool beginsLine = terminal.empty() || terminal.ends_with('\n');
    terminal_.Append((beginsLine ? std::string{} : std::string{kLineEnd}) + reason + "  Trying again in " +
                     std::to_string(seconds) + " seconds." + std::string{kLineEnd});
    pause_.StartOnce(seconds * kSecond);
}

}  // namespace tallyhut
