#pragma once

#include <QDateTime>
#include <QString>
#include <QVariant>
#include <concepts>
#include <functional>
#include <memory>
#include <optional>

struct sqlite3;
struct sqlite3_stmt;

namespace tavi {

/// The kinds a preference can have, each read back as exactly the type it was written with.
template <typename Value>
concept PreferenceValue =
    std::same_as<Value, QString> || std::same_as<Value, qlonglong> || std::same_as<Value, bool> ||
    std::same_as<Value, QDateTime> || std::same_as<Value, QVariantList> || std::same_as<Value, QVariantMap>;

/// Settings and small records that survive the process, one value per key, in a database file.
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

  /// Whether a value is stored under the key.
  bool contains(const QString& key) const;

  /// The stored value; invalid when the key is absent or its text is none of ours (then with one console
  /// line).
  QVariant variant(const QString& key) const;

  /// The stored value, or the fallback when the key is absent or holds a value of another kind.
  template <PreferenceValue Value>
  Value value(const QString& key, const Value& fallback) const {
    const QVariant stored = variant(key);
    return stored.typeId() == qMetaTypeId<Value>() ? stored.value<Value>() : fallback;
  }

  /// Replaces the value; an invalid one clears the key. False, with one console line and the old value kept,
  /// when the disk refuses. A value of another kind than those above is a fatal stop.
  bool setValue(const QString& key, const QVariant& value);

  /// Sets an array whose elements are made one at a time, so that a long one is never held twice.
  bool setArray(const QString& key, qsizetype count, const std::function<QVariant(qsizetype)>& element);

  /// Clears the key; clearing an absent one is no error. False as above.
  bool remove(const QString& key);

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
