// Every call of the system that an operation on files makes fails once, with each error: what is on the disk is then
// what the operation says.

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>

#include "platform/real/ini_settings.h"
#include "platform/real/posix_files.h"
#include "tests/faults/fault_state.h"
#include "tests/platform/temporary_folder.h"

namespace tallyhut {
namespace {

namespace fs = std::filesystem;

/// What an operation came to.
enum class Outcome { Done, Failed, Unconfirmed };

std::string ContentOf(const std::string& path) {
    std::ostringstream content;
    content << std::ifstream{path, std::ios::binary}.rdbuf();
    return fs::is_regular_file(path) ? content.str() : "(none)";
}

/// One run of an operation in a folder of its own, of whose calls one may fail.
struct FaultyRun {
    TemporaryFolder folder;
    PosixFiles files;
    FaultState faults;
    std::string log = folder.At("Log.txt");

    Outcome Run(const std::function<void(FaultyRun&)>& operation, std::uint64_t failAt, int error) {
        std::strncpy(faults.folder, folder.Path().c_str(), FaultState::kLongest - 1);
        faults.failAt = failAt;
        faults.error = error;
        UseFaults(&faults);
        Outcome outcome = Outcome::Done;
        try {
            operation(*this);
        } catch (const UnconfirmedError&) {
            outcome = Outcome::Unconfirmed;
        } catch (const PlatformError&) {
            outcome = Outcome::Failed;
        }
        UseFaults(nullptr);
        return outcome;
    }

    std::string Failure() const {
        return std::string{faults.call} + ' ' + faults.path + ": " + std::strerror(faults.error);
    }

