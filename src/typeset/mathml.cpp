#include "typeset/mathml.h"

#include <algorithm>
#include <array>
#include <optional>

#include "typeset/utf8.h"

namespace tavi::typeset {
namespace {

constexpr std::string_view emptyRow = "<mrow></mrow>";

bool isRelation(const Atom& atom) {
  const auto* symbol = std::get_if<Symbol>(&atom.content);
  return symbol != nullptr && symbol->atomClass == AtomClass::relation;
}

/// The digit that the atom is, or that carries its scripts.
std::optional<char32_t> numeralOf(const Atom& atom) {
  const auto* symbol = std::get_if<Symbol>(&nucleusOf(atom).content);
  return symbol != nullptr && isNumeral(symbol->source) ? std::optional(symbol->source) : std::nullopt;
}

}  // namespace

std::string mathml(const List& line) {
  return element("math", mathmlRow(line), R"( xmlns="http://www.w3.org/1998/Math/MathML" display="block")");
}

std::string mathmlRow(const List& atoms) {
  std::string row;
  std::size_t elements = 0;
  std::string number;  // read but not written yet
  const auto write = [&](const std::string& written) {
    row += written;
    ++elements;
  };
  const auto writeNumber = [&] {
    if (!number.empty()) write(element("mn", number));
    number.clear();
  };
  if (!atoms.empty() && isRelation(atoms.front())) write(std::string(emptyRow));
  for (const Atom& atom : atoms) {
    const std::optional<char32_t> numeral = numeralOf(atom);
    if (numeral) number += static_cast<char>(*numeral);
    const bool isScripted = std::holds_alternative<Scripts>(atom.content);
    if (numeral && !isScripted) continue;
    std::string written = std::visit([](const auto& construct) { return construct.mathml(); }, atom.content);
    if (numeral) {
      // The scripts of a number are those of all its digits.
      const std::string last = element("mn", std::string(1, number.back()));
      written.replace(written.find(last), last.size(), element("mn", number));
      number.clear();
    }
    writeNumber();
    write(written);
  }
  writeNumber();
  return elements == 1 ? row : element("mrow", row);
}

std::string mathmlBase(const List& nucleus) {
  constexpr auto whole =
      std::to_array<std::string_view>({"<mi>", "<mi ", "<mn>", "<mo>", "<mo ", "<mtext>", "<mrow>"});
  const std::string base = mathmlRow(nucleus);
  const bool isWhole =
      std::ranges::any_of(whole, [&](std::string_view tag) { return base.starts_with(tag); });
  return isWhole ? base : element("mrow", std::string(emptyRow) + base);
}

std::string element(std::string_view name, std::string_view content, std::string_view attributes) {
  std::string written;
  written.reserve(2 * name.size() + content.size() + attributes.size() + 5);
  written.append("<").append(name).append(attributes).append(">").append(content);
  return written.append("</").append(name).append(">");
}

std::string escaped(std::u32string_view characters) {
  std::string written;
  for (const char32_t character : characters) {
    switch (character) {
      case U'<':
        written += "&lt;";
        break;
      case U'>':
        written += "&gt;";
        break;
      case U'&':
        written += "&amp;";
        break;
      default:
        // Control characters other than blanks are none of XML's.
        if (character >= U' ' || character == U'\t') written += encodeUtf8({&character, 1});
    }
  }
  return written;
}

bool isNumeral(char32_t character) {
  return (character >= U'0' && character <= U'9') || character == U'.';
}

}  // namespace tavi::typeset
