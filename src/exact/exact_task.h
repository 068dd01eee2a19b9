#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "exact/exact_value.h"
#include "exact/value.h"
#include "input/mode.h"

namespace tavi::exact {

/// A whole term or one side of its fraction: a number, or the multiple of one symbol.
struct ExactSide {
  Rational number{};
  std::optional<Symbol> symbol{};
  std::string latex{};

  Value value() const;
};

/// The text of one field, read exactly: a decimal is the rational that it says.
struct ExactTerm {
  ExactSide above;
  std::optional<ExactSide> below{};

  Value value() const;
  std::string latex() const;  ///< As typed, but for a leading plus and idle zeros.
};

struct ExactTask {
  Mode mode = Mode::power;
  ExactTerm first;   ///< Exponent or index.
  ExactTerm second;  ///< Base or radicand.

  /// The task as mathematics writes it: (-2)^{2}, and \sqrt{2} for the index 2.
  std::string latex() const;
  /// What a first value stands for in this mode: the exponent itself, or of a root one by its index.
  Value exponentOf(const Value& firstValue) const;
  Value exponent() const { return exponentOf(first.value()); }
  Value base() const { return second.value(); }
};

/// See `exactValue` for what is refused.
std::variant<ExactTask, InputError> readTask(Mode mode, std::string_view first, std::string_view second);

/// `latex` as the base of a power, in brackets where it needs them.
std::string asBase(const std::string& latex);

std::string_view latexOf(Symbol symbol);

}  // namespace tavi::exact
