// What every twin of the files does alike, so that a unit tested on the simulated ones works on the machine's.

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "platform/platform_error.h"
#include "platform/real/descriptor.h"
#include "platform/real/posix_files.h"
#include "platform/sim/files.h"
#include "tests/platform/child_process.h"
#include "tests/platform/failure_of.h"
#include "tests/platform/temporary_folder.h"

namespace tallyhut {
namespace {

namespace fs = std::filesystem;

struct Twin {
    std::shared_ptr<TemporaryFolder> onDisk;  // none in memory
    std::string folder;                       // an empty one
    std::unique_ptr<Files> files;
};

struct TwinRow {
    const char* name;
    Twin (*make)();
    /// Puts another folder in the folder's place, as a file manager does.
    void (*swapFolder)(const Twin& twin, const std::string& folder);
    /// Makes a folder of which nobody but the superuser may know what it holds: here, its Log.txt.
    void (*closeFolder)(const Twin& twin, const std::string& folder);
    /// Makes one of each kind of what is neither file nor folder, and says where.
    std::vector<std::string> (*makeIrregular)(const Twin& twin);
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

void SwapOnDisk(const Twin& twin, const std::string& folder) {
    fs::rename(folder, twin.folder + "/former");
    fs::create_directory(folder);
}

void SwapSimulated(const Twin& twin, const std::string& folder) {
    dynamic_cast<sim::Files&>(*twin.files).SwapFolder(folder);
}

void CloseOnDisk(const Twin& /*twin*/, const std::string& folder) {
    fs::create_directory(folder);
    fs::permissions(folder, fs::perms{0700});
}

void CloseSimulated(const Twin& twin, const std::string& folder) {
    dynamic_cast<sim::Files&>(*twin.files).unreachable[folder + "/Log.txt"] = "Permission denied";
}

std::vector<std::string> MakeIrregularOnDisk(const Twin& twin) {
    const std::string pipe = twin.folder + "/pipe";
    const std::string device = twin.folder + "/device";
    sockaddr_un place{.sun_family = AF_UNIX, .sun_path = {}};
    const std::string listening = twin.folder + "/socket";
    listening.copy(place.sun_path, sizeof place.sun_path - 1);
    const Descriptor opened{socket(AF_UNIX, SOCK_STREAM, 0)};
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the system's own way to hand over an address
    EXPECT_EQ(bind(opened.Number(), reinterpret_cast<const sockaddr*>(&place), sizeof place), 0);
    EXPECT_EQ(mkfifo(pipe.c_str(), 0666), 0);
    fs::create_symlink("/dev/full", device);
    return {pipe, device, listening};
}

std::vector<std::string> MakeIrregularSimulated(const Twin& twin) {
    dynamic_cast<sim::Files&>(*twin.files).irregular.insert(twin.folder + "/device");
    return {twin.folder + "/device"};
}

struct FilesContract : testing::TestWithParam<TwinRow> {
    Twin twin = GetParam().make();
    Files& files = *twin.files;
    std::string log = At("Log.txt");

