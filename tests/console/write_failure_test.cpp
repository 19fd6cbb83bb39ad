#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <filesystem>

#include "tests/console/console_driver.h"

namespace tallyhut {
namespace {

constexpr const char* kFirstRecord =
    "\"1\",\"88\",\"A\",\"W1XX\",\"72\",\"MDC\",\"2026/11/07\",\"21:04:33\",\"40\",\"\"\r\n";

/// The one box that a contact which could not be written ends in; the program ends behind it with status 1.
///
/// @param rest  what it says behind the exchange
void ExpectFatalBox(ConsoleDriver& program, const std::string& failure, const std::string& rest) {
    const std::vector<std::string> lines = program.Do("key Enter");
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0], R"({"event":"msgbox","title":"Tallyhut Log","text":"The program must end.\n\n)" + failure +
                            R"(\n\nThis contact was not logged: 89 B K1AB 73 CT\n\n)" + rest +
                            R"(","buttons":"OK","icon":"Critical","at":"2026-11-07T21:04:33.000"})");
    program.Do("answer OK");
    EXPECT_EQ(program.Wait(), 1);
}

struct WriteFailureTest : testing::Test {
    ContestFolder folder;
    ConsoleDriver program{folder.Path()};
    std::string log = folder.Path() + "/Log.txt";

    WriteFailureTest() { program.Do("click cmdLogOn"); }
};

TEST_F(WriteFailureTest, AFileSizeLimitKeepsTheFileAsItWas) {
    program.LogContact("88aw1xx72mdc");
    const rlim_t justMore = std::string{kFirstRecord}.size() + 10;
    const rlimit limit{.rlim_cur = justMore, .rlim_max = justMore};
    ASSERT_EQ(prlimit(program.Process(), RLIMIT_FSIZE, &limit, nullptr), 0);
    program.Do(R"(type "89bk1ab73ct")");
    ExpectFatalBox(program, log + ": File too large",
                   R"(Not all of the operating time could be saved. )" + folder.Path() +
                       R"(/nspref.txt: File too large\n\n)" + log + " holds 1 contact.");
    EXPECT_EQ(folder.Read("Log.txt"), kFirstRecord);
}

TEST_F(WriteFailureTest, ALogThatIsADeviceIsToldWithTheExchange) {
    program.Do(R"(type "89bk1ab73ct")");
    std::filesystem::remove(log);
    std::filesystem::create_symlink("/dev/full", log);
    ExpectFatalBox(program, log + ": Not a regular file", "The log cannot be read. " + log + ": Not a regular file");
}

TEST_F(WriteFailureTest, ALogThatIsAFolderIsToldWithTheExchange) {
    program.Do(R"(type "89bk1ab73ct")");
    std::filesystem::remove(log);
    std::filesystem::create_directory(log);
    ExpectFatalBox(program, log + ": Is a directory", "There is no file " + log + ".");
}

TEST_F(WriteFailureTest, AWorkingDirectoryThatVanishedIsToldWithTheExchange) {
    program.Do(R"(type "89bk1ab73ct")");
    std::filesystem::remove_all(folder.Path());
    const std::string missing = ": No such file or directory";
    ExpectFatalBox(program, folder.Path() + missing,
                   R"(Not all of the operating time could be saved. )" + folder.Path() + "/nspref.txt" + missing +
                       R"(\n)" + folder.Path() + "/nsonoff.txt" + missing + R"(\n\n)" + "There is no file " + log +
                       ".");
}

}  // namespace
}  // namespace tallyhut
