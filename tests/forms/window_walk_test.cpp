// What must hold for every window of the program, whatever the size and the scale of the screen: the tests run once for
// each of them.

#include <gtest/gtest.h>

#include <QAccessible>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <array>
#include <map>
#include <memory>

#include "forms/qt/control_widget.h"
#include "tests/forms/shown_program.h"

namespace tallyhut {
namespace {

QRect InWindow(QWidget& widget) {
    return {widget.mapTo(widget.window(), QPoint{}), widget.size()};
}

std::string Text(const QRect& rect) {
    return std::to_string(rect.x()) + ',' + std::to_string(rect.y()) + ' ' + std::to_string(rect.width()) + 'x' +
           std::to_string(rect.height());
}

std::vector<ControlWidget*> ShownControls(const QWidget& window) {
    std::vector<ControlWidget*> controls;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        auto* control = dynamic_cast<ControlWidget*>(widget);
        if (control != nullptr && widget->isVisible()) {
            controls.push_back(control);
        }
    }
    return controls;
}

/// A text that changes is drawn smaller where it is long, and what a place on a picture says is more than its text; all
/// others have their full room.
bool MayShrink(const Control& control) {
    return control.name == "lblDialog" || control.name == "lblDupe" || control.name == "lblScp" ||
           control.name == "lblCounty" || control.name == "priv" || control.name == "lblPanel";
}

bool LiesUnderOthers(const Control& control) {
    return control.kind == ControlKind::Frame || control.kind == ControlKind::Line ||
           control.kind == ControlKind::Raster || control.name == "lblDX" || control.name == "blbl" ||
           control.name == "lblCounty";
}

struct WindowWalkTest : testing::Test {
    ShownProgram shown;
    ProgramUnits& program = shown.program;

    void FillStation() {
        program.form1.Label1.SetCaption("A");
        program.form1.Label2.SetCaption("VE1OP/3XX");
        program.form1.Label3.SetCaption("72");
        program.form1.Label4.SetCaption("MAR");
        program.form1.Timer2.Elapsed();
        program.form1.txtCall.SetText("");
        shown.Type("88aw9zzz");
    }

    /// More than a line of them begins with AA1.
    void KnowCalls() {
        std::string calls = "W4AN\n";
        for (char letter = 'A'; letter <= 'Z'; ++letter) {
            calls += std::string{"AA1X"} + letter + "\nAA1Y" + letter + '\n';
        }
        program.logPart.knownCalls.superCheck = ReadSuperCheck(calls);
        program.logPart.knownCalls.showsCalls = true;
        program.logPart.superCheck.Show();
    }
    /// With the longest texts.
    void ShowOffTimes() {
        program.display.offTime.mnuOffTime_Click();
        program.form1.lblLeft.SetCaption("23:59");
        program.form1.lblLeft.SetForeColor(0x0000FF);
        program.form1.lblOffCaption.SetCaption("Silence, off at 20:50");
        program.form1.lblOff.SetCaption("00:29");
    }

    /// These have more on them than the least screen at a scale of 2 has pixels for.
    bool IsBeyondTheScreen(const Form& form) {
        constexpr int kLeastWidth = 600;
        const bool isFull = &form == &program.rigForm || &form == &program.spotsPart.spectrumForm;
        return isFull && QGuiApplication::primaryScreen()->size().width() < kLeastWidth;
    }

    void CheckFits(Form& form) {
        if (IsBeyondTheScreen(form)) {
            return;
        }
        QWidget& window = shown.WindowOf(form);
        for (ControlWidget* control : ShownControls(window)) {
            QWidget& widget = control->Widget();
            const std::string name = form.name + '.' + control->Logical().FullName();
            const QRect place = InWindow(widget);
            EXPECT_TRUE(window.rect().contains(place))
                << name << " at " << Text(place) << " in " << Text(window.rect());
            if (!MayShrink(control->Logical())) {
                const QSize need = control->Needed(widget.width());
                EXPECT_LE(need.width(), widget.width()) << name;
                EXPECT_LE(need.height(), widget.height() + 1) << name;
            }
        }
    }

