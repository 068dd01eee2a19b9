#include "measurement/event_store.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <algorithm>
#include <limits>
#include <utility>

#include <sqlite3.h>

namespace tavi {
namespace {

// No lock is awaited and no flush, and little at a time goes from the log into the file, so that no call
// holds up the screen. With its lock held for good the file needs no shared memory beside it.
constexpr const char* prepareFile =
    "PRAGMA locking_mode = EXCLUSIVE; PRAGMA journal_mode = WAL; PRAGMA synchronous = OFF;"
    "PRAGMA wal_autocheckpoint = 50;"
    "BEGIN IMMEDIATE;"
    "CREATE TABLE IF NOT EXISTS events(id INTEGER PRIMARY KEY, record BLOB NOT NULL);"
    "CREATE TABLE IF NOT EXISTS notes(name TEXT PRIMARY KEY, value BLOB NOT NULL);"
    "COMMIT";

bool isDefective(int error) {
  return error == SQLITE_CORRUPT || error == SQLITE_NOTADB || error == SQLITE_ERROR ||
         error == SQLITE_CONSTRAINT;
}

// So many of the oldest go at once beyond a limit.
constexpr qint64 trimmedEvents = 16;

// No use comes near it.
constexpr qint64 numberLimit = std::numeric_limits<qint64>::max() / 2;

}  // namespace

void EventStore::Close::operator()(sqlite3* database) const {
  sqlite3_close_v2(database);
}
void EventStore::Finalize::operator()(sqlite3_stmt* statement) const {
  sqlite3_finalize(statement);
}

EventStore::EventStore(QString path, QByteArray kind) : path_(std::move(path)), kind_(std::move(kind)) {
  QDir().mkpath(QFileInfo(path_).absolutePath());
  open();
  if (!isThere()) qInfo().noquote() << "Measurement: nothing will be kept in" << path_;
}

void EventStore::open() {
  const bool isAfresh = std::exchange(isToOpen_, false);
  sqlite3* raw = nullptr;
  int error = sqlite3_open(QFile::encodeName(path_).constData(), &raw);
  database_.reset(raw);
  if (error == SQLITE_OK) {
    sqlite3_db_config(raw, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(raw, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    error = sqlite3_exec(raw, prepareFile, nullptr, nullptr, nullptr);
  }
  if (error == SQLITE_OK) error = readNumbers();
  if (error == SQLITE_OK) return;
  if (isDefective(error) && !isAfresh) return startAfresh();
  database_.reset();
}

// SQLITE_CORRUPT also where the numbers cannot be true, or the records are of another kind.
int EventStore::readNumbers() {
  // Each by itself is looked up; both of one table would be looked for.
  sqlite3_stmt* raw = nullptr;
  int error =
      sqlite3_prepare_v2(database_.get(), "SELECT (SELECT min(id) FROM events), (SELECT max(id) FROM events)",
                         -1, &raw, nullptr);
  const Statement statement(raw);
  if (error == SQLITE_OK) error = sqlite3_step(raw);
  if (error != SQLITE_ROW) return error;
  const bool isOfKind = note("kind") == kind_;
  if (sqlite3_column_type(raw, 0) == SQLITE_NULL) {
    if (!isOfKind) setNote("kind", kind_);
    return SQLITE_OK;
  }
  const qint64 first = sqlite3_column_int64(raw, 0);
  const qint64 last = sqlite3_column_int64(raw, 1);
  if (!isOfKind || first < 1 || last > numberLimit || last - first > eventLimit + trimmedEvents)
    return SQLITE_CORRUPT;
  firstId_ = first;
  lastId_ = last;
  return SQLITE_OK;
}

// Whoever deletes the file, be it another process for which the user has withdrawn, does not want it kept.
bool EventStore::isThere() {
  if (isToOpen_) open();
  int hasMoved = 0;
  if (database_) sqlite3_file_control(database_.get(), "main", SQLITE_FCNTL_HAS_MOVED, &hasMoved);
  if (hasMoved != 0) {
    database_.reset();
    firstId_ = lastId_ + 1;
  }
  return database_ != nullptr;
}

// To delete a full file and to make a new one at once would hold up the screen too long.
void EventStore::startAfresh() {
  if (database_) sqlite3_db_config(database_.get(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
  database_.reset();
  firstId_ = lastId_ + 1;
  isToOpen_ = discard(path_);
}

bool EventStore::run(const char* sql, const std::vector<QByteArray>& values) {
  if (!isThere()) return false;
  sqlite3_stmt* raw = nullptr;
  int error = sqlite3_prepare_v2(database_.get(), sql, -1, &raw, nullptr);
  {
    const Statement statement(raw);
    for (std::size_t i = 0; error == SQLITE_OK && i < values.size(); ++i) {
      error = sqlite3_bind_blob64(raw, static_cast<int>(i) + 1, values[i].constData(),
                                  static_cast<sqlite3_uint64>(values[i].size()), SQLITE_STATIC);
    }
    if (error == SQLITE_OK) error = sqlite3_step(raw);
  }
  if (error == SQLITE_DONE) return true;
  if (isDefective(error)) startAfresh();
  return false;
}

void EventStore::add(const QByteArray& record) {
  if (record.size() > byteLimit || !isThere()) return;
  if (!run("INSERT INTO events(id, record) VALUES(CAST(?1 AS INTEGER), ?2)",
           {QByteArray::number(lastId_ + 1), record}))
    return;
  ++lastId_;
  while (count() > 1 && (count() > eventLimit || usedBytes() > byteLimit))
    remove(std::min(firstId_ + trimmedEvents, lastId_) - 1);
  // What fills the file is something else.
  if (count() == 1 && usedBytes() > byteLimit) startAfresh();
}

qint64 EventStore::usedBytes() {
  sqlite3_stmt* raw = nullptr;
  sqlite3_prepare_v2(database_.get(),
                     "SELECT (page_count - freelist_count) * page_size "
                     "FROM pragma_page_count, pragma_freelist_count, pragma_page_size",
                     -1, &raw, nullptr);
  const Statement statement(raw);
  return sqlite3_step(raw) == SQLITE_ROW ? sqlite3_column_int64(raw, 0) : 0;
}

EventBatch EventStore::batch(int events, qsizetype bytes) {
  EventBatch batch;
  if (!isThere()) return batch;
  sqlite3_stmt* raw = nullptr;
  int error =
      sqlite3_prepare_v2(database_.get(), "SELECT id, record FROM events ORDER BY id", -1, &raw, nullptr);
  {
    const Statement statement(raw);
    while (std::ssize(batch.records) < events && (error = sqlite3_step(raw)) == SQLITE_ROW) {
      const auto* data = static_cast<const char*>(sqlite3_column_blob(raw, 1));
      const QByteArray record(data, sqlite3_column_bytes(raw, 1));
      bytes -= record.size() + 1;
      if (bytes < 0 && !batch.records.empty()) break;
      batch.records.push_back(record);
      batch.lastId = sqlite3_column_int64(raw, 0);
    }
  }
  if (!isDefective(error)) return batch;
  startAfresh();
  return {};
}

void EventStore::remove(qint64 lastId) {
  if (!database_) return;
  if (!run("DELETE FROM events WHERE id <= CAST(?1 AS INTEGER)", {QByteArray::number(lastId)}))
    return startAfresh();
  firstId_ = std::max(firstId_, std::min(lastId, lastId_) + 1);
}

QByteArray EventStore::note(const char* name) {
  if (!isThere()) return {};
  sqlite3_stmt* raw = nullptr;
  sqlite3_prepare_v2(database_.get(), "SELECT value FROM notes WHERE name = ?1", -1, &raw, nullptr);
  const Statement statement(raw);
  sqlite3_bind_text(raw, 1, name, -1, SQLITE_STATIC);
  if (sqlite3_step(raw) != SQLITE_ROW) return {};
  const auto* data = static_cast<const char*>(sqlite3_column_blob(raw, 0));
  return {data, sqlite3_column_bytes(raw, 0)};
}

void EventStore::setNote(const char* name, const QByteArray& value) {
  run("INSERT INTO notes(name, value) VALUES(CAST(?1 AS TEXT), ?2) ON CONFLICT(name) DO UPDATE SET value = "
      "excluded.value",
      {name, value});
}

SendState EventStore::sendState() {
  return {.notBefore = std::max<qint64>(note("notBefore").toLongLong(), 0),
          .failures = std::clamp(note("failures").toInt(), 0, SendState::failureLimit)};
}

void EventStore::setSendState(const SendState& state) {
  setNote("notBefore", QByteArray::number(state.notBefore));
  setNote("failures", QByteArray::number(state.failures));
}

QByteArray EventStore::dailyNumber(const QDate& today) {
  const QByteArray day = today.toString(Qt::ISODate).toLatin1();
  const QByteArray kept = note("daily");
  if (kept.startsWith(day + ' ')) return kept.mid(day.size() + 1);
  QByteArray number =
      QByteArray::number(QRandomGenerator::system()->generate64(), 16).rightJustified(16, '0');
  setNote("daily", day + ' ' + number);
  return number;
}

bool EventStore::discard(const QString& path) {
  bool isGone = true;
  for (const char* part : {"", "-wal", "-shm", "-journal"}) {
    const QString file = path + part;
    isGone = (QFile::remove(file) || QFile::resize(file, 0) || !QFileInfo::exists(file)) && isGone;
  }
  return isGone;
}

}  // namespace tavi
