#include "platform/real/ini_settings.h"

#include <QFile>
#include <QSettings>
#include <QStandardPaths>

#include "platform/path_error.h"

namespace tallyhut {

namespace {

QString FileName() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/Q7ZZQ_Software/tallyhut.ini";
}

QString Name(const std::string& section, const std::string& key) {
    return QString::fromLatin1(section) + '/' + QString::fromLatin1(key);
}

/// Text where that is the same bytes again, so that the usual value stands plainly in the file.
QVariant Stored(const std::string& value) {
    const QByteArray bytes = QByteArray::fromStdString(value);
    const QString text = QString::fromUtf8(bytes);
    return text.toUtf8() == bytes ? QVariant(text) : QVariant(bytes);
}

}  // namespace

std::string IniSettings::Get(const std::string& section, const std::string& key) const {
    const QSettings settings(FileName(), QSettings::IniFormat);
    const QVariant value = settings.value(Name(section, key));
    if (value.typeId() == QMetaType::QStringList) {  // someone edited the file and left out the quotes around a comma
        return value.toStringList().join(", ").toStdString();
    }
    return value.toByteArray().toStdString();
}

void IniSettings::Set(const std::string& section, const std::string& key, const std::string& value) {
    QSettings settings(FileName(), QSettings::IniFormat);
    const QString name = Name(section, key);
    const QVariant former = settings.value(name);
    settings.setValue(name, Stored(value));
    settings.sync();
    if (settings.status() != QSettings::NoError) {
        // Else the value would be kept in memory, and be read and written later.
        former.isValid() ? settings.setValue(name, former) : settings.remove(name);
        throw PathError(QFile::encodeName(settings.fileName()).toStdString(), "The settings cannot be written");
    }
}

}  // namespace tallyhut
