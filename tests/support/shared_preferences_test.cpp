#include "support/shared_preferences.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/platform_error.h"
#include "platform/sim/files.h"
#include "tests/platform/failure_of.h"

namespace tallyhut {
namespace {

constexpr const char* kPath = "/shared/SharedUserPreferences.xml";
const std::string kFirst = "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\r\n";

struct SharedPreferencesTest : testing::Test {
    SharedPreferencesTest() { files.AddFolder("/shared"); }

    void LoadFrom(const std::string& content) {
        files.Put(kPath, content);
        shared.Load(kPath);
    }
    std::string OnDisk() const { return files.Read(kPath); }

    sim::Files files;
    SharedPreferences shared{files};
};

TEST_F(SharedPreferencesTest, StartsWithTheFirstLineWhereThereIsNoFile) {
    shared.Load(kPath);
    EXPECT_EQ(files.Operations(), 0);
    shared.SetSharedPreference("OWN_CALL", "W1XX", true);
    EXPECT_EQ(OnDisk(), kFirst + "<OWN_CALL>W1XX</OWN_CALL>\r\n");
}

TEST_F(SharedPreferencesTest, RoundTripsByteForByte) {
    const std::string content =
        kFirst + "<OTHER_PROGRAM a='1'>x & y\xE9</OTHER_PROGRAM>\r\n\r\n<OWN_CALL></OWN_CALL>\r\n";
    LoadFrom(content);
    shared.Save(kPath);
    EXPECT_EQ(OnDisk(), content);
}

TEST_F(SharedPreferencesTest, LoadDropsTheLastTwoCharacters) {
    struct Row {
        std::string content;
        std::string text;
    };
    for (const auto& [content, text] : {Row{"", ""}, Row{"a", ""}, Row{"\r\n", ""}, Row{"abc", "a"}}) {
        LoadFrom(content);
        EXPECT_EQ(shared.SharedXmlText, text) << content;
    }
}

TEST_F(SharedPreferencesTest, AnEmptyFileGetsElementsWithoutTheFirstLine) {
    LoadFrom("");
    EXPECT_EQ(shared.SharedXmlText, "");
    shared.SetSharedPreference("OWN_CALL", "W1XX", true);
    EXPECT_EQ(OnDisk(), "\r\n<OWN_CALL>W1XX</OWN_CALL>\r\n");
}

TEST_F(SharedPreferencesTest, SettingAPresentKeyReplacesItsValueAndLeavesTheRestInPlace) {
    for (const std::string value : {"", "K", "W1XX", "a much longer value than before", "a < b & <c>", "\xC4\xE9"}) {
        LoadFrom(kFirst + "<OTHER>1</OTHER>\r\n<OWN_CALL>W1XX</OWN_CALL>\r\n<LAST>2</LAST>\r\n");
        shared.SetSharedPreference("OWN_CALL", value, true);
        EXPECT_EQ(OnDisk(), kFirst + "<OTHER>1</OTHER>\r\n<OWN_CALL>" + value + "</OWN_CALL>\r\n<LAST>2</LAST>\r\n");
    }
}

TEST_F(SharedPreferencesTest, AKeyInMixedCaseFindsTheElementInUpperCase) {
    LoadFrom(kFirst + "<OWN_ADDRESS_LINE1>1 Main St</OWN_ADDRESS_LINE1>\r\n");
    shared.SetSharedPreference("OWN_ADDRESS_Line1", "2 Oak Ave", true);
    EXPECT_EQ(OnDisk(), kFirst + "<OWN_ADDRESS_LINE1>2 Oak Ave</OWN_ADDRESS_LINE1>\r\n");
}

TEST_F(SharedPreferencesTest, ElementsInLowerCaseAreOthers) {
    LoadFrom(kFirst + "<own_call>w1xx</own_call>\r\n");
    shared.SetSharedPreference("own_call", "K1AA", true);
    EXPECT_EQ(OnDisk(), kFirst + "<own_call>w1xx</own_call>\r\n<OWN_CALL>K1AA</OWN_CALL>\r\n");
}

TEST_F(SharedPreferencesTest, AKeyIsNotFoundInALongerOne) {
    LoadFrom(kFirst + "<OWN_CALL_OLD>W1XX</OWN_CALL_OLD>\r\n");
    shared.SetSharedPreference("OWN_CALL", "K1AA", false);
    EXPECT_EQ(shared.SharedXmlText, kFirst + "<OWN_CALL_OLD>W1XX</OWN_CALL_OLD>\r\n<OWN_CALL>K1AA</OWN_CALL>");
}

TEST_F(SharedPreferencesTest, OfTwoElementsTheFirstIsSet) {
    LoadFrom("<K>1</K>\r\n<K>2</K>\r\n");
    shared.SetSharedPreference("K", "new", false);
    EXPECT_EQ(shared.SharedXmlText, "<K>new</K>\r\n<K>2</K>");
}

TEST_F(SharedPreferencesTest, AClosingTagBeforeTheOpeningOneDoesNotCount) {
    LoadFrom("</K><K>1</K>\r\n");
    shared.SetSharedPreference("K", "new", false);
    EXPECT_EQ(shared.SharedXmlText, "</K><K>new</K>");
}

TEST_F(SharedPreferencesTest, AnElementThatIsNotClosedEndsWithItsLineAndIsClosedAgain) {
    struct Row {
        std::string before;
        std::string after;
    };
    for (const auto& [before, after] : {
             Row{"<K>1</", "<K>new</K>"},
             Row{"<K>", "<K>new</K>"},
             Row{"<K>1\r\n<OTHER>2</OTHER>", "<K>new</K>\r\n<OTHER>2</OTHER>"},
             Row{"<K>1\n<OTHER>2</OTHER>", "<K>new</K>\n<OTHER>2</OTHER>"},
             Row{"<K>\r\n<OTHER>2</OTHER>", "<K>new</K>\r\n<OTHER>2</OTHER>"},
         }) {
        LoadFrom(before + "\r\n");
        shared.SetSharedPreference("K", "new", false);
        EXPECT_EQ(shared.SharedXmlText, after) << before;
        shared.SetSharedPreference("K", "newer", false);
        EXPECT_NE(shared.SharedXmlText.find("<K>newer</K>"), std::string::npos) << before;
    }
}

TEST_F(SharedPreferencesTest, AGroupOfKeysIsWrittenOnce) {
    shared.Load(kPath);
    shared.SetSharedPreference("OWN_CALL", "W1XX", false);
    shared.SetSharedPreference("OWN_ARRL_SECTION", "MDC", false);
    EXPECT_EQ(files.Operations(), 0);
    shared.SetSharedPreference("OWN_CHECK", "72", true);
    EXPECT_EQ(files.Operations(), 1);
    EXPECT_EQ(OnDisk(), kFirst +
                            "<OWN_CALL>W1XX</OWN_CALL>\r\n<OWN_ARRL_SECTION>MDC</OWN_ARRL_SECTION>\r\n"
                            "<OWN_CHECK>72</OWN_CHECK>\r\n");
}

TEST_F(SharedPreferencesTest, OfTwoProgramsTheLaterOverwritesTheChangesOfTheOther) {
    LoadFrom(kFirst);
    SharedPreferences other{files};
    other.Load(kPath);
    shared.SetSharedPreference("OWN_CALL", "W1XX", true);
    other.SetSharedPreference("OWN_EMAIL", "op@example.org", true);
    EXPECT_EQ(OnDisk(), kFirst + "<OWN_EMAIL>op@example.org</OWN_EMAIL>\r\n");
}

TEST_F(SharedPreferencesTest, AFailingSaveReachesTheCallerAndLeavesTheFile) {
    const std::string content = kFirst + "<OWN_CALL>W1XX</OWN_CALL>\r\n";
    LoadFrom(content);
    files.FailAt(1, "No space left on device");
    EXPECT_EQ(FailureOf([&] { shared.SetSharedPreference("OWN_CALL", "K1AA", true); }),
              std::string{kPath} + ": No space left on device");
    EXPECT_EQ(OnDisk(), content);
    shared.Save(kPath);  // room again
    EXPECT_EQ(OnDisk(), kFirst + "<OWN_CALL>K1AA</OWN_CALL>\r\n");
}

TEST_F(SharedPreferencesTest, AFolderThatIsMissingOrReadOnlyFailsAtSaving) {
    shared.Load("/nowhere/SharedUserPreferences.xml");
    EXPECT_THROW(shared.SetSharedPreference("OWN_CALL", "W1XX", true), PlatformError);
    shared.Load(kPath);
    files.readOnlyFolders.insert("/shared");
    EXPECT_THROW(shared.SetSharedPreference("OWN_CALL", "W1XX", true), PlatformError);
}

TEST_F(SharedPreferencesTest, SaveElsewhereIsWhereTheNextOneGoes) {
    shared.Load(kPath);
    shared.Save("/shared/copy.xml");
    shared.SetSharedPreference("K", "1", true);
    EXPECT_EQ(files.Read("/shared/copy.xml"), kFirst + "<K>1</K>\r\n");
    EXPECT_FALSE(files.FileExists(kPath));
}

/// Files of which none can be read, as on a failing disk.
struct UnreadableFiles : sim::Files {
    bool isUnreadable = true;

