#pragma once

#include <optional>

#include "platform/datagram_socket.h"
#include "platform/real/descriptor.h"
#include "platform/real/name_look_up.h"

namespace tallyhut {

/// Datagrams over the system's sockets. A socket is connected, so it has no port but the one that the system gives it
/// for sending, hears of refusals, and nobody but the other end could send it anything; a filter drops that too.
class PosixDatagramSocket : public DatagramSocket {
public:
    /// Throws PlatformError.
    PosixDatagramSocket();

    void Open(const std::string& host, int port) override;
    void Close() override;
    bool IsReady() const override { return socket_.IsOpen(); }
    int Send(std::string_view bytes) override;
    DatagramEvent Take() override;
    int EventDescriptor() const override { return events_.Number(); }

private:
    DatagramEvent TakeAddresses();
    int OpenSocket(const SocketAddress& address);
    int TakeError() const;
    static DatagramEvent Failed(int number);

    Descriptor events_;
    std::optional<NameLookUp> lookUp_;
    Descriptor socket_;
    int failure_ = 0;  ///< an event that waits: of the opening, or of an earlier datagram
};

struct PosixDatagrams : DatagramSockets {
    std::unique_ptr<DatagramSocket> NewSocket() override { return std::make_unique<PosixDatagramSocket>(); }
    std::string HostName() const override;
};

}  // namespace tallyhut
