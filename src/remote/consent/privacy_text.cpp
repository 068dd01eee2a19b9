#include "remote/consent/privacy_text.h"

#include <algorithm>

#include "platform/localization.h"
#include "remote/analytics_events.h"

namespace tavi {

QString privacyText(const MeasurementSettings& measurement) {
  const QString text = localized("dsgvoTextPro");
  return measurement.isUsable() ? text + QStringLiteral("\n\n") + measurementText(measurement) : text;
}

QString measurementText(const MeasurementSettings& measurement) {
  QString text = localized("measurementText").arg(measurement.endpoint.host());
  for (const events::EventKind& kind : events::vocabulary) {
    QStringList sent;
    for (const QLatin1StringView parameter : kind.parameters) {
      const bool isTyped =
          std::ranges::find(events::typedParameters, parameter) != events::typedParameters.end();
      if (!parameter.isEmpty() && (measurement.sendsWorkings || !isTyped)) sent.append(parameter);
    }
    text += QStringLiteral("\n• ") + kind.name;
    if (!sent.isEmpty()) text += QStringLiteral(": ") + sent.join(QStringLiteral(", "));
  }
  return text;
}

}  // namespace tavi
