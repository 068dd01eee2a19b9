#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "input/input_manager.h"
#include "number/fatal_stop.h"

namespace tavi {
namespace {

class Normalisation : public testing::Test {
 protected:
  ~Normalisation() override {
    TaviFormulaSymbol::shared().symbols.clear();
    TaviFormulaUnit::shared().units.clear();
  }

  std::vector<std::string> lines() const {
    std::vector<std::string> all;
    for (const SolutionStep& step : output.solutionSteps)
      all.push_back(*step.title + "|" + *step.latexString);
    return all;
  }

  TaviStringOutput output;
  TaviMathOperation operation{output};
  TaviInputManager manager{output, operation};
};

// Without force a plain decimal stays; with a denominator it is always cleaned.
TEST_F(Normalisation, EliminatesDecimalsOnlyWhereAsked) {
  const AnalysisRequest request{
      .texts = {"0.5", "0.5/2"}, .ids = {"a", "b"}, .isAllFractionIfOccuredOnce = false, .requiredAmount = 2};
  const TermAnalysisResult result = manager.analyse(request);
  EXPECT_EQ(result.allInputs->front()->z, 0.5);
  EXPECT_EQ(result.allInputs->back()->z, 1.0);
  EXPECT_EQ(result.allInputs->back()->n, 4.0);
}

TEST_F(Normalisation, SixSignificantDigitsDecide) {
  struct Case {
    std::string text;
    double z, n;
  };
  const Case cases[] = {
      {std::string(400, '9') + "/2.5", std::numeric_limits<double>::infinity(), 25},
      {"1.23456789", 123457, 100000},
      {"0.1234567", 123457, 1000000},
      {"1234567.5", 1234567.5, 1},
      {"100000.5", 100000.5, 1},
      {"0.00001", 0.00001, 1},
      {"1.5/0.0000001", 15, 0},  // Nothing checks the denominator that rounds away.
  };
  for (const Case& expected : cases) {
    const TermAnalysisResult result = manager.analyse({.texts = {expected.text},
                                                       .ids = {"a"},
                                                       .isAllFractionIfOccuredOnce = false,
                                                       .isDecimalEliminationForced = true,
                                                       .requiredAmount = 1});
    EXPECT_EQ(result.allInputs->front()->z, expected.z) << expected.text;
    EXPECT_EQ(result.allInputs->front()->n, expected.n) << expected.text;
  }
}

TEST_F(Normalisation, EmptyFieldsShowAsQuestionMarks) {
  manager.analyse({.texts = {"2", ""}, .ids = {"a", "b"}, .inputFormat = {"%0 = %1"}, .requiredAmount = 1});
  EXPECT_EQ(lines(), std::vector<std::string>{"Your Input|2 =  ? "});
}

TEST_F(Normalisation, NothingIsShownWhereTheInputIsNot) {
  manager.analyse({.texts = {"3/-4"}, .ids = {"a"}, .isInputShown = false, .requiredAmount = 1});
  EXPECT_TRUE(output.solutionSteps.empty());
}

TEST_F(Normalisation, VariablesModeWritesALineForEachSymbol) {
  TaviFormulaSymbol::shared().symbols = {
      {"geometry", "plane", "triangle", "a", "a_1", "side a", "m", {}},
      {"geometry", "plane", "triangle", "h", "h_a", "height", "cm", {}},
  };
  TaviFormulaUnit::shared().units = {{"m", "\\mathrm{m}", "metre", 1},
                                     {"cm", "\\mathrm{cm}", "centimetre", 0.01}};
  AnalysisRequest request{.texts = {"2", "1.5"},
                          .ids = {"a", "h"},
                          .inputFormat = {"a = %0", "h = %0"},
                          .isDecimalEliminationForced = true,
                          .inputFormatMode = FormatMode::variables,
                          .subcategory = "plane",
                          .topic = "triangle",
                          .requiredAmount = 2};
  manager.analyse(request);
  EXPECT_EQ(manager.inputSymbols.size(), 2U);
  EXPECT_EQ(lines(),
            (std::vector<std::string>{
                "Your Input|a_1 = 2 \\mathrm{m}\n",
                "|h_a = 1.5 \\mathrm{cm} = \\frac{1.5 \\cdot 10}{1 \\cdot 10} = \\frac{15}{10} \\mathrm{cm}",
                "Cancel (math)|\\frac{15}{10}= \\frac{15 : 5}{10 : 5} =  \\frac{3}{2}",
            }));

  request.inputFormat = {"a = %0", "q = %0"};
  EXPECT_THROW(manager.analyse(request), FatalStop);
  request.inputFormat = {"a = %0"};
  EXPECT_THROW(manager.analyse(request), FatalStop);
  request.inputFormat = {"", ""};
  EXPECT_THROW(manager.analyse(request), FatalStop);
}

}  // namespace
}  // namespace tavi
