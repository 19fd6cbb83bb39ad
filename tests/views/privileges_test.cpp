#include "views/privileges.h"

#include <fstream>
#include <sstream>

#include "tests/views/views_fixture.h"

namespace tallyhut {
namespace {

constexpr const char* kPlan =
    "\"February 13, 2026\"\r\n"
    "\"40\",\"O\",\"O\",7,7.3\r\n"
    "\"40\",\"N\",\"CW\",7.025,7.125\r\n"
    "\"40\",\"E\",\"CW\",7,7.125\r\n"
    "\"40\",\"E\",\"PH\",7.125,7.3\r\n"
    "\"20\",\"O\",\"O\",14,14.35\r\n"
    "\"20\",\"G\",\"CW\",14.025,14.15\r\n"
    "\"20\",\"E\",\"CW\",14,14.15\r\n";

struct PrivilegesTest : ViewsFixture {
    frmBandPlan& Plan() { return Views().planForm; }

    void OpenPlan(const std::optional<std::string>& text = kPlan) {
        Start();
        if (text) {
            files.Put("/contest/BandPlan.txt", *text);
        } else if (files.FileExists("/contest/BandPlan.txt")) {
            files.Remove("/contest/BandPlan.txt");
        }
        ChooseMenu(Main().mnuPrivileges);
    }
    void ExpectEmpty() {
        EXPECT_EQ(dialogs.boxes,
                  std::vector<std::string>{
                      "message \"Band Data Not Available.\" \"Band data not available.\" OK Exclamation"});
        for (Button* button : {&Plan().Command1, &Plan().Command6}) {
            Click(*button);
            EXPECT_EQ(Plan().blbl.Count() + Plan().priv.Count() + Plan().bnlb.Count(), 0);
        }
    }
    std::string Bands() {
        std::string captions;
        for (int i = 0; i < Plan().blbl.Count(); ++i) {
            captions += Plan().blbl(i).Caption() + '|';
        }
        return captions;
    }
    std::string Segments() {
        std::string captions;
        for (int i = 0; i < Plan().priv.Count(); ++i) {
            captions += Plan().priv(i).State().toolTip + '|';
        }
        return captions;
    }
    void TellRadio(float frequency) {
        program->rigState.polls = true;
        program->rigState.frequencyHeard = true;
        program->rigState.RigFrequency = frequency;
        program->preferences.gRigName = "Kenwood";
        PassTime(500);
    }
};

TEST_F(PrivilegesTest, ItsWordsAreTold) {
    OpenPlan();
    EXPECT_EQ(Plan().Caption(), "Frequency Privileges");
    EXPECT_EQ(Plan().Label1.Caption(), "Frequencies Effective: February 13, 2026");
    EXPECT_EQ(Plan().Label4.Caption(), "Phone");
    EXPECT_EQ(Plan().Label5.Caption(), "Privelages");
    EXPECT_EQ(Plan().Command7.Caption(), "Done");
}

TEST_F(PrivilegesTest, OpensWithThoseOfExtra) {
    OpenPlan();
    EXPECT_EQ(Plan().Label2.Caption(), "Extra Frequency Privileges");
    EXPECT_EQ(Bands(), "40  7.000 - 7.300|20  14.000 - 14.350|");
    EXPECT_EQ(Segments(), "CW  7.000 - 7.125|Phone  7.125 - 7.300|CW  14.000 - 14.150|");
}

TEST_F(PrivilegesTest, EachButtonShowsItsClass) {
    OpenPlan();
    const struct {
        Button& button;
        const char* caption;
        const char* title;
        const char* bands;
    } rows[] = {
        {Plan().Command1, "Novice", "Novice Frequency Privileges", "40  7.000 - 7.300|"},
        {Plan().Command2, "Technician", "Technician Frequency Privileges", ""},
        {Plan().Command3, "Tech +", "Technician Plus Frequency Privileges", ""},
        {Plan().Command4, "General", "General Frequency Privileges", "20  14.000 - 14.350|"},
        {Plan().Command5, "Advanced", "Advanced Frequency Privileges", ""},
        {Plan().Command6, "Extra", "Extra Frequency Privileges", "40  7.000 - 7.300|20  14.000 - 14.350|"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.button.Caption(), row.caption);
        Click(row.button);
        EXPECT_EQ(Plan().Label2.Caption(), row.title);
        EXPECT_EQ(Bands(), row.bands) << row.caption;
    }
}

TEST_F(PrivilegesTest, ASecondClickLeavesNoLabelsBehind) {
    OpenPlan();
    const std::size_t controls = ControlsOf(Plan());
    Click(Plan().Command6);
    EXPECT_EQ(ControlsOf(Plan()), controls);
    Click(Plan().Command2);
    EXPECT_EQ(Plan().priv.Count(), 0);
}

TEST_F(PrivilegesTest, BandsStandInLinesOfTheDisplay) {
    OpenPlan();
    const double width = Plan().FormPlace().width;
    const double height = Plan().FormPlace().height;
    for (int i = 0; i < 2; ++i) {
        const Place& place = Plan().blbl(i).State().place;
        EXPECT_DOUBLE_EQ(place.left, 0.1 * width);
        EXPECT_DOUBLE_EQ(place.width, 0.85 * width);
        EXPECT_DOUBLE_EQ(place.height, 0.04 * height);
    }
    EXPECT_NEAR(Plan().blbl(1).State().place.top - Plan().blbl(0).State().place.top, 0.05 * height, 1e-9);
}

TEST_F(PrivilegesTest, ASegmentLiesWhereAndIsAsLongAsItsFrequenciesSay) {
    OpenPlan();
    Click(Plan().Command1);
    const Place& band = Plan().blbl(0).State().place;
    const Place& segment = Plan().priv(0).State().place;
    EXPECT_NEAR(segment.left, band.left + band.width * 0.025 / 0.3, 0.1);
    EXPECT_NEAR(segment.width, band.width * 0.1 / 0.3, 0.1);
    EXPECT_GE(segment.top, band.top);
    EXPECT_LE(segment.top + segment.height, band.top + band.height + 1e-9);
}

TEST_F(PrivilegesTest, TheScaleHasTheQuartersOfTheBand) {
    OpenPlan();
    std::string scale;
    for (int i = 0; i < 4; ++i) {
        scale += Plan().bnlb(i).Caption() + ' ';
    }
    EXPECT_EQ(scale, "7.075 7.150 7.225 7.300 ");
    const Place& band = Plan().blbl(0).State().place;
    const Place& middle = Plan().bnlb(1).State().place;
    EXPECT_NEAR(middle.left + middle.width / 2, band.left + band.width / 2, 1e-6);
}

TEST_F(PrivilegesTest, CwAndPhoneAreToldByColourAndByWord) {
    OpenPlan();
    EXPECT_EQ(Plan().priv(0).Caption(), "CW");
    EXPECT_EQ(Plan().priv(1).Caption(), "Phone");
    EXPECT_NE(Plan().priv(0).State().backColor, Plan().priv(1).State().backColor);
    EXPECT_EQ(Plan().Label3.State().backColor, Plan().priv(0).State().backColor);
    EXPECT_EQ(Plan().Label4.State().backColor, Plan().priv(1).State().backColor);
}

TEST_F(PrivilegesTest, AMissingFileIsToldAndTheFormStandsEmpty) {
    OpenPlan(std::nullopt);
    EXPECT_TRUE(Plan().IsVisible());
    ExpectEmpty();
    EXPECT_EQ(Plan().Label1.Caption(), "");
}

TEST_F(PrivilegesTest, SoIsADamagedOne) {
    for (const char* record : {"\"40\",\"O\",\"O\",seven,7.3\r\n", "\"40\",\"O\",\"O\",7\r\n", "\"40\",\"O\"\r\n",
                               "\"40\",\"O\"\"O\",7,7.3\r\n"}) {
        OpenPlan(std::string{kPlan} + record);
        ExpectEmpty();
    }
}

TEST_F(PrivilegesTest, AndAnEmptyOne) {
    OpenPlan("");
    ExpectEmpty();
}

TEST_F(PrivilegesTest, ADateAloneIsAPlanWithoutBands) {
    OpenPlan("\"today\"\r\n");
    EXPECT_EQ(dialogs.boxes, std::vector<std::string>{});
    EXPECT_EQ(Plan().Label1.Caption(), "Frequencies Effective: today");
    EXPECT_EQ(Bands(), "");
}

TEST_F(PrivilegesTest, OfMoreThanTwoHundredRecordsTheFirstAreShown) {
    std::string plan = "\"today\"\r\n\"20\",\"O\",\"O\",14,14.35\r\n";
    for (int n = 2; n <= 250; ++n) {
        plan += n <= 200 ? "\"20\",\"E\",\"CW\",14,14.15\r\n" : "\"20\",\"G\",\"CW\",14,14.15\r\n";
    }
    OpenPlan(plan);
    EXPECT_EQ(Plan().priv.Count(), 199);
    Click(Plan().Command4);
    EXPECT_EQ(Plan().priv.Count(), 0);
}

TEST_F(PrivilegesTest, TheFileIsReadAtEachOpening) {
    OpenPlan();
    Click(Plan().Command7);
    EXPECT_FALSE(Plan().IsLoaded());
    EXPECT_EQ(Plan().blbl.Count(), 0);
    files.Put("/contest/BandPlan.txt", "\"now\"\r\n");
    ChooseMenu(Main().mnuPrivileges);
    EXPECT_EQ(Plan().Label1.Caption(), "Frequencies Effective: now");
}

TEST_F(PrivilegesTest, CtrlFOpensItAndTypesNothing) {
    Start();
    files.Put("/contest/BandPlan.txt", kPlan);
    Press("Ctrl+F");
    EXPECT_TRUE(Plan().IsActive());
    EXPECT_EQ(Fields(), "||||");
}

TEST_F(PrivilegesTest, AChannelOfUpperSidebandIsKnownByItsDial) {
    std::ifstream file{TALLYHUT_DATA "/BandPlan.txt"};
    std::stringstream text;
    text << file.rdbuf();
    OpenPlan(text.str());
    for (const float dial : {5.3305F, 5.3465F, 5.3715F, 5.4035F}) {
        TellRadio(dial);
        EXPECT_TRUE(Plan().lblRadio.Caption().ends_with("  USB")) << Plan().lblRadio.Caption();
    }
    TellRadio(5.34F);
    EXPECT_TRUE(Plan().lblRadio.Caption().ends_with("  no privilege")) << Plan().lblRadio.Caption();
}

TEST_F(PrivilegesTest, ThePresentFrequencyIsMarkedOnItsBandWhileARadioIsPolled) {
    OpenPlan();
    EXPECT_FALSE(Plan().LineRadio.State().visible);
    EXPECT_EQ(Plan().lblRadio.Caption(), "");
    TellRadio(14.175F);
    const Place& band = Plan().blbl(1).State().place;
    EXPECT_TRUE(Plan().LineRadio.State().visible);
    EXPECT_NEAR(Plan().LineRadio.State().x1, band.left + band.width / 2, 1);
    EXPECT_EQ(Plan().LineRadio.State().y1, band.top);
    EXPECT_EQ(Plan().lblRadio.Caption(), "Radio 14.1750  no privilege");
    TellRadio(14.01F);
    EXPECT_EQ(Plan().lblRadio.Caption(), "Radio 14.0100  CW");
    TellRadio(7.2F);
    EXPECT_EQ(Plan().lblRadio.Caption(), "Radio 7.2000  Phone");
    TellRadio(1.9F);
    EXPECT_FALSE(Plan().LineRadio.State().visible);
    EXPECT_EQ(Plan().lblRadio.Caption(), "Radio 1.9000  no privilege");
    program->rigState.polls = false;
    PassTime(500);
    EXPECT_EQ(Plan().lblRadio.Caption(), "");
}

TEST_F(PrivilegesTest, TheMarkFollowsTheClass) {
    OpenPlan();
    TellRadio(7.05F);
    Click(Plan().Command4);
    EXPECT_FALSE(Plan().LineRadio.State().visible);
    EXPECT_EQ(Plan().lblRadio.Caption(), "Radio 7.0500  no privilege");
}

TEST_F(PrivilegesTest, TextGrowsWithTheScreenByHalfAtMost) {
    screen.whole = {.width = 19'200, .height = 14'400};
    OpenPlan();
    EXPECT_DOUBLE_EQ(Plan().FormPlace().width, 19'200);
    EXPECT_DOUBLE_EQ(Plan().blbl(0).State().fontSize, 13.5);
}

TEST_F(PrivilegesTest, OpenedAThousandTimesItHasWhatItHadAtFirst) {
    OpenPlan();
    const std::size_t controls = ControlsOf(Plan());
    for (int n = 0; n < 1'000; ++n) {
        Plan().Unload();
        Plan().Show();
    }
    EXPECT_EQ(ControlsOf(Plan()), controls);
}

}  // namespace
}  // namespace tallyhut
