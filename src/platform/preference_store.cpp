#include "platform/preference_store.h"

#include <QDebug>
#include <QScopeGuard>
#include <algorithm>
#include <array>
#include <limits>

#include <sqlite3.h>

#include "platform/application_context.h"
#include "platform/preference_codec.h"

namespace tavi {
namespace {

// The arguments are ?1 a key, ?2 a number and ?3 a text.
enum Statement : std::size_t {
  readValue,
  writeValue,
  removeValue,
  renameValue,
  elementsOf,
  prepend,
  restore,
  replace,
  removeOne,
  removeAll,
  renameAll
};
constexpr auto statements = std::to_array<const char*>({
    "SELECT value FROM preferences WHERE key = ?1",
    "INSERT INTO preferences(key, value) VALUES(?1, ?3) "
    "ON CONFLICT(key) DO UPDATE SET value = excluded.value",
    "DELETE FROM preferences WHERE key = ?1",
    "UPDATE preferences SET key = ?3 WHERE key = ?1",
    "SELECT value, number FROM elements WHERE key = ?1 AND number < ?2 ORDER BY number DESC",
    "INSERT INTO elements(key, value) VALUES(?1, ?3) RETURNING number",
    "INSERT INTO elements(key, number, value) VALUES(?1, ?2, ?3)",
    "UPDATE elements SET value = ?3 WHERE key = ?1 AND number = ?2",
    "DELETE FROM elements WHERE key = ?1 AND number = ?2",
    "DELETE FROM elements WHERE key = ?1",
    "UPDATE elements SET key = ?3 WHERE key = ?1",
});

// A run of a statement, which is ready for the next one when it ends.
class Run {
 public:
  explicit Run(const SqliteStatement& statement, const QString& key = {}, QByteArray text = {},
               qlonglong number = 0)
      : statement_(statement.get()), key_(key.toUtf8()), text_(std::move(text)) {
    bind(1, key_);
    sqlite3_bind_int64(statement_, 2, number);
    bind(3, text_);
  }
  Run(const Run&) = delete;
  Run& operator=(const Run&) = delete;
  ~Run() {
    sqlite3_reset(statement_);
    sqlite3_clear_bindings(statement_);
  }

  bool hasRow() { return (result_ = sqlite3_step(statement_)) == SQLITE_ROW; }
  bool isDone() { return !hasRow() && result_ == SQLITE_DONE; }
  bool hasFailed() const { return result_ != SQLITE_ROW && result_ != SQLITE_DONE; }

  QByteArray text(int column) const {
    // SQLite asks for this order: the text first, then its size.
    const unsigned char* text = sqlite3_column_text(statement_, column);
    const int size = sqlite3_column_bytes(statement_, column);
    return {reinterpret_cast<const char*>(text), size};
  }
  qlonglong number(int column) const { return sqlite3_column_int64(statement_, column); }

 private:
  void bind(int index, const QByteArray& text) {
    sqlite3_bind_text64(statement_, index, text.constData(), static_cast<sqlite3_uint64>(text.size()),
                        SQLITE_STATIC, SQLITE_UTF8);
  }

