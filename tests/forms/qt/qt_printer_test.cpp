#include "forms/qt/qt_printer.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QKeySequence>
#include <QLineEdit>
#include <QLocale>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "forms/qt/qt_pump.h"
#include "platform/real/system_clock.h"
#include "platform/sim/clipboard.h"
#include "platform/sim/dialogs.h"
#include "tests/forms/qt/pdf_text.h"
#include "tests/platform/failure_of.h"
#include "toolkit/desk.h"

namespace tallyhut {
namespace {

using Pages = std::vector<std::vector<std::string>>;

/// The button of a dialog with this caption, its access key left out.
QPushButton& ButtonOf(const QDialog& dialog, const QString& caption) {
    for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
        if (button->text().remove('&') == caption) {
            return *button;
        }
    }
    throw std::runtime_error{"no button " + caption.toStdString()};
}

struct QtPrinterTest : testing::Test {
    SystemClock clock;
    QtPump pump{clock};
    sim::Dialogs dialogs;
    sim::Clipboard clipboard;
    Desk desk{clock, pump, dialogs, clipboard};
    QtPrinter qtPrinter;
    QTemporaryDir folder;
    QString path = folder.filePath("log.pdf");

    // As the program sees it.
    Printer& printer = qtPrinter;

    QtPrinterTest() { qtPrinter.Bind(desk); }

    /// What the operator does with the dialog of this name when it comes up.
    template <typename Act>
    void When(const QString& name, Act act) {
        QTimer::singleShot(0, qApp, [this, name, act] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr || dialog->objectName() != name) {
                When(name, act);
                return;
            }
            act(*dialog);
        });
    }
    void WhenDialogPress(const QString& caption) {
        When("printdialog", [this, caption](QDialog& dialog) {
            dialog.findChild<QLineEdit*>("filename")->setText(path);
            ButtonOf(dialog, caption).click();
        });
    }
    void WhenPreviewPress(const QString& caption) {
        When("printpreview", [caption](QDialog& dialog) { ButtonOf(dialog, caption).click(); });
    }
    void PrintTwoPages() {
        printer.Line("Bnd  Call");
        printer.Line("40   W1XX");
        printer.NewPage();
        printer.Line("20   K1AB");
        printer.End();
    }
};

const Pages kTwoPages{{"Bnd  Call", "40   W1XX"}, {"20   K1AB"}};

TEST_F(QtPrinterTest, MachineWithoutAPrinterPrintsToAFile) {
    QString chosen;
    When("printdialog", [&](QDialog& dialog) {
        chosen = dialog.findChild<QComboBox*>("printers")->currentText();
        ButtonOf(dialog, "Cancel").click();
    });
    printer.Begin("Log");
    EXPECT_EQ(chosen.toStdString(), "Print to File (PDF)");
}

TEST_F(QtPrinterTest, PrintButtonOfTheDialogPrintsWithoutAnotherQuestion) {
    WhenDialogPress("Print");
    ASSERT_TRUE(printer.Begin("Log"));
    EXPECT_FALSE(QFile::exists(path));
    PrintTwoPages();
    EXPECT_EQ(PdfPages(path), kTwoPages);
}

TEST_F(QtPrinterTest, PaperOfAFileIsTheCountrys) {
    for (const auto& [country, size] : {std::pair{QLocale::UnitedStates, "612 x 792 pts (letter)"},
                                        std::pair{QLocale::Germany, "595 x 842 pts (A4)"}}) {
        QLocale::setDefault(QLocale{QLocale::English, country});
        WhenDialogPress("Print");
        ASSERT_TRUE(printer.Begin("Log"));
        printer.End();
        EXPECT_EQ(PdfPageSize(path), size);
        QFile::remove(path);  // the dialog would ask whether to replace it
    }
    QLocale::setDefault(QLocale::system());
}

TEST_F(QtPrinterTest, CancelledDialogBeginsNoDocument) {
    WhenDialogPress("Cancel");
    EXPECT_FALSE(printer.Begin("Log"));
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(QtPrinterTest, PreviewShowsThePagesBeforeTheyArePrinted) {
    WhenDialogPress("Preview");
    ASSERT_TRUE(printer.Begin("Log"));
    int shown = 0;
    bool printedBefore = true;
    QString title;
    When("printpreview", [&](QDialog& dialog) {
        shown = dialog.findChild<QPrintPreviewWidget*>()->pageCount();
        printedBefore = QFile::exists(path);
        title = dialog.windowTitle();
        ButtonOf(dialog, "Print").click();
    });
    PrintTwoPages();
    EXPECT_EQ(shown, 2);
    EXPECT_FALSE(printedBefore);
    EXPECT_EQ(title.toStdString(), "Print: Log");
    EXPECT_EQ(PdfPages(path).size(), 2U);
}

TEST_F(QtPrinterTest, PagesOfThePreviewCanBeTurned) {
    WhenDialogPress("Preview");
    ASSERT_TRUE(printer.Begin("Log"));
    std::vector<int> pages;
    When("printpreview", [&](QDialog& dialog) {
        auto* preview = dialog.findChild<QPrintPreviewWidget*>();
        for (const char* caption : {"Next", "Next", "Previous"}) {
            ButtonOf(dialog, caption).click();
            pages.push_back(preview->currentPage());
        }
        ButtonOf(dialog, "Cancel").click();
    });
    PrintTwoPages();
    EXPECT_EQ(pages, (std::vector<int>{2, 2, 1}));
}

TEST_F(QtPrinterTest, EachButtonOfThePreviewHasAKeyOfItsOwn) {
    WhenDialogPress("Preview");
    ASSERT_TRUE(printer.Begin("Log"));
    std::string keys;
    When("printpreview", [&](QDialog& dialog) {
        for (const QPushButton* button : dialog.findChildren<QPushButton*>()) {
            keys += button->shortcut().toString().toStdString() + ' ';
        }
        ButtonOf(dialog, "Cancel").click();
    });
    EXPECT_FALSE(printer.End());
    EXPECT_EQ(keys, "Alt+R Alt+N Alt+W Alt+D Alt+I Alt+O Alt+P Alt+C ");
}

TEST_F(QtPrinterTest, CancelledPreviewPrintsNothingAndIsNoFailure) {
    WhenDialogPress("Preview");
    ASSERT_TRUE(printer.Begin("Log"));
    WhenPreviewPress("Cancel");
    EXPECT_EQ(FailureOf([&] { PrintTwoPages(); }), "");
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(QtPrinterTest, FileThatCannotBeWrittenIsToldWithTheReason) {
    ASSERT_TRUE(QDir{folder.path()}.mkdir("sub"));
    path = folder.filePath("sub/log.pdf");
    WhenDialogPress("Print");
    ASSERT_TRUE(printer.Begin("Log"));
    ASSERT_TRUE(QDir{folder.filePath("sub")}.removeRecursively());
    EXPECT_EQ(FailureOf([&] { PrintTwoPages(); }), path.toStdString() + ": No such file or directory");
    printer.Abort();
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(QtPrinterTest, DroppedDocumentPrintsNothingAndLeavesNothingToTheNext) {
    WhenDialogPress("Print");
    ASSERT_TRUE(printer.Begin("Log"));
    printer.Line("dropped");
    printer.Abort();
    EXPECT_FALSE(QFile::exists(path));
    WhenDialogPress("Print");
    ASSERT_TRUE(printer.Begin("Log"));
    printer.Line("kept");
    printer.End();
    EXPECT_EQ(PdfPages(path), (Pages{{"kept"}}));
}

}  // namespace
}  // namespace tallyhut