    void CheckApart(Form& form) {
        const std::vector<ControlWidget*> controls = ShownControls(shown.WindowOf(form));
        for (auto one = controls.begin(); one != controls.end(); ++one) {
            for (auto other = one + 1; other != controls.end(); ++other) {
                if (LiesUnderOthers((*one)->Logical()) || LiesUnderOthers((*other)->Logical())) {
                    continue;
                }
                EXPECT_FALSE(InWindow((*one)->Widget()).intersects(InWindow((*other)->Widget())))
                    << form.name << ": " << (*one)->Logical().FullName() << " lies on "
                    << (*other)->Logical().FullName();
            }
        }
    }

    /// What a frame encloses below its caption.
    void CheckInFrames(Form& form) {
        const std::vector<ControlWidget*> controls = ShownControls(shown.WindowOf(form));
        for (ControlWidget* frame : controls) {
            const QRect inside = frame->Widget().contentsRect().translated(InWindow(frame->Widget()).topLeft());
            for (ControlWidget* control : controls) {
                const QRect place = InWindow(control->Widget());
                EXPECT_TRUE(control->Logical().Frame() != &frame->Logical() || inside.contains(place))
                    << form.name << ": " << control->Logical().FullName() << " at " << Text(place) << " is not in "
                    << Text(inside) << " of " << frame->Logical().FullName();
            }
        }
    }

    void Check(Form& form, const std::string& state = "") {
        shown.Settle();
        CheckFits(form);
        CheckApart(form);
        CheckInFrames(form);
        if (HasFailure() || qEnvironmentVariableIsSet("TALLYHUT_KEEP_SCREENSHOTS")) {
            shown.KeepScreenshot(form, form.name + state);
        }
    }
};

TEST_F(WindowWalkTest, NothingOfTheMainFormIsCutOrLiesOnAnother) {
    FillStation();
    Check(program.form1);
}

TEST_F(WindowWalkTest, NorWithEverythingShown) {
    FillStation();
    Form1& form = program.form1;
    for (Control* control : {static_cast<Control*>(&form.lblPostConTime), static_cast<Control*>(&form.txtPostConTime),
                             static_cast<Control*>(&form.lblPostConDate), static_cast<Control*>(&form.txtPostConDate),
                             static_cast<Control*>(&form.cmdEdit), static_cast<Control*>(&form.cmdDelete)}) {
        control->SetVisible(true);
    }
    form.txtPostConTime.SetText("21:04");
    form.txtPostConDate.SetText("2026/11/07");
    program.time.cmdLogOn_Click();
    ShowOffTimes();
    form.lblDialog.SetCaption("Duplicate VE1OP/3XX MAR 11/07 21:04:33 ON 160  Rec#  10999  Serial Rcvd: 10999");
    form.lblDialog.SetBackColor(kDialogDupe);
    form.lblDupe.SetCaption(
        "  West Central Florida   Total = 1234\r\n  160 = 200   80 = 200   40 = 200   20 = 200   15 "
        "= 200   10 = 234\r\n  Recent Spot: W4ZZZ/MM  -  14.0123  -  21:04");
    form.lblTotCon.SetCaption("10999");
    form.lblTotScore.SetCaption("1825834");
    form.cmdList.SetCaption("All");
    Check(form, "-full");
    for (const char* name : {"txtPostConTime", "txtPostConDate"}) {
        const auto* field = shown.Show(form).findChild<QLineEdit*>(name);
        ASSERT_NE(field, nullptr) << name;
        const QMargins margins = field->textMargins();
        EXPECT_LE(field->fontMetrics().horizontalAdvance(field->text()),
                  field->contentsRect().width() - margins.left() - margins.right())
            << name;
    }
}

TEST_F(WindowWalkTest, NorWithKnownCallsBeneathThePossibleDuplicates) {
    KnowCalls();
    FillStation();
    program.form1.txtCall.SetText("AA1");
    EXPECT_EQ(program.form1.lblScp.Caption().size(), 125U);
    Check(program.form1, "-known");
}

TEST_F(WindowWalkTest, ALineOfKnownCallsIsWholeAndReadable) {
    KnowCalls();
    program.form1.txtCall.SetText("AA1");
    shown.Settle();
    const auto controls = ShownControls(shown.WindowOf(program.form1));
    const auto line = std::ranges::find_if(
        controls, [this](const ControlWidget* control) { return &control->Logical() == &program.form1.lblScp; });
    ASSERT_NE(line, controls.end());
    const QSize need = (*line)->Needed((*line)->Widget().width());
    EXPECT_LE(need.height(), (*line)->Widget().height() + 1) << "in its usual size";
}

TEST_F(WindowWalkTest, WhereNoCallsAreKnownTheirLineHasNoRoom) {
    const auto heightOfTheList = [this] {
        shown.Settle();
        for (ControlWidget* control : ShownControls(shown.WindowOf(program.form1))) {
            if (&control->Logical() == &program.form1.ListView1) {
                return control->Widget().height();
            }
        }
        return 0;
    };
    const int before = heightOfTheList();
    KnowCalls();
    EXPECT_LT(heightOfTheList(), before);
    program.logPart.knownCalls.showsCalls = false;
    program.logPart.superCheck.Show();
    EXPECT_EQ(heightOfTheList(), before);
}

TEST_F(WindowWalkTest, NothingOfADialogIsCutOrLiesOnAnother) {
    program.editing.editedRow = 2;
    for (Form* form : program.desk.Forms()) {
        if (form->design.dialog && !form->Controls().empty()) {
            shown.Show(*form);
            Check(*form);
            form->Hide();
        }
    }
}

TEST_F(WindowWalkTest, ADialogStandsOnTheScreenWithTheFrameThatTheDesktopPutsAroundIt) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    for (Form* form : program.desk.Forms()) {
        if (form->design.dialog && !form->Controls().empty()) {
            form->SetFormPlace({-60, -75, 2 * form->design.width, 7200});
            const QWidget& window = shown.Show(*form);
            EXPECT_TRUE(screen.contains(window.frameGeometry()))
                << form->name << " at " << Text(window.frameGeometry());
            form->Hide();
        }
    }
}

