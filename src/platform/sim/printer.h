#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/printer.h"

namespace tallyhut::sim {

struct PrintedLine {
    std::string text;
    int points = kPrintPoints;

    bool operator==(const PrintedLine&) const = default;
};

struct PrintedDocument {
    std::string title;
    std::vector<std::vector<PrintedLine>> pages{{}};  ///< in each its lines; the last one may be empty

    bool operator==(const PrintedDocument&) const = default;
};

/// Keeps what was printed. A program that prints outside a document, or begins one within another, fails the test with
/// a std::logic_error.
struct Printer : tallyhut::Printer {
    bool cancels = false;         ///< what the operator answers at Begin
    bool cancelsPreview = false;  ///< and at End

    std::vector<PrintedDocument> documents;     ///< those that were ended, in order
    std::vector<PrintedDocument> aborted;       ///< those that were dropped, as far as they went
    std::optional<PrintedDocument> unfinished;  ///< the one between Begin and End

    bool Begin(const std::string& title) override;
    void Line(const std::string& text, int points = kPrintPoints) override;
    void NewPage() override;
    bool End() override;
    void Abort() override;

    /// Makes the nth Line, NewPage or End from now fail for the reason, and leave all as it was. 1 is the next one.
    void FailAt(int nth, const std::string& reason);

private:
    PrintedDocument& Open();
    void BeginOperation();

    int untilFailure_ = 0;  // 0: none is arranged
    std::string reason_;
};

}  // namespace tallyhut::sim
