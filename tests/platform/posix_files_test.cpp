#include "platform/real/posix_files.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <set>
#include <string>
#include <thread>

#include "tests/platform/child_process.h"
#include "tests/platform/failure_of.h"
#include "tests/platform/temporary_folder.h"

namespace tallyhut {
namespace {

namespace fs = std::filesystem;

struct PosixFilesTest : testing::Test {
    TemporaryFolder folder;
    PosixFiles files;
    std::string log = folder.At("Log.txt");

    std::set<std::string> Names() const {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder.Path())) {
            names.insert(entry.path().filename().string());
        }
        return names;
    }
};

mode_t ModeOf(const std::string& path) {
    struct stat status {};
    EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
    return status.st_mode & 07777;
}

/// The operation's failure in a process that may make no file larger than the limit.
template <class Operation>
std::string FailureWithFileSizeLimit(rlim_t limit, Operation operation) {
    return InChild([&]() -> std::string {
        const rlimit both{limit, limit};
        return setrlimit(RLIMIT_FSIZE, &both) == 0 ? FailureOf(operation) : "no limit";
    });
}

TEST_F(PosixFilesTest, AppendBeyondTheFileSizeLimitLeavesTheFileAsItWas) {
    const std::string before(100, 'x');
    files.Replace(log, before + "\r\n");
    for (const rlim_t room : {0U, 1U, 5U}) {  // none, and some for a part of the record
        EXPECT_EQ(FailureWithFileSizeLimit(before.size() + 2 + room, [&] { files.Append(log, "\"137\",\"88\"\r\n"); }),
                  log + ": File too large");
        EXPECT_EQ(files.Read(log), before + "\r\n") << room;
    }
}

TEST_F(PosixFilesTest, LineEndIsNotAddedWhereTheRecordHasNoRoom) {
    files.Replace(log, "no line end");
    EXPECT_EQ(FailureWithFileSizeLimit(15, [&] { files.Append(log, "\"137\",\"88\"\r\n"); }), log + ": File too large");
    EXPECT_EQ(files.Read(log), "no line end");
}

TEST_F(PosixFilesTest, FailedFirstAppendLeavesNoFile) {
    EXPECT_EQ(FailureWithFileSizeLimit(3, [&] { files.Append(log, "\"137\",\"88\"\r\n"); }), log + ": File too large");
    EXPECT_EQ(Names(), std::set<std::string>{});
}

TEST_F(PosixFilesTest, FailedFirstAppendThroughALinkLeavesTheLinkAndNoFile) {
    fs::create_symlink("elsewhere.txt", log);
    EXPECT_EQ(FailureWithFileSizeLimit(3, [&] { files.Append(log, "\"137\",\"88\"\r\n"); }), log + ": File too large");
    EXPECT_EQ(Names(), std::set<std::string>{"Log.txt"});
    EXPECT_TRUE(fs::is_symlink(log));
}

TEST_F(PosixFilesTest, ReplaceBeyondTheFileSizeLimitLeavesTheOldContentAndNoOtherFile) {
    files.Replace(log, "old");
    EXPECT_EQ(FailureWithFileSizeLimit(10, [&] { files.Replace(log, std::string(100, 'x')); }),
              log + ": File too large");
    EXPECT_EQ(files.Read(log), "old");
    EXPECT_EQ(Names(), std::set<std::string>{"Log.txt"});
}

TEST_F(PosixFilesTest, WriteBeyondTheFileSizeLimitLeavesWhatWasWritten) {
    files.Replace(log, "a long first content");
    EXPECT_EQ(FailureWithFileSizeLimit(10, [&] { files.Write(log, std::string(100, 'x')); }), log + ": File too large");
    EXPECT_EQ(files.Read(log), std::string(10, 'x'));
}

TEST_F(PosixFilesTest, LinkLeadsToTheSameFile) {
    files.Replace(log, "A");
    fs::create_symlink(log, folder.At("link.txt"));
    fs::create_directory_symlink(folder.Path(), folder.At("here"));
    EXPECT_TRUE(files.IsSameFile(log, folder.At("link.txt")));
    EXPECT_TRUE(files.IsSameFile(folder.At("here/Log.txt"), log));
}

