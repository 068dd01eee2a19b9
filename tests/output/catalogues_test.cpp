#include "output/catalogues.h"

#include <algorithm>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "platform/resource_bundle.h"

namespace tavi {
namespace {

using nlohmann::json;

ResourceReader always(const std::optional<std::string>& content) {
  return [content](std::string_view, std::string_view) { return content; };
}

TEST(Catalogues, RecordsAreCodedUnderTheirFieldNames) {
  const json symbol = json::parse(R"({"category":"c","subcategory":"s","topic":"t","key":"a","latex":"a_1",
      "name":"n","unit":"m"})");
  EXPECT_EQ(json(symbol.get<Symbol>()), symbol);

  json formula = json::parse(R"({"category":"c","subcategory":"s","topic":"t","type":"y","imageName":"i",
      "searched":"x","given":["a","b"],"latex":"l","identifier":"id","description":"d"})");
  EXPECT_EQ(json(formula.get<Formula>()), formula);
  formula["conditions"] = json::array();
  EXPECT_EQ(json(formula.get<Formula>()), formula);
  formula["conditions"] = nullptr;
  EXPECT_EQ(formula.get<Formula>().conditions, std::nullopt);
  formula.erase("latex");
  EXPECT_THROW(formula.get<Formula>(), json::exception);
}

TEST(Catalogues, TheShippedUnitsLoad) {
  const TaviFormulaUnit catalogue(readResource);
  ASSERT_FALSE(catalogue.units.empty());
  const auto metre = std::find_if(catalogue.units.begin(), catalogue.units.end(),
                                  [&](const Unit& unit) { return unit.key == catalogue.defaultUnitKey; });
  ASSERT_NE(metre, catalogue.units.end());
  EXPECT_EQ(metre->factor, 1.0);
}

TEST(Catalogues, AFailingFileLeavesNoUnits) {
  EXPECT_TRUE(TaviFormulaUnit(nullptr).units.empty());
  EXPECT_TRUE(TaviFormulaUnit(always(std::nullopt)).units.empty());
  EXPECT_TRUE(TaviFormulaUnit(always("[{")).units.empty());
  EXPECT_TRUE(TaviFormulaUnit(always(R"([{"key":"m","latex":"m","name":"metre","factor":1},
      {"key":"km","latex":"km","name":"kilometre"}])"))
                  .units.empty());
  TaviFormulaUnit catalogue(readResource);
  EXPECT_THROW(catalogue.loadUnits("unitsOfTime"), FormulaError);
}

TEST(Catalogues, ATargetUnitReplacesTheDefaultUnitAsAWholeWord) {
  TaviFormulaUnit catalogue(readResource);
  EXPECT_EQ(catalogue.unitText("5 m", true), "5 m");
  catalogue.targetUnit = Unit{"km", "\\mathrm{km}", "kilometre", 1000};
  EXPECT_EQ(catalogue.unitText("5 m, 3 mm, 2 µm, mΩ, m_1, m^2 (m)", true),
            "5 km, 3 mm, 2 µm, mΩ, m_1, km^2 (km)");
  EXPECT_EQ(catalogue.unitText("m², m·s, s⋅m, €m×m", true), "km², km·s, s⋅km, €km×km");
  EXPECT_EQ(catalogue.unitText("5 m", false), "5 \\mathrm{km}");
  for (const char* key : {"m²", "m·s"}) {
    catalogue.defaultUnitKey = key;
    EXPECT_EQ(catalogue.unitText(std::string("5 ") + key + ", 5 m" + key, true),
              std::string("5 km, 5 m") + key);
  }
  catalogue.defaultUnitKey = catalogue.targetUnit->key = "m";
  EXPECT_EQ(catalogue.unitText("5 m", false), "5 m");
}

}  // namespace
}  // namespace tavi
