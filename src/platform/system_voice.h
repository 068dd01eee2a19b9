#pragma once

#include <QThread>
#include <QUrl>
#include <memory>
#include <utility>

#include "platform/localization.h"
#include "platform/voice.h"

namespace tavi {

/// The thread of what speaks, which is made of a QML file there and lives as long as the thread runs.
class SpeakerThread : public QThread {
  Q_OBJECT

 public:
  SpeakerThread(QUrl source, QString language) : source_(std::move(source)), language_(std::move(language)) {}

 signals:
  /// Whom texts are handed to by queued calls only; none where nothing speaks the language.
  void made(QObject* speaker);
  void ended(int number, bool isSaid);

 protected:
  void run() override;

 private:
  const QUrl source_;
  const QString language_;
};

/// The voice of the system, where Qt's speech module and something that speaks the language are installed.
/// Nothing of it is loaded before `prepare`. It is asked in a thread of its own: a speech service that is
/// only being started, that has no sound or a long list of voices, keeps its callers waiting for seconds.
class SystemVoice : public Voice {
  Q_OBJECT

 public:
  /// The QML file of what speaks, and a language by its BCP 47 name.
  explicit SystemVoice(QUrl source = installedSpeaker(), QString language = spokenLanguage());
  ~SystemVoice() override;

  /// The one in the user's language. The application ends it.
  static const std::shared_ptr<SystemVoice>& shared();

  /// Nothing is asked or said from now on. Waits for the service, up to 5 seconds, as its thread must not go
  /// on while the process takes itself apart; one that is kept longer is left behind.
  void end();

  State state() const override { return state_; }
  void prepare() override;
  void say(const QString& text) override;
  void stop() override;

 private:
  /// Empty without the module or without an engine for it.
  static QUrl installedSpeaker();

  const QUrl source_;
  const QString language_;
  State state_ = State::Unknown;
  SpeakerThread* thread_ = nullptr;
  QObject* speaker_ = nullptr;
  int number_ = 0;  // Of the text that is said, so that what comes late of an earlier one is known.
};

}  // namespace tavi