TEST_F(PosixFilesTest, DeviceIsNotReplacedByAFile) {
    fs::create_symlink("/dev/full", log);
    EXPECT_EQ(FailureOf([&] { files.Replace(log, "A\r\n"); }), log + ": Not a regular file");
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

TEST_F(PosixFilesTest, FolderWithoutWritePermissionIsRefused) {
    files.Replace(log, "old");
    fs::permissions(log, fs::perms{0444});
    fs::permissions(folder.Path(), fs::perms{0555});
    const std::string created = folder.At("new.txt");
    const std::string reason = ": Permission denied";
    EXPECT_EQ(InUnprivilegedChild([&] { return FailureOf([&] { files.CheckWritable(folder.Path()); }); }),
              folder.Path() + reason);
    EXPECT_EQ(InUnprivilegedChild([&] { return FailureOf([&] { files.Append(created, "A\r\n"); }); }),
              created + reason);
    EXPECT_EQ(InUnprivilegedChild([&] { return FailureOf([&] { files.Replace(created, "A\r\n"); }); }),
              created + reason);
    EXPECT_EQ(InUnprivilegedChild([&] { return FailureOf([&] { files.MakeFolder(created); }); }), created + reason);
    fs::permissions(folder.Path(), fs::perms{0755});
    EXPECT_EQ(Names(), std::set<std::string>{"Log.txt"});
}

TEST_F(PosixFilesTest, FileWithoutWritePermissionIsNeitherAppendedToNorReplaced) {
    files.Replace(log, "old");
    fs::permissions(log, fs::perms{0444});
    fs::permissions(folder.Path(), fs::perms{0777});
    EXPECT_EQ(InUnprivilegedChild([&] { return FailureOf([&] { files.Append(log, "A\r\n"); }); }),
              log + ": Permission denied");
    EXPECT_EQ(InUnprivilegedChild([&] { return FailureOf([&] { files.Replace(log, "new"); }); }),
              log + ": Permission denied");
    EXPECT_EQ(files.Read(log), "old");
}

TEST_F(PosixFilesTest, ReplaceKeepsTheModeOfTheFile) {
    files.Replace(log, "old");
    fs::permissions(log, fs::perms{0640});
    files.Replace(log, "new");
    EXPECT_EQ(ModeOf(log), mode_t{0640});
}

TEST_F(PosixFilesTest, NewFilesGetTheModeThatTheUserChose) {
    const mode_t former = umask(027);
    files.Replace(folder.At("replaced"), "");
    files.Append(folder.At("appended"), "A\r\n");
    files.Copy(folder.At("appended"), folder.At("copied"));
    const mode_t afterwards = umask(former);
    for (const char* name : {"replaced", "appended", "copied"}) {
        EXPECT_EQ(ModeOf(folder.At(name)), mode_t{0640}) << name;
    }
    EXPECT_EQ(afterwards, mode_t{027});
}

TEST_F(PosixFilesTest, ThreadsThatMakeFilesAtTheSameTimeGiveThemTheUsersMode) {
    const mode_t former = umask(027);
    const auto makeFiles = [&](const std::string& name) {
        for (int n = 0; n < 200; ++n) {
            files.Replace(folder.At(name + std::to_string(n)), "");
        }
    };
    std::thread other([&] { makeFiles("a"); });
    makeFiles("b");
    other.join();
    umask(former);
    for (const std::string& name : Names()) {
        EXPECT_EQ(ModeOf(folder.At(name)), mode_t{0640}) << name;
    }
}

TEST_F(PosixFilesTest, LinkStaysALinkAndItsFileIsReplaced) {
    fs::create_directory(folder.At("elsewhere"));
    files.Replace(folder.At("elsewhere/Log.txt"), "old");
    fs::create_symlink("elsewhere/Log.txt", log);
    files.Replace(log, "new");
    EXPECT_TRUE(fs::is_symlink(log));
    EXPECT_EQ(files.Read(folder.At("elsewhere/Log.txt")), "new");
    files.Append(log, "A\r\n");
    EXPECT_EQ(files.Read(folder.At("elsewhere/Log.txt")), "new\r\nA\r\n");
}

TEST_F(PosixFilesTest, LinksToAFileThatIsNotThereYetAreFollowed) {
    fs::create_directory(folder.At("elsewhere"));
    fs::create_symlink("elsewhere/second", folder.At("first"));
    fs::create_symlink(folder.At("elsewhere/Log.txt"), folder.At("elsewhere/second"));
    files.Replace(folder.At("first"), "new");
    EXPECT_TRUE(fs::is_symlink(folder.At("first")));
    EXPECT_TRUE(fs::is_symlink(folder.At("elsewhere/second")));
    EXPECT_EQ(files.Read(folder.At("elsewhere/Log.txt")), "new");
}

TEST_F(PosixFilesTest, LinksInACircleAreTold) {
    fs::create_symlink("Log.txt", log);
    const std::string failure = log + ": Too many levels of symbolic links";
    EXPECT_EQ(FailureOf([&] { files.Replace(log, "new"); }), failure);
    EXPECT_EQ(FailureOf([&] { files.Append(log, "A\r\n"); }), failure);
    EXPECT_TRUE(fs::is_symlink(log));
}

TEST_F(PosixFilesTest, FileIsNotCopiedOntoItselfByAnotherName) {
    files.Replace(log, "log");
    fs::create_hard_link(log, folder.At("other"));
    EXPECT_EQ(FailureOf([&] { files.Copy(log, folder.At("other")); }),
              folder.At("other") + ": Source and target are the same file");
    EXPECT_EQ(files.Read(log), "log");
}

TEST_F(PosixFilesTest, NamesMayBeAsLongAsTheFileSystemTakes) {
    const std::string longest = folder.At(std::string(255, 'x'));
    files.Replace(longest, "content");
    EXPECT_EQ(files.Read(longest), "content");
    const std::string tooLong = folder.At(std::string(256, 'x'));
    EXPECT_EQ(FailureOf([&] { files.Replace(tooLong, "content"); }), tooLong + ": File name too long");
    EXPECT_EQ(Names(), std::set<std::string>{std::string(255, 'x')});
}

TEST_F(PosixFilesTest, NamesAreBytesAsTheyStand) {
    const std::string path = folder.At("Jos\xE9 \xF0\n\"x\".txt");
    files.Append(path, "A\r\n");
    files.Replace(path, files.Read(path) + "B\r\n");
    EXPECT_EQ(files.Read(path), "A\r\nB\r\n");
    EXPECT_EQ(Names(), std::set<std::string>{"Jos\xE9 \xF0\n\"x\".txt"});
}

TEST_F(PosixFilesTest, NothingButTheFilesStaysInTheFolder) {
    files.Append(log, "A\r\n");
    files.Replace(log, "B\r\n");
    files.Copy(log, folder.At("Backup.txt"));
    files.CheckWritable(folder.Path());
    const auto lock = files.Lock(folder.Path());
    EXPECT_EQ(Names(), (std::set<std::string>{"Log.txt", "Backup.txt"}));
}

TEST_F(PosixFilesTest, ReaderSeesTheOldContentOrTheNewOneAndNeverAPart) {
    const std::string shorter(5'000, 'a');
    const std::string longer(90'000, 'b');
    files.Replace(log, shorter);
    ChildProcess reader([&]() -> std::string {
        for (int times = 0; times < 300; ++times) {
            const std::string content = files.Read(log);
            if (content != shorter && content != longer) {
                return "a part of " + std::to_string(content.size()) + " bytes";
            }
        }
        return "whole";
    });
    for (int times = 0; reader.IsRunning() && times < 3'000; ++times) {
        files.Replace(log, times % 2 == 0 ? longer : shorter);
    }
    EXPECT_EQ(reader.Text(), "whole");
}

TEST_F(PosixFilesTest, WhatAnotherProgramIsWritingIsNoLeftover) {
    const std::string written = folder.At(".Log.txt.tallyhut-a1B2c3");
    ChildProcess writer(
        [&]() -> std::string {
            const int file = open(written.c_str(), O_RDWR | O_CREAT, 0600);
            return flock(file, LOCK_EX | LOCK_NB) == 0 ? "writes" : "cannot lock";
        },
        true);
    EXPECT_EQ(writer.Text(), "writes");
    files.RemoveLeftovers(folder.Path());
    EXPECT_TRUE(fs::exists(written));
    writer.Kill();
    files.RemoveLeftovers(folder.Path());
    EXPECT_FALSE(fs::exists(written));
}

TEST_F(PosixFilesTest, LinksAndFoldersWithTheNameOfALeftoverStay) {
    files.Replace(log, "log");
    fs::create_symlink("Log.txt", folder.At(".a.tallyhut-a1B2c3"));
    fs::create_directory(folder.At(".b.tallyhut-a1B2c3"));
    ASSERT_EQ(mkfifo(folder.At(".c.tallyhut-a1B2c3").c_str(), 0600), 0);
    files.RemoveLeftovers(folder.Path());
    EXPECT_EQ(Names().size(), 4U);
    EXPECT_EQ(files.Read(log), "log");
}

TEST_F(PosixFilesTest, FileOfAnotherUserIsNoLeftover) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only the superuser can be two users";
    }
    files.Replace(folder.At(".Log.txt.tallyhut-a1B2c3"), "");
    fs::permissions(folder.Path(), fs::perms{0777});
    InUnprivilegedChild([&]() -> std::string {
        files.RemoveLeftovers(folder.Path());
        return "";
    });
    EXPECT_EQ(Names().size(), 1U);
}

TEST_F(PosixFilesTest, RunThatIsKilledWhileItReplacesLeavesWhatTheNextOneRemoves) {
    files.Replace(log, "old");
    const std::string content(20'000'000, 'x');
    bool leftOne = false;
    for (int times = 0; times < 50 && !leftOne; ++times) {
        ChildProcess writer([&]() -> std::string {
            for (;;) {
                files.Replace(log, content);
            }
        });
        while (Names().size() == 1) {
        }
        writer.Kill();
        leftOne = Names().size() > 1;
        files.RemoveLeftovers(folder.Path());
        EXPECT_EQ(Names(), std::set<std::string>{"Log.txt"});
    }
    EXPECT_TRUE(leftOne);
}

TEST_F(PosixFilesTest, FolderIsLockedForOtherProcesses) {
    const auto lock = files.Lock(folder.Path());
    ASSERT_NE(lock, nullptr);
    EXPECT_EQ(InChild([&] { return files.Lock(folder.Path()) == nullptr ? "locked" : "free"; }), "locked");
}

TEST_F(PosixFilesTest, LockOfAKilledProcessIsGone) {
    std::unique_ptr<Files::FolderLock> theirs;
    ChildProcess holder(
        [&] {
            theirs = files.Lock(folder.Path());
            return theirs != nullptr ? "holds it" : "was refused";
        },
        true);
    EXPECT_EQ(holder.Text(), "holds it");
    EXPECT_EQ(files.Lock(folder.Path()), nullptr);
    holder.Kill();
    EXPECT_NE(files.Lock(folder.Path()), nullptr);
}

TEST_F(PosixFilesTest, CurrentFolderIsTheProcessesOwn) {
    EXPECT_EQ(InChild([&] { return chdir(folder.Path().c_str()) == 0 ? files.CurrentFolder() : ""; }), folder.Path());
}

TEST_F(PosixFilesTest, RelativePathsBeginInTheCurrentFolder) {
    EXPECT_EQ(InChild([&]() -> std::string {
                  if (chdir(folder.Path().c_str()) != 0) {
                      return "";
                  }
                  files.Append("Log.txt", "A\r\n");
                  files.Replace("Log.txt", files.Read("Log.txt") + "B\r\n");
                  return files.Read("Log.txt");
              }),
              "A\r\nB\r\n");
    EXPECT_EQ(files.Read(log), "A\r\nB\r\n");
}

}  // namespace
}  // namespace tallyhut
