#include "platform/notification_center.h"

namespace tavi {

NotificationCenter& NotificationCenter::shared() {
  static NotificationCenter center;
  return center;
}

void NotificationCenter::post(const QString& name) {
  emit posted(name);
}

QMetaObject::Connection NotificationCenter::observe(const QString& name, const QObject* context,
                                                    std::function<void()> callback) const {
  return connect(this, &NotificationCenter::posted, context,
                 [name, callback = std::move(callback)](const QString& posted) {
                   if (posted == name) callback();
                 });
}

}  // namespace tavi
