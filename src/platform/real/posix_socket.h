#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "platform/real/descriptor.h"
#include "platform/real/name_look_up.h"
#include "platform/tcp_socket.h"

namespace tallyhut {

/// The number that a failure of the system's is told by; 10000 more than the errno value where there is none.
///
/// @param wasConnected  a connection that has timed out is told otherwise than an attempt
int TcpFailureNumber(int errorNumber, bool wasConnected);

/// A connection over the system's sockets. What it waits for, an answer of the look-up, the connection, bytes, room for
/// bytes, stands in one set of descriptors, which is itself a descriptor.
class PosixSocket : public TcpSocket {
public:
    /// Throws PlatformError.
    PosixSocket();
    ~PosixSocket() override;
    PosixSocket(const PosixSocket&) = delete;
    PosixSocket& operator=(const PosixSocket&) = delete;
    PosixSocket(PosixSocket&&) = delete;
    PosixSocket& operator=(PosixSocket&&) = delete;

    void Connect(const std::string& host, int port) override;
    void Close() override;
    bool IsConnected() const override { return isConnected_; }
    void Send(std::string_view bytes) override;
    TcpEvent Take() override;
    int EventDescriptor() const override { return events_.Number(); }

private:
    TcpEvent TakeAddresses();
    TcpEvent TakeConnection();
    TcpEvent TakeBytes();
    /// Begins with the next address of the host; the last one's failure is told.
    TcpEvent TryNextAddress(int failure);
    TcpEvent Fail(int number);
    void SendWaiting();
    void WaitFor(bool readable, bool writable) const;

    struct BrokenOff {
        std::string host;
        int port;
        NameLookUp lookUp;
    };

    Descriptor events_;
    std::string host_;  ///< of the attempt
    int port_ = 0;
    std::optional<NameLookUp> lookUp_;
    /// A look-up that nobody waits for any more cannot be ended. The next attempt of the same host takes it up, so that
    /// however often that is tried, there is one.
    std::optional<BrokenOff> brokenOff_;
    std::size_t nextAddress_ = 0;
    Descriptor socket_;
    bool isConnected_ = false;
    std::string waiting_;  ///< sent, and not yet taken by the line; a password may be in it
    int sendFailure_ = 0;  ///< errno value; told behind what has come before it
};

struct PosixSockets : TcpSockets {
    std::unique_ptr<TcpSocket> NewSocket() override { return std::make_unique<PosixSocket>(); }
};

}  // namespace tallyhut
