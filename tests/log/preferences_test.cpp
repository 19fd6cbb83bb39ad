#include "contest/preferences.h"

#include <gtest/gtest.h>

#include "tests/log/program_fixture.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

const std::string kFresh =
    "\"\"\r\n0\r\n\"\"\r\n\"\"\r\n\"\"\r\n0\r\n0\r\n1\r\n0\r\n\"40\"\r\n0\r\n16711680\r\n128\r\n100\r\n0\r\n"
    "\"None\"\r\n0\r\n0\r\n0\r\n";

const std::string kFull =
    "\"Q7ABC\"\r\n-7\r\n\"A\"\r\n\"72\"\r\n\"MDC\"\r\n-3.5\r\n1\r\n3\r\n1\r\n\"160\"\r\n86400.5\r\n65280\r\n255\r\n"
    "87.5\r\n2\r\n\"Kenwood\"\r\n1\r\n1\r\n1\r\n";

Preferences Full() {
    return {.gOwnCall = "Q7ABC",
            .reserved = -7,
            .gOwnPrec = "A",
            .gOwnCheck = "72",
            .gOwnSection = "MDC",
            .gUtcOffset = -3.5,
            .gContestMode = 1,
            .gTabMode = 3,
            .gStationSet = 1,
            .gBand = "160",
            .gOpSeconds = 86400.5,
            .gColorWorked = 0x00FF00,
            .gColorNeeded = 0x0000FF,
            .gFormScale = 87.5,
            .gVoiceNav = 2,
            .gRigName = "Kenwood",
            .gTaskbar = 1,
            .gColorNeededSpots = 1,
            .gAudioAlert = 1};
}

/// Line n of the text replaced, counted from 1.
std::string WithLine(const std::string& text, int n, const std::string& line) {
    std::size_t begin = 0;
    for (int i = 1; i < n; ++i) {
        begin = text.find("\r\n", begin) + 2;
    }
    return text.substr(0, begin) + line + text.substr(text.find("\r\n", begin));
}

TEST(Preferences, FirstOnesAreWrittenByteForByte) {
    EXPECT_EQ(WritePreferences({}), kFresh);
}

TEST(Preferences, AllNineteenAreWrittenByteForByte) {
    EXPECT_EQ(WritePreferences(Full()), kFull);
}

TEST(Preferences, ReadBackByteForByte) {
    for (const std::string& text : {kFresh, kFull}) {
        Preferences read;
        ReadPreferences(text, read);
        EXPECT_EQ(WritePreferences(read), text);
    }
}

TEST(Preferences, EveryLineHasItsValue) {
    Preferences read;
    ReadPreferences(kFull, read);
    EXPECT_EQ(read.gOwnCall, "Q7ABC");
    EXPECT_EQ(read.reserved, -7);
    EXPECT_EQ(read.gOwnPrec, "A");
    EXPECT_EQ(read.gOwnCheck, "72");
    EXPECT_EQ(read.gOwnSection, "MDC");
    EXPECT_EQ(read.gUtcOffset, -3.5F);
    EXPECT_EQ(read.gContestMode, 1);
    EXPECT_EQ(read.gTabMode, 3);
    EXPECT_EQ(read.gStationSet, 1);
    EXPECT_EQ(read.gBand, "160");
    EXPECT_EQ(read.gOpSeconds, 86400.5F);
    EXPECT_EQ(read.gColorWorked, 0x00FF00);
    EXPECT_EQ(read.gColorNeeded, 0x0000FF);
    EXPECT_EQ(read.gFormScale, 87.5F);
    EXPECT_EQ(read.gVoiceNav, 2);
    EXPECT_EQ(read.gRigName, "Kenwood");
    EXPECT_EQ(read.gTaskbar, 1);
    EXPECT_EQ(read.gColorNeededSpots, 1);
    EXPECT_EQ(read.gAudioAlert, 1);
}

TEST(Preferences, QuotesAndLineEndsInATextAreLeftOut) {
    Preferences odd;
    odd.gOwnCall = "Q7\"A\r\nBC\"";
    Preferences read;
    ReadPreferences(WritePreferences(odd), read);
    EXPECT_EQ(read.gOwnCall, "Q7ABC");
}

TEST(Preferences, HandWrittenManners) {
    Preferences read;
    ReadPreferences(WithLine(WithLine(kFull, 6, " \"5\" "), 10, "  80  "), read);
    EXPECT_EQ(read.gUtcOffset, 5);
    EXPECT_EQ(read.gBand, "80");
}

struct RefusedLine {
    int line;
    const char* text;
};

