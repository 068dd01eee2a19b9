#pragma once

#include <QString>
#include <memory>
#include <span>

struct sqlite3;
struct sqlite3_stmt;

namespace tavi {

struct SqliteClose {
  void operator()(sqlite3* database) const;
};
struct SqliteFinalize {
  void operator()(sqlite3_stmt* statement) const;
};
using SqliteDatabase = std::unique_ptr<sqlite3, SqliteClose>;
using SqliteStatement = std::unique_ptr<sqlite3_stmt, SqliteFinalize>;

/// The statement; none if the database does not understand it.
SqliteStatement prepareSql(sqlite3* database, const char* sql);

/// Runs SQL without results; SQLITE_OK or what went wrong.
int executeSql(sqlite3* database, const char* sql);

/// By what a database is known as one of ours, and how it is made.
struct SqliteSchema {
  int applicationId;                        ///< Written into the file's header.
  const char* chiefTable;                   ///< By which a file of ours is known that has no such number yet.
  const char* makeMissing;                  ///< SQL that makes the tables that are not there.
  std::span<const char* const> statements;  ///< What a file of ours understands.
  int (*upgrade)(sqlite3*);                 ///< Brings older contents up to date; SQLITE_OK when it did.
};

struct SqliteFile {
  SqliteDatabase database;
  bool isDurable = true;  ///< False when it lives in memory only.
};

/// Opens or creates the file at the path, and the folders above it. Each change is on the disk, atomically,
/// when SQLite says that it is done.
///
/// A file that cannot be read or belongs to another application is renamed to "<path>.unreadable-<n>" and a
/// fresh one begun. Where nothing can be written, what is there is read into memory, and changes last until
/// the process ends. Both print one line.
SqliteFile openSqliteFile(const QString& path, const SqliteSchema& schema);

}  // namespace tavi