  sqlite3_stmt* statement_;
  QByteArray key_;
  QByteArray text_;
  int result_ = SQLITE_OK;
};

constexpr qlonglong highest = std::numeric_limits<qlonglong>::max();

// What stands in the place of an array, whose elements are rows of their own.
const QByteArray& arrayText() {
  static const QByteArray text = encodePreference(QVariantList());
  return text;
}

// An array once was one text. What such a text holds goes before the rows that there may be.
int splitArrays(sqlite3* database) {
  const SqliteStatement reading =
      prepareSql(database, "SELECT key, value FROM preferences WHERE value LIKE '[[%' AND value <> '[[]]'");
  const SqliteStatement prepending = prepareSql(database, statements[prepend]);
  const SqliteStatement writing = prepareSql(database, statements[writeValue]);
  QList<std::pair<QString, QVariantList>> arrays;
  for (Run run(reading); run.hasRow();)
    if (const auto array = decodePreference(run.text(1))) arrays.append({run.text(0), array->toList()});
  for (const auto& [key, array] : arrays) {
    const auto isPrepended = [&, &key = key](const QVariant& element) {
      Run run(prepending, key, encodePreference(element));
      return run.hasRow() && run.isDone();
    };
    const bool isSplit =
        std::all_of(array.rbegin(), array.rend(), isPrepended) && Run(writing, key, arrayText()).isDone();
    if (!isSplit) return sqlite3_errcode(database);
  }
  return SQLITE_OK;
}

constexpr SqliteSchema preferenceSchema{
    .applicationId = 0x54415649,  // "TAVI"
    .chiefTable = "preferences",
    .makeMissing =
        "CREATE TABLE IF NOT EXISTS preferences(key TEXT PRIMARY KEY NOT NULL, value TEXT NOT NULL);"
        // Without an index, which each new element would pay for: there is one long array.
        "CREATE TABLE IF NOT EXISTS elements(number INTEGER PRIMARY KEY AUTOINCREMENT, key TEXT NOT NULL, "
        "value TEXT NOT NULL)",
    .statements = statements,
    .upgrade = splitArrays};

void print(const char* what, const QString& key, const QString& why) {
  qInfo().noquote() << "Preference store:" << what << key + ':' << why;
}

}  // namespace

PreferenceStore& PreferenceStore::standard() {
  static PreferenceStore store(userDataFolder() + "/preferences.sqlite");
  return store;
}

PreferenceStore::PreferenceStore(const QString& path) : file_(openSqliteFile(path, preferenceSchema)) {
  for (const char* sql : statements) statements_.push_back(prepareSql(file_.database.get(), sql));
}

void PreferenceStore::setRefusalHandler(std::function<void()> handler) {
  refusalHandler_ = std::move(handler);
  if (isRefused_ || !isDurable()) std::exchange(refusalHandler_, {})();
}

std::optional<QByteArray> PreferenceStore::text(const QString& key) const {
  Run run(statements_[readValue], key);
  if (run.hasRow()) return run.text(0);
  if (run.hasFailed()) print("cannot read", key, sqlite3_errmsg(file_.database.get()));
  return std::nullopt;
}

bool PreferenceStore::contains(const QString& key) const {
  return text(key).has_value();
}

QVariant PreferenceStore::variant(const QString& key) const {
  const std::optional<QByteArray> stored = text(key);
  if (!stored) return {};
  if (stored == arrayText()) {
    QVariantList array;
    readElements(key, highest, highest,
                 [&array](Element element) { array.append(std::move(element.value)); });
    return array;
  }
  const std::optional<QVariant> value = decodePreference(*stored);
  if (!value) print("not understood is the value of", key, QString::fromUtf8(stored->left(80)));
  return value.value_or(QVariant());
}

bool PreferenceStore::holdsArray(const Preference<QVariantList>& preference) const {
  return text(preference.key) == arrayText();
}

std::optional<qlonglong> PreferenceStore::readElements(const QString& key, qlonglong below, qsizetype most,
                                                       const std::function<void(Element)>& take) const {
  Run run(statements_[elementsOf], key, {}, below);
  for (; most > 0 && run.hasRow(); --most) {
    const QByteArray text = run.text(0);
    below = run.number(1);
    if (std::optional<QVariant> value = decodePreference(text))
      take({below, *std::move(value)});
    else
      print("not understood is an element of", key, QString::fromUtf8(text.left(80)));
  }
  if (most == 0) return below;
  if (run.hasFailed()) print("cannot read", key, sqlite3_errmsg(file_.database.get()));
  return std::nullopt;
}

bool PreferenceStore::setValue(const QString& key, const QVariant& value) {
  if (!value.isValid()) return remove(key);
  if (value.typeId() == QMetaType::QVariantList) {
    const QVariantList array = value.toList();
    return setArray(key, array.size(), [&array](qsizetype index) { return array[index]; }).has_value();
  }
  const QByteArray text = encodePreference(value);
  return together(key, [&] { return dropElements(key) && write(writeValue, key, text); });
}

bool PreferenceStore::remove(const QString& key) {
  return together(key, [&] { return dropElements(key) && write(removeValue, key); });
}

std::optional<qlonglong> PreferenceStore::setArray(const QString& key, qsizetype count,
                                                   const std::function<QVariant(qsizetype)>& element) {
  std::optional<qlonglong> first = 0;
  const bool isWritten = together(key, [&] {
    if (!dropElements(key) || !write(writeValue, key, arrayText())) return false;
    for (qsizetype index = count - 1; index >= 0 && first; --index) first = prependOne(key, element(index));
    return first.has_value();
  });
  return isWritten ? first : std::nullopt;
}

std::optional<qlonglong> PreferenceStore::prependElement(const Preference<QVariantList>& preference,
                                                         const QVariant& value) {
  const std::optional<qlonglong> number = prependOne(preference.key, value);
  report(preference.key, number.has_value());
  return number;
}

bool PreferenceStore::restoreElements(const Preference<QVariantList>& preference, qsizetype count,
                                      const std::function<Element(qsizetype)>& element) {
  return together(preference.key, [&] {
    for (qsizetype index = 0; index < count; ++index) {
      const auto [number, value] = element(index);
      if (!write(restore, preference.key, encodePreference(value), number)) return false;
    }
    return true;
  });
}

bool PreferenceStore::replaceElement(const Preference<QVariantList>& preference, const Element& element) {
  return report(preference.key,
                write(replace, preference.key, encodePreference(element.value), element.number));
}

bool PreferenceStore::removeElement(const Preference<QVariantList>& preference, qlonglong number) {
  return report(preference.key, write(removeOne, preference.key, {}, number));
}

bool PreferenceStore::removeElements(const Preference<QVariantList>& preference,
                                     const QList<qlonglong>& numbers) {
  return together(preference.key, [&] {
    return std::ranges::all_of(
        numbers, [&](qlonglong number) { return write(removeOne, preference.key, {}, number); });
  });
}

void PreferenceStore::setAside(const QString& key) {
  if (!contains(key)) return;
  QString aside;
  for (int n = 1; aside.isEmpty() || contains(aside); ++n) aside = key + ".unreadable-" + QString::number(n);
  print("set aside is the value of", key, aside);
  together(key,
           [&] { return write(renameValue, key, aside.toUtf8()) && write(renameAll, key, aside.toUtf8()); });
}

bool PreferenceStore::write(std::size_t statement, const QString& key, const QByteArray& text,
                            qlonglong number) {
  return Run(statements_[statement], key, text, number).isDone();
}

std::optional<qlonglong> PreferenceStore::prependOne(const QString& key, const QVariant& value) {
  Run run(statements_[prepend], key, encodePreference(value));
  if (!run.hasRow()) return std::nullopt;
  const qlonglong number = run.number(0);
  return run.isDone() ? std::optional(number) : std::nullopt;
}

bool PreferenceStore::dropElements(const QString& key) {
  return text(key) != arrayText() || write(removeAll, key);
}

// All of the changes or, when one fails or is a fatal stop, none of them.
bool PreferenceStore::together(const QString& key, const std::function<bool()>& changes) {
  sqlite3* const database = file_.database.get();
  const auto rollBack = qScopeGuard([database] {
    if (sqlite3_get_autocommit(database) == 0) executeSql(database, "ROLLBACK");
  });
  const bool isWritten = executeSql(database, "BEGIN IMMEDIATE") == SQLITE_OK && changes() &&
                         executeSql(database, "COMMIT") == SQLITE_OK;
  return report(key, isWritten);
}

bool PreferenceStore::report(const QString& key, bool isWritten) {
  sqlite3* const database = file_.database.get();
  // What is written into a file that was taken away is gone with this process.
  int isTakenAway = 0;
  sqlite3_file_control(database, "main", SQLITE_FCNTL_HAS_MOVED, &isTakenAway);
  if (isWritten && isTakenAway == 0) return true;
  print("cannot write", key, isTakenAway == 0 ? sqlite3_errmsg(database) : "the file is gone");
  isRefused_ = true;
  if (refusalHandler_) std::exchange(refusalHandler_, {})();
  return false;
}

}  // namespace tavi
