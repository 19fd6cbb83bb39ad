#include "log/log_file.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "platform/platform_error.h"
#include "platform/sim/files.h"

namespace tallyhut {
namespace {

constexpr const char* kPath = "/contest/Log.txt";

static_assert(!std::is_base_of_v<PlatformError, LogWriteError>, "who handles failures of files must not take this one");

struct LogFileTest : testing::Test {
    sim::Files files;
    Directories directories{.WorkingDirectory = "/contest", .DataDirectory = {}, .SharedDirectory = {}};
    LogFile file{files, directories};
    Contact contact{.Ns = "137",
                    .Nr = "88",
                    .P = "A",
                    .Call = "W1XX",
                    .Ck = "72",
                    .Sec = "MDC",
                    .Date = "2026/11/07",
                    .Time = "21:04:33",
                    .Bnd = "40",
                    .Frq = ""};
    const std::string line = R"("137","88","A","W1XX","72","MDC","2026/11/07","21:04:33","40","")"
                             "\r\n";
};

template <typename Step>
std::string LogWriteErrorOf(Step step) {
    try {
        step();
    } catch (const LogWriteError& failure) {
        return failure.what();
    }
    return "nothing failed";
}

TEST_F(LogFileTest, StandsInTheWorkingDirectoryUnderItsOneSpelling) {
    EXPECT_EQ(file.Path(), kPath);
}

TEST_F(LogFileTest, FirstAppendMakesTheFile) {
    EXPECT_FALSE(file.Exists());
    file.Append(contact);
    EXPECT_TRUE(file.Exists());
    EXPECT_EQ(file.Read(), line);
}

TEST_F(LogFileTest, AppendIsOneOperationOfOneWholeRecord) {
    files.Put(kPath, line);
    file.Open();
    file.Append(contact);
    ASSERT_EQ(files.appends.size(), 1U);
    EXPECT_EQ(files.appends[0].path, kPath);
    EXPECT_EQ(files.appends[0].record, line);
    EXPECT_EQ(files.Operations(), 1);
    EXPECT_EQ(file.Read(), line + line);
}

TEST_F(LogFileTest, RecordBeginsOnALineOfItsOwnBehindALastLineWithoutEnd) {
    files.Put(kPath, line.substr(0, line.size() - 2));
    file.Open();
    file.Append(contact);
    EXPECT_EQ(file.Read(), line + line);
}

TEST_F(LogFileTest, FailedAppendNamesFileReasonAndExchangeAndLeavesTheFile) {
    files.Put(kPath, line);
    files.FailAt(1, "No space left on device");
    EXPECT_EQ(LogWriteErrorOf([&] { file.Append(contact); }),
              "/contest/Log.txt: No space left on device\n\nThis contact was not logged: 88 A W1XX 72 MDC");
    EXPECT_EQ(file.Read(), line);
}

TEST_F(LogFileTest, AppendInAFolderThatCannotBeWrittenFails) {
    files.readOnlyFolders.insert("/contest");
    EXPECT_EQ(LogWriteErrorOf([&] { file.Append(contact); }),
              "/contest/Log.txt: Read-only file system\n\nThis contact was not logged: 88 A W1XX 72 MDC");
    EXPECT_FALSE(file.Exists());
}

TEST_F(LogFileTest, FolderOfThatNameExistsAndCanNeitherBeReadNorWritten) {
    files.AddFolder(kPath);
    EXPECT_TRUE(file.Exists());
    EXPECT_THROW(file.Read(), PlatformError);
    EXPECT_THROW(file.Append(contact), LogWriteError);
}

TEST_F(LogFileTest, MissingFileCannotBeRead) {
    EXPECT_THROW(file.Read(), PlatformError);
}

TEST_F(LogFileTest, RewriteWritesTheContactsInOrder) {
    ContactLog log;
    log.Add(contact);
    contact.Ns = "138";
    log.Add(contact);
    files.Put(kPath, "what stood there before");
    file.Open();
    file.Rewrite(log);
    EXPECT_EQ(file.Read(), line + R"("138","88","A","W1XX","72","MDC","2026/11/07","21:04:33","40","")" + "\r\n");
    EXPECT_EQ(files.Operations(), 1);
}

TEST_F(LogFileTest, RewriteOfAnEmptyLogLeavesAnEmptyFile) {
    files.Put(kPath, line);
    file.Open();
    file.Rewrite({});
    EXPECT_TRUE(file.Exists());
    EXPECT_EQ(file.Read(), "");
}

TEST_F(LogFileTest, FailedRewriteNamesFileAndReasonAndLeavesTheFile) {
    files.Put(kPath, line);
    file.Open();
    files.FailAt(1, "Input/output error");
    const std::string told = LogWriteErrorOf([&] { file.Rewrite({}); });
    EXPECT_TRUE(told.starts_with("/contest/Log.txt: Input/output error\n")) << told;
    EXPECT_EQ(file.Read(), line);
}

}  // namespace
}  // namespace tallyhut
