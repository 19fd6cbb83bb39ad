#include "platform/real/ppdev_ports.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <filesystem>
#include <fstream>

#include "tests/platform/child_process.h"
#include "tests/platform/parallel_calls.h"
#include "tests/platform/temporary_folder.h"

namespace tallyhut {
namespace {

constexpr int kBase = 0x378;
constexpr int kOther = 0x278;
constexpr int kControl = kBase + 2;

/// The system knows port 0 at 0x378 and port 2 at 0x278; the devices of both are there.
struct PpdevPortsTest : testing::Test {
    TemporaryFolder folder;
    ParallelCalls calls;
    const std::string device = folder.At("dev/parport0");

    PpdevPortsTest() {
        AddPort(0, "888\t1912\n");
        AddPort(2, "632\t0\n");
    }

    void AddPort(int number, const std::string& addresses) const {
        const std::string name = "parport" + std::to_string(number);
        std::filesystem::create_directories(folder.At("proc/" + name));
        std::ofstream{folder.At("proc/" + name + "/base-addr")} << addresses;
        std::filesystem::create_directories(folder.At("dev"));
        std::ofstream{folder.At("dev/" + name)} << "";
    }

    PpdevPorts ports{{.devices = folder.At("dev"), .ports = folder.At("proc")}};
};

TEST_F(PpdevPortsTest, PortIsClaimedByTheFirstByteAndHeld) {
    EXPECT_EQ(calls.Take(), "");
    ports.Out(kControl, kParallelKeyDown);
    ports.Out(kControl, kParallelKeyUp);
    ports.Out(kControl, kParallelKeyDown);
    EXPECT_EQ(calls.Take(), "claim, write 3, write 2, write 3");
}

TEST_F(PpdevPortsTest, EndLeavesTheKeyUpAtEveryPort) {
    {
        PpdevPorts shortLived{ports.folders};
        shortLived.Out(kControl, kParallelKeyDown);
        shortLived.Out(kOther + 2, kParallelKeyDown);
        EXPECT_EQ(calls.Take(), "claim, write 3, claim, write 3");
    }
    EXPECT_EQ(calls.Take(), "write 2, release, write 2, release");
}

TEST_F(PpdevPortsTest, PortIsFoundByTheFirstOfItsAddresses) {
    EXPECT_EQ(ports.Meaning(kBase), device);
    EXPECT_EQ(ports.Meaning(kOther), folder.At("dev/parport2"));
    EXPECT_EQ(ports.Meaning(1912), "No parallel port is known at this address");
    EXPECT_EQ(ports.Meaning(0), "No parallel port is known at this address");
    EXPECT_EQ(ports.Meaning(-1), "No parallel port is known at this address");
    EXPECT_EQ(ports.Meaning(1'000'000'000), "No parallel port is known at this address");
}

TEST_F(PpdevPortsTest, ByteForNoPortIsSilentlyLost) {
    for (const int address : {0x3BE, 0, -1, 2, 70'000, 2'000'000'000}) {
        ports.Out(address, kParallelKeyDown);
    }
    EXPECT_EQ(calls.Take(), "");
}

TEST_F(PpdevPortsTest, FailedPortIsTriedAgainAfterAnotherWasAskedFor) {
    calls.claimFailure = EIO;
    ports.Out(kControl, kParallelKeyDown);
    ports.Out(kControl, kParallelKeyUp);
    EXPECT_EQ(calls.Take(), "claim");
    calls.claimFailure = 0;
    ports.Out(kControl, kParallelKeyDown);
    EXPECT_EQ(calls.Take(), "");
    ports.Out(kOther + 2, kParallelKeyDown);
    ports.Out(kControl, kParallelKeyDown);
    EXPECT_EQ(calls.Take(), "claim, write 3, claim, write 3");
}

TEST_F(PpdevPortsTest, FailedPortIsTriedAgainAfterTheOperatorLookedAtIt) {
    calls.claimFailure = EIO;
    ports.Out(kControl, kParallelKeyDown);
    calls.claimFailure = 0;
    EXPECT_EQ(ports.Meaning(kBase), device);
    ports.Out(kControl, kParallelKeyDown);
    EXPECT_EQ(calls.Take(), "claim, claim, write 3");
}

TEST_F(PpdevPortsTest, PortThatIsTakenAwayIsSilentAndNotTriedAgain) {
    ports.Out(kControl, kParallelKeyDown);
    calls.writeFailure = ENXIO;
    ports.Out(kControl, kParallelKeyUp);
    ports.Out(kControl, kParallelKeyDown);
    EXPECT_EQ(calls.Take(), "claim, write 3, write 2");
}

TEST_F(PpdevPortsTest, OneDeviceServesBothFormsThatNameItsAddress) {
    ports.Out(kControl, kParallelKeyDown);
    ports.Out(kOther + 2, kParallelKeyDown);
    ports.Out(kControl, kParallelKeyUp);
    EXPECT_EQ(calls.Take(), "claim, write 3, claim, write 3, write 2");
}

TEST_F(PpdevPortsTest, MissingModuleIsTold) {
    std::filesystem::remove(device);
    EXPECT_EQ(ports.Meaning(kBase),
              "The port is there, but " + device + " is not: load the module ppdev (sudo modprobe ppdev)");
    ports.Out(kControl, kParallelKeyDown);
    EXPECT_EQ(calls.Take(), "");
}

TEST_F(PpdevPortsTest, MissingRightIsTold) {
    chmod(device.c_str(), 0600);
    EXPECT_EQ(InUnprivilegedChild([&] {
                  std::string told = ports.Meaning(kBase);
                  ports.Out(kControl, kParallelKeyDown);
                  return told + '\n' + calls.Take();
              }),
              "You have no right to open " + device +
                  ": add yourself to the group lp (sudo adduser YOURNAME lp) and log in again\n");
}

TEST_F(PpdevPortsTest, OtherTroubleIsToldAsTheSystemTellsIt) {
    std::filesystem::remove(device);
    std::filesystem::create_symlink("parport0", device);
    EXPECT_EQ(ports.Meaning(kBase), device + ": Too many levels of symbolic links");
}

// Without a driver a byte goes straight to the register, which no test can take the place of: only the right is looked
// at.
TEST_F(PpdevPortsTest, PortWithoutADriverIsLookedAtWithoutKeepingTheRight) {
    calls.mayWriteDirectly = true;
    EXPECT_EQ(ports.Meaning(0x3BC), "Written to directly, without a driver");
    EXPECT_EQ(calls.Take(), "allow 958, forbid 958");
    EXPECT_EQ(ports.Meaning(kBase), device);
    EXPECT_EQ(calls.Take(), "");
}

}  // namespace
}  // namespace tallyhut
