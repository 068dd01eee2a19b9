#include "platform/desktop_settings.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <utility>

namespace tavi {

void askDesktop(QObject& context, const QString& key, std::function<void(const QVariant&)> take) {
  const QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  QDBusMessage question = QDBusMessage::createMethodCall(
      QStringLiteral("org.freedesktop.portal.Desktop"), QStringLiteral("/org/freedesktop/portal/desktop"),
      QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("Read"));
  question << QStringLiteral("org.gnome.desktop.interface") << key;
  auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(question), &context);
  QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &context, [watcher, take = std::move(take)] {
    const QDBusPendingReply<QDBusVariant> answer = *watcher;
    watcher->deleteLater();
    if (answer.isError()) return;
    // The portal wraps the value once more.
    QVariant value = answer.value().variant();
    if (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
    take(value);
  });
}

}  // namespace tavi
