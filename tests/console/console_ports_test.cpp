#include "console/console_ports.h"

#include <gtest/gtest.h>

#include <sstream>

#include "platform/sim/clock.h"
#include "platform/sim/settings_store.h"
#include "tests/console/console_driver.h"
#include "tests/platform/failure_of.h"
#include "tests/platform/pseudo_terminal.h"

namespace tallyhut {
namespace {

/// Port 1 is simulated, port 2 a pseudo terminal; number 3 is left to the machine.
struct ConsolePortsTest : testing::Test {
    PseudoTerminal radio;
    std::ostringstream printed;
    JsonOutput output{printed};
    sim::Clock clock;
    sim::SettingsStore settings;
    TtyPorts machinePorts{settings, {{1, "sim"}, {2, radio.Path()}}};
    ConsolePorts ports{machinePorts, clock, output};
    std::unique_ptr<SerialPort> port = ports.NewPort();

    std::string Events() {
        output.LineRead();
        output.Ready({{"ready", "idle"}});
        std::string text = printed.str();
        printed.str("");
        return text.substr(0, text.find("{\"ready\""));
    }
};

TEST_F(ConsolePortsTest, WhatASimulatedPortDoesIsTold) {
    port->SetSettings("4800,N,8,2");
    port->SetDtr(false);
    port->SetRts(false);
    EXPECT_EQ(Events(), "");
    port->Open();
    port->SetRts(true);
    port->SetRts(true);
    port->Write("FA;");
    port->Close();
    port->SetRts(false);
    EXPECT_EQ(Events(), R"({"event":"port","port":1,"state":"open","settings":"4800,N,8,2","handshake":"none"})"
                        "\n"
                        R"({"event":"line","port":1,"line":"DTR","on":false})"
                        "\n"
                        R"({"event":"line","port":1,"line":"RTS","on":false})"
                        "\n"
                        R"({"event":"line","port":1,"line":"RTS","on":true})"
                        "\n"
                        R"({"event":"tx","port":1,"hex":"46413B"})"
                        "\n"
                        R"({"event":"port","port":1,"state":"closed","settings":"4800,N,8,2","handshake":"none"})"
                        "\n");
}

TEST_F(ConsolePortsTest, HandshakeIsToldByName) {
    const std::pair<Handshake, const char*> cases[] = {{Handshake::None, "none"},
                                                       {Handshake::XonXoff, "xonxoff"},
                                                       {Handshake::Rts, "rts"},
                                                       {Handshake::RtsXonXoff, "rtsxonxoff"}};
    for (const auto& [handshake, name] : cases) {
        port->SetHandshake(handshake);
        port->Open();
        EXPECT_EQ(Events(), std::string{R"({"event":"port","port":1,"state":"open","settings":"9600,N,8,1",)"} +
                                R"("handshake":")" + name + "\"}\n");
        port->Close();
        Events();
    }
}

TEST_F(ConsolePortsTest, EventsBearTheVirtualMoment) {
    output.virtualNow = [this] { return clock.IsoNow(); };
    port->Open();
    Events();
    clock.Advance(250);
    port->Write("x");
    EXPECT_EQ(Events(), "{\"event\":\"tx\",\"port\":1,\"hex\":\"78\",\"at\":\"2026-11-07T21:00:00.250\"}\n");
}

TEST_F(ConsolePortsTest, OtherNumbersAreTheMachinesAndNothingIsToldOfThem) {
    port->SetSettings("56000,N,8,1");
    port->SetNumber(2);
    port->Open();
    EXPECT_EQ(radio.Settings(), "56000 1");
    port->Write("FA;");
    EXPECT_EQ(radio.Receive(), "FA;");
    radio.Send("FA1;");
    EXPECT_EQ(port->ReadAll(), "FA1;");
    EXPECT_EQ(Events(), "");
    EXPECT_EQ(FailureOf([&] { port->SetNumber(1); }), radio.Path() + ": The port is open");
    port->Close();
    port->SetNumber(1);
    port->Open();
    port->Write("MD;");
    EXPECT_EQ(ports.simulated.Line(1).TakeSent(), "MD;");
    EXPECT_EQ(SettingsText(ports.simulated.Line(1).settings), "56000,N,8,1");
}

TEST_F(ConsolePortsTest, MeaningsAreThoseOfTheCommandLineOrTheMachine) {
    EXPECT_EQ(ports.DeviceOf(1), "sim");
    EXPECT_EQ(ports.MeaningOf(1).device.description, "simulated");
    EXPECT_EQ(ports.MeaningOf(1).source, PortMeaning::Source::CommandLine);
    EXPECT_EQ(ports.DeviceOf(2), radio.Path());
    ports.Choose(3, "/tmp/rig");
    EXPECT_EQ(ports.DeviceOf(3), "/tmp/rig");
    EXPECT_EQ(settings.Get("Machine", "Port3"), "/tmp/rig");
}

struct PortCommandsTest : testing::Test {
    ContestFolder folder;
    ConsoleDriver program{folder.Path(),
                          {"--clock", ConsoleDriver::kStart, "--port", "1=sim", "--port=2=/dev/nowhere"}};
};

TEST_F(PortCommandsTest, CommandsOfASimulatedPortAreTaken) {
    for (const char* command : {"rx 1 46413B", "reply 1 46413b 464131", "reply 1 00 FF 30", "reply 1 00 \"\"",
                                "hold 1 on", "hold 1 off", "unplug 1", "plug 1"}) {
        EXPECT_EQ(program.Do(command), std::vector<std::string>{}) << command;
    }
}

TEST_F(PortCommandsTest, WhatCannotBeTakenIsAnError) {
    const std::pair<const char*, const char*> cases[] = {
        {"rx 2 46", "no simulated port: 2"},
        {"rx 0 46", "no simulated port: 0"},
        {"reply 3 46 47", "no simulated port: 3"},
        {"hold 11 on", "no simulated port: 11"},
        {"unplug 2", "no simulated port: 2"},
        {"plug 2", "no simulated port: 2"},
        {"rx x 46", "port is no whole number: x"},
        {"rx 1", "bytes is missing"},
        {"rx 1 46 47", "too many words: 47"},
        {"reply 1 46", "reply is missing"},
        {"reply 1 \"\" 46", "the request has no bytes"},
        {"reply 1 46 47 -1", "time does not run backwards"},
        {"hold 1 perhaps", "on or off is wanted, not perhaps"},
    };
    for (const auto& [command, error] : cases) {
        EXPECT_EQ(program.Do(command), std::vector<std::string>{std::string{R"({"error":")"} + error + "\"}"})
            << command;
    }
    for (const char* command : {"rx 1 4", "rx 1 4G", "reply 1 4 46", "reply 1 46 4"}) {
        EXPECT_EQ(program.Do(command).at(0).substr(0, 10), R"({"error":")") << command;
    }
}

TEST_F(PortCommandsTest, DialogShowsThePortsOfTheRun) {
    EXPECT_EQ(program.Do("menu mnuPorts").at(0).substr(0, 34), R"({"event":"modal","form":"frmPorts")");
    const std::string rows = program.Do("rows lstPorts").at(0);
    EXPECT_TRUE(
        rows.starts_with(R"({"rows":[["1","sim","--port","simulated"],["2","/dev/nowhere","--port","not there"],)"))
        << rows;
    program.Do("pick lstPorts 2");
    program.Do(R"(set txtDevice "/tmp/rig")");
    program.Do("click cmdUse");
    program.Do("click cmdDone");
    EXPECT_EQ(program.LastTurn(), R"({"ready":"idle","form":"Form1","focus":"txtNum"})");
    EXPECT_NE(folder.Read(".config/Q7ZZQ_Software/tallyhut.ini").find("[Machine]\nPort3=/tmp/rig\n"),
              std::string::npos);
}

}  // namespace
}  // namespace tallyhut
