#pragma once

#include <QCoroTask>
#include <QImage>
#include <QUrl>

#include "platform/links.h"
#include "shell/frame/view_controller.h"

namespace tavi {

/// What can be done with a picture, offered over the page: save it, copy it, open it. A system with a sheet
/// of its own is given the picture here in place of the page.
class ShareSheetController : public ViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the solution page")
  Q_PROPERTY(QUrl proposedFile READ proposedFile CONSTANT)
  Q_PROPERTY(bool hasSaveDialog READ hasSaveDialog CONSTANT)
  Q_PROPERTY(double pictureRatio READ pictureRatio CONSTANT)
  Q_PROPERTY(bool isBusy READ isBusy NOTIFY changed)
  Q_PROPERTY(QString failure READ failure NOTIFY changed)

 public:
  /// The subject, in words, names the picture's file.
  ShareSheetController(QImage picture, QString subject, const Links& links = Links::shared());

  const QImage& picture() const { return picture_; }

  /// A file in the user's pictures that is not there yet, named after the subject.
  QUrl proposedFile() const;

  /// Whether the desktop has a dialog of its own to choose a place with. Qt's own is no stand-in: it follows
  /// neither the style nor the language of the application.
  static bool hasSaveDialog();
  double pictureRatio() const;  ///< Width to height.

  /// Writes the picture to the proposed file and goes, telling where it is; or says why it cannot.
  Q_INVOKABLE void savePicture();

  /// The same to another file; only local ones.
  Q_INVOKABLE void savePictureAs(const QUrl& file);

  /// Puts the picture on the clipboard and goes.
  Q_INVOKABLE void copyPicture();

  /// Gives a copy of the picture to the program for pictures and goes, or says why it cannot.
  Q_INVOKABLE void openPicture();

  Q_INVOKABLE void close();

  /// Whether the picture is being written.
  bool isBusy() const { return isBusy_; }
  /// Why the last attempt failed, in words; empty if it did not.
  QString failure() const { return failure_; }

 signals:
  void changed();

 private:
  QCoro::Task<> write(QString path, std::function<void()> whenWritten);
  void setState(bool isBusy, const QString& failure);
  void goWith(const QString& toast);

  QImage picture_;
  QString subject_;
  const Links& links_;
  bool isBusy_ = false;
  QString failure_;
};

}  // namespace tavi
