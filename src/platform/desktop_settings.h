#pragma once

#include <QObject>
#include <QString>
#include <QVariant>
#include <functional>

namespace tavi {

/// Asks the desktop portal for a setting of the group "org.gnome.desktop.interface", which other desktops
/// answer, too, and hands it on once it comes: never where there is no portal or no such setting, nor once
/// the context is gone.
void askDesktop(QObject& context, const QString& key, std::function<void(const QVariant&)> take);

}  // namespace tavi
