#pragma once

#include <QCoroTask>
#include <QImage>
#include <QUrl>
#include <functional>
#include <vector>

#include "platform/links.h"
#include "shell/frame/view_controller.h"
#include "shell/frame/view_manager.h"
#include "solution/rows/solution_row.h"

namespace tavi {

/// A working as it is shared.
struct SharedWorking {
  QImage picture;
  std::vector<SolutionRow> rows = {};
  double viewWidth = 0;  ///< Of the page it stands on, in device-independent pixels.
  QString subject = {};  ///< The task in words; it names the file.
};

/// What can be done with a working, offered over the page: save it, copy it, open it, as a picture or as a
/// document; copy it as LaTeX. A system with a sheet of its own is given the picture here in place of the
/// page.
class ShareSheetController : public tavi::ViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the solution page")
  Q_PROPERTY(tavi::ShareSheetController::Format format READ format WRITE setFormat NOTIFY changed)
  Q_PROPERTY(QUrl proposedFile READ proposedFile NOTIFY changed)
  Q_PROPERTY(bool hasSaveDialog READ hasSaveDialog CONSTANT)
  Q_PROPERTY(bool isBusy READ isBusy NOTIFY changed)
  Q_PROPERTY(QString failure READ failure NOTIFY changed)

 public:
  enum class Format { Picture, Pdf, Svg };
  Q_ENUM(Format)

  explicit ShareSheetController(SharedWorking working, const Links& links = Links::shared());

  QString title() const override;

  const QImage& picture() const { return working_.picture; }

  Format format() const { return format_; }
  /// What was wrong with a file of another format is no longer told.
  void setFormat(Format format);

  /// A file in the user's pictures or, for documents, documents that is not there yet, named after the
  /// subject.
  QUrl proposedFile() const;

  /// Whether the desktop has a dialog of its own to choose a place with.
  static bool hasSaveDialog();

  /// Writes the working to the proposed file and goes, telling where it is; or says why it cannot.
  Q_INVOKABLE void save();

  /// The same to another file; only local ones.
  Q_INVOKABLE void saveAs(const QUrl& file);

  /// Puts the working on the clipboard and goes.
  Q_INVOKABLE void copy();
  Q_INVOKABLE void copyLatex();

  /// Gives a copy of the working to the program for its kind and goes, or says why it cannot.
  Q_INVOKABLE void open();

  Q_INVOKABLE void close();

  /// Whether the working is being written.
  bool isBusy() const { return isBusy_; }
  /// Why the last attempt failed, in words; empty if it did not.
  QString failure() const { return failure_; }

 signals:
  void changed();

 private:
  /// What makes the bytes of a file in the chosen format, in another thread.
  std::function<QByteArray()> bytes() const;
  QCoro::Task<> write(QString path, std::function<void()> whenWritten);
  void setState(bool isBusy, const QString& failure);
  void goWith(const QString& toast, ToastAction action = {});

  SharedWorking working_;
  const Links& links_;
  Format format_ = Format::Picture;
  bool isBusy_ = false;
  QString failure_;
};

}  // namespace tavi
