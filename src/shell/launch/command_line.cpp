#include "shell/launch/command_line.h"

#include <algorithm>
#include <array>

#include "input/error_manager.h"
#include "input/mode.h"
#include "input/pasted_text.h"
#include "shell/calculate_view_controller.h"
#include "solver/rehearsal.h"

namespace tavi {

namespace {

// As sysexits.h has them.
constexpr int wrongUsage = 64;
constexpr int wrongData = 65;

constexpr std::string_view usage = R"(Usage: tavi
       tavi power [EXPONENT BASE]
       tavi root [INDEX RADICAND]

Opens the window; with a task, its working. An operand is a number, a decimal, a
fraction, or a multiple of π, x, y or z, and may begin with a minus; an empty INDEX
is 2. Where the window is open already, it comes to the front.

  --help     prints this
  --version  prints the version

Exit codes: 64 wrong usage, 65 the task has no working.
)";

constexpr std::string_view version = "tavi " TAVI_VERSION "\n";

/// Both fields in the order in which they are written in a task.
constexpr auto identifiers =
    std::to_array<QLatin1StringView>({QLatin1StringView("aTextField"), QLatin1StringView("xTextField")});
constexpr auto modeNames =
    std::to_array<QLatin1StringView>({QLatin1StringView("power"), QLatin1StringView("root")});

StartRefusal misused(const QString& what) {
  return {wrongUsage, what + QStringLiteral("\n\n") + QString::fromUtf8(usage.data(), usage.size())};
}

/// As the keypad would type it; absent for what is no number.
std::optional<QString> typed(const QString& operand) {
  if (operand.isEmpty()) return operand;
  const auto read = readPasted(operand.toStdString());
  if (!read || read->exponent) return std::nullopt;
  return QString::fromStdString(read->number);
}

}  // namespace

std::optional<std::string_view> answerToOption(std::string_view argument) {
  if (argument == "--help" || argument == "-h") return usage;
  if (argument == "--version") return version;
  return std::nullopt;
}

std::variant<std::optional<Calculation>, StartRefusal> readCommandLine(const QStringList& arguments) {
  if (arguments.isEmpty()) return std::nullopt;
  const auto* name = std::ranges::find(modeNames, arguments.front());
  if (name == modeNames.end()) return misused(QStringLiteral("no command ") + arguments.front());
  if (arguments.size() != 1 && arguments.size() != 1 + identifiers.size())
    return misused(QStringLiteral("%1 takes two operands or none").arg(*name));

  const auto index = name - modeNames.begin();
  Calculation task;
  task.setupParameter = {{CalculateViewController::modeKey, qlonglong{index}}};
  if (arguments.size() == 1) return task;
  for (qsizetype i = 0; i < qsizetype{identifiers.size()}; ++i) {
    const std::optional<QString> text = typed(arguments[i + 1]);
    if (!text) return StartRefusal{wrongData, QStringLiteral("\"%1\" is no number\n").arg(arguments[i + 1])};
    task.inputParameters[identifiers[static_cast<std::size_t>(i)]] = *text;
  }
  const auto operand = [&](std::size_t i) { return task.inputParameters[identifiers[i]].toStdString(); };
  const Task asked{.mode = modeOf(index), .first = operand(0), .second = operand(1)};
  const std::optional<Rejection> rejection = rejectionOf(asked, rehearse(asked));
  if (!rejection) return task;
  const QString key = QString::fromStdString(rejection->key);
  return StartRefusal{wrongData, ErrorManager::wordsOf(key).value_or(key) + u'\n'};
}

QStringList argumentsOf(const Calculation& task) {
  const auto index = task.setupParameter[CalculateViewController::modeKey].toULongLong();
  QStringList arguments{modeNames.at(index)};
  if (task.inputParameters.isEmpty()) return arguments;
  for (const QLatin1StringView identifier : identifiers) arguments.append(task.inputParameters[identifier]);
  return arguments;
}

}  // namespace tavi
