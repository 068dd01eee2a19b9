#include "platform/motion.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <utility>

namespace tavi {

Motion& Motion::shared() {
  static Motion motion;
  return motion;
}

void Motion::setReduced(bool isReduced) {
  if (std::exchange(isReduced_, isReduced) != isReduced) emit changed();
}

void Motion::followSystem() {
  const QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  QDBusMessage question = QDBusMessage::createMethodCall(
      QStringLiteral("org.freedesktop.portal.Desktop"), QStringLiteral("/org/freedesktop/portal/desktop"),
      QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("Read"));
  question << QStringLiteral("org.gnome.desktop.interface") << QStringLiteral("enable-animations");
  auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
    const QDBusPendingReply<QDBusVariant> answer = *watcher;
    watcher->deleteLater();
    if (answer.isError()) return;
    // The portal wraps the value once more.
    QVariant value = answer.value().variant();
    if (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
    if (value.typeId() == QMetaType::Bool) setReduced(!value.toBool());
  });
}

}  // namespace tavi
