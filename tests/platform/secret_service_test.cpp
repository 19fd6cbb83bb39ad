#include "platform/real/secret_service.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>

#include "tests/platform/temporary_folder.h"

namespace tallyhut {
namespace {

using Kind = KeyringAnswer::Kind;

constexpr const char* kInSession = "TALLYHUT_TEST_IN_SESSION";
constexpr int kPatienceMs = 20'000;

/// The answer, whenever it comes.
KeyringAnswer Await(Keyring& keyring) {
    for (;;) {
        if (KeyringAnswer answer = keyring.Take(); answer.kind != Kind::Nothing) {
            return answer;
        }
        pollfd arrived{.fd = keyring.EventDescriptor(), .events = POLLIN, .revents = 0};
        if (poll(&arrived, 1, kPatienceMs) <= 0) {
            return {};
        }
    }
}

bool HasProgram(const std::string& name) {
    return std::system(("command -v " + name + " >/dev/null").c_str()) == 0;
}

/// A test of a keyring of its own: on a message bus and in a home of its own, by this program once more.
struct SecretServiceTest : testing::Test {
    static bool IsInSession() { return std::getenv(kInSession) != nullptr; }

    /// Runs the present test in a session that begins with these commands.
    static void RunInSession(const std::string& begin) {
        const TemporaryFolder home;
        const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
        const std::string self = std::filesystem::read_symlink("/proc/self/exe");
        const std::string command = "export HOME=" + home.Path() + " XDG_DATA_HOME=" + home.Path() +
                                    " XDG_RUNTIME_DIR=" + home.Path() + " " + kInSession +
                                    "=1; exec dbus-run-session -- sh -c '" + begin + " exec " + self +
                                    " --gtest_filter=" + test.test_suite_name() + "." + test.name() + "' 2>&1";
        EXPECT_EQ(std::system(command.c_str()), 0);
    }
};

TEST_F(SecretServiceTest, KeepsAPasswordOnTheDesktopAndGivesItBackToTheNextProgram) {
    if (!HasProgram("dbus-run-session") || !HasProgram("gnome-keyring-daemon")) {
        GTEST_SKIP() << "no keyring to be started on this machine";
    }
    if (!IsInSession()) {
        RunInSession("printf pw | gnome-keyring-daemon --unlock --components=secrets >/dev/null &&");
        return;
    }
    const std::string secret = "h\xFCsh \"hush\"";
    {
        SecretService keyring;
        keyring.Look();
        const KeyringAnswer look = Await(keyring);
        ASSERT_EQ(look.kind, Kind::There) << look.text;
        keyring.Fetch("one:1");
        EXPECT_EQ(Await(keyring), (KeyringAnswer{.kind = Kind::Secret, .place = "one:1"}));
        keyring.Keep("one:1", "before");
        keyring.Keep("one:1", secret);
        keyring.Fetch("one:1");
        EXPECT_EQ(Await(keyring), (KeyringAnswer{.kind = Kind::Secret, .place = "one:1", .text = secret}));
    }
    SecretService next;
    next.Fetch("two:2");
    next.Fetch("one:1");
    EXPECT_EQ(Await(next), (KeyringAnswer{.kind = Kind::Secret, .place = "two:2"}));
    EXPECT_EQ(Await(next).text, secret);
    next.Forget("one:1");
    next.Fetch("one:1");
    EXPECT_EQ(Await(next).text, "");
}

TEST_F(SecretServiceTest, SessionWithoutAKeyringIsToldFromOneWith) {
    if (!HasProgram("dbus-daemon")) {
        GTEST_SKIP() << "no message bus to be started on this machine";
    }
    if (!IsInSession()) {
        // A bus that starts nothing by itself.
        const TemporaryFolder folder;
        const std::string configuration = folder.Path() + "/bus.conf";
        const std::string text = "<busconfig><type>session</type><listen>unix:tmpdir=" + folder.Path() +
                                 "</listen><policy context=\"default\"><allow send_destination=\"*\" "
                                 "eavesdrop=\"true\"/><allow eavesdrop=\"true\"/><allow "
                                 "own=\"*\"/></policy></busconfig>";
        ASSERT_EQ(std::system(("printf %s '" + text + "' > " + configuration).c_str()), 0);
        const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
        const std::string self = std::filesystem::read_symlink("/proc/self/exe");
        const std::string command = std::string{kInSession} + "=1 dbus-run-session --config-file=" + configuration +
                                    " -- " + self + " --gtest_filter=" + test.test_suite_name() + "." + test.name();
        EXPECT_EQ(std::system(command.c_str()), 0);
        return;
    }
    SecretService keyring;
    keyring.Look();
    const KeyringAnswer look = Await(keyring);
    EXPECT_EQ(look.kind, Kind::Absent);
    EXPECT_FALSE(look.text.empty());
    keyring.Keep("one:1", "hush");
    const KeyringAnswer kept = Await(keyring);
    EXPECT_EQ(kept.kind, Kind::Failed);
    EXPECT_EQ(kept.text.find("hush"), std::string::npos);
}

TEST_F(SecretServiceTest, WithoutASessionThereIsNoneAndNoneIsStarted) {
    setenv("DBUS_SESSION_BUS_ADDRESS", "", 1);
    setenv("XDG_RUNTIME_DIR", "/nonexistent", 1);
    SecretService keyring;
    keyring.Look();
    EXPECT_EQ(Await(keyring), (KeyringAnswer{.kind = Kind::Absent, .text = "There is no desktop session."}));
}

/// A bus that takes the connection and says nothing: the one that waits for it is not the program.
TEST_F(SecretServiceTest, BusThatNeverAnswersHoldsUpNeitherTheProgramNorItsEnd) {
    const TemporaryFolder folder;
    const std::string path = folder.Path() + "/bus";
    const int listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    ASSERT_EQ(listen(listener, 1), 0);
    setenv("DBUS_SESSION_BUS_ADDRESS", ("unix:path=" + path).c_str(), 1);
    const auto begin = std::chrono::steady_clock::now();
    {
        SecretService keyring;
        keyring.Look();
        keyring.Keep("one:1", "hush");
        pollfd arrived{.fd = listener, .events = POLLIN, .revents = 0};
        EXPECT_EQ(poll(&arrived, 1, kPatienceMs), 1) << "it is being waited for";
        EXPECT_EQ(keyring.Take(), KeyringAnswer{});
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds{10});
    close(listener);
}

TEST_F(SecretServiceTest, MemoryThatHasHeldASecretIsShieldedToTheEnd) {
    const int before = prctl(PR_GET_DUMPABLE, 0, 0, 0, 0);
    {
        SecretService keyring;
        EXPECT_EQ(prctl(PR_GET_DUMPABLE, 0, 0, 0, 0), before);
        keyring.ShieldMemory();
        EXPECT_EQ(prctl(PR_GET_DUMPABLE, 0, 0, 0, 0), 0);
    }
    EXPECT_EQ(prctl(PR_GET_DUMPABLE, 0, 0, 0, 0), 0) << "no thread of it is waited for";
    prctl(PR_SET_DUMPABLE, before, 0, 0, 0);
}

}  // namespace
}  // namespace tallyhut
