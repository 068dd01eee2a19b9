#include <iostream>
#include <string>

#include "commands.h"
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
  for (std::string line; std::getline(std::cin, line);) std::cout << displayLatex(line) << std::endl;
  return success;
}

}  // namespace tavi::cli
