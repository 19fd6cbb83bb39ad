#include "forms/qt/desktop_look.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>

#include "forms/qt/palettes.h"
#include "forms/qt/theme.h"

namespace tallyhut {
namespace {

constexpr const char* kService = "org.freedesktop.portal.Desktop";
constexpr const char* kPath = "/org/freedesktop/portal/desktop";
constexpr const char* kInterface = "org.freedesktop.portal.Settings";
constexpr const char* kGroup = "org.freedesktop.appearance";
constexpr const char* kKey = "color-scheme";

/// Source: the interface's documentation. 0 is no preference, 2 is light.
constexpr unsigned kPrefersDark = 1;

bool PrefersDark(QVariant value) {
    while (value.canConvert<QDBusVariant>()) {  // packed once or twice
        value = value.value<QDBusVariant>().variant();
    }
    return value.toUInt() == kPrefersDark;
}

/// Whoever answers does so in a few milliseconds; a desktop that is still starting must not hold the program up.
bool DesktopPrefersDark() {
    constexpr int kPatienceMs = 500;
    QDBusMessage question = QDBusMessage::createMethodCall(kService, kPath, kInterface, "Read");
    question << kGroup << kKey;
    const QDBusMessage answer = QDBusConnection::sessionBus().call(question, QDBus::Block, kPatienceMs);
    return answer.type() == QDBusMessage::ReplyMessage && PrefersDark(answer.arguments().value(0));
}

}  // namespace

DesktopLook::DesktopLook() {
    QDBusConnection::sessionBus().connect(kService, kPath, kInterface, "SettingChanged", this,
                                          SLOT(OnSettingChanged(QString, QString, QDBusVariant)));
}

void DesktopLook::Show(WindowLook choice) {
    choice_ = choice;
    Show();
}

void DesktopLook::OnSettingChanged(const QString& group, const QString& key, const QDBusVariant& value) {
    if (group == kGroup && key == kKey) {
        asked_ = true;
        desktopPrefersDark_ = PrefersDark(value.variant());
        Show();
    }
}

void DesktopLook::Show() {
    QApplication::setPalette(QPalette{});  // the desktop's own
    switch (choice_) {
        case WindowLook::Desktop:
            if (!asked_) {
                asked_ = true;
                desktopPrefersDark_ = DesktopPrefersDark();
            }
            if (desktopPrefersDark_ && !ThemeOf(QApplication::palette()).dark) {
                QApplication::setPalette(DarkPalette());
            }
            break;
        case WindowLook::Light:
            QApplication::setPalette(LightPalette());
            break;
        case WindowLook::Dark:
            QApplication::setPalette(DarkPalette());
            break;
    }
}

}  // namespace tallyhut
