#include "network/news_sender.h"

#include <gtest/gtest.h>

#include "platform/sim/machine.h"
#include "platform/tcp_socket.h"

namespace tallyhut {
namespace {

struct NewsSenderTest : testing::Test, sim::Machine {
    NewsSenderTest() : sim::Machine{{2026, 11, 7, 21, 4, 33}} {}

    Desk desk{clock, pump, dialogs, clipboard};
    NewsSender sender{desk, datagramSockets};

    void SendTo(const std::string& addresses, News news = News::Contacts) {
        sender.SendTo(news, ReadAddresses(addresses).addresses);
    }
    void Send(const std::string& document) {
        sender.Send(News::Contacts, document);
        desk.RunPending();
    }
    void Pass(Tick milliseconds) {
        const Tick end = clock.TickMs() + milliseconds;
        while (clock.TickMs() < end) {
            clock.AdvanceTo(std::min(desk.NextDue().value_or(end), end));
            desk.RunPending();
        }
    }
    std::string Failure() const { return sender.LastFailure(); }
    /// "one:1 a, two:2 a" since the last call.
    std::string TakeSent() {
        std::string all;
        for (const sim::SentDatagram& sent : std::exchange(datagramSockets.sent, {})) {
            all += (all.empty() ? "" : ", ") + sent.to + ' ' + sent.bytes;
        }
        return all;
    }
};

TEST_F(NewsSenderTest, WithoutAddressesThereIsNoSocketAndNothingIsSent) {
    SendTo("");
    Send("a");
    EXPECT_EQ(datagramSockets.made, 0);
    EXPECT_EQ(TakeSent(), "");
}

TEST_F(NewsSenderTest, EachAddressGetsEachDocumentAtOnce) {
    SendTo("127.0.0.1:1,127.0.0.1:2");
    EXPECT_EQ(datagramSockets.made, 2);
    sender.Send(News::Contacts, "a");
    sender.Send(News::Contacts, "b");
    EXPECT_EQ(TakeSent(), "127.0.0.1:1 a, 127.0.0.1:2 a, 127.0.0.1:1 b, 127.0.0.1:2 b") << "no event had to run";
}

TEST_F(NewsSenderTest, OtherAddressesTakeThePlaceOfThoseBefore) {
    SendTo("127.0.0.1:1");
    SendTo("127.0.0.1:2");
    Send("a");
    EXPECT_EQ(TakeSent(), "127.0.0.1:2 a");
    SendTo("");
    Send("b");
    EXPECT_EQ(TakeSent(), "");
    EXPECT_TRUE(pump.readable.empty());
}

TEST_F(NewsSenderTest, WhatIsSentWhileAHostIsLookedUpFollowsInOrder) {
    datagramSockets.slow = {"slow:1"};
    SendTo("slow:1,127.0.0.1:2");
    Send("a");
    Send("b");
    EXPECT_EQ(TakeSent(), "127.0.0.1:2 a, 127.0.0.1:2 b") << "the others do not wait for it";
    datagramSockets.Find("slow:1");
    desk.RunPending();
    EXPECT_EQ(TakeSent(), "slow:1 a, slow:1 b");
    Send("c");
    EXPECT_EQ(TakeSent(), "slow:1 c, 127.0.0.1:2 c");
}

TEST_F(NewsSenderTest, OfWhatWaitsForALookUpTheOldestGoes) {
    datagramSockets.slow = {"slow:1"};
    SendTo("slow:1");
    for (int i = 0; i < 100; ++i) {
        sender.Send(News::Contacts, std::to_string(i));
    }
    datagramSockets.Find("slow:1");
    desk.RunPending();
    ASSERT_EQ(datagramSockets.sent.size(), NewsSender::kMostWaiting);
    EXPECT_EQ(datagramSockets.sent.front().bytes, "36");
    EXPECT_EQ(datagramSockets.sent.back().bytes, "99");
}

TEST_F(NewsSenderTest, AnAddressOfBothKindsHasOneSocket) {
    SendTo("127.0.0.1:1,127.0.0.1:2");
    SendTo("127.0.0.1:2,127.0.0.1:3", News::Radio);
    EXPECT_EQ(datagramSockets.made, 3);
    Send("a");
    sender.Send(News::Radio, "r");
    EXPECT_EQ(TakeSent(), "127.0.0.1:1 a, 127.0.0.1:2 a, 127.0.0.1:2 r, 127.0.0.1:3 r");
    SendTo("", News::Radio);
    sender.Send(News::Radio, "r");
    Send("b");
    EXPECT_EQ(TakeSent(), "127.0.0.1:1 b, 127.0.0.1:2 b");
    EXPECT_EQ(datagramSockets.opened.size(), 3U) << "what is chosen of one kind opens no address of the other anew";
}

TEST_F(NewsSenderTest, OfAnAddressThatOneKindLeavesWhatWaitsOfTheOtherIsSent) {
    datagramSockets.slow = {"slow:1"};
    SendTo("slow:1");
    SendTo("slow:1", News::Radio);
    Send("a");
    sender.Send(News::Radio, "r");
    SendTo("", News::Radio);
    datagramSockets.Find("slow:1");
    desk.RunPending();
    EXPECT_EQ(TakeSent(), "slow:1 a");
}

TEST_F(NewsSenderTest, WhatIsWellComesBeforeWhatIsTriedAnew) {
    datagramSockets.unopenable["none:1"] = kTcpHostNotFound;
    SendTo("none:1,127.0.0.1:2");
    Pass(10'000);
    datagramSockets.unopenable.clear();
    Send("a");
    EXPECT_EQ(TakeSent(), "127.0.0.1:2 a, none:1 a");
}

TEST_F(NewsSenderTest, ARefusedAddressIsNamedAndKeepsNobodyFromAnything) {
    datagramSockets.refused["127.0.0.1:1"] = kTcpRefused;
    SendTo("127.0.0.1:1,127.0.0.1:2");
    EXPECT_EQ(Failure(), "");
    Send("a");
    EXPECT_EQ(Failure(), "127.0.0.1:1: nobody listens there");
    Send("b");
    EXPECT_EQ(TakeSent(), "127.0.0.1:1 a, 127.0.0.1:2 a, 127.0.0.1:1 b, 127.0.0.1:2 b");
}

TEST_F(NewsSenderTest, AnAddressIsGoodAgainFiveSecondsAfterADatagramThatNobodyRefused) {
    datagramSockets.refused["127.0.0.1:1"] = kTcpRefused;
    SendTo("127.0.0.1:1");
    Send("a");
    Pass(60'000);
    EXPECT_NE(Failure(), "") << "nothing was sent since";
    datagramSockets.refused.clear();
    Send("b");
    Pass(4'900);
    EXPECT_NE(Failure(), "");
    Pass(1'100);
    EXPECT_EQ(Failure(), "");
    EXPECT_EQ(desk.NextDue(), std::nullopt) << "nothing more to look for";
}

TEST_F(NewsSenderTest, AnAddressThatIsRefusedEachTimeStaysNamed) {
    datagramSockets.refused["127.0.0.1:1"] = kTcpRefused;
    SendTo("127.0.0.1:1");
    int told = 0;
    sender.failuresChanged = [&told, this] { told += Failure().empty() ? 1 : 0; };
    for (int i = 0; i < 600; ++i) {
        Send("a");
        Pass(100);
    }
    EXPECT_EQ(told, 0);
    EXPECT_NE(Failure(), "");
    datagramSockets.refused.clear();
    for (int i = 0; i < 61; ++i) {
        Send("a");
        Pass(100);
    }
    EXPECT_EQ(Failure(), "") << "though something was sent all the time";
}

TEST_F(NewsSenderTest, TheNewestFailureIsToldUntilAllAddressesAreWell) {
    datagramSockets.refused["127.0.0.1:1"] = kTcpRefused;
    SendTo("127.0.0.1:1,127.0.0.1:2");
    Send("a");
    Pass(1'000);
    datagramSockets.unsendable["127.0.0.1:2"] = kTcpUnreachable;
    Send("b");
    EXPECT_EQ(Failure(), "127.0.0.1:2: it cannot be reached");
    Pass(1'000);
    Send("c");
    EXPECT_EQ(Failure(), "127.0.0.1:2: it cannot be reached") << "the other one fails as before";
    datagramSockets.unsendable.clear();
    Send("d");
    Pass(6'000);
    EXPECT_EQ(Failure(), "127.0.0.1:1: nobody listens there");
    datagramSockets.refused.clear();
    Send("e");
    Pass(6'000);
    EXPECT_EQ(Failure(), "");
}

TEST_F(NewsSenderTest, ANameThatIsNoneIsLookedUpAnewTenSecondsLaterAndNotBefore) {
    datagramSockets.unopenable["none:1"] = kTcpHostNotFound;
    SendTo("none:1");
    EXPECT_EQ(Failure(), "none:1: there is no such host") << "before anything was sent";
    Send("a");
    Pass(9'000);
    Send("b");
    EXPECT_EQ(datagramSockets.opened.size(), 1U);
    Pass(1'000);
    datagramSockets.unopenable.clear();
    Send("c");
    EXPECT_EQ(datagramSockets.opened.size(), 2U);
    EXPECT_EQ(TakeSent(), "none:1 c");
    Pass(6'000);
    EXPECT_EQ(Failure(), "");
}

TEST_F(NewsSenderTest, AHostThatIsNotFoundLateLosesWhatWaitedForIt) {
    datagramSockets.slow = {"slow:1"};
    datagramSockets.unopenable["slow:1"] = kTcpHostNotFoundNow;
    SendTo("slow:1");
    Send("a");
    datagramSockets.Find("slow:1");
    desk.RunPending();
    EXPECT_EQ(Failure(), "slow:1: the name of the host cannot be looked up now");
    datagramSockets.unopenable.clear();
    Pass(10'000);
    Send("b");
    EXPECT_EQ(TakeSent(), "slow:1 b");
}

TEST_F(NewsSenderTest, ADayOfALostNetworkOpensNoMoreThanOnceInTenSeconds) {
    datagramSockets.unopenable["none:1"] = kTcpUnreachable;
    SendTo("none:1");
    for (int minute = 0; minute < 24 * 60; ++minute) {
        for (int i = 0; i < 20; ++i) {
            Send("a");
            Pass(3'000);
        }
    }
    EXPECT_LE(datagramSockets.opened.size(), 24U * 60 * 6 + 1);
    EXPECT_EQ(datagramSockets.made, 1);
    EXPECT_EQ(Failure(), "none:1: it cannot be reached");
}

TEST_F(NewsSenderTest, AFailureWithoutWordsIsToldByItsNumber) {
    datagramSockets.unsendable["127.0.0.1:1"] = 10'090;
    SendTo("127.0.0.1:1");
    Send("a");
    EXPECT_EQ(Failure(), "127.0.0.1:1: failure 10090");
}

}  // namespace
}  // namespace tallyhut
