#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavi {

/// A natural constant that multiplies a number.
struct NaturalConstant {
  std::string key;    ///< The character that stands for it in a typed term.
  std::string latex;  ///< What writes it in a step.
  double value = 0;

  friend bool operator==(const NaturalConstant&, const NaturalConstant&) = default;
};

NaturalConstant piConstant();
NaturalConstant eulerConstant();

/// What the last character of a term with one natural constant must be. Both rows are Pi: a typed e is always
/// refused as misplaced.
const std::array<NaturalConstant, 2>& naturalConstantList();

/// The variables that can stand in a term.
inline constexpr std::array<std::string_view, 3> variableList{"x", "y", "z"};

/// A plain numerator and denominator.
struct Fraction {
  std::optional<double> z;
  double n = 1.0;
};

/// An exact number: numerator `z` over denominator `n`, each with the natural constants and the variable that
/// multiply it. Shared as std::shared_ptr<Digit>: a change through one holder is seen by all.
class Digit {
 public:
  /// Without arguments the empty number: no numerator, denominator 1.
  explicit Digit(std::optional<double> numerator = std::nullopt, double denominator = 1.0)
      : z(numerator), n(denominator) {}

  /// Decimal value of the numeric part and its constants; the variables are left out, so 3x has 3. Absent
  /// when `z` is. A zero denominator gives what the division of doubles gives.
  std::optional<double> value() const;

  /// Takes over all fields of `source`.
  void copyValues(const Digit& source) { *this = source; }

  /// Turns the number upside down. `z` absent: fatal stop.
  void invert();

  std::optional<double> z;
  double n;
  std::vector<NaturalConstant> zConstants;
  std::vector<NaturalConstant> nConstants;
  std::string zVariable;
  std::string nVariable;
  double powerOfZVariable = 0.0;
  double powerOfNVariable = 0.0;
};

}  // namespace tavi
