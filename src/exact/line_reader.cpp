#include "exact/line_reader.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <span>
#include <string>
#include <utility>

#include "typeset/parser.h"

namespace tavi::exact {

namespace {

using typeset::Atom;
using typeset::Fence;
using typeset::Fraction;
using typeset::Group;
using typeset::List;
using typeset::Radical;
using typeset::Scripts;
using Tokens = std::vector<const Atom*>;

// The atoms that are seen, whatever groups and colours are around them.
void flatten(const List& list, Tokens& tokens) {
  for (const Atom& atom : list) {
    if (const auto* group = std::get_if<Group>(&atom.content)) {
      flatten(group->content, tokens);
    } else if (!std::holds_alternative<typeset::Space>(atom.content)) {
      tokens.push_back(&atom);
    }
  }
}

// The character that an atom is, or that carries its exponent; 0 for any other atom.
char32_t characterOf(const Atom& atom) {
  const auto* symbol = std::get_if<typeset::Symbol>(&nucleusOf(atom).content);
  return symbol != nullptr ? symbol->source : 0;
}

bool hasScripts(const Atom& atom) {
  return std::holds_alternative<Scripts>(atom.content);
}

bool isDigit(char32_t character) {
  return character >= U'0' && character <= U'9';
}

std::optional<Symbol> symbolOf(char32_t character) {
  switch (character) {
    case U'π':
      return Symbol::pi;
    case U'x':
      return Symbol::x;
    case U'y':
      return Symbol::y;
    case U'z':
      return Symbol::z;
    default:
      return std::nullopt;
  }
}

std::optional<Relation> relationOf(const Atom& atom) {
  const char32_t character = hasScripts(atom) ? 0 : characterOf(atom);
  if (character == U'=') return Relation::equal;
  if (character == U'≈') return Relation::approximate;
  return std::nullopt;
}

constexpr slong largestTen = 400;  // exponent of a printed number

// digits · 10^exponent, `places` of the digits behind the point.
Operation numberOf(const std::string& digits, slong places, slong exponent) {
  Operation operation{.kind = Operator::number};
  fmpz* whole = operation.number.numerator();
  slong small = 0;
  if (digits.size() < std::numeric_limits<slong>::digits10) {
    std::from_chars(digits.data(), digits.data() + digits.size(), small);
    fmpz_set_si(whole, small);
  } else {
    fmpz_set_str(whole, digits.c_str(), 10);
  }
  Integer power(10);
  const slong shift = exponent - places;
  if (shift != 0) {
    fmpz_pow_ui(power, power, static_cast<ulong>(std::abs(shift)));
    if (shift > 0)
      fmpz_mul(whole, whole, power);
    else
      operation.number = Rational(whole, power);
  }
  // A point with nothing but zeros behind it is the solver's way to write a whole number.
  const bool isDecimal =
      places > 0 &&
      digits.find_first_not_of('0', digits.size() - static_cast<std::size_t>(places)) != std::string::npos;
  if (isDecimal)
    operation.half = (shift < 0 ? Rational(Integer(1), power) : Rational(power, Integer(1))) / Rational(2);
  const std::size_t first = std::min(digits.find_first_not_of('0'), digits.size());
  const std::size_t last = digits.find_last_not_of('0');
  operation.significantDigits = first == digits.size() ? 0 : static_cast<int>(last - first + 1);
  return operation;
}

// Where in the line an expression stands.
struct Place {
  bool isInExponent = false;
  bool isInDenominator = false;
};

// Reads a list of atoms as one expression, appending its operations. Each operation of reading tells whether
// it could.
class ExpressionReader {
 public:
  ExpressionReader(std::span<const Atom* const> tokens, Place place, std::vector<Operation>& operations)
      : tokens_(tokens), place_(place), operations_(operations) {}

  // A product of products, with signs before them.
  bool read() {
    if (!readSigned()) return false;
    while (!atEnd()) {
      const char32_t sign = next();
      const bool isProduct = sign == U'⋅' || sign == U'·' || sign == U'*' || sign == U'×';
      if (!isProduct && sign != U':' && sign != U'÷') return false;
      ++at_;
      if (!readSigned()) return false;
      add(isProduct ? Operator::multiply : Operator::divide);
    }
    return true;
  }