    std::string Read(const std::string& path) const override {
        return isUnreadable ? throw PlatformError{path + ": Input/output error"} : sim::Files::Read(path);
    }
};

TEST(SharedPreferences, AFileThatCouldNotBeReadIsNotReplaced) {
    UnreadableFiles files;
    files.Put(kPath, kFirst + "<OTHER>1</OTHER>\r\n");
    SharedPreferences shared{files};
    EXPECT_THROW(shared.Load(kPath), PlatformError);
    EXPECT_THROW(shared.SetSharedPreference("OWN_CALL", "W1XX", true), PlatformError);
    files.isUnreadable = false;
    EXPECT_EQ(files.Read(kPath), kFirst + "<OTHER>1</OTHER>\r\n");
    shared.Load(kPath);
    shared.SetSharedPreference("OWN_CALL", "W1XX", true);
    EXPECT_EQ(files.Read(kPath), kFirst + "<OTHER>1</OTHER>\r\n<OWN_CALL>W1XX</OWN_CALL>\r\n");
}

TEST(SharedPreferences, AFileThatCannotBeLookedAtIsNotReplaced) {
    sim::Files files;
    files.Put(kPath, kFirst + "<OTHER>1</OTHER>\r\n");
    files.unreachable[kPath] = "Input/output error";
    SharedPreferences shared{files};
    EXPECT_THROW(shared.Load(kPath), PlatformError);
    files.unreachable.clear();
    EXPECT_THROW(shared.SetSharedPreference("OWN_CALL", "W1XX", true), PlatformError);
    EXPECT_EQ(files.Read(kPath), kFirst + "<OTHER>1</OTHER>\r\n");
}

}  // namespace
}  // namespace tallyhut
