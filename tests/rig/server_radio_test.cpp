#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/rig/rig_fixture.h"

namespace tallyhut {
namespace {

using Lines = std::vector<std::string>;

constexpr const char* kHamlib = "Hamlib (rigctld)";
constexpr const char* kNoAnswer = "Radio: no answer";
constexpr const char* kNotTuned = "message \"Error Changing Frequency\" \"The radio does not answer.\" OK Exclamation";

/// The whole program with a server of radios that the test speaks for.
struct ServerRadioTest : RigFixture {
    long hertz = 14'200'000;
    std::string mode = "CW";
    bool isSilent = false;
    std::string refusal;  ///< of whatever sets; empty for none
    Lines asked;

    /// The program's newest connection to a server of radios.
    sim::TcpPeer& Server() {
        sim::TcpPeer* newest = nullptr;
        try {
            for (std::size_t i = 0;; ++i) {
                sim::TcpPeer& peer = tcpSockets.Peer(i);
                newest = peer.attempts > 0 ? &peer : newest;
            }
        } catch (const std::out_of_range&) {
            return *newest;
        }
    }
    std::string AnswerTo(const std::string& line) const {
        if (line == "\\chk_vfo") {
            return "0\n";
        }
        if (line == "+f") {
            return "get_freq:\nFrequency: " + std::to_string(hertz) + "\nRPRT 0\n";
        }
        if (line == "+m") {
            return "get_mode:\nMode: " + mode + "\nPassband: 500\nRPRT 0\n";
        }
        const std::string name = line.starts_with("+F") ? "set_freq:" : "set_mode:";
        return name + line.substr(2) + (refusal.empty() ? "\nRPRT 0\n" : "\nRPRT " + refusal + "\n");
    }
    /// Hears and answers until nothing more is asked.
    void Serve() {
        for (std::string sent = Server().TakeSent(); !sent.empty() && !isSilent; sent = Server().TakeSent()) {
            const std::string line = sent.substr(0, sent.find('\n'));
            asked.push_back(line);
            Server().Arrive(AnswerTo(line));
            TheDesk().RunPending();
        }
    }
    void PassServed(Tick milliseconds) {
        const Tick end = clock.TickMs() + milliseconds;
        do {
            RunTo(end);
            Serve();
        } while (clock.TickMs() < end);
    }
    void Poll(std::string_view rig = kHamlib, Option RigControlfrm::*rate = &RigControlfrm::optPollMed) {
        Start();
        PickRig(rig);
        Click(Rig().*rate);
        Click(Rig().Command1);
        Server().Accept();
        TheDesk().RunPending();
        Serve();
    }
    void FallSilent() {
        isSilent = true;
        LetTimeGoBy(6'000);
        ASSERT_EQ(Main().lblRig.Caption(), kNoAnswer);
    }
    std::string Link() { return Rig().lblRigLink.Caption(); }
    std::string Address() { return Rig().txtRigHost.Text() + ' ' + Rig().txtRigPort.Text(); }
};

TEST_F(ServerRadioTest, AddressStandsInThePlaceOfThePort) {
    Start();
    const std::vector<std::pair<std::string_view, std::string_view>> cases{
        {kHamlib, "127.0.0.1 4532"}, {"flrig", "127.0.0.1 12345"}, {"Kenwood", ""}, {"None", ""}, {"Yaesu FTdx10", ""}};
    for (const auto& [rig, address] : cases) {
        PickRig(rig);
        const bool isServer = !address.empty();
        for (const Control* control : std::initializer_list<const Control*>{&Rig().txtRigHost, &Rig().txtRigPort,
                                                                            &Rig().lblRigLink, &Rig().fraRigServer}) {
            EXPECT_EQ(control->IsShown(), isServer) << rig << ' ' << control->name;
        }
        for (const Control* control : std::initializer_list<const Control*>{
                 &Rig().optComm(0), &Rig().optBaud48, &Rig().optParityNone, &Rig().optData8, &Rig().optStop1,
                 &Rig().optPowerNone, &Rig().fraPort, &Rig().fraBaud, &Rig().fraPower}) {
            EXPECT_EQ(control->IsShown(), !isServer) << rig << ' ' << control->name;
        }
        EXPECT_EQ(Rig().txtFreq.State().enabled, !isServer) << rig;
        if (isServer) {
            EXPECT_EQ(Address(), address);
            EXPECT_EQ(Link(), "Closed");
        }
    }
}

TEST_F(ServerRadioTest, TestConnectsAndTheBandFollows) {
    Start();
    PickRig(kHamlib);
    Click(Rig().Command1);
    EXPECT_EQ(Server().host + ' ' + std::to_string(Server().port), "127.0.0.1 4532");
    EXPECT_EQ(Link(), "Connecting");
    EXPECT_FALSE(Line().isOpen);
    Server().Accept();
    TheDesk().RunPending();
    Serve();
    EXPECT_EQ(Link(), "Connected");
    EXPECT_EQ(asked, (Lines{"\\chk_vfo", "+f", "+m"}));
    EXPECT_EQ(Main().Label30.Caption(), "20");
    EXPECT_EQ(Main().lblRig.Caption(), "14.2000");
    EXPECT_EQ(program->log.gFrq, "14.200");
    EXPECT_EQ(Rig().lblFreq.Caption(), "14.20000");
    EXPECT_EQ(Rig().lblMode.Caption(), "CW");
    EXPECT_EQ(Rig().lblUnProcess.Caption(), "");
    hertz = 7'025'100;
    mode = "LSB";
    PassServed(1'000);
    EXPECT_EQ(Main().Label30.Caption(), "40");
    EXPECT_EQ(State().RigMode, "PH");
}

TEST_F(ServerRadioTest, IsPolledAtTheToldRates) {
    const std::vector<std::pair<Option RigControlfrm::*, std::ptrdiff_t>> cases{{&RigControlfrm::optPollFast, 200},
                                                                                {&RigControlfrm::optPollMed, 40},
                                                                                {&RigControlfrm::optPollSlow, 10},
                                                                                {&RigControlfrm::optReallySlow, 2}};
    for (const auto& [rate, polls] : cases) {
        Poll(kHamlib, rate);
        asked.clear();
        PassServed(20'000);
        EXPECT_EQ(std::ranges::count(asked, "+f"), polls);
        EXPECT_EQ(std::ranges::count(asked, "+m"), polls);
    }
}

TEST_F(ServerRadioTest, ToldRulesStandBehindTheReadings) {
    Poll();
    Click(Rig().OptFreq);
    PassServed(1'000);
    EXPECT_EQ(Rig().lblMode.Caption(), "PH");  // the frequency's
    Click(Rig().chkFrequency);
    program->log.gFrq.clear();
    hertz = 3'550'000;
    PassServed(1'000);
    EXPECT_EQ(program->log.gFrq, "");
    EXPECT_EQ(program->preferences.gBand, "20");
    EXPECT_EQ(Rig().lblFreq.Caption(), "3.55000");
}

TEST_F(ServerRadioTest, BandThatCannotBeSavedIsReadAgain) {
    Poll();
    hertz = 7'025'100;
    program->log.gFrq.clear();
    files.FailAt(1, "No space left on device");
    PassServed(2'000);
    EXPECT_EQ(program->log.gFrq, "7.025");
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(ServerRadioTest, TuningSetsModeThenFrequencyWithoutAPause) {
    Poll();
    asked.clear();
    const Tick begin = clock.TickMs();
    AskFrequency(7.0251F);
    EXPECT_FALSE(State().commanding);
    Serve();
    EXPECT_EQ(asked, (Lines{"+M CW -1", "+F 7025100"}));
    EXPECT_EQ(clock.TickMs(), begin);
    asked.clear();
    AskFrequency(14.15F);  // an edge of the plan
    Serve();
    EXPECT_EQ(asked, Lines{"+F 14150000"});
    asked.clear();
    AskMode("CW-R");
    Serve();
    EXPECT_EQ(asked, Lines{"+M CWR -1"});
}

TEST_F(ServerRadioTest, RefusedCommandIsSilentAndThePollGoesOn) {
    Poll();
    refusal = "-11";
    AskFrequency(7.0251F);
    Serve();
    PassServed(5'000);
    EXPECT_TRUE(dialogs.boxes.empty());
    EXPECT_EQ(Link(), "Connected");
    EXPECT_EQ(Main().lblRig.Caption(), "14.2000");
}

TEST_F(ServerRadioTest, NumberThatIsNoFrequencyIsTold) {
    Poll();
    AskFrequency(-0.5F);
    EXPECT_EQ(dialogs.boxes,
              Lines{"message \"Error Changing Frequency\" \"No radio can be tuned to -0.5 MHz.\" OK Exclamation"});
}

TEST_F(ServerRadioTest, LostRadioLeavesNoFrequencyAndTheBand) {
    Poll();
    isSilent = true;
    LetTimeGoBy(4'999);
    EXPECT_EQ(Main().lblRig.Caption(), "14.2000");
    EXPECT_EQ(program->log.gFrq, "14.200");
    LetTimeGoBy(501);
    EXPECT_EQ(Main().lblRig.Caption(), kNoAnswer);
    EXPECT_EQ(program->log.gFrq, "");
    EXPECT_EQ(program->preferences.gBand, "20");
    EXPECT_EQ(FrequencyRead(), "14.20000");
    EXPECT_EQ(Link(), "No answer");
    EXPECT_TRUE(State().polls);
}

TEST_F(ServerRadioTest, ServerThatIsBackIsFoundAgain) {
    Poll();
    FallSilent();
    isSilent = false;
    hertz = 21'300'000;
    Server().accepts = true;
    PassServed(20'000);
    EXPECT_EQ(Link(), "Connected");
    EXPECT_EQ(Main().lblRig.Caption(), "21.3000");
    EXPECT_EQ(Main().Label30.Caption(), "15");
    EXPECT_EQ(program->log.gFrq, "21.300");
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(ServerRadioTest, TuningALostRadioGivesOneBoxAndIsDropped) {
    Poll();
    FallSilent();
    AskFrequency(7.0251F);
    EXPECT_EQ(dialogs.boxes, Lines{kNotTuned});
    AskMode("CW");
    EXPECT_EQ(dialogs.boxes.back(), "message \"Error Changing Mode\" \"CW The radio does not answer.\" OK Exclamation");
    EXPECT_EQ(dialogs.boxes.size(), 2U);
    asked.clear();
    isSilent = false;
    Server().accepts = true;
    PassServed(20'000);
    EXPECT_EQ(Link(), "Connected");
    EXPECT_TRUE(std::ranges::none_of(
        asked, [](const std::string& line) { return line.starts_with("+F") || line.starts_with("+M"); }));
    EXPECT_EQ(dialogs.boxes.size(), 2U);
}

TEST_F(ServerRadioTest, TuningBeforeTheServerAnswersGivesOneBox) {
    Start();
    PickRig(kHamlib);
    Click(Rig().Command1);
    AskFrequency(7.0251F);
    EXPECT_EQ(dialogs.boxes, Lines{kNotTuned});
}

TEST_F(ServerRadioTest, ServerThatIsNotThereShowsNoBox) {
    Start();
    PickRig(kHamlib);
    Click(Rig().cmdDone);
    Server().refusal = kTcpRefused;
    LetTimeGoBy(3'600'000);
    EXPECT_EQ(Main().lblRig.Caption(), kNoAnswer);
    EXPECT_EQ(Link(), "No answer");
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(ServerRadioTest, EndTestAndAnotherRadioCloseTheConnection) {
    for (const auto& ends : std::vector<std::function<void()>>{
             [this] { Click(Rig().Command2); }, [this] { PickRig("Kenwood"); }, [this] { Rig().Unload(); }}) {
        Poll();
        ends();
        EXPECT_FALSE(Server().isConnected);
        EXPECT_EQ(Link(), Rig().IsLoaded() ? "Closed" : "");
        EXPECT_EQ(Main().lblRig.Caption(), "");
        const int attempts = Server().attempts;
        LetTimeGoBy(60'000);
        EXPECT_EQ(Server().attempts, attempts);
    }
}

TEST_F(ServerRadioTest, DoneKeepsTheAddressOfEachKindApart) {
    Start();
    PickRig(kHamlib);
    Rig().txtRigHost.SetText(" shack.local ");
    Rig().txtRigPort.SetText("4600");
    Click(Rig().cmdDone);
    EXPECT_EQ(Server().host + ' ' + std::to_string(Server().port), "shack.local 4600");
    EXPECT_EQ(settings.Get("Machine", "RigctldHost"), "shack.local");
    EXPECT_EQ(settings.Get("Machine", "RigctldPort"), "4600");
    EXPECT_EQ(RigSettingsOnDisk(), "\"56000\",\"N\",\"8\",\"1\",\"\",\"\",\"56000,N,8,1\",1,\"N\",\"M\",\"" +
                                       std::string{kHamlib} + "\",0,1,1\r\n");
    PickRig("flrig");
    EXPECT_EQ(Address(), "127.0.0.1 12345");
    stored.gRigName = kHamlib;
    Start();
    EXPECT_EQ(Server().host + ' ' + std::to_string(Server().port), "shack.local 4600");
    Rig().Show();
    EXPECT_EQ(Address(), "shack.local 4600");
    EXPECT_EQ(Rig().List1.Items().at(static_cast<std::size_t>(Rig().List1.Row())), kHamlib);
    EXPECT_FALSE(Rig().fraPort.IsShown());
}

TEST_F(ServerRadioTest, AddressOfTheDefaultsIsNotStored) {
    Start();
    PickRig(kHamlib);
    Rig().txtRigHost.SetText("");
    Rig().txtRigPort.SetText("");
    Click(Rig().cmdDone);
    EXPECT_EQ(Server().host + ' ' + std::to_string(Server().port), "127.0.0.1 4532");
    EXPECT_FALSE(settings.values.contains({"Machine", "RigctldHost"}));
}

TEST_F(ServerRadioTest, StoreThatCannotBeWrittenIsToldAndThePollGoesOn) {
    Start();
    PickRig(kHamlib);
    Rig().txtRigHost.SetText("shack.local");
    settings.failure = "No space left on device";
    Click(Rig().cmdDone);
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_NE(dialogs.boxes.front().find("No space left on device"), std::string::npos);
    EXPECT_TRUE(Rig().IsVisible());
    EXPECT_TRUE(State().polls);
    EXPECT_EQ(Server().host, "shack.local");
    settings.failure.clear();
    Click(Rig().cmdDone);
    EXPECT_EQ(settings.Get("Machine", "RigctldHost"), "shack.local");
    EXPECT_FALSE(Rig().IsVisible());
}

TEST_F(ServerRadioTest, PortThatIsNoneIsAServerThatDoesNotAnswer) {
    for (const std::string_view port : {"0", "99999", "1E9", "port", "-1"}) {
        Start();
        PickRig(kHamlib);
        Rig().txtRigPort.SetText(port);
        Click(Rig().Command1);
        EXPECT_EQ(Server().port, 0) << port;
        EXPECT_TRUE(dialogs.boxes.empty());
    }
}

TEST_F(ServerRadioTest, RawCommandOfTheFrequencyTestIsDisabled) {
    Poll();
    pump.OnWait([this] {
        frmFrequencyTest& form = program->frequencyTestForm;
        EXPECT_FALSE(form.Text1.State().enabled || form.Check1.State().enabled || form.Command1.State().enabled);
        asked.clear();
        form.Text2.SetText("7.0251");
        Click(form.Command2);
        Serve();
        EXPECT_EQ(asked, (Lines{"+M CW -1", "+F 7025100"}));
        TheDesk().PostClick(form.cmdClose, kLeftButton);
    });
    Click(Rig().Command3);
    PickRig("Kenwood");
    Click(Rig().Command1);
    pump.OnWait([this] {
        EXPECT_TRUE(program->frequencyTestForm.Command1.State().enabled);
        TheDesk().PostClick(program->frequencyTestForm.cmdClose, kLeftButton);
    });
    Click(Rig().Command3);
    EXPECT_FALSE(pump.HasScripts());
}

TEST_F(ServerRadioTest, ScanStepsAtItsOwnPace) {
    Poll();
    program->tuneForm.Show();
    program->tuneForm.txtFreq.SetText("7.03");
    program->tuneForm.txtFrom.SetText("7");
    program->tuneForm.txtTo.SetText("7.1");
    asked.clear();
    Click(program->tuneForm.chkScan);
    PassServed(3 * 299);
    EXPECT_EQ(std::ranges::count_if(asked, [](const std::string& line) { return line.starts_with("+F"); }), 3);
}

}  // namespace
}  // namespace tallyhut
