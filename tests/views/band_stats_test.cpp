#include "views/band_stats.h"

#include "tests/views/views_fixture.h"

namespace tallyhut {
namespace {

struct BandStatsTest : ViewsFixture {
    frmbndstats& Stats() { return Views().statsForm; }

    void StartOnBands(const std::vector<std::string>& bands) {
        std::vector<Contact> contacts;
        for (const std::string& band : bands) {
            contacts.push_back(WorkedAt(static_cast<std::int64_t>(contacts.size()) * 60, band));
        }
        StartWith(contacts);
        ChooseMenu(Main().mnuBandStats);
    }
    std::string Column(int first, int last) {
        std::string captions;
        for (int i = first; i <= last; ++i) {
            captions += (i == first ? "" : " ") + Stats().lblcon(i).Caption();
        }
        return captions;
    }
    std::string Counts() { return Column(0, 5); }
    std::string Shares() { return Column(6, 11); }
    /// Pixels of the bar, of a hundred.
    int LengthOfBar(int band) {
        const RasterImage& image = Stats().picShare(band).Image();
        int length = 0;
        while (length < image.Width() && image.At(length, 0) != kButtonFace) {
            ++length;
        }
        return length * 100 / image.Width();
    }
};

TEST_F(BandStatsTest, ItsWordsAreTold) {
    StartOnBands({});
    EXPECT_EQ(Stats().Caption(), "   Band Statistics");
    EXPECT_EQ(Stats().Label1.Caption(), "Total Contacts by Band");
    EXPECT_EQ(Stats().Label3(0).Caption(), "Contacts");
    EXPECT_EQ(Stats().Label3(1).Caption(), "Total");
    EXPECT_EQ(Stats().Command1.Caption(), "Close");
    std::string bands;
    for (int k = 0; k < frmbndstats::kBands; ++k) {
        bands += Stats().Label2(k).Caption() + '|';
    }
    EXPECT_EQ(bands, "160|  80|  40|  20|  15|  10|");
}

TEST_F(BandStatsTest, EachBandHasItsContactsAndItsShare) {
    StartOnBands({"160", "80", "80", "40", "40", "40", "20", "20", "15", "10"});
    EXPECT_EQ(Counts(), "1 2 3 2 1 1");
    EXPECT_EQ(Shares(), "10 20 30 20 10 10");
    EXPECT_EQ(Stats().lblcon(12).Caption(), "10");
}

TEST_F(BandStatsTest, EachShareIsCutToAWholeNumberSoThatTheyAddUpToLessThanAHundred) {
    StartOnBands({"160", "80", "40"});
    EXPECT_EQ(Shares(), "33 33 33 0 0 0");
}

TEST_F(BandStatsTest, ABandBeyondTheSixCountsInTheTotalAlone) {
    StartOnBands({"6", "40", "6", " 40", ""});
    EXPECT_EQ(Counts(), "0 0 1 0 0 0");
    EXPECT_EQ(Shares(), "0 0 20 0 0 0");
    EXPECT_EQ(Stats().lblcon(12).Caption(), "5");
}

TEST_F(BandStatsTest, AnEmptyLogHasSharesOfNothing) {
    StartOnBands({});
    EXPECT_EQ(Counts(), "0 0 0 0 0 0");
    EXPECT_EQ(Shares(), "0 0 0 0 0 0");
    EXPECT_EQ(Stats().lblcon(12).Caption(), "0");
    EXPECT_EQ(LengthOfBar(0), 0);
}

TEST_F(BandStatsTest, ABarIsAsLongAsItsShare) {
    StartOnBands({"160", "40", "40", "40"});
    EXPECT_EQ(LengthOfBar(0), 25);
    EXPECT_EQ(LengthOfBar(1), 0);
    EXPECT_EQ(LengthOfBar(2), 75);
}

TEST_F(BandStatsTest, TheLogIsReadOnceAndAgainWhenTheMenuIsChosenAgain) {
    StartOnBands({"40"});
    program->log.Change(1, [](Contact& contact) { contact.Bnd = "80"; });
    TheDesk().Activate(Main());
    TheDesk().Activate(Stats());
    TheDesk().RunPending();
    EXPECT_EQ(Counts(), "0 0 1 0 0 0");
    ChooseMenu(Main().mnuBandStats);
    EXPECT_EQ(Counts(), "0 1 0 0 0 0");
}

TEST_F(BandStatsTest, CloseAndEscUnloadIt) {
    StartOnBands({"40"});
    Click(Stats().Command1);
    EXPECT_FALSE(Stats().IsLoaded());
    ChooseMenu(Main().mnuBandStats);
    Press("Esc");
    EXPECT_FALSE(Stats().IsLoaded());
}

TEST_F(BandStatsTest, AFullLogIsCounted) {
    StartOnBands({});
    ContactLog& log = program->log;
    for (std::int32_t n = 1; n <= ContactLog::kMostContacts; ++n) {
        Contact contact;
        contact.Bnd = n % 2 == 0 ? "20" : "10";
        log.Add(contact);
    }
    ChooseMenu(Main().mnuBandStats);
    EXPECT_EQ(Counts(), "0 0 0 5500 0 5500");
    EXPECT_EQ(Shares(), "0 0 0 50 0 50");
}

TEST_F(BandStatsTest, OpenedAThousandTimesItHasWhatItHadAtFirst) {
    StartOnBands({"40"});
    const std::size_t controls = ControlsOf(Stats());
    for (int n = 0; n < 1'000; ++n) {
        ChooseMenu(Main().mnuBandStats);
        Click(Stats().Command1);
    }
    EXPECT_EQ(ControlsOf(Stats()), controls);
    EXPECT_EQ(Stats().picShare(0).Image().Width(), 0);
}

}  // namespace
}  // namespace tallyhut
