#include "platform/sim/keyring.h"

#include <utility>

namespace tallyhut::sim {
namespace {

constexpr int kDescriptor = 900;

}  // namespace

void Keyring::Look() {
    ++looks;
    Answer(absence ? KeyringAnswer{.kind = KeyringAnswer::Kind::Absent, .text = *absence}
                   : KeyringAnswer{.kind = KeyringAnswer::Kind::There});
}

void Keyring::Fetch(const std::string& place) {
    if (!Refuses(place)) {
        const auto found = kept.find(place);
        Answer({.kind = KeyringAnswer::Kind::Secret,
                .place = place,
                .text = found == kept.end() ? std::string{} : found->second});
    }
}

void Keyring::Keep(const std::string& place, const std::string& secret) {
    if (!Refuses(place)) {
        kept[place] = secret;
    }
}

void Keyring::Forget(const std::string& place) {
    if (!Refuses(place)) {
        kept.erase(place);
    }
}

bool Keyring::Refuses(const std::string& place) {
    const std::optional<std::string>& reason = absence ? absence : refusal;
    if (reason) {
        Answer({.kind = KeyringAnswer::Kind::Failed, .place = place, .text = *reason});
    }
    return reason.has_value();
}

void Keyring::Answer(KeyringAnswer answer) {
    answers_.push_back(std::move(answer));
    if (!isSlow) {
        pump.readable.insert(kDescriptor);
    }
}

void Keyring::Unlock() {
    isSlow = false;
    if (!answers_.empty()) {
        pump.readable.insert(kDescriptor);
    }
}

KeyringAnswer Keyring::Take() {
    if (isSlow || answers_.empty()) {
        return {};
    }
    KeyringAnswer answer = std::move(answers_.front());
    answers_.pop_front();
    if (answers_.empty()) {
        pump.readable.erase(kDescriptor);
    }
    return answer;
}

int Keyring::EventDescriptor() const {
    return kDescriptor;
}

}  // namespace tallyhut::sim
