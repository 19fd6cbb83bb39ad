#include "console/console_printer.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tallyhut {
namespace {

struct ConsolePrinterTest : testing::Test {
    std::ostringstream told;
    JsonOutput output{told};
    ConsolePrinter printer{output};

    std::string Told() {
        output.Ready({});
        return told.str();
    }
};

TEST_F(ConsolePrinterTest, EachLineAndEachEndOfAPageIsAnEventInOrder) {
    EXPECT_TRUE(printer.Begin("Dupe Sheet"));
    printer.Line("");
    printer.Line("  ARRL \"Sweepstakes\"", 16);
    printer.NewPage();
    printer.Line("W1XX  ");
    printer.End();
    EXPECT_EQ(Told(), R"({"event":"print","line":""}
{"event":"print","line":"  ARRL \"Sweepstakes\""}
{"event":"page"}
{"event":"print","line":"W1XX  "}
{"event":"page"}
null
)");
}

TEST_F(ConsolePrinterTest, LineIsToldInUtf8) {
    printer.Line("Caf\xE9");
    EXPECT_EQ(Told(), "{\"event\":\"print\",\"line\":\"Caf\xC3\xA9\"}\nnull\n");
}

TEST_F(ConsolePrinterTest, DroppedDocumentEndsNoPage) {
    printer.Begin("Log");
    printer.Line("W1XX");
    printer.Abort();
    EXPECT_EQ(Told(), "{\"event\":\"print\",\"line\":\"W1XX\"}\nnull\n");
}

}  // namespace
}  // namespace tallyhut
