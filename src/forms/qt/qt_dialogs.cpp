#include "forms/qt/qt_dialogs.h"

#include <QApplication>
#include <QColorDialog>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

#include "forms/qt/ask_box.h"
#include "forms/qt/text_codec.h"
#include "forms/qt/theme.h"
#include "toolkit/desk.h"

namespace tallyhut {
namespace {

/// Paths keep the system's own bytes.
QString PathToQt(const std::string& path) {
    return QFile::decodeName(QByteArray::fromStdString(path));
}

std::optional<std::string> ChosenPath(const QFileDialog& dialog) {
    const QStringList chosen = dialog.selectedFiles();
    return chosen.isEmpty() ? std::nullopt : std::optional{QFile::encodeName(chosen.front()).toStdString()};
}

void Prepare(QFileDialog& dialog, const FileRequest& request) {
    dialog.setOption(QFileDialog::DontUseNativeDialog);  // the same keys and names on every desktop
    dialog.setWindowTitle(ToQt(request.title));
    if (!request.folder.empty()) {
        dialog.setDirectory(PathToQt(request.folder));
    }
    if (!request.filter.empty()) {
        dialog.setNameFilter(ToQt(DesktopFilter(request.filter)));
    }
    if (!request.name.empty()) {
        const QString name = PathToQt(request.name);
        if (QFileInfo{name}.isAbsolute()) {
            dialog.setDirectory(QFileInfo{name}.path());
        }
        dialog.selectFile(QFileInfo{name}.fileName());
    }
}

}  // namespace

std::string DesktopFilter(const std::string& told) {
    const QStringList parts = ToQt(told).split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString patterns = parts[i + 1].trimmed().replace(';', ' ');
        const QString name = parts[i].section('(', 0, 0).trimmed();
        filters << name + " (" + patterns + ')';
    }
    return FromQt(filters.isEmpty() ? ToQt(told) : filters.join(";;"));
}

QWidget* QtDialogs::Parent() {
    desk_->pump.Collect();  // what the handler has shown so far stands under the dialog
    return QApplication::activeWindow();
}

bool QtDialogs::Run(QDialog& dialog) {
    bool finished = false;
    bool accepted = false;
    QObject::connect(&dialog, &QDialog::finished, &dialog, [&](int result) {
        finished = true;
        accepted = result == QDialog::Accepted;
    });
    dialog.setFont(DialogFont());
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.show();
    dialog.raise();
    dialog.activateWindow();
    desk_->RunDialog([&finished] { return finished; });
    return accepted;
}

void QtDialogs::Beep() {
    QApplication::beep();
}

Answer QtDialogs::DoShow(const MessageBox& box) {
    AskBox dialog{box, Parent()};
    Run(dialog);
    return dialog.Chosen();
}

std::string QtDialogs::DoShow(const InputBox& box) {
    AskBox dialog{box, Parent()};
    return Run(dialog) ? FromQt(dialog.Entered()) : std::string{};
}

std::optional<std::string> QtDialogs::DoSaveFile(const FileRequest& request) {
    QFileDialog dialog{Parent()};
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.overwritePrompt);
    Prepare(dialog, request);
    return Run(dialog) ? ChosenPath(dialog) : std::nullopt;
}

std::optional<std::string> QtDialogs::DoOpenFile(const FileRequest& request) {
    QFileDialog dialog{Parent()};
    dialog.setFileMode(QFileDialog::ExistingFile);
    Prepare(dialog, request);
    return Run(dialog) ? ChosenPath(dialog) : std::nullopt;
}

std::optional<std::string> QtDialogs::DoChooseFolder(const FileRequest& request) {
    QFileDialog dialog{Parent()};
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    Prepare(dialog, request);
    return Run(dialog) ? ChosenPath(dialog) : std::nullopt;
}

std::optional<std::int32_t> QtDialogs::DoChooseColour(std::int32_t current) {
    QColorDialog dialog{ToQColor(current, ThemeOf(QApplication::palette())), Parent()};
    dialog.setOption(QColorDialog::DontUseNativeDialog);
    return Run(dialog) ? std::optional{FromQColor(dialog.currentColor())} : std::nullopt;
}

}  // namespace tallyhut