 private:
  bool atEnd() const { return at_ == tokens_.size(); }
  // The next character that carries no exponent; 0 for any other atom.
  char32_t next() const { return atEnd() || hasScripts(*tokens_[at_]) ? 0 : characterOf(*tokens_[at_]); }
  Operation& add(Operator kind) { return add({.kind = kind}); }
  Operation& add(Operation operation) {
    operation.isInExponent = place_.isInExponent;
    operation.isInDenominator = place_.isInDenominator;
    return operations_.emplace_back(std::move(operation));
  }

  static bool readList(const List& list, Place place, std::vector<Operation>& operations) {
    Tokens tokens;
    tokens.reserve(list.size());
    flatten(list, tokens);
    return ExpressionReader(tokens, place, operations).read();
  }
  bool readInside(const List& list) { return readList(list, place_, operations_); }

  bool readSigned() {
    bool isNegative = false;
    for (; next() == U'-' || next() == U'−' || next() == U'+'; ++at_)
      if (next() != U'+') isNegative = !isNegative;
    return readFactors(isNegative);
  }

  // Factors side by side, equal ones that follow each other as one power. An exponent belongs to the one
  // before it alone.
  bool readFactors(bool isNegative) {
    bool isSignOpen = isNegative;
    bool hasProduct = false;  // of the factors before the copies
    slong copies = 0;         // of the last factor, which begins at `last`
    std::size_t last = operations_.size();
    // What makes the copies one with the product before them, to be put at `place`.
    const auto closeCopies = [&](std::size_t place) {
      std::vector<Operation> closing;
      if (copies > 1) {
        closing.push_back({.number = copies, .isInExponent = true});
        closing.push_back({.kind = Operator::power});
      }
      if (copies > 0 && hasProduct) closing.push_back({.kind = Operator::multiply});
      const auto at = operations_.begin() + static_cast<std::ptrdiff_t>(place);
      operations_.insert(at, closing.begin(), closing.end());
      hasProduct = hasProduct || copies > 0;
      copies = 0;
      return place + closing.size();
    };
    while (!atEnd() && isFactorNext()) {
      const std::size_t start = operations_.size();
      if (!readFactor()) return false;
      const auto* scripts = std::get_if<Scripts>(&tokens_[at_ - 1]->content);
      if (scripts == nullptr && copies > 0 && isCopy(last, start)) {
        operations_.resize(start);
        ++copies;
        continue;
      }
      last = closeCopies(start);
      copies = scripts == nullptr ? 1 : 0;
      if (scripts == nullptr) continue;
      if (scripts->subscript || !scripts->superscript) return false;
      if (!readList(*scripts->superscript, {.isInExponent = true}, operations_)) return false;
      Operation& power = add(Operator::power);
      power.isSigned = std::exchange(isSignOpen, false);
      power.hasFactor = std::exchange(hasProduct, true);
    }
    closeCopies(operations_.size());
    if (isSignOpen) add(Operator::negate);
    return hasProduct;
  }
  // Whether what was read from `start` on is what stands from `last` up to there.
  bool isCopy(std::size_t last, std::size_t start) const {
    const std::span all(operations_);
    return std::ranges::equal(all.subspan(last, start - last), all.subspan(start));
  }

  bool isFactorNext() const {
    const Atom& atom = nucleusOf(*tokens_[at_]);
    if (!std::holds_alternative<typeset::Symbol>(atom.content)) return true;
    const char32_t character = characterOf(atom);
    return isDigit(character) || character == U'.' || character == U'(' || character == U'∞' ||
           symbolOf(character);
  }

  bool readFactor() {
    const Atom& atom = nucleusOf(*tokens_[at_]);
    if (const auto* fraction = std::get_if<Fraction>(&atom.content)) return readFraction(*fraction);
    if (const auto* radical = std::get_if<Radical>(&atom.content)) return readRadical(*radical);
    if (const auto* fence = std::get_if<Fence>(&atom.content)) {
      ++at_;
      return fence->opening == U'(' && fence->closing == U')' && readInside(fence->content);
    }
    if (const auto* group = std::get_if<Group>(&atom.content)) {
      ++at_;
      return readInside(group->content);
    }
    const char32_t character = characterOf(atom);
    if (isDigit(character) || character == U'.') return readNumber();
    if (character == U'(') return readBrackets();
    const auto symbol = symbolOf(character);
    if (!symbol && character != U'∞') return false;
    ++at_;
    add({.kind = symbol ? Operator::symbol : Operator::infinity, .symbol = symbol.value_or(Symbol::pi)});
    return true;
  }