TEST(Preferences, RefusedValueLeavesItselfAndTheLaterOnes) {
    const RefusedLine cases[] = {
        {1, "\"Q7ABC"},  {1, "\"Q7\"ABC"}, {1, "Q7\"ABC"},     {2, "40000"},   {2, "-40000"}, {2, "\"A\""},
        {2, ""},         {5, "\"MDC"},     {6, "five"},        {6, "1E+39"},   {6, "5 h"},    {6, ""},
        {7, "256"},      {7, "-1"},        {7, "CW"},          {8, "300"},     {8, "\"\""},   {9, "yes"},
        {10, "\"40\"m"}, {11, "1:30"},     {12, "3000000000"}, {12, "red"},    {13, "&HG"},   {14, "100%"},
        {15, "256"},     {16, "\"None"},   {17, "-1"},         {18, "#TRUE#"}, {19, "x"},     {19, "256"},
    };
    for (const auto& [line, text] : cases) {
        Preferences read;
        EXPECT_THROW(ReadPreferences(WithLine(kFull, line, text), read), ValueError) << line << ": " << text;
        // What stands before the refused line is taken, the rest is as it was.
        std::string expected = kFresh;
        for (int n = 1; n < line; ++n) {
            std::size_t begin = 0;
            for (int i = 1; i < n; ++i) {
                begin = kFull.find("\r\n", begin) + 2;
            }
            expected = WithLine(expected, n, kFull.substr(begin, kFull.find("\r\n", begin) - begin));
        }
        EXPECT_EQ(WritePreferences(read), expected) << line << ": " << text;
    }
}

TEST(Preferences, ShortFilesAreRefused) {
    std::size_t end = 0;
    for (int lines = 0; lines < 19; ++lines) {
        Preferences read;
        EXPECT_THROW(ReadPreferences(kFull.substr(0, end), read), ValueError) << lines;
        end = kFull.find("\r\n", end) + 2;
    }
    Preferences read;
    EXPECT_NO_THROW(ReadPreferences(kFull.substr(0, end), read));
}

TEST(Preferences, LastLineNeedsNoEnd) {
    Preferences read;
    ReadPreferences(kFull.substr(0, kFull.size() - 2), read);
    EXPECT_EQ(read.gAudioAlert, 1);
}

TEST(Preferences, NumberThatIsNoneIsNotWritten) {
    Preferences odd;
    odd.gOpSeconds = std::numeric_limits<float>::infinity();
    EXPECT_THROW(WritePreferences(odd), ValueError);
}

TEST(Preferences, ModeThatIsNoneCountsAsTheFirst) {
    for (int mode = 0; mode < 256; ++mode) {
        Preferences preferences;
        preferences.gTabMode = static_cast<std::uint8_t>(mode);
        EXPECT_EQ(TabMode(preferences), mode == 2 || mode == 3 ? mode : 1);
    }
}

struct PreferencesFileTest : ProgramFixture {};

TEST_F(PreferencesFileTest, StartReadsAllValues) {
    stored = Full();
    Start();
    EXPECT_EQ(WritePreferences(program->preferences), kFull);
}

TEST_F(PreferencesFileTest, SavePrefReplacesTheFileInOneStep) {
    Start();
    program->preferences = Full();
    program->preferencesFile.SavePref();
    EXPECT_EQ(files.contents.at(kPreferencesPath), kFull);
    EXPECT_EQ(Operations(), 1);
}

TEST_F(PreferencesFileTest, FailedSaveLeavesTheOldFile) {
    Start();
    const std::string before = files.contents.at(kPreferencesPath);
    program->preferences = Full();
    files.FailAt(1, "No space left on device");
    EXPECT_THROW(program->preferencesFile.SavePref(), PlatformError);
    EXPECT_EQ(files.contents.at(kPreferencesPath), before);
}

TEST_F(PreferencesFileTest, DamagedOneEndsTheLoadWithoutAWordAndCostsNoContact) {
    const std::string log = LogText(ManyContacts(3));
    files.Put(kLogPath, log);
    files.Put(kPreferencesPath, "\"Q7ABC");
    MakeProgram();
    program->Start();
    EXPECT_TRUE(dialogs.boxes.empty()) << "no question comes either";
    EXPECT_EQ(LogOnDisk(), log);
    EXPECT_EQ(files.contents.at(kPreferencesPath), "\"Q7ABC");
    EXPECT_EQ(program->log.gContactCount(), 0);
}

TEST_F(PreferencesFileTest, WithoutOneTheOffsetIsTheMachines) {
    clock.minutesToUtc = -210;
    files.Put(kLogPath, "");
    StartContinuing();
    EXPECT_EQ(program->preferences.gUtcOffset, -3.5F);
    EXPECT_EQ(program->preferences.gBand, "40");
    EXPECT_EQ(program->preferences.gTabMode, 1);
}

TEST_F(PreferencesFileTest, StoredOffsetWinsOverTheMachines) {
    clock.minutesToUtc = 300;
    stored.gUtcOffset = 4;
    Start();
    EXPECT_EQ(program->preferences.gUtcOffset, 4);
}

}  // namespace
}  // namespace tallyhut
