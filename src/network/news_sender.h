#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "network/address_list.h"
#include "platform/datagram_socket.h"
#include "toolkit/desk.h"

namespace tallyhut {

/// What is wrong with an address, as the operator is told.
struct NewsFailure {
    Tick at = 0;
    std::string text;  ///< "shack:12060: nobody listens there"
};

/// Sends documents as datagrams to a list of addresses, each with a socket of its own, so that none keeps the others
/// from anything. It never waits: while a host is looked up, what is to be sent to it waits here. An address that has
/// failed goes on being tried, and is looked up anew, at most every ten seconds. Nothing comes back from a receiver
/// that listens: an address is good again when five seconds after a datagram no failure has come.
struct NewsSender {
    static constexpr std::size_t kMostWaiting = 64;  ///< documents; the oldest goes first
    static constexpr Tick kPauseMs = 10'000;
    static constexpr Tick kSilenceMs = 5'000;

    NewsSender(Desk& owner, DatagramSockets& machineNetwork);
    ~NewsSender();
    NewsSender(const NewsSender&) = delete;
    NewsSender& operator=(const NewsSender&) = delete;
    NewsSender(NewsSender&&) = delete;
    NewsSender& operator=(NewsSender&&) = delete;

    /// In place of those before, which are forgotten with all that waits for them. For none there is no socket.
    void SendTo(const std::vector<NetworkAddress>& addresses);
    void Send(const std::string& document);
    /// The newest of those that stand; nothing where all addresses are well.
    std::optional<NewsFailure> LastFailure() const;

    /// LastFailure may be another one.
    std::function<void()> failuresChanged = [] {};

private:
    struct Line;

    void Send(Line& line, const std::string& document);
    void Open(Line& line);
    void HandOver(Line& line, const std::string& document);
    void TakeEvents(Line& line);
    void SendWaiting(Line& line);
    void Fail(Line& line, const std::string& why) const;
    void LookForSilence();

    Desk& desk_;
    DatagramSockets& network_;
    std::vector<std::unique_ptr<Line>> lines_;
    Alarm silence_;
};

}  // namespace tallyhut
