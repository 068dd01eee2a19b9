#pragma once

#include <QObject>
#include <QString>
#include <functional>

namespace tavi {

/// Named notifications between parts that do not know each other. Whoever posts a name declares it in its
/// header; those of the system stand here.
class NotificationCenter : public QObject {
  Q_OBJECT

 public:
  /// Posted whenever the application comes to the front.
  static constexpr QLatin1StringView applicationDidBecomeActive{"UIApplicationDidBecomeActiveNotification"};

  static NotificationCenter& shared();

  /// Calls every observer of the name, in the order of observation, before it returns.
  void post(const QString& name);

  /// Calls back on each post of the name, on the thread of the context, until the context is destroyed or the
  /// connection is cut.
  QMetaObject::Connection observe(const QString& name, const QObject* context,
                                  std::function<void()> callback) const;

 signals:
  void posted(const QString& name);
};

}  // namespace tavi
