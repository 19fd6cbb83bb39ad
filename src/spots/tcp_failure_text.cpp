#include "spots/tcp_failure_text.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tallyhut {
namespace {

struct FailureText {
    int number;
    std::string_view text;
};

constexpr std::array kFailureTexts{
    FailureText{7, "ERROR: Out of memory."},
    FailureText{380, "ERROR: The property value is invalid."},
    FailureText{383, "ERROR: The property is read-only."},
    FailureText{394, "ERROR: The property can't be read."},
    FailureText{1004, "ERROR: The operation was canceled."},
    FailureText{10014, "ERROR: The requested address is a broadcast address, but flag is not set."},
    FailureText{10035, "ERROR: Socket is non-blocking and the specified operation will block."},
    FailureText{10036, "ERROR: A blocking Winsock operation in progress."},
    FailureText{10037, "ERROR: The operation is completed. No blocking operation in progress"},
    FailureText{10038, "ERROR: The descriptor is not a socket."},
    FailureText{10040, "ERROR: The datagram is too large to fit into the buffer and is truncated."},
    FailureText{10043, "ERROR: The specified port is not supported."},
    FailureText{10048, "ERROR: Address in use."},
    FailureText{10049, "ERROR: Address not available from the local machine."},
    FailureText{10050, "ERROR: Network subsystem failed."},
    FailureText{10051, "ERROR: The network cannot be reached from this host at this time."},
    FailureText{10052, "ERROR: Connection has timed out when SO_KEEPALIVE is set."},
    FailureText{10053, "ERROR: Connection is aborted due to timeout or other failure."},
    FailureText{10054, "ERROR: The connection is reset by remote side.!"},
    FailureText{10055, "ERROR: No buffer space is available."},
    FailureText{10056, "ERROR: Socket is already connected."},
    FailureText{10057, "ERROR: Socket is not connected."},
    FailureText{10058, "ERROR: Socket has been shut down."},
    FailureText{10060, "ERROR: Socket has been shut down."},
    FailureText{10061, "ERROR: Connection is forcefully rejected."},
    FailureText{10093, "ERROR: WinsockInit should be called first."},
    FailureText{11001, "ERROR: Authoritative answer: Host not found."},
    FailureText{11002, "ERROR: Non-Authoritative answer: Host not found."},
    FailureText{11003, "ERROR: Non-recoverable errors."},
    FailureText{11004, "ERROR: Valid name, no data record of requested type."},
};

}  // namespace

std::string TextOfFailure(int number) {
    const auto* const row = std::ranges::find(kFailureTexts, number, &FailureText::number);
    return row != kFailureTexts.end() ? std::string{row->text} : "Error number " + std::to_string(number);
}

}  // namespace tallyhut
