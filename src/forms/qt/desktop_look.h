#pragma once

#include <QDBusVariant>
#include <QObject>

#include "forms/window_look.h"

namespace tallyhut {

/// Gives all windows a palette: the program's own light or dark one, or what the desktop wants.
///
/// Desktops tell Qt their colours by a plugin, or only say over the session bus that they prefer dark windows
/// (org.freedesktop.portal.Settings, as GNOME does). Both are followed, also while the program runs; where there is no
/// bus, the plugin's colours stand.
class DesktopLook : public QObject {
    Q_OBJECT

public:
    DesktopLook();

    void Show(WindowLook choice);

private slots:
    void OnSettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:  // NOLINT(readability-redundant-access-specifiers): above stand slots
    void Show();

    WindowLook choice_ = WindowLook::Desktop;
    bool asked_ = false;
    bool desktopPrefersDark_ = false;
};

}  // namespace tallyhut
