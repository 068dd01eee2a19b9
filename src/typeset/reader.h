#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "typeset/parse_tree.h"

namespace tavi::typeset {

/// What ends a list, beside the end of the line.
enum class Until : std::uint8_t { brace, bracket, right };

/// Goes through a line once, from left to right, and makes its tree. The constructs take from it what stands
/// behind their commands.
class Reader {
 public:
  using Position = std::size_t;  ///< index of a character in the line

  explicit Reader(std::string_view latex);

  /// The whole line; to be called once.
  Formula formula();

  [[nodiscard]] Position position() const { return position_; }
  [[nodiscard]] bool at(char32_t character) const { return !atEnd() && line_[position_] == character; }
  /// Whether `\right` comes next.
  [[nodiscard]] bool atRight() const;
  void skip() { ++position_; }  ///< one character, which is there
  void skipBlanks();
  void skipCommandName();

  /// The atoms up to what ends the list, which is left there; nothing when that nests too deep.
  std::optional<List> nested(Until until);
  /// What a command or a script takes: a group, or the next atom. Nothing is taken when there is none.
  std::optional<List> argument();
  /// The characters between the braces of an argument that is no mathematics.
  std::optional<std::u32string> rawArgument();
  /// One of `plain`, or one of `escaped` behind a backslash, blanks before it left out. Nothing is taken when
  /// there is none.
  std::optional<char32_t> oneOf(std::u32string_view plain, std::u32string_view escaped);

  /// The piece from `start` to `end` could not be read: it stands in the line as typed, and the line is at
  /// fault.
  void unreadable(List& into, Position start, Position end, std::string message);

  /// The character at `position`, or the one that a command there stands for.
  void symbol(List& into, char32_t character, Position position) const;

  [[nodiscard]] bool isUpright() const { return isUpright_; }
  void setUpright(bool isUpright) { isUpright_ = isUpright; }

  static bool isLetter(char32_t character);
  /// Characters that stand for nothing to be seen, and bytes that are no character.
  static bool isControl(char32_t character);
  static std::string tooDeep();

 private:
  [[nodiscard]] bool atEnd() const { return position_ == line_.size(); }
  [[nodiscard]] std::u32string_view from(Position start) const {
    return std::u32string_view(line_).substr(start, position_ - start);
  }
  List list(Until until);
  void atom(List& into);
  void command(List& into);
  // Reads `{…}` into `content`. False when it is no whole group: the braces then stand among the content as
  // typed.
  bool braces(List& content);
  // Moves behind the group that starts here, however deep it goes. False when it ends with the line.
  bool skipGroup();
  void fail(Position where, std::string message);

  std::u32string line_;
  Position position_ = 0;
  int nesting_ = 0;
  int openBraces_ = 0;
  bool isUpright_ = false;
  std::optional<Error> error_;
};

/// Moves the atoms of `list` behind those of `into`.
void append(List& into, List list);

}  // namespace tavi::typeset
