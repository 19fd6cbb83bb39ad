#include "support/directory_rules.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "platform/path_error.h"
#include "platform/platform_error.h"
#include "platform/real/posix_files.h"
#include "platform/sim/dialogs.h"
#include "platform/sim/environment.h"
#include "platform/sim/files.h"
#include "tests/platform/temporary_folder.h"

namespace tallyhut {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kFamily = "/Family";
constexpr const char* kProgram = "/Program";

/// A machine as far as the rules know it.
struct MachineFolders {
    std::set<std::string> exist;
    std::set<std::string> cannotBeMade;
    std::set<std::string> cannotBeLookedAt;
    Texts made;
    Texts told;

    FolderAccess Access() {
        return {.Exists =
                    [this](const std::string& path) {
                        if (cannotBeLookedAt.contains(path)) {
                            throw PathError(path, "Bad name");
                        }
                        return exist.contains(path);
                    },
                .Make =
                    [this](const std::string& path) {
                        if (cannotBeMade.contains(path)) {
                            throw PathError(path, "Permission denied");
                        }
                        made.push_back(path);
                        exist.insert(path);
                    },
                .Report = [this](const std::string& title,
                                 const std::string& text) { told.push_back(title + " | " + text); }};
    }
};

struct Case {
    std::string name;
    UserFolders user;
    std::set<std::string> exist;
    std::set<std::string> cannotBeMade;
    std::set<std::string> cannotBeLookedAt;
    std::string result;
    Texts made;
    Texts told;
};

const UserFolders kProfile{.UserProfile = "/u", .AppData = "/u/app", .Documents = "/docs", .UserData = "/data"};
const UserFolders kDesktop{.UserProfile = "", .AppData = "/u/app", .Documents = "/docs", .UserData = "/h/.local/share"};

const std::vector<Case> kCases{
    {.name = "My Documents exists",
     .user = kProfile,
     .exist = {"/u/My Documents", "/u/Documents", "/docs"},
     .cannotBeMade = {},
     .cannotBeLookedAt = {},
     .result = "/u/My Documents/Family",
     .made = {"/u/My Documents/Family", "/u/My Documents/Family/Program"},
     .told = {}},
    {.name = "My Documents is made",
     .user = kProfile,
     .exist = {"/u/Documents"},
     .cannotBeMade = {},
     .cannotBeLookedAt = {},
     .result = "/u/My Documents/Family",
     .made = {"/u/My Documents", "/u/My Documents/Family", "/u/My Documents/Family/Program"},
     .told = {}},
    {.name = "My Documents cannot be made, Documents exists",
     .user = kProfile,
     .exist = {"/u/Documents"},
     .cannotBeMade = {"/u/My Documents"},
     .cannotBeLookedAt = {},
     .result = "/u/Documents/Family",
     .made = {"/u/Documents/Family", "/u/Documents/Family/Program"},
     .told = {}},
    {.name = "neither: under APPDATA, and empty folders of the same names under the profile",
     .user = kProfile,
     .exist = {"/docs"},
     .cannotBeMade = {"/u/My Documents"},
     .cannotBeLookedAt = {},
     .result = "/u/app/Family",
     .made = {"/u/Family", "/u/Family/Program", "/u/app/Family", "/u/app/Family/Program"},
     .told = {}},
    {.name = "neither, and nothing can be made",
     .user = kProfile,
     .exist = {},
     .cannotBeMade = {"/u/My Documents", "/u/Family", "/u/Family/Program", "/u/app/Family", "/u/app/Family/Program"},
     .cannotBeLookedAt = {},
     .result = "/u/app/Family",
     .made = {},
     .told = {"Unable to create directory. | /u/Family  Permission denied",
              "Unable to create directory. | /u/Family/Program  Permission denied",
              "Unable to create directory. | /u/app/Family  Permission denied",
              "Unable to create directory. | /u/app/Family/Program  Permission denied"}},
    {.name = "a failing level is told and the next one follows",
     .user = kProfile,
     .exist = {"/u/My Documents"},
     .cannotBeMade = {"/u/My Documents/Family"},
     .cannotBeLookedAt = {},
     .result = "/u/My Documents/Family",
     .made = {"/u/My Documents/Family/Program"},
     .told = {"Unable to create directory. | /u/My Documents/Family  Permission denied"}},
    {.name = "levels that exist are not made again",
     .user = kProfile,
     .exist = {"/u/My Documents", "/u/My Documents/Family", "/u/My Documents/Family/Program"},
     .cannotBeMade = {},
     .cannotBeLookedAt = {},
     .result = "/u/My Documents/Family",
     .made = {},
     .told = {}},
    {.name = "a place that cannot be looked at is told and counts as not there",
     .user = kProfile,
     .exist = {"/u/Documents"},
     .cannotBeMade = {},
     .cannotBeLookedAt = {"/u/My Documents"},
     .result = "/u/Documents/Family",
     .made = {"/u/Documents/Family", "/u/Documents/Family/Program"},
     .told = {"User Access Directory Error | /u/My Documents: Bad name",
              "User Access Directory Error | /u/My Documents: Bad name"}},
    {.name = "without a profile the desktop's documents folder",
     .user = kDesktop,
     .exist = {"/docs"},
     .cannotBeMade = {},
     .cannotBeLookedAt = {},
     .result = "/docs/Family",
     .made = {"/docs/Family", "/docs/Family/Program"},
     .told = {}},
    {.name = "without a documents folder the one for user data, and no documents folder is made",
     .user = kDesktop,
     .exist = {"/h", "/h/.local", "/h/.local/share"},
     .cannotBeMade = {},
     .cannotBeLookedAt = {},
     .result = "/h/.local/share/Family",
     .made = {"/h/.local/share/Family", "/h/.local/share/Family/Program"},
     .told = {}},
    {.name = "a new account has no folder for user data yet",
     .user = kDesktop,
     .exist = {"/h"},
     .cannotBeMade = {},
     .cannotBeLookedAt = {},
     .result = "/h/.local/share/Family",
     .made = {"/h/.local", "/h/.local/share", "/h/.local/share/Family", "/h/.local/share/Family/Program"},
     .told = {}},
    {.name = "a desktop that names no documents folder",
     .user = {.UserProfile = "", .AppData = "", .Documents = "", .UserData = "/data"},
     .exist = {"/data"},
     .cannotBeMade = {},
     .cannotBeLookedAt = {},
     .result = "/data/Family",
     .made = {"/data/Family", "/data/Family/Program"},
     .told = {}},
};

TEST(DirectoryRules, FindTheBaseFolderAndMakeTheLevels) {
    for (const Case& row : kCases) {
        MachineFolders machine{.exist = row.exist,
                               .cannotBeMade = row.cannotBeMade,
                               .cannotBeLookedAt = row.cannotBeLookedAt,
                               .made = {},
                               .told = {}};
        EXPECT_EQ(SetUpDirectory(machine.Access(), row.user, kFamily, kProgram), row.result) << row.name;
        EXPECT_EQ(machine.made, row.made) << row.name;
        EXPECT_EQ(machine.told, row.told) << row.name;
    }
}

TEST(DirectoryRules, ASecondCallHasTheSameResultAndMakesNothing) {
    for (const Case& row : kCases) {
        MachineFolders machine{.exist = row.exist,
                               .cannotBeMade = row.cannotBeMade,
                               .cannotBeLookedAt = row.cannotBeLookedAt,
                               .made = {},
                               .told = {}};
        const std::string first = SetUpDirectory(machine.Access(), row.user, kFamily, kProgram);
        machine.made.clear();
        EXPECT_EQ(SetUpDirectory(machine.Access(), row.user, kFamily, kProgram), first) << row.name;
        EXPECT_EQ(machine.made, Texts{}) << row.name;
    }
}

TEST(MakeDirectory, TellsAFailureOnlyWhenAsked) {
    struct Row {
        std::string path;
        bool showError;
        Texts told;
    };
    for (const Row& row : {
             Row{"", true, {"Unable to Create Directory | Invalid Path"}},
             Row{"", false, {"Unable to Create Directory | Invalid Path"}},
             Row{"/refused", true, {"Unable to create directory. | /refused  Permission denied"}},
             Row{"/refused", false, {}},
             Row{"/bad", true, {"Unable to create directory. | /bad  Bad name"}},
             Row{"/bad", false, {}},
             Row{"/new", true, {}},
         }) {
        MachineFolders machine{
            .exist = {}, .cannotBeMade = {"/refused"}, .cannotBeLookedAt = {"/bad"}, .made = {}, .told = {}};
        MakeDirectory(machine.Access(), row.path, row.showError);
        EXPECT_EQ(machine.told, row.told) << row.path;
        EXPECT_EQ(machine.exist.contains(row.path), row.path == "/new") << row.path;
    }
}

TEST(MakeDirectory, MakesTheLastLevelOnly) {
    sim::Files files;
    sim::Dialogs dialogs;
    MakeDirectory(FolderAccess::Of(files, dialogs), "/contest/above/below", true);
    EXPECT_FALSE(files.FolderExists("/contest/above"));
    EXPECT_EQ(dialogs.boxes,
              Texts{"message \"Unable to create directory.\" \"/contest/above/below  No such file or directory\" OK "
                    "Critical"});
}

TEST(MakeDirectory, AFileInTheFoldersPlaceIsAFailure) {
    sim::Files files;
    sim::Dialogs dialogs;
    files.Put("/contest/BACKUP", "");
    MakeDirectory(FolderAccess::Of(files, dialogs), "/contest/BACKUP", true);
    EXPECT_EQ(dialogs.boxes,
              Texts{"message \"Unable to create directory.\" \"/contest/BACKUP  File exists\" OK Critical"});
}

constexpr const char* kDocumentsBase = "/home/operator/Documents/Q7ZZQ Software";

struct SetUpDirectoriesTest : testing::Test {
    void SetUp() override { files.AddFolder("/home/operator"); }
    void Run() { SetUpDirectories(files, environment, dialogs, directories, shared); }

