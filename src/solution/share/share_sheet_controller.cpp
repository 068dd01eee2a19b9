#include "solution/share/share_sheet_controller.h"

#include <QClipboard>
#include <QCoroFuture>
#include <QDateTime>
#include <QDir>
#include <QGuiApplication>
#include <QPointer>
#include <QStandardPaths>
#include <QtConcurrentRun>
#include <utility>

#include "platform/localization.h"
#include "platform/picture_file.h"
#include "shell/frame/detached_task.h"
#include "shell/frame/view_manager.h"

namespace tavi {

namespace {

QString failureWords(WriteResult result) {
  switch (result) {
    case WriteResult::noRoom:
      return localized("sharingNoRoom");
    case WriteResult::notWritable:
      return localized("sharingNotWritable");
    case WriteResult::written:
      break;
  }
  return {};
}

}  // namespace

ShareSheetController::ShareSheetController(QImage picture, const Links& links)
    : picture_(std::move(picture)), links_(links) {}

QUrl ShareSheetController::picturesFolder() {
  const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
  return QUrl::fromLocalFile(QDir(pictures).exists() ? pictures : QDir::homePath());
}

QUrl ShareSheetController::proposedFile() {
  const QString moment = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH.mm.ss"));
  const QString name = localized("sharingFileName") + ' ' + moment + QStringLiteral(".png");
  return QUrl::fromLocalFile(QDir(picturesFolder().toLocalFile()).filePath(name));
}

double ShareSheetController::pictureRatio() const {
  return static_cast<double>(picture_.width()) / std::max(1, picture_.height());
}

void ShareSheetController::savePicture(const QUrl& file) {
  QString path = file.toLocalFile();
  if (path.isEmpty()) return setState(false, localized("sharingNotWritable"));
  if (!path.endsWith(QStringLiteral(".png"), Qt::CaseInsensitive)) path += QStringLiteral(".png");
  detached(write(path, [this] { goWith("sharingSaved"); }));
}

void ShareSheetController::copyPicture() {
  QGuiApplication::clipboard()->setImage(picture_);
  goWith("sharingCopied");
}

void ShareSheetController::openPicture() {
  // One file for all pictures, so that none are left behind.
  const QDir cache(QStandardPaths::writableLocation(QStandardPaths::CacheLocation));
  cache.mkpath(QStringLiteral("."));
  const QString path = cache.filePath(localized("sharingFileName") + QStringLiteral(".png"));
  detached(write(path, [this, path] {
    if (links_.openFile(path))
      close();
    else
      setState(false, localized("sharingNoViewer"));
  }));
}

void ShareSheetController::close() {
  dismiss();
}

QCoro::Task<> ShareSheetController::write(QString path, std::function<void()> whenWritten) {
  if (isBusy_) co_return;
  setState(true, {});
  const QPointer<ShareSheetController> self(this);
  const auto work = [picture = picture_, path] { return writeWhole(path, pngBytes(picture)); };
  const QFuture<WriteResult> written = QtConcurrent::run(work);
  const WriteResult result = co_await written;
  if (!self) co_return;
  setState(false, failureWords(result));
  if (result == WriteResult::written) whenWritten();
}

void ShareSheetController::setState(bool isBusy, const QString& failure) {
  isBusy_ = isBusy;
  failure_ = failure;
  emit changed();
}

void ShareSheetController::goWith(const char* toastKey) {
  close();
  ViewManager::showToast(localized(toastKey));
}

}  // namespace tavi
