#include <gtest/gtest.h>

#include <QAccessible>
#include <QAction>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <set>

#include "tests/forms/shown_program.h"

namespace tallyhut {
namespace {

struct AccessibilityTest : testing::Test {
    ShownProgram shown;
    Program& program = shown.program;

    std::string NameOf(const char* control) { return NameOf(program.form1, control); }
    std::string NameOf(Form& form, const char* control) {
        auto* widget = shown.Show(form).findChild<QWidget*>(control);
        return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name).toStdString();
    }
    void Work(const std::string& exchange) {
        shown.Type(exchange);
        shown.Press("Enter");
    }
};

// A changed name of the message line is an event for screen readers; what it says is what they speak.

TEST_F(AccessibilityTest, ADuplicateIsTold) {
    program.time.gTimeOn = 1;
    Work("88ak9zo72mdc");
    EXPECT_EQ(NameOf("lblDialog"),
              "Message " + QString::fromStdString(program.form1.lblDialog.Caption()).simplified().toStdString());
    EXPECT_NE(NameOf("lblDialog").find("Duplicate K9ZO LA "), std::string::npos);
}

TEST_F(AccessibilityTest, AnIncompleteContactIsTold) {
    program.time.gTimeOn = 1;
    program.form1.txtSec.SetText("MDC");
    Work("88a");
    EXPECT_EQ(NameOf("lblDialog"), "Message Need Call Sign!");
}

TEST_F(AccessibilityTest, AnInvalidSectionIsTold) {
    program.time.gTimeOn = 1;
    Work("88aw1xyz72mdx");
    EXPECT_EQ(NameOf("lblDialog"), "Message Invalid Section");
}

TEST_F(AccessibilityTest, TimeOnAndOffAreTold) {
    program.time.cmdLogOn_Click();
    shown.Settle();
    EXPECT_EQ(NameOf("cmdLogOn"), "Log \"Time Off\"");
    program.time.cmdLogOn_Click();
    shown.Settle();
    EXPECT_EQ(NameOf("cmdLogOn"), "Log \"Time On\"");
    EXPECT_EQ(NameOf("lblDialog").substr(0, 21), "Message Logged Off at");
}

TEST_F(AccessibilityTest, ANeededSpotOnTheMessageLineIsTold) {
    program.form1.lblDialog.SetCaption("W3ABC  -  MDC\r\n14.025\r\n21:04");
    shown.Settle();
    EXPECT_EQ(NameOf("lblDialog"), "Message W3ABC - MDC 14.025 21:04");
}

TEST_F(AccessibilityTest, AValueIsCalledByItsCaption) {
    EXPECT_EQ(NameOf("lblTotCon"), "Total Contacts 136");
    EXPECT_EQ(NameOf("txtCall"), "Call");
    EXPECT_EQ(NameOf("Label30"), "Band 40");
    EXPECT_EQ(NameOf("ListView1"), "Recent Contacts");
    EXPECT_EQ(NameOf("cmdDup"), "Possible Duplicates On");
}

TEST_F(AccessibilityTest, ASectionTellsItsStateInWords) {
    EXPECT_EQ(NameOf("Label10(1)"), "Connecticut, worked: CT");
    EXPECT_EQ(NameOf("Label10(83)"), "Greater Toronto Area, needed: GTA");
    program.form1.Label10(83).SetUnderlined(true);
    shown.Settle();
    EXPECT_EQ(NameOf("Label10(83)"), "Greater Toronto Area, needed and spotted: GTA");
}

TEST_F(AccessibilityTest, ACaptionIsTiedToItsField) {
    const QWidget& window = shown.WindowOf(program.form1);
    const auto* heading = window.findChild<QLabel*>("lblEntryHeading(3)");
    EXPECT_EQ(heading->buddy(), window.findChild<QWidget*>("txtCall"));
}

TEST_F(AccessibilityTest, AListIsCalledByTheCaptionAboveItOrElseByItsForm) {
    EXPECT_EQ(NameOf(program.portsForm, "lstPorts"), "Port numbers, and the device that each means:");
    EXPECT_EQ(NameOf(program.portsForm, "lstDevices"), "Devices found:");
    EXPECT_EQ(NameOf(program.rigForm, "List1"), "Rig Interface Setup");
    EXPECT_EQ(NameOf(program.helpForm, "Text1"), "Tallyhut Logging Program Help Page");
}

TEST_F(AccessibilityTest, ButtonsOfOneCaptionAreToldApartByTheirRow) {
    EXPECT_EQ(NameOf(program.tuneForm, "cmdTune(0)"), "UP 10 Hz");
    EXPECT_EQ(NameOf(program.tuneForm, "cmdTune(1)"), "Down 10 Hz");
    EXPECT_EQ(NameOf(program.tuneForm, "cmdTune(9)"), "Down 100 Hz");
}

TEST_F(AccessibilityTest, AnOptionIsCalledByItsFrameToo) {
    EXPECT_EQ(NameOf(program.form2, "OptCatYes"), "Category Assisted: Yes");
    EXPECT_EQ(NameOf(program.form2, "Option9"), "Club Participation? Yes");
}

TEST_F(AccessibilityTest, AValueOfADialogIsCalledByTheCaptionBesideIt) {
    shown.Show(program.rigForm);
    program.rigForm.lblFreq.SetCaption("14.025");
    shown.Settle();
    EXPECT_EQ(NameOf(program.rigForm, "lblFreq"), "Frequency: 14.025");
}

TEST_F(AccessibilityTest, ACaptionThatChangesRenamesItsField) {
    shown.Show(program.portsForm);
    program.portsForm.lblDevice.SetCaption("Device of port 7:");
    shown.Settle();
    EXPECT_EQ(NameOf(program.portsForm, "txtDevice"), "Device of port 7:");
}

TEST_F(AccessibilityTest, ACaptionOfADialogIsTiedToItsField) {
    const QWidget& window = shown.Show(program.portsForm);
    EXPECT_EQ(window.findChild<QLabel*>("lblDevices")->buddy(), window.findChild<QWidget*>("lstDevices"));
}

TEST_F(AccessibilityTest, CtrlTabReachesWhatTabPassesBy) {
    QWidget& window = shown.WindowOf(program.form1);
    std::set<std::string> reached;
    for (int i = 0; i < 12; ++i) {
        QKeyEvent press{QEvent::KeyPress, Qt::Key_Tab, Qt::ControlModifier};
        QApplication::sendEvent(&window, &press);
        shown.Settle();
        reached.insert(program.form1.Focus()->FullName());
    }
    EXPECT_EQ(reached, (std::set<std::string>{"ListView1", "cmdClear", "cmdDup", "cmdList", "cmdLogOn", "txtCK",
                                              "txtCall", "txtNum", "txtPre", "txtSec"}));
}

TEST_F(AccessibilityTest, TextThatIsBeingComposedIsShownAndNotLogged) {
    program.form1.txtCall.SetFocus();
    shown.Settle();
    auto* field = shown.WindowOf(program.form1).findChild<QLineEdit*>("txtCall");
    const auto caret = [field] { return field->inputMethodQuery(Qt::ImCursorRectangle).toRect().x(); };
    const int before = caret();
    QInputMethodEvent composing{"W1", {}};
    QApplication::sendEvent(field, &composing);
    shown.Settle();
    EXPECT_GT(caret(), before);
    EXPECT_EQ(program.form1.txtCall.Text(), "");
    QInputMethodEvent done;
    done.setCommitString("W1AW");
    QApplication::sendEvent(field, &done);
    shown.Settle();
    EXPECT_EQ(program.form1.txtCall.Text(), "W1AW");
    EXPECT_EQ(field->displayText(), "W1AW");
}

TEST_F(AccessibilityTest, MenuEntriesShowTheKeysOfTheMainForm) {
    QWidget& window = shown.Show(program.form1);
    for (const auto& [name, text] : std::vector<std::pair<QString, QString>>{
             {"mnuRig", "&Rig Interface\tCtrl+R"}, {"mnuRigTune", "Change F&requency\tCtrl+G"}}) {
        const auto* action = window.findChild<QAction*>(name);
        ASSERT_NE(action, nullptr) << name.toStdString();
        EXPECT_EQ(action->text(), text);
    }
}

}  // namespace
}  // namespace tallyhut