TEST_F(WindowWalkTest, TheWarningsOfTheEditFormMoveNothing) {
    program.editing.editedRow = 2;
    frmEditCon& form = program.editForm;
    QWidget& window = shown.Show(form);
    std::map<const ControlWidget*, QRect> before;
    for (ControlWidget* control : ShownControls(window)) {
        before[control] = InWindow(control->Widget());
    }
    form.Label1.SetVisible(true);
    form.Label2.SetVisible(true);
    form.cmdDeleteDupe.SetVisible(true);
    Check(form, "-warnings");
    for (ControlWidget* control : ShownControls(window)) {
        const auto found = before.find(control);
        EXPECT_TRUE(found == before.end() || found->second == InWindow(control->Widget()))
            << control->Logical().FullName();
    }
}

TEST_F(WindowWalkTest, AddressOfARadiosServerTakesThePlaceOfThePortAndMovesNothing) {
    RigControlfrm& form = program.rigForm;
    shown.Show(form);
    const auto pick = [&](std::string_view rig) {
        const std::vector<std::string>& rigs = form.List1.Items();
        form.List1.SelectRow(static_cast<int>(std::ranges::find(rigs, rig) - rigs.begin()));
        program.rigSetup.List1_Click();
        shown.Settle();
        std::map<std::string, QRect> places;
        for (ControlWidget* control : ShownControls(shown.WindowOf(form))) {
            places[control->Logical().FullName()] = InWindow(control->Widget());
        }
        return places;
    };
    const std::map<std::string, QRect> told = pick("Kenwood");
    const QRect panels = told.at("fraPort") | told.at("fraPower");
    for (const char* rig : {"Hamlib (rigctld)", "flrig"}) {
        const std::map<std::string, QRect> places = pick(rig);
        for (const auto& [name, place] : places) {
            EXPECT_EQ(Text(place), Text(told.contains(name) ? told.at(name) : place)) << name;
        }
        EXPECT_FALSE(places.contains("fraPort") || places.contains("optComm(0)") || places.contains("fraBaud"));
        ASSERT_TRUE(places.contains("fraRigServer") && places.contains("txtRigHost"));
        EXPECT_EQ(places.at("fraRigServer").topLeft(), panels.topLeft());
        EXPECT_TRUE(places.at("fraRigServer").contains(panels));
        for (const char* link : {"Closed", "Connecting", "Connected", "No answer"}) {
            form.lblRigLink.SetCaption(link);
            shown.Settle();
            Check(form, "-server");
        }
    }
    EXPECT_EQ(pick("Kenwood"), told);
}

