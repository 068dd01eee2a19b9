#include "platform/motion.h"

#include <utility>

#include "platform/desktop_settings.h"

namespace tavi {

Motion& Motion::shared() {
  static Motion motion;
  return motion;
}

void Motion::setReduced(bool isReduced) {
  if (std::exchange(isReduced_, isReduced) != isReduced) emit changed();
}

void Motion::followSystem() {
  askDesktop(*this, QStringLiteral("enable-animations"), [this](const QVariant& value) {
    if (value.typeId() == QMetaType::Bool) setReduced(!value.toBool());
  });
}

}  // namespace tavi
