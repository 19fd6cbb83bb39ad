#include "console/console_printer.h"

#include "console/text_encoding.h"

namespace tallyhut {

bool ConsolePrinter::Begin(const std::string& /*title*/) {
    return true;
}

void ConsolePrinter::Line(const std::string& text, int /*points*/) {
    out_.Event({{"event", "print"}, {"line", ToUtf8(text)}});
}

void ConsolePrinter::NewPage() {
    out_.Event({{"event", "page"}});
}

bool ConsolePrinter::End() {
    out_.Event({{"event", "page"}});
    return true;
}

void ConsolePrinter::Abort() {}  // what was told cannot be taken back

}  // namespace tallyhut
