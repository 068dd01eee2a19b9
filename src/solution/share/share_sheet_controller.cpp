#include "solution/share/share_sheet_controller.h"

#include <QClipboard>
#include <QCoroFuture>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPointer>
#include <QStandardPaths>
#include <QtConcurrentRun>
#include <utility>

#include <private/qguiapplication_p.h>

#include <qpa/qplatformtheme.h>

#include "platform/localization.h"
#include "platform/picture_file.h"
#include "shell/frame/detached_task.h"
#include "shell/frame/view_manager.h"

namespace tavi {

namespace {

constexpr QLatin1StringView pictureEnding{".png"};

/// The words as a file may be called everywhere: letters, digits and blanks, and no longer than is easily
/// read.
QString fileName(const QString& words) {
  constexpr int longest = 60;
  QString name;
  for (const QChar character : words)
    name += character.isLetterOrNumber() || character.isMark() ? character : u' ';
  name = name.simplified();
  if (name.size() > longest)
    name.truncate(name.lastIndexOf(u' ', longest) > 0 ? name.lastIndexOf(u' ', longest) : longest);
  return name.isEmpty() ? localized("sharingFileName") : localized("sharingFileName") + u' ' + name;
}

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

ShareSheetController::ShareSheetController(QImage picture, QString subject, const Links& links)
    : picture_(std::move(picture)), subject_(std::move(subject)), links_(links) {}

QUrl ShareSheetController::proposedFile() const {
  const QDir pictures(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation));
  const QDir folder = pictures.exists() ? pictures : QDir::home();
  const QString name = fileName(subject_);
  QString file = folder.filePath(name + pictureEnding);
  for (int number = 2; QFileInfo::exists(file); ++number)
    file = folder.filePath(QStringLiteral("%1 (%2)").arg(name).arg(number) + pictureEnding);
  return QUrl::fromLocalFile(file);
}

bool ShareSheetController::hasSaveDialog() {
  const QPlatformTheme* theme = QGuiApplicationPrivate::platformTheme();
  return theme && theme->usePlatformNativeDialog(QPlatformTheme::FileDialog);
}

double ShareSheetController::pictureRatio() const {
  return static_cast<double>(picture_.width()) / std::max(1, picture_.height());
}

void ShareSheetController::savePicture() {
  savePictureAs(proposedFile());
}

void ShareSheetController::savePictureAs(const QUrl& file) {
  QString path = file.toLocalFile();
  if (path.isEmpty()) return setState(false, localized("sharingNotWritable"));
  if (!path.endsWith(pictureEnding, Qt::CaseInsensitive)) path += pictureEnding;
  detached(
      write(path, [this, path] { goWith(localized("sharingSaved").arg(QDir::toNativeSeparators(path))); }));
}

void ShareSheetController::copyPicture() {
  QGuiApplication::clipboard()->setImage(picture_);
  goWith(localized("sharingCopied"));
}

void ShareSheetController::openPicture() {
  // One file for all pictures, so that none are left behind.
  const QDir cache(QStandardPaths::writableLocation(QStandardPaths::CacheLocation));
  cache.mkpath(QStringLiteral("."));
  const QString path = cache.filePath(localized("sharingFileName") + pictureEnding);
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

void ShareSheetController::goWith(const QString& toast) {
  close();
  ViewManager::showToast(toast);
}

}  // namespace tavi
