#include "platform/sqlite_file.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <filesystem>

#include <sqlite3.h>

namespace tavi {

namespace fs = std::filesystem;

namespace {

constexpr int busyMilliseconds = 2000;

// Every page is read once, so that a damaged file is noticed here and not by half of its readers.
constexpr const char* check = "PRAGMA quick_check(1)";
// A change is one append to a log and one flush, and what was acknowledged survives a power cut.
constexpr const char* makeDurable = "PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL";
constexpr std::array logSuffixes{"-wal", "-shm"};

// A database that is proven to be ours and readable, if there is one; the error tells why it cannot be
// written to.
struct Opened {
  SqliteDatabase database;
  int error = SQLITE_OK;
  const char* reason = sqlite3_errstr(error);
};

void print(const char* what, const QString& path, const char* why) {
  qInfo().noquote() << "Store:" << what << path + ':' << why;
}

QByteArray text(sqlite3* database, const char* sql) {
  const SqliteStatement statement = prepareSql(database, sql);
  if (sqlite3_step(statement.get()) != SQLITE_ROW) return {};
  return reinterpret_cast<const char*>(sqlite3_column_text(statement.get(), 0));
}

// An empty file is anybody's.
bool isOurs(sqlite3* database, const SqliteSchema& schema) {
  const int id = text(database, "PRAGMA application_id").toInt();
  if (id != 0) return id == schema.applicationId;
  const QByteArray tables = text(database, "SELECT group_concat(name, '|') FROM sqlite_schema");
  return tables.isEmpty() || tables.split('|').contains(schema.chiefTable);
}

int makeTables(sqlite3* database, const SqliteSchema& schema) {
  if (const int error = executeSql(database, schema.makeMissing); error != SQLITE_OK) return error;
  const bool isUnderstood = std::ranges::all_of(
      schema.statements, [&](const char* sql) { return prepareSql(database, sql) != nullptr; });
  if (!isUnderstood) return SQLITE_ERROR;
  const QByteArray id = QByteArray::number(schema.applicationId);
  if (text(database, "PRAGMA application_id") != id) {
    const int error = executeSql(database, ("PRAGMA application_id = " + id).constData());
    if (error != SQLITE_OK) return error;
  }
  return schema.upgrade(database);
}

int prepareForWriting(sqlite3* database, const SqliteSchema& schema) {
  if (sqlite3_db_readonly(database, "main") == 1) return SQLITE_READONLY;
  int error = executeSql(database, "BEGIN IMMEDIATE");
  if (error == SQLITE_OK) error = makeTables(database, schema);
  if (error == SQLITE_OK) error = executeSql(database, "COMMIT");
  if (error == SQLITE_OK) return executeSql(database, makeDurable);
  executeSql(database, "ROLLBACK");
  return error;
}

// A page of a database takes memory when it is read; SQLite would take it for twenty with each database
// opened. Once in the process, before the first is opened.
void takePagesOneByOne() {
  [[maybe_unused]] static const int error = sqlite3_config(SQLITE_CONFIG_PAGECACHE, nullptr, 0, 0);
}

// With its lock held for good SQLite needs no shared memory file beside the database, which cannot be made on
// a full disk.
Opened open(const QByteArray& path, const SqliteSchema& schema, bool isExclusive) {
  takePagesOneByOne();
  sqlite3* raw = nullptr;
  const int opening =
      sqlite3_open_v2(path.constData(), &raw, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
  SqliteDatabase database(raw);
  if (opening != SQLITE_OK) return {{}, opening};
  sqlite3_busy_timeout(raw, busyMilliseconds);
  sqlite3_db_config(raw, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  sqlite3_db_config(raw, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  sqlite3_db_config(raw, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
  if (isExclusive) executeSql(raw, "PRAGMA locking_mode = EXCLUSIVE");

  const QByteArray verdict = text(raw, check);
  if (verdict.isEmpty()) return {{}, sqlite3_errcode(raw)};
  if (verdict != "ok") return {{}, SQLITE_CORRUPT};
  if (!isOurs(raw, schema)) return {{}, SQLITE_ERROR, "it belongs to another application"};

  const int error = prepareForWriting(raw, schema);
  if (error == SQLITE_ERROR) return {{}, error};
  if (error == SQLITE_OK) sqlite3_db_config(raw, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 0, nullptr);
  return {std::move(database), error};
}

Opened open(const QByteArray& path, const SqliteSchema& schema) {
  Opened opened = open(path, schema, false);
  if (opened.error == SQLITE_OK) return opened;
  opened = {};
  return open(path, schema, true);
}

// A file that will never open, as against one that a full disk or another process keeps from opening now.
bool isHopeless(const QString& path, const Opened& opened) {
  const QFileInfo file(path);
  if (opened.database) return false;
  if (!file.exists()) return file.isSymLink();
  if (!file.isFile() || !file.isReadable()) return true;
  return opened.error == SQLITE_NOTADB || opened.error == SQLITE_CORRUPT || opened.error == SQLITE_ERROR;
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
  const std::array<std::string, 3> parts{logSuffixes[0], logSuffixes[1], ""};
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

// The contents of a file beside which nothing can be made, not even the files that reading needs.
Opened openCopy(const QString& path, const SqliteSchema& schema) {
  const QTemporaryDir folder;
  const QString copy = folder.filePath("copy");
  for (const QString& suffix : {QString(), QString(logSuffixes[0])}) {
    QFile::copy(path + suffix, copy + suffix);
    QFile::setPermissions(copy + suffix, QFile::ReadOwner | QFile::WriteOwner);
  }
  return open(QFile::encodeName(copy), schema);
}

// Whatever of the source can be read, and changeable.
SqliteDatabase inMemory(sqlite3* source, const SqliteSchema& schema) {
  SqliteDatabase memory = open(":memory:", schema, false).database;
  if (!source) return memory;
  sqlite3_backup* backup = sqlite3_backup_init(memory.get(), "main", source, "main");
  sqlite3_backup_step(backup, -1);
  const bool isCopied = sqlite3_backup_finish(backup) == SQLITE_OK;
  if (isCopied && prepareForWriting(memory.get(), schema) == SQLITE_OK) return memory;
  return open(":memory:", schema, false).database;
}

}  // namespace

void SqliteClose::operator()(sqlite3* database) const {
  sqlite3_close_v2(database);
}

void SqliteFinalize::operator()(sqlite3_stmt* statement) const {
  sqlite3_finalize(statement);
}

SqliteStatement prepareSql(sqlite3* database, const char* sql) {
  sqlite3_stmt* statement = nullptr;
  sqlite3_prepare_v2(database, sql, -1, &statement, nullptr);
  return SqliteStatement(statement);
}

int executeSql(sqlite3* database, const char* sql) {
  return sqlite3_exec(database, sql, nullptr, nullptr, nullptr);
}

SqliteFile openSqliteFile(const QString& path, const SqliteSchema& schema) {
  QDir().mkpath(QFileInfo(path).absolutePath());
  const QByteArray file = QFile::encodeName(path);
  Opened opened = open(file, schema);
  if (isHopeless(path, opened)) {
    print("set aside", path, opened.reason);
    if (setAside(file)) opened = open(file, schema);
  }
  if (opened.database && opened.error == SQLITE_OK) return {std::move(opened.database), true};
  print("nothing will be kept, since there is no writing to", path, opened.reason);
  if (!opened.database) opened = openCopy(path, schema);
  return {inMemory(opened.database.get(), schema), false};
}

}  // namespace tavi
