#include "support/help_page.h"

#include "platform/sim/files.h"
#include "tests/toolkit/toolkit_fixture.h"

namespace tallyhut {
namespace {

constexpr const char* kCopyPath = "/contest/HelpSB.txt";

struct HelpPageTest : ToolkitTest {
    Form5 page{desk};
    sim::Files files{"/contest"};
    Directories directories{.WorkingDirectory = "/contest", .DataDirectory = {}, .SharedDirectory = {}};
    HelpPage help{page, files, directories};

    HelpPageTest() {
        page.Form_Load = [this] { help.Form5_Load(); };
    }
};

TEST_F(HelpPageTest, PageIsTheWholeFile) {
    files.Put("/contest/readns.txt", "LOG\r\n\r\nClick \"Time On\".\r\n");
    page.Load();
    EXPECT_EQ(page.Text1.Text(), "LOG\r\n\r\nClick \"Time On\".\r\n");
    EXPECT_EQ(page.Caption(), "Tallyhut Logging Program Help Page");
}

TEST_F(HelpPageTest, WithoutTheFileThePageIsEmpty) {
    page.Load();
    EXPECT_EQ(page.Text1.Text(), "");
    EXPECT_EQ(dialogs.boxes, std::vector<std::string>{});
}

TEST_F(HelpPageTest, FileThatCannotBeReadLeavesThePageEmpty) {
    files.AddFolder("/contest/readns.txt");
    page.Load();
    EXPECT_EQ(page.Text1.Text(), "");
    EXPECT_EQ(dialogs.boxes, std::vector<std::string>{});
}

TEST_F(HelpPageTest, CopyIsOneItemThatReplacesTheFile) {
    files.Put(kCopyPath, "an older and longer copy");
    files.Put("/contest/readns.txt", "LOG\r\n");
    page.Load();
    help.Command2_Click();
    EXPECT_EQ(files.contents.at(kCopyPath), "\"LOG\r\n\"\r\n");
    page.Text1.SetText("");
    help.Command2_Click();
    EXPECT_EQ(files.contents.at(kCopyPath), "\"\"\r\n");
}

TEST_F(HelpPageTest, CopyThatCannotBeWrittenIsTold) {
    page.Load();
    files.FailAt(1, "No space left on device");
    help.Command2_Click();
    EXPECT_EQ(dialogs.boxes,
              std::vector<std::string>{"message \"The text cannot be written\" "
                                       "\"/contest/HelpSB.txt: No space left on device\" OK Exclamation"});
}

TEST_F(HelpPageTest, CloseUnloadsThePage) {
    page.Load();
    help.Command1_Click();
    EXPECT_FALSE(page.IsLoaded());
}

}  // namespace
}  // namespace tallyhut
