#include "platform/real/tty_ports.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "platform/sim/settings_store.h"
#include "tests/platform/child_process.h"
#include "tests/platform/failure_of.h"
#include "tests/platform/temporary_folder.h"

namespace tallyhut {
namespace {

namespace fs = std::filesystem;
using Source = PortMeaning::Source;

/// A machine whose devices stand in a folder of the test's.
struct TtyPortsTest : testing::Test {
    TemporaryFolder folder;
    sim::SettingsStore settings;

    void Put(const std::string& name, const std::string& content) const {
        fs::create_directories(fs::path{folder.At(name)}.parent_path());
        std::ofstream{folder.At(name)} << content;
    }
    /// A port of the board; type 0 is one without hardware.
    void AddBoardPort(const std::string& name, const std::string& type, const std::string& address) const {
        Put("sys/class/tty/" + name + "/type", type + "\n");
        Put("sys/class/tty/" + name + "/port", address + "\n");
        Put("dev/" + name, "");
    }
    /// A port of an adapter, which stands at a place of the bus.
    void AddAdapterPort(const std::string& name, const std::string& place) const {
        const std::string device = "sys/devices/" + place + '/' + name;
        fs::create_directories(folder.At(device));
        fs::create_directories(folder.At("sys/class/tty/" + name));
        fs::create_directory_symlink(folder.At(device), folder.At("sys/class/tty/" + name + "/device"));
        Put("dev/" + name, "");
    }
    TtyPorts Ports(std::map<int, std::string> commandLine = {}) {
        return {settings,
                std::move(commandLine),
                {.devices = folder.At("dev"), .descriptions = folder.At("sys/class/tty")}};
    }
    /// The devices found, without their folder: "ttyS0 Built-in port|...".
    std::string Found() {
        std::string text;
        for (const SerialDevice& device : Ports().Devices()) {
            text += (text.empty() ? "" : "|") + fs::path{device.path}.filename().string() + ' ' + device.description;
        }
        return text;
    }
    std::string Dev(const std::string& name) const { return folder.At("dev/" + name); }
};

TEST_F(TtyPortsTest, MachineWithoutPortsHasNone) {
    EXPECT_EQ(Found(), "");
    EXPECT_EQ(Ports().DeviceOf(1), "");
    EXPECT_EQ(Ports().MeaningOf(1).source, Source::Nothing);
}

TEST_F(TtyPortsTest, BoardPortsWithoutHardwareAreNone) {
    AddBoardPort("ttyS0", "4", "0x3F8");
    AddBoardPort("ttyS1", "0", "0x2F8");
    AddBoardPort("ttyS4", "4", "0x0");
    Put("sys/class/tty/ttyS5/uevent", "");
    EXPECT_EQ(Found(), "ttyS0 Built-in port at 0x3F8|ttyS4 Built-in port");
}

TEST_F(TtyPortsTest, BoardComesFirstAndNumbersCountAsNumbers) {
    AddAdapterPort("ttyACM0", "usb1/1-1/1-1:1.0");
    AddAdapterPort("ttyUSB10", "usb1/1-2/1-2:1.0");
    AddAdapterPort("ttyUSB2", "usb1/1-3/1-3:1.0");
    AddBoardPort("ttyS1", "4", "0x2F8");
    for (const char* other : {"tty1", "ttyprintk", "console", "ptmx", "ttyS", "ttyUSBx", "ttyUSB1x"}) {
        Put(std::string{"sys/class/tty/"} + other + "/type", "4\n");
    }
    EXPECT_EQ(Found(), "ttyS1 Built-in port at 0x2F8|ttyUSB2 |ttyUSB10 |ttyACM0 ");
}

TEST_F(TtyPortsTest, AdapterIsDescribedByItsMakersWords) {
    Put("sys/devices/usb1/1-1/product", "CP2105 Dual USB to UART\n");
    Put("sys/devices/usb1/1-1/manufacturer", "Silicon Labs\n");
    Put("sys/devices/usb1/1-1/1-1:1.0/interface", "Enhanced Com Port\n");
    AddAdapterPort("ttyUSB0", "usb1/1-1/1-1:1.0");
    Put("sys/devices/usb1/1-2/product", "WinKey\n");
    AddAdapterPort("ttyACM0", "usb1/1-2/1-2:1.0");
    Put("sys/devices/usb1/1-3/product", "Acme Cable\n");
    Put("sys/devices/usb1/1-3/manufacturer", "Acme\n");
    Put("sys/devices/usb1/1-3/1-3:1.0/interface", "Acme Cable\n");
    AddAdapterPort("ttyUSB1", "usb1/1-3/1-3:1.0");
    EXPECT_EQ(Found(),
              "ttyUSB0 Silicon Labs CP2105 Dual USB to UART, Enhanced Com Port|ttyUSB1 Acme Cable|ttyACM0 WinKey");
}

TEST_F(TtyPortsTest, NumberMeansTheNthDeviceFound) {
    AddBoardPort("ttyS0", "4", "0x3F8");
    AddAdapterPort("ttyUSB0", "usb1/1-1/1-1:1.0");
    const TtyPorts ports = Ports();
    EXPECT_EQ(ports.DeviceOf(1), Dev("ttyS0"));
    EXPECT_EQ(ports.DeviceOf(2), Dev("ttyUSB0"));
    EXPECT_EQ(ports.DeviceOf(3), "");
    EXPECT_EQ(ports.DeviceOf(0), "");
    EXPECT_EQ(ports.MeaningOf(1).source, Source::Found);
    EXPECT_EQ(ports.MeaningOf(1).device.description, "Built-in port at 0x3F8");
}

TEST_F(TtyPortsTest, ChoiceGoesBeforeTheDeviceFoundAndIsStored) {
    AddBoardPort("ttyS0", "4", "0x3F8");
    AddAdapterPort("ttyUSB0", "usb1/1-1/1-1:1.0");
    Ports().Choose(1, Dev("ttyUSB0"));
    EXPECT_EQ(settings.Get("Machine", "Port1"), Dev("ttyUSB0"));
    EXPECT_EQ(Ports().DeviceOf(1), Dev("ttyUSB0"));
    EXPECT_EQ(Ports().MeaningOf(1).source, Source::Choice);
    EXPECT_EQ(Ports().DeviceOf(2), Dev("ttyUSB0"));
    Ports().Choose(1, "");
    EXPECT_EQ(Ports().DeviceOf(1), Dev("ttyS0"));
}

TEST_F(TtyPortsTest, CommandLineGoesBeforeTheChoice) {
    AddBoardPort("ttyS0", "4", "0x3F8");
    settings.values[{"Machine", "Port1"}] = Dev("ttyS0");
    const TtyPorts ports = Ports({{1, folder.At("rig")}});
    EXPECT_EQ(ports.DeviceOf(1), folder.At("rig"));
    EXPECT_EQ(ports.MeaningOf(1).source, Source::CommandLine);
}

TEST_F(TtyPortsTest, WhatStandsAtAPathIsLookedAtAnew) {
    settings.values[{"Machine", "Port1"}] = folder.At("rig");
    const TtyPorts ports = Ports();
    EXPECT_EQ(ports.MeaningOf(1).device, (SerialDevice{.path = folder.At("rig"), .isThere = false}));
    Put("rig", "");
    EXPECT_EQ(ports.MeaningOf(1).device, (SerialDevice{.path = folder.At("rig")}));
}

TEST_F(TtyPortsTest, LinkIsDescribedAsTheDeviceThatItLeadsTo) {
    AddBoardPort("ttyS0", "4", "0x3F8");
    AddBoardPort("ttyS1", "4", "0x2F8");
    fs::create_symlink("dev/ttyS1", folder.At("rig"));
    EXPECT_EQ(Ports({{1, folder.At("rig")}}).MeaningOf(1).device,
              (SerialDevice{.path = folder.At("rig"), .description = "Built-in port at 0x2F8"}));
}

TEST_F(TtyPortsTest, MissingRightIsTold) {
    AddBoardPort("ttyS0", "4", "0x3F8");
    AddBoardPort("ttyS1", "4", "0x2F8");
    fs::permissions(Dev("ttyS0"), fs::perms{0600});
    fs::permissions(Dev("ttyS1"), fs::perms{0666});
    EXPECT_EQ(InUnprivilegedChild([&] {
                  const std::vector<SerialDevice> devices = Ports().Devices();
                  return std::string{devices.at(0).mayOpen ? "may" : "may not"} +
                         (devices.at(1).mayOpen ? ", may" : ", may not");
              }),
              "may not, may");
}

TEST_F(TtyPortsTest, ChoiceThatCannotBeStoredIsAFailure) {
    settings.failure = "no room";
    EXPECT_EQ(FailureOf([&] { Ports().Choose(1, "/dev/ttyS0"); }), "no room");
}

}  // namespace
}  // namespace tallyhut
