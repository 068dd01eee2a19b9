#include "typeset/parser.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "typeset/symbols.h"
#include "typeset/utf8.h"

namespace tavi::typeset {
namespace {

enum class Until : std::uint8_t { brace, bracket, right };

bool isBlank(char32_t character) {
  return character == U' ' || character == U'\t' || character == U'\n' || character == U'\r';
}

bool isLetter(char32_t character) {
  return (character >= U'a' && character <= U'z') || (character >= U'A' && character <= U'Z');
}

bool isControl(char32_t character) {
  return character < 0x20 || (character >= 0x7F && character < 0xA0) || character == noCharacter;
}

class Parser {
 public:
  explicit Parser(std::string_view latex) : line_(decodeUtf8(latex)) {}

  Formula run() {
    List atoms = list(Until::brace);
    return {.list = std::move(atoms), .error = std::move(error_)};
  }

 private:
  using Position = std::size_t;

  [[nodiscard]] bool atEnd() const { return position_ == line_.size(); }
  [[nodiscard]] bool at(char32_t character) const { return !atEnd() && line_[position_] == character; }
  [[nodiscard]] std::u32string_view from(Position start) const {
    return std::u32string_view(line_).substr(start, position_ - start);
  }
  void skipBlanks() {
    while (!atEnd() && isBlank(line_[position_])) ++position_;
  }

  // Moves behind `\name` and gives the name; a name is a run of letters or any one other character.
  std::string commandName() {
    const Position start = ++position_;
    while (!atEnd() && isLetter(line_[position_])) ++position_;
    if (position_ == start && !atEnd()) ++position_;
    return encodeUtf8(from(start));
  }

  [[nodiscard]] bool atRight() const {
    constexpr std::u32string_view right = U"\\right";
    return std::u32string_view(line_).substr(position_).starts_with(right) &&
           (position_ + right.size() == line_.size() || !isLetter(line_[position_ + right.size()]));
  }

  void fail(Position where, std::string message) {
    if (!error_) error_ = Error{.message = std::move(message), .position = where};
  }

  // What was read since `start` stands in the line as it was typed.
  void unreadable(List& into, Position start, std::string message) {
    fail(start, std::move(message));
    into.push_back({Text{.characters = std::u32string(from(start)),
                         .isUnreadable = true,
                         .position = static_cast<std::uint32_t>(start)}});
  }

  static void append(List& into, List&& list) {
    into.insert(into.end(), std::make_move_iterator(list.begin()), std::make_move_iterator(list.end()));
  }

  List list(Until until) {
    List atoms;
    while (!atEnd()) {
      if (at(U'}') && openBraces_ > 0) break;
      if (until == Until::bracket && at(U']')) break;
      if (until == Until::right && atRight()) break;
      if (isBlank(line_[position_])) {
        ++position_;
      } else if (at(U'^') || at(U'_')) {
        script(atoms);
      } else {
        atom(atoms);
      }
    }
    return atoms;
  }

  void atom(List& into) {
    const Position start = position_;
    const char32_t character = line_[position_];
    if (character == U'{') {
      List content;
      if (braces(content)) {
        into.push_back({Group{.content = std::move(content)}});
      } else {
        append(into, std::move(content));
      }
    } else if (character == U'\\') {
      command(into);
    } else {
      ++position_;
      if (character == U'}') {
        unreadable(into, start, "} without {");
      } else if (isControl(character)) {
        unreadable(into, start, "unreadable character");
      } else {
        symbol(into, character, start);
      }
    }
  }

  void symbol(List& into, char32_t character, Position start) const {
    Symbol read = symbolFor(character, isUpright_);
    read.position = static_cast<std::uint32_t>(start);
    into.push_back({read});
  }

  // Reads `{…}` into `content`. False when it is no whole group: the braces then stand among the content as
  // typed.
  bool braces(List& content) {
    const Position start = position_;
    if (nesting_ == maximumNesting) {
      skipGroup();
      unreadable(content, start, tooDeep());
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
      const Position end = std::exchange(position_, start + 1);
      unreadable(content, start, "{ without }");
      position_ = end;
    }
    append(content, std::move(inside));
    return isClosed;
  }

