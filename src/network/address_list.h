#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhut {

/// Where datagrams go.
struct NetworkAddress {
    std::string host;  ///< a name or a number; of one with colons, without its brackets
    int port = 0;

    bool operator==(const NetworkAddress&) const = default;
};

/// As it is typed: "shack:12060", "[::1]:12060"; of a very long one the beginning.
std::string AddressText(const NetworkAddress& address);

/// What a list of addresses says.
struct AddressList {
    static constexpr std::size_t kMost = 16;

    std::vector<NetworkAddress> addresses;  ///< those that are some
    std::string fault;                      ///< names the first that is none; empty where all are well
};

/// Reads HOST:PORT, with commas between several and blanks around them. Each counts once.
AddressList ReadAddresses(std::string_view text);

}  // namespace tallyhut
