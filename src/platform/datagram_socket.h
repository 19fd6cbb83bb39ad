#pragma once

namespace tallyhut {

/// Where sockets for datagrams come from.
struct DatagramSockets {
    virtual ~DatagramSockets() = default;
};

}  // namespace tallyhut
