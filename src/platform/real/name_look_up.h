#pragma once

#include <netinet/in.h>

#include <memory>
#include <string>
#include <vector>

namespace tallyhut {

/// Where a host is to be reached.
union SocketAddress {
    sockaddr any;
    sockaddr_in v4;
    sockaddr_in6 v6;
};

/// The look-up of a host's name, in a thread of its own, since it may take half a minute and cannot be broken off. The
/// thread hands over through a descriptor; whoever does not want the answer any more lets the look-up go, and the
/// thread ends when it has its answer. A numeric address needs no thread.
class NameLookUp {
public:
    /// Begins. A port beyond 1 to 65535 has no address.
    NameLookUp(const std::string& host, int port);

    /// Has something to read when the answer is there, and from then on.
    int Number() const;
    bool IsDone() const;
    /// Of an answer that is there: at least one address, or the number of the failure.
    const std::vector<SocketAddress>& Addresses() const;
    int Failure() const;

private:
    struct Answer;

    std::shared_ptr<Answer> answer_;
};

}  // namespace tallyhut
