#pragma once

#include "platform/datagram_socket.h"

namespace tallyhut::sim {

/// The simulated network of datagrams.
struct DatagramSockets : tallyhut::DatagramSockets {};

}  // namespace tallyhut::sim