    sim::Files files;
    sim::Environment environment;
    sim::Dialogs dialogs;
    Directories directories{.WorkingDirectory = "/contest", .DataDirectory = {}, .SharedDirectory = {}};
    SharedPreferences shared{files};
};

TEST_F(SetUpDirectoriesTest, MakesTheFoldersOfTheProgramTheFamilyAndTheBackups) {
    files.AddFolder(environment.documentsFolder);
    Run();
    EXPECT_EQ(dialogs.boxes, Texts{});
    EXPECT_EQ(directories.WorkingDirectory, "/contest");
    EXPECT_EQ(directories.DataDirectory, std::string{kDocumentsBase} + "/Tallyhut");
    EXPECT_EQ(directories.SharedDirectory, std::string{kDocumentsBase} + "/Shared");
    EXPECT_TRUE(files.FolderExists(directories.DataDirectory + "/BACKUP"));
    EXPECT_TRUE(files.FolderExists(directories.SharedDirectory));
    EXPECT_EQ(shared.SharedXmlPath, std::string{kDocumentsBase} + "/Shared/SharedUserPreferences.xml");
    EXPECT_TRUE(files.contents.empty());
}

TEST_F(SetUpDirectoriesTest, ASecondStartChangesNothing) {
    files.AddFolder(environment.documentsFolder);
    Run();
    const int operations = files.Operations();
    Run();
    EXPECT_EQ(files.Operations(), operations);
    EXPECT_EQ(directories.DataDirectory, std::string{kDocumentsBase} + "/Tallyhut");
}

TEST_F(SetUpDirectoriesTest, WithoutADocumentsFolderItIsTheFolderForUserData) {
    Run();
    EXPECT_EQ(directories.DataDirectory, "/home/operator/.local/share/Q7ZZQ Software/Tallyhut");
    EXPECT_TRUE(files.FolderExists(directories.DataDirectory + "/BACKUP"));
    EXPECT_FALSE(files.FolderExists(environment.documentsFolder));
    EXPECT_EQ(dialogs.boxes, Texts{});
}

TEST_F(SetUpDirectoriesTest, WithAUserProfileTheFoldersStandInItsDocuments) {
    environment.variables = {{"USERPROFILE", "/users/op"}, {"APPDATA", "/users/op/app"}};
    files.AddFolder("/users/op");
    files.AddFolder(environment.documentsFolder);
    Run();
    EXPECT_EQ(directories.DataDirectory, "/users/op/My Documents/Q7ZZQ Software/Tallyhut");
    EXPECT_EQ(directories.SharedDirectory, "/users/op/My Documents/Q7ZZQ Software/Shared");
}

TEST_F(SetUpDirectoriesTest, LoadsTheSharedPreferences) {
    files.Put(std::string{kDocumentsBase} + "/Shared/SharedUserPreferences.xml", "<OTHER>1</OTHER>\r\n");
    Run();
    EXPECT_EQ(shared.SharedXmlText, "<OTHER>1</OTHER>");
}

TEST_F(SetUpDirectoriesTest, AFailureAtAnyFolderIsToldAndTheRestFollows) {
    const Texts made{"", "/Tallyhut", "/Shared", "/Tallyhut/BACKUP"};
    for (int nth = 1; nth <= 4; ++nth) {
        sim::Files disk;
        disk.AddFolder(environment.documentsFolder);
        disk.FailAt(nth, "No space left on device");
        sim::Dialogs boxes;
        SharedPreferences preferences{disk};
        SetUpDirectories(disk, environment, boxes, directories, preferences);
        ASSERT_FALSE(boxes.boxes.empty()) << nth;
        EXPECT_EQ(boxes.boxes.front(), "message \"Unable to create directory.\" \"" + std::string{kDocumentsBase} +
                                           made.at(static_cast<std::size_t>(nth - 1)) +
                                           "  No space left on device\" OK Critical");
        EXPECT_EQ(directories.DataDirectory, std::string{kDocumentsBase} + "/Tallyhut") << nth;
    }
}

TEST_F(SetUpDirectoriesTest, AReadOnlyDocumentsFolderIsToldAndTheProgramGoesOn) {
    files.AddFolder(environment.documentsFolder);
    files.readOnlyFolders.insert(environment.documentsFolder);
    Run();
    EXPECT_EQ(dialogs.boxes.size(), 5U);  // two levels twice, and BACKUP
    EXPECT_EQ(directories.SharedDirectory, std::string{kDocumentsBase} + "/Shared");
    EXPECT_THROW(shared.SetSharedPreference("OWN_CALL", "W1XX", true), PlatformError);
}

/// Files of which none can be read, as on a failing disk.
struct UnreadableFiles : sim::Files {
    std::string Read(const std::string& path) const override { throw PlatformError{path + ": Input/output error"}; }
};

TEST_F(SetUpDirectoriesTest, SharedPreferencesThatCannotBeReadAreToldAndTheBackupFolderIsStillMade) {
    UnreadableFiles failing;
    const std::string path = std::string{kDocumentsBase} + "/Shared/SharedUserPreferences.xml";
    failing.Put(path, "<OTHER>1</OTHER>\r\n");
    SharedPreferences preferences{failing};
    SetUpDirectories(failing, environment, dialogs, directories, preferences);
    EXPECT_EQ(dialogs.boxes,
              Texts{"message \"User Access Directory Error\" \"" + path + ": Input/output error\" OK Critical"});
    EXPECT_TRUE(failing.FolderExists(directories.DataDirectory + "/BACKUP"));
}

/// The rules on a real disk.
struct OnTheDisk : testing::Test {
    std::string Run() {
        SetUpDirectories(files, environment, dialogs, directories, shared);
        return directories.DataDirectory;
    }

