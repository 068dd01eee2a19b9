#pragma once

#include <QDateTime>
#include <QString>
#include <QVariant>
#include <concepts>
#include <functional>
#include <optional>
#include <type_traits>
#include <vector>

#include "platform/sqlite_file.h"

namespace tavi {

/// The kinds a preference can have, each read back as exactly the type it was written with.
template <typename Value>
concept PreferenceValue =
    std::same_as<Value, QString> || std::same_as<Value, qlonglong> || std::same_as<Value, bool> ||
    std::same_as<Value, QDateTime> || std::same_as<Value, QVariantList> || std::same_as<Value, QVariantMap>;

/// A setting: its key, its kind and what it reads as while nothing of that kind is stored.
template <PreferenceValue Value>
struct Preference {
  QLatin1StringView key;
  Value fallback{};
};

/// Settings and small records that survive the process, one value per key, in a database file. The
/// application's own are listed in platform/preferences.h.
///
/// Values are texts, integers, booleans, dates (UTC, to the millisecond), and arrays and maps of these.
/// Integers of any width are read back as `qlonglong`. An array is kept one row an element, so that a long
/// one can be changed at one place at the price of a short one. Each change is on the disk, atomically, when
/// the operation answers true. Main thread only. What becomes of files that cannot be read or written tells
/// platform/sqlite_file.h.
class PreferenceStore {
 public:
  /// The user's store, in the data directory that the system gives the application.
  static PreferenceStore& standard();

  /// Opens or creates the file at the path, and the folders above it.
  explicit PreferenceStore(const QString& path);

  /// The stored value; absent when there is none or one of another kind.
  template <PreferenceValue Value>
  std::optional<Value> find(const Preference<Value>& preference) const {
    const QVariant stored = variant(preference.key);
    return stored.typeId() == qMetaTypeId<Value>() ? std::optional(stored.value<Value>()) : std::nullopt;
  }

  /// The stored value or, without one of the kind, the fallback.
  template <PreferenceValue Value>
  Value value(const Preference<Value>& preference) const {
    return find(preference).value_or(preference.fallback);
  }

  /// Replaces the value, an absent one clears the key. False, with one console line and the old value kept,
  /// when the disk refuses.
  template <PreferenceValue Value>
  bool setValue(const Preference<Value>& preference,
                const std::type_identity_t<std::optional<Value>>& value) {
    return setValue(preference.key, value ? QVariant(*value) : QVariant());
  }

  /// Whether anything is stored under the key, of whatever kind.
  template <PreferenceValue Value>
  bool contains(const Preference<Value>& preference) const {
    return contains(preference.key);
  }

  /// Clears the key; clearing an absent one is no error. False as above.
  template <PreferenceValue Value>
  bool remove(const Preference<Value>& preference) {
    return remove(preference.key);
  }

  // The same by key alone, as one who comes from outside sees the store.
  bool contains(const QString& key) const;
  /// Invalid when the key is absent or its text is none of ours (then with one console line).
  QVariant variant(const QString& key) const;
  /// An invalid value clears the key; one of another kind than those above is a fatal stop.
  bool setValue(const QString& key, const QVariant& value);
  bool remove(const QString& key);

  /// An element of a stored array, by the number under which it can be changed.
  struct Element {
    qlonglong number;
    QVariant value;
  };

  /// Hands over, in their order, which is that of falling numbers, so many of the elements with lower numbers
  /// than the given one. The number to go on from; absent behind the last element, and where there is no
  /// array. An element that is none of ours is left out, with one console line.
  std::optional<qlonglong> readElements(const Preference<QVariantList>& preference, qlonglong below,
                                        qsizetype most, const std::function<void(Element)>& take) const {
    return readElements(QString(preference.key), below, most, take);
  }

  /// Whether an array is stored under the key.
  bool holdsArray(const Preference<QVariantList>& preference) const;

  /// Replaces the array by one whose elements are made one at a time. The number of the first one, from which
  /// the others fall by one each; absent when the disk refuses, with one console line, here and below.
  std::optional<qlonglong> setArray(const Preference<QVariantList>& preference, qsizetype count,
                                    const std::function<QVariant(qsizetype)>& element) {
    return setArray(QString(preference.key), count, element);
  }

  // Changes of an array that is there. A number is never given twice, and one that is gone is passed over.
  std::optional<qlonglong> prependElement(const Preference<QVariantList>& preference, const QVariant& value);
  bool replaceElement(const Preference<QVariantList>& preference, const Element& element);
  bool removeElement(const Preference<QVariantList>& preference, qlonglong number);
  bool removeElements(const Preference<QVariantList>& preference, const QList<qlonglong>& numbers);
  /// Puts in, under their numbers, elements that were removed or that go behind all others.
  bool restoreElements(const Preference<QVariantList>& preference, qsizetype count,
                       const std::function<Element(qsizetype)>& element);

  /// Renames the key to "<key>.unreadable-<n>", with one console line; nothing for an absent one.
  template <PreferenceValue Value>
  void setAside(const Preference<Value>& preference) {
    setAside(QString(preference.key));
  }

  /// False when the values live in memory only.
  bool isDurable() const { return file_.isDurable; }

  /// Calls back once, when it turns out that something cannot be kept; at once if that is known already.
  void setRefusalHandler(std::function<void()> handler);

 private:
  std::optional<QByteArray> text(const QString& key) const;
  std::optional<qlonglong> readElements(const QString& key, qlonglong below, qsizetype most,
                                        const std::function<void(Element)>& take) const;
  std::optional<qlonglong> setArray(const QString& key, qsizetype count,
                                    const std::function<QVariant(qsizetype)>& element);
  void setAside(const QString& key);

  bool write(std::size_t statement, const QString& key, const QByteArray& text = {}, qlonglong number = 0);
  std::optional<qlonglong> prependOne(const QString& key, const QVariant& value);
  bool dropElements(const QString& key);
  bool together(const QString& key, const std::function<bool()>& changes);
  bool report(const QString& key, bool isWritten);

  SqliteFile file_;
  std::vector<SqliteStatement> statements_;
  bool isRefused_ = false;
  std::function<void()> refusalHandler_;
};

}  // namespace tavi
