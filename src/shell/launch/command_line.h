#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <string_view>
#include <variant>

#include "shell/calculation.h"

namespace tavi {

/// Why the application is not started, for standard error, and its exit code.
struct StartRefusal {
  int exitCode;
  QString words;
};

/// The answer to `--help` or `--version` as first argument; absent for anything else. Needs no application
/// object.
std::optional<std::string_view> answerToOption(std::string_view argument);

/// The arguments behind the program's name, of which Qt has taken its own:
/// nothing, `power` or `root`, or one of these with both texts of its task. A task comes as a record to be
/// picked, with no texts where only the mode is named. Texts are written as the keypad would type them. What
/// is no command, and a task that has no working, is refused.
std::variant<std::optional<Calculation>, StartRefusal> readCommandLine(const QStringList& arguments);

/// A record as arguments, and back, for the way from one process to the other.
QStringList argumentsOf(const Calculation& task);

}  // namespace tavi
