#include "views/rate_curve.h"

#include <random>

#include "forms/GraphQSO.h"
#include "tests/views/views_fixture.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr int kYear = 2026;

ContactLog LogOf(const std::vector<Contact>& contacts) {
    ContactLog log;
    for (const Contact& contact : contacts) {
        log.Add(contact);
    }
    return log;
}

ContactLog LogAt(const std::vector<std::int64_t>& seconds) {
    std::vector<Contact> contacts;
    for (const std::int64_t second : seconds) {
        contacts.push_back(WorkedAt(second));
    }
    return LogOf(contacts);
}

RateCurve RatesOf(const ContactLog& log) {
    RateCurve curve = CurveOver(log, kYear);
    TakeRates(curve, log, kYear);
    return curve;
}

RateCurve WholeCurveOf(const ContactLog& log) {
    RateCurve curve = RatesOf(log);
    FillGaps(curve);
    Average(curve);
    FindBounds(curve);
    return curve;
}

TEST(RateCurve, ARateIsTheContactsOfTheTenMinutesBeforeTimesSix) {
    const RateCurve curve = RatesOf(LogAt({0, 60, 120, 599, 600, 601, 1500}));
    EXPECT_EQ(curve.span, 1500);  // a position is a second
    EXPECT_EQ(curve.RateRaw[1], 6);
    EXPECT_EQ(curve.RateRaw[60], 12);
    EXPECT_EQ(curve.RateRaw[599], 24);
    EXPECT_EQ(curve.RateRaw[600], 24) << "one that is 600 seconds old counts no more";
    EXPECT_EQ(curve.RateRaw[1500], 6);
    EXPECT_EQ(curve.RateRaw[700], 0);
}

TEST(RateCurve, TenContactsInNineMinutesAreSixtyAnHour) {
    std::vector<std::int64_t> seconds;
    for (int n = 0; n < 10; ++n) {
        seconds.push_back(n * 60);
    }
    EXPECT_EQ(RatesOf(LogAt(seconds)).RateRaw[1500], 60);
}

TEST(RateCurve, TheFirstContactStandsAtPositionOneAndALaterOneOverwritesAnEarlier) {
    const RateCurve curve = RatesOf(LogAt({0, 1, 2, 3, 1'500'000}));
    EXPECT_EQ(curve.RateRaw[1], 6);
    EXPECT_EQ(curve.RateRaw[0], 24) << "a later one may fall before the first, where nothing is drawn";
    const RateCurve crowded = RatesOf(LogAt({0, 1000, 1001, 1499, 1'500'000}));
    EXPECT_EQ(crowded.RateRaw[1], 18);
}

TEST(RateCurve, HalfAPositionGoesToTheEvenOne) {
    const RateCurve curve = RatesOf(LogAt({0, 5, 7, 3000}));  // a position is two seconds
    EXPECT_EQ(curve.RateRaw[2], 12);
    EXPECT_EQ(curve.RateRaw[4], 18);
    EXPECT_EQ(curve.RateRaw[3], 0);
}

TEST(RateCurve, ColoursAreThoseOfTheBandsAndABandWithoutOneKeepsTheLast) {
    std::vector<Contact> contacts;
    for (const char* band : {"160", "80", "2", "6", "", "40"}) {
        contacts.push_back(WorkedAt(static_cast<std::int64_t>(contacts.size()) * 300, band));
    }
    const RateCurve curve = RatesOf(LogOf(contacts));
    EXPECT_EQ(curve.RateColor[1], FromRgb(255, 255, 255));
    EXPECT_EQ(curve.RateColor[300], FromRgb(0, 0, 255));
    EXPECT_EQ(curve.RateColor[600], FromRgb(0, 0, 255));
    EXPECT_EQ(curve.RateColor[900], FromRgb(255, 255, 0));
    EXPECT_EQ(curve.RateColor[1200], FromRgb(255, 255, 0));
    EXPECT_EQ(curve.RateColor[1500], FromRgb(255, 0, 0));
    EXPECT_EQ(curve.RateColor[1499], 0);
    EXPECT_EQ(curve.ColourAt(1499), FromRgb(255, 255, 0));
}

