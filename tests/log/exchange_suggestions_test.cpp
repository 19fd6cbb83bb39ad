#include "log/exchange_suggestions.h"

#include "tests/log/known_calls_fixture.h"

namespace tallyhut {
namespace {

struct ExchangeSuggestionsTest : KnownCallsFixture {
    /// Types number, precedence and call, and leaves the call.
    void LeaveCall(const std::string& call) { Type("88a" + call + ' '); }
};

TEST_F(ExchangeSuggestionsTest, LeavingTheCallFillsAnEmptyCheckAndSection) {
    StartWithHistory();
    LeaveCall("w1xx");
    EXPECT_EQ(Fields(), "88|A|W1XX|72|MDC");
    EXPECT_EQ(Suggested(), "(72) (MDC)");
    EXPECT_EQ(FocusedField(), "txtCK");
}

TEST_F(ExchangeSuggestionsTest, EnterLogsWhatIsSeen) {
    StartWithHistory();
    LeaveCall("w1xx");
    Press("Enter");
    ASSERT_EQ(LogLines().size(), 1U);
    EXPECT_NE(LogLines().front().find(R"("88","A","W1XX","72","MDC")"), std::string::npos);
    EXPECT_EQ(Fields(), "||||");
    EXPECT_EQ(Main().txtCK.State().foreColor, kWindowText);
    EXPECT_EQ(Main().txtSec.State().foreColor, kWindowText);
}

TEST_F(ExchangeSuggestionsTest, TheFirstKeyTypedTakesThePlaceOfASuggestion) {
    StartWithHistory();
    LeaveCall("w1xx");
    Type("6");
    EXPECT_EQ(Suggested(), "6 (MDC)");
    Type("9c");
    EXPECT_EQ(Suggested(), "69 C") << "the letter goes on into the section";
    Type("t");
    EXPECT_EQ(Suggested(), "69 CT");
    Press("Enter");
    EXPECT_NE(LogOnDisk().find(R"("69","CT")"), std::string::npos);
}

TEST_F(ExchangeSuggestionsTest, SpaceGoesOnFromASuggestion) {
    StartWithHistory();
    LeaveCall("w1xx");
    Type(" ");
    EXPECT_EQ(FocusedField(), "txtSec");
    EXPECT_EQ(Suggested(), "(72) (MDC)");
}

TEST_F(ExchangeSuggestionsTest, BackspaceOrDeleteEmptiesASuggestion) {
    StartWithHistory();
    LeaveCall("w1xx");
    Press("Backspace");
    EXPECT_EQ(Suggested(), " (MDC)");
    Type(" ");
    Press("Delete");
    EXPECT_EQ(Suggested(), " ");
    Press("Enter");
    EXPECT_EQ(LogOnDisk(), "");
}

TEST_F(ExchangeSuggestionsTest, WhatIsSetIsTyped) {
    StartWithHistory();
    LeaveCall("w1xx");
    Main().txtCK.ReplaceByPaste("72");
    Main().txtSec.ReplaceByPaste("CT");
    EXPECT_EQ(Suggested(), "72 CT");
    Main().txtCall.ReplaceByPaste("K9ZO");
    EXPECT_EQ(Suggested(), "72 CT") << "another call drops suggestions alone";
}

TEST_F(ExchangeSuggestionsTest, ADigitBehindTheCallBeginsTheCheckItself) {
    StartWithHistory();
    Type("88aw1xx6");
    EXPECT_EQ(Fields(), "88|A|W1XX|6|MDC");
    EXPECT_EQ(Suggested(), "6 (MDC)");
}

TEST_F(ExchangeSuggestionsTest, AFieldThatHoldsSomethingIsLeftAlone) {
    StartWithHistory();
    Fill(Main().txtCK, "11");
    LeaveCall("w1xx");
    EXPECT_EQ(Suggested(), "11 (MDC)");
}

TEST_F(ExchangeSuggestionsTest, AChangedCallDropsWhatWasSuggested) {
    StartWithHistory();
    LeaveCall("w1xx");
    Focus(Main().txtCall);
    Press("End");
    Press("Backspace");
    EXPECT_EQ(Fields(), "88|A|W1X||");
    EXPECT_EQ(Suggested(), " ");
    Main().txtCall.ReplaceByPaste("K9ZO");
    Press("Tab");
    EXPECT_EQ(Suggested(), "(69) (IL)");
}

TEST_F(ExchangeSuggestionsTest, ACallThatIsUnknownOrAlmostKnownSuggestsNothing) {
    StartWithHistory();
    for (const char* call : {"W1XX/", "W1X", "W1XXX", "N0NE"}) {
        Press("Esc");
        LeaveCall(call);
        EXPECT_EQ(Suggested(), " ") << call;
    }
}

TEST_F(ExchangeSuggestionsTest, OnlyTwoDigitsAndSectionsOfTheListAreSuggested) {
    StartWithHistory();
    const std::pair<const char*, const char*> rows[] = {{"K1NOCK", " (CT)"}, {"K1NOSEC", "(88) "}, {"K1BAD", " "}};
    for (const auto& [call, suggested] : rows) {
        Press("Esc");
        Fill(Main().txtCall, call);
        Focus(Main().txtCall);
        Press("Tab");
        EXPECT_EQ(Suggested(), suggested) << call;
    }
}

TEST_F(ExchangeSuggestionsTest, SectionsAreThoseOfTheListInForceAndItsAliasesTheirCodes) {
    files.Put("/contest/Sections.txt", "\"XYZ\",\"Far\",\"1\",\"\",\"MD\",\"\",0,\"\",\"\",\"\"\r\n");
    history += "W3A,MD,11,\r\n";
    StartWithHistory();
    LeaveCall("w3a");
    EXPECT_EQ(Suggested(), "(11) (XYZ)");
    Press("Esc");
    LeaveCall("w1xx");
    EXPECT_EQ(Suggested(), "(72) ") << "the list has no MDC";
}

TEST_F(ExchangeSuggestionsTest, ADuplicateLeavesNothingBehind) {
    StartWithHistory(1, {Worked("W1XX")});
    LeaveCall("w1xx");
    EXPECT_TRUE(Dialog().starts_with("Duplicate W1XX"));
    EXPECT_EQ(Fields(), "||||");
    EXPECT_EQ(Suggested(), " ");
}

TEST_F(ExchangeSuggestionsTest, ADuplicateFoundByEnterTakesTheSuggestionsWithIt) {
    StartWithHistory();
    LeaveCall("w1xx");
    program->log.Add(Worked("W1XX"));
    Press("Enter");
    EXPECT_TRUE(Dialog().starts_with("Duplicate W1XX"));
    EXPECT_EQ(Fields(), "||||");
    EXPECT_EQ(Suggested(), " ");
}

TEST_F(ExchangeSuggestionsTest, EscAndClearEmptyTheSuggestionsToo) {
    StartWithHistory();
    LeaveCall("w1xx");
    Press("Esc");
    EXPECT_EQ(Fields(), "||||");
    EXPECT_EQ(Suggested(), " ");
    LeaveCall("w1xx");
    Click(Main().cmdClear);
    EXPECT_EQ(Fields(), "||||");
    EXPECT_EQ(Suggested(), " ");
    Type("88aw1xx");
    Press("Esc");
    EXPECT_EQ(Fields(), "||||") << "the call was never left with a text";
}

TEST_F(ExchangeSuggestionsTest, EnterInTheCallFieldLogsNothingThatNobodyHasSeen) {
    StartWithHistory();
    Type("88aw1xx");
    Press("Enter");
    EXPECT_EQ(LogOnDisk(), "");
    EXPECT_EQ(Dialog(), "Filled in from the call history");
    EXPECT_EQ(FocusedField(), "txtCK");
    EXPECT_EQ(Suggested(), "(72) (MDC)") << "now they are seen";
    Press("Enter");
    EXPECT_EQ(LogLines().size(), 1U);
}

TEST_F(ExchangeSuggestionsTest, WhatIsFilledWhileTheEntryIsCheckedCountsAsEmpty) {
    StartWithHistory();
    Type("88aw1xx");
    program->time.gTimeOn = 0;
    Main().txtNum.SetFocus();  // the call is left, and its handlers run when events run
    program->commit.committing = true;
    TheDesk().RunFocusEvents();
    program->commit.committing = false;
    EXPECT_EQ(Suggested(), " ");
}

TEST_F(ExchangeSuggestionsTest, CallFirstFillsWhenTheNumberIsTyped) {
    StartWithHistory(2);
    Type("w1xx8");
    EXPECT_EQ(Fields(), "8||W1XX|72|MDC");
    EXPECT_EQ(Suggested(), "(72) (MDC)");
    Type("8a6");
    EXPECT_EQ(Fields(), "88|A|W1XX|6|MDC");
    EXPECT_EQ(Suggested(), "6 (MDC)");
}

TEST_F(ExchangeSuggestionsTest, SwitchedOffNothingIsSuggested) {
    StartWithHistory();
    program->logPart.knownCalls.SetFillsIn(false);
    LeaveCall("w1xx");
    EXPECT_EQ(Suggested(), " ");
}

TEST_F(ExchangeSuggestionsTest, WithoutAHistoryNothingIsSuggested) {
    StartOnDesk();
    LeaveCall("w1xx");
    EXPECT_EQ(Fields(), "88|A|W1XX||");
    EXPECT_EQ(Suggested(), " ");
}

}  // namespace
}  // namespace tallyhut
