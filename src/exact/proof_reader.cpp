#include "exact/proof_reader.h"

#include <algorithm>
#include <array>
#include <bit>
#include <optional>
#include <span>
#include <utility>

#include "exact/expression_value.h"
#include "exact/line_reader.h"

namespace tavi::exact {

namespace {

using Operations = std::vector<Operation>;

bool isNumberWithPlaces(const Operation& operation) {
  return !operation.half.isZero();
}

bool hasBallsIn(const Operations& expression) {
  return std::ranges::any_of(expression, isNumberWithPlaces);
}

// The variables of both sides as bits.
unsigned variablesOf(const Operations& expression) {
  unsigned variables = 0;
  for (const Operation& operation : expression) {
    if (operation.kind == Operator::symbol && operation.symbol != Symbol::pi) {
      variables |= 1U << static_cast<unsigned>(operation.symbol);
    }
  }
  return variables;
}

bool holdsInfinity(const Operations& expression) {
  return std::ranges::find(expression, Operator::infinity, &Operation::kind) != expression.end();
}

bool hasBrokenExponent(const Operations& expression) {
  return std::ranges::any_of(expression, [](const Operation& operation) {
    return operation.isInExponent && isNumberWithPlaces(operation);
  });
}

bool isNumber(const Result& result) {
  return result.value.fault == Fault::none && !result.isInfinite;
}

// The balls of two values tell of all but this.
bool areVariablesEqual(const Value& a, const Value& b) {
  const auto variablesOf = [](const Exponents& exponents) { return std::span(exponents).subspan(1); };
  return std::ranges::equal(variablesOf(a.product.exponents), variablesOf(b.product.exponents)) &&
         ((!hasVariable(a) && !hasVariable(b)) || a.tower == b.tower);
}

// A side of a relation with its exact result, once that was asked for.
struct Side {
  Expression expression;
  std::optional<Result> result{};
};

class ProofReader {
 public:
  ProofReader(std::string_view task, bool isExplained) : isExplained_(isExplained) {
    const Line line = readLine(task);
    if (line.sides.size() == 1) exactTask_.expression = line.sides.front();
    settle(exactTask_.expression);
  }

  Proof proof(const SolutionSteps& steps) {
    Proof proof;
    proof.lines.reserve(steps.size());
    for (const SolutionStep& step : steps) {
      if (step.messageString || !step.latexString) {
        proof.lines.emplace_back();
        continue;
      }
      Line line = readLine(*step.latexString);
      if (isTaskOpen_) {
        proof.lines.push_back({.mark = Mark::isTrue});
        openChain(std::move(line));
        continue;
      }
      const bool isInChain = line.isContinued || line.relations.empty();
      const bool isResult = !isInChain && line.sides.front() == task_;
      std::vector<Side> sides;
      sides.reserve(line.sides.size() + 1);
      for (Expression& side : line.sides) sides.push_back({std::move(side)});
      if (isInChain) {
        if (!line.isContinued) line.relations.push_back(Relation::equal);
        proof.lines.push_back(inChain(std::move(sides), line.relations));
        continue;
      }
      proof.lines.push_back(byItself(sides, line.relations, isResult));
      if (isResult && !proof.resultLine) {
        proof.result = compare(exactTask_, sides[1], line.relations.front());
        proof.resultLine = proof.lines.size() - 1;
      }
    }
    return proof;
  }

 private:
  // The decimals of the task are those that were typed.
  void settle(const Expression& task) {
    if (!task) return;
    for (const Operation& operation : *task) {
      if (isNumberWithPlaces(operation)) settled_.push_back(operation.number);
    }
  }

  void openChain(Line line) {
    isTaskOpen_ = false;
    if (!line.sides.empty()) task_ = std::move(line.sides.back());
    settle(task_);
    chain_.expression = task_;
  }

  CheckedLine inChain(std::vector<Side> sides, std::span<const Relation> relations) {
    if (sides.empty()) return {};
    sides.insert(sides.begin(), std::move(chain_));
    const CheckedLine checked = byItself(sides, relations, false);
    chainBefore_ = std::move(sides.front().expression);
    chain_ = std::move(sides.back());
    return checked;
  }