TEST(RateCurve, AGapIsFilledStraightToTheNextRate) {
    RateCurve curve;
    curve.RateRaw[1] = 6;
    curve.RateRaw[5] = 14;
    FillGaps(curve);
    EXPECT_EQ(curve.RateRaw[2], 8);
    EXPECT_EQ(curve.RateRaw[3], 10);
    EXPECT_EQ(curve.RateRaw[4], 12);
    for (std::size_t i = 1; i <= 5; ++i) {
        EXPECT_EQ(curve.RateSmooth[i], curve.RateRaw[i]) << i;
    }
}

TEST(RateCurve, WhereNoRateStandsWithinFifteenPositionsAPositionStaysEmpty) {
    RateCurve curve;
    curve.RateRaw[10] = 15;
    curve.RateRaw[26] = 30;
    curve.RateRaw[60] = 16;
    FillGaps(curve);
    EXPECT_FLOAT_EQ(curve.RateRaw[11], 15 + 15.0F / 16) << "the rate is the 15th behind it";
    EXPECT_EQ(curve.RateRaw[27], 0);
    EXPECT_EQ(curve.RateRaw[44], 0);
    EXPECT_EQ(curve.RateRaw[45], 1) << "it rises from nothing once the next rate is near";
    EXPECT_EQ(curve.RateRaw[61], 0);
    EXPECT_EQ(curve.RateSmooth[61], 0);
}

TEST(RateCurve, ARateBeyondTheLastPositionStillEndsAGap) {
    RateCurve curve;
    curve.RateRaw[1499] = 10;
    curve.RateRaw[1510] = 21;
    FillGaps(curve);
    EXPECT_EQ(curve.RateRaw[1500], 11);
    EXPECT_EQ(curve.RateSmooth[1500], 11);
    EXPECT_EQ(curve.RateSmooth[1501], 0);
}

TEST(RateCurve, TheFirstSixPositionsAreNotAveraged) {
    RateCurve curve;
    for (std::size_t i = 1; i <= 8; ++i) {
        curve.RateRaw[i] = static_cast<float>(i * 10);
    }
    FillGaps(curve);
    Average(curve);
    EXPECT_EQ(curve.RateSmooth[6], 60);
    EXPECT_EQ(curve.RateSmooth[7], 40) << "the mean of 10 to 70";
    EXPECT_EQ(curve.RateSmooth[8], 50);
}

TEST(RateCurve, TheMeanIsOverRatesAboveNothingAlone) {
    RateCurve curve;
    curve.RateRaw[50] = 30;
    Average(curve);
    EXPECT_EQ(curve.RateSmooth[49], 0);
    EXPECT_EQ(curve.RateSmooth[50], 30);
    EXPECT_EQ(curve.RateSmooth[56], 30) << "as long as it is one of the seven";
    EXPECT_EQ(curve.RateSmooth[57], 0);
}

TEST(RateCurve, BoundsAreThoseOfTheDrawnPositions) {
    RateCurve curve;
    curve.RateSmooth.fill(20);
    curve.RateSmooth[0] = 5;
    curve.RateSmooth[1501] = 500;
    curve.RateSmooth[1500] = 90;
    curve.RateSmooth[1] = 10;
    FindBounds(curve);
    EXPECT_EQ(curve.RateMin, 10);
    EXPECT_EQ(curve.RateMax, 90);
}

