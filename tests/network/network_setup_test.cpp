#include "network/network_setup.h"

#include "platform/tcp_socket.h"
#include "tests/network/network_fixture.h"

namespace tallyhut {
namespace {

struct NetworkSetupTest : NetworkFixture {
    void Open() { ChooseMenu(Main().mnuNetwork); }
    std::string Stored(const std::string& key) { return settings.values[{"Machine", key}]; }
    /// What the fields hold.
    std::string Shown() {
        return std::string{Network().chkContacts.Value() ? "on " : "off "} + Network().txtContacts.Text() + '|' +
               (Network().chkRadio.Value() ? "on " : "off ") + Network().txtRadio.Text() + '|' +
               Network().txtApp.Text();
    }
    /// As the operator leaves a field for the next.
    void TypeInto(TextBox& field, std::string_view text) {
        Focus(field);
        field.ReplaceByPaste(text);
        Press("Tab");
    }
};

const std::string kNoAddress = " is no address: HOST:PORT is one";

TEST_F(NetworkSetupTest, EntryStandsInTheSettingsMenu) {
    Start();
    EXPECT_EQ(Main().mnuNetwork.Caption(), "&Network");
    EXPECT_EQ(Main().mnuNetwork.Above(), &Main().mnuSettings);
}

TEST_F(NetworkSetupTest, NothingIsChosenAtFirstAndNothingStored) {
    StartOnDesk();
    Open();
    EXPECT_EQ(Shown(), std::string{"off "} + kHere + "|off " + kHere + '|' + kUsualApp);
    EXPECT_EQ(Failure(), "");
    Click(Network().cmdDone);
    EXPECT_FALSE(Network().IsVisible());
    EXPECT_TRUE(settings.values.empty());
    EXPECT_EQ(datagramSockets.made, 0);
}

TEST_F(NetworkSetupTest, AChoiceCountsAtOnceAndInTheNextRun) {
    StartOnDesk();
    program->time.gTimeOn = 1;
    Open();
    Click(Network().chkContacts);
    EXPECT_EQ(datagramSockets.opened, Lines{kHere});
    EXPECT_EQ(Stored("SendContacts"), "1");
    TypeInto(Network().txtContacts, " shack:1, [::1]:2 ");
    EXPECT_EQ(Stored("SendContactsTo"), "shack:1, [::1]:2");
    TypeInto(Network().txtApp, "OTHER");
    Click(Network().cmdDone);
    Log("K2YY");
    const std::vector<sim::SentDatagram> sent = TakeSent();
    ASSERT_EQ(sent.size(), 2U);
    EXPECT_EQ(sent.at(0).to, "shack:1");
    EXPECT_EQ(ElementOf(sent.at(0).bytes, "app"), "OTHER");
    StartContinuing();
    Log("K3ZZ");
    EXPECT_EQ(ElementOf(TakeSent().at(0).bytes, "app"), "OTHER");
    Open();
    EXPECT_EQ(Shown(), std::string{"on shack:1, [::1]:2|off "} + kHere + "|OTHER");
    Click(Network().chkContacts);
    Log("K4AA");
    EXPECT_EQ(TakeNews(), "");
    EXPECT_EQ(Stored("SendContacts"), "0");
}

TEST_F(NetworkSetupTest, AnEmptiedFieldIsTheUsualOne) {
    ChooseStored("SendAs", "OTHER");
    ChooseStored("SendContactsTo", "shack:1");
    StartOnDesk();
    Open();
    EXPECT_EQ(Shown(), std::string{"off shack:1|off "} + kHere + "|OTHER");
    TypeInto(Network().txtContacts, "");
    TypeInto(Network().txtApp, "  ");
    EXPECT_EQ(Shown(), std::string{"off "} + kHere + "|off " + kHere + '|' + kUsualApp);
    EXPECT_EQ(Stored("SendAs"), kUsualApp);
}

TEST_F(NetworkSetupTest, AnAddressThatIsNoneIsNamedInPlaceAndTheOthersOfItsListAreSentTo) {
    StartSending();
    std::vector<std::string> announced;
    Open();
    TheDesk().outlets.announced = [&announced](std::string_view words) { announced.emplace_back(words); };
    TypeInto(Network().txtContacts, "shack:1,nowhere");
    TheDesk().outlets.announced = {};
    EXPECT_EQ(Failure(), "nowhere" + kNoAddress);
    EXPECT_EQ(announced, Lines{"nowhere" + kNoAddress});
    EXPECT_TRUE(Network().txtContacts.State().refused);
    EXPECT_EQ(Stored("SendContactsTo"), "shack:1,nowhere");
    Click(Network().cmdDone);
    EXPECT_TRUE(Network().IsVisible()) << "to be corrected";
    EXPECT_TRUE(Network().txtContacts.HasFocus());
    Log("K2YY");
    const std::vector<sim::SentDatagram> sent = TakeSent();
    ASSERT_EQ(sent.size(), 1U);
    EXPECT_EQ(sent.at(0).to, "shack:1");
    EXPECT_EQ(Failure(), "nowhere" + kNoAddress);
    Focus(Network().txtContacts);
    Type("x");
    EXPECT_EQ(Failure(), "") << "it is being corrected";
    TypeInto(Network().txtContacts, "shack:1,nowhere:2");
    EXPECT_FALSE(Network().txtContacts.State().refused);
    Click(Network().cmdDone);
    EXPECT_FALSE(Network().IsVisible());
    EXPECT_EQ(Stored("SendContactsTo"), "shack:1,nowhere:2");
}

TEST_F(NetworkSetupTest, ABadAddressThatIsStoredIsNamedAndTheGoodOnesAreSentTo) {
    ChooseStored("SendContactsTo", "bad,127.0.0.1:2,[::1");
    StartSending();
    Log("K2YY");
    const std::vector<sim::SentDatagram> sent = TakeSent();
    ASSERT_EQ(sent.size(), 1U);
    EXPECT_EQ(sent.at(0).to, "127.0.0.1:2");
    Open();
    EXPECT_EQ(Failure(), "bad" + kNoAddress);
}

TEST_F(NetworkSetupTest, WhatIsTypedCountsWhenTheFormIsLeftForTheMainForm) {
    StartSending();
    Open();
    Focus(Network().txtContacts);
    Network().txtContacts.ReplaceByPaste("shack:1");
    TheDesk().RunPending();
    EXPECT_EQ(datagramSockets.opened, Lines{kHere}) << "it is being typed";
    TheDesk().Activate(Main());
    TheDesk().RunPending();
    EXPECT_TRUE(Network().IsVisible());
    Log("K2YY");
    EXPECT_EQ(TakeSent().at(0).to, "shack:1");
}

TEST_F(NetworkSetupTest, EscDropsWhatWasTyped) {
    StartSending();
    Open();
    Focus(Network().txtContacts);
    Type("x");
    Press("Esc");
    EXPECT_FALSE(Network().IsVisible());
    Open();
    EXPECT_EQ(Network().txtContacts.Text(), kHere);
    Log("K2YY");
    EXPECT_EQ(TakeSent().at(0).to, kHere);
}

TEST_F(NetworkSetupTest, TheFailureOfAnAddressIsShownAndClearsWhenAllSucceed) {
    ChooseStored("SendContactsTo", "127.0.0.1:1,127.0.0.1:2");
    datagramSockets.refused["127.0.0.1:1"] = kTcpRefused;
    StartSending();
    Open();
    Log("K2YY");
    EXPECT_EQ(Failure(), "127.0.0.1:1: nobody listens there");
    datagramSockets.refused.clear();
    Log("K3ZZ");
    EXPECT_NE(Failure(), "");
    for (int second = 0; second < 6; ++second) {
        PassTime(1'000);
    }
    EXPECT_EQ(Failure(), "");
}

TEST_F(NetworkSetupTest, AFailureBeforeTheFormIsOpenedIsShownThen) {
    ChooseStored("SendContactsTo", "none:1");
    datagramSockets.unopenable["none:1"] = kTcpHostNotFound;
    StartSending();
    Open();
    EXPECT_EQ(Failure(), "none:1: there is no such host");
    Click(Network().chkContacts);
    EXPECT_EQ(Failure(), "") << "nothing is sent there any more";
}

TEST_F(NetworkSetupTest, WhereAChoiceCannotBeStoredItCountsForThisRunAndABoxSaysWhy) {
    StartOnDesk();
    program->time.gTimeOn = 1;
    settings.failure = "disk full";
    Open();
    Click(Network().chkContacts);
    EXPECT_EQ(TakeBoxes(), Lines{"message \"Network\" \"disk full\" OK Exclamation"});
    EXPECT_TRUE(Network().chkContacts.Value());
    Click(Network().cmdDone);
    EXPECT_FALSE(Network().IsVisible());
    Log("K2YY");
    EXPECT_EQ(TakeNews(), "contactinfo K2YY");
}

}  // namespace
}  // namespace tallyhut
