// tavi-cli: the engine's workbench on the command line.
#include <algorithm>
#include <array>
#include <iostream>
#include <string_view>
#include <vector>

#include "commands.h"
#include "platform/localization.h"

namespace tavi::cli {
namespace {

struct Command {
  std::string_view name;
  std::string_view summary;
  int (*run)(Arguments arguments);
};

constexpr std::array commands{
    Command{"solve", "the working of a power or a root, step by step", solveCommand},
    Command{"exact", "the value of a power or a root by the rules of mathematics, every digit proved",
            exactCommand},
    Command{"display-latex", "filters stored lines of LaTeX into what is typeset", displayLatexCommand},
    Command{"typeset", "sets lines of LaTeX as mathematics: glyphs and rules with their places",
            typesetCommand},
    Command{"render", "draws a whole working as a PNG, SVG or PDF picture", renderCommand},
    Command{"chart", "draws a row of charts, or tells what is to be drawn", chartCommand},
};

void printUsage(std::ostream& out) {
  out << "Usage: tavi-cli COMMAND [arguments]\n\n";
  for (const Command& command : commands) {
    out << "  " << command.name << std::string(16 - command.name.size(), ' ') << command.summary << '\n';
  }
  out << "\ntavi-cli COMMAND --help tells more of each.\n";
}

int run(Arguments arguments) {
  if (arguments.empty()) {
    printUsage(std::cerr);
    return wrongUsage;
  }
  const std::string_view name = arguments.front();
  if (name == "--help" || name == "help") {
    printUsage(std::cout);
    return success;
  }
  const auto* const command = std::find_if(
      commands.begin(), commands.end(), [name](const Command& candidate) { return candidate.name == name; });
  if (command == commands.end()) {
    std::cerr << "tavi-cli: no command " << name << "\n\n";
    printUsage(std::cerr);
    return wrongUsage;
  }
  return command->run(arguments.subspan(1));
}

}  // namespace

bool isOption(std::string_view argument) {
  return argument.starts_with("--") && (argument.size() == 2 || (argument[2] >= 'a' && argument[2] <= 'z'));
}

std::optional<Mode> readMode(std::string_view name) {
  if (name == "power") return Mode::power;
  if (name == "root") return Mode::root;
  return std::nullopt;
}

std::optional<std::string> useLanguage(std::string_view language) {
  const auto name = QString::fromUtf8(language.data(), static_cast<qsizetype>(language.size()));
  if (loadTranslations({name})) return std::nullopt;
  return "no words in the language \"" + std::string(language) + "\", only in " +
         translatedLanguages().join(QStringLiteral(", ")).toStdString();
}

int usageError(std::string_view problem, std::string_view usage) {
  std::cerr << "tavi-cli: " << problem << "\n\n" << usage;
  return wrongUsage;
}

}  // namespace tavi::cli

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  const std::vector<std::string_view> arguments(argv + 1, argv + argc);
  return tavi::cli::run(arguments);
}
