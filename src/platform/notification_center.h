#pragma once

#include <QObject>
#include <QString>
#include <functional>

namespace tavi {

/// Named notifications between parts that do not know each other. Whoever posts a name declares it in its
/// header.
class NotificationCenter : public QObject {
  Q_OBJECT

 public:
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
