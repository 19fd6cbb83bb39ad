#pragma once

#include "platform/datagram_socket.h"

namespace tallyhut {

/// Datagrams over the system's sockets.
struct PosixDatagrams : DatagramSockets {};

}  // namespace tallyhut
