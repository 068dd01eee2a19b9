#pragma once

#include <QDateTime>
#include <QString>
#include <QVariant>
#include <concepts>
#include <functional>
#include <memory>
#include <optional>
#include <type_traits>

struct sqlite3;
struct sqlite3_stmt;

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
/// Integers of any width are read back as `qlonglong`. Each change is on the disk, atomically, when the
/// operation answers true. A file that cannot be read is renamed to "<path>.unreadable-<n>" and a fresh one
/// begun; if no file can be had at all, the values live in memory until the process ends. Main thread only.
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

  /// Sets an array whose elements are made one at a time, so that a long one is never held twice.
  bool setArray(const Preference<QVariantList>& preference, qsizetype count,
                const std::function<QVariant(qsizetype)>& element);

  /// False when the values live in memory only.
  bool isDurable() const { return isDurable_; }

  struct Close {
    void operator()(sqlite3* database) const;
  };
  struct Finalize {
    void operator()(sqlite3_stmt* statement) const;
  };
  using Database = std::unique_ptr<sqlite3, Close>;
  using Statement = std::unique_ptr<sqlite3_stmt, Finalize>;

 private:
  std::optional<QByteArray> text(const QString& key) const;
  bool write(const QString& key, const QByteArray& text);
  bool change(sqlite3_stmt* statement, const QString& key);

  Database database_;
  Statement read_;
  Statement write_;
  Statement remove_;
  bool isDurable_ = true;
};

}  // namespace tavi
