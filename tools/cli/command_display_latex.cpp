#include <iostream>
#include <string>

#include "commands.h"
#include "json_lines.h"
#include "solution/display_latex.h"

namespace tavi::cli {

int displayLatexCommand(Arguments arguments) {
  constexpr std::string_view usage =
      "Usage: tavi-cli display-latex\n\n"
      "Reads stored lines of LaTeX from standard input and writes each as it is typeset.\n";
  if (arguments.size() == 1 && arguments.front() == "--help") {
    std::cout << usage;
    return success;
  }
  if (!arguments.empty()) return usageError("display-latex takes no arguments", usage);
  return answerLines([](std::string_view line, std::string& out) {
    out += displayLatex(line);
    return true;
  });
}

}  // namespace tavi::cli
