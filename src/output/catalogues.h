#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json_fwd.hpp>

namespace tavi {

class TaviMathOperation;
class TaviStringOutput;

// The records of the catalogues. Their JSON keys are the field names; an optional field that is absent is
// left out. Decoding throws nlohmann::json::exception where a required field is missing or of another type.

struct Formula {
  std::string category;
  std::string subcategory;
  std::string topic;
  std::string type;
  std::string imageName;
  std::string searched;
  std::vector<std::string> given;
  std::string latex;
  std::string identifier;
  std::optional<std::vector<std::string>> conditions;
  std::string description;
};

struct Symbol {
  std::string category;
  std::string subcategory;
  std::string topic;
  std::string key;    ///< The symbol as written in a format line.
  std::string latex;  ///< What replaces the key.
  std::string name;
  std::string unit;  ///< Key of a `Unit`.
  std::optional<std::vector<std::string>> rules;
};

struct Unit {
  std::string key;  ///< Short form, as it stands in a formula line.
  std::string latex;
  std::string name;
  double factor = 0;  ///< Multiplies a value in this unit into the default unit.
};

// No caller of `to_json` here.
void to_json(nlohmann::json& json, const Formula& formula);
void from_json(const nlohmann::json& json, Formula& formula);
void to_json(nlohmann::json& json, const Symbol& symbol);
void from_json(const nlohmann::json& json, Symbol& symbol);
void to_json(nlohmann::json& json, const Unit& unit);
void from_json(const nlohmann::json& json, Unit& unit);

struct TaviFormula {
  std::vector<Formula> formulas;
};

struct TaviFormulaSymbol {
  static TaviFormulaSymbol& shared();

  std::vector<Symbol> symbols;
};

/// Thrown by the loader of units.
enum class FormulaError { configurationFailed };

/// The content of a resource of the application by name and extension; absent when there is none or it cannot
/// be read.
using ResourceReader =
    std::function<std::optional<std::string>(std::string_view name, std::string_view extension)>;

/// The units in which formula lines can be written.
class TaviFormulaUnit {
 public:
  /// Loads "unitsOfLength"; a failure is printed to standard error and leaves `units` empty.
  explicit TaviFormulaUnit(ResourceReader reader);

  /// Made on first use with the reader installed then; without one it has no units.
  static TaviFormulaUnit& shared();
  static void installReader(ResourceReader reader);

  /// Replaces `units` by the JSON array of the resource. Missing or unreadable: throws
  /// FormulaError::configurationFailed; malformed: throws nlohmann::json::exception, and `units` stay.
  void loadUnits(std::string_view resourceName);

  // No caller here.
  /// `text` with the default unit, as a whole word, replaced by the key of `targetUnit` or, without `useKey`,
  /// by its LaTeX. Unchanged when there is no other target.
  std::string unitText(std::string_view text, bool useKey) const;

  std::string defaultUnitKey = "m";
  std::vector<Unit> units;
  std::optional<Unit> targetUnit;

 private:
  ResourceReader reader_;
};

// No caller here.
struct TaviFormulaCalculation {
  TaviFormulaCalculation();

  TaviMathOperation& operation;
  TaviStringOutput& output;
  int decimalPlaces = 12;
};

// No caller here.
struct TaviFormulaCheck {};

}  // namespace tavi