  CheckedLine byItself(std::span<Side> sides, std::span<const Relation> relations, bool isResult) {
    CheckedLine checked{.mark = Mark::isTrue};
    for (std::size_t i = 1; i < sides.size(); ++i) {
      isDecimalOfResult_ = isResult && i > 1;
      const CheckedLine relation = compare(sides[i - 1], sides[i], relations[i - 1]);
      checked.mark = std::max(checked.mark, relation.mark);
      checked.rules |= relation.rules;
      const Expression& side = sides[i].expression;
      hasSeenInfinity_ = hasSeenInfinity_ || (side && holdsInfinity(*side));
    }
    isDecimalOfResult_ = false;
    return checked;
  }

  CheckedLine compare(Side& left, Side& right, Relation relation) const {
    if (!left.expression || !right.expression) return {.mark = Mark::isOpen};
    const Mark mark = markOf(left, right, relation);
    const bool isToExplain = mark == Mark::isFalse && isExplained_;
    return {.mark = mark,
            .rules = isToExplain ? rulesOf(*left.expression, *right.expression, relation) : Rules{0}};
  }

  Mark markOf(Side& left, Side& right, Relation relation) const {
    const Operations& a = *left.expression;
    const Operations& b = *right.expression;
    const unsigned variables = variablesOf(a) | variablesOf(b);
    if (variables != 0) return markOfIdentity(a, b, variables);
    if (!left.result) left.result = exactResult(a, {});
    if (!right.result) right.result = a == b ? left.result : exactResult(b, {});
    if (!isNumber(*left.result) || !isNumber(*right.result)) {
      return markWithoutNumber(*left.result, *right.result);
    }
    if (left.result->value == right.result->value) return Mark::isTrue;
    const bool mayBeRounded = hasBallsIn(a) || hasBallsIn(b) || relation == Relation::approximate;
    return mayBeRounded && agree(a, b, relation, 0) ? Mark::isRounded : Mark::isFalse;
  }

  static Mark markWithoutNumber(const Result& a, const Result& b) {
    const auto isOneAgainstZeros = [](const Result& zeros, const Result& number) {
      return zeros.value.fault == Fault::zeroToTheZero && isNumber(number);
    };
    if (isOneAgainstZeros(a, b) || isOneAgainstZeros(b, a)) return Mark::isFalse;
    if (a.value.fault != Fault::none || b.value.fault != Fault::none) return Mark::isOpen;
    return a.isInfinite && b.isInfinite && a.value.sign == b.value.sign ? Mark::isTrue : Mark::isFalse;
  }

  // Equal wherever both sides are defined, whatever the signs of the variables.
  static Mark markOfIdentity(const Operations& left, const Operations& right, unsigned variables) {
    bool isAnywhereEqual = false;
    bool isNowhereDefined = true;
    for (unsigned negative = variables;; negative = (negative - 1) & variables) {
      Reading reading;
      for (std::size_t i = 0; i < symbolCount; ++i) reading.areNegative[i] = (negative >> i & 1U) != 0;
      const Result a = exactResult(left, reading);
      const Result b = exactResult(right, reading);
      isNowhereDefined = isNowhereDefined && (isUndefinedBy(a.value.fault) || isUndefinedBy(b.value.fault));
      if (isNumber(a) && isNumber(b) && a.isSizeAlone == b.isSizeAlone) {
        if (!(a.value == b.value)) return Mark::isFalse;
        isAnywhereEqual = true;
      }
      if (negative == 0) break;
    }
    if (isNowhereDefined) return Mark::isOpen;
    return isAnywhereEqual || left == right ? Mark::isTrue : Mark::isFalse;
  }

