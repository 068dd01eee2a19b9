#pragma once

#include <QString>

#include "measurement/measurement_client.h"

namespace tavi {

/// What the general privacy text tells: what stays on the device and, where the settings name a collector,
/// what measurement sends once the user agrees.
QString privacyText(const MeasurementSettings& measurement);

/// What measurement sends: every event that is reported, by its name, and what goes with each.
QString measurementText(const MeasurementSettings& measurement);

}  // namespace tavi
