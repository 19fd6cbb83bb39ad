#include "network/address_list.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "values/number.h"
#include "values/text.h"

namespace tallyhut {
namespace {

constexpr int kLastPort = 65'535;

/// A line of the form holds it.
std::string Shortened(const std::string& text) {
    constexpr std::size_t kLongest = 60;
    return text.size() > kLongest ? text.substr(0, kLongest) + "..." : text;
}

std::optional<int> ReadPort(std::string_view text) {
    int port = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), port);
    const bool isPort = failure == std::errc{} && end == text.data() + text.size() && port >= 1 && port <= kLastPort;
    return isPort ? std::optional{port} : std::nullopt;
}

bool IsHost(std::string_view text, bool isInBrackets) {
    const bool isPlain =
        std::ranges::all_of(text, [](char character) { return character > ' ' && character < '\x7F'; });
    return !text.empty() && isPlain && text.find_first_of("[]") == std::string_view::npos &&
           (isInBrackets || text.find(':') == std::string_view::npos);
}

std::optional<NetworkAddress> ReadAddress(std::string_view text) {
    const std::size_t colon = text.rfind(':');
    if (colon == std::string_view::npos) {
        return std::nullopt;
    }
    std::string_view host = text.substr(0, colon);
    const bool isInBrackets = host.size() > 2 && host.starts_with('[') && host.ends_with(']');
    if (isInBrackets) {
        host = host.substr(1, host.size() - 2);
    }
    const std::optional<int> port = ReadPort(text.substr(colon + 1));
    return port && IsHost(host, isInBrackets) ? std::optional{NetworkAddress{std::string{host}, *port}} : std::nullopt;
}

}  // namespace

std::string AddressText(const NetworkAddress& address) {
    const bool hasColon = address.host.find(':') != std::string::npos;
    return Shortened(hasColon ? '[' + address.host + ']' : address.host) + ':' + PlainText(address.port);
}

AddressList ReadAddresses(std::string_view text) {
    AddressList list;
    const auto note = [&list](std::string fault) { list.fault = list.fault.empty() ? std::move(fault) : list.fault; };
    while (!text.empty()) {
        const std::size_t comma = std::min(text.find(','), text.size());
        const std::string item = Trim(text.substr(0, comma));
        text.remove_prefix(std::min(comma + 1, text.size()));
        if (item.empty()) {
            continue;
        }
        const std::optional<NetworkAddress> address = ReadAddress(item);
        if (!address) {
            note(Shortened(item) + " is no address: HOST:PORT is one");
        } else if (list.addresses.size() == AddressList::kMost) {
            note(Shortened(item) + " is one too many: " + PlainText(AddressList::kMost) + " addresses are the most");
        } else if (std::ranges::find(list.addresses, *address) == list.addresses.end()) {
            list.addresses.push_back(*address);
        }
    }
    return list;
}

}  // namespace tallyhut
