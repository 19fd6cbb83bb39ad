#include "reports/printed_pages.h"

#include "platform/platform_error.h"

namespace tallyhut {

void PageBreaker::EndPage() {
    pages_.emplace_back();
    headDue_ = true;
}

void PageBreaker::Item(const std::vector<std::string>& lines) {
    if (!headDue_ && !HasRoomFor(lines.size())) {
        EndPage();
    }
    for (const std::string& line : lines) {
        if (headDue_) {
            pages_.back() = head_;
            headDue_ = false;
        }
        pages_.back().push_back(line);
        if (!HasRoomFor(1)) {
            EndPage();
        }
    }
}

void PageBreaker::Tail(const std::vector<std::string>& lines) {
    if (!HasRoomFor(lines.size())) {
        pages_.emplace_back();
    }
    pages_.back().insert(pages_.back().end(), lines.begin(), lines.end());
}

std::vector<PrintedPage> PageBreaker::Pages() const {
    const bool lastIsEmpty = pages_.size() > 1 && pages_.back().empty();
    return {pages_.begin(), pages_.end() - (lastIsEmpty ? 1 : 0)};
}

bool PrintPages(Printer& printer, const std::string& title, const std::vector<PrintedPage>& pages,
                int firstLinePoints) {
    if (!printer.Begin(title)) {
        return false;
    }
    try {
        int points = firstLinePoints;
        for (const PrintedPage& page : pages) {
            if (&page != &pages.front()) {
                printer.NewPage();
            }
            for (const std::string& line : page) {
                printer.Line(line, points);
                points = kPrintPoints;
            }
        }
        return printer.End();
    } catch (const PlatformError&) {
        printer.Abort();
        throw;
    }
}

}  // namespace tallyhut
