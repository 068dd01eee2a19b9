#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "input/mode.h"

namespace tavi::cli {

// Exit codes of all commands; wrong usage is EX_USAGE of sysexits.h.
constexpr int success = 0;
constexpr int untrue = 1;    ///< A line of a checked working is false.
constexpr int rejected = 2;  ///< The input is wrong; its error key is told.
constexpr int fatal = 3;     ///< The task would end the process.
constexpr int tooLong = 4;   ///< The expansion of the power would be too long to write out.
constexpr int wrongUsage = 64;
constexpr int wrongData = 65;    ///< EX_DATAERR: a file is not what it should be.
constexpr int cannotWrite = 73;  ///< A file, EX_CANTCREAT.
constexpr int ioError = 74;      ///< The standard streams, EX_IOERR.

using Arguments = std::span<const std::string_view>;

int solveCommand(Arguments arguments);
int exactCommand(Arguments arguments);
int displayLatexCommand(Arguments arguments);
int typesetCommand(Arguments arguments);
int renderCommand(Arguments arguments);
int chartCommand(Arguments arguments);

/// An option, and no operand such as --3.
bool isOption(std::string_view argument);

/// The mode of that name, "power" or "root".
std::optional<Mode> readMode(std::string_view name);

/// What is wrong where the option --language has no value.
constexpr std::string_view languageNeed = "--language needs a language, such as de";

/// Has workings titled in the words of the language, a BCP 47 name; needs an application object. Gives what
/// is wrong where there are no such words.
std::optional<std::string> useLanguage(std::string_view language);

/// Prints what is wrong and the usage to standard error; the result is the exit code.
int usageError(std::string_view problem, std::string_view usage);

}  // namespace tavi::cli
