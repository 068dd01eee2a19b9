#include "typeset/reader.h"

#include <iterator>
#include <utility>

#include "typeset/commands.h"
#include "typeset/parser.h"
#include "typeset/utf8.h"

namespace tavi::typeset {
namespace {

bool isBlank(char32_t character) {
  return character == U' ' || character == U'\t' || character == U'\n' || character == U'\r';
}

}  // namespace

Reader::Reader(std::string_view latex) : line_(decodeUtf8(latex)) {}

Formula Reader::formula() {
  List atoms = list(Until::brace);
  return {.list = std::move(atoms), .error = std::move(error_)};
}

bool Reader::isLetter(char32_t character) {
  return (character >= U'a' && character <= U'z') || (character >= U'A' && character <= U'Z');
}

bool Reader::isControl(char32_t character) {
  return character < 0x20 || (character >= 0x7F && character < 0xA0) || character == noCharacter;
}

std::string Reader::tooDeep() {
  return "nested more than " + std::to_string(maximumNesting) + " levels deep";
}

bool Reader::atRight() const {
  constexpr std::u32string_view right = U"\\right";
  if (!at(right.front())) return false;
  const auto rest = std::u32string_view(line_).substr(position_);
  return rest.starts_with(right) && (rest.size() == right.size() || !isLetter(rest[right.size()]));
}

void Reader::skipBlanks() {
  while (!atEnd() && isBlank(line_[position_])) ++position_;
}

// A name is a run of letters or any one other character.
void Reader::skipCommandName() {
  const Position start = ++position_;
  while (!atEnd() && isLetter(line_[position_])) ++position_;
  if (position_ == start && !atEnd()) ++position_;
}

void Reader::fail(Position where, std::string message) {
  if (!error_) error_ = Error{.message = std::move(message), .position = where};
}

void Reader::unreadable(List& into, Position start, Position end, std::string message) {
  fail(start, std::move(message));
  into.emplace_back().content = Text{.characters = line_.substr(start, end - start),
                                     .isUnreadable = true,
                                     .position = static_cast<std::uint32_t>(start)};
}

List Reader::list(Until until) {
  List atoms;
  if (nesting_ == 0) atoms.reserve(8);  // a line has several atoms, most arguments one
  while (!atEnd()) {
    if (at(U'}') && openBraces_ > 0) break;
    if (until == Until::bracket && at(U']')) break;
    if (until == Until::right && atRight()) break;
    if (isBlank(line_[position_])) {
      ++position_;
    } else if (at(U'^') || at(U'_')) {
      Scripts::read(*this, atoms);
    } else {
      atom(atoms);
    }
  }
  return atoms;
}

std::optional<List> Reader::nested(Until until) {
  if (nesting_ == maximumNesting) return std::nullopt;
  ++nesting_;
  List atoms = list(until);
  --nesting_;
  return atoms;
}

void Reader::atom(List& into) {
  const Position start = position_;
  const char32_t character = line_[position_];
  if (character == U'{') {
    List content;
    if (braces(content)) {
      into.emplace_back().content = Group{.content = std::move(content)};
    } else {
      append(into, std::move(content));
    }
  } else if (character == U'\\') {
    command(into);
  } else {
    ++position_;
    if (character == U'}') {
      unreadable(into, start, position_, "} without {");
    } else if (isControl(character)) {
      unreadable(into, start, position_, "unreadable character");
    } else {
      symbol(into, character, start);
    }
  }
}

void Reader::symbol(List& into, char32_t character, Position position) const {
  Symbol symbol = Symbol::of(character, isUpright_);
  symbol.position = static_cast<std::uint32_t>(position);
  into.emplace_back().content = symbol;
}

void Reader::command(List& into) {
  const Position start = position_;
  skipCommandName();
  const std::string name = encodeUtf8(from(start + 1));
  if (const Command* command = findCommand(name)) {
    command->read(*this, {.command = *command, .start = start, .end = position_}, into);
  } else {
    unreadable(into, start, position_, name.empty() ? "\\ without a command" : "unknown command \\" + name);
  }
}

bool Reader::braces(List& content) {
  const Position start = position_;
  if (nesting_ == maximumNesting) {
    skipGroup();
    unreadable(content, start, position_, tooDeep());
    return false;
  }
  ++position_;
  ++nesting_;
  ++openBraces_;
  List inside = list(Until::brace);
  --openBraces_;
  --nesting_;
  const bool isClosed = at(U'}');
  if (isClosed) {
    ++position_;
  } else {
    unreadable(content, start, start + 1, "{ without }");
  }
  append(content, std::move(inside));
  return isClosed;
}

bool Reader::skipGroup() {
  std::size_t open = 0;
  do {
    const char32_t character = line_[position_++];
    if (character == U'\\' && !atEnd()) ++position_;
    if (character == U'{') ++open;
    if (character == U'}') --open;
  } while (open > 0 && !atEnd());
  return open == 0;
}

std::optional<List> Reader::argument() {
  const Position start = position_;
  skipBlanks();
  if (atEnd() || at(U'}') || at(U'^') || at(U'_') || atRight()) {
    position_ = start;
    return std::nullopt;
  }
  List content;
  if (at(U'{')) {
    braces(content);
    return content;
  }
  if (nesting_ == maximumNesting) {
    fail(position_, tooDeep());
    position_ = start;
    return std::nullopt;
  }
  ++nesting_;
  atom(content);
  --nesting_;
  return content;
}

std::optional<std::u32string> Reader::rawArgument() {
  const Position start = position_;
  skipBlanks();
  const Position opening = position_;
  if (!at(U'{') || !skipGroup()) {
    position_ = start;
    return std::nullopt;
  }
  return line_.substr(opening + 1, position_ - opening - 2);
}

std::optional<char32_t> Reader::oneOf(std::u32string_view plain, std::u32string_view escaped) {
  const Position start = position_;
  skipBlanks();
  const bool isEscaped = at(U'\\');
  if (isEscaped) ++position_;
  if (atEnd() || (isEscaped ? escaped : plain).find(line_[position_]) == std::u32string_view::npos) {
    position_ = start;
    return std::nullopt;
  }
  return line_[position_++];
}

void append(List& into, List list) {
  into.insert(into.end(), std::make_move_iterator(list.begin()), std::make_move_iterator(list.end()));
}

Formula parse(std::string_view latex) {
  return Reader(latex).formula();
}

}  // namespace tavi::typeset
