#include "views/map_of_sections.h"

#include <set>

#include "tests/views/views_fixture.h"

namespace tallyhut {
namespace {

constexpr Colour kWhite = FromRgb(255, 255, 255);

/// Six squares in a row, each in the middle of its hundred units: three of the Maritimes, Connecticut in the map and in
/// an inset, and the north west.
constexpr const char* kMap =
    "map 1000 500\n"
    "panel 0 0 0 1000 500 All\n"
    "panel 1 600 0 400 500 Inset\n"
    "region 1 MAR/NB New Brunswick\npart 0 50 50 20 20 60 0 0 60 -60 0\n"
    "region 2 MAR/NS Nova Scotia\npart 0 150 50 120 20 60 0 0 60 -60 0\n"
    "region 3 MAR/PE Prince Edward Island\npart 0 250 50 220 20 60 0 0 60 -60 0\n"
    "region 4 CT Connecticut\npart 0 350 50 320 20 60 0 0 60 -60 0\npart 1 800 250 700 150 200 0 0 200 -200 0\n"
    "region 5 NWT/TER North west\npart 0 450 50 420 20 60 0 0 60 -60 0\n";

constexpr const char* kListOfToday =
    R"("NB","New Brunswick","Canada","","","",1,"","",""
"NS","Nova Scotia","Canada","","","",1,"","",""
"PE","Prince Edward Island","Canada","","","",1,"","",""
"CT","Connecticut","1","","","",291,"","",""
"TER","Territories","Canada","","","",1,"","",""
)";

struct MapOfSectionsTest : ViewsFixture {
    SectionMap& Map() { return Views().mapForm; }

