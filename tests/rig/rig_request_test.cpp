#include "rig/rig_request.h"

#include <gtest/gtest.h>

#include "rig/rig_table.h"
#include "values/hex.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

std::string RequestOf(std::string_view rig, std::string_view text, bool convertToHex = false) {
    return EncodeRequest(RigNamed(rig).request, text, convertToHex);
}

std::string HexRequestOf(std::string_view rig, std::string_view text) {
    return BytesToHexText(RequestOf(rig, text));
}

TEST(RigRequest, TextGoesOutAsItStands) {
    EXPECT_EQ(RequestOf("Kenwood", "FA;"), "FA;");
    EXPECT_EQ(RequestOf("Kenwood", ""), "");
    EXPECT_EQ(RequestOf("Ten Tec Orion", "?AF"), "?AF\r");
    EXPECT_EQ(RequestOf("Ten Tec Orion", ""), "");
    EXPECT_EQ(RequestOf("Yaesu FTdx9000", "FA"), "FA");
    EXPECT_EQ(RequestOf("Yaesu FTdx9000", "F"), "");
}

TEST(RigRequest, PairsGoOutAsSoManyBytes) {
    EXPECT_EQ(HexRequestOf("Icom", "FE FE 64 E0 03 FD"), "FEFE64E003FD");
    EXPECT_EQ(HexRequestOf("Icom", "FE FE 64 E0 03 FD FF"), "FEFE64E003FD");
    EXPECT_EQ(HexRequestOf("Icom", "FE FE 64 E0 03 F"), "");
    EXPECT_EQ(HexRequestOf("Yaesu 890", "00 00 00 02 10"), "0000000210");
    EXPECT_EQ(HexRequestOf("Yaesu 890", "00 00 00 02 10 77"), "0000000210");
    EXPECT_EQ(HexRequestOf("Yaesu 890", "00 00 00 02 1"), "");
    EXPECT_EQ(HexRequestOf("Ten Tec Fnt Pnl", "3F 41 0D"), "3F410D");
    EXPECT_EQ(HexRequestOf("Ten Tec Fnt Pnl", "3F 41 D"), "3F410D");  // the last pair may lack a digit
    EXPECT_EQ(HexRequestOf("Ten Tec Fnt Pnl", "3F 41 "), "");
}

TEST(RigRequest, RefusesAPairThatIsNone) {
    EXPECT_THROW(RequestOf("Icom", "FE FE xx E0 03 FD"), ValueError);
}

TEST(RigRequest, OtherSendsWhatTheOperatorChooses) {
    EXPECT_EQ(RequestOf("Other", "FE 03"), "FE 03");
    EXPECT_EQ(BytesToHexText(RequestOf("Other", "FE 03", true)), "FE03");
    EXPECT_EQ(RequestOf("Other", "", true), "");
}

TEST(RigRequest, CheckBoxCountsForNoOtherRadio) {
    EXPECT_EQ(RequestOf("Kenwood", "FA;", true), "FA;");
}

TEST(RigRequest, NothingIsAskedOfNoRadio) {
    EXPECT_EQ(RequestOf("None", "FA;"), "");
    EXPECT_EQ(RequestOf("Ten Tec Pegasus", "FA;"), "");
}

}  // namespace
}  // namespace tallyhut
