#include "input/pasted_text.h"

#include <gtest/gtest.h>

namespace tavi {
namespace {

TEST(PastedText, IsReadWhereItsMeaningIsClear) {
  struct Case {
    const char* text;
    const char* number;
  };
  const Case cases[] = {
      {"12", "12"},
      {" +12.5\n", "12.5"},
      {"0,5", "0.5"},
      {".5", ".5"},
      {"−3", "-3"},
      {"– 7", "-7"},
      {"3⁄4", "3/4"},
      {"3 : -4", "-3/4"},
      {"-(-3/4)", "3/4"},
      {"(−3)/(4)", "-3/4"},
      {"12 345", "12345"},
      {"1\u202f234\u202f567,25", "1234567.25"},
      {"1.234.567", "1234567"},
      {"1.234,5", "1234.5"},
      {"1,234.5", "1234.5"},
      {"12’345.6", "12345.6"},
      {"½", "1/2"},
      {"1½", "3/2"},
      {"−2 1/3", "-7/3"},
      {"12 345/7", "12345/7"},
      {"2×10^3", "2000"},
      {"1.25 · 10⁻³", "0.00125"},
      {"6,02 * 10 ^ +23", "602000000000000000000000"},
      {"1.5e3", "1500"},
      {"3E-2", "0.03"},
      {"2 π", "2π"},
      {"-pi/2", "-π/2"},
      {"3·x", "3x"},
      {"2X/3", "2x/3"},
      {"１２．５", "12.5"},
      {"३/४", "3/4"},
  };
  for (const Case& each : cases) EXPECT_EQ(readPasted(each.text), PastedText{each.number}) << each.text;
}

TEST(PastedText, APowerHasBaseAndExponent) {
  struct Case {
    const char* text;
    PastedText read;
  };
  const Case cases[] = {
      {"2^3", {"2", "3"}}, {"(3/2)^-2", {"3/2", "-2"}}, {"(-7) ^ (2/3)", {"-7", "2/3"}}, {"2³", {"2", "3"}},
      {"x^2", {"x", "2"}}, {"10⁻⁵", {"10", "-5"}},      {"3·10^2 ^ 4", {"300", "4"}},
  };
  for (const Case& each : cases) EXPECT_EQ(readPasted(each.text), each.read) << each.text;
}

TEST(PastedText, IsRefusedWhereItIsNoNumberOrMoreThanOne) {
  const std::string endless(100'000, '9');
  const std::string brackets(300, '(');
  for (const char* text : {"",
                           " ",
                           "-",
                           ".",
                           "/",
                           "1/",
                           "word",
                           "2 words",
                           "1 2",
                           "12 34",
                           "1 23 456",
                           "1,2,3",
                           "1.2.3",
                           "1,23,456.7",
                           "2*3",
                           "2+3",
                           "3-2",
                           "1/2/3",
                           "1 100/200",
                           "-3^2",
                           "1/2^2",
                           "2^3/2",
                           "2^3^4",
                           "1e99",
                           "50%",
                           "√9",
                           "√2",
                           "(2",
                           "2)",
                           "\xff\xfe",
                           "ππ",
                           "xy",
                           "--2",
                           endless.c_str(),
                           brackets.c_str()}) {
    EXPECT_EQ(readPasted(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace tavi
