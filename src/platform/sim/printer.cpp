#include "platform/sim/printer.h"

#include <stdexcept>
#include <utility>

#include "platform/platform_error.h"

namespace tallyhut::sim {

bool Printer::Begin(const std::string& title) {
    if (unfinished) {
        throw std::logic_error{"a document begins within " + unfinished->title};
    }
    if (!cancels) {
        unfinished.emplace().title = title;
    }
    return !cancels;
}

void Printer::Line(const std::string& text, int points) {
    BeginOperation();
    Open().pages.back().push_back({text, points});
}

void Printer::NewPage() {
    BeginOperation();
    Open().pages.emplace_back();
}

bool Printer::End() {
    BeginOperation();
    (cancelsPreview ? aborted : documents).push_back(std::move(Open()));
    unfinished.reset();
    return !cancelsPreview;
}

void Printer::Abort() {
    aborted.push_back(std::move(Open()));
    unfinished.reset();
}

void Printer::FailAt(int nth, const std::string& reason) {
    untilFailure_ = nth;
    reason_ = reason;
}

PrintedDocument& Printer::Open() {
    if (!unfinished) {
        throw std::logic_error{"there is no document"};
    }
    return *unfinished;
}

void Printer::BeginOperation() {
    if (untilFailure_ > 0 && --untilFailure_ == 0) {
        throw PlatformError{reason_};
    }
}

}  // namespace tallyhut::sim
