#include "tests/log/program_fixture.h"

namespace tallyhut {
namespace {

const std::string kCabrillo =
    "START-OF-LOG: 3.0\n"
    "QSO: 7250 PH 2025-11-15 2104 W9ZZZ 1 A 72 IL W1XX 88 A 73 VA\n"
    "QSO: no contact\n";
const std::string kAdif = "<call:4>K1AB <qso_date:8>20251101 <arrl_sect:2>CT <eor>\n";

struct HistoryMakingTest : ProgramFixture {
    void SetUp() override {
        StartWith({Worked("N0AA")});
        files.Put("/old/Log.txt", LogText({Worked("W1XX"), Worked("N7BB", "NV")}));
        files.Put("/old/w9zzz.log", kCabrillo);
        files.Put("/old/all.adi", kAdif);
    }
    std::string Content(const std::string& path) const {
        return files.contents.contains(path) ? files.contents.at(path) : "no file";
    }
    void Make(const std::vector<std::string>& logs, const std::optional<std::string>& to) {
        dialogs.files.assign(logs.begin(), logs.end());
        dialogs.files.emplace_back(std::nullopt);
        dialogs.files.emplace_back(to);
        ChooseMenu(Main().mnuMakeHistory);
    }
};

TEST_F(HistoryMakingTest, MakesOneHistoryOfLogsOfEveryManner) {
    Make({"/old/w9zzz.log", "/old/Log.txt", "/old/all.adi"}, "/contest/history.txt");
    EXPECT_EQ(Content("/contest/history.txt"),
              "!!Order!!,Call,Sect,CK\r\n"
              "# Calls of 3 logs, 2026-11-07, Q7ZZQ's Tallyhut Log 4.7\r\n"
              "K1AB,CT,\r\n"
              "N7BB,NV,72\r\n"
              "W1XX,MDC,72\r\n");
    EXPECT_EQ(dialogs.boxes.back(),
              "message \"File Written Successfully.\" \"The file was successfully written to the directory:\r\n\r\n"
              "/contest/history.txt.\r\n\r\n3 calls of 3 logs. Not understood: 1 line.\" OK Information");
}

TEST_F(HistoryMakingTest, OneCallOfOneLogIsToldSo) {
    Make({"/old/all.adi"}, "/contest/history.txt");
    EXPECT_NE(dialogs.boxes.back().find("\r\n\r\n1 call of 1 log. Not understood: 0 lines."), std::string::npos)
        << dialogs.boxes.back();
}

TEST_F(HistoryMakingTest, AsksForLogsUntilCancelAndThenWhereToSave) {
    Make({"/old/w9zzz.log", "/old/Log.txt"}, std::nullopt);
    ASSERT_EQ(dialogs.boxes.size(), 4U);
    EXPECT_TRUE(dialogs.boxes[0].starts_with("open \"Choose the first log of the call history\""));
    EXPECT_TRUE(dialogs.boxes[1].starts_with("open \"Choose another log; Cancel ends with 1 log\""));
    EXPECT_TRUE(dialogs.boxes[2].starts_with("open \"Choose another log; Cancel ends with 2 logs\""));
    EXPECT_EQ(dialogs.boxes[3],
              R"(save "" "Call History (*.txt) | *.txt" "/contest" "/contest/GatheredHistory.txt" prompt)");
    EXPECT_EQ(Operations(), 0);
}

TEST_F(HistoryMakingTest, CancelAtOnceSaysNothing) {
    dialogs.files = {std::nullopt};
    ChooseMenu(Main().mnuMakeHistory);
    EXPECT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(Operations(), 0);
}

TEST_F(HistoryMakingTest, ALogThatCannotBeReadCostsNoneOfTheOthers) {
    files.Put("/old/noise.txt", std::string(1000, '\0'));
    Make({"/old/Log.txt", "/old/gone.log", "/old/noise.txt", "/old/all.adi"}, "/contest/history.txt");
    EXPECT_NE(Content("/contest/history.txt").find("K1AB,CT,\r\nN7BB,NV,72\r\nW1XX,MDC,72\r\n"), std::string::npos);
}

TEST_F(HistoryMakingTest, LogsWithoutACallAreToldAndNothingMoreIsAsked) {
    files.Put("/old/all.adi", "<call:4>K1AB <qso_date:8>20251101 <eor>\n");
    dialogs.files = {"/old/all.adi", std::nullopt};
    ChooseMenu(Main().mnuMakeHistory);
    EXPECT_NE(dialogs.boxes.back().find("No call with its section or check was found"), std::string::npos);
}

TEST_F(HistoryMakingTest, TheLogItselfIsNeverWrittenOver) {
    const std::string before = LogOnDisk();
    Make({"/old/Log.txt"}, kLogPath);
    EXPECT_EQ(LogOnDisk(), before);
    EXPECT_TRUE(dialogs.boxes.back().starts_with("message \"Unable to write file.\"")) << dialogs.boxes.back();
}

TEST_F(HistoryMakingTest, AFailureLeavesTheHistoryThatWasThere) {
    files.Put("/contest/history.txt", "the old one");
    files.FailAt(1, "No space left on device");
    Make({"/old/Log.txt"}, "/contest/history.txt");
    EXPECT_EQ(Content("/contest/history.txt"), "the old one");
    EXPECT_NE(dialogs.boxes.back().find("No space left on device"), std::string::npos);
}

TEST_F(HistoryMakingTest, TheOpenLogMayBeOneOfThem) {
    Make({kLogPath}, "/contest/history.txt");
    EXPECT_NE(Content("/contest/history.txt").find("N0AA,MDC,72\r\n"), std::string::npos);
}

}  // namespace
}  // namespace tallyhut
