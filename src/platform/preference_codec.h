#pragma once

#include <QByteArray>
#include <QVariant>
#include <optional>

namespace tavi {

/// JSON text of a preference. Texts, integers, booleans, arrays and maps are JSON's own; a date is the object
/// {"$date": milliseconds since 1970 UTC}, and a map's key that begins with "$" gets a second one. A value of
/// any other kind is a fatal stop.
QByteArray encodePreference(const QVariant& value);

/// The value of such a text; absent for any other text. In a record, which is a map that is the whole value
/// or an element of an array that is, an entry of no such kind is left out alone.
std::optional<QVariant> decodePreference(const QByteArray& text);

}  // namespace tavi
