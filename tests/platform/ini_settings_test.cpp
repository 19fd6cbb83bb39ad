#include "platform/real/ini_settings.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/real/posix_files.h"
#include "tests/platform/child_process.h"
#include "tests/platform/failure_of.h"
#include "tests/platform/temporary_folder.h"

namespace tallyhut {
namespace {

struct IniSettingsTest : testing::Test {
    TemporaryFolder configuration;
    PosixFiles files;
    IniSettings settings;
    std::string file = configuration.At("Q7ZZQ_Software/tallyhut.ini");

    IniSettingsTest() { setenv("XDG_CONFIG_HOME", configuration.Path().c_str(), 1); }
    ~IniSettingsTest() override { unsetenv("XDG_CONFIG_HOME"); }
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

TEST_F(IniSettingsTest, EveryTextOfBytesComesBack) {
    std::string everyByte;
    for (int byte = 1; byte < 256; ++byte) {
        everyByte += static_cast<char>(byte);
    }
    const std::vector<std::string> rows{
        everyByte,
        "",
        " blanks around ",
        "a, b",
        "a;b",
        "\"quoted\"",
        "C:\\old\\x41",
        "line\r\nend",
        "@Invalid()",
        "@ByteArray(x)",
        "@",
        "%41",
        "\xE9",
        "\xC3\xA9",
        "\xC3",
        "\xEF\xBB\xBF",
        "\xEF\xBB\xBFtext",
        "\xED\xA0\x80",
        "\xEF\xBF\xBF",
        "\xF0\x9F\x93\xBB",
        "x\xE9y\xC3\xA9z",
        "\xE9\x61\x31",
        "\x01",
        "\x1F\x30",
        "\x7F",
        "\x80",
        "\xFF",
    };
    const auto key = [&](const std::string& value) { return "Value " + std::to_string(&value - rows.data()); };
    for (const std::string& value : rows) {
        settings.Set("Settings", key(value), value);
        EXPECT_EQ(settings.Get("Settings", key(value)), value);
    }
    const TemporaryFolder other;  // holds a file that is new to the process, so that nothing comes from memory
    files.MakeFolder(other.At("Q7ZZQ_Software"));
    files.Copy(file, other.At("Q7ZZQ_Software/tallyhut.ini"));
    setenv("XDG_CONFIG_HOME", other.Path().c_str(), 1);
    for (const std::string& value : rows) {
        EXPECT_EQ(settings.Get("Settings", key(value)), value) << "read from the file";
    }
}

TEST_F(IniSettingsTest, AnotherProgramsChangeIsSeenAndKept) {
    settings.Set("Settings", "Left", "1200");
    EXPECT_EQ(InChild([&] {
                  IniSettings theirs;
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

TEST_F(IniSettingsTest, FailedWriteNamesTheFileAndChangesNothing) {
    files.Replace(configuration.At("Q7ZZQ_Software"), "a file in the folder's place");
    const std::string failure = file + ": The settings cannot be written";
    EXPECT_EQ(FailureOf([&] { settings.Set("Settings", "Left", "1200"); }), failure);
    EXPECT_EQ(settings.Get("Settings", "Left"), "");
}

TEST_F(IniSettingsTest, FileWithoutWritePermissionKeepsTheFormerValue) {
    settings.Set("Settings", "Left", "1200");
    const std::string content = files.Read(file);
    const std::string owner = configuration.At("Q7ZZQ_Software");
    std::filesystem::permissions(file, std::filesystem::perms{0444});
    std::filesystem::permissions(owner, std::filesystem::perms{0555});
    EXPECT_EQ(InUnprivilegedChild([&] {
                  const std::string failure = FailureOf([&] { settings.Set("Settings", "Left", "1500"); });
                  return failure + ", Left " + settings.Get("Settings", "Left");
              }),
              file + ": The settings cannot be written, Left 1200");
    std::filesystem::permissions(owner, std::filesystem::perms{0755});
    EXPECT_EQ(files.Read(file), content);
}

}  // namespace
}  // namespace tallyhut
