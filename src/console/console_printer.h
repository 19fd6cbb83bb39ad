#pragma once

#include <string>

#include "console/json_output.h"
#include "platform/printer.h"

namespace tallyhut {

/// A printer whose paper are events: one for each line, and one at the end of each page. It never refuses.
class ConsolePrinter : public Printer {
public:
    explicit ConsolePrinter(JsonOutput& out) : out_{out} {}

    bool Begin(const std::string& title) override;
    void Line(const std::string& text, int points = kPrintPoints) override;
    void NewPage() override;
    bool End() override;
    void Abort() override;

private:
    JsonOutput& out_;
};

}  // namespace tallyhut
