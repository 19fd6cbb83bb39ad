#pragma once

#include <string>
#include <vector>

#include "platform/printer.h"

namespace tallyhut {

using PrintedPage = std::vector<std::string>;

/// Breaks lines into pages, each with a head and never longer than told. A page gets its head when its first item
/// comes, and is ended by the item that fills it, or that it has no more room for: lines that follow the last item may
/// stand on a page without a head.
class PageBreaker {
public:
    PageBreaker(PrintedPage head, std::size_t linesPerPage) : head_{std::move(head)}, linesPerPage_{linesPerPage} {}

    /// Lines that stay together, unless there are more than any page takes.
    void Item(const std::vector<std::string>& lines);
    /// Lines behind the last item.
    void Tail(const std::vector<std::string>& lines);
    /// At least one page; only a document without a line has an empty one.
    std::vector<PrintedPage> Pages() const;

private:
    bool HasRoomFor(std::size_t lines) const { return pages_.back().size() + lines <= linesPerPage_; }
    void EndPage();

    PrintedPage head_;
    std::size_t linesPerPage_;
    std::vector<PrintedPage> pages_ = {PrintedPage{}};
    bool headDue_ = true;
};

/// Prints the pages as one document, unless the operator cancels; false then. Throws PlatformError when the printer
/// fails; the document is dropped then.
///
/// @param firstLinePoints  font size of the document's first line
bool PrintPages(Printer& printer, const std::string& title, const std::vector<PrintedPage>& pages,
                int firstLinePoints = kPrintPoints);

}  // namespace tallyhut