  bool readFraction(const Fraction& fraction) {
    ++at_;
    Place below = place_;
    below.isInDenominator = true;
    if (!readInside(fraction.numerator) || !readList(fraction.denominator, below, operations_)) return false;
    add(Operator::divide);
    return true;
  }

  bool readRadical(const Radical& radical) {
    ++at_;
    if (!readInside(radical.radicand)) return false;
    if (radical.index.empty()) {
      operations_.push_back({.number = 2, .significantDigits = 1, .isInExponent = true});
    } else if (!readList(radical.index, {.isInExponent = true}, operations_)) {
      return false;
    }
    add(Operator::root);
    return true;
  }

  bool readBrackets() {
    if (hasScripts(*tokens_[at_])) return false;
    const std::size_t start = ++at_;
    for (int depth = 1; !atEnd(); ++at_) {
      const char32_t character = characterOf(*tokens_[at_]);
      if (character == U'(') ++depth;
      if (character == U')' && --depth == 0) break;
    }
    if (atEnd()) return false;
    ++at_;
    return ExpressionReader(tokens_.subspan(start, at_ - 1 - start), place_, operations_).read();
  }

  // Digits, a point among them, and the exponent of ten that the solver's printer writes: 1.5e+16.
  bool readNumber() {
    std::string digits;
    slong places = 0;
    bool hasPoint = false;
    const auto take = [&] {
      const Atom& atom = *tokens_[at_++];
      return !hasScripts(atom);
    };
    while (!atEnd()) {
      const char32_t character = characterOf(*tokens_[at_]);
      if (character == U'.' && !hasPoint && !hasScripts(*tokens_[at_])) {
        hasPoint = true;
        ++at_;
      } else if (isDigit(character)) {
        digits += static_cast<char>(character);
        places += hasPoint ? 1 : 0;
        if (!take()) break;
      } else {
        break;
      }
    }
    if (digits.empty()) return false;
    slong exponent = 0;
    if (!hasScripts(*tokens_[at_ - 1]) && next() == U'e' && !readTen(exponent)) return false;
    add(numberOf(digits, places, exponent));
    return true;
  }
  bool readTen(slong& exponent) {
    ++at_;
    const bool isNegative = next() == U'-';
    if (!isNegative && next() != U'+') return false;
    ++at_;
    const std::size_t start = at_;
    while (!atEnd() && isDigit(characterOf(*tokens_[at_])) && exponent < largestTen) {
      exponent = 10 * exponent + static_cast<slong>(characterOf(*tokens_[at_]) - U'0');
      if (hasScripts(*tokens_[at_++])) break;
    }
    if (at_ == start || exponent >= largestTen) return false;
    if (isNegative) exponent = -exponent;
    return true;
  }

  std::span<const Atom* const> tokens_;
  std::size_t at_ = 0;
  Place place_;
  std::vector<Operation>& operations_;
};

Expression expressionOf(std::span<const Atom* const> tokens) {
  std::vector<Operation> operations;
  operations.reserve(tokens.size());
  if (!ExpressionReader(tokens, {}, operations).read()) return std::nullopt;
  return operations;
}

}  // namespace

Line readLine(std::string_view latex) {
  const typeset::Formula formula = typeset::parse(latex);
  Tokens tokens;
  tokens.reserve(formula.list.size());
  flatten(formula.list, tokens);
  Line line;
  if (tokens.empty()) return line;
  line.isContinued = relationOf(*tokens.front()).has_value();
  std::size_t start = 0;
  for (std::size_t i = 0; i <= tokens.size(); ++i) {
    const auto relation = i < tokens.size() ? relationOf(*tokens[i]) : std::nullopt;
    if (i < tokens.size() && !relation) continue;
    if (i > 0) line.sides.push_back(expressionOf(std::span(tokens).subspan(start, i - start)));
    if (relation) line.relations.push_back(*relation);
    start = i + 1;
  }
  return line;
}

}  // namespace tavi::exact
