#include "output/catalogues.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <utility>

#include <nlohmann/json.hpp>

#include "number/math_operation.h"
#include "output/string_output.h"

namespace tavi {

namespace {

using nlohmann::json;
using Texts = std::vector<std::string>;

void writeOptional(json& object, const char* key, const std::optional<Texts>& value) {
  if (value) object[key] = *value;
}

std::optional<Texts> readOptional(const json& object, const char* key) {
  const auto found = object.find(key);
  if (found == object.end() || found->is_null()) return std::nullopt;
  return found->get<Texts>();
}

ResourceReader& installedReader() {
  static ResourceReader reader;
  return reader;
}

// What is no letter beyond ASCII: the signs of Latin-1, punctuation, raised and lowered digits, currencies,
// arrows and operators. The letter-like signs between them (Ω, Å) are letters.
struct Signs {
  std::string_view first, last;
};
constexpr auto signs = std::to_array<Signs>({{"\u0080", "©"},
                                             {"«", "´"},
                                             {"¶", "¹"},
                                             {"»", "¿"},
                                             {"×", "×"},
                                             {"÷", "÷"},
                                             {"\u2000", "\u20FF"},
                                             {"\u2190", "\u2BFF"},
                                             {"\u3000", "\u3004"}});

// `character` is one of UTF-8, whose bytes are in the order of the characters; empty beyond the ends of a
// text.
bool isWordCharacter(std::string_view character) {
  if (character.empty()) return false;
  const char first = character.front();
  if (static_cast<signed char>(first) >= 0) {
    return (first >= 'a' && first <= 'z') || (first >= 'A' && first <= 'Z') ||
           (first >= '0' && first <= '9') || first == '_';
  }
  return std::ranges::none_of(
      signs, [character](const Signs& range) { return range.first <= character && character <= range.last; });
}

bool isContinuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

std::string_view firstCharacter(std::string_view text) {
  std::size_t end = std::min<std::size_t>(1, text.size());
  while (end < text.size() && isContinuation(text[end])) ++end;
  return text.substr(0, end);
}

std::string_view lastCharacter(std::string_view text) {
  std::size_t start = text.empty() ? 0 : text.size() - 1;
  while (start > 0 && isContinuation(text[start])) --start;
  return text.substr(start);
}

bool isWithinWord(std::string_view before, std::string_view behind) {
  return isWordCharacter(lastCharacter(before)) && isWordCharacter(firstCharacter(behind));
}

}  // namespace

void to_json(json& json, const Formula& formula) {
  json = {{"category", formula.category},     {"subcategory", formula.subcategory},
          {"topic", formula.topic},           {"type", formula.type},
          {"imageName", formula.imageName},   {"searched", formula.searched},
          {"given", formula.given},           {"latex", formula.latex},
          {"identifier", formula.identifier}, {"description", formula.description}};
  writeOptional(json, "conditions", formula.conditions);
}

void from_json(const json& json, Formula& formula) {
  json.at("category").get_to(formula.category);
  json.at("subcategory").get_to(formula.subcategory);
  json.at("topic").get_to(formula.topic);
  json.at("type").get_to(formula.type);
  json.at("imageName").get_to(formula.imageName);
  json.at("searched").get_to(formula.searched);
  json.at("given").get_to(formula.given);
  json.at("latex").get_to(formula.latex);
  json.at("identifier").get_to(formula.identifier);
  formula.conditions = readOptional(json, "conditions");
  json.at("description").get_to(formula.description);
}

void to_json(json& json, const Symbol& symbol) {
  json = {{"category", symbol.category}, {"subcategory", symbol.subcategory},
          {"topic", symbol.topic},       {"key", symbol.key},
          {"latex", symbol.latex},       {"name", symbol.name},
          {"unit", symbol.unit}};
  writeOptional(json, "rules", symbol.rules);
}

void from_json(const json& json, Symbol& symbol) {
  json.at("category").get_to(symbol.category);
  json.at("subcategory").get_to(symbol.subcategory);
  json.at("topic").get_to(symbol.topic);
  json.at("key").get_to(symbol.key);
  json.at("latex").get_to(symbol.latex);
  json.at("name").get_to(symbol.name);
  json.at("unit").get_to(symbol.unit);
  symbol.rules = readOptional(json, "rules");
}

void to_json(json& json, const Unit& unit) {
  json = {{"key", unit.key}, {"latex", unit.latex}, {"name", unit.name}, {"factor", unit.factor}};
}

void from_json(const json& json, Unit& unit) {
  json.at("key").get_to(unit.key);
  json.at("latex").get_to(unit.latex);
  json.at("name").get_to(unit.name);
  json.at("factor").get_to(unit.factor);
}

TaviFormulaSymbol& TaviFormulaSymbol::shared() {
  static TaviFormulaSymbol instance;
  return instance;
}

TaviFormulaUnit::TaviFormulaUnit(ResourceReader reader) : reader_(std::move(reader)) {
  try {
    loadUnits("unitsOfLength");
  } catch (const FormulaError&) {
    std::fputs("unitsOfLength: configurationFailed\n", stderr);
  } catch (const json::exception& error) {
    std::fprintf(stderr, "unitsOfLength: %s\n", error.what());
  }
}

TaviFormulaUnit& TaviFormulaUnit::shared() {
  static TaviFormulaUnit instance(installedReader());
  return instance;
}

void TaviFormulaUnit::installReader(ResourceReader reader) {
  installedReader() = std::move(reader);
}

void TaviFormulaUnit::loadUnits(std::string_view resourceName) {
  const auto content = reader_ ? reader_(resourceName, "json") : std::nullopt;
  if (!content) throw FormulaError{FormulaError::configurationFailed};
  units = json::parse(*content).get<std::vector<Unit>>();
}

std::string TaviFormulaUnit::unitText(std::string_view text, bool useKey) const {
  const std::string_view unit = defaultUnitKey;
  if (!targetUnit || targetUnit->key == unit || unit.empty()) return std::string(text);
  const std::string& replacement = useKey ? targetUnit->key : targetUnit->latex;
  std::string result;
  std::size_t from = 0;
  for (std::size_t at = text.find(unit); at != std::string_view::npos; at = text.find(unit, from)) {
    const std::size_t end = at + unit.size();
    const bool isWhole = !isWithinWord(text.substr(0, at), unit) && !isWithinWord(unit, text.substr(end));
    result += text.substr(from, at - from);
    result += isWhole ? std::string_view(replacement) : unit;
    from = end;
  }
  result += text.substr(from);
  return result;
}

TaviFormulaCalculation::TaviFormulaCalculation()
    : operation(TaviMathOperation::shared()), output(TaviStringOutput::shared()) {}

}  // namespace tavi
