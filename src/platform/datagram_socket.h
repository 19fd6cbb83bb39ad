#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace tallyhut {

/// One thing that happened to a socket for datagrams.
struct DatagramEvent {
    enum class Kind { Nothing, Ready, Failed };

    Kind kind = Kind::Nothing;
    int failure = 0;  ///< of a failure: its number, of those of connections

    bool operator==(const DatagramEvent&) const = default;
};

/// A socket that sends datagrams to one address, and takes none in. No operation ever waits, and none throws.
struct DatagramSocket {
    virtual ~DatagramSocket() = default;

    /// Begins to find the host; what was open before is closed, and its events are forgotten. Of a name that has
    /// addresses of both kinds the first of the older kind counts, since that is where such receivers listen. A
    /// broadcast address is one like others. A port beyond 1 to 65535 and a name that is none fail by an event.
    virtual void Open(const std::string& host, int port) = 0;
    /// Ends what Open has begun, without an event.
    virtual void Close() = 0;
    /// From the event on that says so, until Close; a failure of a single datagram changes nothing.
    virtual bool IsReady() const = 0;
    /// Hands one datagram to the system. What became of an earlier one (that it was refused, say) does not keep it
    /// back, and is an event.
    ///
    /// @return 0, or the number of the failure: the datagram is lost
    virtual int Send(std::string_view bytes) = 0;
    /// The next event: that the socket is ready, that it could not be opened, or, while it is ready, that the other
    /// side has refused a datagram or is not to be reached.
    virtual DatagramEvent Take() = 0;
    /// Has something to tell whenever Take may have an event; the same for as long as the socket lives.
    virtual int EventDescriptor() const = 0;
};

/// Where sockets for datagrams come from.
struct DatagramSockets {
    virtual ~DatagramSockets() = default;

    /// A closed socket. Throws PlatformError.
    virtual std::unique_ptr<DatagramSocket> NewSocket() = 0;
    /// The name that this machine goes by on the network; empty where it has none.
    virtual std::string HostName() const = 0;
};

}  // namespace tallyhut
