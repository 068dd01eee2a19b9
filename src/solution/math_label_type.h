#pragma once

#include <QQmlEngine>

#include "typeset/math_label.h"

namespace tavi {

/// Makes the typesetter's label known to QML as `MathLabel`.
struct MathLabelType {
  Q_GADGET
  QML_FOREIGN(tavi::typeset::MathLabel)
  QML_NAMED_ELEMENT(MathLabel)
};

}  // namespace tavi
