#include "platform/preference_store.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <array>
#include <filesystem>

#include <sqlite3.h>

#include "platform/preference_codec.h"

namespace tavi {

namespace fs = std::filesystem;

namespace {

using Database = PreferenceStore::Database;
using Statement = PreferenceStore::Statement;

struct Opened {
  Database database;
  int error = SQLITE_OK;
};

constexpr int busyMilliseconds = 2000;

// Every page is read once, so that a damaged file is noticed here and not by half of its readers.
constexpr const char* check = "PRAGMA quick_check(1)";
constexpr const char* makeTable =
    "CREATE TABLE IF NOT EXISTS preferences(key TEXT PRIMARY KEY NOT NULL, value TEXT NOT NULL)";
// A change is one append to a log and one flush, and what was acknowledged survives a power cut.
constexpr const char* makeDurable = "PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL";
constexpr const char* readValue = "SELECT value FROM preferences WHERE key = ?1";
constexpr const char* writeValue =
    "INSERT INTO preferences(key, value) VALUES(?1, ?2) ON CONFLICT(key) DO UPDATE SET value = "
    "excluded.value";
constexpr const char* removeValue = "DELETE FROM preferences WHERE key = ?1";

void print(const char* what, const QString& where, const QString& why) {
  qInfo().noquote() << "Preference store:" << what << where + ':' << why;
}

int execute(sqlite3* database, const char* sql) {
  return sqlite3_exec(database, sql, nullptr, nullptr, nullptr);
}

Statement prepared(sqlite3* database, const char* sql) {
  sqlite3_stmt* statement = nullptr;
  sqlite3_prepare_v2(database, sql, -1, &statement, nullptr);
  return Statement(statement);
}

// The text must live until the statement is reset.
void bind(sqlite3_stmt* statement, int index, const QByteArray& text) {
  sqlite3_bind_text64(statement, index, text.constData(), static_cast<sqlite3_uint64>(text.size()),
                      SQLITE_STATIC, SQLITE_UTF8);
}

QByteArray firstColumn(sqlite3_stmt* statement) {
  // SQLite asks for this order: the text first, then its size.
  const unsigned char* text = sqlite3_column_text(statement, 0);
  const int size = sqlite3_column_bytes(statement, 0);
  return {reinterpret_cast<const char*>(text), size};
}

// Opens the file and proves that all of it can be read and that it is a store of ours. With its lock held for
// good SQLite needs no shared memory file beside the database, which cannot be made on a full disk.
Opened openDatabase(const QByteArray& path, bool isExclusive) {
  sqlite3* raw = nullptr;
  const int opening =
      sqlite3_open_v2(path.constData(), &raw, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
  Database database(raw);
  if (opening != SQLITE_OK) return {{}, opening};
  sqlite3_busy_timeout(raw, busyMilliseconds);
  sqlite3_db_config(raw, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  sqlite3_db_config(raw, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  sqlite3_db_config(raw, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
  if (isExclusive) execute(raw, "PRAGMA locking_mode = EXCLUSIVE");
  const Statement checking = prepared(raw, check);
  if (sqlite3_step(checking.get()) != SQLITE_ROW) return {{}, sqlite3_errcode(raw)};
  if (firstColumn(checking.get()) != "ok") return {{}, SQLITE_CORRUPT};
  sqlite3_reset(checking.get());
  if (const int error = execute(raw, makeTable); error != SQLITE_OK) return {{}, error};
  for (const char* sql : {readValue, writeValue, removeValue})
    if (!prepared(raw, sql)) return {{}, SQLITE_ERROR};
  if (const int error = execute(raw, makeDurable); error != SQLITE_OK) return {{}, error};
  sqlite3_db_config(raw, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 0, nullptr);
  return {std::move(database)};
}

Opened openDatabase(const QByteArray& path) {
  Opened opened = openDatabase(path, false);
  return opened.database ? std::move(opened) : openDatabase(path, true);
}

// A file that will never open, as against one that a full disk or another process keeps from opening now.
bool isUnreadable(const QString& path, int error) {
  const QFileInfo file(path);
  if (!file.exists()) return file.isSymLink();
  if (!file.isFile() || !file.isReadable()) return true;
  return error == SQLITE_NOTADB || error == SQLITE_CORRUPT || error == SQLITE_ERROR;
}

bool isTaken(const fs::path& path) {
  std::error_code ignored;
  return fs::exists(fs::symlink_status(path, ignored));
}

fs::path with(fs::path path, const std::string& suffix) {
  return path += suffix;
}

// The log of changes belongs to the database and goes with it, before it: SQLite deletes one that stands
// alone.
bool setAside(const QByteArray& path) {
  const fs::path file = path.toStdString();
  const std::array<std::string, 3> parts{"-wal", "-shm", ""};
  std::string mark;
  for (int n = 1; mark.empty(); ++n) {
    const std::string candidate = ".unreadable-" + std::to_string(n);
    bool isFree = true;
    for (const std::string& part : parts) isFree = isFree && !isTaken(with(file, candidate + part));
    if (isFree) mark = candidate;
  }
  std::error_code error;
  for (const std::string& part : parts)
    if (isTaken(with(file, part))) fs::rename(with(file, part), with(file, mark + part), error);
  return !isTaken(file);
}

}  // namespace

void PreferenceStore::Close::operator()(sqlite3* database) const {
  sqlite3_close_v2(database);
}
void PreferenceStore::Finalize::operator()(sqlite3_stmt* statement) const {
  sqlite3_finalize(statement);
}

PreferenceStore& PreferenceStore::standard() {
  static PreferenceStore store(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
                               "/preferences.sqlite");
  return store;
}

PreferenceStore::PreferenceStore(const QString& path) {
  QDir().mkpath(QFileInfo(path).absolutePath());
  const QByteArray file = QFile::encodeName(path);
  Opened opened = openDatabase(file);
  if (!opened.database && isUnreadable(path, opened.error)) {
    print("set aside", path, sqlite3_errstr(opened.error));
    if (setAside(file)) opened = openDatabase(file);
  }
  if (!opened.database) {
    print("nothing will be kept, since there is no access to", path, sqlite3_errstr(opened.error));
    isDurable_ = false;
    opened = openDatabase(":memory:", false);
  }
  database_ = std::move(opened.database);
  read_ = prepared(database_.get(), readValue);
  write_ = prepared(database_.get(), writeValue);
  remove_ = prepared(database_.get(), removeValue);
}

std::optional<QByteArray> PreferenceStore::text(const QString& key) const {
  const QByteArray name = key.toUtf8();
  bind(read_.get(), 1, name);
  std::optional<QByteArray> found;
  const int step = sqlite3_step(read_.get());
  if (step == SQLITE_ROW) found = firstColumn(read_.get());
  if (step != SQLITE_ROW && step != SQLITE_DONE) print("cannot read", key, sqlite3_errmsg(database_.get()));
  sqlite3_reset(read_.get());
  sqlite3_clear_bindings(read_.get());
  return found;
}

bool PreferenceStore::write(const QString& key, const QByteArray& text) {
  bind(write_.get(), 2, text);
  return change(write_.get(), key);
}

bool PreferenceStore::change(sqlite3_stmt* statement, const QString& key) {
  const QByteArray name = key.toUtf8();
  bind(statement, 1, name);
  const bool isDone = sqlite3_step(statement) == SQLITE_DONE;
  if (!isDone) print("cannot write", key, sqlite3_errmsg(database_.get()));
  sqlite3_reset(statement);
  sqlite3_clear_bindings(statement);
  return isDone;
}

bool PreferenceStore::contains(const QString& key) const {
  return text(key).has_value();
}

QVariant PreferenceStore::variant(const QString& key) const {
  const std::optional<QByteArray> stored = text(key);
  if (!stored) return {};
  const std::optional<QVariant> value = decodePreference(*stored);
  if (!value) print("not understood is the value of", key, QString::fromUtf8(stored->left(80)));
  return value.value_or(QVariant());
}

bool PreferenceStore::setValue(const QString& key, const QVariant& value) {
  return value.isValid() ? write(key, encodePreference(value)) : remove(key);
}

bool PreferenceStore::setArray(const Preference<QVariantList>& preference, qsizetype count,
                               const std::function<QVariant(qsizetype)>& element) {
  return write(preference.key, encodePreferenceArray(count, element));
}

bool PreferenceStore::remove(const QString& key) {
  return change(remove_.get(), key);
}

}  // namespace tavi
