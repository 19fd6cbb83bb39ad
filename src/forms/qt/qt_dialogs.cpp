#include "forms/qt/qt_dialogs.h"

#include <QApplication>
#include <QColorDialog>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

#include "forms/qt/ask_box.h"
#include "forms/qt/dialog_loop.h"
#include "forms/qt/text_codec.h"
#include "forms/qt/theme.h"

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

/// Where no title is told, the dialog says what it does.
void Prepare(QFileDialog& dialog, const FileRequest& request, const char* purpose) {
    dialog.setOption(QFileDialog::DontUseNativeDialog);  // the same keys and names on every desktop
    dialog.setWindowTitle(request.title.empty() ? purpose : ToQt(request.title));
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

void QtDialogs::Beep() {
    QApplication::beep();
}

Answer QtDialogs::DoShow(const MessageBox& box) {
    AskBox dialog{box, DialogParent(*desk_)};
    RunDialog(dialog, *desk_);
    return dialog.Chosen();
}

std::optional<std::string> QtDialogs::DoShow(const InputBox& box) {
    AskBox dialog{box, DialogParent(*desk_)};
    return RunDialog(dialog, *desk_) ? std::optional{FromQt(dialog.Entered())} : std::nullopt;
}

std::optional<std::string> QtDialogs::DoSaveFile(const FileRequest& request) {
    QFileDialog dialog{DialogParent(*desk_)};
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.overwritePrompt);
    Prepare(dialog, request, "Save as");
    dialog.setDefaultSuffix(QFileInfo{dialog.selectedFiles().value(0)}.suffix());
    return RunDialog(dialog, *desk_) ? ChosenPath(dialog) : std::nullopt;
}

std::optional<std::string> QtDialogs::DoOpenFile(const FileRequest& request) {
    QFileDialog dialog{DialogParent(*desk_)};
    dialog.setFileMode(QFileDialog::ExistingFile);
    Prepare(dialog, request, "Open");
    return RunDialog(dialog, *desk_) ? ChosenPath(dialog) : std::nullopt;
}

std::optional<std::string> QtDialogs::DoChooseFolder(const FileRequest& request) {
    QFileDialog dialog{DialogParent(*desk_)};
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    Prepare(dialog, request, "Choose a folder");
    return RunDialog(dialog, *desk_) ? ChosenPath(dialog) : std::nullopt;
}

std::optional<std::int32_t> QtDialogs::DoChooseColour(std::int32_t current) {
    QColorDialog dialog{ToQColor(current, ThemeOf(QApplication::palette())), DialogParent(*desk_)};
    dialog.setOption(QColorDialog::DontUseNativeDialog);
    return RunDialog(dialog, *desk_) ? std::optional{FromQColor(dialog.currentColor())} : std::nullopt;
}

}  // namespace tallyhut