    std::size_t Entries() const {
        return static_cast<std::size_t>(std::distance(fs::recursive_directory_iterator(folder.Path()), {}));
    }
};

struct Case {
    const char* name;
    std::function<void(FaultyRun&)> prepare;
    std::function<void(FaultyRun&)> operation;
    std::string before;  ///< of Log.txt
    std::string after;
};

void PrintTo(const Case& tried, std::ostream* out) {
    *out << tried.name;
}

struct FilesFaults : testing::TestWithParam<Case> {};

TEST_P(FilesFaults, WhateverFailsTheDiskHoldsWhatIsSaid) {
    const Case& tried = GetParam();
    FaultyRun whole;
    tried.prepare(whole);
    ASSERT_EQ(whole.Run(tried.operation, 0, 0), Outcome::Done);
    ASSERT_EQ(ContentOf(whole.log), tried.after);
    const std::uint64_t calls = whole.faults.calls;
    ASSERT_GT(calls, 0U);
    for (std::uint64_t failAt = 1; failAt <= calls; ++failAt) {
        for (const int error : {EIO, ENOSPC, EACCES}) {
            FaultyRun run;
            tried.prepare(run);
            const std::size_t entries = run.Entries();
            const Outcome outcome = run.Run(tried.operation, failAt, error);
            ASSERT_TRUE(run.faults.hasFailed);
            EXPECT_EQ(ContentOf(run.log), outcome == Outcome::Failed ? tried.before : tried.after) << run.Failure();
            run.files.RemoveLeftovers(run.folder.Path());  // one stays where it is its removal that failed
            const std::size_t made = outcome != Outcome::Failed && tried.before == "(none)" ? 1 : 0;
            EXPECT_EQ(run.Entries(), entries + made) << run.Failure();
        }
    }
}

void NoFile(FaultyRun& /*run*/) {}

void OldFile(FaultyRun& run) {
    std::ofstream{run.log} << "old\r\n";
}

void OldFileBehindALink(FaultyRun& run) {
    std::ofstream{run.folder.At("elsewhere.txt")} << "old\r\n";
    fs::create_symlink("elsewhere.txt", run.log);
}

INSTANTIATE_TEST_SUITE_P(
    Operations, FilesFaults,
    testing::Values(
        Case{"Append", OldFile, [](FaultyRun& run) { run.files.Append(run.log, "new\r\n"); }, "old\r\n",
             "old\r\nnew\r\n"},
        Case{"AppendToANewFile", NoFile, [](FaultyRun& run) { run.files.Append(run.log, "new\r\n"); }, "(none)",
             "new\r\n"},
        Case{"AppendToTheExpectedFile", OldFile,
             [](FaultyRun& run) { run.files.Append(run.log, "new\r\n", run.files.Mark(run.log)); }, "old\r\n",
             "old\r\nnew\r\n"},
        Case{"AppendToAnExpectedNewFile", NoFile,
             [](FaultyRun& run) { run.files.Append(run.log, "new\r\n", run.files.Mark(run.log)); }, "(none)",
             "new\r\n"},
        Case{"Replace", OldFile, [](FaultyRun& run) { run.files.Replace(run.log, "new\r\n"); }, "old\r\n", "new\r\n"},
        Case{"ReplaceWithANewFile", NoFile, [](FaultyRun& run) { run.files.Replace(run.log, "new\r\n"); }, "(none)",
             "new\r\n"},
        Case{"ReplaceBehindALink", OldFileBehindALink, [](FaultyRun& run) { run.files.Replace(run.log, "new\r\n"); },
             "old\r\n", "new\r\n"},
        Case{"Copy",
             [](FaultyRun& run) {
                 OldFile(run);
                 std::ofstream{run.folder.At("archive.log")} << "new\r\n";
             },
             [](FaultyRun& run) { run.files.Copy(run.folder.At("archive.log"), run.log); }, "old\r\n", "new\r\n"},
        Case{"CheckWritable", OldFile, [](FaultyRun& run) { run.files.CheckWritable(run.folder.Path()); }, "old\r\n",
             "old\r\n"},
        Case{"Look", OldFile,
             [](FaultyRun& run) {
                 EXPECT_TRUE(run.files.FileExists(run.log));
                 EXPECT_FALSE(run.files.FolderExists(run.log));
                 EXPECT_EQ(run.files.Read(run.log), "old\r\n");
             },
             "old\r\n", "old\r\n"},
        Case{"Lock", OldFile, [](FaultyRun& run) { EXPECT_TRUE(run.files.Lock(run.folder.Path())->StillHolds()); },
             "old\r\n", "old\r\n"}),
    [](const auto& tried) { return tried.param.name; });

TEST(RemoveFaults, AFileIsGoneOrItsFailureIsThrown) {
    const auto prepare = [](FaultyRun& run) { std::ofstream{run.log} << "old\r\n"; };
    const auto remove = [](FaultyRun& run) { run.files.Remove(run.log); };
    FaultyRun whole;
    prepare(whole);
    whole.Run(remove, 0, 0);
    EXPECT_EQ(whole.Entries(), 0U);
    for (std::uint64_t failAt = 1; failAt <= whole.faults.calls; ++failAt) {
        FaultyRun run;
        prepare(run);
        EXPECT_EQ(run.Run(remove, failAt, EIO), Outcome::Threw) << run.Failure();
        EXPECT_EQ(run.Entries(), 1U) << run.Failure();
    }
}

TEST(LeftoverFaults, WhatCannotBeLookedThroughStaysWithoutAFailure) {
    const auto prepare = [](FaultyRun& run) { std::ofstream{run.folder.At(".Log.txt.tallyhut-a1B2c3")} << "half"; };
    const auto remove = [](FaultyRun& run) { run.files.RemoveLeftovers(run.folder.Path()); };
    FaultyRun whole;
    prepare(whole);
    whole.Run(remove, 0, 0);
    EXPECT_EQ(whole.Entries(), 0U);
    for (std::uint64_t failAt = 1; failAt <= whole.faults.calls; ++failAt) {
        FaultyRun run;
        prepare(run);
        EXPECT_EQ(run.Run(remove, failAt, EIO), Outcome::Done) << run.Failure();
        EXPECT_EQ(run.Entries(), 1U) << run.Failure();
    }
}

TEST(SettingsFaults, AValueIsStoredOrItsFailureIsThrown) {
    const auto prepare = [](FaultyRun& run) {
        fs::create_directories(run.folder.At("Q7ZZQ_Software"));
        std::ofstream{run.folder.At("Q7ZZQ_Software/tallyhut.ini")} << "[Settings]\nLeft=1200\nTop=300\n";
    };
    const auto set = [](FaultyRun& run) {
        IniSettings settings{run.files};
        settings.path = run.folder.At("Q7ZZQ_Software/tallyhut.ini");
        settings.Set("Settings", "Left", "1500");
    };
    FaultyRun whole;
    prepare(whole);
    ASSERT_EQ(whole.Run(set, 0, 0), Outcome::Done);
    for (std::uint64_t failAt = 1; failAt <= whole.faults.calls; ++failAt) {
        for (const int error : {EIO, ENOSPC, EACCES}) {
            FaultyRun run;
            prepare(run);
            const Outcome outcome = run.Run(set, failAt, error);
            const std::string left = outcome == Outcome::Failed ? "1200" : "1500";
            EXPECT_EQ(ContentOf(run.folder.At("Q7ZZQ_Software/tallyhut.ini")),
                      "[Settings]\nLeft=" + left + "\nTop=300\n")
                << run.Failure();
        }
    }
}

}  // namespace
}  // namespace tallyhut
