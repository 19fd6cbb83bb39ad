#include "views/activity_graph.h"

#include "tests/views/views_fixture.h"

namespace tallyhut {
namespace {

constexpr Colour kBlack = FromRgb(0, 0, 0);
constexpr Colour kWhite = FromRgb(255, 255, 255);
constexpr Colour kRed = FromRgb(255, 0, 0);

constexpr const char* kTooFew =
    "message \"Not Enough Contacts to Graph.\" \"The graph will not display with less than 7 contacts.  The graph "
    "becomes more meaningful as several hours of contest logging are accumulated.\" OK Exclamation";

struct ActivityGraphTest : ViewsFixture {
    GraphQSO& Graph() { return Views().graphForm; }
    RateCurve& Curve() { return Views().graph.curve; }

    void OpenGraph(const std::vector<Contact>& contacts) {
        StartWith(contacts);
        ChooseMenu(Main().mnuGraph);
    }
    /// One a minute on 40 metres.
    static std::vector<Contact> Minutes(int count, const std::string& band = "40") {
        std::vector<Contact> contacts;
        for (int n = 0; n < count; ++n) {
            contacts.push_back(WorkedAt(n * 60, band));
        }
        return contacts;
    }
    /// So close to each other that no gap stays open: 70 minutes, at 120 an hour behind the first ten.
    static std::vector<Contact> Steady() {
        std::vector<Contact> contacts;
        for (int n = 0; n <= 140; ++n) {
            contacts.push_back(WorkedAt(n * 30));
        }
        return contacts;
    }
    /// How many pixels of the plot have the colour.
    int PixelsOf(Colour colour) {
        const RasterImage& image = Graph().picGraph.Image();
        const double scale = image.Width() / GraphQSO::kPicture.width;
        int count = 0;
        for (int y = static_cast<int>(GraphQSO::kPlot.top * scale); y < image.Height(); ++y) {
            for (int x = 0; x < image.Width(); ++x) {
                count += image.At(x, y) == colour ? 1 : 0;
            }
        }
        return count;
    }
    void PointAt(double share, double y = 3000) {
        Graph().picGraph.pointer = {GraphQSO::kPlot.left + share * GraphQSO::kPlot.width, y};
        TheDesk().Call(Graph().picGraph.MouseMove);
    }
};

TEST_F(ActivityGraphTest, ItsWordsAreTold) {
    OpenGraph(Minutes(7));
    EXPECT_EQ(Graph().Caption(), " Activity Graph - QSOs per Hour Rate   (# QSOs over 10 minutes X 6)");
    EXPECT_EQ(Graph().Label1.Caption(), "Band ");
    EXPECT_EQ(Graph().Command1.Caption(), "Black Background");
    std::string bands;
    for (int i = 0; i <= Graph().lblBnd.Last(); ++i) {
        bands += Graph().lblBnd(i).Caption() + ' ' + std::to_string(Graph().lblBnd(i).State().foreColor) + '|';
    }
    EXPECT_EQ(bands, "160 16777215|80 16711680|40 255|20 65280|15 16777088|10 16711935|6 65535|");
    EXPECT_EQ(Graph().lblTime.Last(), 14);
    EXPECT_EQ(Graph().lblDate.Last(), 14);
    EXPECT_EQ(Graph().lblY.Last(), 16);
}

TEST_F(ActivityGraphTest, SixContactsAreTooFew) {
    OpenGraph(Minutes(6));
    EXPECT_EQ(dialogs.boxes, std::vector<std::string>{kTooFew});
    EXPECT_EQ(PixelsOf(kRed), 0);
    EXPECT_EQ(Graph().lblTime(0).Caption(), "");
}

TEST_F(ActivityGraphTest, AnEmptyLogIsNoOther) {
    OpenGraph({});
    EXPECT_EQ(dialogs.boxes, std::vector<std::string>{kTooFew});
}

TEST_F(ActivityGraphTest, SevenAreDrawnInTheColourOfTheirBand) {
    OpenGraph(Minutes(7));
    EXPECT_EQ(dialogs.boxes, std::vector<std::string>{});
    EXPECT_GT(PixelsOf(kRed), 500);
    EXPECT_EQ(PixelsOf(FromRgb(0, 255, 0)), 0);
}

TEST_F(ActivityGraphTest, SixMetresColourTheLine) {
    OpenGraph(Minutes(8, "6"));
    EXPECT_GT(PixelsOf(FromRgb(255, 255, 0)), 500);
}

TEST_F(ActivityGraphTest, TheAxesTellTheTimeInFourteenPartsAndTheRateInSixteen) {
    OpenGraph(Steady());
    EXPECT_EQ(Graph().lblTime(0).Caption(), "21:00");
    EXPECT_EQ(Graph().lblTime(1).Caption(), "21:05");
    EXPECT_EQ(Graph().lblTime(14).Caption(), "22:10");
    EXPECT_EQ(Graph().lblDate(0).Caption(), "11/07");
    EXPECT_EQ(Graph().lblDate(14).Caption(), "11/07");
    EXPECT_EQ(Graph().lblY(0).Caption(), "6.0");
    EXPECT_EQ(Graph().lblY(16).Caption(), "120.0");
    EXPECT_EQ(Graph().lblY(8).Caption(), "63.0");
    EXPECT_EQ(Graph().lblY(1).Caption(), "13.1");
}

TEST_F(ActivityGraphTest, TheLowestRateStandsAtTheBottomAndTheHighestJustBelowTheTop) {
    OpenGraph(Steady());
    const RasterImage& image = Graph().picGraph.Image();
    const double scale = image.Width() / GraphQSO::kPicture.width;
    const auto highest = [&] {
        for (int y = static_cast<int>(GraphQSO::kPlot.top * scale); y < image.Height(); ++y) {
            for (int x = 0; x < image.Width(); ++x) {
                if (image.At(x, y) == kRed) {
                    return y / scale;
                }
            }
        }
        return 0.0;
    }();
    EXPECT_NEAR(highest, GraphQSO::kPlot.top + GraphQSO::kPlot.height * 0.005, 2 / scale);
}

TEST_F(ActivityGraphTest, APauseIsNoLine) {
    std::vector<Contact> contacts = Minutes(10);
    contacts.push_back(WorkedAt(36'000));
    contacts.push_back(WorkedAt(36'060));
    OpenGraph(contacts);
    const Drawing& drawing = *Graph().picGraph.Shapes();
    int lines = 0;
    for (const Shape& shape : drawing.shapes) {
        lines += shape.colour == kRed ? 1 : 0;
    }
    EXPECT_EQ(lines, 3) << "two stretches and the sample of the legend";
}

TEST_F(ActivityGraphTest, AClickGivesTheBackgroundThatTheCaptionNames) {
    OpenGraph(Minutes(7));
    EXPECT_EQ(Graph().picGraph.State().backColor, kWindowGround) << "at first the desktop's";
    Click(Graph().Command1);
    EXPECT_EQ(Graph().Command1.Caption(), "White Background");
    EXPECT_EQ(Graph().picGraph.State().backColor, kBlack);
    EXPECT_EQ(Graph().picGraph.Image().At(1, 1), kBlack);
    for (const Label* label : {&Graph().lblTime(3), &Graph().lblDate(14), &Graph().lblY(0), &Graph().Label1}) {
        EXPECT_EQ(label->State().foreColor, kWhite) << label->FullName();
    }
    Click(Graph().Command1);
    EXPECT_EQ(Graph().Command1.Caption(), "Black Background");
    EXPECT_EQ(Graph().picGraph.Image().At(1, 1), kWhite);
    for (const Label* label :
         {&Graph().lblTime(3), &Graph().lblDate(14), &Graph().lblY(0), &Graph().Label1, &Graph().lblBnd(2)}) {
        EXPECT_EQ(label->State().foreColor, kBlack) << label->FullName();
    }
    EXPECT_GT(PixelsOf(kRed), 500);
}

TEST_F(ActivityGraphTest, SamplesOfTheLegendKeepTheColoursOfTheBandsOnBothBackgrounds) {
    OpenGraph(Minutes(7));
    for (int round = 0; round < 3; ++round) {
        const RasterImage& image = Graph().picGraph.Image();
        const double scale = image.Width() / GraphQSO::kPicture.width;
        for (std::size_t i = 0; i < kGraphBands.size(); ++i) {
            const Place sample = GraphQSO::SampleOf(static_cast<int>(i));
            EXPECT_EQ(image.At(static_cast<int>((sample.left + 200) * scale), static_cast<int>(sample.top * scale)),
                      kGraphBands.at(i).colour)
                << i;
        }
        Click(Graph().Command1);
    }
}

TEST_F(ActivityGraphTest, OnBlackTheLegendHasTheColoursOfTheBandsAgain) {
    OpenGraph(Minutes(7));
    for (int click = 0; click < 3; ++click) {
        Click(Graph().Command1);
    }
    EXPECT_EQ(Graph().lblBnd(2).State().foreColor, kRed);
}

TEST_F(ActivityGraphTest, TheMomentAndTheRateAreToldUnderThePointer) {
    OpenGraph(Steady());
    PointAt(0.5);
    EXPECT_EQ(Graph().lblHover.Caption(), "11/07  21:35   120.0 QSOs per hour   40 m");
    EXPECT_TRUE(Graph().LineHover.State().visible);
    EXPECT_NEAR(Graph().LineHover.State().x1,
                GraphQSO::kPicture.left + GraphQSO::kPlot.left + GraphQSO::kPlot.width / 2, 1e-9);
    PointAt(1.5);
    EXPECT_EQ(Graph().lblHover.Caption(), "");
    EXPECT_FALSE(Graph().LineHover.State().visible);
    PointAt(0);
    EXPECT_EQ(Graph().lblHover.Caption(), "11/07  21:00   6.0 QSOs per hour   40 m");
}

TEST_F(ActivityGraphTest, AndThatThereWasNone) {
    std::vector<Contact> contacts = Minutes(10);
    contacts.push_back(WorkedAt(36'000));
    OpenGraph(contacts);
    PointAt(0.5);
    EXPECT_EQ(Graph().lblHover.Caption(), "11/08  02:00   no contacts");
}

TEST_F(ActivityGraphTest, OnALargerScreenThePointerStandsForTheSameMoment) {
    screen.whole = {.width = 19'200, .height = 14'400};
    OpenGraph(Steady());
    Graph().picGraph.pointer = {2 * (GraphQSO::kPlot.left + GraphQSO::kPlot.width / 2), 2000};
    TheDesk().Call(Graph().picGraph.MouseMove);
    EXPECT_EQ(Graph().lblHover.Caption(), "11/07  21:35   120.0 QSOs per hour   40 m");
}

TEST_F(ActivityGraphTest, ABandThatIsPointedAtInTheLegendStandsOutByItsWidth) {
    std::vector<Contact> contacts = Minutes(10);
    for (int n = 10; n < 20; ++n) {
        contacts.push_back(WorkedAt(n * 60, "20"));
    }
    OpenGraph(contacts);
    const auto widthOf = [this](Colour colour) {
        const auto& shapes = Graph().picGraph.Shapes()->shapes;
        return std::ranges::find(shapes.rbegin(), shapes.rend(), colour, &Shape::colour)->width;
    };
    const double usual = widthOf(kRed);
    EXPECT_EQ(widthOf(FromRgb(0, 255, 0)), usual);
    TheDesk().Call(Graph().lblBnd(2).MouseMove);
    EXPECT_GT(widthOf(kRed), 3 * usual);
    EXPECT_LT(widthOf(FromRgb(0, 255, 0)), usual);
    PointAt(0.5);
    EXPECT_EQ(widthOf(kRed), usual);
}

TEST_F(ActivityGraphTest, ARecordWithoutADateThatCanBeReadEndsTheDrawing) {
    std::vector<Contact> contacts = Minutes(9);
    contacts[4].Date = "2026/13/45";
    OpenGraph(contacts);
    EXPECT_EQ(PixelsOf(kRed), 0);
    EXPECT_EQ(Graph().lblTime(14).Caption(), "21:08") << "the axis was labelled before";
    EXPECT_EQ(Graph().lblY(0).Caption(), "");
    EXPECT_EQ(Graph().lblHover.Caption(), "Record 5 has no date and time that can be read.");
    PointAt(0.5);
    EXPECT_FALSE(Graph().LineHover.State().visible);
    Click(Graph().cmdDone);
    contacts.back().Time = "";
    contacts.back().Date = "";
    program->log.Change(9, [&contacts](Contact& contact) { contact = contacts.back(); });
    ChooseMenu(Main().mnuGraph);
    EXPECT_EQ(Graph().lblTime(14).Caption(), "");
}

TEST_F(ActivityGraphTest, ContactsInOneSecondAreAPoint) {
    OpenGraph(std::vector<Contact>(7, WorkedAt(0)));
    EXPECT_GT(PixelsOf(kRed), 0);
    EXPECT_EQ(Graph().lblY(16).Caption(), "42.0");
}

TEST_F(ActivityGraphTest, EqualRatesEverywhereAreALineAtTheBottom) {
    OpenGraph(Minutes(7));
    Curve().RateSmooth.fill(60);
    FindBounds(Curve());
    EXPECT_EQ(Curve().RateMin, Curve().RateMax);
    TheDesk().Call(Graph().lblBnd(2).MouseMove);  // draws it anew
    EXPECT_GT(PixelsOf(kRed), 500);
}

TEST_F(ActivityGraphTest, TheLogIsReadOnceAndAgainWhenTheMenuIsChosenAgain) {
    OpenGraph(Minutes(7));
    program->log.Change(7, [](Contact& contact) { contact.Time = "22:10:00"; });
    TheDesk().Activate(Main());
    TheDesk().Activate(Graph());
    TheDesk().RunPending();
    EXPECT_EQ(Graph().lblTime(14).Caption(), "21:06");
    ChooseMenu(Main().mnuGraph);
    EXPECT_EQ(Graph().lblTime(14).Caption(), "22:10");
}

TEST_F(ActivityGraphTest, ScriptsReadTheSeries) {
    OpenGraph(Steady());
    EXPECT_EQ(program->told.Find("RateRaw(1)"), ToldNames::Value{6.0});
    EXPECT_EQ(program->told.Find("RateSmooth(1500)"), ToldNames::Value{120.0});
    EXPECT_EQ(program->told.Find("RateColor(1500)"), ToldNames::Value{255.0});
    EXPECT_EQ(program->told.Find("RateMin"), ToldNames::Value{6.0});
    EXPECT_EQ(program->told.Find("RateMax"), ToldNames::Value{120.0});
    EXPECT_EQ(program->told.Find("RateRaw(1601)"), std::nullopt);
}

TEST_F(ActivityGraphTest, ThePictureIsSavedWhereTheOperatorWants) {
    OpenGraph(Minutes(7));
    dialogs.files.emplace_back("/contest/rate.png");
    Click(Graph().cmdSave);
    EXPECT_TRUE(files.contents.at("/contest/rate.png").starts_with("\x89PNG\r\n\x1A\n"));
    EXPECT_EQ(dialogs.boxes.back(),
              "message \"File Written Successfully.\" \"The file was successfully written to the "
              "directory:\r\n\r\n/contest/rate.png.\" OK Information");
}

TEST_F(ActivityGraphTest, ASavedPictureNeverTakesThePlaceOfTheLog) {
    OpenGraph(Minutes(7));
    const std::string log = LogOnDisk();
    dialogs.files.emplace_back(kLogPath);
    Click(Graph().cmdSave);
    EXPECT_EQ(LogOnDisk(), log);
    EXPECT_TRUE(dialogs.boxes.back().starts_with("message \"Unable to write file.\"")) << dialogs.boxes.back();
}

TEST_F(ActivityGraphTest, OpenedAThousandTimesItHasWhatItHadAtFirst) {
    OpenGraph(Minutes(7));
    const std::size_t controls = ControlsOf(Graph());
    for (int n = 0; n < 1'000; ++n) {
        Graph().Unload();
        Graph().Show();
    }
    EXPECT_EQ(ControlsOf(Graph()), controls);
    Click(Graph().cmdDone);
    EXPECT_FALSE(Graph().IsLoaded());
    EXPECT_EQ(Graph().picGraph.Image().Width(), 0);
}

}  // namespace
}  // namespace tallyhut
