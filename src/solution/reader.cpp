#include "solution/reader.h"

#include <utility>

#include "platform/system_voice.h"

namespace tavi {

Reader::Reader(Words words) : words_(std::move(words)) {
  QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
  setVoice(SystemVoice::shared());
}

void Reader::setVoice(std::shared_ptr<Voice> voice) {
  if (voice_) voice_->disconnect(this);
  voice_ = std::move(voice);
  connect(voice_.get(), &Voice::stateChanged, this, [this] {
    emit voiceChanged();
    if (const auto row = std::exchange(awaited_, std::nullopt)) readFrom(*row);
  });
  connect(voice_.get(), &Voice::ended, this, [this](bool isSaid) {
    if (isReading()) isSaid ? readFrom(row_ + 1) : stop();
  });
  emit voiceChanged();
}

void Reader::readFrom(int row) {
  if (voice_->state() == Voice::State::Unknown) {
    awaited_ = row;
    return voice_->prepare();
  }
  if (!isReady()) return;
  std::optional<QString> words = words_(row);
  while (words && words->isEmpty()) words = words_(++row);
  if (!words) return stop();
  setRow(row);
  voice_->say(*words);
}

void Reader::stop() {
  awaited_.reset();
  if (!isReading()) return;
  voice_->stop();
  setRow(-1);
}

void Reader::setRow(int row) {
  if (row == row_) return;
  row_ = row;
  emit rowChanged();
}

}  // namespace tavi
