#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <memory>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace tavi {

/// What waits to be sent, oldest first, and up to which number of the store.
struct EventBatch {
  std::vector<QByteArray> records;
  qint64 lastId = 0;
};

/// When to send again, and how often it failed; kept, so that a new start does not knock at once again.
struct SendState {
  qint64 notBefore = 0;  ///< Milliseconds since 1970; 0 for any time.
  int failures = 0;      ///< In a row; an attempt that is on its way is one.

  static constexpr int failureLimit = 20;
};

/// Events in a database file of their own. An event is in the file when `add` returns, and there it outlives
/// the process; a power cut may cost the file, which then begins afresh, as a defective one does: nothing
/// here waits for the disk. One process at a time has it; to another, and where there is no file to be had or
/// the file is taken away, nothing is kept. Main thread only.
class EventStore {
 public:
  static constexpr qint64 eventLimit = 10'000;
  static constexpr qint64 byteLimit = 5LL * 1024 * 1024;

  /// Opens or creates the file at the path. One with records of another kind begins afresh.
  explicit EventStore(QString path, QByteArray kind = {});

  /// Keeps a record. Beyond a limit the oldest go.
  void add(const QByteArray& record);

  /// The oldest records, as many as both limits allow, but one at least. Of bytes each takes one more, for
  /// what stands between two.
  EventBatch batch(int events, qsizetype bytes);

  /// Forgets the records up to that number. They never come back in a batch, even from a file that cannot be
  /// written any more.
  void remove(qint64 lastId);

  /// How many are kept, or more where a defect took some out of the middle.
  qint64 count() const { return lastId_ - firstId_ + 1; }

  SendState sendState();
  void setSendState(const SendState& state);

  /// The random number of the day (UTC); another tomorrow.
  QByteArray dailyNumber(const QDate& today);

  /// Deletes the file at the path and what belongs to it, or empties it where its folder lets nothing go.
  /// False when something of it stays.
  static bool discard(const QString& path);

 private:
  struct Close {
    void operator()(sqlite3* database) const;
  };
  struct Finalize {
    void operator()(sqlite3_stmt* statement) const;
  };
  using Statement = std::unique_ptr<sqlite3_stmt, Finalize>;

  void open();
  int readNumbers();
  bool isThere();
  void startAfresh();
  bool run(const char* sql, const std::vector<QByteArray>& values);
  QByteArray note(const char* name);
  void setNote(const char* name, const QByteArray& value);
  qint64 usedBytes();

  QString path_;
  QByteArray kind_;
  std::unique_ptr<sqlite3, Close> database_;
  bool isToOpen_ = false;  // A file that begins afresh is made when it is used next.
  // Of the records that are kept; without one, the first is behind the last. They go on over a fresh file, so
  // that an acknowledgement that comes late meets no record which came later.
  qint64 firstId_ = 1;
  qint64 lastId_ = 0;
};

}  // namespace tavi