    std::string At(const std::string& name) const { return twin.folder + '/' + name; }
};

INSTANTIATE_TEST_SUITE_P(Twins, FilesContract,
                         testing::Values(TwinRow{"Posix", MakePosix, SwapOnDisk, CloseOnDisk, MakeIrregularOnDisk},
                                         TwinRow{"Simulated", MakeSimulated, SwapSimulated, CloseSimulated,
                                                 MakeIrregularSimulated}),
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

TEST_P(FilesContract, OpenFileIsReadInPartsAndStaysTheSameFile) {
    files.Replace(log, "0123456789");
    const auto file = files.OpenToRead(log);
    files.Replace(log, "another");
    files.Remove(log);
    EXPECT_EQ(file->Length(), 10U);
    EXPECT_EQ(file->Part(3, 4), "3456");
    EXPECT_EQ(file->Part(8, 4), "89");
    EXPECT_EQ(file->Part(10, 4), "");
    EXPECT_EQ(file->Part(1'000'000'000'000, 4), "");
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

TEST_P(FilesContract, MarkTellsWhichFileItIsAndHowLong) {
    EXPECT_EQ(files.Mark(log), std::nullopt);
    EXPECT_EQ(files.Mark(twin.folder), std::nullopt);
    const FileMark first = files.Replace(log, "12345");
    EXPECT_EQ(first.length, 5U);
    EXPECT_EQ(files.Mark(log), first);
    const FileMark second = files.Replace(log, "67890");
    EXPECT_NE(second, first);
    EXPECT_EQ(files.Mark(log), second);
    files.Append(log, "A\r\n");
    EXPECT_EQ(files.Mark(log)->length, 10U);
}

TEST_P(FilesContract, AppendToTheExpectedFileTellsItsNewMark) {
    const FileMark made = files.Append(log, "A\r\n", std::nullopt);
    EXPECT_EQ(files.Mark(log), made);
    const FileMark longer = files.Append(log, "B", made);
    EXPECT_EQ(files.Mark(log), longer);
    const FileMark longest = files.Append(log, "C\r\n", longer);
    EXPECT_EQ(files.Mark(log), longest);
    EXPECT_EQ(files.Read(log), "A\r\nB\r\nC\r\n");
}

TEST_P(FilesContract, AppendToAnotherFileThanTheExpectedOneWritesNothing) {
    const FileMark expected = files.Replace(log, "A\r\n");
    const std::string reason = log + ": Another program has removed, replaced or changed the file";
    const auto expectRefusal = [&](const std::optional<FileMark>& mark, const std::string& content) {
        EXPECT_THROW(files.Append(log, "B\r\n", mark), FileChangedError);
        EXPECT_EQ(FailureOf([&] { files.Append(log, "B\r\n", mark); }), reason);
        EXPECT_EQ(files.Read(log), content);
    };
    expectRefusal(std::nullopt, "A\r\n");
    files.Append(log, "grown\r\n");
    expectRefusal(expected, "A\r\ngrown\r\n");
    files.Replace(log, "A\r\n");
    expectRefusal(expected, "A\r\n");
    const FileMark present = files.Replace(log, "A\r\nB\r\n");
    files.Write(log, "A\r\n");
    expectRefusal(present, "A\r\n");
}

TEST_P(FilesContract, AppendMakesNoNewFileWhereOneIsExpected) {
    const FileMark expected = files.Replace(At("other"), "A\r\n");
    EXPECT_THROW(files.Append(log, "B\r\n", expected), FileChangedError);
    EXPECT_FALSE(files.FileExists(log));
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
    EXPECT_EQ(FailureOf([&] { files.OpenToRead(inNoFolder); }), inNoFolder + reason);
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
    EXPECT_EQ(FailureOf([&] { files.OpenToRead(log); }), log + reason);
    EXPECT_EQ(FailureOf([&] { files.Append(log, "A\r\n"); }), log + reason);
    EXPECT_EQ(FailureOf([&] { files.Replace(log, "A\r\n"); }), log + reason);
    EXPECT_EQ(FailureOf([&] { files.Copy(log, At("Backup.txt")); }), log + reason);
    EXPECT_EQ(FailureOf([&] { files.Copy(At("source"), log); }), log + reason);
    EXPECT_EQ(FailureOf([&] { files.Remove(log); }), log + reason);
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

TEST_P(FilesContract, RemovedFileIsNotThereAnyMore) {
    files.Replace(log, "log");
    files.Replace(At("other"), "");
    files.Remove(log);
    EXPECT_FALSE(files.FileExists(log));
    EXPECT_TRUE(files.FileExists(At("other")));
    EXPECT_EQ(FailureOf([&] { files.Remove(log); }), log + ": No such file or directory");
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

TEST_P(FilesContract, LockHoldsTheFolderThatStandsThere) {
    files.MakeFolder(At("contest"));
    const auto lock = files.Lock(At("contest"));
    EXPECT_TRUE(lock->StillHolds());
    files.Append(At("contest/Log.txt"), "A\r\n");
    EXPECT_TRUE(lock->StillHolds());
    GetParam().swapFolder(twin, At("contest"));
    EXPECT_FALSE(lock->StillHolds());
    EXPECT_FALSE(files.FileExists(At("contest/Log.txt")));
    EXPECT_NE(files.Lock(At("contest")), nullptr);
}

TEST_P(FilesContract, LeftoversOfAKilledRunGoAndNothingElse) {
    const std::vector<std::string> strangers{
        "Log.txt",          ".Log.txt",          ".vimrc.backup",       ".Log.txt.a1B2c3",        "a.tallyhut-a1B2c3",
        ".tallyhut-a1B2c3", ".a.tallyhut-a1B2c", ".a.tallyhut-a1B2c34", ".a.tallyhut-a1B2c3.log", ".a.tallyhut-a1B2c_",
    };
    for (const std::string& name : strangers) {
        files.Write(At(name), "stays");
    }
    files.MakeFolder(At("below"));
    files.Write(At("below/.Log.txt.tallyhut-a1B2c3"), "stays");
    files.Write(At(".Log.txt.tallyhut-a1B2c3"), "half a lo");
    files.Write(At(".attempt.tallyhut-000000"), "");
    files.RemoveLeftovers(twin.folder);
    EXPECT_FALSE(files.FileExists(At(".Log.txt.tallyhut-a1B2c3")));
    EXPECT_FALSE(files.FileExists(At(".attempt.tallyhut-000000")));
    for (const std::string& name : strangers) {
        EXPECT_TRUE(files.FileExists(At(name))) << name;
    }
    EXPECT_TRUE(files.FileExists(At("below/.Log.txt.tallyhut-a1B2c3")));
    files.RemoveLeftovers(At("none"));
}

TEST_P(FilesContract, FilesOfAFolderAreNamedInOrderAndNothingElse) {
    files.MakeFolder(At("BACKUP"));
    EXPECT_EQ(files.FilesIn(At("BACKUP")), std::vector<std::string>{});
    for (const char* name : {"BACKUP/b.log", "BACKUP/a.log", "BACKUP/.hidden", "Log.txt"}) {
        files.Write(At(name), "text");
    }
    files.MakeFolder(At("BACKUP/below"));
    files.Write(At("BACKUP/below/c.log"), "text");
    EXPECT_EQ(files.FilesIn(At("BACKUP")),
              (std::vector<std::string>{At("BACKUP/.hidden"), At("BACKUP/a.log"), At("BACKUP/b.log")}));
}

TEST_P(FilesContract, FolderThatIsNotThereHasNoFiles) {
    EXPECT_EQ(files.FilesIn(At("none")), std::vector<std::string>{});
    files.Write(log, "text");
    EXPECT_EQ(files.FilesIn(log), std::vector<std::string>{});
}

TEST_P(FilesContract, WhatIsNoRegularFileIsNotNamed) {
    for (const std::string& place : GetParam().makeIrregular(twin)) {
        const std::vector<std::string> named = files.FilesIn(twin.folder);
        EXPECT_EQ(std::ranges::count(named, place), 0) << place;
    }
}

TEST_P(FilesContract, NothingStandsBelowAFile) {
    files.Replace(log, "log");
    EXPECT_FALSE(files.FileExists(log + "/below"));
    EXPECT_FALSE(files.FolderExists(log + "/below"));
    EXPECT_EQ(files.Mark(log + "/below"), std::nullopt);
    EXPECT_FALSE(files.IsSameFile(log, log + "/below"));
}

TEST_P(FilesContract, PlaceThatCannotBeLookedAtIsAFailureAndNoMissingFile) {
    const std::string place = At("closed/Log.txt");
    GetParam().closeFolder(twin, At("closed"));
    const std::vector<std::function<void()>> looks{
        [&] { files.FileExists(place); },      [&] { files.FolderExists(place); },    [&] { files.Mark(place); },
        [&] { files.IsSameFile(log, place); }, [&] { files.IsSameFile(place, log); }, [&] { files.Read(place); },
        [&] { files.Append(place, "A"); },     [&] { files.Replace(place, "A"); },    [&] { files.Write(place, "A"); },
    };
    for (std::size_t n = 0; n < looks.size(); ++n) {
        EXPECT_EQ(InUnprivilegedChild([&] { return FailureOf(looks[n]); }), place + ": Permission denied") << n;
    }
}

TEST_P(FilesContract, WhatIsNoRegularFileIsRefusedAtOnce) {
    const std::string reason = ": Not a regular file";
    files.Replace(log, "log");
    for (const std::string& place : GetParam().makeIrregular(twin)) {
        const std::vector<std::function<void()>> operations{
            [&] { files.Read(place); },
            [&] { files.Append(place, "A"); },
            [&] { files.Append(place, "A", files.Mark(place)); },
            [&] { files.Replace(place, "A"); },
            [&] { files.Write(place, "A"); },
            [&] { files.Copy(place, log); },
            [&] { files.Copy(log, place); },
        };
        for (std::size_t n = 0; n < operations.size(); ++n) {
            EXPECT_EQ(InChild([&] {
                          alarm(10);  // ends the child that waits for the other end of a pipe
                          return FailureOf(operations[n]);
                      }),
                      place + reason)
                << n;
        }
        EXPECT_TRUE(files.FileExists(place));
        EXPECT_FALSE(files.FolderExists(place));
    }
    EXPECT_EQ(files.Read(log), "log");
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
