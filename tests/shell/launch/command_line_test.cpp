#include "shell/launch/command_line.h"

#include <gtest/gtest.h>

namespace tavi {
namespace {

TEST(CommandLineTest, IsReadAsTheKeypadWouldTypeIt) {
  const struct {
    QStringList arguments;
    QStringList read;
  } cases[] = {
      {{"power"}, {"power"}},
      {{"power", "-2", "3/2"}, {"power", "-2", "3/2"}},
      {{"root", "", "8"}, {"root", "", "8"}},
      {{"root", "3", "−0,5"}, {"root", "3", "-0.5"}},
      {{"power", "2", "-x"}, {"power", "2", "-x"}},
      {{"power", "1/2", "3·pi"}, {"power", "1/2", "3π"}},
  };
  for (const auto& each : cases) {
    const auto read = readCommandLine(each.arguments);
    const auto* task = std::get_if<std::optional<Calculation>>(&read);
    ASSERT_TRUE(task && *task) << each.arguments.join(' ').toStdString();
    EXPECT_EQ(argumentsOf(**task), each.read);
  }
  EXPECT_EQ(std::get<0>(readCommandLine({})), std::nullopt);
}

TEST(CommandLineTest, IsRefusedInWords) {
  const QString endless(100'000, u'9');
  const struct {
    QStringList arguments;
    int exitCode;
    QString words;  ///< At the beginning.
  } cases[] = {
      {{"solve"}, 64, "no command solve\n\nUsage: tavi\n"},
      {{"-2"}, 64, "no command -2\n"},
      {{"power", "2"}, 64, "power takes two operands or none\n"},
      {{"root", "2", "3", "4"}, 64, "root takes two operands or none\n"},
      {{"power", "2", "two"}, 65, "\"two\" is no number\n"},
      {{"power", "2", "3^2"}, 65, "\"3^2\" is no number\n"},
      {{"power", "", "3"}, 65, "notEnoughInputValues\n"},
      {{"power", "10001", "2"}, 65, "calculationTooLong\n"},
      {{"power", "2", endless}, 65, "\"" + endless},
      {{"power", "2", "1/0"}, 65, "inputZeroInDenominator\n"},
  };
  for (const auto& each : cases) {
    const auto read = readCommandLine(each.arguments);
    const auto* refusal = std::get_if<StartRefusal>(&read);
    ASSERT_TRUE(refusal) << each.arguments.join(' ').toStdString();
    EXPECT_EQ(refusal->exitCode, each.exitCode);
    EXPECT_TRUE(refusal->words.startsWith(each.words)) << refusal->words.left(200).toStdString();
  }
}

}  // namespace
}  // namespace tavi
