#include "app/folder_choice.h"

#include "tests/log/program_fixture.h"

namespace tallyhut {
namespace {

struct FolderChoiceTest : ProgramFixture {
    FolderChoiceTest() { environment.variables["HOME"] = "/home/operator"; }

    void ChooseDirectory(std::optional<std::string> answer) {
        MakeProgram();
        dialogs.files = {std::move(answer)};
        dialogs.boxes.clear();
        program->ChooseDirectory();
    }
    const std::string& Chosen() { return program->directories.WorkingDirectory; }
    std::string Remembered() { return settings.Get("Machine", "ContestFolder"); }
    static std::string Offer(const std::string& parent, const std::string& path) {
        return "folder \"Choose the folder of the contest\" \"\" \"" + parent + "\" \"" + path + "\"";
    }
};

TEST_F(FolderChoiceTest, FirstOfferIsAFolderUnderTheDocuments) {
    ChooseDirectory("/home/operator/Documents/Tallyhut Log");
    EXPECT_EQ(dialogs.boxes,
              std::vector<std::string>{Offer("/home/operator/Documents", "/home/operator/Documents/Tallyhut Log")});
    EXPECT_TRUE(files.FolderExists("/home/operator/Documents/Tallyhut Log"));
    EXPECT_EQ(Chosen(), "/home/operator/Documents/Tallyhut Log");
    EXPECT_EQ(Remembered(), "/home/operator/Documents/Tallyhut Log");
}

TEST_F(FolderChoiceTest, WithoutADocumentsFolderTheOfferIsUnderTheHome) {
    environment.documentsFolder = "/home/operator";
    MakeProgram();
    environment.documentsFolder = "/home/operator/Papers";
    dialogs.files = {std::nullopt};
    EXPECT_EQ(EndStatusOf([&] { program->ChooseDirectory(); }), 0);
    EXPECT_EQ(dialogs.boxes, std::vector<std::string>{Offer("/home/operator", "/home/operator/Tallyhut Log")});
}

TEST_F(FolderChoiceTest, FolderOfTheLastTimeIsOffered) {
    files.AddFolder("/contests/2026");
    ChooseDirectory("/contests/2026");
    ChooseDirectory("/contests/2026");
    EXPECT_EQ(dialogs.boxes, std::vector<std::string>{Offer("/contests", "/contests/2026")});
}

TEST_F(FolderChoiceTest, FolderThatIsGoneIsNotOffered) {
    settings.Set("Machine", "ContestFolder", "/contests/2025");
    ChooseDirectory("/contest");
    EXPECT_EQ(dialogs.boxes,
              std::vector<std::string>{Offer("/home/operator/Documents", "/home/operator/Documents/Tallyhut Log")});
}

TEST_F(FolderChoiceTest, FolderThatCannotBeLookedAtIsNotOffered) {
    settings.Set("Machine", "ContestFolder", "/drive/2025");
    files.unreachable["/drive/2025"] = "Input/output error";
    ChooseDirectory("/contest");
    EXPECT_EQ(dialogs.boxes,
              std::vector<std::string>{Offer("/home/operator/Documents", "/home/operator/Documents/Tallyhut Log")});
}

TEST_F(FolderChoiceTest, ChosenFolderThatIsNotThereIsMade) {
    ChooseDirectory("/contest/cw");
    EXPECT_TRUE(files.FolderExists("/contest/cw"));
    EXPECT_EQ(Chosen(), "/contest/cw");
}

TEST_F(FolderChoiceTest, ChosenPathMayBeRelative) {
    ChooseDirectory("cw");
    EXPECT_EQ(Chosen(), "/contest/cw");
    EXPECT_EQ(Remembered(), "/contest/cw");
}

TEST_F(FolderChoiceTest, FolderThatCannotBeMadeIsToldByTheStart) {
    ChooseDirectory("/nowhere/cw");
    dialogs.boxes.clear();
    EXPECT_EQ(EndStatusOf([&] { program->Start(); }), 1);
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_NE(dialogs.boxes[0].find("/nowhere/cw: No such file or directory"), std::string::npos) << dialogs.boxes[0];
}

TEST_F(FolderChoiceTest, CancelEndsTheProgramQuietly) {
    MakeProgram();
    dialogs.files = {std::nullopt};
    EXPECT_EQ(EndStatusOf([&] { program->ChooseDirectory(); }), 0);
    EXPECT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(Remembered(), "");
}

}  // namespace
}  // namespace tallyhut