  // Whether both sides can be the same number when they are read by some rules of the working.
  bool agree(const Operations& left, const Operations& right, Relation relation, Rules rules) const {
    Reading reading{.rules = rules, .settled = settled_};
    const Result a = spreadResult(left, reading);
    reading.hasFewPlaces = isDecimalOfResult_ || relation == Relation::approximate;
    const Result b = spreadResult(right, reading);
    if (!isNumber(a) || !isNumber(b)) return false;
    if (a.value.sign == 0 || b.value.sign == 0) {
      const Result& other = a.value.sign == 0 ? b : a;
      if (other.value.sign == 0) return true;
      if (b.value.sign != 0 || relation != Relation::approximate) return false;
      Ball limit;
      arb_set_d(limit, 5e-6);
      arb_log(limit, limit, ballPrecision);
      return arb_gt(logarithmOf(a), limit) == 0;
    }
    const bool isSignLost = (rules & (rule::secondSolution | rule::zero | rule::overflow)) != 0;
    constexpr Rules changeExponents =
        rule::infinity | rule::symbolInExponent | rule::expansion | rule::denominator;
    const bool isParityLost = (rules & changeExponents) != 0 && (a.isNegativeRaised || b.isNegativeRaised);
    const bool isSignEqual = a.value.sign == b.value.sign && a.isSizeAlone == b.isSizeAlone;
    if (!isSignEqual && !isSignLost && !isParityLost) return false;
    return areVariablesEqual(a.value, b.value) && arb_overlaps(logarithmOf(a), logarithmOf(b)) != 0;
  }

  // Rules of which the sides show a trace.
  Rules applicableRules(const Operations& left, const Operations& right) const {
    Rules rules = rule::places | rule::zeroToTheZero;
    if (hasSeenInfinity_) rules |= rule::overflow;
    if (!settled_.empty()) rules |= rule::expansion;
    if (right.back().kind == Operator::negate) rules |= rule::secondSolution;
    for (const Operations* side : {&left, &right}) {
      for (const Operation& operation : *side) {
        if (operation.isInDenominator) rules |= rule::denominator;
        if (operation.kind == Operator::infinity) rules |= rule::infinity;
        if (operation.kind == Operator::number) {
          if (operation.isInExponent && isNumberWithPlaces(operation)) rules |= rule::copies;
          if (operation.number == 0) rules |= rule::zero;
        }
        if (operation.kind == Operator::symbol) {
          rules |= operation.isInExponent           ? rule::symbolInExponent
                   : operation.symbol == Symbol::pi ? rule::pi
                                                    : rule::variable;
        }
        if (operation.isSigned || operation.hasFactor) rules |= rule::brackets;
      }
    }
    return rules;
  }

  // The fewest rules by which the sides agree; 0 if not even all of them do. What follows copies that are too
  // few is held to what they stand for.
  Rules rulesOf(const Operations& left, const Operations& right, Relation relation) const {
    const Rules applicable = applicableRules(left, right);
    const int most = std::popcount(applicable);
    for (int count = 1; count <= most; ++count) {
      for (unsigned rules = 0; rules != applicable;) {
        rules = (rules - applicable) & applicable;
        if (std::popcount(rules) != count) continue;
        if (agree(left, right, relation, static_cast<Rules>(rules))) return static_cast<Rules>(rules);
      }
    }
    const bool isBehindCopies = chainBefore_ && hasBrokenExponent(*chainBefore_) && !(left == *chainBefore_);
    if (!isBehindCopies) return 0;
    if (agree(*chainBefore_, right, relation, 0)) return rule::copies;
    const Rules others = rulesOf(*chainBefore_, right, relation);
    return others == 0 ? Rules{0} : static_cast<Rules>(others | rule::copies);
  }

  bool isExplained_;
  std::vector<Rational> settled_;
  bool isTaskOpen_ = true;  // No line was read yet.
  bool hasSeenInfinity_ = false;
  bool isDecimalOfResult_ = false;
  Side exactTask_;
  Expression task_;
  Expression chainBefore_;
  Side chain_;
};

}  // namespace

std::string_view nameOf(Mark mark) {
  constexpr std::array<std::string_view, 4> names{"true", "rounded", "open", "false"};
  return names[static_cast<std::size_t>(mark)];
}

Proof proofRead(const SolutionSteps& steps, std::string_view task, bool isExplained) {
  return ProofReader(task, isExplained).proof(steps);
}

}  // namespace tavi::exact
