#include "network/address_list.h"

#include <gtest/gtest.h>

namespace tallyhut {
namespace {

/// "host|port host|port", and behind a stroke what is wrong.
std::string Read(std::string_view text) {
    const AddressList list = ReadAddresses(text);
    std::string all;
    for (const NetworkAddress& address : list.addresses) {
        all += (all.empty() ? "" : " ") + address.host + '|' + std::to_string(address.port);
    }
    return all + (list.fault.empty() ? "" : " / " + list.fault);
}

TEST(AddressList, TakesNamesAndNumbersWithCommasBetween) {
    EXPECT_EQ(Read("127.0.0.1:12060"), "127.0.0.1|12060");
    EXPECT_EQ(Read(" shack:1 ,, 192.168.1.255:65535,"), "shack|1 192.168.1.255|65535");
    EXPECT_EQ(Read("[::1]:12060,[fe80::1%eth0]:7"), "::1|12060 fe80::1%eth0|7");
    EXPECT_EQ(Read(""), "");
    EXPECT_EQ(Read(" , "), "");
}

TEST(AddressList, EachAddressCountsOnce) {
    EXPECT_EQ(Read("shack:1,shack:1,shack:2"), "shack|1 shack|2");
}

TEST(AddressList, NamesTheFirstThatIsNoneAndKeepsTheOthers) {
    EXPECT_EQ(Read("one:1,shack,two:2,:3"), "one|1 two|2 / shack is no address: HOST:PORT is one");
    for (const char* none : {"shack", "shack:", ":12060", "shack:0", "shack:65536", "shack:-1", "shack: 1", "shack:12x",
                             "::1:12060", "[::1]", "[]:1", "[::1:12060", "a b:1", "a[b]:1", "shack:99999999999999"}) {
        EXPECT_EQ(Read(none), std::string{" / "} + none + " is no address: HOST:PORT is one");
    }
}

TEST(AddressList, SixteenAreTheMost) {
    std::string text;
    for (int i = 1; i <= 17; ++i) {
        text += "h:" + std::to_string(i) + ',';
    }
    const AddressList list = ReadAddresses(text);
    EXPECT_EQ(list.addresses.size(), 16U);
    EXPECT_EQ(list.fault, "h:17 is one too many: 16 addresses are the most");
}

TEST(AddressList, OfAVeryLongOneTheBeginningIsTold) {
    const std::string begin(60, 'x');
    EXPECT_EQ(ReadAddresses(begin + "yyy").fault, begin + "... is no address: HOST:PORT is one");
    EXPECT_EQ(AddressText({.host = begin + "yyy", .port = 1}), begin + "...:1");
}

TEST(AddressList, AnAddressIsToldAsItIsTyped) {
    for (const char* text : {"shack:12060", "[::1]:12060", "192.168.1.255:1"}) {
        EXPECT_EQ(AddressText(ReadAddresses(text).addresses.at(0)), text);
    }
}

}  // namespace
}  // namespace tallyhut
