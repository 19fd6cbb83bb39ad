#include "support/help_page.h"

#include "platform/platform_error.h"
#include "toolkit/desk.h"
#include "values/text.h"

namespace tallyhut {
namespace {

constexpr const char* kHelpText = "readns.txt";
constexpr const char* kCopy = "HelpSB.txt";

}  // namespace

void HelpPage::mnuHelp_Click() {
    page.ShowModal();
}

void HelpPage::Form5_Load() {
    try {
        page.Text1.SetText(files.Read(WorkingFile(directories, kHelpText)));
    } catch (const PlatformError&) {  // told behaviour: without the file the page is empty
    }
}

void HelpPage::Command1_Click() {
    page.Unload();
}

/// Not by the writer of records, which would leave out the line ends and quotes of the text: no program reads this
/// file.
void HelpPage::Command2_Click() {
    try {
        files.Replace(WorkingFile(directories, kCopy), '"' + page.Text1.Text() + '"' + std::string{kLineEnd});
    } catch (const PlatformError& failure) {
        page.desk.dialogs.Show(MessageBox{.title = "The text cannot be written",
                                          .text = failure.what(),
                                          .buttons = Buttons::OK,
                                          .icon = Icon::Exclamation});
    }
}

}  // namespace tallyhut
