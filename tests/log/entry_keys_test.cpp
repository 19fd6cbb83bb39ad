#include "log/entry_flow.h"
#include "tests/log/program_fixture.h"

namespace tallyhut {
namespace {

using std::string_literals::operator""s;

constexpr const char* kReminder = "Click Log \"Time On\"!";

TEST(KeyFilters, CapitalChangesSmallLettersAlone) {
    for (int code = 0; code < 256; ++code) {
        int key = code;
        Capital(key);
        EXPECT_EQ(key, code >= 'a' && code <= 'z' ? code - 32 : code) << code;
    }
}

TEST(KeyFilters, NumberPassesDigitsAndBackspaceAlone) {
    for (int code = 0; code < 256; ++code) {
        int key = code;
        number(key);
        EXPECT_EQ(key, code == 8 || (code >= '0' && code <= '9') ? code : 0) << code;
    }
}

/// Keys typed into one field of an entry as it stands, and what becomes of the entry.
struct KeyCase {
    int line;  ///< of the case in this file
    int mode;
    std::array<std::string_view, 5> before;  ///< the fields in the order of the exchange, carets behind the texts
    std::string_view field;                  ///< that has the focus
    std::string_view typed;
    std::string_view after;  ///< the fields
    std::string_view focus;
    bool secondLook = false;  ///< in mode 3: the contact has bounced before
};

struct EntryKeysTest : ProgramFixture {
    void Check(const KeyCase& one) {
        SCOPED_TRACE(testing::Message() << "line " << one.line << ", mode " << one.mode << ", " << one.typed << " in "
                                        << one.field);
        StartOnTime(one.mode);
        // The number field has had its first focus, and every field can be reached without a bounce.
        program->fields.gPassedCallTwice = true;
        program->entry.numHasHadFocus = true;
        Main().Find(one.field)->SetFocus();
        TheDesk().RunPending();
        FillAll(one.before[0], one.before[1], one.before[2], one.before[3], one.before[4]);
        program->fields.gPassedCallTwice = one.secondLook;
        Type(one.typed);
        EXPECT_EQ(Fields(), one.after);
        EXPECT_EQ(FocusedField(), one.focus);
        EXPECT_EQ(program->entry.gCarryFrom, kNoCarry);
        program.reset();
    }
    void CheckAll(std::initializer_list<KeyCase> cases) {
        for (const KeyCase& one : cases) {
            Check(one);
        }
    }
};

TEST_F(EntryKeysTest, NumberField) {
    for (const int mode : {1, 2, 3}) {
        CheckAll({
            {__LINE__, mode, {}, "txtNum", "123", "123||||", "txtNum"},
            {__LINE__, mode, {}, "txtNum", "0", "0||||", "txtNum"},
            {__LINE__, mode, {}, "txtNum", "123456", "12345||||", "txtNum"},  // five characters
            {__LINE__, mode, {}, "txtNum", "12\b", "1||||", "txtNum"},
            {__LINE__, mode, {}, "txtNum", "\b", "||||", "txtNum"},
            {__LINE__, mode, {}, "txtNum", "12 ", "12||||", "txtPre"},
            {__LINE__, mode, {}, "txtNum", " ", "||||", "txtPre"},
            {__LINE__, mode, {}, "txtNum", "1-/.,+\"2", "12||||", "txtNum"},  // below the digits: dropped
            {__LINE__, mode, {}, "txtNum", "123a", "123|A|||", "txtPre"},
            {__LINE__, mode, {}, "txtNum", "123A", "123|A|||", "txtPre"},
            {__LINE__, mode, {}, "txtNum", "123x", "123||||", "txtPre"},  // refused: the field is empty, no NUL in it
            {__LINE__, mode, {}, "txtNum", "1:", "1||||", "txtPre"},
            {__LINE__, mode, {}, "txtNum", "1@", "1||||", "txtPre"},
            {__LINE__, mode, {}, "txtNum", "1\xE9", "1||||", "txtPre"},
            {__LINE__, mode, {"", "B"}, "txtNum", "1q", "1|Q|||", "txtPre"},  // what stood there is replaced
            {__LINE__, mode, {"", "B"}, "txtNum", "1z", "1||||", "txtPre"},
            {__LINE__, mode, {"", "B"}, "txtNum", "1 ", "1|B|||", "txtPre"},
            {__LINE__, mode, {"12345"}, "txtNum", "m", "12345|M|||", "txtPre"},
        });
    }
}

TEST_F(EntryKeysTest, PrecedenceFieldTakesSixLetters) {
    for (int code = 33; code < 127; ++code) {
        const char key = static_cast<char>(code);
        const char capital = key >= 'a' && key <= 'z' ? static_cast<char>(key - 32) : key;
        const bool taken = std::string_view{"ABQUMS"}.find(capital) != std::string_view::npos;
        StartOnTime(1);
        Focus(Main().txtPre);
        Type({&key, 1});
        EXPECT_EQ(Main().txtPre.Text(), taken ? std::string(1, capital) : "") << key;
        EXPECT_EQ(FocusedField(), "txtPre") << key;
        program.reset();
    }
}

TEST_F(EntryKeysTest, PrecedenceField) {
    for (const int mode : {1, 2, 3}) {
        CheckAll({
            {__LINE__, mode, {}, "txtPre", "\b", "||||", "txtPre"},
            {__LINE__, mode, {}, "txtPre", "5", "||||", "txtPre"},
            {__LINE__, mode, {"", "A"}, "txtPre", "\b", "||||", "txtPre"},
            {__LINE__, mode, {"", "A"}, "txtPre", "/", "|A|||", "txtPre"},  // 47 is no key for the next field
            {__LINE__, mode, {"", "A"}, "txtPre", "-\".", "|A|||", "txtPre"},
        });
    }
    CheckAll({
        {__LINE__, 1, {}, "txtPre", "A ", "|A|||", "txtCall"},
        {__LINE__, 1, {}, "txtPre", " ", "||||", "txtCall"},
        {__LINE__, 2, {}, "txtPre", " ", "||||", "txtCK", true},
        {__LINE__, 3, {}, "txtPre", " ", "||||", "txtCall"},
    });
}

TEST_F(EntryKeysTest, KeyBehindThePrecedenceGoesToTheCallInMode1) {
    CheckAll({
        {__LINE__, 1, {"", "A"}, "txtPre", "W", "|A|W||", "txtCall"},
        {__LINE__, 1, {"", "A"}, "txtPre", "w1xx", "|A|W1XX||", "txtCall"},
        {__LINE__, 1, {"", "A"}, "txtPre", "3", "|A|3||", "txtCall"},
        {__LINE__, 1, {"", "A"}, "txtPre", "3w1xx", "|A|3W1XX||", "txtCall"},
        {__LINE__, 1, {"", "A"}, "txtPre", "A", "|A|A||", "txtCall"},  // also a letter that is a precedence
        {__LINE__, 1, {"", "A"}, "txtPre", "=", "|A|=||", "txtCall"},
        {__LINE__, 1, {"", "A", "K1"}, "txtPre", "W", "|A|W||", "txtCall"},  // what stood there is replaced
        {__LINE__, 1, {"", "", ""}, "txtPre", "bk1ab72", "|B|K1AB|72|", "txtCK"},
        {__LINE__, 1, {"", "A", "W1XX"}, "txtPre", "7", "|A|W1XX|7|", "txtCK"},  // a digit behind a whole call goes on
    });
}

TEST_F(EntryKeysTest, KeyBehindThePrecedenceGoesToTheCheckInModes2And3) {
    for (const int mode : {2, 3}) {
        CheckAll({
            {__LINE__, mode, {"", "A"}, "txtPre", "7", "|A||7|", "txtCK", true},
            {__LINE__, mode, {"", "A"}, "txtPre", "72", "|A||72|", "txtCK", true},
            {__LINE__, mode, {"", "A", "", "99"}, "txtPre", "7", "|A||7|", "txtCK", true},
            {__LINE__, mode, {"", "A", "", "99"}, "txtPre", ":", "|A|||", "txtCK", true},  // refused: emptied, no NUL
            {__LINE__, mode, {"", "A", "", "99"}, "txtPre", "@", "|A|||", "txtCK", true},
            {__LINE__, mode, {"", "A", "", "99"}, "txtPre", "W", "|A||99|", "txtCK", true},  // the letter is lost
            {__LINE__, mode, {"", "A"}, "txtPre", "w", "|A|||", "txtCK", true},
            {__LINE__, mode, {"", "A"}, "txtPre", "A", "|A|||", "txtCK", true},
            {__LINE__, mode, {"", "A"}, "txtPre", "wm", "|A|||M", "txtSec", true},  // the next one finds its field
        });
    }
}

TEST_F(EntryKeysTest, CallField) {
    for (const int mode : {1, 2, 3}) {
        CheckAll({
            {__LINE__, mode, {}, "txtCall", "w1xx", "||W1XX||", "txtCall"},
            {__LINE__, mode, {}, "txtCall", "W12", "||W12||", "txtCall"},  // two characters: no call yet
            {__LINE__, mode, {}, "txtCall", "K2A/3", "||K2A/3||", "txtCall"},
            {__LINE__, mode, {}, "txtCall", "K2/A3B4", "||K2/A3B4||", "txtCall"},
            {__LINE__, mode, {}, "txtCall", "ABC1", "||ABC1||", "txtCall"},  // no digit before it
            {__LINE__, mode, {}, "txtCall", "AB12", "||AB12||", "txtCall"},  // the last is a digit
            {__LINE__, mode, {}, "txtCall", "ABC12", "||ABC12||", "txtCall"},
            {__LINE__, mode, {}, "txtCall", "K1A-2", "||K1A-2||", "txtCall"},  // a character below the digits
            {__LINE__, mode, {}, "txtCall", "\"W1\"X\"X\"", "||W1XX||", "txtCall"},
            {__LINE__, mode, {}, "txtCall", "W1XX\b", "||W1X||", "txtCall"},
            {__LINE__, mode, {}, "txtCall", "ABCDEFGHIJKLM", "||ABCDEFGHIJKL||", "txtCall"},
        });
    }
    CheckAll({
        {__LINE__, 1, {}, "txtCall", "K2A/3 ", "||K2A/3||", "txtCK"},
        {__LINE__, 1, {}, "txtCall", " ", "||||", "txtCK"},
        {__LINE__, 2, {}, "txtCall", "K2A/3 ", "||K2A/3||", "txtNum"},
        {__LINE__, 3, {}, "txtCall", "K2A/3 ", "||K2A/3||", "txtNum"},  // bounced from the check
        {__LINE__, 3, {}, "txtCall", "K2A/3 ", "||K2A/3||", "txtCK", true},
    });
}

TEST_F(EntryKeysTest, DigitBehindTheCallBeginsTheNextField) {
    CheckAll({
        {__LINE__, 1, {}, "txtCall", "W1AW7", "||W1AW|7|", "txtCK"},
        {__LINE__, 1, {}, "txtCall", "W1AW72", "||W1AW|72|", "txtCK"},
        {__LINE__, 1, {}, "txtCall", "W1A7", "||W1A|7|", "txtCK"},
        {__LINE__, 1, {"", "", "", "99"}, "txtCall", "W1AW7", "||W1AW|7|", "txtCK"},
        {__LINE__, 1, {}, "txtCall", "3DA0", "||3DA|0|", "txtCK"},
        {__LINE__, 2, {}, "txtCall", "W1AW1", "1||W1AW||", "txtNum"},
        {__LINE__, 2, {}, "txtCall", "W1AW123", "123||W1AW||", "txtNum"},
        {__LINE__, 2, {"99"}, "txtCall", "W1AW1", "1||W1AW||", "txtNum"},
        {__LINE__, 2, {}, "txtCall", "W1AW88a72mdc", "88|A|W1AW|72|MDC", "txtSec"},
        {__LINE__, 3, {}, "txtCall", "W1AW1", "1||W1AW||", "txtNum"},
        {__LINE__, 3, {}, "txtCall", "W1AW123", "123||W1AW||", "txtNum"},
        // On the second look the digit overwrites the number, and the focus goes on to the check.
        {__LINE__, 3, {"123", "A"}, "txtCall", "W1AW7", "7|A|W1AW||", "txtCK", true},
    });
}

TEST_F(EntryKeysTest, DigitIsInsertedWhereTheCaretIsNotAtTheEnd) {
    for (const int mode : {1, 2, 3}) {
        StartOnTime(mode);
        Focus(Main().txtCall);
        Type("K1AB");
        Press("Home");
        Type("3");
        EXPECT_EQ(Fields(), "||3K1AB||") << mode;
        EXPECT_EQ(FocusedField(), "txtCall") << mode;
        Press("End");
        Press("Left");
        Type("4");
        EXPECT_EQ(Fields(), "||3K1A4B||") << mode;
        EXPECT_EQ(FocusedField(), "txtCall") << mode;
        program.reset();
    }
}

TEST_F(EntryKeysTest, CheckField) {
    for (const int mode : {1, 2, 3}) {
        CheckAll({
            {__LINE__, mode, {}, "txtCK", "72", "|||72|", "txtCK", true},
            {__LINE__, mode, {}, "txtCK", "723", "|||72|", "txtCK", true},
            {__LINE__, mode, {}, "txtCK", "72\b", "|||7|", "txtCK", true},
            {__LINE__, mode, {}, "txtCK", "7-/\"2", "|||72|", "txtCK", true},
            {__LINE__, mode, {}, "txtCK", "72 ", "|||72|", "txtSec", true},
            {__LINE__, mode, {}, "txtCK", " ", "||||", "txtSec", true},
            {__LINE__, mode, {}, "txtCK", "72m", "|||72|M", "txtSec", true},
            {__LINE__, mode, {}, "txtCK", "72mdc", "|||72|MDC", "txtSec", true},
            {__LINE__, mode, {}, "txtCK", "M", "||||M", "txtSec", true},
            {__LINE__, mode, {}, "txtCK", ":", "||||:", "txtSec", true},
            {__LINE__, mode, {"", "", "", "72", "CT"}, "txtCK", "m", "|||72|M", "txtSec", true},
        });
    }
}

TEST_F(EntryKeysTest, SectionField) {
    for (const int mode : {1, 2, 3}) {
        CheckAll({
            {__LINE__, mode, {}, "txtSec", "mdc", "||||MDC", "txtSec"},
            {__LINE__, mode, {}, "txtSec", "mdcxy", "||||MDCX", "txtSec"},
            {__LINE__, mode, {}, "txtSec", "m\"d\"", "||||MD", "txtSec"},
            {__LINE__, mode, {}, "txtSec", "MD\b", "||||M", "txtSec"},
            {__LINE__, mode, {}, "txtSec", "1-/?", "||||1-/?", "txtSec"},  // looked at when it is committed
        });
    }
    CheckAll({
        {__LINE__, 1, {}, "txtSec", "CT ", "||||CT", "txtNum"},
        {__LINE__, 2, {}, "txtSec", "CT ", "||||CT", "txtCall"},
        {__LINE__, 3, {}, "txtSec", "CT ", "||||CT", "txtCall", true},
    });
}

TEST_F(EntryKeysTest, BlankBehindTheSectionBeginsAnotherRoundInMode3) {
    StartOnTime(3);
    program->fields.gPassedCallTwice = true;
    Focus(Main().txtSec);
    Type(" ");
    EXPECT_FALSE(program->fields.gPassedCallTwice);
}

TEST_F(EntryKeysTest, WrapFromTheSectionComesBeforeWhatIsTypedAhead) {
    StartOnTime(2);
    Focus(Main().txtSec);
    Post("CT W1XX");
    TheDesk().RunPending();
    EXPECT_EQ(Fields(), "||W1XX||CT");
}

TEST_F(EntryKeysTest, WholeExchangeNeedsNoNavigationKey) {
    struct Case {
        int mode;
        std::string_view typed;
    };
    for (const auto& [mode, typed] : {Case{1, "88aW1XX72mdc"}, Case{2, "w1xx88a72mdc"}, Case{3, "w1xx88a  72mdc"},
                                      Case{1, "88 A W1XX 72 MDC"}, Case{2, "W1XX 88 A 72 MDC"}}) {
        StartOnTime(mode);
        Type(typed);
        EXPECT_EQ(Fields(), "88|A|W1XX|72|MDC") << typed;
        EXPECT_EQ(FocusedField(), "txtSec") << typed;
        program.reset();
    }
}

TEST_F(EntryKeysTest, HandedOverKeyHasTheCaretBehindIt) {
    StartOnTime(1);
    Type("88aW1XX7");
    EXPECT_EQ(Main().txtPre.SelStart(), 1);
    EXPECT_EQ(Main().txtCK.SelStart(), 1);
    Type("2m");
    EXPECT_EQ(Main().txtSec.SelStart(), 1);
}

TEST_F(EntryKeysTest, TabIsPlainMovementInTheOrderOfTheMode) {
    const std::vector<std::string> exchangeOrder{"txtNum", "txtPre", "txtCall", "txtCK", "txtSec"};
    const std::vector<std::string> callFirst{"txtCall", "txtNum", "txtPre", "txtCK", "txtSec"};
    for (const auto& [mode, order] : {std::pair{1, exchangeOrder}, {2, callFirst}, {3, exchangeOrder}}) {
        StartOnTime(mode);
        program->fields.gPassedCallTwice = true;
        Focus(*static_cast<TextBox*>(Main().Find(order.front())));
        FillAll("88", "A", "W1XX", "72", "MDC");
        for (std::size_t i = 1; i <= 5; ++i) {
            Press("Tab");
            EXPECT_EQ(FocusedField(), order[i % 5]) << mode;
        }
        for (std::size_t i = 5; i-- > 0;) {
            Press("Shift+Tab");
            EXPECT_EQ(FocusedField(), order[i]) << mode;
        }
        EXPECT_EQ(Fields(), "88|A|W1XX|72|MDC") << mode;
        program.reset();
    }
}

TEST_F(EntryKeysTest, FieldsHaveTheirLengths) {
    Start();
    EXPECT_EQ(Main().txtNum.State().maxLength, 5);
    EXPECT_EQ(Main().txtPre.State().maxLength, 1);
    EXPECT_EQ(Main().txtCall.State().maxLength, 12);
    EXPECT_EQ(Main().txtCK.State().maxLength, 2);
    EXPECT_EQ(Main().txtSec.State().maxLength, 4);
}

TEST_F(EntryKeysTest, PasteBringsNeitherQuoteNorLineEnd) {
    Start();
    clipboard.text = "W1\"X\r\nX";
    Focus(Main().txtCall);
    Press("Shift+Insert");
    clipboard.text = "M\"D\r\nC";
    Focus(Main().txtSec);
    Press("Shift+Insert");
    EXPECT_EQ(Fields(), "||W1XX||MDC");
}

TEST_F(EntryKeysTest, CtrlKeysTypeNothingAndSwallowNoLaterKey) {
    StartOnTime(2);
    for (const std::string_view name : {"Ctrl+K", "Ctrl+H", "Ctrl+M", "Ctrl+1", "Ctrl+F5"}) {
        Type("K");
        const std::string before = Fields();
        Press(name);
        EXPECT_EQ(Fields(), before) << name;
    }
    EXPECT_EQ(Fields(), "||KKKKK||");
}

// What the keys say beside the fields.

TEST_F(EntryKeysTest, NumberKeyShowsTheSerialToSend) {
    StartWith({Worked("W1XX")});
    ASSERT_EQ(Main().lblNumCurCon.Caption(), " 138");
    program->log.Change(1, [](Contact& contact) { contact.Ns = "41"; });
    Type("8");
    EXPECT_EQ(Main().lblNumCurCon.Caption(), "  42");
}

TEST_F(EntryKeysTest, NumberKeyLeavesTheSerialOfAnEmptyLog) {
    StartWith({});
    Type("8");
    EXPECT_EQ(Main().lblNumCurCon.Caption(), "1");
}

TEST_F(EntryKeysTest, NumberKeyBlanksTheLine) {
    StartOnTime(1);
    Main().lblDialog.SetCaption("something");
    Main().lblDialog.SetBackColor(0x0000FF);
    Main().lblDupe.SetCaption("W1XX ");
    Main().lblDupe.SetBackColor(0xC0C000);
    Type("8");
    EXPECT_EQ(Dialog(), " ");
    EXPECT_EQ(DialogGround(), 0xC0C000);
    EXPECT_EQ(Partials(), "");
    EXPECT_EQ(Main().lblDupe.State().backColor, kButtonFace);
}

TEST_F(EntryKeysTest, NumberAndCallRemindOfTheTimeAndTakeTheKey) {
    StartInMode(1);
    EXPECT_EQ(Dialog(), "Select a band from the menu bar and click Log \"Time On\" below!");
    Type("8");
    EXPECT_EQ(Dialog(), kReminder);
    EXPECT_EQ(dialogs.beeps, 1);
    Type("8");
    EXPECT_EQ(dialogs.beeps, 2);
    Focus(Main().txtCall);
    Type("W");
    EXPECT_EQ(Dialog(), kReminder);
    EXPECT_EQ(dialogs.beeps, 3);
    EXPECT_EQ(Fields(), "88||W||");
}

TEST_F(EntryKeysTest, OtherFieldsDoNotRemind) {
    StartInMode(1);
    for (TextBox* field : {&Main().txtPre, &Main().txtCK, &Main().txtSec}) {
        Focus(*field);
        Type("A");
    }
    EXPECT_EQ(dialogs.beeps, 0);
}

TEST_F(EntryKeysTest, FirstKeysOfACallBlankTheLineWhileTheTimeRuns) {
    StartOnTime(2);
    Main().lblDialog.SetCaption("something");
    Type("W");
    EXPECT_EQ(Dialog(), " ");
}

TEST_F(EntryKeysTest, CallKeyResetsTheSizeOfThePartialList) {
    StartOnTime(2);
    Main().lblDupe.SetFontSize(14);
    Type("W");
    EXPECT_EQ(Main().lblDupe.State().fontSize, 9);
}

TEST_F(EntryKeysTest, SizeOfThePartialListIsScaledWithTheForm) {
    screen.whole = {12000, 9000};
    StartOnTime(2);
    Main().lblDupe.SetFontSize(14);
    Type("W");
    EXPECT_EQ(Main().lblDupe.State().fontSize, 11.25);
}

TEST_F(EntryKeysTest, EnterCommitsFromEveryField) {
    for (const std::string_view field : {"txtNum", "txtPre", "txtCall", "txtCK", "txtSec"}) {
        files.contents.erase(kLogPath);
        StartInMode(1);
        Main().Find(field)->SetFocus();
        FillAll("88", "A", "W1XX", "72", "MDC");
        Press("Enter");
        EXPECT_EQ(program->log.gContactCount(), 1) << field;
        EXPECT_EQ(LogLines().size(), 1U) << field;
        EXPECT_EQ(Fields(), "||||") << field;
        program.reset();
    }
}

TEST_F(EntryKeysTest, ToolTipsHelpTheOperator) {
    Start();
    EXPECT_EQ(Main().lblDialog.State().toolTip,
              "It is not necessary to press Space or Tab to tab unless the Callsign includes a \"/\".");
    EXPECT_EQ(Main().cmdClear.Caption(), "&Clear");
    EXPECT_EQ(Main().cmdClear.State().toolTip, "Click to clear entry fields or press ALT C");
}

TEST_F(EntryKeysTest, ClearEmptiesTheEntry) {
    for (const auto& [mode, first] : {std::pair{1, "txtNum"}, {2, "txtCall"}, {3, "txtCall"}}) {
        for (const bool byKey : {true, false}) {
            StartOnTime(mode);
            Focus(Main().txtSec);
            FillAll("88", "A", "W1XX", "72", "MDC");
            program->fields.gPassedCallTwice = true;
            Main().lblDupe.SetCaption("W1XX ");
            Main().lblDupe.SetBackColor(0xC0C000);
            Main().lblDialog.SetBackColor(0x0000FF);
            if (byKey) {
                Press("Alt+C");
            } else {
                Click(Main().cmdClear);
            }
            EXPECT_EQ(Fields(), "||||") << mode;
            EXPECT_EQ(FocusedField(), first) << mode;
            EXPECT_FALSE(program->fields.gPassedCallTwice) << mode;
            EXPECT_EQ(Partials(), "") << mode;
            EXPECT_EQ(Main().lblDupe.State().backColor, kButtonFace) << mode;
            EXPECT_EQ(Dialog(), " ") << mode;
            EXPECT_EQ(DialogGround(), 0xC0C000) << mode;
            program.reset();
        }
    }
}

TEST_F(EntryKeysTest, KeysTypedAheadFindTheirFieldsInOrder) {
    StartOnTime(1);
    Post("88aW1XX72mdc");
    PostNamed("Enter");
    Post("89bK1AB73ct");
    TheDesk().RunPending();
    EXPECT_EQ(program->log.gContactCount(), 1);
    EXPECT_EQ(program->log.Row(1).Call, "W1XX");
    EXPECT_EQ(Fields(), "89|B|K1AB|73|CT");
}

}  // namespace
}  // namespace tallyhut
