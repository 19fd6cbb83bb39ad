#include <gtest/gtest.h>

#include <stdexcept>

#include "platform/sim/printer.h"
#include "tests/platform/failure_of.h"

namespace tallyhut {
namespace {

struct SimPrinter : testing::Test {
    sim::Printer printer;

    // As the program sees it.
    tallyhut::Printer& asked = printer;
};

TEST_F(SimPrinter, EndedDocumentIsKeptWithItsTitlePagesLinesAndSizes) {
    EXPECT_TRUE(asked.Begin("Dupe Sheet"));
    asked.Line("ARRL Sweepstakes", 16);
    asked.Line("");
    asked.NewPage();
    asked.Line("  W1XX");
    asked.End();
    EXPECT_EQ(printer.documents,
              (std::vector<sim::PrintedDocument>{
                  {.title = "Dupe Sheet", .pages = {{{"ARRL Sweepstakes", 16}, {"", 10}}, {{"  W1XX", 10}}}}}));
    EXPECT_FALSE(printer.unfinished);
}

TEST_F(SimPrinter, CancelledDialogBeginsNoDocument) {
    printer.cancels = true;
    EXPECT_FALSE(asked.Begin("Log"));
    EXPECT_FALSE(printer.unfinished);
    EXPECT_TRUE(printer.documents.empty());
}

TEST_F(SimPrinter, AnyOperationOfADocumentCanFailAndTheRestBeDropped) {
    const std::vector<std::vector<sim::PrintedLine>> whenFailed[] = {{{}}, {{{"one"}}}, {{{"one"}}, {}}};
    for (int nth = 1; nth <= 3; ++nth) {
        asked.Begin("Log");
        printer.FailAt(nth, "out of paper");
        EXPECT_EQ(FailureOf([&] {
                      asked.Line("one");
                      asked.NewPage();
                      asked.End();
                  }),
                  "out of paper")
            << nth;
        asked.Abort();
        EXPECT_EQ(printer.aborted.back().pages, whenFailed[nth - 1]) << nth;
    }
    EXPECT_TRUE(printer.documents.empty());
}

TEST_F(SimPrinter, FailureComesOnce) {
    asked.Begin("Log");
    printer.FailAt(1, "out of paper");
    EXPECT_EQ(FailureOf([&] { asked.End(); }), "out of paper");
    EXPECT_EQ(FailureOf([&] { asked.End(); }), "");
    EXPECT_EQ(printer.documents.size(), 1U);
}

TEST_F(SimPrinter, PrintingOutsideADocumentFailsTheTest) {
    EXPECT_THROW(asked.Line("one"), std::logic_error);
    EXPECT_THROW(asked.NewPage(), std::logic_error);
    EXPECT_THROW(asked.End(), std::logic_error);
    EXPECT_THROW(asked.Abort(), std::logic_error);
    asked.Begin("Log");
    EXPECT_THROW(asked.Begin("Dupe Sheet"), std::logic_error);
}

}  // namespace
}  // namespace tallyhut
