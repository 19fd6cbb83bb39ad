#pragma once

#include <deque>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/datagram_socket.h"
#include "platform/sim/clock.h"
#include "platform/sim/event_pump.h"

namespace tallyhut::sim {

struct DatagramSocket;

/// One datagram that the program has handed over.
struct SentDatagram {
    std::string to;  ///< HOST:PORT
    std::string bytes;
    Tick at = 0;

    bool operator==(const SentDatagram&) const = default;
};

/// The simulated network of datagrams: records what is sent, and plays what a test arranges, by HOST:PORT.
struct DatagramSockets : tallyhut::DatagramSockets {
    DatagramSockets(const Clock& machineClock, EventPump& machinePump) : clock{machineClock}, pump{machinePump} {}

    const Clock& clock;
    EventPump& pump;

    // What the program has done.
    std::vector<SentDatagram> sent;  ///< also what was refused
    std::vector<std::string> opened;
    int made = 0;  ///< sockets

    // What a test arranges.
    std::string hostName = "SHACK";
    std::map<std::string, int> unopenable = {};  ///< opening fails with the number
    std::map<std::string, int> refused = {};     ///< each datagram is taken, and the number is told of it then
    std::map<std::string, int> unsendable = {};  ///< each datagram is lost with the number
    std::set<std::string> slow = {};             ///< finding the host lasts until Find
    /// The host of those that are being opened is known now, or known not to be there.
    void Find(const std::string& address);

    std::unique_ptr<tallyhut::DatagramSocket> NewSocket() override;
    std::string HostName() const override { return hostName; }

private:
    friend struct DatagramSocket;

    std::vector<DatagramSocket*> sockets_;  // those that live
};

struct DatagramSocket : tallyhut::DatagramSocket {
    DatagramSocket(DatagramSockets& network, int descriptor);
    DatagramSocket(const DatagramSocket&) = delete;
    DatagramSocket& operator=(const DatagramSocket&) = delete;
    DatagramSocket(DatagramSocket&&) = delete;
    DatagramSocket& operator=(DatagramSocket&&) = delete;
    ~DatagramSocket() override;

    void Open(const std::string& host, int port) override;
    void Close() override;
    bool IsReady() const override { return isReady_; }
    int Send(std::string_view bytes) override;
    DatagramEvent Take() override;
    int EventDescriptor() const override { return descriptor_; }

private:
    friend struct DatagramSockets;

    void Found();
    void Tell(DatagramEvent event);

    DatagramSockets& network_;
    const int descriptor_;
    std::string address_;
    bool isReady_ = false;
    std::deque<DatagramEvent> events_;
};

}  // namespace tallyhut::sim
