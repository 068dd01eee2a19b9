#pragma once

#include <QObject>
#include <QQmlEngine>
#include <functional>
#include <memory>
#include <optional>

#include "platform/voice.h"

namespace tavi {

/// Reads rows aloud, one after the other. No voice is asked for before the first use.
class Reader : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a page")
  Q_PROPERTY(int row READ row NOTIFY rowChanged)
  Q_PROPERTY(bool isReading READ isReading NOTIFY rowChanged)
  Q_PROPERTY(bool isOffered READ isOffered NOTIFY voiceChanged)
  Q_PROPERTY(bool isReady READ isReady NOTIFY voiceChanged)

 public:
  /// The words of a row: empty for one that has none, absent behind the last.
  using Words = std::function<std::optional<QString>(int row)>;

  explicit Reader(Words words);
  ~Reader() override { stop(); }

  int row() const { return row_; }  ///< The row that is read, or -1.
  bool isReading() const { return row_ >= 0; }
  bool isOffered() const { return voice_->state() != Voice::State::Missing; }
  bool isReady() const { return voice_->state() == Voice::State::Ready; }

  /// In place of the system's voice, which all readers share.
  void setVoice(std::shared_ptr<Voice> voice);

  /// Looks whether there is a voice.
  Q_INVOKABLE void prepare() { voice_->prepare(); }

  /// Reads from that row to the last one; once there is a voice, if that is not known yet.
  Q_INVOKABLE void readFrom(int row);
  Q_INVOKABLE void stop();

 signals:
  void rowChanged();
  void voiceChanged();

 private:
  void setRow(int row);

  const Words words_;
  std::shared_ptr<Voice> voice_;
  std::optional<int> awaited_;  // The row to begin with, while it is not known whether there is a voice.
  int row_ = -1;
};

}  // namespace tavi
