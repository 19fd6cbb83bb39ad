#include "tests/keying/keying_fixture.h"

namespace tallyhut {
namespace {

using sim::ControlLine;
using Lines = std::vector<std::string>;

struct KeyLineTest : KeyingFixture {
    Lines opened;
    bool pulled = false;

    sim::SerialLine& Line(int number = 1) { return serialPorts.Line(number); }
    RigControlfrm& Rig() { return program->rigForm; }
    void PollOnPort(int number, Option* power = nullptr, std::string_view rig = "Kenwood") {
        Rig().Show();
        const std::vector<std::string>& rigs = Rig().List1.Items();
        Rig().List1.SelectRow(static_cast<int>(std::ranges::find(rigs, rig) - rigs.begin()));
        Rig().optComm(number - 1).SetValue(true);
        if (power != nullptr) {
            power->SetValue(true);
        }
        Click(Rig().Command1);
        Rig().Hide();
    }
};

TEST_F(KeyLineTest, PortIsOpenedByTheFirstCharacter) {
    StartKeying();
    EXPECT_FALSE(Line().isOpen);
    Send("E");
    EXPECT_TRUE(Line().isOpen);
    EXPECT_EQ(Line().rts, false);
    EXPECT_EQ(Line().dtr, false);
    EXPECT_EQ(Line().written.size(), 0U) << "no byte is ever written";
}

TEST_F(KeyLineTest, BothLinesAreDownedAtTheOpening) {
    StartKeying();
    serialPorts.onPort = [this](int, const sim::SerialLine& line) {
        opened.push_back(line.isOpen ? "open" : "closed");
    };
    Send("E");
    ASSERT_GE(edges.size(), 2U);
    EXPECT_FALSE(edges[0].on);
    EXPECT_FALSE(edges[1].on);
    EXPECT_EQ(opened, Lines{"open"});
}

TEST_F(KeyLineTest, NoPortIsHarmless) {
    StartKeying();
    Cw().Text10.SetText("0");
    SendAnew("TEST");
    EXPECT_EQ(UnitsPassed(), Elements("TEST").size());
    EXPECT_TRUE(edges.empty());
    EXPECT_EQ(dialogs.boxes, Lines{});
}

TEST_F(KeyLineTest, LeavingThePortFieldOpensIt) {
    StartKeying();
    Cw().Show();
    Focus(Cw().Text10);
    Type("2");
    Focus(Cw().Text11);
    EXPECT_TRUE(Line(2).isOpen);
    Focus(Cw().Text10);
    EXPECT_EQ(Cw().Text10.SelectedText(), "2");
    Type("0");
    Focus(Cw().Text11);
    EXPECT_FALSE(Line(2).isOpen);
}

TEST_F(KeyLineTest, TextThatIsNoPortBecomesZero) {
    StartKeying();
    Cw().Show();
    Focus(Cw().Text10);
    Cw().Text10.SetText("COM1");
    Focus(Cw().Text11);
    EXPECT_EQ(Cw().Text10.Text(), "0");
    EXPECT_EQ(dialogs.boxes, Lines{});
}

TEST_F(KeyLineTest, PortThatCannotBeOpenedIsToldAndTheFormShown) {
    StartKeying();
    for (const char* number : {"1", "11", "1E10", ":", "99999999999"}) {
        Line().refusal = "Device or resource busy";
        Cw().Text10.SetText(number);
        dialogs.boxes.clear();
        dialogs.beeps = 0;
        bool shown = false;
        pump.OnWait([&] {
            shown = Cw().IsVisible() && Cw().IsModal();
            Cw().Text10.SetText("0");
            TheDesk().PostClick(Cw().Command1, kLeftButton);
        });
        Send("E");
        EXPECT_EQ(dialogs.boxes, Lines{kInvalidKeyingPort}) << number;
        EXPECT_EQ(dialogs.beeps, 1) << number;
        EXPECT_TRUE(shown) << number;
        EXPECT_FALSE(Cw().IsVisible()) << number;
    }
}

TEST_F(KeyLineTest, WhileTheFormIsShownABadPortIsToldAlone) {
    StartKeying();
    Line().refusal = "Permission denied";
    Cw().Show();
    Focus(Cw().Text10);
    Focus(Cw().Text11);
    EXPECT_EQ(dialogs.boxes, Lines{kInvalidKeyingPort});
    EXPECT_TRUE(Cw().IsVisible());
    EXPECT_FALSE(Cw().IsModal());
}

TEST_F(KeyLineTest, ClosedPortIsTriedAtEveryCharacter) {
    StartKeying();
    Cw().Show();
    Line().refusal = "Permission denied";
    Send("TEE");
    EXPECT_EQ(dialogs.boxes.size(), 3U);
    Line().refusal.clear();
    SendAnew("E");
    EXPECT_EQ(Keyed(), "1000");
    EXPECT_EQ(dialogs.boxes.size(), 3U);
}

TEST_F(KeyLineTest, CablePulledInADashEndsTheCharacterInSilence) {
    StartKeying();
    Cw().Show();  // so that a port which is not there is told in a box alone
    Send(" ");
    serialPorts.onLevel = [this](int port, ControlLine line, bool on) {
        edges.push_back({clock.TickUs(), port, line, on});
        if (on && !pulled) {
            pulled = true;
            Line().Unplug();
        }
    };
    Lines boxesBehindTheFirst{"not looked at"};
    pump.OnCollect(1, [&] {
        boxesBehindTheFirst = dialogs.boxes;
        EXPECT_FALSE(Line().isOpen) << "its lines have gone with it";
        Line().Plug();
    });
    SendAnew("TE");
    EXPECT_EQ(boxesBehindTheFirst, Lines{});
    EXPECT_TRUE(Line().isOpen) << "the next character has opened it anew";
    EXPECT_EQ(Line().rts, false);
    EXPECT_EQ(dialogs.boxes, Lines{});
    EXPECT_EQ(Sender().gCWSending, 0);
}

TEST_F(KeyLineTest, CableThatStaysPulledIsToldByTheNextCharacter) {
    StartKeying();
    Cw().Show();
    Send(" ");
    Line().Unplug();
    Send("TE");
    EXPECT_EQ(dialogs.boxes, Lines{kInvalidKeyingPort});
    EXPECT_FALSE(Line().isOpen);
}

TEST_F(KeyLineTest, OutputChosenBetweenTwoCharactersLeavesNoLineDown) {
    StartKeying();
    for (Option* other : {&Cw().Option2, &Cw().Option3, &Cw().Option4, &Cw().Option5}) {
        Choose(Cw().Option1);
        Listen();
        pump.OnCollect(1, [&] { Choose(*other); });
        Send("EE");
        EXPECT_FALSE(IsKeyDown());
        EXPECT_EQ(Keyed().find('1'), 0U);
    }
    EXPECT_EQ(parallelPorts.written.back().value, 2);
}

TEST_F(KeyLineTest, EndOfTheProgramClosesThePort) {
    StartKeying();
    Send("E");
    EXPECT_EQ(EndStatusOf([&] {
                  Main().RequestClose();
                  TheDesk().RunPending();
              }),
              0);
    EXPECT_FALSE(Line().isOpen);
}

// One cable for radio and key.

TEST_F(KeyLineTest, KeyerUsesTheLinesOfThePortThatTheRadioHolds) {
    StartKeying();
    PollOnPort(1);
    SendAnew("TEST");
    EXPECT_EQ(Keyed(), Elements("TEST"));
    EXPECT_EQ(dialogs.boxes, Lines{});
    EXPECT_TRUE(Line().isOpen);
    Click(Rig().Command1);
}

TEST_F(KeyLineTest, PollGoesOnAroundTheKey) {
    StartKeying();
    PollOnPort(1);
    Line().TakeSent();
    Cw().Text10.SetText("0");
    Cw().Show();
    Focus(Cw().Text10);
    Focus(Cw().Text11);
    EXPECT_TRUE(Line().isOpen) << "each closes what it has opened";
    Cw().Text10.SetText("1");
    Send("TESTTEST");
    EXPECT_NE(Line().TakeSent(), "");
}

TEST_F(KeyLineTest, RadioThatTakesThePortGoesBeforeTheKeyer) {
    StartKeying();
    Send("E");
    ASSERT_TRUE(Line().isOpen);
    PollOnPort(1);
    EXPECT_EQ(dialogs.boxes, Lines{});
    EXPECT_EQ(Line().settings.baud, 4800);
    SendAnew("TEST");
    EXPECT_EQ(Keyed(), Elements("TEST"));
}

TEST_F(KeyLineTest, WhenTheRadioLetsGoTheKeyerOpensThePort) {
    StartKeying();
    PollOnPort(1);
    Send("E");
    program->rigSetup.Command2_Click();
    EXPECT_FALSE(Line().isOpen);
    SendAnew("TEST");
    EXPECT_EQ(Keyed(), Elements("TEST"));
    EXPECT_TRUE(Line().isOpen);
}

TEST_F(KeyLineTest, CableOfTheRadioThatIsPulledAndPluggedInIsKeyedByTheNextCharacter) {
    StartKeying();
    Cw().Show();
    PollOnPort(1);
    Send("E");
    Line().Unplug();
    pump.OnCollect(1, [&] {
        EXPECT_FALSE(Line().isOpen) << "the radio has let go of it, too";
        Line().Plug();
    });
    SendAnew("TEE");
    EXPECT_EQ(Keyed(), Elements("EE"));
    EXPECT_EQ(dialogs.boxes, Lines{});
}

TEST_F(KeyLineTest, RadioThatComesBackWaitsForTheEndOfTheMessageAndLendsThePortAgain) {
    StartKeying();
    Cw().Show();
    PollOnPort(1);
    Line().Unplug();
    program->rigPart.rigConnection.PortHasFailed();
    Line().Plug();
    bool isTheRadios = false;
    serialPorts.onPort = [&](int, const sim::SerialLine& line) {
        isTheRadios = line.isOpen && line.settings.baud == 4'800;
        EXPECT_FALSE(isTheRadios && Sender().gCWSending != 0);
    };
    SendAnew("TEST");
    EXPECT_EQ(Keyed(), Elements("TEST"));
    EXPECT_FALSE(isTheRadios);
    for (int second = 0; second < 10; ++second) {
        clock.AdvanceTo(clock.TickMs() + 1'000);
        TheDesk().RunPending();
    }
    EXPECT_TRUE(isTheRadios);
    SendAnew("TEST");
    EXPECT_EQ(Keyed(), Elements("TEST"));
    EXPECT_EQ(dialogs.boxes, Lines{});
}

TEST_F(KeyLineTest, RadioThatMovesToAnotherPortIsNotKeyedThere) {
    StartKeying();
    PollOnPort(1);
    Send("E");
    PollOnPort(3);
    SendAnew("E");
    EXPECT_EQ(Keyed(), "1000");
    for (const Edge& edge : edges) {
        EXPECT_EQ(edge.port, 1);
    }
}

TEST_F(KeyLineTest, TwoNumbersOfOneDeviceAreOneCable) {
    StartKeying();
    serialPorts.choices[1] = "/dev/ttyUSB0";
    serialPorts.choices[4] = "/dev/ttyUSB0";
    PollOnPort(4);
    SendAnew("E");
    EXPECT_EQ(Keyed(), "1000");
    EXPECT_FALSE(Line(1).isOpen);
    for (const Edge& edge : edges) {
        EXPECT_EQ(edge.port, 4);
    }
}

TEST_F(KeyLineTest, OtherPortsAreTheKeyersOwn) {
    StartKeying();
    PollOnPort(2);
    Send("E");
    EXPECT_TRUE(Line(1).isOpen);
    EXPECT_TRUE(Line(2).isOpen);
    PollOnPort(2);
    EXPECT_TRUE(Line(1).isOpen);
}

TEST_F(KeyLineTest, LineThatTheRadiosConnectionUsesIsNotKeyed) {
    StartKeying();
    Cw().Show();
    PollOnPort(1, &Rig().optPowerRTS);
    SendAnew("TEST");
    EXPECT_TRUE(edges.empty());
    EXPECT_EQ(Line().rts, true) << "it powers the interface";
    EXPECT_EQ(UnitsPassed(), Elements("TEST").size());
    Cw().Show();
    TheDesk().RunPending();
    EXPECT_TRUE(Cw().lblLines.Caption().starts_with("The radio's connection over this port uses this line."));
    Choose(Cw().Option2);
    EXPECT_EQ(Cw().lblLines.Caption(), "The radio is polled over the same port; the key line is used there.");
    SendAnew("TEST");
    EXPECT_EQ(Keyed(ControlLine::Dtr), Elements("TEST"));
    EXPECT_EQ(Line().rts, true);
}

TEST_F(KeyLineTest, PortOfThePhoneMessagesIsClosedFirst) {
    StartKeying();
    bool wasOpen = true;
    Key().closeOther = [&] { wasOpen = Line().isOpen; };
    Send("E");
    EXPECT_FALSE(wasOpen);
}

// What stands behind a number.

TEST_F(KeyLineTest, FormTellsWhatStandsBehindANumberAndAnAddress) {
    serialPorts.devices = {{.path = "/dev/ttyUSB0", .description = "Acme Cable", .mayOpen = false}};
    parallelPorts.meanings[0x278] = "/dev/parport1: no right to open it";
    StartKeying();
    Cw().Text14.SetText("&H278");
    Cw().Show();
    TheDesk().RunPending();
    EXPECT_EQ(Cw().lblDevice.Caption(), "/dev/ttyUSB0, no right to open it, Acme Cable");
    EXPECT_TRUE(Cw().lblLines.Caption().find("group dialout") != std::string::npos);
    EXPECT_EQ(Cw().lblRegister.Caption(), "/dev/parport1: no right to open it");
    Cw().Text10.SetText("0");
    Cw().Text14.SetText("LPT1");
    program->keyingPart.setup.ShowPorts();
    EXPECT_EQ(Cw().lblDevice.Caption(), "none");
    EXPECT_EQ(Cw().lblRegister.Caption(), "no address");
    Cw().Text10.SetText("11");
    program->keyingPart.setup.ShowPorts();
    EXPECT_EQ(Cw().lblDevice.Caption(), "no such port");
}

}  // namespace
}  // namespace tallyhut
