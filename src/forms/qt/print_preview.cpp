#include "forms/qt/print_preview.h"

#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "forms/qt/print_document.h"

namespace tallyhut {

PrintPreview::PrintPreview(const PrintDocument& document, QPrinter& printer, QWidget* parent)
    : QDialog{parent}, pages_{new QPrintPreviewWidget{&printer}}, pageNumber_{new QLabel} {
    setObjectName("printpreview");
    setWindowTitle(document.title.isEmpty() ? QString{"Print"} : "Print: " + document.title);
    resize(QGuiApplication::primaryScreen()->availableSize() * 4 / 5);

    connect(pages_, &QPrintPreviewWidget::paintRequested, this,
            [&document](QPrinter* preview) { PaintDocument(document, *preview); });
    connect(pages_, &QPrintPreviewWidget::previewChanged, this, [this] { ShowPageNumber(); });

    auto* row = new QHBoxLayout;
    const auto addButton = [&](const char* caption, auto action) {
        auto* button = new QPushButton{caption};
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, pages_, action);
        row->addWidget(button);
    };
    addButton("P&revious", [this] { pages_->setCurrentPage(pages_->currentPage() - 1); });
    addButton("&Next", [this] { pages_->setCurrentPage(pages_->currentPage() + 1); });
    row->addWidget(pageNumber_);
    row->addStretch();
    addButton("&Whole Page", [this] { pages_->fitInView(); });
    addButton("Page Wi&dth", [this] { pages_->fitToWidth(); });
    addButton("Zoom &In", [this] { pages_->zoomIn(); });
    addButton("Zoom &Out", [this] { pages_->zoomOut(); });

    auto* ends = new QDialogButtonBox;
    QPushButton* print = ends->addButton("&Print", QDialogButtonBox::AcceptRole);
    print->setDefault(true);
    ends->addButton("&Cancel", QDialogButtonBox::RejectRole);
    connect(ends, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(ends, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* column = new QVBoxLayout{this};
    column->addLayout(row);
    column->addWidget(pages_, 1);
    column->addWidget(ends);
    print->setFocus();
}

void PrintPreview::ShowPageNumber() {
    pageNumber_->setText(QString{"Page %1 of %2"}.arg(pages_->currentPage()).arg(pages_->pageCount()));
}

}  // namespace tallyhut