TEST_F(WindowWalkTest, AReportOfAnImportHasItsRoomHoweverLongItIs) {
    frmImport& form = program.importPart.importForm;
    shown.Show(form);
    form.lblReport.SetCaption(
        "10999 contacts, 85 sections, score 1869830, now in /home/operator/Documents/Tallyhut Log/" +
        std::string(80, 'x') + ". 123456 lines were not imported. The list ends before 113456 more remarks.");
    form.lstReport.SetRows(10'000, [](std::size_t row, std::size_t column) {
        return column == 0 ? std::to_string(row + 1) : "Not understood: a contact has 14 words";
    });
    Check(form, "-long");
}

TEST_F(WindowWalkTest, TypingMovesNothingOnTheMainForm) {
    KnowCalls();
    shown.Settle();
    QWidget& window = shown.WindowOf(program.form1);
    std::map<const ControlWidget*, QRect> before;
    for (ControlWidget* control : ShownControls(window)) {
        before[control] = InWindow(control->Widget());
    }
    program.time.cmdLogOn_Click();
    shown.Type("88aw4an");
    shown.Settle();
    for (ControlWidget* control : ShownControls(window)) {
        EXPECT_EQ(Text(before.at(control)), Text(InWindow(control->Widget()))) << control->Logical().FullName();
    }
}

/// Its labels take room that the panel of the clocks has beside the entry row.
TEST_F(WindowWalkTest, TheOffTimeClockMovesNothingOutsideOfItsPanelAndNothingWhileItRuns) {
    QWidget& window = shown.WindowOf(program.form1);
    const QWidget* clocks = window.findChild<QWidget*>("lblutctime")->parentWidget()->parentWidget();
    std::map<const ControlWidget*, QRect> before;
    for (ControlWidget* control : ShownControls(window)) {
        before[control] = InWindow(control->Widget());
    }
    ShowOffTimes();
    Check(program.form1, "-off-time");
    for (ControlWidget* control : ShownControls(window)) {
        const QRect place = InWindow(control->Widget());
        if (!clocks->isAncestorOf(&control->Widget())) {
            EXPECT_EQ(Text(before.at(control)), Text(place)) << control->Logical().FullName();
        }
        before[control] = place;
    }
    program.form1.lblOffCaption.SetCaption("Off time");
    program.form1.lblOff.SetCaption("");
    shown.Settle();
    for (ControlWidget* control : ShownControls(window)) {
        EXPECT_EQ(Text(before.at(control)), Text(InWindow(control->Widget()))) << control->Logical().FullName();
    }
}

/// So that each band of the map has three spots near its middle, and one has many.
void PostOnAllBands(SpotsPart& spots) {
    constexpr std::array kMiddles{1850, 3700, 7100, 10120, 14175, 18100, 21200, 24930, 28400, 50100, 145000};
    for (const int middle : kMiddles) {
        for (const int beside : {-8, 0, 1}) {
            spots.posts.BandMapSpots("VE3ABC", std::to_string(middle + beside), "de K3LR:");
        }
    }
    for (int i = 0; i < 9; ++i) {
        spots.posts.BandMapSpots("K" + std::to_string(i % 10) + "ABC", "7101." + std::to_string(i % 3), "de K3LR:");
    }
}

TEST_F(WindowWalkTest, NothingOfTheSpectrumIsCutOrLiesOnAnother) {
    if (IsBeyondTheScreen(program.spotsPart.spectrumForm)) {
        GTEST_SKIP();
    }
    PostOnAllBands(program.spotsPart);
    shown.Show(program.spotsPart.spectrumForm);
    Check(program.spotsPart.spectrumForm);
}

