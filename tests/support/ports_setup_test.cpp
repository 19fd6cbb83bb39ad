#include "support/ports_setup.h"

#include <functional>

#include "tests/log/program_fixture.h"

namespace tallyhut {
namespace {

struct PortsSetupTest : ProgramFixture {
    PortsSetupTest() {
        serialPorts.devices = {{.path = "/dev/ttyS0", .description = "Built-in port"},
                               {.path = "/dev/ttyUSB0", .description = "Acme Cable", .mayOpen = false}};
    }

    frmPorts& Dialog() { return program->portsForm; }

    /// Opens the dialog from the menu, runs the steps in it, and closes it with Done unless they closed it.
    void Setup(const std::function<void()>& steps) {
        Start();
        Open(steps);
    }
    void Open(const std::function<void()>& steps) {
        pump.OnWait([this, steps] {
            steps();
            if (Dialog().IsVisible()) {
                Click(Dialog().cmdDone);
            }
        });
        ChooseMenu(Main().mnuPorts);
        EXPECT_FALSE(Dialog().IsLoaded());
    }
    void PickPort(int number) {
        TheDesk().PostRowClick(Dialog().lstPorts, number - 1, kLeftButton);
        TheDesk().RunPending();
    }
    void PickDevice(int row) {
        TheDesk().PostRowClick(Dialog().lstDevices, row, kLeftButton);
        TheDesk().RunPending();
    }
    std::string RowOfPort(int number) {
        std::string text;
        for (std::size_t column = 0; column < 4; ++column) {
            text += (column == 0 ? "" : "|") + Dialog().lstPorts.Cell(static_cast<std::size_t>(number - 1), column);
        }
        return text;
    }
};

TEST_F(PortsSetupTest, EntryStandsInTheSettingsMenu) {
    Start();
    EXPECT_EQ(Main().mnuPorts.Caption(), "Serial P&orts");
    EXPECT_EQ(Main().mnuPorts.Above(), &Main().mnuSettings);
}

TEST_F(PortsSetupTest, EveryPortShowsItsDevice) {
    serialPorts.commandLine[3] = "/tmp/rig";
    serialPorts.choices[4] = "/dev/ttyS0";
    Setup([&] {
        EXPECT_TRUE(Dialog().IsModal());
        ASSERT_EQ(Dialog().lstPorts.RowCount(), 10U);
        EXPECT_EQ(RowOfPort(1), "1|/dev/ttyS0|automatic|Built-in port");
        EXPECT_EQ(RowOfPort(2), "2|/dev/ttyUSB0|automatic|no right to open it, Acme Cable");
        EXPECT_EQ(RowOfPort(3), "3|/tmp/rig|--port|");
        EXPECT_EQ(RowOfPort(4), "4|/dev/ttyS0|chosen|Built-in port");
        EXPECT_EQ(RowOfPort(10), "10|||");
        EXPECT_EQ(
            Dialog().lstDevices.Items(),
            (std::vector<std::string>{"Automatic: the device found for this port number", "/dev/ttyS0, Built-in port",
                                      "/dev/ttyUSB0, no right to open it, Acme Cable"}));
    });
}

TEST_F(PortsSetupTest, SelectedPortShowsItsChoiceAndWhatToDo) {
    serialPorts.choices = {{2, "/dev/ttyS0"}, {4, "/tmp/rig"}};
    Setup([&] {
        EXPECT_EQ(Dialog().lstPorts.Row(), 0);
        EXPECT_EQ(Dialog().lblDevice.Caption(), "Device &for port 1:");
        EXPECT_EQ(Dialog().lstDevices.Row(), 0);
        EXPECT_EQ(Dialog().txtDevice.Text(), "");
        EXPECT_EQ(Dialog().lblNote.Caption(), "");
        PickPort(2);
        EXPECT_EQ(Dialog().lblDevice.Caption(), "Device &for port 2:");
        EXPECT_EQ(Dialog().lstDevices.Row(), 1);
        EXPECT_EQ(Dialog().txtDevice.Text(), "/dev/ttyS0");
        PickPort(4);
        EXPECT_EQ(Dialog().lstDevices.Row(), -1);
        EXPECT_EQ(Dialog().txtDevice.Text(), "/tmp/rig");
        PickPort(3);
        EXPECT_EQ(Dialog().lblNote.Caption(),
                  "No device was found for this port. Plug it in and look again, or type the path of its device.");
    });
}

TEST_F(PortsSetupTest, DevicePickedFromTheListIsStoredForThePort) {
    Setup([&] {
        PickPort(3);
        PickDevice(2);
        EXPECT_EQ(Dialog().txtDevice.Text(), "/dev/ttyUSB0");
        EXPECT_TRUE(serialPorts.choices.empty());
        Click(Dialog().cmdUse);
        EXPECT_EQ(serialPorts.choices, (std::map<int, std::string>{{3, "/dev/ttyUSB0"}}));
        EXPECT_EQ(RowOfPort(3), "3|/dev/ttyUSB0|chosen|no right to open it, Acme Cable");
        EXPECT_EQ(Dialog().lstPorts.Row(), 2);
        EXPECT_EQ(Dialog().lblNote.Caption(),
                  "You have no right to open this device: add yourself to the group dialout (sudo adduser YOURNAME "
                  "dialout) and log in again.");
    });
}

TEST_F(PortsSetupTest, AutomaticGoesBackToTheDeviceFound) {
    serialPorts.choices[1] = "/dev/ttyUSB0";
    Setup([&] {
        PickDevice(0);
        EXPECT_EQ(Dialog().txtDevice.Text(), "");
        Click(Dialog().cmdUse);
        EXPECT_EQ(RowOfPort(1), "1|/dev/ttyS0|automatic|Built-in port");
    });
}

TEST_F(PortsSetupTest, PathIsTypedWithTheKeyboardAlone) {
    Setup([&] {
        Press("Down");
        Press("Alt+F");
        Type(" /tmp/rig ");
        Press("Enter");
        EXPECT_TRUE(Dialog().IsVisible());
        EXPECT_EQ(RowOfPort(2), "2|/tmp/rig|chosen|");
        Press("Alt+D");
        Press("Up");
        Press("Up");
        Press("Home");
        Press("Alt+U");
        Press("Alt+P");
        EXPECT_TRUE(Dialog().lstPorts.HasFocus());
        Press("Enter");
        EXPECT_FALSE(Dialog().IsVisible());
    });
    EXPECT_EQ(serialPorts.choices.at(2), "");
}

TEST_F(PortsSetupTest, DoubleClickOnADeviceStoresIt) {
    Setup([&] {
        TheDesk().PostRowClick(Dialog().lstDevices, 2, kLeftButton, true);
        TheDesk().RunPending();
    });
    EXPECT_EQ(serialPorts.choices.at(1), "/dev/ttyUSB0");
}

TEST_F(PortsSetupTest, LookingAgainFindsWhatHasBeenPluggedIn) {
    Setup([&] {
        PickPort(3);
        serialPorts.devices.push_back({.path = "/dev/ttyACM0", .description = "WinKey"});
        Click(Dialog().cmdLook);
        EXPECT_EQ(RowOfPort(3), "3|/dev/ttyACM0|automatic|WinKey");
        EXPECT_EQ(Dialog().lstPorts.Row(), 2);
        EXPECT_EQ(Dialog().lblNote.Caption(), "");
        EXPECT_EQ(Dialog().lstDevices.Items().size(), 4U);
    });
}

TEST_F(PortsSetupTest, DeviceOfTheCommandLineCannotBeChangedHere) {
    serialPorts.commandLine[1] = "/tmp/rig";
    Setup([&] {
        EXPECT_EQ(Dialog().lblNote.Caption(),
                  "The device was given with --port and stays for as long as the program runs.");
        EXPECT_FALSE(Dialog().txtDevice.State().enabled);
        EXPECT_FALSE(Dialog().lstDevices.State().enabled);
        EXPECT_FALSE(Dialog().cmdUse.State().enabled);
        PickPort(2);
        EXPECT_TRUE(Dialog().txtDevice.State().enabled);
        EXPECT_TRUE(Dialog().lstDevices.State().enabled);
        EXPECT_TRUE(Dialog().cmdUse.State().enabled);
    });
}

TEST_F(PortsSetupTest, ChoiceThatCannotBeStoredIsTold) {
    serialPorts.choiceFailure = "/home/operator/.config: The settings cannot be written";
    Setup([&] {
        PickDevice(2);
        Click(Dialog().cmdUse);
        EXPECT_EQ(dialogs.boxes,
                  std::vector<std::string>{
                      "message \"Error.\" \"/home/operator/.config: The settings cannot be written\" OK Exclamation"});
        EXPECT_EQ(RowOfPort(1), "1|/dev/ttyS0|automatic|Built-in port");
        EXPECT_EQ(Dialog().txtDevice.Text(), "/dev/ttyUSB0");
    });
}

TEST_F(PortsSetupTest, TabGoesFromThePortsToDone) {
    Setup([&] {
        std::string order;
        for (const Control* stop : Dialog().TabStops()) {
            order += stop->FullName() + ' ';
        }
        EXPECT_EQ(order, "lstPorts lstDevices txtDevice cmdUse cmdLook cmdDone ");
        Press("Esc");
        EXPECT_FALSE(Dialog().IsVisible());
    });
}

TEST_F(PortsSetupTest, EveryOpeningLooksAnew) {
    Setup([&] { PickPort(5); });
    serialPorts.devices.clear();
    Open([&] {
        EXPECT_EQ(Dialog().lstPorts.Row(), 0);
        EXPECT_EQ(RowOfPort(1), "1|||");
    });
}

}  // namespace
}  // namespace tallyhut
