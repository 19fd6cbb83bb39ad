#include "platform/real/desktop_environment.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "platform/real/posix_files.h"
#include "tests/platform/child_process.h"
#include "tests/platform/temporary_folder.h"

namespace tallyhut {
namespace {

struct DesktopEnvironmentTest : testing::Test {
    TemporaryFolder home;
    DesktopEnvironment environment;

    /// What the work says in a process whose user has this home and no settings of the desktop in the environment.
    std::string AtHome(const std::function<std::string()>& work) const {
        return InChild([&] {
            setenv("HOME", home.Path().c_str(), 1);
            for (const char* name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_DOCUMENTS_DIR"}) {
                unsetenv(name);
            }
            return work();
        });
    }
};

TEST_F(DesktopEnvironmentTest, VariableIsReadAndAMissingOneIsEmpty) {
    EXPECT_EQ(AtHome([&] { return environment.Variable("HOME"); }), home.Path());
    EXPECT_EQ(AtHome([&] { return environment.Variable("XDG_DATA_HOME"); }), "");
}

TEST_F(DesktopEnvironmentTest, UserDataStandsWhereTheDesktopPutsIt) {
    EXPECT_EQ(AtHome([&] { return environment.UserDataFolder(); }), home.At(".local/share"));
    EXPECT_EQ(AtHome([&] {
                  setenv("XDG_DATA_HOME", "/jos\xC3\xA9/data", 1);
                  return environment.UserDataFolder();
              }),
              "/jos\xC3\xA9/data");
}

TEST_F(DesktopEnvironmentTest, DocumentsFolderIsTheOneThatTheUserChose) {
    EXPECT_EQ(AtHome([&] { return environment.DocumentsFolder(); }), home.At("Documents"));
    PosixFiles files;
    files.MakeFolder(home.At(".config"));
    files.Replace(home.At(".config/user-dirs.dirs"), "XDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\n");
    EXPECT_EQ(AtHome([&] { return environment.DocumentsFolder(); }), home.At("Dokumente"));
}

}  // namespace
}  // namespace tallyhut
