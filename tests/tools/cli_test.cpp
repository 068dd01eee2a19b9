#include <array>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>
#include <sys/wait.h>

namespace tavi {
namespace {

struct Finished {
  std::string output;
  int exitCode = -1;
};

// Runs tavi-cli through the shell; `arguments` may hold quotes and redirections.
Finished cli(const std::string& arguments, const std::string& input = "") {
  const std::string command = "printf '%s' '" + input + "' | " TAVI_CLI " " + arguments;
  FILE* pipe = popen(command.c_str(), "r");
  Finished finished;
  std::array<char, 4096> buffer{};
  for (std::size_t size = 0; (size = fread(buffer.data(), 1, buffer.size(), pipe)) > 0;) {
    finished.output.append(buffer.data(), size);
  }
  finished.exitCode = WEXITSTATUS(pclose(pipe));
  return finished;
}

TEST(Cli, PrintsAWorkingAsShownStoredOrJson) {
  const Finished shown = cli("solve root '' 2");
  EXPECT_EQ(shown.exitCode, 0);
  EXPECT_EQ(shown.output,
            "Your Input                \\sqrt[2]{2}\n"
            "Step 1    Extract a root  =\\sqrt[\\;\\color{#ff3333}{2}]{2}\n"
            "                          =\\sqrt{1.4142135624^{\\;\\color{#5774f7}{2}}}\n"
            "                          =1.4142135624^{\\frac{2}{2}}\n"
            "                          =\\;\\color{#009900}{1.4142135624}\n"
            "Result                    \\sqrt[2]{2} = 1.4142135624\n"
            "                          \\sqrt[2]{2} = -1.4142135624\n");
  EXPECT_NE(cli("solve --raw power -2 3/2").output.find("{2.0}"), std::string::npos);
  EXPECT_EQ(cli("solve --json power 1 -7").output,
            R"({"steps":[{"title":"Your Input","latexString":"-7^{1}"},)"
            R"({"title":"Result","latexString":"-7^{1} = -7"}],"latexString":"-7^{1}"})"
            "\n");
}

TEST(Cli, TitlesAreKeysUnlessALanguageIsAskedFor) {
  EXPECT_NE(cli("solve power 2 6/4").output.find("Cancel (math)    "), std::string::npos);
  EXPECT_NE(cli("solve --language en power 2 6/4").output.find("\nCancel the fraction "), std::string::npos);
  EXPECT_EQ(cli("solve --language de-AT power 1 1").output,
            "Deine Eingabe  1^{1}\n"
            "Ergebnis       1^{1} = 1\n");
  EXPECT_NE(cli("solve --language de --json power 2 6/4").output.find(R"("Bruch kürzen")"),
            std::string::npos);
  const Finished unknown = cli("solve --language tlh power 2 6/4 2>&1");
  EXPECT_EQ(unknown.exitCode, 64);
  EXPECT_NE(unknown.output.find("no words in the language \"tlh\", only in de, "), std::string::npos);
}

TEST(Cli, ExitCodesTellHowATaskEnds) {
  const Finished rejected = cli("solve power 1/ 2 2>&1");
  EXPECT_EQ(rejected.exitCode, 2);
  EXPECT_EQ(rejected.output, "fractionIncomplete aTextField\n");
  EXPECT_EQ(cli("solve power '' '' 2>&1").output, "notEnoughInputValues aTextField xTextField\n");
  EXPECT_EQ(cli("solve power 2 1.000001/3 2>/dev/null").exitCode, 3);
  EXPECT_EQ(cli("solve power 10001 2 2>/dev/null").exitCode, 4);
  for (const char* wrong :
       {"", "sovle", "solve", "solve power 2", "solve cube 2 3", "solve --rwa power 2 3",
        "solve --raw --json power 2 3", "solve --json-lines power 2 3", "display-latex x", "exact power 2",
        "exact cube 2 3", "exact --digits 14 power 2 3", "exact --digits 1001 power 2 3", "exact --digits",
        "exact --json-lines power 2 3", "chart --json-lines --dark", "chart --scale 1 --json-lines"}) {
    EXPECT_EQ(cli(std::string(wrong) + " 2>/dev/null").exitCode, 64) << wrong;
  }
  for (const std::string command :
       {"solve power 2 3 --language", "exact --digits", "typeset --size", "render --language",
        "render --json-lines", "render --pdf", "render --scale", "chart --size", "chart --png"}) {
    const Finished finished = cli(command + " 2>&1");
    const std::string option = command.substr(command.find("--"));
    EXPECT_EQ(finished.exitCode, 64) << command;
    EXPECT_TRUE(finished.output.starts_with("tavi-cli: " + option + " needs ")) << finished.output;
  }
  for (const char* help : {"--help", "solve --help", "display-latex --help", "exact --help"}) {
    const Finished finished = cli(help);
    EXPECT_EQ(finished.exitCode, 0) << help;
    EXPECT_TRUE(finished.output.starts_with("Usage: tavi-cli")) << help;
  }
}

TEST(Cli, AnswersJsonLineByLine) {
  const std::pair<std::string, std::string> exchanges[] = {
      {R"x({"first":"1","second":"7","mode":0})x",
       R"x({"steps":[{"title":"Your Input","latexString":"7^{1}"},{"title":"Result","latexString":"7^{1} = 7"}],)x"
       R"x("latexString":"7^{1}"})x"},
      {R"x({"first":null,"second":"7","mode":0})x",
       R"x({"errorKey":"notEnoughInputValues","errorFieldIds":["aTextField"]})x"},
      {R"x({"first":"()","second":"7","mode":0})x", R"x({"fatal":true})x"},
      {R"x({"first":"10001","second":"7","mode":0})x", R"x({"huge":10001})x"},
      {"[", R"x({"malformed":true})x"},
      {"", R"x({"malformed":true})x"},
      {R"x({"first":3,"second":"7","mode":0})x", R"x({"malformed":true})x"},
      {R"x({"first":"3","second":"7","mode":0.5})x", R"x({"malformed":true})x"},
      {R"x({"first":"3","mode":0})x", R"x({"malformed":true})x"},
      {R"x({"first":"3","second":"7","mode":[0],"mode":true})x", R"x({"malformed":true})x"},
      {"\xEF\xBB\xBF"
       R"x({"\u0066irst":[],"mode":1,"first":"1","second":"7","mode":0,"more":{"mode":1}})x",
       R"x({"steps":[{"title":"Your Input","latexString":"7^{1}"},{"title":"Result","latexString":"7^{1} = 7"}],)x"
       R"x("latexString":"7^{1}"})x"},
      {R"x({"first":"3","second":"7","mode":18446744073709551615})x",
       R"x({"steps":[{"title":"Your Input","latexString":""}],"latexString":""})x"},
  };
  std::string questions;
  std::string answers;
  for (const auto& [question, answer] : exchanges) {
    questions += question + '\n';
    answers += answer + '\n';
  }
  const Finished finished = cli("solve --json-lines", questions);
  EXPECT_EQ(finished.exitCode, 0);
  EXPECT_EQ(finished.output, answers);
}

TEST(Cli, TellsExactValues) {
  EXPECT_EQ(
      cli("exact --digits 20 root 2 8/9").output,
      "task      \\sqrt{\\frac{8}{9}}\n"
      "value     \\frac{2\\sqrt{2}}{3}\n"
      "kind      surd\n"
      "decimal   0.94280904158206336587\\ldots\n"
      "note      The root sign means the number that is not negative. The equation x^{2} = \\frac{8}{9} is "
      "solved by two numbers: \\frac{2\\sqrt{2}}{3} and -\\frac{2\\sqrt{2}}{3}.\n");
  EXPECT_NE(
      cli("exact power 100 -3").output.find("digits    48: 51537752073201133103...65621272702107522001"),
      std::string::npos);
  const Finished rejected = cli("exact power 2 --3 2>&1");
  EXPECT_EQ(rejected.exitCode, 2);
  EXPECT_EQ(rejected.output, "inputParameterError xTextField\n");
  const std::string questions = R"x({"first":"2","second":"-x/3","mode":0}
{"first":null,"second":"-4","mode":1}
{"first":"()","second":"-4","mode":1}
{"first":"2","second":"3","mode":2})x";
  const std::string answers = R"x({"latex":"\\frac{x^{2}}{9}","decimal":null,"kind":"symbolic"}
{"latex":"\\sqrt{-4}","decimal":null,"kind":"undefined","reason":"An even root of a negative number is no real number."}
{"errorKey":"inputParameterError","errorFieldIds":["aTextField"]}
{"malformed":true}
)x";
  EXPECT_EQ(cli("exact --json-lines", questions).output, answers);
}

