#include "shell/history/history_transfer.h"

#include <QCoroFuture>
#include <QDate>
#include <QDir>
#include <QPointer>
#include <QtConcurrentRun>
#include <utility>

#include "platform/localization.h"
#include "platform/picture_file.h"
#include "shell/frame/alert_controller.h"
#include "shell/frame/detached_task.h"
#include "shell/frame/file_saving.h"
#include "shell/frame/view_manager.h"

namespace tavi {

namespace {

constexpr QLatin1StringView ending{".json"};

QString words(HistoryFileFault fault) {
  switch (fault) {
    case HistoryFileFault::unreadable:
      return localized("historyUnreadable");
    case HistoryFileFault::tooLarge:
      return localized("historyTooLarge");
    case HistoryFileFault::noHistory:
      break;
  }
  return localized("historyNoHistory");
}

QDir documents() {
  return userFolder(QStandardPaths::DocumentsLocation);
}

}  // namespace

bool HistoryTransfer::hasFileDialog() {
  return tavi::hasFileDialog();
}

QUrl HistoryTransfer::folder() {
  return QUrl::fromLocalFile(documents().path());
}

QUrl HistoryTransfer::proposedFile() {
  const QString name = localized("Tavi Solver") + u' ' + localized("History") + u' ' +
                       QDate::currentDate().toString(Qt::ISODate);
  return QUrl::fromLocalFile(unusedFile(documents(), name, ending));
}

void HistoryTransfer::exportTo(const QUrl& file) {
  if (file.toLocalFile().isEmpty()) return say(localized("sharingNotWritable"));
  detached(write(withEnding(file.toLocalFile(), ending)));
}

void HistoryTransfer::importFrom(const QUrl& file) {
  if (file.isLocalFile())
    detached(read(file.toLocalFile()));
  else
    say(words(HistoryFileFault::unreadable));
}

void HistoryTransfer::chooseFile() {
  constexpr qsizetype most = 4;
  const QDir folder = documents();
  const QFileInfoList files =
      folder.entryInfoList({u'*' + QString(ending)}, QDir::Files | QDir::Readable, QDir::Time);
  if (files.isEmpty()) return say(localized("historyNoFile").arg(QDir::toNativeSeparators(folder.path())));
  std::vector<AlertAction> actions;
  for (const QFileInfo& file : files.first(std::min(most, files.size())))
    actions.push_back(
        {.title = file.completeBaseName(), .handler = [self = QPointer(this), path = file.filePath()] {
           if (self) self->importFrom(QUrl::fromLocalFile(path));
         }});
  actions.push_back({.title = localized("Cancel"), .style = AlertActionStyle::cancel});
  page_.presentAlert(localized("historyImport"), std::nullopt, std::move(actions), AlertStyle::actionSheet);
}

QCoro::Task<> HistoryTransfer::write(QString path) {
  const QPointer<HistoryTransfer> self(this);
  const auto work = [calculations = store_.calculations(), path] {
    return writeWhole(path, historyFile(calculations));
  };
  const QFuture<WriteResult> written = QtConcurrent::run(work);
  const WriteResult result = co_await written;
  if (result == WriteResult::written)
    ViewManager::showToast(localized("sharingSaved").arg(QDir::toNativeSeparators(path)));
  else if (self)
    self->say(failureWords(result));
}

QCoro::Task<> HistoryTransfer::read(QString path) {
  const QPointer<HistoryTransfer> self(this);
  const auto reading = QtConcurrent::run(readHistoryFileAt, path);
  const auto result = co_await reading;
  if (!self) co_return;
  if (const auto* calculations = std::get_if<QList<Calculation>>(&result))
    self->take(*calculations);
  else
    self->say(words(std::get<HistoryFileFault>(result)));
}

void HistoryTransfer::take(const QList<Calculation>& calculations) {
  const StoredCalculations appended = store_.appendCalculations(calculations);
  if (appended.isEmpty()) return ViewManager::showToast(localized("historyNothingNew"));
  notifications_.post(CalcManager::didRestoreCalculations);
  const auto undo = [&store = store_, &notifications = notifications_, appended] {
    store.withdrawCalculations(appended);
    notifications.post(CalcManager::didRestoreCalculations);
  };
  ViewManager::showToast(localized("historyImported").arg(appended.size()), {localized("Undo"), undo});
}

void HistoryTransfer::say(const QString& text) {
  page_.presentAlert(std::nullopt, text, {}, AlertStyle::alert);
}

}  // namespace tavi
