#include "support/fresh_installation.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "platform/platform_error.h"
#include "platform/real/posix_files.h"
#include "platform/sim/files.h"
#include "tests/platform/failure_of.h"
#include "tests/platform/temporary_folder.h"

namespace tallyhut {
namespace {

constexpr const char* kDataFolder = "/usr/share/tallyhut";
constexpr const char* kFirstPreferences = "\"\"\r\n0\r\n";

struct FreshInstallationTest : testing::Test {
    FreshInstallationTest() {
        for (const std::string name : {"wave2.txt", "BandPlan.txt", "readns.txt"}) {
            files.Put(kDataFolder + ("/" + name), "the data file " + name);
        }
    }

    void Make() { MakeFreshInstallation(files, directories, kDataFolder, kFirstPreferences); }
    bool IsFresh() const { return IsFreshInstallation(files, directories); }
    std::string Content(const std::string& name) const { return files.Read(WorkingFile(directories, name)); }
    std::set<std::string> Names() const {
        std::set<std::string> names;
        for (const auto& [path, content] : files.contents) {
            if (path.starts_with("/contest/")) {
                names.insert(path.substr(sizeof "/contest/" - 1));
            }
        }
        return names;
    }

    sim::Files files;
    Directories directories{.WorkingDirectory = "/contest", .DataDirectory = {}, .SharedDirectory = {}};
};

TEST_F(FreshInstallationTest, AnEmptyFolderGetsAllFilesAndAnEmptyLog) {
    EXPECT_TRUE(IsFresh());
    Make();
    EXPECT_FALSE(IsFresh());
    EXPECT_EQ(Names(), (std::set<std::string>{"BandPlan.txt", "Log.txt", "nspref.txt", "readns.txt", "wave2.txt"}));
    EXPECT_EQ(Content("Log.txt"), "");
    EXPECT_EQ(Content("wave2.txt"), "the data file wave2.txt");
    EXPECT_EQ(Content("BandPlan.txt"), "the data file BandPlan.txt");
    EXPECT_EQ(Content("readns.txt"), "the data file readns.txt");
    EXPECT_EQ(Content("nspref.txt"), kFirstPreferences);
}

TEST_F(FreshInstallationTest, PreferencesAloneMakeAFolderKnown) {
    files.Put("/contest/Log.txt", "");
    EXPECT_TRUE(IsFresh());
    files.Put("/contest/nspref.txt", "");
    EXPECT_FALSE(IsFresh());
}

TEST_F(FreshInstallationTest, WhatIsThereStays) {
    for (const std::string name : {"wave2.txt", "BandPlan.txt", "readns.txt", "Log.txt"}) {
        files.Put("/contest/" + name, "the operator's own");
    }
    Make();
    for (const std::string name : {"wave2.txt", "BandPlan.txt", "readns.txt", "Log.txt"}) {
        EXPECT_EQ(Content(name), "the operator's own") << name;
    }
    EXPECT_EQ(files.Operations(), 1);
    EXPECT_FALSE(IsFresh());
}

TEST_F(FreshInstallationTest, AFailureAtAnyWriteLeavesTheFolderFreshForTheNextStart) {
    for (int nth = 1; nth <= 5; ++nth) {
        sim::Files blank{"/contest"};
        blank.contents = files.contents;
        blank.AddFolder(kDataFolder);
        blank.FailAt(nth, "No space left on device");
        const auto attempt = [&] { MakeFreshInstallation(blank, directories, kDataFolder, kFirstPreferences); };
        EXPECT_NE(FailureOf(attempt).find("No space left on device"), std::string::npos) << nth;
        EXPECT_TRUE(IsFreshInstallation(blank, directories)) << nth;
        attempt();
        EXPECT_FALSE(IsFreshInstallation(blank, directories)) << nth;
        EXPECT_EQ(blank.Read("/contest/readns.txt"), "the data file readns.txt") << nth;
    }
}

TEST_F(FreshInstallationTest, ALackingDataFileIsAFailureOnlyWhereItIsNeeded) {
    files.contents.erase("/usr/share/tallyhut/readns.txt");
    EXPECT_EQ(FailureOf([&] { Make(); }), "/usr/share/tallyhut/readns.txt: No such file or directory");
    EXPECT_TRUE(IsFresh());
    files.Put("/contest/readns.txt", "from elsewhere");
    Make();
    EXPECT_FALSE(IsFresh());
}

TEST_F(FreshInstallationTest, AReadOnlyFolderIsAFailure) {
    files.readOnlyFolders.insert("/contest");
    EXPECT_THROW(Make(), PlatformError);
    EXPECT_TRUE(Names().empty());
}

TEST(FreshInstallation, OnTheDiskTheProgramsDataFilesAreCopiedByteForByte) {
    const TemporaryFolder folder;
    PosixFiles files;
    const Directories directories{.WorkingDirectory = folder.Path(), .DataDirectory = {}, .SharedDirectory = {}};
    MakeFreshInstallation(files, directories, TALLYHUT_DATA_FOLDER, kFirstPreferences);
    for (const std::string name : {"wave2.txt", "BandPlan.txt", "readns.txt"}) {
        EXPECT_EQ(files.Read(folder.At(name)), files.Read(TALLYHUT_DATA_FOLDER + ("/" + name))) << name;
    }
    EXPECT_EQ(files.Read(folder.At("nspref.txt")), kFirstPreferences);
    EXPECT_EQ(files.Read(folder.At("Log.txt")), "");
}

}  // namespace
}  // namespace tallyhut
