// Reads exact_values.md and holds the exact values to it; and what no row of it tells.
#include "exact/exact_value.h"

#include <array>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "exact/power_text.h"
#include "solver/generated_task.h"

namespace tavi::exact {
namespace {

ExactValue valueOf(Mode mode, std::string_view first, std::string_view second, int digits = usualDigits) {
  const auto answer = exactValue(mode, first, second, digits);
  const auto* value = std::get_if<ExactValue>(&answer);
  return value != nullptr ? *value : ExactValue{.task = "", .latex = std::get<InputError>(answer).key};
}

// The cells of a row, without backticks.
std::vector<std::string> cells(const std::string& row) {
  std::vector<std::string> cells;
  for (std::size_t from = 2; from < row.size();) {
    const std::size_t end = row.find(" |", from);
    std::string cell = row.substr(from, end - from);
    std::erase(cell, '`');
    cells.push_back(cell);
    from = end + 3;
  }
  return cells;
}

std::string shortened(const std::string& text) {
  return text.size() <= 60 ? text : text.substr(0, 20) + "…" + text.substr(text.size() - 20);
}

TEST(ExactValue, IsWhatThePageTells) {
  std::ifstream page(TAVI_SOURCE_DIR "/tests/exact/exact_values.md");
  int rows = 0;
  for (std::string line; std::getline(page, line);) {
    if (!line.starts_with("| power") && !line.starts_with("| root")) continue;
    SCOPED_TRACE(line);
    ++rows;
    const std::vector<std::string> cell = cells(line);
    ASSERT_EQ(cell.size(), 7U);
    const ExactValue value = valueOf(cell[0] == "power" ? Mode::power : Mode::root, cell[1], cell[2]);
    EXPECT_EQ(nameOf(value.kind), cell[3]);
    EXPECT_EQ(shortened(value.latex), cell[4]);
    EXPECT_EQ(value.decimal.value_or(""), cell[5]);
    EXPECT_EQ(value.reason ? inEnglish(*value.reason) : "", cell[6]);
  }
  EXPECT_GT(rows, 100);
}

TEST(ExactValue, TellsOfEvenRootsWhichNumbersSolveTheEquation) {
  const auto noteOf = [](Mode mode, std::string_view first, std::string_view second) {
    const ExactValue value = valueOf(mode, first, second);
    return value.note ? inEnglish(*value.note) : "";
  };
  const std::string start = "The root sign means the number that is not negative. The equation ";
  EXPECT_EQ(noteOf(Mode::root, "", "9"), start + "x^{2} = 9 is solved by two numbers: 3 and -3.");
  EXPECT_EQ(noteOf(Mode::power, "3/4", "16"), start + "x^{4} = 16^{3} is solved by two numbers: 8 and -8.");
  EXPECT_EQ(noteOf(Mode::power, "1/2", "x"),
            start + "t^{2} = x is solved by two numbers: x^{\\frac{1}{2}} and -x^{\\frac{1}{2}}.");
  EXPECT_EQ(noteOf(Mode::root, "4", "0"), "The equation x^{4} = 0 is solved by zero alone.");
  EXPECT_EQ(noteOf(Mode::root, "3", "8"), "");
  EXPECT_EQ(noteOf(Mode::power, "2/4", "16"), noteOf(Mode::root, "2", "16"));
  EXPECT_EQ(noteOf(Mode::root, "2", "-4"), "");
}

TEST(ExactValue, TellsTheEndsOfLargeWholeNumbers) {
  const auto endsOf = [](std::string_view exponent, std::string_view base) {
    const auto whole = valueOf(Mode::power, exponent, base).wholeNumber;
    return whole ? whole->digitCount + ": " + whole->firstDigits + " " + whole->lastDigits : "";
  };
  EXPECT_EQ(endsOf("10000", "2"), "3011: 19950631168807583848 81774304792596709376");
  EXPECT_EQ(endsOf("1000000000", "9"), "954242510: 27499504881643866662 88557310440000000001");
  EXPECT_EQ(endsOf("1000000000", "10"), "1000000001: 10000000000000000000 00000000000000000000");
  EXPECT_EQ(endsOf("40", "10"), "41: 10000000000000000000 00000000000000000000");
  EXPECT_EQ(endsOf("39", "10"), "");
  EXPECT_EQ(endsOf("1000", "1/2"), "");
  // Written out, the same ends are seen.
  const ExactValue power = valueOf(Mode::power, "2000", "-7");
  EXPECT_EQ(power.wholeNumber->firstDigits, power.latex.substr(0, 20));
  EXPECT_EQ(power.wholeNumber->lastDigits, power.latex.substr(power.latex.size() - 20));
}

TEST(PowerText, IsTheSameInDecimalAsConverted) {
  const std::string places = "1" + std::string(300, '0');  // ends in zeros at the edge of a place
  for (const auto& [base, exponent] :
       std::vector<std::pair<std::string, slong>>{{"2", 100'001},
                                                  {std::string(300, '9'), 201},
                                                  {places, 300},
                                                  {places + std::string(300, '0') + "1", 200},
                                                  {"7", 131'071}}) {
    std::array<Factor, 2> factors{Factor{0, exponent}, Factor{11, 513}};
    fmpz_set_str(factors[0].base, base.c_str(), 10);
    Integer product(1);
    for (const Factor& factor : factors) {
      Integer power;
      fmpz_pow_ui(power, factor.base, fmpz_get_ui(factor.exponent));
      fmpz_mul(product, product, power);
    }
    EXPECT_TRUE(powerText(factors) == textOf(product)) << base << " " << exponent;
  }
}

TEST(ExactValue, WritesMoreDigitsOnDemand) {
  EXPECT_EQ(valueOf(Mode::root, "", "2", 50).decimal,
            "1.4142135623730950488016887242096980785696718753769\\ldots");
  EXPECT_EQ(valueOf(Mode::power, "70", "2", 25).decimal, "1.180591620717411303424 \\cdot 10^{21}");
  EXPECT_EQ(valueOf(Mode::power, "1/2", "3", maximumDigits).decimal->size(), 1002U - 1U + 6U);
}

// Every digit but the last few of a longer decimal must be found again in a shorter one, whichever way they
// were calculated.
TEST(ExactValue, RoundsItsDecimalsToNearest) {
  TaskGenerator generator(17);
  int compared = 0;
  for (int i = 0; i < 2000; ++i) {
    const Task task = generator.next();
    const auto decimalOf = [&](int digits) {
      return valueOf(*task.mode, *task.first, *task.second, digits).decimal.value_or("");
    };
    const std::string shorter = decimalOf(15);
    const std::string longer = decimalOf(60);
    const std::size_t dots = shorter.find("\\ldots");
    if (dots == std::string::npos || longer.find("\\ldots") == std::string::npos) continue;
    SCOPED_TRACE(*task.first + " " + *task.second + " " + shorter + " " + longer);
    ++compared;
    // Rounded up in the last place just where the longer one goes on with 5 or more.
    std::string rounded = longer.substr(0, dots);
    const char next = longer[dots] == '.' ? longer[dots + 1] : longer[dots];
    if (next >= '5') {
      std::size_t place = rounded.size();
      do {
        place = rounded.find_last_of("0123456789", place - 1);
        rounded[place] = rounded[place] == '9' ? '0' : static_cast<char>(rounded[place] + 1);
      } while (rounded[place] == '0' && place > rounded.find_first_of("0123456789"));
    }
    ASSERT_EQ(shorter.substr(0, dots), rounded);
  }
  EXPECT_GT(compared, 500);
}

TEST(ExactValue, RefusesWhatTheAnalysisRefuses) {
  TaskGenerator generator(18);
  int refused = 0;
  for (int i = 0; i < 20000; ++i) {
    const Task task = generator.next();
    const Rehearsal ending = rehearse(task, 100);
    const auto* outcome = std::get_if<CalculationOutcome>(&ending);
    if (outcome == nullptr || !outcome->errorKey) continue;
    SCOPED_TRACE(*task.first + " " + *task.second);
    ++refused;
    const auto answer = exactValue(*task.mode, *task.first, *task.second);
    const auto* error = std::get_if<InputError>(&answer);
    ASSERT_TRUE(error);
    ASSERT_EQ(error->key, *outcome->errorKey);
    std::vector<std::string> ids;
    for (const std::size_t field : error->fields) ids.emplace_back(field == 0 ? task.firstId : task.secondId);
    ASSERT_EQ(ids, *outcome->errorFieldIds);
  }
  EXPECT_GT(refused, 1000);
}

TEST(ExactValue, RefusesWhatIsNoExactNumber) {
  for (const char* text : {"()", "((", "inf", "nan", "0X1P3", "1E5", "(-)", "--3", "-(-3)", "1,5", "3-2"}) {
    const auto answer = exactValue(Mode::power, "2", text);
    const auto* error = std::get_if<InputError>(&answer);
    ASSERT_TRUE(error) << text;
    EXPECT_EQ(error->key, "inputParameterError") << text;
    EXPECT_EQ(error->fields, std::vector<std::size_t>{1}) << text;
  }
  // Brackets alone are found last.
  const auto answer = exactValue(Mode::root, "()", "1/");
  EXPECT_EQ(std::get<InputError>(answer).key, "fractionIncomplete");
  EXPECT_EQ(valueOf(Mode::power, "1", std::string(100001, '1')).latex, "inputParameterError");
}

TEST(ExactValue, KeepsWhatADoubleWouldLose) {
  const std::string tiny = "0." + std::string(400, '0') + "1";
  EXPECT_EQ(valueOf(Mode::power, "1", "5/" + tiny).decimal, "5 \\cdot 10^{401}");
  EXPECT_EQ(valueOf(Mode::power, "1", tiny + "/" + tiny).latex, "1");
  // Too near the middle between two decimals of 15 digits, one digit more tells.
  const std::string behind = std::string(300, '0') + "1";
  EXPECT_EQ(valueOf(Mode::power, "1", "1.000000000000005" + behind).decimal, "1.000000000000005\\ldots");
  EXPECT_EQ(valueOf(Mode::power, "1/3", "1.000000000000015000000000000075000000000000125" + behind).decimal,
            "1.000000000000005\\ldots");
}

// Whatever is typed is answered; that it is answered in time is measured by the benchmarks.
TEST(ExactValue, AnswersHostileTexts) {
  const std::string digits(40, '9');
  const std::string many(5000, '7');
  const std::vector<std::string> texts = {"0",
                                          "-0",
                                          "1",
                                          "-1",
                                          digits,
                                          "-" + digits + "." + digits,
                                          "1/" + digits,
                                          digits + "/3",
                                          "1000000000",
                                          "-1000000000/7",
                                          "0." + digits,
                                          many,
                                          "0." + many,
                                          many + "/" + many + "1",
                                          many + "x/" + digits + "π",
                                          "1000000000π",
                                          "x/y",
                                          "-π/" + digits + "z"};
  for (const Mode mode : {Mode::power, Mode::root}) {
    for (const std::string& first : texts) {
      for (const std::string& second : texts) {
        const ExactValue value = valueOf(mode, first, second);
        EXPECT_FALSE(value.latex.empty());
        EXPECT_TRUE(value.reason || value.kind < Kind::undefined);
      }
    }
  }
}

}  // namespace
}  // namespace tavi::exact
