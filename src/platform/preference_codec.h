#pragma once

#include <QByteArray>
#include <QVariant>
#include <functional>
#include <optional>

namespace tavi {

/// JSON text of a preference. Texts, integers, booleans, arrays and maps are JSON's own; a date is the object
/// {"$date": milliseconds since 1970 UTC}, and a map's key that begins with "$" gets a second one. A value of
/// any other kind is a fatal stop.
QByteArray encodePreference(const QVariant& value);

/// The same of an array whose elements are made one at a time, so that a long one is never held twice.
QByteArray encodePreferenceArray(qsizetype count, const std::function<QVariant(qsizetype)>& element);

/// The value of such a text; absent for any other text.
std::optional<QVariant> decodePreference(const QByteArray& text);

}  // namespace tavi