    void OpenMap(const std::vector<std::string>& sections, const char* map = kMap) {
        std::vector<Contact> contacts;
        for (const std::string& section : sections) {
            contacts.push_back(Worked("W" + std::to_string(contacts.size()) + "X", section));
        }
        StartWith(contacts);
        files.Put("/data/section_map.txt", map);
        ChooseMenu(Main().mnuMap);
    }
    void Paint() { PassTime(Map().Timer1.Interval()); }
    void ChooseMenuThenUseTheFoldersList() {
        frmSections& dialog = program->logPart.sectionsForm;
        pump.OnWait([this, &dialog] {
            Click(dialog.cmdUse);
            Click(dialog.cmdDone);
        });
        ChooseMenu(Main().mnuSections);
    }
    /// Of the pixel under a label's middle.
    Colour ColourAtSeed(int county) {
        const Place& place = Map().lblCounty(county).State().place;
        const Place& picture = Map().Picture1.State().place;
        return ColourAt((place.left + place.width / 2 - picture.left) / picture.width,
                        (place.top + place.height / 2 - picture.top) / picture.height);
    }
    /// Of the pixel at so much of the picture's width and height.
    Colour ColourAt(double across, double down) {
        const RasterImage& image = Map().Picture1.Image();
        return image.At(static_cast<int>(across * image.Width()), static_cast<int>(down * image.Height()));
    }
    void PointAt(double across, double down) {
        const Place& place = Map().Picture1.State().place;
        Map().Picture1.pointer = {across * place.width, down * place.height};
        TheDesk().Call(Map().Picture1.MouseMove);
    }
};

TEST_F(MapOfSectionsTest, ItsWordsAreTold) {
    OpenMap({});
    EXPECT_EQ(Map().Caption(), " Section Map");
    EXPECT_EQ(Map().Label1.Caption(), "Sections will change color when worked.");
    EXPECT_EQ(Map().lblCounty.First(), 0);
    EXPECT_EQ(Map().lblCounty.Last(), 93);
}

TEST_F(MapOfSectionsTest, StandsInTheMiddleOfTheScreen) {
    screen.whole = {.width = 19'200, .height = 14'400};
    OpenMap({});
    const Place& place = Map().FormPlace();
    EXPECT_DOUBLE_EQ(place.left, (19'200 - place.width) / 2);
    EXPECT_DOUBLE_EQ(place.top, (14'400 - place.height) / 2);
}

TEST_F(MapOfSectionsTest, ALabelTellsItsCodeAsAHintAndNotOnThePicture) {
    OpenMap({});
    EXPECT_EQ(Map().lblCounty(3).State().toolTip, "MAR");
    EXPECT_EQ(Map().lblCounty(3).Caption(), "");
    EXPECT_EQ(Map().lblCounty(4).State().toolTip, "CT");
    EXPECT_EQ(Map().lblCounty(5).State().toolTip, "NWT");
    EXPECT_FALSE(Map().lblCounty(6).State().visible);
    EXPECT_LT(Map().lblCounty(4).State().backColor, 0) << "no ground of its own";
}

TEST_F(MapOfSectionsTest, AnInsetBearsItsName) {
    OpenMap({});
    EXPECT_EQ(Map().lblPanel(1).Caption(), "Inset");
    EXPECT_TRUE(Map().lblPanel(1).State().visible);
    EXPECT_FALSE(Map().lblPanel(2).State().visible);
    const Place& picture = Map().Picture1.State().place;
    EXPECT_DOUBLE_EQ(Map().lblPanel(1).State().place.left, picture.left + 0.6 * picture.width);
}

TEST_F(MapOfSectionsTest, AnEmptyLogPaintsNothing) {
    OpenMap({});
    Paint();
    EXPECT_TRUE(Map().Label1.State().visible);
    EXPECT_EQ(Map().lblWorked.Caption(), "Worked 0");
    EXPECT_EQ(Map().lblNeeded.Caption(), "Needed 83");
    for (int county = 1; county <= 5; ++county) {
        EXPECT_EQ(ColourAtSeed(county), kWhite) << county;
    }
}

TEST_F(MapOfSectionsTest, OneContactPaintsAllRegionsOfItsSectionAlike) {
    OpenMap({"MAR"});
    EXPECT_FALSE(Map().Label1.State().visible);
    EXPECT_EQ(ColourAtSeed(1), kWhite) << "before the timer";
    Paint();
    EXPECT_NE(ColourAtSeed(1), kWhite);
    EXPECT_EQ(ColourAtSeed(2), ColourAtSeed(1));
    EXPECT_EQ(ColourAtSeed(3), ColourAtSeed(1));
    EXPECT_EQ(ColourAtSeed(4), kWhite);
    EXPECT_EQ(ColourAt(0.95, 0.95), kWhite) << "nothing has run out into the sea";
    EXPECT_EQ(Map().lblWorked.Caption(), "Worked 1");
    EXPECT_EQ(Map().lblNeeded.Caption(), "Needed 82");
}

TEST_F(MapOfSectionsTest, ASectionIsPaintedInItsInsetToo) {
    OpenMap({"CT"});
    Paint();
    EXPECT_NE(ColourAt(0.35, 0.1), kWhite);
    EXPECT_EQ(ColourAt(0.35, 0.1), ColourAt(0.8, 0.5));
    EXPECT_EQ(ColourAtSeed(4), ColourAt(0.8, 0.5)) << "the label stands where the section is larger";
}

TEST_F(MapOfSectionsTest, TheNorthWestIsNoSectionAndStaysWhite) {
    std::vector<std::string> all;
    for (const ListedSection& section : ToldSections().sections) {
        all.push_back(section.code);
    }
    OpenMap(all);
    Paint();
    EXPECT_EQ(ColourAtSeed(5), kWhite);
    EXPECT_NE(ColourAtSeed(4), kWhite);
    EXPECT_EQ(Map().lblNeeded.Caption(), "Needed 0");
}

TEST_F(MapOfSectionsTest, ARegionBearsTheCodeOfTheListInForce) {
    files.Put("/contest/Sections.txt", kListOfToday);
    OpenMap({"NS", "TER"});
    Paint();
    EXPECT_EQ(Map().lblCounty(2).State().toolTip, "NS");
    EXPECT_EQ(Map().lblCounty(5).State().toolTip, "TER");
    EXPECT_NE(ColourAtSeed(2), kWhite);
    EXPECT_NE(ColourAtSeed(5), kWhite);
    EXPECT_EQ(ColourAtSeed(1), kWhite);
    EXPECT_EQ(ColourAtSeed(3), kWhite);
    EXPECT_EQ(Map().lblNeeded.Caption(), "Needed 3");
    PointAt(0.15, 0.1);
    EXPECT_EQ(Map().lblRegion.Caption(), "NS   Nova Scotia   1 contact");
}

TEST_F(MapOfSectionsTest, AMapThatIsShownFollowsAnotherList) {
    OpenMap({"NS"});
    Paint();
    EXPECT_EQ(ColourAtSeed(2), kWhite);
    files.Put("/contest/Sections.txt", kListOfToday);
    ChooseMenuThenUseTheFoldersList();
    Paint();
    EXPECT_NE(ColourAtSeed(2), kWhite);
    EXPECT_EQ(ColourAtSeed(1), kWhite);
    EXPECT_EQ(Map().lblWorked.Caption(), "Worked 1");
    EXPECT_EQ(Map().lblNeeded.Caption(), "Needed 4");
}

TEST_F(MapOfSectionsTest, ASectionLitBySpotsIsNotPainted) {
    OpenMap({"MAR"});
    program->display.grid.ShowSpotted(program->sections.Find("MAR"));
    Paint();
    EXPECT_EQ(ColourAtSeed(1), kWhite);
}

TEST_F(MapOfSectionsTest, TheTimerFiresOnce) {
    OpenMap({"MAR"});
    Paint();
    const Colour painted = ColourAtSeed(1);
    EXPECT_FALSE(Map().Timer1.Enabled());
    PassTime(60'000);
    EXPECT_EQ(ColourAtSeed(1), painted);
}

TEST_F(MapOfSectionsTest, EachOpeningHasNewColours) {
    OpenMap({"MAR"});
    std::set<Colour> colours;
    for (int n = 0; n < 5; ++n) {
        Paint();
        colours.insert(ColourAtSeed(1));
        Click(Map().cmdDone);
        PassTime(1'000);
        ChooseMenu(Main().mnuMap);
    }
    EXPECT_GT(colours.size(), 3U);
    EXPECT_FALSE(colours.contains(kWhite));
}

TEST_F(MapOfSectionsTest, ARegionThatIsPaintedTakesTheNewColour) {
    OpenMap({"MAR"});
    Paint();
    const Colour first = ColourAtSeed(1);
    PassTime(1'000);
    ChooseMenu(Main().mnuMap);  // it was open
    Paint();
    EXPECT_NE(ColourAtSeed(1), first);
    EXPECT_NE(ColourAtSeed(1), kWhite);
}

TEST_F(MapOfSectionsTest, AColourIsNeverPureWhite) {
    OpenMap({"MAR"});
    for (int n = 0; n < 50; ++n) {
        PassTime(7);
        Views().sectionMap.Timer1_Timer();
        const Colour colour = ColourAtSeed(1);
        EXPECT_LE(std::max({RedOf(colour), GreenOf(colour), BlueOf(colour)}), 254);
    }
}

TEST_F(MapOfSectionsTest, TheShapesThatAHostDrawsHaveTheColoursOfThePixels) {
    OpenMap({"MAR"});
    Paint();
    int painted = 0;
    for (const Shape& shape : Map().Picture1.Shapes()->shapes) {
        painted += shape.kind == Shape::Kind::Area && shape.colour == ColourAtSeed(1) ? 1 : 0;
    }
    EXPECT_EQ(painted, 3);
}

TEST_F(MapOfSectionsTest, TheSectionUnderThePointerIsTold) {
    OpenMap({"CT", "CT", "MAR"});
    PointAt(0.35, 0.1);
    EXPECT_EQ(Map().lblRegion.Caption(), "CT   Connecticut   2 contacts");
    EXPECT_EQ(Map().Picture1.State().toolTip, "CT   Connecticut   2 contacts");
    PointAt(0.8, 0.5);
    EXPECT_EQ(Map().lblRegion.Caption(), "CT   Connecticut   2 contacts");
    PointAt(0.15, 0.1);
    EXPECT_EQ(Map().lblRegion.Caption(), "MAR   Maritime   1 contact");
    PointAt(0.45, 0.1);
    EXPECT_EQ(Map().lblRegion.Caption(), "NWT   no section");
    PointAt(0.05, 0.9);
    EXPECT_EQ(Map().lblRegion.Caption(), "");
    TheDesk().Call(Map().lblCounty(4).MouseMove);
    EXPECT_EQ(Map().lblRegion.Caption(), "CT   Connecticut   2 contacts");
}

TEST_F(MapOfSectionsTest, AMapThatCannotBeReadIsToldAndTheContestGoesOn) {
    OpenMap({"CT"}, "map 10 10\npanel 0 0 0 10 10 All\nrubbish\n");
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_NE(dialogs.boxes.front().find("The section map has a line that is damaged: rubbish"), std::string::npos)
        << dialogs.boxes.front();
    Paint();
    PointAt(0.5, 0.5);
    EXPECT_EQ(Map().lblRegion.Caption(), "");
    TheDesk().Activate(Main());
    Type("88");
    EXPECT_EQ(Main().txtNum.Text(), "88");
}

TEST_F(MapOfSectionsTest, SoIsOneThatIsMissing) {
    StartWith({});
    ChooseMenu(Main().mnuMap);
    EXPECT_EQ(dialogs.boxes.size(), 1U);
}

TEST_F(MapOfSectionsTest, ThePictureIsSavedWhereTheOperatorWants) {
    OpenMap({"CT"});
    Paint();
    dialogs.files.emplace_back("/contest/map.png");
    Click(Map().cmdSave);
    EXPECT_TRUE(files.contents.at("/contest/map.png").starts_with("\x89PNG\r\n\x1A\n"));
}

TEST_F(MapOfSectionsTest, ACancelledOrFailedSaveIsNoPicture) {
    OpenMap({"CT"});
    Click(Map().cmdSave);
    EXPECT_EQ(dialogs.boxes.size(), 1U) << "the question alone";
    dialogs.files.emplace_back("/nowhere/map.png");
    Click(Map().cmdSave);
    EXPECT_TRUE(dialogs.boxes.back().starts_with("message \"Unable to write file.\"")) << dialogs.boxes.back();
}

TEST_F(MapOfSectionsTest, OpenedAThousandTimesItHasWhatItHadAtFirst) {
    OpenMap({"CT"});
    const std::size_t controls = ControlsOf(Map());
    for (int n = 0; n < 1'000; ++n) {
        Map().Unload();
        Map().Show();
    }
    EXPECT_EQ(ControlsOf(Map()), controls);
    Click(Map().cmdDone);
    EXPECT_EQ(Map().Picture1.Image().Width(), 0);
    EXPECT_TRUE(Views().sectionMap.map.regions.empty());
}

}  // namespace
}  // namespace tallyhut
