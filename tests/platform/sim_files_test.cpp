#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "platform/sim/files.h"
#include "tests/platform/failure_of.h"

namespace tallyhut {
namespace {

struct SimFiles : testing::Test {
    sim::Files files;
};

TEST_F(SimFiles, NthChangeFromNowFailsAndLeavesAllAsItWas) {
    files.Put("/contest/Log.txt", "A");
    files.Append("/contest/other", "B\r\n");
    files.FailAt(2, "No space left on device");
    files.Append("/contest/other", "C\r\n");
    EXPECT_EQ(FailureOf([&] { files.Append("Log.txt", "D\r\n"); }), "Log.txt: No space left on device");
    EXPECT_EQ(files.Read("/contest/Log.txt"), "A");
    files.Append("Log.txt", "D\r\n");
    EXPECT_EQ(files.Read("/contest/Log.txt"), "A\r\nD\r\n");
    EXPECT_EQ(files.Operations(), 4);
}

TEST_F(SimFiles, EveryKindOfChangeCanFail) {
    files.Put("/contest/Log.txt", "A");
    for (int nth = 1; nth <= 4; ++nth) {
        files.FailAt(nth, "Input/output error");
    }
    const std::string reason = ": Input/output error";
    EXPECT_EQ(FailureOf([&] { files.Append("new", "A"); }), "new" + reason);
    EXPECT_EQ(FailureOf([&] { files.Replace("Log.txt", "B"); }), "Log.txt" + reason);
    EXPECT_EQ(FailureOf([&] { files.Copy("Log.txt", "copy"); }), "copy" + reason);
    EXPECT_EQ(FailureOf([&] { files.MakeFolder("folder"); }), "folder" + reason);
    EXPECT_EQ(files.contents, (std::map<std::string, std::string>{{"/contest/Log.txt", "A"}}));
    EXPECT_FALSE(files.FolderExists("folder"));
    EXPECT_TRUE(files.appends.empty());
}

TEST_F(SimFiles, FailedWriteLeavesTheFirstHalf) {
    files.Put("/contest/report.txt", "an old report");
    files.FailAt(1, "No space left on device");
    EXPECT_EQ(FailureOf([&] { files.Write("report.txt", "12345678"); }), "report.txt: No space left on device");
    EXPECT_EQ(files.Read("report.txt"), "1234");
}

TEST_F(SimFiles, ChangeThatFailsBehindItsWorkHasDoneIt) {
    files.FailBehind(1, "Input/output error");
    files.FailBehind(2, "Input/output error");
    const std::string reason = ": It was written, but the disk has not confirmed that it keeps it: Input/output error";
    EXPECT_EQ(FailureOf([&] { files.Replace("Log.txt", "A\r\n"); }), "Log.txt" + reason);
    EXPECT_THROW(files.Append("Log.txt", "B\r\n"), UnconfirmedError);
    EXPECT_EQ(files.Read("Log.txt"), "A\r\nB\r\n");
    files.Append("Log.txt", "C\r\n");
    EXPECT_EQ(files.Read("Log.txt"), "A\r\nB\r\nC\r\n");
}

TEST_F(SimFiles, FileThatATestPutsThereIsAnotherOne) {
    const FileMark mark = files.Replace("Log.txt", "A");
    files.Put("/contest/Log.txt", "A");
    EXPECT_NE(files.Mark("Log.txt"), mark);
}

TEST_F(SimFiles, ReadingAndLookingAreNoChange) {
    files.Put("/contest/Log.txt", "A");
    files.FailAt(1, "Input/output error");
    EXPECT_EQ(files.Read("Log.txt"), "A");
    EXPECT_TRUE(files.FileExists("Log.txt"));
    files.CheckWritable("/contest");
    const auto lock = files.Lock("/contest");
    EXPECT_EQ(files.Operations(), 0);
}

TEST_F(SimFiles, NothingChangesInAReadOnlyFolder) {
    const std::string reason = ": Read-only file system";
    files.Put("/contest/Log.txt", "A");
    files.readOnlyFolders.insert("/contest");
    EXPECT_EQ(FailureOf([&] { files.CheckWritable("/contest"); }), "/contest" + reason);
    EXPECT_EQ(FailureOf([&] { files.Append("Log.txt", "B"); }), "Log.txt" + reason);
    EXPECT_EQ(FailureOf([&] { files.Replace("new", "B"); }), "new" + reason);
    EXPECT_EQ(FailureOf([&] { files.MakeFolder("folder"); }), "folder" + reason);
    EXPECT_EQ(files.Read("Log.txt"), "A");
}

TEST_F(SimFiles, FolderHeldByAnotherProgramIsNotLocked) {
    files.lockedFolders.insert("/contest");
    EXPECT_EQ(files.Lock("/contest"), nullptr);
    files.lockedFolders.clear();
    EXPECT_NE(files.Lock("/contest"), nullptr);
}

TEST_F(SimFiles, LockMayOutliveTheFiles) {
    auto shortLived = std::make_unique<sim::Files>();
    const auto lock = shortLived->Lock("/contest");
    shortLived.reset();
    EXPECT_NE(lock, nullptr);
}

TEST_F(SimFiles, AppendsAreKeptInOrderAsTheyWereHandedOver) {
    files.Put("/contest/Log.txt", "A");
    files.Append("Log.txt", "B\r\n");
    files.Append("/contest/./x/../Wave.txt", "C\r\n");
    ASSERT_EQ(files.appends.size(), 2U);
    EXPECT_EQ(files.appends[0].path, "/contest/Log.txt");
    EXPECT_EQ(files.appends[0].record, "B\r\n");
    EXPECT_EQ(files.appends[1].path, "/contest/Wave.txt");
    EXPECT_EQ(files.appends[1].record, "C\r\n");
}

TEST_F(SimFiles, RelativePathsBeginInTheCurrentFolder) {
    files.SetCurrentFolder("/home/operator/log");
    EXPECT_EQ(files.CurrentFolder(), "/home/operator/log");
    files.Append("Log.txt", "A\r\n");
    EXPECT_EQ(files.Read("/home/operator/log/Log.txt"), "A\r\n");
    EXPECT_EQ(files.Read("../log/Log.txt"), "A\r\n");
    EXPECT_TRUE(files.FolderExists("/home/operator"));
    EXPECT_TRUE(files.FolderExists("."));
    EXPECT_TRUE(files.FolderExists("/"));
}

TEST_F(SimFiles, FilesThatArePutThereHaveTheirFolders) {
    files.Put("/a/b/c.txt", "C");
    EXPECT_TRUE(files.FolderExists("/a/b"));
    EXPECT_EQ(files.Read("/a/b/c.txt"), "C");
}

}  // namespace
}  // namespace tallyhut
