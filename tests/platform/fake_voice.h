#pragma once

#include <QStringList>

#include "platform/voice.h"

namespace tavi {

/// A voice that only notes what it is given.
class FakeVoice : public Voice {
 public:
  explicit FakeVoice(State state) : state_(state) {}

  State state() const override { return state_; }
  void prepare() override { ++preparations; }
  void say(const QString& text) override { said.append(text); }
  void stop() override { ++stops; }

  void setState(State state) {
    state_ = state;
    emit stateChanged();
  }

  QStringList said;
  int preparations = 0;
  int stops = 0;

 private:
  State state_;
};

}  // namespace tavi
