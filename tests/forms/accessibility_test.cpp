#include <gtest/gtest.h>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <QAccessible>
#include <QAction>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <algorithm>
#include <iterator>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/forms/shown_program.h"

namespace tallyhut {
namespace {

using Told = std::vector<std::string>;

/// Listens where a screen reader would, and keeps what it is told: "name lblDialog: Message Invalid Section". What it
/// speaks at once is "spoken: Invalid Section".
struct ScreenReader {
    ScreenReader() {
        told = &heard;
        QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
            const std::string name = event->accessibleInterface()->text(QAccessible::Name).toStdString();
            if (event->type() == QAccessible::NameChanged) {
                told->push_back("name " + event->object()->objectName().toStdString() + ": " + name);
            } else if (event->type() == QAccessible::ObjectShow &&
                       event->accessibleInterface()->role() == QAccessible::Notification) {
                told->push_back("spoken: " + name);
            } else if (event->type() == QAccessible::TextInserted) {
                const auto& change = static_cast<QAccessibleTextInsertEvent&>(*event);
                TellChange("inserted", *event, change.textInserted(), change.changePosition());
            } else if (event->type() == QAccessible::TextRemoved) {
                const auto& change = static_cast<QAccessibleTextRemoveEvent&>(*event);
                TellChange("removed", *event, change.textRemoved(), change.changePosition());
            } else if (event->type() == QAccessible::TextUpdated) {
                const auto& change = static_cast<QAccessibleTextUpdateEvent&>(*event);
                if (!change.textRemoved().isEmpty()) {
                    TellChange("removed", *event, change.textRemoved(), change.changePosition());
                }
                if (!change.textInserted().isEmpty()) {
                    TellChange("inserted", *event, change.textInserted(), change.changePosition());
                }
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

    Told HeardOf(const std::string& control) const { return HeardWith(' ' + control + ": "); }
    Told Spoken() const { return HeardWith("spoken: "); }
    Told HeardWith(const std::string& words) const {
        Told with;
        std::ranges::copy_if(heard, std::back_inserter(with),
                             [&words](const std::string& line) { return line.find(words) != std::string::npos; });
        return with;
    }
    static void TellChange(const std::string& what, const QAccessibleEvent& event, const QString& text, int at) {
        told->push_back(what + ' ' + event.object()->objectName().toStdString() + ": " + text.toStdString() + " at " +
                        std::to_string(at));
    }
    /// Events are sent while somebody listens. Only the platform may say so: QAccessible::setActive tells observers
    /// alone.
    static void SetListening(bool listening) {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(listening);
    }

    Told heard;
    static inline Told* told = nullptr;  // a handler is a plain function
};

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

TEST_F(AccessibilityTest, ADuplicateIsSpoken) {
    program.time.gTimeOn = 1;
    Work("88ak9zo72mdc");
    EXPECT_EQ(reader.Spoken(), Told{"spoken: Duplicate K9ZO LA 11/08 00:49:59 ON 80 Rec# 1 Serial Rcvd: 38"});
}

TEST_F(AccessibilityTest, AnIncompleteContactIsSpoken) {
    program.time.gTimeOn = 1;
    program.form1.txtSec.SetText("MDC");
    shown.Type("88a");
    shown.Press("Enter");
    EXPECT_EQ(reader.Spoken(), Told{"spoken: Need Call Sign!"});
}

TEST_F(AccessibilityTest, AnInvalidSectionIsSpoken) {
    program.time.gTimeOn = 1;
    Work("88aw1xyz72mdx");
    EXPECT_EQ(reader.Spoken(), Told{"spoken: Invalid Section"});
}

TEST_F(AccessibilityTest, TimeOnIsSpoken) {
    ClickTimeOnOrOff();
    EXPECT_EQ(reader.Spoken(), Told{"spoken: Time On"});
}

TEST_F(AccessibilityTest, TimeOffIsSpokenByTheMessageLine) {
    ClickTimeOnOrOff();
    reader.heard.clear();
    ClickTimeOnOrOff();
    EXPECT_EQ(reader.Spoken(), Told{"spoken: Logged Off at 11/8/2026 03:12:44 Log On after 03:42:44"});
}

TEST_F(AccessibilityTest, TheTimesOfTheOffTimeClockSayWhatTheyAre) {
    program.display.offTime.mnuOffTime_Click();
    program.form1.lblLeft.SetCaption("00:05");
    program.form1.lblOffCaption.SetCaption("Silence, off at 20:50");
    program.form1.lblOff.SetCaption("00:29");
    shown.Settle();
    EXPECT_EQ(NameOf("lblLeft"), "Left to operate 00:05");
    EXPECT_EQ(NameOf("lblOffCaption"), "Silence, off at 20:50");
    EXPECT_EQ(NameOf("lblOff"), "Silence 00:29");
    EXPECT_EQ(reader.Spoken(), Told{}) << "a minute that passes is not spoken";
}

TEST_F(AccessibilityTest, TheFindingsOfACheckAreNamedByTheirNumber) {
    frmCheckLog& form = program.reportsPart.checkForm;
    shown.Show(form);
    EXPECT_EQ(NameOf(form, "lstFindings"), form.lblFindings.Caption());
    EXPECT_EQ(NameOf(form, "cmdEdit"), "Edit");
    form.Hide();
}

TEST_F(AccessibilityTest, APasswordIsAFieldOfDotsForEverybodyWhoAsksTheWindow) {
    PacketSpotfrm& form = program.spotsPart.form;
    shown.Show(form);
    program.desk.PostRowClick(form.List1, 2, kLeftButton);
    shown.Settle();
    form.txtPassword.SetText("hush");
    shown.Settle();
    QAccessibleInterface& element = ElementOf(form, "txtPassword");
    EXPECT_TRUE(element.state().passwordEdit);
    EXPECT_EQ(element.text(QAccessible::Name).toStdString(), "Password (if any):");
    const auto* field = qobject_cast<QLineEdit*>(element.object());
    EXPECT_EQ(element.text(QAccessible::Value), field->displayText());
    EXPECT_EQ(field->displayText().size(), 4);
    EXPECT_FALSE(field->text().contains('h')) << "Qt does not have it";
    form.txtPassword.SetCaret(4);
    form.txtPassword.SetFocus();
    shown.Settle();
    shown.Type("x");
    EXPECT_EQ(form.txtPassword.Text(), "hushx");
    EXPECT_EQ(reader.HeardWith("inserted txtPassword"),
              (Told{"inserted txtPassword: \u25CF\u25CF\u25CF\u25CF at 0", "inserted txtPassword: \u25CF at 4"}));
    element.editableTextInterface()->replaceText(0, 1, "y");
    shown.Settle();
    EXPECT_EQ(form.txtPassword.Text(), "hushx") << "a change within dots says nothing";
    element.editableTextInterface()->replaceText(0, 5, "other");
    shown.Settle();
    EXPECT_EQ(form.txtPassword.Text(), "other");
    form.txtPassword.SetText("");
    form.Hide();
}

TEST_F(AccessibilityTest, AnEmptiedMessageLineIsNotSpoken) {
    program.time.gTimeOn = 1;
    Work("88a");
    reader.heard.clear();
    shown.Press("Esc");
    EXPECT_EQ(reader.HeardOf("lblDialog"), Told{"name lblDialog: Message"});
    EXPECT_EQ(reader.Spoken(), Told{});
}

TEST_F(AccessibilityTest, AMessageOfSeveralLinesIsSpokenAsOne) {
    program.form1.lblDialog.SetCaption("W3ABC  -  MDC\r\n14.025\r\n21:04");
    shown.Settle();
    EXPECT_EQ(reader.Spoken(), Told{"spoken: W3ABC - MDC 14.025 21:04"});
}

TEST_F(AccessibilityTest, WhatTheProgramAnnouncesIsSpokenOnce) {
    program.desk.Announce("Radio: no answer");
    shown.Settle();
    shown.Settle();
    EXPECT_EQ(reader.Spoken(), Told{"spoken: Radio: no answer"});
}

TEST_F(AccessibilityTest, WhatIsAnnouncedTogetherIsSpokenTogether) {
    Work("88aw1xyz72mdx");
    EXPECT_EQ(reader.Spoken().back(), "spoken: Time On. Invalid Section");
}

TEST_F(AccessibilityTest, WhatNobodyListensToIsNotSpokenLater) {
    ScreenReader::SetListening(false);
    program.desk.Announce("Radio: no answer");
    shown.Settle();
    ScreenReader::SetListening(true);
    shown.Settle();
    EXPECT_EQ(reader.Spoken(), Told{});
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
    int start = -1;
    int end = -1;
    EXPECT_EQ(call.textInterface()->textAtOffset(3, QAccessible::LineBoundary, &start, &end), "W1XX");
    EXPECT_EQ(std::pair(start, end), std::pair(0, 4));
    EXPECT_EQ(ValueOf("txtNum"), "88");
    EXPECT_EQ(ValueOf("txtPre"), "A");
    EXPECT_EQ(ValueOf("txtCK"), "");
}

TEST_F(AccessibilityTest, AKeyIsOneChangeOfTheText) {
    shown.Type("88aw1x");
    reader.heard.clear();
    shown.Type("x");
    EXPECT_EQ(reader.HeardOf("txtCall"), Told{"inserted txtCall: X at 3"});
    reader.heard.clear();
    shown.Press("Left");
    shown.Press("Left");
    shown.Press("Backspace");
    EXPECT_EQ(reader.HeardOf("txtCall"), Told{"removed txtCall: 1 at 1"});
    reader.heard.clear();
    shown.Type("2");
    EXPECT_EQ(reader.HeardOf("txtCall"), Told{"inserted txtCall: 2 at 1"});
    reader.heard.clear();
    shown.Press("Esc");
    EXPECT_EQ(reader.HeardOf("txtCall"), Told{"removed txtCall: W2XX at 0"});
}

TEST_F(AccessibilityTest, AKeyIsOneChangeOfAPage) {
    shown.Show(program.helpForm);
    program.helpForm.Text1.SetText("first\r\nsecond");
    program.helpForm.Text1.SetFocus();
    program.helpForm.Text1.SetCaret(3);
    shown.Settle();
    reader.heard.clear();
    shown.Type("x");
    EXPECT_EQ(reader.HeardOf("Text1"), Told{"inserted Text1: x at 3"});
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

TEST_F(AccessibilityTest, ACaptionIsTiedToItsFieldUnlessTheFieldHasANameOfItsOwn) {
    const QWidget& window = shown.WindowOf(program.form1);
    const auto tiedTo = [&window](const char* caption) { return window.findChild<QLabel*>(caption)->buddy(); };
    EXPECT_EQ(tiedTo("lblPostConTime"), window.findChild<QWidget*>("txtPostConTime"));
    EXPECT_EQ(tiedTo("lblEntryHeading(1)"), nullptr);  // "#"
    EXPECT_EQ(NameOf("txtNum"), "Number");
}

TEST_F(AccessibilityTest, NoTwoEntriesOfTheFileMenuClaimTheLetterOfExit) {
    const QWidget& window = shown.WindowOf(program.form1);
    EXPECT_EQ(window.findChild<QAction*>("mnuExit")->text(), "E&xit");
    EXPECT_EQ(window.findChild<QAction*>("expADIFX")->text(), "ADIF With Exchange");
}

TEST_F(AccessibilityTest, AListIsCalledByTheCaptionAboveItOrElseByItsForm) {
    EXPECT_EQ(NameOf(program.portsForm, "lstPorts"), "Port numbers, and the device that each means:");
    EXPECT_EQ(NameOf(program.portsForm, "lstDevices"), "Devices found:");
    EXPECT_EQ(NameOf(program.importPart.importForm, "lstReport"), "Lines of the file to look at:");
    EXPECT_EQ(NameOf(program.rigForm, "List1"), "Rig Interface Setup");
    EXPECT_EQ(NameOf(program.helpForm, "Text1"), "Tallyhut Logging Program Help Page");
}

TEST_F(AccessibilityTest, ButtonsOfOneCaptionAreToldApartByTheirRow) {
    EXPECT_EQ(NameOf(program.tuneForm, "cmdTune(0)"), "UP 10 Hz");
    EXPECT_EQ(NameOf(program.tuneForm, "cmdTune(1)"), "Down 10 Hz");
    EXPECT_EQ(NameOf(program.tuneForm, "cmdTune(9)"), "Down 100 Hz");
}

TEST_F(AccessibilityTest, AnOptionIsARadioButtonAndACheckBoxIsNone) {
    EXPECT_EQ(ElementOf(program.form2, "OptCatYes").role(), QAccessible::RadioButton);
    EXPECT_EQ(ElementOf(program.tuneForm, "chkScan").role(), QAccessible::CheckBox);
    EXPECT_EQ(NameOf(program.form2, "chkCabrillo3"), "Header as Cabrillo 3 lists it");
}

TEST_F(AccessibilityTest, AnOptionIsUnchosenWhereTheProgramUnchoosesIt) {
    const QWidget& window = shown.Show(program.form2);
    for (const auto& [yes, no] : std::vector<std::pair<bool, bool>>{{true, false}, {false, true}, {false, false}}) {
        program.form2.OptCatYes.SetValue(yes);
        program.form2.optCatNo.SetValue(no);
        shown.Settle();
        EXPECT_EQ(window.findChild<QRadioButton*>("OptCatYes")->isChecked(), yes);
        EXPECT_EQ(window.findChild<QRadioButton*>("optCatNo")->isChecked(), no);
    }
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
    EXPECT_EQ(reached, (std::set<std::string>{"ListView1", "cmdClear", "cmdDup", "cmdList", "cmdLogOn", "lblSecWkd",
                                              "txtCK", "txtCall", "txtNum", "txtPre", "txtSec"}));
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
    for (const auto& [name, text] :
         std::vector<std::pair<QString, QString>>{{"mnuRig", "&Rig Interface\tCtrl+R"},
                                                  {"mnuRigTune", "Change F&requency\tCtrl+G"},
                                                  {"mnuPrivileges", "&Frequency Privileges\tCtrl+F"}}) {
        const auto* action = window.findChild<QAction*>(name);
        ASSERT_NE(action, nullptr) << name.toStdString();
        EXPECT_EQ(action->text(), text);
    }
}

}  // namespace
}  // namespace tallyhut