/// A form as full as a form gets, of all kinds of controls.
struct DenseForm : Form {
    explicit DenseForm(Desk& owner, bool scaledByItself = false)
        : Form{owner, "frmDense", "Dense", {.width = 9000, .height = 6600}},
          captions{0, kRows - 1,
                   [this](int i) {
                       return std::make_unique<Label>(*this, "lblField", i, "Number of sections " + std::to_string(i),
                                                      LabelDesign{.place = {180, Top(i) + 45, 1900, 225}});
                   }},
          fields{0, kRows - 1, [this](int i) {
                     return std::make_unique<TextBox>(
                         *this, "txtField" + std::to_string(i),
                         TextBoxDesign{.place = {2160, Top(i), 1500, 315}, .tabIndex = i + 1});
                 }} {
        for (int i = 0; i < 4; ++i) {
            options.push_back(std::make_unique<Option>(
                *this, "optPower" + std::to_string(i), "Operator power " + std::to_string(i),
                ButtonDesign{.place = {4140, 480 + i * 315.0, 1800, 285}, .tabIndex = 40 + i}));
            options.back()->PutInto(frame);
        }
        SetFormPlace({0, 0, design.width, design.height});
        if (scaledByItself) {
            ScaleLikeTheProgram();
        }
    }

    static constexpr int kRows = 16;
    static double Top(int row) { return 180 + row * 360.0; }

    /// Twice the design in each direction, and text by as much as forms let it grow.
    void ScaleLikeTheProgram() {
        SetFormPlace({0, 0, design.width * 2, design.height * 2});
        for (Control* control : Controls()) {
            const Place& place = control->State().place;
            control->SetPlace({place.left * 2, place.top * 2, place.width * 2, place.height * 2});
            control->SetFontSize(control->State().fontSize * 1.5);
        }
    }

    FrameBox frame{*this, "Frame1", "Power:", {3960, 180, 2160, 1650}};
    std::vector<std::unique_ptr<Option>> options;
    CheckBox check{*this, "chkSpots", "Color needed spots green", {.place = {6360, 180, 2400, 300}, .tabIndex = 50}};
    Button change{*this, "cmdChange", "Change \"Remaining\" Color", {.place = {6360, 600, 2400, 375}, .tabIndex = 51}};
    Label hint{*this,
               "lblHint",
               "A text of some length that goes on in a second and in a third line where it has to.",
               {.place = {3960, 2000, 4800, 700}}};
    TextBox page{*this, "txtPage", {.place = {3960, 2880, 4800, 1500}, .tabIndex = 52, .multiLine = true}};
    List list{*this, "lstRigs", {.place = {3960, 4560, 4800, 1200}, .tabIndex = 53}};
    Button done{*this, "cmdDone", "Done", {.place = {7440, 6000, 1320, 420}, .tabIndex = 54}};
    ControlArray<Label> captions;
    ControlArray<TextBox> fields;
};

TEST_F(WindowWalkTest, ADenseDialogIsDrawnWholeFromItsDesign) {
    DenseForm form{program.desk};
    form.page.SetText("This is a soapbox.\r\nIt has two lines.");
    form.list.SetItems({"Kenwood", "Yaesu 990", "Icom"});
    shown.Show(form);
    Check(form);
}

TEST_F(WindowWalkTest, SoIsOneThatHasScaledItself) {
    DenseForm form{program.desk, true};
    QWidget& window = shown.Show(form);
    window.resize(QGuiApplication::primaryScreen()->availableSize() * 0.9);
    Check(form, "-scaled");
}

TEST_F(WindowWalkTest, AWindowThatIsTooSmallForItsTextScrolls) {
    DenseForm form{program.desk};
    QWidget& window = shown.Show(form);
    window.resize(180, 120);
    shown.Settle();
    auto* bar = window.findChild<QScrollArea*>()->verticalScrollBar();
    EXPECT_GT(bar->maximum(), 0);
    form.done.SetFocus();
    shown.Settle();
    EXPECT_GT(bar->value(), 0) << "what has the focus is in view";
}

