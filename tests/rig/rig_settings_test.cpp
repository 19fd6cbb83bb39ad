#include "rig/rig_settings.h"

#include <gtest/gtest.h>

#include <vector>

namespace tallyhut {
namespace {

RigRecord Kenwood() {
    return {.settings = {.baud = "4800 ",
                         .parity = "N",
                         .dataBits = "8",
                         .stopBits = "2",
                         .modeString = "MD;",
                         .frequencyString = "FA;",
                         .portSettings = "4800,N,8,2",
                         .commPort = 1,
                         .power = "N",
                         .pollRate = "M"},
            .rigName = "Kenwood",
            .convertToHex = 0,
            .useFrequency = 1,
            .modeBy = 1};
}

constexpr const char* kKenwoodLine =
    "\"4800 \",\"N\",\"8\",\"2\",\"MD;\",\"FA;\",\"4800,N,8,2\",1,\"N\",\"M\",\"Kenwood\",0,1,1\r\n";

TEST(RigRecord, IsOneLineOfFourteenFields) {
    EXPECT_EQ(WriteRigRecord(Kenwood()), kKenwoodLine);
}

TEST(RigRecord, RoundTrips) {
    EXPECT_EQ(ReadRigRecord(kKenwoodLine), Kenwood());
    RigRecord icom = Kenwood();
    icom.rigName = "Icom";
    icom.settings.frequencyString = "FE FE 3A E0 03 FD";  // another address than the row's
    icom.settings.commPort = 10;
    icom.modeBy = 3;
    EXPECT_EQ(ReadRigRecord(WriteRigRecord(icom)), icom);
}

TEST(RigRecord, StopsAtTheFieldThatCannotBeTaken) {
    const std::vector<std::pair<std::string, RigRecord>> cases = [] {
        RigRecord none;
        RigRecord fourFields;
        fourFields.settings.baud = "1200 ";
        fourFields.settings.parity = "E";
        fourFields.settings.dataBits = "7";
        fourFields.settings.stopBits = "2";
        RigRecord toThePort = fourFields;
        toThePort.settings.modeString = "MD;";
        toThePort.settings.frequencyString = "FA;";
        toThePort.settings.portSettings = "1200,E,7,2";
        RigRecord toTheName = toThePort;
        toTheName.settings.commPort = 3;
        toTheName.settings.power = "R";
        toTheName.settings.pollRate = "S";
        toTheName.rigName = "Icom";
        return std::vector<std::pair<std::string, RigRecord>>{
            {"", none},
            {"\"1200", none},
            {R"("1200 ","E","7","2")", fourFields},
            {R"("1200 ","E","7","2","MD;","FA;","1200,E,7,2",x,"R","S","Icom",1,1,2)", toThePort},
            {R"("1200 ","E","7","2","MD;","FA;","1200,E,7,2",256,"R","S","Icom",1,1,2)", toThePort},
            {R"("1200 ","E","7","2","MD;","FA;","1200,E,7,2",3,"R","S","Icom",-1,1,2)", toTheName},
        };
    }();
    for (const auto& [text, record] : cases) {
        EXPECT_EQ(ReadRigRecord(text), record) << text;
    }
}

TEST(RigRecord, BaudTextHasFiveCharacters) {
    EXPECT_EQ(BaudText("1200"), "1200 ");
    EXPECT_EQ(BaudText("14400"), "14400");
    EXPECT_EQ(BaudText(""), "     ");
    EXPECT_EQ(ReadRigRecord(R"("1200")").settings.baud, "1200 ");
    EXPECT_EQ(ReadRigRecord(R"("115200")").settings.baud, "11520");
}

TEST(RigRecord, PortSettingsHaveNoBlank) {
    EXPECT_EQ(PortSettings(Kenwood().settings), "4800,N,8,2");
    EXPECT_EQ(PortSettings({}), "56000,N,8,1");
}

TEST(RigRecord, DefaultsAreThoseOfTheForm) {
    const RigRecord record;
    EXPECT_EQ(record.settings.portSettings, PortSettings(record.settings));
    EXPECT_EQ(WriteRigRecord(record),
              "\"56000\",\"N\",\"8\",\"1\",\"\",\"\",\"56000,N,8,1\",1,\"N\",\"M\",\"\",0,1,1\r\n");
}

}  // namespace
}  // namespace tallyhut