TEST(Cli, ChecksAWorking) {
  const Finished checked = cli("solve --check power 2 -3");
  EXPECT_EQ(checked.exitCode, 1);
  EXPECT_EQ(checked.output,
            "true     Your Input                 -3^{2}\n"
            "true     Step 1    Calculate power  -3^{\\;\\color{#ff3333}{2}}\n"
            "false                               =\\left( -3 \\right) \\left( -3 \\right) \n"
            "true                                =\\;\\color{#009900}{9}\n"
            "false    Result                     -3^{2} = 9\n");
  EXPECT_EQ(cli("solve --check power 2 3").exitCode, 0);
  EXPECT_EQ(cli("solve --check power 1/ 2 2>/dev/null").exitCode, 2);
  const std::string answer = R"x({"steps":[{"title":"Your Input","latexString":"7^{1}","check":"true"},)x"
                             R"x({"title":"Result","latexString":"7^{1} = 7","check":"true"}],)x"
                             R"x("latexString":"7^{1}"})x"
                             "\n";
  EXPECT_EQ(cli("solve --check --json power 1 7").output, answer);
  EXPECT_EQ(cli("solve --json-lines --check", R"x({"first":"1","second":"7","mode":0})x").output, answer);
}

TEST(Cli, TellsTheRulesAsThePageDoes) {
  std::ifstream page(TAVI_SOURCE_DIR "/docs/truth.md");
  const std::string text{std::istreambuf_iterator<char>(page), {}};
  EXPECT_EQ(cli("exact --rules").output, text);
}

TEST(Cli, FiltersLinesIntoWhatIsTypeset) {
  EXPECT_EQ(cli("display-latex", "1.0\n(a)\n").output, "1\n\\left(a\\right)\n");
}

}  // namespace
}  // namespace tavi
