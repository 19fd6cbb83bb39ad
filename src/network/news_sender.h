#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "network/address_list.h"
#include "platform/datagram_socket.h"
#include "toolkit/desk.h"

namespace tallyhut {

/// What addresses are chosen for.
enum class News { Contacts, Radio };

/// Sends documents as datagrams to lists of addresses, one for each kind of news. Each address has one socket of its
/// own, in however many lists it stands, so that none keeps the others from anything: those that are well come first.
/// It never waits: while a host is looked up, what is to be sent to it waits here. An address that has failed goes on
/// being tried, and is looked up anew, at most every ten seconds. Nothing comes back from a receiver that listens: an
/// address is good again when five seconds after a datagram no failure has come.
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

    /// In place of those before for this kind, of which nothing waits any more. An address that stands in no list has
    /// no socket.
    void SendTo(News news, const std::vector<NetworkAddress>& addresses);
    void Send(News news, const std::string& document);
    /// The newest of those that stand, "shack:12060: nobody listens there"; empty where all addresses are well.
    std::string LastFailure() const;

    /// LastFailure may be another one.
    std::function<void()> failuresChanged = [] {};

private:
    struct WaitingNews;
    struct Line;

    Line& LineTo(const NetworkAddress& address);
    bool IsToBeTriedAnew(const Line& line) const;
    void Send(Line& line, News news, const std::string& document);
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
