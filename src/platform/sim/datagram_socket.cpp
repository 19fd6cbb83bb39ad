#include "platform/sim/datagram_socket.h"

#include "platform/tcp_socket.h"

namespace tallyhut::sim {
namespace {

constexpr int kFirstDescriptor = 2'000;

int NumberFor(const std::map<std::string, int>& arranged, const std::string& address) {
    const auto found = arranged.find(address);
    return found == arranged.end() ? 0 : found->second;
}

DatagramEvent Failed(int number) {
    return {.kind = DatagramEvent::Kind::Failed, .failure = number};
}

}  // namespace

std::unique_ptr<tallyhut::DatagramSocket> DatagramSockets::NewSocket() {
    return std::make_unique<DatagramSocket>(*this, kFirstDescriptor + made++);
}

void DatagramSockets::Find(const std::string& address) {
    slow.erase(address);
    for (DatagramSocket* socket : sockets_) {
        if (socket->address_ == address) {
            socket->Found();
        }
    }
}

DatagramSocket::DatagramSocket(DatagramSockets& network, int descriptor) : network_{network}, descriptor_{descriptor} {
    network_.sockets_.push_back(this);
}

DatagramSocket::~DatagramSocket() {
    Close();
    std::erase(network_.sockets_, this);
}

void DatagramSocket::Open(const std::string& host, int port) {
    Close();
    address_ = host + ':' + std::to_string(port);
    network_.opened.push_back(address_);
    if (!network_.slow.contains(address_)) {
        Found();
    }
}

void DatagramSocket::Close() {
    address_.clear();
    isReady_ = false;
    events_.clear();
    network_.pump.readable.erase(descriptor_);
}

void DatagramSocket::Found() {
    const int failure = NumberFor(network_.unopenable, address_);
    Tell(failure == 0 ? DatagramEvent{.kind = DatagramEvent::Kind::Ready} : Failed(failure));
}

int DatagramSocket::Send(std::string_view bytes) {
    if (!isReady_) {
        return kTcpAddressNotHere;
    }
    if (const int failure = NumberFor(network_.unsendable, address_); failure != 0) {
        return failure;
    }
    network_.sent.push_back({address_, std::string{bytes}, network_.clock.TickMs()});
    if (const int failure = NumberFor(network_.refused, address_); failure != 0) {
        Tell(Failed(failure));
    }
    return 0;
}

DatagramEvent DatagramSocket::Take() {
    if (events_.empty()) {
        return {};
    }
    const DatagramEvent event = events_.front();
    events_.pop_front();
    if (events_.empty()) {
        network_.pump.readable.erase(descriptor_);
    }
    isReady_ = isReady_ || event.kind == DatagramEvent::Kind::Ready;
    return event;
}

void DatagramSocket::Tell(DatagramEvent event) {
    events_.push_back(event);
    network_.pump.readable.insert(descriptor_);
}

}  // namespace tallyhut::sim