TEST_F(WindowWalkTest, AMessageOfAnyLengthPushesNoFormApart) {
    CWFrm& messages = program.keyingPart.form;
    frmCWStrings& list = program.keyingPart.stringsForm;
    messages.Load();
    messages.Text1.SetText(std::string(10'000, 'E'));
    for (Form* form : {static_cast<Form*>(&messages), static_cast<Form*>(&list)}) {
        QWidget& window = shown.Show(*form);
        window.resize(1000, 560);
        shown.Settle();
        program.desk.RunPending();
        shown.Settle();
        EXPECT_EQ(window.findChild<QScrollArea*>()->horizontalScrollBar()->maximum(), 0) << form->name;
    }
    EXPECT_EQ(messages.lblPreview.Caption().size(), 10'000U);
    EXPECT_EQ(list.lblCWString(0).Caption().size(), 10'000U);
}

/// The picture of the spots as the core lays it out: a frame, a scale, and labels beside the scale.
TEST_F(WindowWalkTest, TheStripOfTheSpotsTakesItsRoomFromTheContacts) {
    FillStation();
    QWidget& window = shown.WindowOf(program.form1);
    const auto* contacts = window.findChild<QWidget*>("ListView1");
    const auto* call = window.findChild<QWidget*>("txtCall");
    const int wide = contacts->width();
    const QRect callBefore = call->geometry();
    Form1& form = program.form1;
    SpotsPart& spots = program.spotsPart;
    spots.bandMap.PacketResize(SpotDisplay::Map);
    for (int i = 0; i < 6; ++i) {
        spots.posts.BandMapSpots("VE3ABC", std::to_string(7'020 + i), "de K3LR");
    }
    Check(form, "-spots");
    EXPECT_LT(contacts->width(), wide);
    EXPECT_EQ(Text(call->geometry()), Text(callBefore));
    spots.bandMap.PacketResize(SpotDisplay::None);
    shown.Settle();
    EXPECT_EQ(contacts->width(), wide);
}

bool MustBeNamed(QAccessible::Role role) {
    switch (role) {
        case QAccessible::EditableText:
        case QAccessible::StaticText:
        case QAccessible::PushButton:
        case QAccessible::RadioButton:
        case QAccessible::CheckBox:
        case QAccessible::Grouping:
        case QAccessible::Tree:
        case QAccessible::Table:
        case QAccessible::List:
        case QAccessible::MenuItem:
        case QAccessible::Window:
            return true;
        default:
            return false;
    }
}

/// Names what has none, with the way to it.
void WalkNames(QAccessibleInterface& item, const std::string& way, int& controls) {
    const std::string here = way + " > role " + std::to_string(item.role());
    if (MustBeNamed(item.role())) {
        ++controls;
        EXPECT_FALSE(item.text(QAccessible::Name).trimmed().isEmpty())
            << here << ' ' << (item.object() == nullptr ? "" : item.object()->objectName().toStdString());
    }
    const bool cells = item.role() == QAccessible::Tree || item.role() == QAccessible::Table;
    for (int i = 0; i < item.childCount() && !cells; ++i) {
        if (QAccessibleInterface* child = item.child(i)) {
            WalkNames(*child, here + ' ' + item.text(QAccessible::Name).toStdString(), controls);
        }
    }
}

TEST_F(WindowWalkTest, EveryControlHasANameAndARoleForScreenReaders) {
    program.form1.ListView1.SelectRow(1);
    for (Form* form : program.desk.Forms()) {
        if (form->Controls().empty()) {
            continue;
        }
        QWidget& window = shown.Show(*form);
        for (ControlWidget* control : ShownControls(window)) {
            QAccessibleInterface* item = QAccessible::queryAccessibleInterface(&control->Widget());
            ASSERT_NE(item, nullptr) << form->name << '.' << control->Logical().FullName();
            EXPECT_NE(item->role(), QAccessible::NoRole) << form->name << '.' << control->Logical().FullName();
            const std::string name = item->text(QAccessible::Name).trimmed().toStdString();
            EXPECT_NE(name, "") << form->name << '.' << control->Logical().FullName();
            EXPECT_NE(name, control->Logical().FullName()) << form->name << ": an identifier says nothing";
        }
        int controls = 0;
        WalkNames(*QAccessible::queryAccessibleInterface(&window), form->name, controls);
        EXPECT_GT(controls, 1) << form->name;
        if (form != &program.form1) {
            form->Hide();
        }
    }
}

}  // namespace
}  // namespace tallyhut