  // Moves behind the group that starts here, however deep it goes.
  void skipGroup() {
    std::size_t open = 0;
    do {
      const char32_t character = line_[position_++];
      if (character == U'\\' && !atEnd()) ++position_;
      if (character == U'{') ++open;
      if (character == U'}') --open;
    } while (open > 0 && !atEnd());
  }

  static std::string tooDeep() {
    return "nested more than " + std::to_string(maximumNesting) + " levels deep";
  }

  // What a command or a script takes: a group, or the next atom. Nothing is moved when there is none.
  std::optional<List> argument() {
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

  // The characters between the braces of an argument that is no mathematics.
  std::optional<std::u32string> rawArgument() {
    skipBlanks();
    if (!at(U'{')) return std::nullopt;
    const Position start = position_;
    skipGroup();
    if (line_[position_ - 1] != U'}' || position_ - start < 2) {
      position_ = start;
      return std::nullopt;
    }
    return std::u32string(from(start).substr(1, position_ - start - 2));
  }

  void script(List& into) {
    const Position start = position_;
    const bool isSuper = at(U'^');
    ++position_;
    const std::string sign = isSuper ? "^" : "_";
    if (into.empty() || std::holds_alternative<Space>(into.back().content)) {
      unreadable(into, start, sign + " has nothing before it");
      return;
    }
    auto* scripts = std::get_if<Scripts>(&into.back().content);
    if (scripts != nullptr && (isSuper ? scripts->superscript : scripts->subscript)) {
      unreadable(into, start, "second " + sign + " on the same base");
      return;
    }
    auto content = argument();
    if (!content) {
      unreadable(into, start, sign + " has nothing after it");
      return;
    }
    if (scripts == nullptr) {
      List nucleus;
      nucleus.push_back(std::move(into.back()));
      into.back() = {Scripts{.nucleus = std::move(nucleus), .superscript = {}, .subscript = {}}};
      scripts = std::get_if<Scripts>(&into.back().content);
    }
    (isSuper ? scripts->superscript : scripts->subscript) = std::move(content);
  }

  void command(List& into) {
    const Position start = position_;
    const std::string name = commandName();
    const Command* command = findCommand(name);
    if (command == nullptr) {
      unreadable(into, start, name.empty() ? "\\ without a command" : "unknown command \\" + name);
      return;
    }
    switch (command->kind) {
      case CommandKind::symbol:
        return symbol(into, command->symbol, start);
      case CommandKind::space:
        into.push_back({Space{command->mu}});
        return;
      case CommandKind::function:
        into.push_back({Text{.characters = std::u32string(name.begin(), name.end()),
                             .atomClass = AtomClass::operation,
                             .position = static_cast<std::uint32_t>(start)}});
        return;
      case CommandKind::fraction:
        return fraction(into, start);
      case CommandKind::root:
        return root(into, start);
      case CommandKind::left:
        return fence(into, start);
      case CommandKind::right:
        return unreadable(into, start, "\\right without \\left");
      case CommandKind::color:
        return color(into, start);
      case CommandKind::text:
        return text(into, start);
      case CommandKind::upright:
        return upright(into, start);
    }
  }

  void fraction(List& into, Position start) {
    const Position nameEnd = position_;
    auto numerator = argument();
    auto denominator = numerator ? argument() : std::nullopt;
    if (numerator && denominator) {
      into.push_back({Fraction{.numerator = *std::move(numerator), .denominator = *std::move(denominator)}});
      return;
    }
    keepAsTyped(into, start, nameEnd, "\\frac needs two arguments", numerator);
  }

  // The command alone could not be read: it stands as typed, what was read of its arguments follows.
  void keepAsTyped(List& into, Position start, Position nameEnd, std::string message,
                   std::optional<List>& read) {
    const Position end = std::exchange(position_, nameEnd);
    unreadable(into, start, std::move(message));
    position_ = end;
    if (read) append(into, *std::move(read));
  }

  void root(List& into, Position start) {
    Position nameEnd = position_;
    std::optional<List> index;
    skipBlanks();
    if (at(U'[')) {
      nameEnd = ++position_;
      if (nesting_ == maximumNesting) return unreadable(into, start, tooDeep());
      ++nesting_;
      index = list(Until::bracket);
      --nesting_;
      if (!at(U']')) return keepAsTyped(into, start, nameEnd, "[ without ]", index);
      ++position_;
    }
    auto radicand = argument();
    if (!radicand) return keepAsTyped(into, start, nameEnd, "\\sqrt needs an argument", index);
    into.push_back({Radical{.index = std::move(index).value_or(List{}), .radicand = *std::move(radicand)}});
  }

  // The delimiter behind `\left` or `\right`: 0 for the invisible one, nothing when there is none.
  std::optional<char32_t> delimiter() {
    const Position start = position_;
    skipBlanks();
    const bool isEscaped = at(U'\\');
    if (isEscaped) ++position_;
    const std::u32string_view delimiters = isEscaped ? U"{}" : U"()[]|.";
    if (atEnd() || delimiters.find(line_[position_]) == std::u32string_view::npos) {
      position_ = start;
      return std::nullopt;
    }
    const char32_t character = line_[position_++];
    return character == U'.' ? char32_t{0} : character;
  }

  void fence(List& into, Position start) {
    const auto opening = delimiter();
    if (!opening) return unreadable(into, start, "\\left needs a delimiter");
    if (nesting_ == maximumNesting) return unreadable(into, start, tooDeep());
    const Position openingEnd = position_;
    ++nesting_;
    std::optional<List> content = list(Until::right);
    --nesting_;
    if (!atRight()) return keepAsTyped(into, start, openingEnd, "\\left without \\right", content);
    const Position right = position_;
    commandName();
    const auto closing = delimiter();
    into.push_back(
        {Fence{.opening = *opening, .closing = closing.value_or(0), .content = *std::move(content)}});
    if (!closing) unreadable(into, right, "\\right needs a delimiter");
  }

  void color(List& into, Position start) {
    const auto name = rawArgument();
    const Position nameEnd = position_;
    if (!name) return unreadable(into, start, "\\color needs a colour in braces");
    const auto rgb = colorFor(*name);
    auto content = argument();
    if (!rgb) return keepAsTyped(into, start, nameEnd, "unknown colour " + encodeUtf8(*name), content);
    if (!content) return unreadable(into, start, "\\color needs something to colour");
    into.push_back({Group{.content = *std::move(content), .color = rgb}});
  }

  void text(List& into, Position start) {
    auto characters = rawArgument();
    if (!characters) return unreadable(into, start, "\\text needs an argument in braces");
    if (std::ranges::any_of(*characters, isControl)) return unreadable(into, start, "unreadable character");
    into.push_back(
        {Text{.characters = withoutMarkup(*characters), .position = static_cast<std::uint32_t>(start)}});
  }

  // Running text without its inner braces and the backslashes of escaped characters.
  static std::u32string withoutMarkup(std::u32string_view raw) {
    std::u32string plain;
    for (std::size_t index = 0; index < raw.size(); ++index) {
      if (raw[index] == U'{' || raw[index] == U'}') continue;
      if (raw[index] == U'\\' && index + 1 < raw.size() && !isLetter(raw[index + 1])) ++index;
      plain.push_back(raw[index]);
    }
    return plain;
  }

  void upright(List& into, Position start) {
    const Position nameEnd = position_;
    const bool wasUpright = std::exchange(isUpright_, true);
    auto content = argument();
    isUpright_ = wasUpright;
    if (!content) return keepAsTyped(into, start, nameEnd, "\\mathrm needs an argument", content);
    into.push_back({Group{.content = *std::move(content)}});
  }

  std::u32string line_;
  Position position_ = 0;
  int nesting_ = 0;
  int openBraces_ = 0;
  bool isUpright_ = false;
  std::optional<Error> error_;
};

}  // namespace

Formula parse(std::string_view latex) {
  return Parser(latex).run();
}

}  // namespace tavi::typeset
