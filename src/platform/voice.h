#pragma once

#include <QObject>
#include <QString>

namespace tavi {

/// Says texts in one language, one at a time. Main thread only; no call waits.
class Voice : public QObject {
  Q_OBJECT

 public:
  enum class State { Unknown, Ready, Missing };

  /// Whether there is a voice at all: unknown until it was prepared.
  virtual State state() const = 0;

  /// Looks whether there is a voice, unless that was done; `stateChanged` tells.
  virtual void prepare() = 0;

  /// Says the text in place of what is being said. To be called in state Ready only.
  virtual void say(const QString& text) = 0;
  virtual void stop() = 0;

 signals:
  void stateChanged();
  /// The text was said, or could not be said. Not of one that was stopped or replaced.
  void ended(bool isSaid);
};

}  // namespace tavi
