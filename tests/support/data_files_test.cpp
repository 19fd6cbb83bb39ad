#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/real/posix_files.h"
#include "values/number.h"
#include "values/text_file.h"

namespace tallyhut {
namespace {

std::string DataFile(const std::string& name) {
    return PosixFiles{}.Read(TALLYHUT_DATA_FOLDER + ("/" + name));
}

struct Segment {
    std::string Band;
    std::string Class;
    std::string Mode;
    double Low = 0;
    double High = 0;
};

std::string Shown(const Segment& segment) {
    return segment.Band + ' ' + segment.Class + ' ' + segment.Mode + ' ' + std::to_string(segment.Low) + ' ' +
           std::to_string(segment.High);
}

struct BandPlanFile : testing::Test {
    BandPlanFile() {
        FieldReader in{text};
        date = in.Take();
        while (!in.AtEnd()) {
            Segment segment;
            EXPECT_TRUE(in.AtLineStart()) << "line " << in.Line();
            segment.Band = in.Take();
            segment.Class = in.Take();
            segment.Mode = in.Take();
            segment.Low = in.TakeNumber();
            segment.High = in.TakeNumber();
            segments.push_back(segment);
        }
    }

    /// What the class may use in the mode, in file order, as "7.025-7.125 ".
    std::string Privileges(const std::string& band, const std::string& className, const std::string& mode) const {
        std::string found;
        for (const Segment& segment : segments) {
            if (segment.Band == band && segment.Class == className && segment.Mode == mode) {
                found += PlainText(segment.Low) + '-' + PlainText(segment.High) + ' ';
            }
        }
        return found;
    }

