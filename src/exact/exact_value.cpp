#include "exact/exact_value.h"

#include <algorithm>
#include <array>
#include <utility>

#include "exact/decimal.h"
#include "exact/exact_task.h"
#include "exact/written_value.h"
#include "number/text.h"

namespace tavi::exact {

namespace {

constexpr std::size_t firstVariable = 1;

using Variables = std::array<bool, symbolCount>;

void addDenominators(const Exponents& exponents, Variables& variables) {
  for (std::size_t i = firstVariable; i < symbolCount; ++i) variables[i] |= exponents[i].sign() < 0;
}

// The variables that a value has below a bar.
Variables denominatorsOf(const Value& value) {
  Variables variables{};
  addDenominators(value.product.exponents, variables);
  if (value.tower) {
    addDenominators(value.tower->exponent, variables);
    addDenominators(value.tower->base.exponents, variables);
  }
  return variables;
}

// The variables that must not be 0 for the task to have a value.
Variables divisorsOf(const ExactTask& task, const Value& base, const Value& exponent) {
  Variables variables{};
  for (const ExactTerm* term : {&task.first, &task.second}) {
    if (term->below && term->below->symbol) variables[static_cast<std::size_t>(*term->below->symbol)] = true;
  }
  if (task.mode == Mode::root && task.first.above.symbol) {
    variables[static_cast<std::size_t>(*task.first.above.symbol)] = true;
  }
  const auto power = rationalOf(exponent);
  for (std::size_t i = firstVariable; i < symbolCount; ++i) {
    if (power && power->sign() <= 0 && base.product.exponents[i] != 0) variables[i] = true;
  }
  return variables;
}

// What must hold for the task and cannot be seen from its value any more.
std::optional<Sentence> lostCondition(const Variables& divisors, const Value& value) {
  const Variables visible = denominatorsOf(value);
  std::string latex;
  for (std::size_t i = firstVariable; i < symbolCount; ++i) {
    if (!divisors[i] || visible[i]) continue;
    latex += joined({latex.empty() ? "" : ", ", latexOf(static_cast<Symbol>(i)), " \\neq 0"});
  }
  return latex.empty() ? std::nullopt : std::optional(Sentence{"exactCondition", {std::move(latex)}});
}

// "x ≥ 0" and its like, for the variables of a value.
Sentence signCondition(const Value& value, std::string_view ifPositive, std::string_view ifNegative) {
  Exponents variables = value.product.exponents;
  variables[static_cast<std::size_t>(Symbol::pi)] = 0;
  return {"exactCondition",
          {joined({latexOf(variables), " ", value.sign < 0 ? ifNegative : ifPositive, " 0"})}};
}

Sentence reasonOf(Fault fault, const Value& base, const Value& exponent) {
  switch (fault) {
    case Fault::zeroToTheZero:
      return {"exactZeroToTheZero"};
    case Fault::divisionByZero:
      return {"exactDivisionByZero"};
    case Fault::rootWithIndexZero:
      return {"exactRootWithIndexZero"};
    case Fault::evenRootOfNegative:
      return {"exactEvenRootOfNegative"};
    case Fault::irrationalPowerOfNegative:
      return {"exactIrrationalPowerOfNegative"};
    case Fault::negativeToVariable:
      return {"exactNegativeToVariable"};
    case Fault::zeroToVariable:
      return signCondition(exponent, ">", "<");
    case Fault::signOfVariables: {
      const auto power = rationalOf(exponent);
      return power && power->sign() > 0 ? signCondition(base, "\\geq", "\\leq")
                                        : signCondition(base, ">", "<");
    }
    case Fault::none:
    case Fault::unwieldy:
      break;
  }
  return {"exactTooLarge"};
}

// base^exponent for an exponent with symbols.
std::optional<WrittenValue> writtenTower(const Value& base, const Value& exponent) {
  const auto below = written(base);
  const auto above = written(exponent);
  if (!below || !above) return std::nullopt;
  return WrittenValue{Kind::symbolic, joined({asBase(below->latex), "^{", above->latex, "}"})};
}

// Of an even root: which equation the root solves, together with the number opposite to it.
std::optional<Sentence> evenRootNote(const Value& base, const Value& exponent, const ExactValue& value) {
  const auto power = rationalOf(exponent);
  if (!power || fmpz_is_odd(power->denominator()) != 0) return std::nullopt;
  const auto radicand = written(base);
  if (!radicand) return std::nullopt;
  std::string right = radicand->latex;
  if (fmpz_is_one(power->numerator()) == 0) {
    right = joined({asBase(right), "^{", textOf(power->numerator()), "}"});
  }
  const std::string equation =
      joined({hasVariable(base) ? "t" : "x", "^{", textOf(power->denominator()), "} = ", right});
  if (base.sign == 0) return Sentence{"exactEvenRootOfZero", {equation}};
  constexpr std::size_t longest = 200;
  const std::string& root = value.latex.size() <= longest ? value.latex : value.task;
  return Sentence{"exactEvenRoot", {equation, root, "-" + root}};
}

ExactValue valueOf(const ExactTask& task, int digits) {
  const Value base = task.base();
  const Value exponent = task.exponent();
  const Value value = raised(base, exponent);

  ExactValue exact;
  exact.task = task.latex();
  exact.latex = exact.task;
  if (value.fault != Fault::none) {
    exact.kind = isUndefinedBy(value.fault)  ? Kind::undefined
                 : isVariableBy(value.fault) ? Kind::symbolic
                                             : Kind::tooLarge;
    exact.reason = reasonOf(value.fault, base, exponent);
    return exact;
  }
  exact.decimal = decimalLatex(value, digits);
  exact.wholeNumber = wholeNumber(value);
  if (auto form = value.tower ? writtenTower(base, exponent) : written(value)) {
    exact.kind = form->kind;
    exact.latex = std::move(form->latex);
    exact.reason = lostCondition(divisorsOf(task, base, exponent), value);
  } else {
    exact.kind = Kind::tooLarge;
    exact.reason = Sentence{"exactTooLarge"};
  }
  exact.note = evenRootNote(base, exponent, exact);
  return exact;
}

}  // namespace

std::string_view nameOf(Kind kind) {
  constexpr std::array<std::string_view, 6> names{"integer",  "rational",  "surd",
                                                  "symbolic", "undefined", "tooLarge"};
  return names[static_cast<std::size_t>(kind)];
}

std::variant<ExactValue, InputError> exactValue(Mode mode, std::string_view first, std::string_view second,
                                                int digits) {
  const auto task = readTask(mode, first, second);
  if (const auto* error = std::get_if<InputError>(&task)) return *error;
  return valueOf(std::get<ExactTask>(task), digits);
}

}  // namespace tavi::exact
