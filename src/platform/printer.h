#pragma once

#include <string>

namespace tallyhut {

/// The font size of a report's plain lines.
inline constexpr int kPrintPoints = 10;

/// The printer of the machine. A document is one Begin ... End; its lines stand in a fixed-pitch font.
///
/// Text is Latin-1. Besides End, Line and NewPage may throw PlatformError as well; the document then waits for Abort.
struct Printer {
    virtual ~Printer() = default;

    /// Lets the operator choose printer and page; false when the operator cancels: then there is no document.
    virtual bool Begin(const std::string& title) = 0;
    /// One line of the document, ready made with its blanks; points is the font size.
    virtual void Line(const std::string& text, int points = kPrintPoints) = 0;
    virtual void NewPage() = 0;
    /// Ends the page and the document and hands it to the printer; false when the operator, having seen it, cancels.
    /// Throws PlatformError when the printer refuses.
    virtual bool End() = 0;
    /// Drops a document that has begun, after a failure.
    virtual void Abort() = 0;
};

}  // namespace tallyhut