    const std::string text = DataFile("BandPlan.txt");
    std::string date;
    std::vector<Segment> segments;
};

TEST_F(BandPlanFile, FitsTheTablesThatReadIt) {
    EXPECT_FALSE(date.empty());
    EXPECT_GT(segments.size(), 0U);
    EXPECT_LE(segments.size(), 200U);
}

TEST_F(BandPlanFile, EveryRecordIsWellFormed) {
    const std::set<std::string> classes{"N", "T", "P", "G", "A", "E"};
    // "PH" is turned into the sideband of the band; every other mode goes to the radio by its name.
    const std::set<std::string> modes{"CW", "PH",   "CW-R",   "LSB", "USB", "AM",
                                      "FM", "RTTY", "RTTY-R", "FSK", "DIG", "PKT"};
    for (const Segment& segment : segments) {
        EXPECT_LT(segment.Low, segment.High) << Shown(segment);
        if (segment.Mode == "O") {
            EXPECT_EQ(segment.Class, "O") << Shown(segment);
        } else {
            EXPECT_TRUE(classes.contains(segment.Class)) << Shown(segment);
            EXPECT_TRUE(modes.contains(segment.Mode)) << Shown(segment);
        }
    }
}

TEST_F(BandPlanFile, OpensEachBandFrom160To2MetresOnceBeforeItsSegments) {
    std::vector<std::string> opened;
    for (const Segment& segment : segments) {
        if (segment.Mode == "O") {
            opened.push_back(segment.Band);
        }
        ASSERT_FALSE(opened.empty());
        EXPECT_EQ(segment.Band, opened.back()) << Shown(segment);
    }
    EXPECT_EQ(opened,
              (std::vector<std::string>{"160", "80", "60", "40", "30", "20", "17", "15", "12", "10", "6", "2"}));
}

TEST_F(BandPlanFile, SegmentsLieWithinTheirBand) {
    Segment band;
    for (const Segment& segment : segments) {
        if (segment.Mode == "O") {
            EXPECT_GT(segment.Low, band.High) << Shown(segment);
            band = segment;
        }
        EXPECT_GE(segment.Low, band.Low) << Shown(segment);
        EXPECT_LE(segment.High, band.High) << Shown(segment);
    }
}

TEST_F(BandPlanFile, SegmentsOfAClassAreInOrderAndDoNotOverlap) {
    std::map<std::string, double> reached;
    for (const Segment& segment : segments) {
        EXPECT_GE(segment.Low, reached[segment.Class]) << Shown(segment);
        reached[segment.Class] = segment.High;
    }
}

TEST_F(BandPlanFile, ExtraCoversWhateverAnotherClassMayUse) {
    for (const Segment& segment : segments) {
        EXPECT_TRUE(segment.Mode == "O" || std::ranges::any_of(segments,
                                                               [&](const Segment& extra) {
                                                                   return extra.Class == "E" &&
                                                                          extra.Mode == segment.Mode &&
                                                                          extra.Low <= segment.Low &&
                                                                          segment.High <= extra.High;
                                                               }))
            << Shown(segment);
    }
}

TEST_F(BandPlanFile, HasTheSegmentsOfTheContestBands) {
    struct Row {
        const char* band;
        const char* className;
        const char* mode;
        const char* privileges;
    };
    for (const auto& row : {
             Row{"160", "G", "PH", "1.8-2 "},
             Row{"160", "T", "PH", ""},
             Row{"80", "T", "CW", "3.525-3.6 "},
             Row{"80", "G", "PH", "3.8-4 "},
             Row{"80", "A", "PH", "3.7-4 "},
             Row{"80", "E", "PH", "3.6-4 "},
             Row{"60", "G", "USB", "5.3306-5.3334 5.3466-5.3494 5.3515-5.3665 5.3716-5.3744 5.4036-5.4064 "},
             Row{"40", "N", "CW", "7.025-7.125 "},
             Row{"40", "G", "PH", "7.175-7.3 "},
             Row{"40", "A", "PH", "7.125-7.3 "},
             Row{"20", "E", "CW", "14-14.15 "},
             Row{"20", "G", "PH", "14.225-14.35 "},
             Row{"20", "A", "PH", "14.175-14.35 "},
             Row{"20", "P", "CW", ""},
             Row{"15", "P", "CW", "21.025-21.2 "},
             Row{"15", "G", "PH", "21.275-21.45 "},
             Row{"15", "A", "PH", "21.225-21.45 "},
             Row{"10", "N", "PH", "28.3-28.5 "},
             Row{"10", "E", "PH", "28.3-29.7 "},
             Row{"6", "N", "PH", ""},
             Row{"2", "T", "PH", "144.1-148 "},
         }) {
        EXPECT_EQ(Privileges(row.band, row.className, row.mode), row.privileges)
            << row.band << ' ' << row.className << ' ' << row.mode;
    }
}

TEST(Wave2File, HasNineEmptyMessagesAndNoKeyLine) {
    EXPECT_EQ(DataFile("wave2.txt"),
              "\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n"
              "\"0\"\r\n0\r\n\"0\"\r\n\"&H378\"\r\n");
}

TEST(DataFiles, AreLinesEndedByCarriageReturnAndLineFeed) {
    for (const std::string name : {"wave2.txt", "BandPlan.txt", "readns.txt"}) {
        const std::string text = DataFile(name);
        ASSERT_TRUE(text.ends_with("\r\n")) << name;
        for (std::size_t at = 0; at < text.size(); ++at) {
            const bool isLineEnd =
                text[at] == '\n' ? at > 0 && text[at - 1] == '\r' : text[at] != '\r' || text[at + 1] == '\n';
            ASSERT_TRUE(isLineEnd) << name << " at " << at;
            ASSERT_TRUE(text[at] == '\r' || text[at] == '\n' || (text[at] >= ' ' && text[at] <= '~'))
                << name << " at " << at;
        }
    }
}

TEST(HelpText, SaysWhatToAnswerTheFirstTime) {
    const std::string text = DataFile("readns.txt");
    EXPECT_LT(text.find("Answer Yes"), text.find("Answer No"));
    EXPECT_LT(text.find("Answer No"), text.find("YES"));
    EXPECT_NE(text.find("YES"), std::string::npos);
}

}  // namespace
}  // namespace tallyhut
