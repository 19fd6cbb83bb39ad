#include <filesystem>
#include <regex>

#include "tests/window/window_fixture.h"

namespace tallyhut {
namespace {

constexpr const char* kMainForm = "Q7ZZQ";
constexpr const char* kEntryForm = "Summary Sheet Information";
constexpr const char* kFileDialog = "Save as";
constexpr const char* kRigForm = "Rig Interface Setup";
constexpr const char* kMessagesForm = "CW String Selections";
constexpr const char* kTuneForm = "Change Frequency";

/// The forms and dialogs that the main form opens, worked by keyboard alone.
struct FormsWindowTest : WindowTest {
    /// Presses keys at a window that goes away by them.
    void LeaveWindow(const std::string& title, const std::string& keys) {
        window.AnswerWindow(title, keys);
        EXPECT_TRUE(Eventually([&] { return !window.Shows(title); })) << title;
    }
};

TEST_F(FormsWindowTest, ACabrilloFileIsWrittenByKeyboardAlone) {
    window.Type("88aw1xx72mdc");
    window.Press("Return");
    ASSERT_TRUE(Eventually([this] { return LogHolds("W1XX"); }));
    window.Press("alt+f w");
    window.AnswerWindow(kEntryForm, "Tab Tab Tab Tab Tab Tab Tab Tab Tab Tab space");  // past the answers
    const std::string entry = folder + "/YourCall.log";
    EXPECT_FALSE(std::filesystem::exists(entry));
    LeaveWindow(kFileDialog, "Return");
    LeaveWindow("File Written Successfully", "Return");
    LeaveWindow("Thanks!", "Return");
    const std::regex contact{
        R"(\r\nQSO:  7000 CW \d{4}-\d\d-\d\d \d{4} {15}1 {10}W1XX {9}88 A 72 MDC\r\nEND-OF-LOG:\r\n$)"};
    EXPECT_TRUE(std::regex_search(ContentOf(entry), contact)) << ContentOf(entry);
    LeaveWindow(kEntryForm, "Return");
    window.AnswerWindow(kMainForm, "");
    window.Type("89bk1ab73ct");
    window.Press("Return");
    EXPECT_TRUE(Eventually([this] { return LogHolds(R"("2","89","B","K1AB","73","CT",)"); })) << Log();
}

TEST_F(FormsWindowTest, CtrlROpensTheRadiosFormAndEscHidesIt) {
    for (int time = 0; time < 2; ++time) {
        window.AnswerWindow(kMainForm, "ctrl+r");
        LeaveWindow(kRigForm, "Escape");
    }
    window.AnswerWindow(kMainForm, "");
    window.Type("88aw1xx72mdc");
    window.Press("Return");
    EXPECT_TRUE(Eventually([this] { return LogHolds(R"("1","88","A","W1XX","72","MDC",)"); })) << Log();
}

TEST_F(FormsWindowTest, AMessageIsWrittenAndSentByKeyboardAlone) {
    window.AnswerWindow(kMainForm, "ctrl+s");
    window.AnswerWindow(kMessagesForm, "");
    window.Type("e!");
    window.Press("Tab Tab Tab Tab Tab Tab Tab Tab Tab Tab Tab Right");  // past the messages, to DTR
    LeaveWindow(kMessagesForm, "Return");
    const std::string messages = ContentOf(folder + "/CW.txt");
    EXPECT_TRUE(messages.starts_with("\"E!\"\r\n\"\"\r\n")) << messages;
    EXPECT_NE(messages.find("\r\n2\r\n\"&H378\"\r\n"), std::string::npos) << messages;
    window.AnswerWindow(kMainForm, "");
    window.Type("88aw1xx72mdc");
    window.Press("F1");
    EXPECT_TRUE(Eventually([this] { return LogHolds(R"("1","88","A","W1XX","72","MDC",)"); })) << Log();
}

TEST_F(FormsWindowTest, CtrlWShowsTheListOfMessagesAndItsFunctionKeysAreTheMainForms) {
    window.AnswerWindow(kMainForm, "ctrl+s");
    window.AnswerWindow(kMessagesForm, "");
    window.Type("ee!");
    window.Press("Tab Tab Tab Tab Tab Tab Tab Tab Tab Tab Tab Right");
    LeaveWindow(kMessagesForm, "Return");
    window.AnswerWindow(kMainForm, "");
    window.Type("88aw1xx72mdc");
    window.Press("ctrl+w");
    window.AnswerWindow("CW Strings", "F1");
    EXPECT_TRUE(Eventually([this] { return LogHolds(R"("1","88","A","W1XX","72","MDC",)"); })) << Log();
}

// What the field holds is seen in the log: it goes there by the clipboard.
TEST_F(FormsWindowTest, CtrlGOpensTheTuningFormThatTakesAFrequencyAndEscClosesIt) {
    window.Press("ctrl+g");
    window.AnswerWindow(kTuneForm, "");
    window.Type("14.x025");
    window.Press("shift+Home ctrl+Insert");
    LeaveWindow(kTuneForm, "Escape");
    window.AnswerWindow(kMainForm, "");
    window.Type("88a");
    window.Press("space shift+Insert space");
    window.Type("72mdc");
    window.Press("Return");
    EXPECT_TRUE(Eventually([this] { return LogHolds(R"("1","88","A","14.025","72","MDC",)"); })) << Log();
}

}  // namespace
}  // namespace tallyhut
