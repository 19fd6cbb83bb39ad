#include "forms/qt/qt_printer.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QLocale>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPushButton>
#include <QSaveFile>

#include "forms/qt/dialog_loop.h"
#include "forms/qt/print_preview.h"
#include "forms/qt/text_codec.h"
#include "platform/path_error.h"

namespace tallyhut {

bool QtPrinter::Begin(const std::string& title) {
    printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    document_ = {};
    document_.title = ToQt(title);
    printer_->setDocName(document_.title);
    if (printer_->outputFormat() == QPrinter::PdfFormat) {  // no printer knows its paper
        const bool american = QLocale{}.measurementSystem() == QLocale::ImperialUSSystem;
        printer_->setPageSize(QPageSize{american ? QPageSize::Letter : QPageSize::A4});
    }
    if (!ChoosePrinter()) {
        Forget();
        return false;
    }
    return true;
}

void QtPrinter::Line(const std::string& text, int points) {
    document_.pages.back().push_back({PrintedText(text), points});
}

void QtPrinter::NewPage() {
    document_.pages.emplace_back();
}

bool QtPrinter::End() {
    if (previewAsked_) {
        PrintPreview preview{document_, *printer_, DialogParent(*desk_)};
        if (!RunDialog(preview, *desk_)) {
            Forget();
            return false;
        }
    }
    Print();
    Forget();
    return true;
}

void QtPrinter::Abort() {
    Forget();
}

void QtPrinter::Forget() {
    printer_.reset();
    document_ = {};
}

/// The dialog has no word for it, only a field.
void QtPrinter::OfferFolder(const QPrintDialog& dialog) const {
    auto* field = dialog.findChild<QLineEdit*>("filename");
    const std::string offered = folder();
    if (field != nullptr && !offered.empty()) {
        field->setText(QFile::decodeName(QByteArray::fromStdString(offered)) + '/' +
                       QFileInfo{field->text()}.fileName());
    }
}

/// The dialog's own dialogs (properties, browsing for a file, a file that exists) run in a loop of the desktop's, in
/// which timers and devices wait.
bool QtPrinter::ChoosePrinter() {
    QPrintDialog dialog{printer_.get(), DialogParent(*desk_)};
    dialog.setObjectName("printdialog");
    dialog.setOption(QPrintDialog::PrintPageRange, false);  // how many pages there will be is not known yet
    previewAsked_ = false;
    OfferFolder(dialog);
    if (auto* buttons = dialog.findChild<QDialogButtonBox*>()) {
        QPushButton* preview = buttons->addButton("Pre&view", QDialogButtonBox::ActionRole);
        preview->setObjectName("preview");
        QObject::connect(preview, &QPushButton::clicked, &dialog, [this, &dialog] {
            dialog.accept();
            previewAsked_ = !dialog.isVisible();  // it stays where a choice cannot be taken
        });
    }
    return RunDialog(dialog, *desk_);
}

void QtPrinter::Print() {
    if (printer_->outputFormat() == QPrinter::PdfFormat) {
        PrintToFile();
    } else if (!PaintDocument(document_, *printer_) || printer_->printerState() == QPrinter::Error) {
        throw PlatformError{"The printer " + FromQt(printer_->printerName()) + " did not take the document."};
    }
}

/// A file that cannot be written whole is told with the reason, and leaves the one before it as it was.
void QtPrinter::PrintToFile() {
    QSaveFile file{printer_->outputFileName()};
    const auto refuse = [&file] {
        throw PathError(QFile::encodeName(file.fileName()).toStdString(), FromQt(file.errorString()));
    };
    if (!file.open(QIODevice::WriteOnly)) {
        refuse();
    }
    QPdfWriter writer{&file};
    writer.setPageLayout(printer_->pageLayout());
    writer.setTitle(document_.title);
    if (!PaintDocument(document_, writer) || !file.commit()) {
        refuse();
    }
}

}  // namespace tallyhut
