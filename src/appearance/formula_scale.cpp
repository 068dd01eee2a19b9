#include "appearance/formula_scale.h"

#include <QGuiApplication>
#include <algorithm>
#include <cmath>

#include "platform/desktop_settings.h"
#include "platform/preferences.h"

namespace tavi {

namespace {

/// Under X11 the desktop's scale of texts is one of all that Qt shows.
const QString scalesWindows = QStringLiteral("xcb");

int within(qlonglong percent) {
  return static_cast<int>(std::clamp<qlonglong>(percent, FormulaScale::least, FormulaScale::most));
}

}  // namespace

FormulaScale& FormulaScale::shared() {
  static FormulaScale scale;
  return scale;
}

int FormulaScale::percent() const {
  return chosen_ != 0 ? chosen_ : system_;
}

void FormulaScale::load(const PreferenceStore& preferences) {
  const qlonglong stored = preferences.value(preferences::formulaScale);
  set(chosen_, stored > 0 ? within(stored) : 0);
}

void FormulaScale::choose(PreferenceStore& preferences, int percent) {
  const int chosen = percent == 0 ? 0 : within(percent);
  if (chosen == chosen_) return;
  preferences.setValue(preferences::formulaScale,
                       chosen == 0 ? std::nullopt : std::optional(qlonglong{chosen}));
  set(chosen_, chosen);
}

void FormulaScale::followSystem() {
  if (QGuiApplication::platformName() == scalesWindows) return;
  askDesktop(*this, QStringLiteral("text-scaling-factor"), [this](const QVariant& value) {
    if (value.typeId() == QMetaType::Double && std::isfinite(value.toDouble()))
      setSystemPercent(static_cast<int>(std::lround(std::clamp(value.toDouble(), 0.0, 10.0) * usual)));
  });
}

void FormulaScale::setSystemPercent(int percent) {
  set(system_, within(percent));
}

void FormulaScale::set(int& field, int percent) {
  const int before = this->percent();
  field = percent;
  if (this->percent() != before) emit changed();
}

}  // namespace tavi
