#include "contest/call_area.h"

#include <gtest/gtest.h>

#include "contest/told_sections.h"

namespace tallyhut {
namespace {

TEST(CallArea, FollowsFromTheBlockThatTheCallIsOf) {
    struct {
        std::string_view call;
        CallArea area;
    } const cases[] = {
        {"K1AB", CallArea::Mainland},    {"KA1B", CallArea::Mainland},   {"W9ZZZ", CallArea::Mainland},
        {"N5KO", CallArea::Mainland},    {"AA1A", CallArea::Mainland},   {"AK7X", CallArea::Mainland},
        {"AG4XX", CallArea::Mainland},   {"VE3XYZ", CallArea::Canada},   {"VA2AM", CallArea::Canada},
        {"VO1KVT", CallArea::Canada},    {"VY1EI", CallArea::Canada},    {"CY0XX", CallArea::Canada},
        {"CF3A", CallArea::Canada},      {"XM3X", CallArea::Canada},     {"KL7AA", CallArea::Alaska},
        {"AL1G", CallArea::Alaska},      {"WL7E", CallArea::Alaska},     {"KH6LC", CallArea::Pacific},
        {"NH2T", CallArea::Pacific},     {"AH0U", CallArea::Pacific},    {"KP4AA", CallArea::Caribbean},
        {"WP3C", CallArea::Caribbean},   {"NP2X", CallArea::Caribbean},  {"KG4AB", CallArea::Unknown},
        {"KG4A", CallArea::Mainland},    {"KG4ABC", CallArea::Mainland}, {"K1AB/VE3", CallArea::Unknown},
        {"KH6/W1XX", CallArea::Unknown}, {"DL1ABC", CallArea::Unknown},  {"AM1X", CallArea::Unknown},
        {"XE1A", CallArea::Unknown},     {"VK2XX", CallArea::Unknown},   {"VH1X", CallArea::Unknown},
        {"CT1AA", CallArea::Unknown},    {"", CallArea::Unknown},        {"K", CallArea::Unknown},
    };
    for (const auto& [call, area] : cases) {
        EXPECT_EQ(AreaOfCall(call), area) << call;
    }
}

CallArea AreaOf(std::string_view section) {
    return AreaOfSection(ToldSections().Section(ToldSections().Find(section)));
}

TEST(CallArea, OfASectionIsThatOfItsEntity) {
    EXPECT_EQ(AreaOf("CT"), CallArea::Mainland);
    EXPECT_EQ(AreaOf("GTA"), CallArea::Canada);
    EXPECT_EQ(AreaOf("AK"), CallArea::Alaska);
    EXPECT_EQ(AreaOf("PAC"), CallArea::Pacific);
    EXPECT_EQ(AreaOf("PR"), CallArea::Caribbean);
    EXPECT_EQ(AreaOf("VI"), CallArea::Caribbean);
    ListedSection untold;
    untold.code = "XX";
    EXPECT_EQ(AreaOfSection(untold), CallArea::Unknown);
}

}  // namespace
}  // namespace tallyhut
