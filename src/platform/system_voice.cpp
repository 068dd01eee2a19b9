#include "platform/system_voice.h"

#include <QDir>
#include <QLibraryInfo>
#include <QQmlComponent>
#include <QQmlEngine>
#include <chrono>
#include <memory>

namespace tavi {

void SpeakerThread::run() {
  QQmlEngine engine;
  QQmlComponent component(&engine, source_);
  const std::unique_ptr<QObject> speaker(
      component.isReady() ? component.createWithInitialProperties({{QStringLiteral("language"), language_}})
                          : nullptr);
  if (!speaker || !speaker->property("isSpoken").toBool()) {
    emit made(nullptr);
    return;
  }
  connect(speaker.get(), SIGNAL(ended(int, bool)), this, SIGNAL(ended(int, bool)), Qt::DirectConnection);
  emit made(speaker.get());
  exec();
}

SystemVoice::SystemVoice(QUrl source, QString language)
    : source_(std::move(source)),
      language_(std::move(language)),
      state_(source_.isEmpty() ? State::Missing : State::Unknown) {}

SystemVoice::~SystemVoice() {
  end();
}

const std::shared_ptr<SystemVoice>& SystemVoice::shared() {
  static const auto voice = std::make_shared<SystemVoice>();
  return voice;
}

void SystemVoice::end() {
  state_ = State::Missing;
  speaker_ = nullptr;
  SpeakerThread* thread = std::exchange(thread_, nullptr);
  if (!thread) return;
  thread->quit();
  if (thread->wait(std::chrono::seconds(5))) delete thread;
}

QUrl SystemVoice::installedSpeaker() {
  const QDir modules(QLibraryInfo::path(QLibraryInfo::QmlImportsPath));
  const QDir engines(QLibraryInfo::path(QLibraryInfo::PluginsPath) + QStringLiteral("/texttospeech"));
  if (!modules.exists(QStringLiteral("QtTextToSpeech")) || engines.isEmpty()) return {};
  return {QStringLiteral("qrc:/qt-project.org/imports/Tavi/platform/Speaker.qml")};
}

void SystemVoice::prepare() {
  if (state_ != State::Unknown || thread_) return;
  thread_ = new SpeakerThread(source_, language_);
  connect(thread_, &SpeakerThread::made, this, [this](QObject* speaker) {
    if (!thread_) return;  // It came too late.
    speaker_ = speaker;
    state_ = speaker ? State::Ready : State::Missing;
    emit stateChanged();
  });
  connect(thread_, &SpeakerThread::ended, this, [this](int number, bool isSaid) {
    if (number == number_) emit ended(isSaid);
  });
  thread_->start(QThread::LowPriority);
}

void SystemVoice::say(const QString& text) {
  if (!speaker_) return;
  QMetaObject::invokeMethod(speaker_, "read", Qt::QueuedConnection, Q_ARG(QVariant, text),
                            Q_ARG(QVariant, ++number_));
}

void SystemVoice::stop() {
  ++number_;
  if (speaker_) QMetaObject::invokeMethod(speaker_, "stop", Qt::QueuedConnection);
}

}  // namespace tavi
