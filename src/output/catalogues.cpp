#include "output/catalogues.h"

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

// A letter, digit or underscore; all of UTF-8 beyond ASCII counts as letters, so that "µm" is one word.
bool isWordCharacter(char character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
         (character >= '0' && character <= '9') || character == '_' ||
         static_cast<signed char>(character) < 0;
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
  if (!targetUnit || targetUnit->key == defaultUnitKey) return std::string(text);
  const std::string& replacement = useKey ? targetUnit->key : targetUnit->latex;
  std::string result;
  std::size_t from = 0;
  for (std::size_t at = text.find(defaultUnitKey); at != std::string_view::npos;
       at = text.find(defaultUnitKey, from)) {
    const std::size_t end = at + defaultUnitKey.size();
    const bool isWhole =
        (at == 0 || !isWordCharacter(text[at - 1])) && (end == text.size() || !isWordCharacter(text[end]));
    result += text.substr(from, at - from);
    result += isWhole ? std::string_view(replacement) : text.substr(at, defaultUnitKey.size());
    from = end;
  }
  result += text.substr(from);
  return result;
}

TaviFormulaCalculation::TaviFormulaCalculation()
    : operation(TaviMathOperation::shared()), output(TaviStringOutput::shared()) {}

}  // namespace tavi
