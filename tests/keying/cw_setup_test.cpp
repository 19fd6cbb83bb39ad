#include "tests/keying/keying_fixture.h"

namespace tallyhut {
namespace {

using Lines = std::vector<std::string>;

constexpr const char* kStored =
    "\"CQ SS "
    "$\"\r\n\"2\"\r\n\"3\"\r\n\"4\"\r\n\"5\"\r\n\"6\"\r\n\"7\"\r\n\"8\"\r\n\"\"\r\n\"4\"\r\n\"24\"\r\n\"F10\"\r\n"
    "\"F11\"\r\n\"-4\"\r\n2\r\n\"&H278\"\r\n1\r\n\"5\"\r\n";

struct CwSetupTest : KeyingFixture {
    void StartWithMessages(const std::string& text, const std::string& name = "CW.txt") {
        files.Put(std::string{kFolder} + '/' + name, text);
        StartOnTime();
    }
    void Show() {
        Cw().Show();
        TheDesk().RunPending();
    }
    std::string Outputs() {
        std::string chosen;
        for (const Option* option : {&Cw().Option1, &Cw().Option2, &Cw().Option3, &Cw().Option4, &Cw().Option5}) {
            chosen += option->Value() ? option->Caption() + ' ' : "";
        }
        return chosen;
    }
};

TEST_F(CwSetupTest, FormTellsHowItIsUsed) {
    StartOnTime();
    std::string texts;
    for (const Control* control : Cw().Controls()) {
        texts += control->State().text + '\n';
    }
    for (const char* told :
         {"A ! in the string enters the contact.", "Wildcards are $ for Call, * for RST  and # for Number",
          "Up / Down arrows on main form change speed.", "(0 is standard, -8 is no spacing)",
          "The program will not generate a side tone so make sure your transceiver is set to produce one.",
          "You must be in CW mode.", "Timer is the preferred option on most systems. ", "Times by a For Next loop.",
          "Loops per 60 ms", "Word Space", "Loop (Sec)", "Prosigns", "AR  [", "CL  \\", "SK  ]", "KN  ;", "BT  ="}) {
        EXPECT_NE(texts.find(told), std::string::npos) << told;
    }
}

// The file.

TEST_F(CwSetupTest, StartReadsTheMessages) {
    StartWithMessages(kStored);
    EXPECT_TRUE(Cw().IsLoaded());
    EXPECT_FALSE(Cw().IsVisible());
    EXPECT_EQ(Cw().Text1.Text(), "CQ SS $");
    EXPECT_EQ(Cw().Text9.Text(), "VVV DE ") << "the ninth line is empty";
    EXPECT_EQ(Cw().Text12.Text(), "F10");
    EXPECT_EQ(Cw().Text10.Text() + ' ' + Cw().Text11.Text() + ' ' + Cw().txtSpace.Text() + ' ' + Cw().Text14.Text(),
              "4 24 -4 &H278");
    EXPECT_TRUE(Cw().Check1.Value());
    EXPECT_EQ(Outputs(), "DTR ");
    EXPECT_EQ(Sender().gCWKeying, 2);
    EXPECT_EQ(Cw().tmrRepeat.Interval(), 5'000);
    EXPECT_FALSE(Cw().tmrRepeat.Enabled());
}

TEST_F(CwSetupTest, EachStoredOutputChoosesItsOption) {
    const std::vector<std::pair<const char*, const char*>> cases{
        {"0", "None "}, {"1", "RTS "}, {"2", "DTR "}, {"3", "Printer "}, {"4", ""}, {"5", "WinKey "}, {"9", ""}};
    for (const auto& [kept, shown] : cases) {
        std::string text = kStored;
        text.replace(text.find("\r\n2\r\n\"&H") + 2, 1, kept);
        StartWithMessages(text);
        EXPECT_EQ(Outputs(), shown) << kept;
        EXPECT_EQ(std::to_string(Sender().gCWKeying), kept);
        EXPECT_EQ(Cw().cmdConfWinkey.State().visible, Sender().gCWKeying == 5) << kept;
    }
}

TEST_F(CwSetupTest, WithoutAFileTheFormKeepsItsDefaults) {
    StartOnTime();
    EXPECT_EQ(Cw().Text9.Text(), "");
    EXPECT_EQ(Cw().Text10.Text() + ' ' + Cw().Text11.Text() + ' ' + Cw().txtSpace.Text() + ' ' + Cw().Text14.Text() +
                  ' ' + Cw().txtCWLoop.Text() + ' ' + Cw().txtLoop.Text(),
              "0 13 0 &H378 0 0");
    EXPECT_EQ(Outputs(), "");
    EXPECT_EQ(Sender().gCWKeying, 0);
    EXPECT_TRUE(Cw().optTimer.Value());
    EXPECT_EQ(dialogs.boxes, Lines{});
}

TEST_F(CwSetupTest, EmptyFileLeavesAllAsItIs) {
    StartWithMessages("");
    EXPECT_EQ(Cw().Text9.Text(), "");
    EXPECT_EQ(Cw().tmrRepeat.Interval(), 0);
    EXPECT_FALSE(Cw().tmrRepeat.Enabled());
}

TEST_F(CwSetupTest, ShortFileShowsNoOutput) {
    StartWithMessages(std::string{kStored}.substr(0, std::string{kStored}.find("\"&H278\"")));
    EXPECT_EQ(Cw().Text1.Text(), "CQ SS $");
    EXPECT_EQ(Sender().gCWKeying, 2) << "as it was read";
    EXPECT_EQ(Outputs(), "");
    EXPECT_EQ(Cw().Text14.Text(), "&H378");
}

TEST_F(CwSetupTest, RepeatThatIsNoNumberShowsNoOutput) {
    for (const char* seconds : {"\"five\"", "\"-1\"", "\"\"", "\"1E99\""}) {
        std::string text = kStored;
        text.replace(text.find("\"5\"\r\n", text.find("&H278")), 3, seconds);
        StartWithMessages(text);
        EXPECT_EQ(Outputs(), "") << seconds;
        EXPECT_EQ(Cw().tmrRepeat.Interval(), 0) << seconds;
    }
}

TEST_F(CwSetupTest, FileIsReadUnderAnySpellingOfItsName) {
    for (const char* name : {"cw.txt", "CW.TXT", "Cw.Txt"}) {
        files.contents.erase("/contest/cw.txt");
        files.contents.erase("/contest/CW.TXT");
        StartWithMessages(kStored, name);
        EXPECT_EQ(Cw().Text1.Text(), "CQ SS $") << name;
    }
}

TEST_F(CwSetupTest, DoneLeavesOneFileOfTheName) {
    StartWithMessages(kStored, "cw.txt");
    Show();
    Click(Cw().Command1);
    EXPECT_FALSE(files.contents.contains("/contest/cw.txt"));
    std::string expected = kStored;
    expected.replace(expected.find("\"\"\r\n"), 2, "\"VVV DE \"");
    EXPECT_EQ(OnDisk(kMessagesPath), expected);
}

TEST_F(CwSetupTest, RightSpellingIsReadWhereThereAreTwo) {
    files.Put("/contest/cw.txt", "\"OLD\"\r\n");
    StartWithMessages(kStored);
    EXPECT_EQ(Cw().Text1.Text(), "CQ SS $");
}

TEST_F(CwSetupTest, OtherSpellingThatCannotBeRemovedIsNoFailure) {
    StartWithMessages(kStored, "cw.txt");
    Show();
    files.FailAt(2, "Operation not permitted");
    Cw().OptSleep.SetValue(true);
    Click(Cw().Command1);
    EXPECT_EQ(settings.Get("Settings", "UserCWSelection"), "Sleep");
    StartOnTime();
    EXPECT_EQ(Cw().Text9.Text(), "VVV DE ");
}

TEST_F(CwSetupTest, DoneStoresHidesAndShowsTheListMinimised) {
    StartKeying();
    Show();
    Cw().Text1.SetText("TEST");
    Click(Cw().Command1);
    EXPECT_TRUE(OnDisk(kMessagesPath).starts_with("\"TEST\"\r\n"));
    EXPECT_FALSE(Cw().IsVisible());
    EXPECT_TRUE(Cw().IsLoaded());
    EXPECT_TRUE(Strings().IsMinimised());
    EXPECT_TRUE(Main().IsActive());
    EXPECT_EQ(settings.Get("Settings", "UserCWSelection"), "Timer");
    EXPECT_EQ(settings.Get("Settings", "UserCWLoopOffset"), "0");
}

TEST_F(CwSetupTest, DoneWithoutAnOutputShowsNoList) {
    StartOnTime();
    Show();
    Click(Cw().Command1);
    EXPECT_FALSE(Cw().IsVisible());
    EXPECT_FALSE(Strings().IsVisible());
    EXPECT_TRUE(Main().IsActive());
}

TEST_F(CwSetupTest, DoneThatCannotStoreHidesWithoutAWord) {
    StartKeying();
    Show();
    Cw().Text1.SetText("TEST");
    files.FailAt(1, "No space left on device");
    Click(Cw().Command1);
    EXPECT_FALSE(Cw().IsVisible());
    EXPECT_FALSE(Strings().IsVisible());
    EXPECT_EQ(dialogs.boxes, Lines{});
    EXPECT_EQ(OnDisk(kMessagesPath), "");
    EXPECT_EQ(Cw().Text1.Text(), "TEST");
}

TEST_F(CwSetupTest, CloseBoxHidesAndKeepsTheMessages) {
    StartKeying();
    Show();
    Cw().Text1.SetText("TEST");
    Cw().RequestClose();
    TheDesk().RunPending();
    EXPECT_FALSE(Cw().IsVisible());
    EXPECT_TRUE(Cw().IsLoaded());
    EXPECT_EQ(Cw().Text1.Text(), "TEST");
    EXPECT_EQ(OnDisk(kMessagesPath), "");
}

TEST_F(CwSetupTest, StoredMessagesComeBackAtTheNextStart) {
    StartKeying();
    Show();
    Cw().Text13.SetText(std::string(10'000, 'E'));
    Cw().Check1.SetValue(true);
    Choose(Cw().OptSleep);
    Click(Cw().Command1);
    StartOnTime();
    EXPECT_EQ(Cw().Text13.Text().size(), 10'000U);
    EXPECT_EQ(Outputs(), "RTS ");
    EXPECT_TRUE(Cw().Check1.Value());
    EXPECT_TRUE(Cw().OptSleep.Value());
}

// The timing.

TEST_F(CwSetupTest, TimingIsChosenByItsExactName) {
    const std::vector<std::pair<const char*, const char*>> cases{
        {"Timer", "Timer"}, {"Sleep", "Sleep"}, {"Loop", "Loop"}, {"", "Timer"}, {"loop", "Timer"}, {"Other", "Timer"}};
    for (const auto& [kept, chosen] : cases) {
        settings.Set("Settings", "UserCWSelection", kept);
        settings.Set("Settings", "UserCWLoopOffset", "500000");
        StartOnTime();
        for (const Option* option : {&Cw().optTimer, &Cw().OptSleep, &Cw().optLoop}) {
            EXPECT_EQ(option->Value(), option->Caption() == chosen) << kept;
        }
        EXPECT_EQ(Sender().gLoopsPer60ms, 500'000);
        EXPECT_EQ(Cw().txtLoop.Text(), "500000");
        EXPECT_EQ(Cw().txtLoop.State().enabled, chosen == std::string_view{"Loop"});
    }
}

TEST_F(CwSetupTest, LoopEnablesItsTrimming) {
    StartKeying();
    Show();
    for (const Control* control : std::initializer_list<const Control*>{&Cw().txtLoop, &Cw().lblLoop,
                                                                        &Cw().cmdLoopFaster, &Cw().cmdLoopSlower}) {
        EXPECT_FALSE(control->State().enabled) << control->name;
    }
    Click(Cw().optLoop);
    EXPECT_TRUE(Cw().txtLoop.State().enabled);
    EXPECT_EQ(Cw().txtLoop.Text(), "1000000");
    Click(Cw().cmdLoopFaster);
    EXPECT_EQ(Cw().txtLoop.Text(), "900000");
    EXPECT_EQ(Sender().gLoopsPer60ms, 900'000);
    EXPECT_EQ(Cw().Focus(), &Cw().Command1);
    Click(Cw().cmdLoopSlower);
    EXPECT_EQ(Cw().txtLoop.Text(), "1000000");
    Cw().txtLoop.SetText("many");
    Click(Cw().cmdLoopSlower);
    EXPECT_EQ(Cw().txtLoop.Text(), "many");
    EXPECT_EQ(Sender().gLoopsPer60ms, 1'000'000);
    Click(Cw().OptSleep);
    EXPECT_FALSE(Cw().cmdLoopSlower.State().enabled);
}

TEST_F(CwSetupTest, LoopThatWasMeasuredIsNotMeasuredAgain) {
    StartKeying();
    Show();
    Cw().txtLoop.SetText("123");
    const Microtick before = clock.TickUs();
    Click(Cw().optLoop);
    EXPECT_EQ(Cw().txtLoop.Text(), "123");
    EXPECT_EQ(clock.TickUs(), before);
}

// The fields.

TEST_F(CwSetupTest, FieldsTakeTheirCharacters) {
    StartKeying();
    Show();
    struct Case {
        TextBox& field;
        const char* taken;
    };
    const std::vector<Case> cases{{Cw().Text10, "0123456789:"},
                                  {Cw().Text11, "0123456789:"},
                                  {Cw().txtSpace, "-./0123456789:"},
                                  {Cw().txtCWLoop, ".0123456789"}};
    for (const Case& one : cases) {
        Focus(one.field);
        one.field.SetText("");
        Type(" !+,-./0123456789:;Aa\xE9");
        EXPECT_EQ(one.field.Text(), one.taken) << one.field.name;
        one.field.SetText("0");
    }
}

TEST_F(CwSetupTest, MessagesAreTypedInCapitals) {
    StartKeying();
    Show();
    Focus(Cw().Text1);
    Type("cq ss $ 9[\xE9");
    EXPECT_EQ(Cw().Text1.Text(), "CQ SS $ 9[\xE9");
}

TEST_F(CwSetupTest, NumbersThatAreNoneBecomeZeroWhenTheFieldIsLeft) {
    StartKeying();
    Show();
    for (TextBox* field : {&Cw().Text11, &Cw().txtSpace, &Cw().txtCWLoop}) {
        Focus(*field);
        field->SetText(":");
        Focus(Cw().Text1);
        EXPECT_EQ(field->Text(), "0") << field->name;
    }
}

TEST_F(CwSetupTest, WordSpaceIsNotBelowMinusEight) {
    StartKeying();
    Show();
    Cw().txtSpace.SetText("-9");
    EXPECT_EQ(Cw().txtSpace.Text(), "-8");
    Click(Cw().Command5);
    EXPECT_EQ(Cw().txtSpace.Text(), "-8");
    Click(Cw().Command6);
    EXPECT_EQ(Cw().txtSpace.Text(), "-7");
    Cw().txtSpace.SetText("wide");
    Click(Cw().Command6);
    EXPECT_EQ(Cw().txtSpace.Text(), "0");
    Click(Cw().Command5);
    EXPECT_EQ(Cw().txtSpace.Text(), "-1");
}

TEST_F(CwSetupTest, ButtonsChangeTheSpeed) {
    StartKeying();
    Show();
    Click(Cw().Command2);
    EXPECT_EQ(Cw().Text11.Text(), "21");
    Click(Cw().Command3);
    Click(Cw().Command3);
    EXPECT_EQ(Cw().Text11.Text(), "19");
}

TEST_F(CwSetupTest, FieldsShowTheirTextSelected) {
    StartKeying();
    Show();
    Focus(Cw().Text11);
    EXPECT_EQ(Cw().Text11.SelectedText(), "20");
    Type("3");
    EXPECT_EQ(Cw().Text11.Text(), "3");
}

// Preview and test.

TEST_F(CwSetupTest, PreviewTellsWhatTheMessageWouldSendNow) {
    PutLog(ManyContacts(11));
    StartKeying();
    Fill(Main().txtCall, "W9XYZ");
    Show();
    Focus(Cw().Text2);
    Type("$ # *");
    EXPECT_EQ(Cw().lblPreview.Caption(), "W9XYZ 12 5NN");
    Focus(Cw().Text3);
    EXPECT_EQ(Cw().lblPreview.Caption(), "");
    Cw().Text3.SetText("TU $");
    Fill(Main().txtCall, "K1A");
    EXPECT_EQ(Cw().lblPreview.Caption(), "TU K1A");
    EXPECT_EQ(Messages().gCWRst, "") << "nothing was sent";
}

TEST_F(CwSetupTest, TestSendsTheNinthMessage) {
    StartKeying();
    Show();
    Cw().Text9.SetText("VVV DE ");
    bool told = false;
    Behind(2, [&] { told = Cw().Label23.State().visible; });
    Listen();
    Click(Cw().Command4);
    EXPECT_EQ(Keyed(), Elements("VVV DE "));
    EXPECT_TRUE(told);
    EXPECT_FALSE(Cw().Label23.State().visible);
    EXPECT_EQ(Cw().Focus(), &Cw().Text1);
}

TEST_F(CwSetupTest, TestGoesAheadWithoutAPort) {
    StartKeying();
    Choose(Cw().Option3);
    Cw().Text10.SetText("0");
    Cw().Text9.SetText("E");
    Show();
    Click(Cw().Command4);
    EXPECT_EQ(dialogs.boxes, Lines{});
    EXPECT_EQ(parallelPorts.written.size(), 4U);
}

TEST_F(CwSetupTest, KeysAndMenusShowTheForms) {
    StartOnTime();
    for (const char* key : {"Ctrl+S", "Ctrl+C"}) {
        Press(key);
        EXPECT_TRUE(Cw().IsActive()) << key;
        Cw().Hide();
    }
    Press("Ctrl+W");
    EXPECT_TRUE(Strings().IsActive());
    Strings().Hide();
    ChooseMenu(Main().mnuCW);
    EXPECT_TRUE(Cw().IsActive());
    Cw().Hide();
    ChooseMenu(Main().mnuCWStrings);
    EXPECT_TRUE(Strings().IsActive());
    EXPECT_EQ(Fields(), "||||");
}

}  // namespace
}  // namespace tallyhut
