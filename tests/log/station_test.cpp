#include "tests/log/editing_fixture.h"

namespace tallyhut {
namespace {

constexpr const char* kNotNumeric =
    "message \"Numerical value required.\" \"Please enter a numerical value.\" OK Exclamation";

struct StationTest : EditingFixture {
    StationTest() {
        stored.gOwnCall = "W1XX";
        stored.gOwnPrec = "A";
        stored.gOwnCheck = "72";
        stored.gOwnSection = "MDC";
        stored.gUtcOffset = 5;
    }

    /// Opens the form from the menu, runs the steps in it, and closes it with Done unless they closed it.
    void Setup(const std::function<void()>& steps) {
        Meanwhile([this, steps] {
            steps();
            if (StationForm().IsVisible()) {
                Press("Enter");
            }
        });
        ChooseMenu(Main().mnuSetup);
        EXPECT_FALSE(StationForm().IsLoaded());
    }
    void TypeOver(TextBox& field, std::string_view text) {
        Focus(field);
        field.SetText("");
        Type(text);
    }
    std::string FocusInDialog() { return StationForm().Focus() == nullptr ? "" : StationForm().Focus()->FullName(); }
    std::string Exchange() {
        return Main().Label1.Caption() + '|' + Main().Label2.Caption() + '|' + Main().Label3.Caption() + '|' +
               Main().Label4.Caption();
    }
    Preferences OnDisk() {
        Preferences read;
        ReadPreferences(files.contents.at(kPreferencesPath), read);
        return read;
    }
};

TEST_F(StationTest, FormSaysWhatItsFieldsAre) {
    StartOnDesk();
    std::vector<std::string> captions;
    for (int i = StationForm().lblField.First(); i <= StationForm().lblField.Last(); ++i) {
        captions.push_back(StationForm().lblField(i).Caption());
    }
    EXPECT_EQ(captions,
              (Lines{"Please Enter your Call Sign:", "Precedence:", "Check:", "Section:", "Hours added for UTC:"}));
    EXPECT_EQ(StationForm().Caption(), " Amateur Station I.D.");
    EXPECT_EQ(StationForm().lblPrecHint.Caption(), "(Q, A, B, U, M, or S)");
    EXPECT_EQ(StationForm().lblCheckHint.Caption(), "(Last 2 digits of year licensed)");
    EXPECT_EQ(StationForm().lblSectionHint.Caption(), "(ARRL Section: ENY, MDC, etc.)");
    EXPECT_EQ(StationForm().Frame1.State().text, "Contest:");
    EXPECT_EQ(StationForm().Option1.Caption(), "CW");
    EXPECT_EQ(StationForm().Option2.Caption(), "Phone");
    EXPECT_EQ(StationForm().Command1.Caption(), "Done");
}

TEST_F(StationTest, FormShowsTheStation) {
    stored.gUtcOffset = -3.5F;
    stored.gContestMode = 1;
    StartOnDesk();
    std::string order;
    Setup([&] {
        EXPECT_TRUE(StationForm().IsModal());
        EXPECT_EQ(StationForm().Text1.Text(), "W1XX");
        EXPECT_EQ(StationForm().Text3.Text(), "A");
        EXPECT_EQ(StationForm().Text4.Text(), "72");
        EXPECT_EQ(StationForm().Text5.Text(), "MDC");
        EXPECT_EQ(StationForm().Text6.Text(), "-3.5");
        EXPECT_FALSE(StationForm().Option1.Value());
        EXPECT_TRUE(StationForm().Option2.Value());
        for (const Control* stop : StationForm().TabStops()) {
            order += stop->FullName() + ' ';
        }
    });
    EXPECT_EQ(order, "Text1 Text3 Text4 Text5 Text6 Option2 Command1 ");
}

TEST_F(StationTest, DoneTakesTheStationOverShowsAndSavesIt) {
    StartOnDesk();
    Setup([&] {
        EXPECT_TRUE(StationForm().Option1.Value());
        TypeOver(StationForm().Text1, "k2yy/3");
        TypeOver(StationForm().Text3, "q");
        TypeOver(StationForm().Text4, "99");
        TypeOver(StationForm().Text5, "eny");
        TypeOver(StationForm().Text6, "-3.5");
        Click(StationForm().Option2);
        Click(StationForm().Command1);
    });
    const Preferences read = OnDisk();
    EXPECT_EQ(read.gOwnCall, "K2YY/3");
    EXPECT_EQ(read.gOwnPrec, "Q");
    EXPECT_EQ(read.gOwnCheck, "99");
    EXPECT_EQ(read.gOwnSection, "ENY");
    EXPECT_EQ(read.gUtcOffset, -3.5F);
    EXPECT_EQ(read.gContestMode, 1);
    EXPECT_EQ(read.gStationSet, 1);
    EXPECT_EQ(Exchange(), "Q|K2YY/3|99|ENY");
    EXPECT_EQ(TakeBoxes(), Lines{});
}

TEST_F(StationTest, PhoneContestMayBecomeCwAgain) {
    stored.gContestMode = 1;
    StartOnDesk();
    Setup([&] { Click(StationForm().Option1); });
    EXPECT_EQ(OnDisk().gContestMode, 0);
}

TEST_F(StationTest, ValuesAreSharedInOrderAndWrittenOnce) {
    StartOnDesk();
    Setup([] {});
    EXPECT_EQ(shared, (std::vector<SharedCall>{{"OWN_CALL", "W1XX", false},
                                               {"OWN_ARRL_SECTION", "MDC", false},
                                               {"OWN_UTC", "5", false},
                                               {"OWN_PRECEDENCE", "A", false},
                                               {"OWN_CHECK", "72", true}}));
}

TEST_F(StationTest, FailedSaveOfSharedValuesIsToldAndTheStationIsSetAllTheSame) {
    StartOnDesk();
    shareFailure = "/home/operator/Shared: Permission denied";
    Setup([&] { TypeOver(StationForm().Text1, "K2YY"); });
    EXPECT_EQ(TakeBoxes(), Lines{"message \"Error.\" \"/home/operator/Shared: Permission denied\" OK Exclamation"});
    EXPECT_EQ(OnDisk().gOwnCall, "K2YY");
}

TEST_F(StationTest, EmptyCallComesFromTheSettingsStore) {
    stored.gOwnCall = "";
    settings.values[{"Settings", "UserCallSign"}] = "N3ZZ";
    StartOnDesk();
    program->preferences.gOwnCall = "";  // the start has taken it already
    Setup([&] { EXPECT_EQ(StationForm().Text1.Text(), "N3ZZ"); });
    EXPECT_EQ(OnDisk().gOwnCall, "N3ZZ");
}

TEST_F(StationTest, OwnCallGoesBeforeTheSettingsStore) {
    settings.values[{"Settings", "UserCallSign"}] = "N3ZZ";
    StartOnDesk();
    Setup([&] { EXPECT_EQ(StationForm().Text1.Text(), "W1XX"); });
}

TEST_F(StationTest, CloseBoxDropsWhatWasTyped) {
    StartOnDesk();
    program->preferences.gStationSet = 0;
    for (const bool byKey : {false, true}) {
        Setup([&] {
            TypeOver(StationForm().Text1, "K2YY");
            TypeOver(StationForm().Text6, "9");
            Click(StationForm().Option2);
            byKey ? Press("Esc") : StationForm().RequestClose();
            EXPECT_FALSE(StationForm().IsLoaded());
        });
        EXPECT_EQ(OnDisk().gOwnCall, "W1XX");
        EXPECT_EQ(OnDisk().gUtcOffset, 5);
        EXPECT_EQ(OnDisk().gContestMode, 0);
        EXPECT_EQ(OnDisk().gStationSet, 0);
        EXPECT_EQ(Exchange(), "A|W1XX|72|MDC");
        EXPECT_EQ(shared, std::vector<SharedCall>{});
    }
}

TEST_F(StationTest, EnterInEveryFieldIsDone) {
    StartOnDesk();
    for (const char* field : {"Text1", "Text3", "Text4", "Text5", "Text6"}) {
        Setup([&] {
            StationForm().Find(field)->SetFocus();
            Press("Enter");
            EXPECT_FALSE(StationForm().IsVisible()) << field;
        });
    }
    EXPECT_EQ(shared.size(), 25U);
}

TEST_F(StationTest, EscFromTheOffsetClosesTheForm) {
    StartOnDesk();
    Setup([&] {
        TypeOver(StationForm().Text6, "");
        Press("Esc");
        EXPECT_FALSE(StationForm().IsLoaded());
    });
    EXPECT_EQ(TakeBoxes(), Lines{});
}

TEST_F(StationTest, OffsetTakesSignPointSlashAndDigitsOnly) {
    StartOnDesk();
    Setup([&] {
        TypeOver(StationForm().Text6, "a-3e.+5,\" ");
        EXPECT_EQ(StationForm().Text6.Text(), "-3.5");
        TypeOver(StationForm().Text6, "1/2");
        EXPECT_EQ(StationForm().Text6.Text(), "1/2");
        TypeOver(StationForm().Text6, "-3.5");
        Press("Tab");
        EXPECT_EQ(TakeBoxes(), Lines{});
    });
    EXPECT_EQ(OnDisk().gUtcOffset, -3.5F);
}

TEST_F(StationTest, OffsetCannotBecomeSoLargeThatNoDateHoldsIt) {
    StartOnDesk();
    Setup([&] {
        StationForm().Text6.ReplaceByPaste("1E300");
        EXPECT_EQ(StationForm().Text6.Text(), "1300");
        TypeOver(StationForm().Text6, "99999999");
    });
    EXPECT_NO_THROW(AddMinutes(clock.Now(), 60.0 * static_cast<double>(program->preferences.gUtcOffset)));
    for (const char* offset : {"-12.75", "5.75", "-3.5", "0"}) {
        Setup([&] { TypeOver(StationForm().Text6, offset); });
        EXPECT_EQ(PlainText(program->preferences.gUtcOffset), offset);
    }
}

TEST_F(StationTest, LeavingAnOffsetThatIsNoNumberGivesTheFocusBackAfterOneBox) {
    StartOnDesk();
    for (const char* text : {"", "1/2", "-", "3-5"}) {
        Setup([&] {
            TypeOver(StationForm().Text6, text);
            Press("Shift+Tab");
            EXPECT_EQ(TakeBoxes(), Lines{kNotNumeric}) << text;
            EXPECT_EQ(FocusInDialog(), "Text6");
            Click(StationForm().Command1);
            EXPECT_EQ(TakeBoxes(), Lines{kNotNumeric}) << text;
            EXPECT_TRUE(StationForm().IsVisible());
            EXPECT_EQ(FocusInDialog(), "Text6");
            StationForm().RequestClose();
        });
        EXPECT_EQ(TakeBoxes(), Lines{});
    }
}

TEST_F(StationTest, DoneMakesAnOffsetThatIsNoNumberZero) {
    StartOnDesk();
    Setup([&] {
        TypeOver(StationForm().Text6, "1/2");
        Press("Enter");
    });
    EXPECT_EQ(OnDisk().gUtcOffset, 0);
    EXPECT_EQ(shared.at(2), (SharedCall{"OWN_UTC", "0", false}));
    EXPECT_EQ(TakeBoxes(), Lines{});
}

TEST_F(StationTest, FormHiddenWithoutDoneFallsBackToFiveHours) {
    StartOnDesk();
    Setup([&] {
        StationForm().Text6.SetText("x");
        StationForm().Hide();
    });
    EXPECT_EQ(OnDisk().gUtcOffset, 5);
}

TEST_F(StationTest, NothingIsCheckedAgainstSectionsOrPrecedences) {
    StartOnDesk();
    Setup([&] {
        TypeOver(StationForm().Text3, "zz");
        TypeOver(StationForm().Text5, "nowhere");
    });
    EXPECT_EQ(Exchange(), "ZZ|W1XX|72|NOWHERE");
    EXPECT_EQ(TakeBoxes(), Lines{});
}

TEST_F(StationTest, TheMainFormSaysWhichContestItIs) {
    StartOnDesk();
    EXPECT_EQ(Main().lblMode.Caption(), "CW");
    Setup([&] { StationForm().Option2.SetValue(true); });
    EXPECT_EQ(Main().lblMode.Caption(), "Phone");
}

TEST_F(StationTest, DoubleQuotesLeaveAReadableSettingsFile) {
    StartOnDesk();
    Setup([&] {
        TypeOver(StationForm().Text1, "w\"1x\"x");
        StationForm().Text5.ReplaceByPaste("\"M\r\nDC\"");
    });
    EXPECT_EQ(OnDisk().gOwnCall, "W1XX");
    EXPECT_EQ(OnDisk().gOwnSection, "MDC");
}

TEST_F(StationTest, SettingsThatCannotBeSavedFromTheMenuAreToldAndStayAsTheyWere) {
    StartOnDesk();
    const std::string before = files.contents.at(kPreferencesPath);
    files.FailAt(1, "No space left on device");
    Meanwhile([&] {
        TypeOver(StationForm().Text1, "K2YY");
        Press("Enter");
    });
    ChooseMenu(Main().mnuSetup);
    EXPECT_EQ(TakeBoxes().back(),
              "message \"Tallyhut Log\" \"/contest/nspref.txt: No space left on device\" OK Exclamation");
    EXPECT_EQ(files.contents.at(kPreferencesPath), before);
}

}  // namespace
}  // namespace tallyhut
