#include "reports/printed_pages.h"

#include <gtest/gtest.h>

#include "platform/platform_error.h"
#include "platform/sim/printer.h"

namespace tallyhut {
namespace {

TEST(PageBreaker, PageBeginsWithTheHeadWhenItsFirstItemComes) {
    PageBreaker breaker{{"head"}, 3};
    for (const char* line : {"a", "b", "c"}) {
        breaker.Item({line});
    }
    EXPECT_EQ(breaker.Pages(), (std::vector<PrintedPage>{{"head", "a", "b"}, {"head", "c"}}));
}

TEST(PageBreaker, FullLastPageIsFollowedByNone) {
    PageBreaker breaker{{"head"}, 2};
    breaker.Item({"a"});
    EXPECT_EQ(breaker.Pages(), (std::vector<PrintedPage>{{"head", "a"}}));
}

TEST(PageBreaker, ItemWithoutRoomGoesToTheNextPageWhole) {
    PageBreaker breaker{{"head"}, 5};
    breaker.Item({"a"});
    breaker.Item({"b"});
    breaker.Item({"c", "d", "e"});
    breaker.Item({"f"});
    EXPECT_EQ(breaker.Pages(), (std::vector<PrintedPage>{{"head", "a", "b"}, {"head", "c", "d", "e", "f"}}));
}

TEST(PageBreaker, ItemThatFillsThePageStaysOnIt) {
    PageBreaker breaker{{"head"}, 4};
    breaker.Item({"a", "b", "c"});
    breaker.Item({"d"});
    EXPECT_EQ(breaker.Pages(), (std::vector<PrintedPage>{{"head", "a", "b", "c"}, {"head", "d"}}));
}

TEST(PageBreaker, ItemThatNoPageTakesIsBroken) {
    PageBreaker breaker{{"head"}, 3};
    breaker.Item({"a"});
    breaker.Item({"b", "c", "d"});
    EXPECT_EQ(breaker.Pages(), (std::vector<PrintedPage>{{"head", "a"}, {"head", "b", "c"}, {"head", "d"}}));
}

TEST(PageBreaker, TailBehindAFullPageHasNoHead) {
    PageBreaker breaker{{"head"}, 2};
    breaker.Item({"a"});
    breaker.Tail({"total"});
    EXPECT_EQ(breaker.Pages(), (std::vector<PrintedPage>{{"head", "a"}, {"total"}}));
}

TEST(PageBreaker, TailWithoutRoomHasAPageOfItsOwn) {
    PageBreaker breaker{{"head"}, 3};
    breaker.Item({"a"});
    breaker.Tail({"", "total"});
    EXPECT_EQ(breaker.Pages(), (std::vector<PrintedPage>{{"head", "a"}, {"", "total"}}));
}

TEST(PrintPages, OneDocumentWithItsFirstLineLarge) {
    sim::Printer printer;
    EXPECT_TRUE(PrintPages(printer, "Log", {{"a", "b"}, {"c"}}, 16));
    EXPECT_EQ(printer.documents,
              (std::vector<sim::PrintedDocument>{{.title = "Log", .pages = {{{"a", 16}, {"b", 10}}, {{"c", 10}}}}}));
}

TEST(PrintPages, CancelPrintsNothing) {
    sim::Printer printer;
    printer.cancels = true;
    EXPECT_FALSE(PrintPages(printer, "Log", {{"a"}}));
    EXPECT_TRUE(printer.documents.empty());
}

TEST(PrintPages, CancelledPreviewIsNoPrint) {
    sim::Printer printer;
    printer.cancelsPreview = true;
    EXPECT_FALSE(PrintPages(printer, "Log", {{"a"}}));
    EXPECT_TRUE(printer.documents.empty());
}

TEST(PrintPages, FailureDropsTheDocument) {
    for (int nth = 1; nth <= 4; ++nth) {  // two lines, a page, the end
        sim::Printer printer;
        printer.FailAt(nth, "Out of paper");
        EXPECT_THROW(PrintPages(printer, "Log", {{"a"}, {"b"}}), PlatformError) << nth;
        EXPECT_TRUE(printer.documents.empty());
        EXPECT_EQ(printer.aborted.size(), 1U) << nth;
    }
}

}  // namespace
}  // namespace tallyhut
