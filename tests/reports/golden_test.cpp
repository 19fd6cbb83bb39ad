// Every file and printed page that leaves the program, byte for byte, from a log that holds every odd case at once.

#include <fstream>

#include "tests/log/program_fixture.h"
#include "tests/reports/report_fixture.h"

namespace tallyhut {
namespace {

std::string Golden(const std::string& name) {
    std::ifstream file{std::string{TALLYHUT_GOLDEN} + '/' + name, std::ios::binary};
    EXPECT_TRUE(file) << name;
    return {std::istreambuf_iterator<char>{file}, {}};
}

struct GoldenTest : ProgramFixture {
    void SetUp() override {
        stored = CwStation();
        stored.gOpSeconds = 45'296;
        files.Put("/contest/nsonoff.txt",
                  "1,\"2026/11/07\",\"21:00:00\",\"00:00:00\"\r\n"
                  "0,\"2026/11/07\",\"21:10:00\",\"00:10:00\"\r\n"
                  "1,\"2026/11/07\",\"21:15:59\",\"00:10:00\"\r\n"
                  "0,\"2026/11/08\",\"03:00:00\",\r\n");
        StartWith(OddContacts());
    }

    void InForm(const std::function<void(Form2&)>& steps) {
        pump.OnWait([this, steps] {
            Form2& form = program->form2;
            form.Option3.SetValue(true);
            form.Option6.SetValue(true);
            form.Option9.SetValue(true);
            form.Option16.SetValue(true);
            form.OptCatYes.SetValue(true);
            form.Text2.SetText("W9ZZZ K1AA");
            form.Text3.SetText("K3");
            form.Text4.SetText("Dipole");
            form.Text5.SetText("Ren\xE9 M\xFCller");
            form.Text6.SetText("1 Main St");
            form.Text7.SetText("Newington");
            form.Text8.SetText("rene@example.net");
            form.Text9.SetText("100 W");
            form.Text10.SetText("Sultans of Shwing");
            form.Text11.SetText("\xA1Gran contest! " + std::string(120, 'x'));
            steps(form);
            TheDesk().RunPending();
            TheDesk().PostClick(form.Command3, kLeftButton);
        });
        ChooseMenu(Main().mnuCabrillo);
    }
    void ClickInForm(Button Form2::*button) {
        InForm([this, button](Form2& form) { TheDesk().PostClick(form.*button, kLeftButton); });
    }
    std::string Content(const std::string& name) { return files.Read(std::string{kFolder} + '/' + name); }
    /// The printed lines, "== page" before each page.
    std::string Printed() {
        std::string text;
        for (const auto& page : printer.documents.at(0).pages) {
            text += "== page\r\n";
            for (const sim::PrintedLine& line : page) {
                text += line.text + "\r\n";
            }
        }
        return text;
    }
};

TEST_F(GoldenTest, CabrilloFile) {
    dialogs.files.emplace_back("/contest/entry.log");
    ClickInForm(&Form2::Command4);
    EXPECT_EQ(Content("entry.log"), Golden("cabrillo.txt"));
}

TEST_F(GoldenTest, SummarySheet) {
    ClickInForm(&Form2::Command1);
    EXPECT_EQ(Content("ASCIISum.txt"), Golden("summary_sheet.txt"));
}

TEST_F(GoldenTest, PrintedSummarySheet) {
    ClickInForm(&Form2::Command2);
    EXPECT_EQ(Printed(), Golden("printed_summary_sheet.txt"));
}

TEST_F(GoldenTest, DupeSheet) {
    ChooseMenu(Main().mnuWriteDupe);
    EXPECT_EQ(Content("ASCIIDup.txt"), Golden("dupe_sheet.txt"));
}

TEST_F(GoldenTest, PrintedDupeSheet) {
    ChooseMenu(Main().mnuPrintDupe);
    EXPECT_EQ(Printed(), Golden("printed_dupe_sheet.txt"));
}

TEST_F(GoldenTest, LogReport) {
    ChooseMenu(Main().mnuWriteLog);
    EXPECT_EQ(Content("ASCIILog.txt"), Golden("log_report.txt"));
}

TEST_F(GoldenTest, PrintedLogReport) {
    ChooseMenu(Main().mnuPrintLog);
    EXPECT_EQ(Printed(), Golden("printed_log_report.txt"));
}

TEST_F(GoldenTest, AdifFile) {
    dialogs.inputs = {"100", "November Sweepstakes Contest"};
    dialogs.files.emplace_back("/contest/out.adi");
    ChooseMenu(Main().expADIF);
    EXPECT_EQ(Content("out.adi"), Golden("adif.txt"));
}

TEST_F(GoldenTest, StationbookFile) {
    ChooseMenu(Main().mnuExport);
    EXPECT_EQ(Content("LogExp.txt"), Golden("stationbook.txt"));
}

TEST_F(GoldenTest, ClipboardText) {
    ChooseMenu(Main().mnuCopyListtoClipboard);
    EXPECT_EQ(clipboard.text, Golden("clipboard.txt"));
}

}  // namespace
}  // namespace tallyhut