TEST(RateCurve, AllContactsInOneSecondStandAtTheFirstPosition) {
    const RateCurve curve = WholeCurveOf(LogAt({0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(curve.RateRaw[1], 42);
    EXPECT_EQ(curve.RateMin, 0);
    EXPECT_EQ(curve.RateMax, 42);
}

TEST(RateCurve, ElevenThousandContactsInOneMinuteAreCounted) {
    ContactLog log;
    for (std::int32_t n = 1; n <= ContactLog::kMostContacts; ++n) {
        log.Add(WorkedAt(n * 59 / ContactLog::kMostContacts));
    }
    EXPECT_EQ(WholeCurveOf(log).RateRaw[1500], 66'000);
}

TEST(RateCurve, AContestOfTwoYearsHasItsPositions) {
    constexpr std::int64_t kTwoYears = 2LL * 365 * 86'400;
    const RateCurve curve = WholeCurveOf(LogAt({0, 10, 20, kTwoYears / 2, kTwoYears}));
    EXPECT_EQ(curve.RateRaw[750], 6);
    EXPECT_EQ(curve.RateRaw[1500], 6);
    EXPECT_EQ(curve.MomentAt(1), (DateTime{2028, 11, 6, 21, 0, 0}));
}

TEST(RateCurve, ContactsInNoOrderCountThoseLoggedBeforeAndLeaveOutWhatLiesOutside) {
    const RateCurve curve = RatesOf(LogAt({0, 1400, 700, -500, 9000, 1500}));
    EXPECT_EQ(curve.RateRaw[700], 12) << "the one at 1400 was logged before and is not 600 seconds older";
    EXPECT_EQ(curve.RateRaw[1500], 18) << "those at 1400 and 9000 are";
}

TEST(RateCurve, ALogThatEndsBeforeItBeginsRunsBackwards) {
    const RateCurve curve = RatesOf(LogAt({3000, 1500, 0}));
    EXPECT_EQ(curve.span, -3000);
    EXPECT_EQ(curve.RateRaw[750], 12);
    EXPECT_EQ(curve.MomentAt(0.5), (DateTime{2026, 11, 7, 21, 25, 0}));
}

TEST(RateCurve, ADateThatIsNoneEndsIt) {
    ContactLog log = LogAt({0, 60, 120});
    log.Change(3, [](Contact& contact) { contact.Time = "25:00"; });
    EXPECT_THROW(CurveOver(log, kYear), ValueError);
    log.Change(3, [](Contact& contact) { contact.Time = "21:02"; });
    RateCurve curve = CurveOver(log, kYear);
    log.Change(2, [](Contact& contact) { contact.Date = "someday"; });
    try {
        TakeRates(curve, log, kYear);
        FAIL();
    } catch (const ValueError& failure) {
        EXPECT_STREQ(failure.what(), "Record 2 has no date and time that can be read.");
    }
    EXPECT_EQ(curve.RateRaw[1], 6) << "what was read before stays";
}

/// As it is told: back over all contacts from each one on.
float CountedBack(const std::vector<std::int64_t>& seconds, std::size_t contact) {
    int count = 0;
    for (std::size_t before = 0; before <= contact; ++before) {
        count += seconds[contact] - seconds[before] < 600 ? 1 : 0;
    }
    return static_cast<float>(count * 6);
}

TEST(RateCurve, CountsWhatAWalkBackOverAllContactsCounts) {
    std::mt19937 random{7};
    for (int round = 0; round < 50; ++round) {
        std::vector<std::int64_t> seconds{0};
        for (int n = 0; n < 200; ++n) {
            seconds.push_back(static_cast<std::int64_t>(random() % 6000));
        }
        seconds.push_back(6000);
        if (round % 2 == 0) {
            std::ranges::sort(seconds);
        }
        const RateCurve curve = RatesOf(LogAt(seconds));
        std::array<float, RateCurve::kEntries> told{};
        for (std::size_t n = 0; n < seconds.size(); ++n) {
            told.at(n == 0 ? 1 : static_cast<std::size_t>(curve.PositionOf(seconds[n]))) = CountedBack(seconds, n);
        }
        EXPECT_EQ(curve.RateRaw, told) << round;
    }
}

}  // namespace
}  // namespace tallyhut
