#include "platform/real/ini_settings.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <string>

#include "platform/real/posix_files.h"
#include "tests/platform/child_process.h"
#include "tests/platform/failure_of.h"
#include "tests/platform/temporary_folder.h"

namespace tallyhut {
namespace {

namespace fs = std::filesystem;

/// Where the settings lie, for as long as it lives.
struct ConfigurationFolder {
    explicit ConfigurationFolder(const std::string& path) { setenv("XDG_CONFIG_HOME", path.c_str(), 1); }
    ConfigurationFolder(const ConfigurationFolder&) = delete;
    ConfigurationFolder& operator=(const ConfigurationFolder&) = delete;
    ~ConfigurationFolder() { unsetenv("XDG_CONFIG_HOME"); }
};

struct IniSettingsTest : testing::Test {
    TemporaryFolder configuration;
    PosixFiles files;
    ConfigurationFolder inEnvironment{configuration.Path()};
    IniSettings settings{files};
    std::string file = configuration.At("Q7ZZQ_Software/tallyhut.ini");
};

TEST_F(IniSettingsTest, NothingStoredIsEmptyAndMakesNoFile) {
    EXPECT_EQ(settings.Get("Settings", "FormSize"), "");
    EXPECT_FALSE(files.FolderExists(configuration.At("Q7ZZQ_Software")));
}

TEST_F(IniSettingsTest, SectionsAndKeysAreKeptApart) {
    settings.Set("Settings", "Port", "1");
    settings.Set("Machine", "Port", "2");
    settings.Set("Machine", "Port 2", "3");
    EXPECT_EQ(settings.Get("Settings", "Port"), "1");
    EXPECT_EQ(settings.Get("Machine", "Port"), "2");
    EXPECT_EQ(settings.Get("Machine", "Port 2"), "3");
}

TEST_F(IniSettingsTest, FileReadsAsItsSectionsKeysAndValues) {
    settings.Set("Machine", "Folder", "/home/jos\xC3\xA9/contest log");
    settings.Set("Settings", "Left", "1200");
    settings.Set("Settings", "Name", "Jos\xE9");
    EXPECT_EQ(files.Read(file),
              "[Machine]\n"
              "Folder=/home/jos\xC3\xA9/contest log\n"
              "\n"
              "[Settings]\n"
              "Left=1200\n"
              "Name=@ByteArray(Jos\\xe9)\n");
}

TEST_F(IniSettingsTest, AnotherProgramsChangeIsSeenAndKept) {
    settings.Set("Settings", "Left", "1200");
    EXPECT_EQ(InChild([&] {
                  IniSettings theirs{files};
                  theirs.Set("Settings", "Top", "300");
                  return theirs.Get("Settings", "Left");
              }),
              "1200");
    EXPECT_EQ(settings.Get("Settings", "Top"), "300");
    settings.Set("Settings", "Left", "1500");
    EXPECT_EQ(InChild([&] { return settings.Get("Settings", "Top"); }), "300");
}

TEST_F(IniSettingsTest, EditedFileIsRead) {
    files.MakeFolder(configuration.At("Q7ZZQ_Software"));
    files.Replace(file, "[Settings]\r\nLeft = 1500\r\nNames=one, two\r\n");
    EXPECT_EQ(settings.Get("Settings", "Left"), "1500");
    EXPECT_EQ(settings.Get("Settings", "Names"), "one, two");
}

TEST_F(IniSettingsTest, FoldersAboveTheFileAreMade) {
    const ConfigurationFolder deeper{configuration.At("none/yet")};
    IniSettings first{files};
    first.Set("Settings", "Left", "1200");
    EXPECT_TRUE(files.FileExists(configuration.At("none/yet/Q7ZZQ_Software/tallyhut.ini")));
}

TEST_F(IniSettingsTest, FailedWriteNamesTheFileAndChangesNothing) {
    files.Replace(configuration.At("Q7ZZQ_Software"), "a file in the folder's place");
    EXPECT_EQ(FailureOf([&] { settings.Set("Settings", "Left", "1200"); }),
              configuration.At("Q7ZZQ_Software") + ": File exists");
    EXPECT_EQ(settings.Get("Settings", "Left"), "");
}

TEST_F(IniSettingsTest, FileWithoutWritePermissionKeepsTheFormerValue) {
    settings.Set("Settings", "Left", "1200");
    const std::string content = files.Read(file);
    const std::string owner = configuration.At("Q7ZZQ_Software");
    fs::permissions(file, fs::perms{0444});
    fs::permissions(owner, fs::perms{0555});
    EXPECT_EQ(InUnprivilegedChild([&] {
                  const std::string failure = FailureOf([&] { settings.Set("Settings", "Left", "1500"); });
                  return failure + ", Left " + settings.Get("Settings", "Left");
              }),
              file + ": Permission denied, Left 1200");
    fs::permissions(owner, fs::perms{0755});
    EXPECT_EQ(files.Read(file), content);
}

TEST_F(IniSettingsTest, FolderThatCannotBeWrittenIsTold) {
    fs::permissions(configuration.Path(), fs::perms{0555});
    EXPECT_EQ(InUnprivilegedChild([&] { return FailureOf([&] { settings.Set("Settings", "Left", "1500"); }); }),
              configuration.At("Q7ZZQ_Software") + ": Permission denied");
    fs::permissions(configuration.Path(), fs::perms{0755});
}

TEST_F(IniSettingsTest, FullDiskLeavesWhatWasThere) {
    settings.Set("Settings", "Left", "1200");
    settings.Set("Machine", "Port1", "/dev/ttyUSB0");
    const std::string content = files.Read(file);
    EXPECT_EQ(InChild([&]() -> std::string {
                  const rlimit none{content.size(), content.size()};
                  return setrlimit(RLIMIT_FSIZE, &none) != 0
                             ? "no limit"
                             : FailureOf([&] { settings.Set("Settings", "Left", "a longer value"); });
              }),
              file + ": File too large");
    EXPECT_EQ(files.Read(file), content);
    const fs::directory_iterator entries(configuration.At("Q7ZZQ_Software"));
    EXPECT_EQ(std::distance(begin(entries), end(entries)), 1) << "nothing is left beside it";
}

TEST_F(IniSettingsTest, FileThatCannotBeReadIsNotReplaced) {
    settings.Set("Settings", "Left", "1200");
    fs::permissions(file, fs::perms{0200});
    fs::permissions(configuration.At("Q7ZZQ_Software"), fs::perms{0777});
    EXPECT_EQ(InUnprivilegedChild([&] {
                  const std::string failure = FailureOf([&] { settings.Set("Settings", "Top", "300"); });
                  return failure + settings.Get("Settings", "Left");
              }),
              file + ": Permission denied");
    EXPECT_EQ(settings.Get("Settings", "Left"), "1200");
    EXPECT_EQ(settings.Get("Settings", "Top"), "");
}

TEST_F(IniSettingsTest, PipeInTheFilesPlaceIsRefusedAtOnce) {
    files.MakeFolder(configuration.At("Q7ZZQ_Software"));
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    EXPECT_EQ(settings.Get("Settings", "Left"), "");
    EXPECT_EQ(FailureOf([&] { settings.Set("Settings", "Left", "1200"); }), file + ": Not a regular file");
}

TEST_F(IniSettingsTest, LockFileThatSomebodyLeftStopsNothing) {
    files.MakeFolder(configuration.At("Q7ZZQ_Software"));
    files.Write(file + ".lock", "1\nsomebody\nelsewhere\n");
    settings.pause = [] { FAIL() << "nothing is to be waited for"; };
    settings.Set("Settings", "Left", "1200");
    EXPECT_EQ(settings.Get("Settings", "Left"), "1200");
}

TEST_F(IniSettingsTest, ProgramThatKeepsTheLockIsWaitedForAndThenTold) {
    settings.Set("Settings", "Left", "1200");
    const auto theirs = files.Lock(configuration.At("Q7ZZQ_Software"));
    int pauses = 0;
    settings.pause = [&] { ++pauses; };
    EXPECT_EQ(FailureOf([&] { settings.Set("Settings", "Left", "1500"); }),
              file + ": Another program holds the settings");
    EXPECT_EQ(pauses, 99);
    EXPECT_EQ(settings.Get("Settings", "Left"), "1200");
}

TEST_F(IniSettingsTest, LockThatIsFreedMeanwhileIsTaken) {
    settings.Set("Settings", "Left", "1200");
    auto theirs = files.Lock(configuration.At("Q7ZZQ_Software"));
    settings.pause = [&] { theirs.reset(); };
    settings.Set("Settings", "Left", "1500");
    EXPECT_EQ(settings.Get("Settings", "Left"), "1500");
}

TEST_F(IniSettingsTest, ProgramsThatSetDifferentKeysLoseNone) {
    const auto setMany = [&](const std::string& name) -> std::string {
        for (int n = 0; n < 50; ++n) {
            while (!FailureOf([&] { settings.Set("Settings", name + std::to_string(n), "x"); }).empty()) {
                // the other one was always quicker to take the lock
            }
        }
        return "done";
    };
    const ChildProcess one([&] { return setMany("one"); });
    const ChildProcess other([&] { return setMany("other"); });
    EXPECT_EQ(one.Text() + other.Text(), "donedone");
    for (int n = 0; n < 50; ++n) {
        EXPECT_EQ(settings.Get("Settings", "one" + std::to_string(n)), "x") << n;
        EXPECT_EQ(settings.Get("Settings", "other" + std::to_string(n)), "x") << n;
    }
}

}  // namespace
}  // namespace tallyhut
