#include "solution/share/share_sheet_controller.h"

#include <QClipboard>
#include <QCoroFuture>
#include <QDir>
#include <QGuiApplication>
#include <QMimeData>
#include <QPointer>
#include <QStandardPaths>
#include <QtConcurrentRun>
#include <memory>
#include <utility>

#include "platform/localization.h"
#include "platform/picture_file.h"
#include "shell/frame/detached_task.h"
#include "shell/frame/file_saving.h"
#include "solution/share/working_copies.h"

namespace tavi {

namespace {

/// How files of a format are named and where they are kept.
struct FileKind {
  QLatin1StringView ending;
  QLatin1StringView mimeType;
  QStandardPaths::StandardLocation location;
};

FileKind fileKind(ShareSheetController::Format format) {
  switch (format) {
    case ShareSheetController::Format::Pdf:
      return {QLatin1StringView(".pdf"), QLatin1StringView("application/pdf"),
              QStandardPaths::DocumentsLocation};
    case ShareSheetController::Format::Svg:
      return {QLatin1StringView(".svg"), QLatin1StringView("image/svg+xml"),
              QStandardPaths::PicturesLocation};
    default:
      return {QLatin1StringView(".png"), QLatin1StringView("image/png"), QStandardPaths::PicturesLocation};
  }
}

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

}  // namespace

ShareSheetController::ShareSheetController(SharedWorking working, const Links& links)
    : working_(std::move(working)), links_(links) {
  setPresentationStyle(PresentationStyle::ActionSheet);
}

QString ShareSheetController::title() const {
  return localized("shareButton");
}

void ShareSheetController::setFormat(Format format) {
  format_ = format;
  setState(isBusy_, {});
}

QUrl ShareSheetController::proposedFile() const {
  const FileKind kind = fileKind(format_);
  return QUrl::fromLocalFile(unusedFile(userFolder(kind.location), fileName(working_.subject), kind.ending));
}

bool ShareSheetController::hasSaveDialog() {
  return hasFileDialog();
}

void ShareSheetController::save() {
  saveAs(proposedFile());
}

void ShareSheetController::saveAs(const QUrl& file) {
  if (file.toLocalFile().isEmpty()) return setState(false, localized("sharingNotWritable"));
  const QString path = withEnding(file.toLocalFile(), fileKind(format_).ending);
  detached(write(path, [this, path] {
    const auto show = [&links = links_, path] {
      if (!links.openFile(path)) ViewManager::showToast(localized("sharingNoViewer"));
    };
    goWith(localized("sharingSaved").arg(QDir::toNativeSeparators(path)), {localized("sharingShow"), show});
  }));
}

void ShareSheetController::copy() {
  QClipboard& clipboard = *QGuiApplication::clipboard();
  if (format_ == Format::Picture) {
    clipboard.setImage(working_.picture);
  } else {
    auto data = std::make_unique<QMimeData>();
    data->setData(fileKind(format_).mimeType, bytes()());
    clipboard.setMimeData(data.release());  // which takes it over
  }
  goWith(localized("sharingCopied"));
}

void ShareSheetController::copyLatex() {
  QGuiApplication::clipboard()->setText(latexOfWorking(working_.rows));
  goWith(localized("sharingCopied"));
}

void ShareSheetController::open() {
  // One file of each kind for all workings, so that none are left behind.
  const QDir cache(QStandardPaths::writableLocation(QStandardPaths::CacheLocation));
  cache.mkpath(QStringLiteral("."));
  const QString path = cache.filePath(localized("sharingFileName") + fileKind(format_).ending);
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

std::function<QByteArray()> ShareSheetController::bytes() const {
  switch (format_) {
    case Format::Pdf:
      return [bytes = pdfOfWorking(working_.rows)] { return bytes; };
    case Format::Svg:
      return [bytes = svgOfWorking(working_.rows, working_.viewWidth)] { return bytes; };
    default:
      return [picture = working_.picture] { return pngBytes(picture); };
  }
}

QCoro::Task<> ShareSheetController::write(QString path, std::function<void()> whenWritten) {
  if (isBusy_) co_return;
  setState(true, {});
  const QPointer<ShareSheetController> self(this);
  const auto work = [bytes = bytes(), path] { return writeWhole(path, bytes()); };
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

void ShareSheetController::goWith(const QString& toast, ToastAction action) {
  close();
  ViewManager::showToast(toast, std::move(action));
}

}  // namespace tavi
