#pragma once

#include <QDialog>

class QLabel;
class QPrintPreviewWidget;
class QPrinter;

namespace tallyhut {

struct PrintDocument;

/// The pages of a document as the printer will print them, before it does. Accepted by its Print button.
class PrintPreview : public QDialog {
public:
    /// Both must outlive the preview.
    PrintPreview(const PrintDocument& document, QPrinter& printer, QWidget* parent);

private:
    void ShowPageNumber();

    QPrintPreviewWidget* pages_;
    QLabel* pageNumber_;
};

}  // namespace tallyhut
