#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "input/input_manager.h"
#include "number/fatal_stop.h"

namespace tavi {
namespace {

class TermAnalysis : public testing::Test {
 protected:
  // One field that has to be filled, as the solver asks.
  TermAnalysisResult read(const std::string& text) {
    return manager.analyse({.texts = {text},
                            .ids = {"field"},
                            .inputFormat = {"%0"},
                            .isAllFractionIfOccuredOnce = false,
                            .requiredAmount = 1});
  }

  TaviStringOutput output;
  TaviMathOperation operation{output};
  TaviInputManager manager{output, operation};
};

TEST_F(TermAnalysis, NamesWhatIsWrongWithATerm) {
  const std::pair<const char*, const char*> cases[] = {
      {"", "notEnoughInputValues"},
      {"1/2/3", "inputParameterError"},
      {"//", "inputParameterError"},
      {"1,5", "inputParameterError"},
      {"5-3", "inputParameterError"},
      {"--5", "inputParameterError"},
      {" 5", "inputParameterError"},
      {" ", "inputParameterError"},
      {"-", "inputParameterError"},
      {".", "inputParameterError"},
      {"+π", "inputParameterError"},
      {".π", "inputParameterError"},
      {"2/-", "inputParameterError"},
      {"/", "fractionIncomplete"},
      {"3/", "fractionIncomplete"},
      {"/3", "fractionIncomplete"},
      {"()/3", "fractionIncomplete"},
      {"5/0", "inputZeroInDenominator"},
      {"5/-0", "inputZeroInDenominator"},
      {"5/0.0", "inputZeroInDenominator"},
      {"5/0π", "inputZeroInDenominator"},
      {"ππ", "toManyNaturalConstantsInSubstring"},
      {"πe", "toManyNaturalConstantsInSubstring"},
      {"eπ", "toManyNaturalConstantsInSubstring"},
      {"e", "naturalConstantInWrongPositionOfSubstring"},
      {"2e", "naturalConstantInWrongPositionOfSubstring"},
      {"e2", "naturalConstantInWrongPositionOfSubstring"},
      {"1e5", "naturalConstantInWrongPositionOfSubstring"},
      {"π2", "naturalConstantInWrongPositionOfSubstring"},
      {"x2", "naturalConstantInWrongPositionOfSubstring"},
      {"2πx", "naturalConstantInWrongPositionOfSubstring"},
      {"2xπ", "naturalConstantInWrongPositionOfSubstring"},
      {"xy", "toManyVariablesInSubstring"},
      {"xx/2", "toManyVariablesInSubstring"},
  };
  for (const auto& [text, key] : cases) {
    const TermAnalysisResult result = read(text);
    EXPECT_EQ(result.errorKey, key) << text;
    EXPECT_EQ(result.missingIds, std::vector<std::string>{"field"}) << text;
    EXPECT_EQ(result.allInputs, std::nullopt) << text;
    EXPECT_TRUE(output.solutionSteps.empty()) << text;
  }
}

struct Read {
  const char* text;
  double z, n;
  const char* constantsAbove;
  const char* constantsBelow;
  const char* variable;
};

TEST_F(TermAnalysis, ReadsNumbersFractionsAndMultiples) {
  const Read cases[] = {
      {"2.5", 2.5, 1, "", "", ""},
      {"-3", -3, 1, "", "", ""},
      {"+4", 4, 1, "", "", ""},
      {"3.", 3, 1, "", "", ""},
      {"2)(", 2, 1, "", "", ""},
      {"π", 1, 1, "π", "", ""},
      {"-π", -1, 1, "π", "", ""},
      {"-0.5π", -0.5, 1, "π", "", ""},
      {"-y", -1, 1, "", "", "y"},
      {"3z", 3, 1, "", "", "z"},
      {"0/5", 0, 5, "", "", ""},
      {"3/4π", 3, 4, "", "π", ""},
      {"π/2", 1, 2, "π", "", ""},
      // The variable below the bar counts, and it stands above it.
      {"x/3", 1, 3, "", "", ""},
      {"3/x", 3, 1, "", "", "x"},
      {"y/x", 1, 1, "", "", "x"},
  };
  const auto keys = [](const std::vector<NaturalConstant>& constants) {
    std::string text;
    for (const NaturalConstant& constant : constants) text += constant.key;
    return text;
  };
  for (const Read& expected : cases) {
    const TermAnalysisResult result = read(expected.text);
    ASSERT_TRUE(result.allInputs) << expected.text;
    const Digit& digit = *result.allInputs->front();
    EXPECT_EQ(digit.z, expected.z) << expected.text;
    EXPECT_EQ(digit.n, expected.n) << expected.text;
    EXPECT_EQ(keys(digit.zConstants), expected.constantsAbove) << expected.text;
    EXPECT_EQ(keys(digit.nConstants), expected.constantsBelow) << expected.text;
    EXPECT_EQ(digit.zVariable, expected.variable) << expected.text;
    EXPECT_EQ(digit.powerOfZVariable, *expected.variable ? 1.0 : 0.0) << expected.text;
    EXPECT_EQ(digit.nVariable, "") << expected.text;
    EXPECT_EQ(result.isWithFraction, std::string(expected.text).find('/') != std::string::npos);
  }
}

TEST_F(TermAnalysis, ChecksWhichFieldsMustBeFilled) {
  const AnalysisRequest all{.texts = {"1", "", "3", ""}, .ids = {"a", "b", "c", "d"}, .inputFormat = {""}};

  AnalysisRequest request = all;
  request.requiredAmount = 2;
  EXPECT_TRUE(manager.analyse(request).allInputs);

  request.requiredAmount = 3;
  EXPECT_EQ(manager.analyse(request).missingIds, (std::vector<std::string>{"b", "d"}));

  request.isEveryFieldRequired = true;
  request.requiredAmount = 0;
  EXPECT_EQ(manager.analyse(request).errorKey, "notEnoughInputValues");

  request.requiredIds = {"a", "d", "unknown"};
  EXPECT_EQ(manager.analyse(request).missingIds, std::vector<std::string>{"d"});
  request.requiredIds = {"a", "c"};
  EXPECT_TRUE(manager.analyse(request).allInputs);

  request = all;
  request.tags = {11, 12, 13, 14};
  request.requiredAmount = 4;
  const TermAnalysisResult tagged = manager.analyse(request);
  EXPECT_EQ(tagged.missingTags, (std::vector<std::int64_t>{12, 14}));
  EXPECT_EQ(tagged.missingIds, (std::vector<std::string>{"12", "14"}));

  EXPECT_EQ(manager.analyse({.texts = {}}).errorKey, "notEnoughInputValues");
}

TEST_F(TermAnalysis, TheFirstFieldAtFaultIsTheOneReported) {
  AnalysisRequest request{.texts = {"1e", "1/2/3"}, .ids = {"a", "b"}, .requiredAmount = 2};
  // Fractions are counted in all fields before any is read.
  EXPECT_EQ(manager.analyse(request).missingIds, std::vector<std::string>{"b"});
  EXPECT_TRUE(operation.withFraction);
  request.texts = {"1e", "xy"};
  EXPECT_EQ(manager.analyse(request).missingIds, std::vector<std::string>{"a"});
}

TEST_F(TermAnalysis, OneFractionMakesAllFieldsFractionsWhereAsked) {
  const TermAnalysisResult result =
      manager.analyse({.texts = {"2/3", "5x"}, .ids = {"a", "b"}, .inputFormat = {""}, .requiredAmount = 2});
  ASSERT_TRUE(result.allInputs);
  EXPECT_EQ(result.allInputs->back()->z, 5.0);
  EXPECT_EQ(result.allInputs->back()->zVariable, "");
}

TEST_F(TermAnalysis, AFieldOfBracketsOnlyIsFatal) {
  EXPECT_THROW(read("()"), FatalStop);
}

}  // namespace
}  // namespace tavi
