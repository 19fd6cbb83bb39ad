#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace tallyhut {

/// The numbers that failures of connections are told by.
enum TcpFailure : int {
    kTcpOutOfMemory = 7,
    kTcpInvalidValue = 380,
    kTcpBroadcastAddress = 10014,
    kTcpAddressInUse = 10048,
    kTcpAddressNotHere = 10049,
    kTcpNetworkDown = 10050,
    kTcpUnreachable = 10051,
    kTcpKeepAliveTimedOut = 10052,
    kTcpAborted = 10053,
    kTcpReset = 10054,
    kTcpNoBuffers = 10055,
    kTcpTimedOut = 10060,
    kTcpRefused = 10061,
    kTcpHostNotFound = 11001,
    kTcpHostNotFoundNow = 11002,
    kTcpNameFailure = 11003,
    kTcpNoAddress = 11004,
};

/// One thing that happened to a connection.
struct TcpEvent {
    enum class Kind { Nothing, Connected, Chunk, Ended, Failed };

    Kind kind = Kind::Nothing;
    std::string bytes = {};  ///< of a chunk: what one arrival brought, never empty
    int failure = 0;         ///< of a failure: its number

    bool operator==(const TcpEvent&) const = default;
};

/// One TCP connection, as a client. No operation ever waits, neither for a name nor for a host; what comes of it is
/// taken as events.
struct TcpSocket {
    virtual ~TcpSocket() = default;

    /// Begins to connect; what was open before is closed, and its events are forgotten. A port beyond 1 to 65535 and a
    /// name that is none fail as the host does, by an event.
    virtual void Connect(const std::string& host, int port) = 0;
    /// Ends the connection, or the attempt, without an event. Does nothing on a closed socket.
    virtual void Close() = 0;
    /// False too while connecting, and from the end or the failure on.
    virtual bool IsConnected() const = 0;
    /// Bytes for the other end; what the line does not take at once follows. Does nothing without a connection. A line
    /// that takes nothing fails, by an event, before more than 64 KiB wait for it.
    virtual void Send(std::string_view bytes) = 0;
    /// The next event, the oldest first. The end and a failure come once and have closed the socket.
    virtual TcpEvent Take() = 0;
    /// Has something to read whenever Take may have an event; the same for as long as the socket lives. Nobody else
    /// reads from it.
    virtual int EventDescriptor() const = 0;
};

/// Where connections come from.
struct TcpSockets {
    virtual ~TcpSockets() = default;

    /// A closed socket.
    virtual std::unique_ptr<TcpSocket> NewSocket() = 0;
};

}  // namespace tallyhut
