#include "remote/consent/privacy_text.h"

#include "platform/localization.h"

namespace tavi {

QString privacyText(const MeasurementSettings& measurement) {
  const QString text = localized("dsgvoTextPro");
  return measurement.isUsable() ? text + QStringLiteral("\n\n") + measurementText(measurement) : text;
}

QString measurementText(const MeasurementSettings& measurement) {
  const QString paragraph = QStringLiteral("\n\n");
  QString text = localized("measurementText").arg(measurement.endpoint.host()) + paragraph;
  if (measurement.sendsWorkings) text += localized("measurementWorkings") + paragraph;
  text += localized("measurementEvents");
  for (const events::EventKind& kind : events::vocabulary) {
    const QStringList sent = measurement.sentParameters(kind);
    text += QStringLiteral("\n• ") + kind.name;
    if (!sent.isEmpty()) text += QStringLiteral(": ") + sent.join(QStringLiteral(", "));
  }
  return text;
}

}  // namespace tavi
