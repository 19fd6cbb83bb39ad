// What every twin of the files does alike, so that a unit tested on the simulated ones works on the machine's.

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "platform/platform_error.h"
#include "platform/real/posix_files.h"
#include "platform/sim/files.h"
#include "tests/platform/failure_of.h"
#include "tests/platform/temporary_folder.h"

namespace tallyhut {
namespace {

struct Twin {
    std::shared_ptr<TemporaryFolder> onDisk;  // none in memory
    std::string folder;                       // an empty one
    std::unique_ptr<Files> files;
};

struct TwinRow {
    const char* name;
    Twin (*make)();
};

void PrintTo(const TwinRow& row, std::ostream* out) {
    *out << row.name;
}

Twin MakePosix() {
    auto onDisk = std::make_shared<TemporaryFolder>();
    return {onDisk, onDisk->Path(), std::make_unique<PosixFiles>()};
}

Twin MakeSimulated() {
    return {nullptr, "/contest", std::make_unique<sim::Files>("/contest")};
}

struct FilesContract : testing::TestWithParam<TwinRow> {
    Twin twin = GetParam().make();
    Files& files = *twin.files;
    std::string log = At("Log.txt");

    std::string At(const std::string& name) const { return twin.folder + '/' + name; }
};

INSTANTIATE_TEST_SUITE_P(Twins, FilesContract,
                         testing::Values(TwinRow{"Posix", MakePosix}, TwinRow{"Simulated", MakeSimulated}),
                         [](const auto& row) { return row.param.name; });

TEST_P(FilesContract, ContentIsReadAsItWasWrittenByteForByte) {
    std::string everyByte;
    for (int byte = 0; byte < 256; ++byte) {
        everyByte += static_cast<char>(byte);
    }
    files.Replace(log, everyByte);
    EXPECT_EQ(files.Read(log), everyByte);
}

TEST_P(FilesContract, LargeContentIsReadWhole) {
    const std::string content(200'000, 'x');
    files.Replace(log, content);
    EXPECT_EQ(files.Read(log), content);
}

TEST_P(FilesContract, WriteMakesTheFileAndPutsItsContentOverTheOldOne) {
    files.Write(log, "a long first content");
    EXPECT_EQ(files.Read(log), "a long first content");
    files.Write(log, "short");
    EXPECT_EQ(files.Read(log), "short");
}

TEST_P(FilesContract, WriteWhereNoFileCanStandIsRefused) {
    files.MakeFolder(At("folder"));
    for (const std::string& path : {At("folder"), At("nowhere/report.txt")}) {
        EXPECT_THROW(files.Write(path, "text"), PlatformError) << path;
    }
}

TEST_P(FilesContract, PathsOfOneFileAreKnownHoweverTheyAreWritten) {
    files.Write(log, "A");
    files.Write(At("other.txt"), "A");
    EXPECT_TRUE(files.IsSameFile(log, At("../" + twin.folder.substr(twin.folder.rfind('/') + 1) + "/Log.txt")));
    EXPECT_FALSE(files.IsSameFile(log, At("other.txt")));
    EXPECT_FALSE(files.IsSameFile(At("none.txt"), At("none.txt")));
}

TEST_P(FilesContract, AppendMakesTheFileAndGoesOnAtItsEnd) {
    files.Append(log, "\"1\"\r\n");
    EXPECT_EQ(files.Read(log), "\"1\"\r\n");
    files.Append(log, "\"2\"\r\n");
    EXPECT_EQ(files.Read(log), "\"1\"\r\n\"2\"\r\n");
}

TEST_P(FilesContract, AppendBeginsWithALineEndOnlyWhereTheLastLineLacksOne) {
    const std::vector<std::pair<std::string, std::string>> rows{
        {"", "B\r\n"}, {"A", "A\r\nB\r\n"}, {"A\r", "A\r\r\nB\r\n"}, {"A\n", "A\nB\r\n"}, {"A\r\n", "A\r\nB\r\n"},
    };
    for (const auto& [before, after] : rows) {
        files.Replace(log, before);
        files.Append(log, "B\r\n");
        EXPECT_EQ(files.Read(log), after) << before;
    }
}

TEST_P(FilesContract, ReplaceLeavesNothingOfALongerContent) {
    files.Replace(log, "a longer content");
    files.Replace(log, "short");
    EXPECT_EQ(files.Read(log), "short");
    files.Replace(log, "");
    EXPECT_EQ(files.Read(log), "");
    EXPECT_TRUE(files.FileExists(log));
}

TEST_P(FilesContract, CopyReplacesTheTargetAndKeepsTheSource) {
    files.Replace(log, "log");
    files.Replace(At("Backup.txt"), "an older backup");
    files.Copy(log, At("Backup.txt"));
    EXPECT_EQ(files.Read(At("Backup.txt")), "log");
    EXPECT_EQ(files.Read(log), "log");
}

TEST_P(FilesContract, FileCopiedOntoItselfIsRefusedAndStays) {
    files.Replace(log, "log");
    const std::string failure = log + ": Source and target are the same file";
    EXPECT_EQ(FailureOf([&] { files.Copy(log, log); }), failure);
    const std::string sameInOtherWords = At("./Log.txt");
    EXPECT_EQ(FailureOf([&] { files.Copy(log, sameInOtherWords); }),
              sameInOtherWords + ": Source and target are the same file");
    EXPECT_EQ(files.Read(log), "log");
}

TEST_P(FilesContract, FilesAndFoldersAreToldApart) {
    files.Replace(log, "");
    files.MakeFolder(At("Archive"));
    EXPECT_TRUE(files.FileExists(log));
    EXPECT_FALSE(files.FolderExists(log));
    EXPECT_TRUE(files.FolderExists(At("Archive")));
    EXPECT_TRUE(files.FolderExists(At("Archive/")));
    EXPECT_FALSE(files.FileExists(At("Archive")));
    EXPECT_FALSE(files.FileExists(At("none")));
    EXPECT_FALSE(files.FolderExists(At("none")));
    EXPECT_FALSE(files.FileExists(""));
    EXPECT_FALSE(files.FolderExists(""));
}

TEST_P(FilesContract, MadeFolderTakesFiles) {
    files.MakeFolder(At("Archive"));
    files.Append(At("Archive/Log.txt"), "A\r\n");
    EXPECT_EQ(files.Read(At("Archive/Log.txt")), "A\r\n");
    EXPECT_FALSE(files.FileExists(log));
}

TEST_P(FilesContract, MissingFilesAndFoldersAreToldWithTheirPath) {
    const std::string reason = ": No such file or directory";
    const std::string inNoFolder = At("none/Log.txt");
    files.Replace(log, "log");
    EXPECT_EQ(FailureOf([&] { files.Read(At("none")); }), At("none") + reason);
    EXPECT_EQ(FailureOf([&] { files.Read(inNoFolder); }), inNoFolder + reason);
    EXPECT_EQ(FailureOf([&] { files.Append(inNoFolder, "A\r\n"); }), inNoFolder + reason);
    EXPECT_EQ(FailureOf([&] { files.Replace(inNoFolder, "A\r\n"); }), inNoFolder + reason);
    EXPECT_EQ(FailureOf([&] { files.Copy(At("none"), log); }), At("none") + reason);
    EXPECT_EQ(FailureOf([&] { files.Copy(log, inNoFolder); }), inNoFolder + reason);
    EXPECT_EQ(FailureOf([&] { files.MakeFolder(At("none/Archive")); }), At("none/Archive") + reason);
    EXPECT_EQ(FailureOf([&] { files.CheckWritable(At("none")); }), At("none") + reason);
    EXPECT_EQ(FailureOf([&] { files.Lock(At("none")); }), At("none") + reason);
    EXPECT_EQ(FailureOf([&] { files.Read(""); }), reason);
    EXPECT_EQ(FailureOf([&] { files.Replace("", ""); }), reason);
    EXPECT_EQ(files.Read(log), "log");
}

TEST_P(FilesContract, FolderInTheFilesPlaceIsRefused) {
    const std::string reason = ": Is a directory";
    files.MakeFolder(log);
    files.Replace(At("source"), "");
    EXPECT_EQ(FailureOf([&] { files.Read(log); }), log + reason);
    EXPECT_EQ(FailureOf([&] { files.Append(log, "A\r\n"); }), log + reason);
    EXPECT_EQ(FailureOf([&] { files.Replace(log, "A\r\n"); }), log + reason);
    EXPECT_EQ(FailureOf([&] { files.Copy(log, At("Backup.txt")); }), log + reason);
    EXPECT_EQ(FailureOf([&] { files.Copy(At("source"), log); }), log + reason);
    EXPECT_TRUE(files.FolderExists(log));
    EXPECT_FALSE(files.FileExists(At("Backup.txt")));
}

TEST_P(FilesContract, FileInAFoldersPlaceIsRefused) {
    const std::string reason = ": Not a directory";
    files.Replace(log, "log");
    const std::string below = log + "/below";
    EXPECT_EQ(FailureOf([&] { files.Read(below); }), below + reason);
    EXPECT_EQ(FailureOf([&] { files.Append(below, "A\r\n"); }), below + reason);
    EXPECT_EQ(FailureOf([&] { files.Replace(below, "A\r\n"); }), below + reason);
    EXPECT_EQ(FailureOf([&] { files.Copy(log, below); }), below + reason);
    EXPECT_EQ(FailureOf([&] { files.MakeFolder(below); }), below + reason);
    EXPECT_EQ(FailureOf([&] { files.CheckWritable(log); }), log + reason);
    EXPECT_EQ(FailureOf([&] { files.Lock(log); }), log + reason);
    EXPECT_EQ(files.Read(log), "log");
}

TEST_P(FilesContract, FolderIsMadeOnlyWhereNothingStands) {
    files.MakeFolder(At("Archive"));
    files.Replace(log, "log");
    EXPECT_EQ(FailureOf([&] { files.MakeFolder(At("Archive")); }), At("Archive") + ": File exists");
    EXPECT_EQ(FailureOf([&] { files.MakeFolder(log); }), log + ": File exists");
}

TEST_P(FilesContract, WritableFolderPassesTheCheckUnchanged) {
    files.CheckWritable(twin.folder);
    files.Append(log, "A\r\n");
    files.CheckWritable(twin.folder);
    EXPECT_EQ(files.Read(log), "A\r\n");
}

TEST_P(FilesContract, FolderIsLockedOnceAtATime) {
    auto lock = files.Lock(twin.folder);
    ASSERT_NE(lock, nullptr);
    EXPECT_EQ(files.Lock(twin.folder), nullptr);
    EXPECT_EQ(files.Lock(twin.folder + "/"), nullptr);
    lock.reset();
    EXPECT_NE(files.Lock(twin.folder), nullptr);
}

TEST_P(FilesContract, LocksOfDifferentFoldersDoNotMeet) {
    files.MakeFolder(At("Archive"));
    const auto lock = files.Lock(twin.folder);
    EXPECT_NE(files.Lock(At("Archive")), nullptr);
}

TEST_P(FilesContract, LockedFolderIsStillReadAndWritten) {
    const auto lock = files.Lock(twin.folder);
    files.Append(log, "A\r\n");
    EXPECT_EQ(files.Read(log), "A\r\n");
}

}  // namespace
}  // namespace tallyhut