    TemporaryFolder folder;
    PosixFiles files;
    sim::Environment environment;
    sim::Dialogs dialogs;
    Directories directories{.WorkingDirectory = folder.Path(), .DataDirectory = {}, .SharedDirectory = {}};
    SharedPreferences shared{files};
};

TEST_F(OnTheDisk, ANewAccountGetsItsFolderForUserData) {
    environment.documentsFolder = folder.At("Documents");
    environment.userDataFolder = folder.At(".local/share");
    EXPECT_EQ(Run(), folder.At(".local/share/Q7ZZQ Software/Tallyhut"));
    EXPECT_TRUE(files.FolderExists(directories.DataDirectory + "/BACKUP"));
    shared.SetSharedPreference("OWN_CALL", "W1XX", true);
    EXPECT_EQ(files.Read(directories.SharedDirectory + "/SharedUserPreferences.xml"),
              "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\r\n<OWN_CALL>W1XX</OWN_CALL>\r\n");
    EXPECT_EQ(dialogs.boxes, Texts{});
}

TEST_F(OnTheDisk, AFileInThePlaceOfMyDocumentsLeavesDocuments) {
    environment.variables = {{"USERPROFILE", folder.Path()}, {"APPDATA", folder.At("app")}};
    files.Replace(folder.At("My Documents"), "");
    files.MakeFolder(folder.At("Documents"));
    EXPECT_EQ(Run(), folder.At("Documents/Q7ZZQ Software/Tallyhut"));
    EXPECT_EQ(dialogs.boxes, Texts{});
}

TEST_F(OnTheDisk, WithNeitherTheFoldersUnderTheProfileRemainUnused) {
    environment.variables = {{"USERPROFILE", folder.Path()}, {"APPDATA", folder.At("app")}};
    files.Replace(folder.At("My Documents"), "");
    files.MakeFolder(folder.At("app"));
    EXPECT_EQ(Run(), folder.At("app/Q7ZZQ Software/Tallyhut"));
    EXPECT_TRUE(files.FolderExists(folder.At("Q7ZZQ Software/Tallyhut")));
    EXPECT_TRUE(files.FolderExists(folder.At("Q7ZZQ Software/Shared")));
    EXPECT_FALSE(files.FolderExists(folder.At("Q7ZZQ Software/Tallyhut/BACKUP")));
}

}  // namespace
}  // namespace tallyhut
