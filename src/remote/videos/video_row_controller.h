#pragma once

#include <QObject>
#include <QPointer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <memory>

#include "platform/links.h"
#include "platform/preferences.h"
#include "platform/project_settings.h"
#include "shell/frame/view_controller.h"

namespace tavi {

/// What the row of tutorial videos does: its lock, its three buttons, and a player for a link. Nothing is
/// asked of the video service while the row is locked.
class VideoRowController : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a page")
  Q_PROPERTY(bool isLocked READ isLocked NOTIFY lockChanged)

 public:
  /// Dialogs and guide come up over that page, which must live longer.
  VideoRowController(ViewController& page, PreferenceStore& preferences,
                     const ProjectSettings& settings = ProjectSettings::shared(),
                     const Links& links = Links::shared());
  ~VideoRowController() override;

  bool isLocked() const { return isLocked_; }

  // What the row calls.
  /// The row is made: its lock is as the user's stored answer says.
  Q_INVOKABLE void awakeFromNib();
  Q_INVOKABLE void tappedLockingViewButton();
  Q_INVOKABLE void tappedPrivacyButton();
  Q_INVOKABLE void tappedManualButton();

  // The looks of its views.
  Q_INVOKABLE static void applyStyle(QQuickItem* item);
  Q_INVOKABLE static void applyFloatingShadow(QQuickItem* item);

  /// Whether the link leads to a video at all.
  Q_INVOKABLE bool isVideo(const QString& link) const;

  /// The component of a player, or none where the system has no web view. None while the row is locked.
  Q_INVOKABLE QQmlComponent* player();

  /// The page for a player to load; empty for no video and while the row is locked.
  Q_INVOKABLE QString page(const QString& link) const;

  /// Where such a page stands, as the service is told.
  Q_INVOKABLE static QString pageAddress();

  /// Opens the video in the browser.
  Q_INVOKABLE void openOutside(const QString& link) const;

  /// The QML file of the players, for a stand-in; the standard is the system's web view.
  void setPlayerSource(const QUrl& source) { playerSource_ = source; }

 signals:
  void lockChanged();

 private:
  static QUrl systemPlayer();
  void unlockVideos();
  void lockVideos();
  void setLocked(bool isLocked);
  void presentGuide();

  ViewController& page_;
  PreferenceStore& preferences_;
  const ProjectSettings& settings_;
  const Links& links_;
  bool isLocked_ = true;
  QUrl playerSource_ = systemPlayer();
  std::unique_ptr<QQmlComponent> player_;
};

}  // namespace tavi
