#pragma once

#include <QPrinter>
#include <functional>
#include <memory>
#include <string>

#include "forms/qt/print_document.h"
#include "platform/printer.h"

class QPrintDialog;

namespace tallyhut {

struct Desk;

/// The desktop's printers, and a PDF file where there is none.
///
/// Begin shows the printer dialog; its Preview button chooses as its Print button does, and has End show the pages
/// first. An operator who cancels there has nothing printed, which is no failure.
class QtPrinter : public Printer {
public:
    /// The desk whose events run while a dialog is open; to be told before the first document.
    void Bind(Desk& desk) { desk_ = &desk; }
    /// Where a document that becomes a file is offered to be written.
    std::function<std::string()> folder = [] { return std::string{}; };

    bool Begin(const std::string& title) override;
    void Line(const std::string& text, int points = kPrintPoints) override;
    void NewPage() override;
    bool End() override;
    void Abort() override;

private:
    bool ChoosePrinter();
    void OfferFolder(const QPrintDialog& dialog) const;
    void Print();
    void PrintToFile();
    void Forget();

    Desk* desk_ = nullptr;
    std::unique_ptr<QPrinter> printer_;  ///< of the document that has begun
    PrintDocument document_;
    bool previewAsked_ = false;
};

}  // namespace tallyhut
