#include "platform/store_children.h"

#include <QCoreApplication>
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
#include "platform/single_instance.h"
#include "platform/test_support.h"

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
  const Preference<QVariantList> list{QLatin1StringView("list")};
  PreferenceStore store(path);
  if (!store.contains(list)) store.setValue(list, QVariantList());
  for (qlonglong n = store.value(list).size() + 1;; ++n) {
    if (!store.prependElement(list, n)) return fail("not written");
    std::printf("%lld\n", n);
    std::fflush(stdout);
  }
}

int writeAndDie(const QString& path) {
  PreferenceStore store(path);
  if (!store.setValue("key", "kept")) return fail("not written");
  _exit(0);
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

int holdInstance(const QString& folder) {
  SingleInstance instance(folder);
  if (!instance.isFirst()) return fail("not the first");
  std::puts("first");
  std::fflush(stdout);
  return QCoreApplication::exec();
}

bool becomeAnotherUser() {
  constexpr uid_t nobody = 65534;
  return geteuid() != 0 || setuid(nobody) == 0;
}

// Where nothing can be written: what is there is read, and changes live as long as the store.
int openReadOnly(const QString& path) {
  if (!becomeAnotherUser()) return childCannotRun;
  PreferenceStore store(path);
  int refusals = 0;
  store.setRefusalHandler([&refusals] { ++refusals; });
  if (store.isDurable() || refusals != 1) return fail("it does not say that nothing is kept");
  if (store.variant("key") != "kept") return fail("what is there is hidden");
  if (!store.setValue("key", "changed") || store.variant("key") != "changed")
    return fail("nothing can be changed in memory");
  if (PreferenceStore(path).variant("key") != "kept") return fail("it is kept");
  return 0;
}

// An array of the old form on a disk on which there is no room to split it.
int openOldFormOnFullDisk(const QString& folder) {
  if (!mountSmallDisk(folder)) return childCannotRun;
  const QString path = folder + "/preferences.sqlite";
  PreferenceStore(path).setValue("array", "");
  const QByteArray element = '"' + QByteArray(100'000, 'x') + '"';
  runSql(path, "UPDATE preferences SET value = '[[" + element + ',' + element + "]]'");
  QFile rest(folder + "/rest");
  if (!rest.open(QFile::WriteOnly | QFile::Unbuffered)) return fail("no file");
  while (rest.write(QByteArray(4096, 'x')) > 0 || rest.write("x") > 0) continue;

  PreferenceStore store(path);
  if (store.isDurable()) return fail("it says that it keeps something");
  return store.variant("array").toList().size() == 2 ? 0 : fail("what is there is hidden");
}

// As a user to whom the file is closed; the folder is open.
int openWithoutPermission(const QString& path) {
  if (!becomeAnotherUser()) return childCannotRun;
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
                                                        {"write-and-die", writeAndDie},
                                                        {"fill-file", fillFile},
                                                        {"fill-disk", fillDisk},
                                                        {"old-form-full-disk", openOldFormOnFullDisk},
                                                        {"hold-instance", holdInstance},
                                                        {"read-only", openReadOnly},
                                                        {"no-permission", openWithoutPermission}};
  return children.contains(name) ? children[name](path) : fail("no such child");
}

}  // namespace tavi
