#pragma once

#include <memory>
#include <string>

#include "platform/keyring.h"

namespace tallyhut {

/// The keyring of the desktop, over the secret service of its message bus. Whoever speaks with it waits, for the bus
/// and for an operator who is asked to unlock the keyring; so that is a thread of its own, made by the first request,
/// which hands over through a descriptor. It is told to break off at the end, and not waited for.
class SecretService : public Keyring {
public:
    /// Throws PlatformError.
    SecretService();
    ~SecretService() override;
    SecretService(const SecretService&) = delete;
    SecretService& operator=(const SecretService&) = delete;
    SecretService(SecretService&&) = delete;
    SecretService& operator=(SecretService&&) = delete;

    void Look() override;
    void Fetch(const std::string& place) override;
    void Keep(const std::string& place, const std::string& secret) override;
    void Forget(const std::string& place) override;
    KeyringAnswer Take() override;
    int EventDescriptor() const override;
    void ShieldMemory() override;

private:
    struct Talk;
    struct Request;

    void Ask(Request request);

    std::shared_ptr<Talk> talk_;
    bool hasThread_ = false;
};

}  // namespace tallyhut
