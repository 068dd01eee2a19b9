#include "platform/store_children.h"

#include <QDateTime>
#include <QFile>
#include <QMap>
#include <csignal>
#include <cstdio>
#include <limits>

#include <sched.h>
#include <sys/mman.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/preference_store.h"

namespace tavi {
namespace {

int fail(const char* what) {
  std::fprintf(stderr, "child: %s\n", what);
  return 1;
}

int writeKinds(const QString& path) {
  PreferenceStore store(path);
  const QVariantList values = valuesOfEveryKind();
  for (qsizetype i = 0; i < values.size(); ++i)
    if (!store.setValue(QString::number(i), values[i])) return fail("not written");
  return 0;
}

// Tells each acknowledged write on the standard output, until it is killed.
int countUp(const QString& path) {
  PreferenceStore store(path);
  QVariantList list = store.variant("list").toList();
  for (qlonglong n = list.size() + 1;; ++n) {
    list.prepend(QVariantMap{{"number", n}});
    if (!store.setValue("list", list)) return fail("not written");
    std::printf("%lld\n", n);
    std::fflush(stdout);
  }
}

// Fills the file up to a limit of its size, as a full disk does, and goes on reading what was acknowledged.
int fillFile(const QString& path) {
  std::signal(SIGXFSZ, SIG_IGN);
  const rlimit limit{256 * 1024, 256 * 1024};
  setrlimit(RLIMIT_FSIZE, &limit);
  PreferenceStore store(path);
  qlonglong acknowledged = 0;
  while (acknowledged < 100'000 &&
         store.setValue(QStringLiteral("key %1").arg(acknowledged), QString(500, u'x')))
    ++acknowledged;
  std::printf("%lld\n", acknowledged);
  return store.contains("key 0") ? 0 : fail("the first value is gone");
}

bool mountSmallDisk(const QString& folder) {
  if (unshare(geteuid() == 0 ? CLONE_NEWNS : CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
  mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr);
  return mount("tmpfs", QFile::encodeName(folder).constData(), "tmpfs", 0, "size=400k") == 0;
}

// Writes until the disk refuses and ends like a killed process, without tidying; answers how many were
// acknowledged.
qlonglong fillStoreAndDie(const QString& path) {
  void* const shared =
      mmap(nullptr, sizeof(qlonglong), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  auto& acknowledged = *static_cast<qlonglong*>(shared);
  const pid_t child = fork();
  if (child == 0) {
    PreferenceStore store(path);
    while (store.setValue(QStringLiteral("key %1").arg(acknowledged), QString(500, u'x'))) ++acknowledged;
    _exit(0);
  }
  waitpid(child, nullptr, 0);
  return acknowledged;
}

int fillDisk(const QString& folder) {
  if (!mountSmallDisk(folder)) return childCannotRun;
  const QString path = folder + "/preferences.sqlite";
  QFile ballast(folder + "/ballast");
  QFile rest(folder + "/rest");
  if (!ballast.open(QFile::WriteOnly) || !rest.open(QFile::WriteOnly | QFile::Unbuffered))
    return fail("no files");
  ballast.write(QByteArray(100'000, 'x'));
  ballast.flush();
  const qlonglong acknowledged = fillStoreAndDie(path);
  if (acknowledged < 10) return fail("the disk is full at once");
  // A restart finds no shared memory file, and there is no room to make one.
  QFile::remove(path + "-shm");
  while (rest.write(QByteArray(4096, 'x')) > 0 || rest.write("x") > 0) continue;

  PreferenceStore store(path);
  if (!store.isDurable()) return fail("the store does not open on a full disk");
  for (qlonglong i = 0; i < acknowledged; ++i)
    if (store.variant(QStringLiteral("key %1").arg(i)) != QString(500, u'x'))
      return fail("an acknowledged value is gone");
  if (QFile::exists(path + ".unreadable-1")) return fail("a good file was set aside");

  ballast.remove();
  return store.setValue("after", true) ? 0 : fail("no writing after the disk has room again");
}

// As a user to whom the file is closed; the folder is open.
int openWithoutPermission(const QString& path) {
  constexpr uid_t nobody = 65534;
  if (geteuid() == 0 && setuid(nobody) != 0) return childCannotRun;
  PreferenceStore store(path);
  if (!store.isDurable() || !store.setValue("key", true)) return fail("no fresh store");
  return QFile::exists(path + ".unreadable-1") ? 0 : fail("not set aside");
}

}  // namespace

QVariantList valuesOfEveryKind() {
  const QDateTime date = QDateTime::fromMSecsSinceEpoch(1'700'000'000'123, Qt::UTC);
  return {QString(),
          "3/2",
          "1",
          "true",
          QString("line\n\"quoted\" \\frac π 𝜋 ") + QChar(0),
          QString(QChar(0xD800)),
          0LL,
          std::numeric_limits<qlonglong>::min(),
          std::numeric_limits<qlonglong>::max(),
          true,
          false,
          date,
          QDateTime::fromMSecsSinceEpoch(-1, Qt::UTC),
          QVariantList(),
          QVariantList{"1", 1LL, true, date, QVariantList{QVariantList()}},
          QVariantMap(),
          QVariantMap{{"", "empty key"}, {"$date", 5LL}},
          QVariantMap{{"$date", 5LL}},
          QVariantMap{{"$$date", "x"}, {"$", QVariantMap{{"$i", "1"}}}}};
}

int runStoreChild(const QString& name, const QString& path) {
  const QMap<QString, int (*)(const QString&)> children{{"write-kinds", writeKinds},
                                                        {"count-up", countUp},
                                                        {"fill-file", fillFile},
                                                        {"fill-disk", fillDisk},
                                                        {"no-permission", openWithoutPermission}};
  return children.contains(name) ? children[name](path) : fail("no such child");
}

}  // namespace tavi
