#include "tests/rig/rig_fixture.h"

namespace tallyhut {
namespace {

struct FrequencyTestTest : RigFixture {
    frmFrequencyTest& Dialog() { return program->frequencyTestForm; }

    /// Opens the form from the radio's, does the steps there, and closes it.
    void InForm(std::string_view rig, const std::function<void()>& steps) {
        StartPolling(rig);
        pump.OnWait([this, steps] {
            Line().TakeSent();
            steps();
            TheDesk().PostClick(Dialog().cmdClose, kLeftButton);
        });
        Click(Rig().Command3);
        EXPECT_FALSE(Dialog().IsLoaded());
    }
    std::string SentBy(Button& button) {
        Line().TakeSent();
        Click(button);
        FinishCommands();
        return BytesToHexText(Line().TakeSent());
    }
};

TEST_F(FrequencyTestTest, StartsWithItsExamples) {
    InForm("Kenwood", [this] {
        EXPECT_TRUE(Dialog().IsModal());
        EXPECT_EQ(Dialog().Caption(), "Test Change Frequency Function");
        EXPECT_EQ(Dialog().Text1.Text(), "FA00028475000;");
        EXPECT_EQ(Dialog().Text2.Text(), "28.475");
        EXPECT_FALSE(Dialog().Check1.Value());
    });
}

TEST_F(FrequencyTestTest, CommandGoesOutAsTrimmedText) {
    InForm("Other", [this] {
        Dialog().Text1.SetText("  FA;IF; ");
        EXPECT_EQ(SentBy(Dialog().Command1), BytesToHexText("FA;IF;"));
    });
}

TEST_F(FrequencyTestTest, PairsGoOutAsBytes) {
    InForm("Other", [this] {
        Dialog().Check1.SetValue(true);
        Dialog().Text1.SetText("FE FE 64 E0 03 FD");
        EXPECT_EQ(SentBy(Dialog().Command1), "FEFE64E003FD");
    });
}

// Every third character begins a pair, whatever stands between.
TEST_F(FrequencyTestTest, PairsWithoutBlanksGoOutWrong) {
    InForm("Other", [this] {
        Dialog().Check1.SetValue(true);
        Dialog().Text1.SetText("FEFE64E0");
        EXPECT_EQ(SentBy(Dialog().Command1), "FEE6E0");
    });
}

TEST_F(FrequencyTestTest, PairThatIsNotHexadecimalSendsNothingAndSaysNothing) {
    InForm("Other", [this] {
        Dialog().Check1.SetValue(true);
        Dialog().Text1.SetText("FE XX 03");
        EXPECT_EQ(SentBy(Dialog().Command1), "");
    });
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(FrequencyTestTest, FrequencyTunesTheRadio) {
    InForm("Kenwood", [this] {
        Dialog().Text2.SetText("14.2");
        EXPECT_NE(SentBy(Dialog().Command2).find(BytesToHexText("FA00014200000;")), std::string::npos);
    });
}

TEST_F(FrequencyTestTest, RadioWithoutAFrequencyCommandGetsNothing) {
    InForm("Other", [this] {
        Dialog().Text2.SetText("14.2");
        EXPECT_EQ(SentBy(Dialog().Command2), "");
    });
}

TEST_F(FrequencyTestTest, TextThatIsNoFrequencyIsLeftAlone) {
    InForm("Kenwood", [this] {
        for (const std::string& text : {std::string{"fast"}, std::string{}, std::string(60, '9')}) {
            Dialog().Text2.SetText(text);
            EXPECT_EQ(SentBy(Dialog().Command2).find(BytesToHexText("FA0")), std::string::npos) << text;
        }
    });
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(FrequencyTestTest, EnterInABoxSendsWhatStandsThere) {
    InForm("Kenwood", [this] {
        Dialog().Text1.SetFocus();
        Press("Enter");
        EXPECT_EQ(Line().TakeSent(), "FA00028475000;");
        Dialog().Text2.SetFocus();
        Press("Enter");
        FinishCommands();
        EXPECT_NE(Line().TakeSent().find("FA00028475000;"), std::string::npos);
        EXPECT_TRUE(Dialog().IsVisible());
    });
}

TEST_F(FrequencyTestTest, PulledCableIsNotTold) {
    InForm("Kenwood", [this] {
        Line().Unplug();
        Click(Dialog().Command1);
    });
    EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(FrequencyTestTest, CommandDuringAPauseGoesOutBehindTheCommandUnderWay) {
    InForm("Elecraft", [this] {
        Dialog().Text2.SetText("14.2");
        Click(Dialog().Command2);
        LetTimeGoBy(500);
        Dialog().Text1.SetText("IF;");
        Click(Dialog().Command1);
        EXPECT_EQ(Line().TakeSent(), "MD2;");
        FinishCommands();
        EXPECT_EQ(Line().TakeSent(), "FA00014200000;IF;");
    });
}

TEST_F(FrequencyTestTest, FormThatIsClosedDuringAPauseLeavesTheCommandToTheRadio) {
    InForm("Elecraft", [this] {
        Dialog().Text2.SetText("14.2");
        Click(Dialog().Command2);
        LetTimeGoBy(500);
        Dialog().Text1.SetText("IF;");
        Click(Dialog().Command1);
    });
    EXPECT_TRUE(State().commanding);
    FinishCommands();
    EXPECT_TRUE(Line().TakeSent().ends_with("MD2;FA00014200000;IF;"));
    EXPECT_TRUE(Rig().tmrGetData.Enabled());
}

TEST_F(FrequencyTestTest, FormOpensAlsoWhileThePollRests) {
    StartPolling("Elecraft");
    AskFrequency(14.2F);
    LetTimeGoBy(500);
    pump.OnWait([this] { TheDesk().PostClick(Dialog().cmdClose, kLeftButton); });
    Click(Rig().Command3);
    EXPECT_TRUE(dialogs.boxes.empty());
    EXPECT_FALSE(pump.HasScripts());
}

}  // namespace
}  // namespace tallyhut
