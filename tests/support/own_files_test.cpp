#include "support/own_files.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/real/posix_files.h"
#include "platform/sim/files.h"
#include "tests/platform/temporary_folder.h"

namespace tallyhut {
namespace {

std::string RefusalOf(const Files& files, const Directories& directories, const std::string& path) {
    try {
        RefuseOwnFile(files, directories, path);
    } catch (const PlatformError& failure) {
        return failure.what();
    }
    return "";
}

TEST(OwnFiles, WhatTheContestLivesByIsRefusedByName) {
    sim::Files files;
    const Directories directories{.WorkingDirectory = "/contest", .DataDirectory = {}, .SharedDirectory = {}};
    for (const std::string name : {"Log.txt", "nspref.txt", "nsonoff.txt", "Sections.txt"}) {
        files.Put("/contest/" + name, "");
        for (const std::string& path : {"/contest/" + name, name, "../contest/./" + name}) {
            EXPECT_EQ(RefusalOf(files, directories, path),
                      path + ": This is the contest's own " + name + ". Choose another name.");
        }
    }
}

TEST(OwnFiles, AnyOtherNameIsTakenAlsoInTheContestsFolder) {
    sim::Files files;
    const Directories directories{.WorkingDirectory = "/contest", .DataDirectory = {}, .SharedDirectory = {}};
    files.Put("/contest/Log.txt", "");
    files.Put("/elsewhere/Log.txt", "");
    for (const char* path : {"/contest/mine.log", "/elsewhere/Log.txt", "/contest/nsonoff.txt"}) {
        EXPECT_EQ(RefusalOf(files, directories, path), "") << path;
    }
}

TEST(OwnFiles, LinksToThemAreRefused) {
    const TemporaryFolder folder;
    PosixFiles files;
    const Directories directories{.WorkingDirectory = folder.Path(), .DataDirectory = {}, .SharedDirectory = {}};
    const std::string log = folder.Path() + "/Log.txt";
    files.Write(log, "");
    const std::string soft = folder.Path() + "/soft.log";
    const std::string hard = folder.Path() + "/hard.log";
    std::filesystem::create_symlink(log, soft);
    std::filesystem::create_hard_link(log, hard);
    for (const std::string& path : {soft, hard}) {
        EXPECT_EQ(RefusalOf(files, directories, path),
                  path + ": This is the contest's own Log.txt. Choose another name.");
    }
}

}  // namespace
}  // namespace tallyhut
