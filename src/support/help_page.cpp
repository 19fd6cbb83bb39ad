#include "support/help_page.h"

#include "platform/platform_error.h"
#include "toolkit/desk.h"
#include "values/text_file.h"

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
    } catch (const PlatformError&) {  // without the file the page is empty
    }
}

void HelpPage::Command1_Click() {
    page.Unload();
}

/// As one item, like any that a record holds: without the line ends and quotes of the text.
void HelpPage::Command2_Click() {
    try {
        const RecordWriter copy = RecordWriter{}.Text(page.Text1.Text()).EndLine();
        files.Replace(WorkingFile(directories, kCopy), copy.Result());
    } catch (const PlatformError& failure) {
        page.desk.dialogs.Show(MessageBox{.title = "The text cannot be written",
                                          .text = failure.what(),
                                          .buttons = Buttons::OK,
                                          .icon = Icon::Exclamation});
    }
}

}  // namespace tallyhut
