#include <gtest/gtest.h>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <QAccessible>
#include <QAction>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <algorithm>
#include <cstddef>
#include <iterator>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/forms/shown_program.h"

namespace tallyhut {
namespace {

using Told = std::vector<std::string>;

/// Listens where a screen reader would, and keeps what it is told: "name lblDialog: Message Invalid Section".
struct ScreenReader {
    ScreenReader() {
        told = &heard;
        QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
            const auto row = kHeard.find(event->type());
            if (row != kHeard.end()) {
                told->push_back(row->second + ' ' + event->object()->objectName().toStdString() + ": " +
                                event->accessibleInterface()->text(QAccessible::Name).toStdString());
            }
        });
        SetListening(true);
    }
    ~ScreenReader() {
        SetListening(false);
        QAccessible::installUpdateHandler(nullptr);
    }
    ScreenReader(const ScreenReader&) = delete;
    ScreenReader& operator=(const ScreenReader&) = delete;
    ScreenReader(ScreenReader&&) = delete;
    ScreenReader& operator=(ScreenReader&&) = delete;

    Told HeardOf(const std::string& control) const {
        Told of;
        std::ranges::copy_if(heard, std::back_inserter(of), [&control](const std::string& line) {
            return line.find(' ' + control + ": ") != std::string::npos;
        });
        return of;
    }
    /// A button of the desktop's tells of its caption by itself beforehand; what counts is what is said last.
    Told LastHeardOf(const std::string& control, std::ptrdiff_t count) const {
        const Told of = HeardOf(control);
        return {of.end() - std::min(std::ssize(of), count), of.end()};
    }
    /// Events are sent while somebody listens. Only the platform may say so: QAccessible::setActive tells observers
    /// alone.
    static void SetListening(bool listening) {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(listening);
    }

    Told heard;
    static inline const std::map<QAccessible::Event, std::string> kHeard{{QAccessible::NameChanged, "name"},
                                                                         {QAccessible::Alert, "alert"}};
    static inline Told* told = nullptr;  // a handler is a plain function
};

/// A change that is spoken at once: the new name, and a call to speak it.
Told Announced(const std::string& control, const std::string& name) {
    return {"name " + control + ": " + name, "alert " + control + ": " + name};
}

/// The control below an element of the window, found as a screen reader goes; null when it is not there.
QAccessibleInterface* FindBelow(QAccessibleInterface& element, const QString& control) {
    for (int i = 0; i < element.childCount(); ++i) {
        QAccessibleInterface* child = element.child(i);
        if (child->object() != nullptr && child->object()->objectName() == control) {
            return child;
        }
        if (QAccessibleInterface* found = FindBelow(*child, control)) {
            return found;
        }
    }
    return nullptr;
}

struct AccessibilityTest : testing::Test {
    ShownProgram shown;
    ProgramUnits& program = shown.program;
    ScreenReader reader;

    QAccessibleInterface& ElementOf(Form& form, const char* control) {
        QAccessibleInterface* window = QAccessible::queryAccessibleInterface(&shown.Show(form));
        QAccessibleInterface* element = FindBelow(*window, control);
        if (element == nullptr) {
            throw std::runtime_error{std::string{"no screen reader finds "} + control};
        }
        return *element;
    }
    QAccessibleInterface& ElementOf(const char* control) { return ElementOf(program.form1, control); }
    std::string NameOf(Form& form, const char* control) {
        return ElementOf(form, control).text(QAccessible::Name).toStdString();
    }
    std::string NameOf(const char* control) { return NameOf(program.form1, control); }
    std::string ValueOf(const char* control) { return ElementOf(control).text(QAccessible::Value).toStdString(); }
    void Work(const std::string& exchange) {
        shown.Type(exchange);
        shown.Press("Enter");
    }
    void ClickTimeOnOrOff() {
        program.time.cmdLogOn_Click();
        shown.Settle();
    }
};

TEST_F(AccessibilityTest, ADuplicateIsTold) {
    program.time.gTimeOn = 1;
    Work("88ak9zo72mdc");
    EXPECT_EQ(reader.HeardOf("lblDialog"),
              Announced("lblDialog", "Message Duplicate K9ZO LA 11/08 00:49:59 ON 80 Rec# 1 Serial Rcvd: 38"));
}

TEST_F(AccessibilityTest, AnIncompleteContactIsTold) {
    program.time.gTimeOn = 1;
    program.form1.txtSec.SetText("MDC");
    shown.Type("88a");
    reader.heard.clear();
    shown.Press("Enter");
    EXPECT_EQ(reader.HeardOf("lblDialog"), Announced("lblDialog", "Message Need Call Sign!"));
}

TEST_F(AccessibilityTest, AnInvalidSectionIsTold) {
    program.time.gTimeOn = 1;
    shown.Type("88aw1xyz72mdx");
    reader.heard.clear();
    shown.Press("Enter");
    EXPECT_EQ(reader.HeardOf("lblDialog"), Announced("lblDialog", "Message Invalid Section"));
}

TEST_F(AccessibilityTest, TimeOnIsTold) {
    ClickTimeOnOrOff();
    EXPECT_EQ(reader.LastHeardOf("cmdLogOn", 2), Announced("cmdLogOn", "Log \"Time Off\""));
}

TEST_F(AccessibilityTest, TimeOffIsToldByTheButtonAndTheMessageLine) {
    ClickTimeOnOrOff();
    reader.heard.clear();
    ClickTimeOnOrOff();
    EXPECT_EQ(reader.LastHeardOf("cmdLogOn", 2), Announced("cmdLogOn", "Log \"Time On\""));
    EXPECT_EQ(reader.HeardOf("lblDialog"),
              Announced("lblDialog", "Message Logged Off at 11/8/2026 03:12:44 Log On after 03:42:44"));
}

TEST_F(AccessibilityTest, AnEmptiedMessageLineIsNoAlert) {
    program.time.gTimeOn = 1;
    Work("88a");
    reader.heard.clear();
    shown.Press("Esc");
    EXPECT_EQ(reader.HeardOf("lblDialog"), Told{"name lblDialog: Message"});
}

TEST_F(AccessibilityTest, AMessageOfSeveralLinesIsSpokenAsOne) {
    program.form1.lblDialog.SetCaption("W3ABC  -  MDC\r\n14.025\r\n21:04");
    shown.Settle();
    EXPECT_EQ(reader.HeardOf("lblDialog"), Announced("lblDialog", "Message W3ABC - MDC 14.025 21:04"));
}

TEST_F(AccessibilityTest, TheMessageLineIsReadBack) {
    program.time.gTimeOn = 1;
    Work("88a");
    EXPECT_EQ(ElementOf("lblDialog").role(), QAccessible::StaticText);
    EXPECT_EQ(NameOf("lblDialog"), "Message Invalid Section");
}

TEST_F(AccessibilityTest, WhatIsTypedIsReadBackFromItsField) {
    shown.Type("88aw1xx");
    QAccessibleInterface& call = ElementOf("txtCall");
    EXPECT_EQ(call.role(), QAccessible::EditableText);
    EXPECT_EQ(NameOf("txtCall"), "Call");
    EXPECT_EQ(ValueOf("txtCall"), "W1XX");
    ASSERT_NE(call.textInterface(), nullptr);
    EXPECT_EQ(call.textInterface()->text(2, 4), "XX");
    EXPECT_EQ(call.textInterface()->cursorPosition(), 4);
    EXPECT_EQ(ValueOf("txtNum"), "88");
    EXPECT_EQ(ValueOf("txtPre"), "A");
    EXPECT_EQ(ValueOf("txtCK"), "");
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
