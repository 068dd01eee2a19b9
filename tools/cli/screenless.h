#pragma once

#include <array>
#include <string>

#include <QtGui/QGuiApplication>

namespace tavi::cli {

/// The application object that words and pictures need; without a screen unless one is asked for.
class Screenless {
 public:
  Screenless() : application_(argumentCount_, arguments_.data()) {}

 private:
  bool hasPlatform_ = qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || qputenv("QT_QPA_PLATFORM", "offscreen");
  int argumentCount_ = 1;
  std::string name_ = "tavi-cli";
  std::array<char*, 2> arguments_{name_.data(), nullptr};
  QGuiApplication application_;
};

}  // namespace tavi::cli
