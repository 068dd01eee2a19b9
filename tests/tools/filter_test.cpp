// What whoever pipes lines through tavi-cli relies on.
#include <array>
#include <cstdio>
#include <string>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace tavi {
namespace {

// What a bash script prints, in which $cli is the program.
std::string printed(const std::string& script) {
  const std::string command = "cli='" TAVI_CLI "' exec bash -c '" + script + "'";
  FILE* pipe = popen(command.c_str(), "r");
  std::string output;
  std::array<char, 4096> buffer{};
  for (std::size_t size = 0; (size = fread(buffer.data(), 1, buffer.size(), pipe)) > 0;) {
    output.append(buffer.data(), size);
  }
  pclose(pipe);
  return output;
}

const std::string task = R"({"first":"1","second":"7","mode":0})";
const std::string answer =
    R"({"steps":[{"title":"Your Input","latexString":"7^{1}"},{"title":"Result","latexString":"7^{1} = 7"}],)"
    R"("latexString":"7^{1}"})";
const std::string malformed = R"({"malformed":true})";

const std::string tree =
    R"({"width":1,"charts":[{"kind":"BernoulliDistributionTreeChartData","frameRatio":1,"chartTitle":"",)"
    R"("chartColorHexCode":"","probabilityOfSuccess":0.5,"hits":1,"trials":12}]})";

// In double quotes of bash.
std::string quoted(const std::string& text) {
  std::string result = "\"";
  for (const char character : text) {
    if (character == '"') result += '\\';
    result += character;
  }
  return result + '"';
}

TEST(Filter, AnswersALineBeforeTheNextIsWritten) {
  EXPECT_EQ(printed("coproc filter { $cli solve --json-lines; }\n"
                    "for i in 1 2; do echo " +
                    quoted(task) +
                    " >&${filter[1]}; read -r line <&${filter[0]}; "
                    "echo \"$line\"; done"),
            answer + '\n' + answer + '\n');
}

TEST(Filter, AnswersALineTooLongAsMalformedAndGoesOn) {
  EXPECT_EQ(printed("{ echo " + quoted(task) + "; head -c 3000000 /dev/zero | tr \"\\0\" 1; echo; echo -n " +
                    quoted(task) + "; } | $cli solve --json-lines"),
            answer + '\n' + malformed + '\n' + answer + '\n');
}

TEST(Filter, EndsWithItsReader) {
  const std::string endless = "yes " + quoted(task) + " | $cli solve --json-lines";
  EXPECT_EQ(printed(endless + " | head -n 1; echo ${PIPESTATUS[1]}"), answer + "\n141\n");
  // Where the signal is ignored, as under some engines, the exit code tells.
  EXPECT_EQ(printed("trap \"\" PIPE; " + endless + " 2>&1 >/dev/full | head -n 1; echo ${PIPESTATUS[1]}"),
            "tavi-cli: cannot write: No space left on device\n74\n");
  // One answer that leaves in pieces ends with its first piece.
  for (const std::string& command :
       {std::string("head -c 50000 /dev/zero | tr \"\\0\" 1 | $cli typeset --json-lines"),
        "echo " + quoted(tree) + " | $cli chart --json-lines"}) {
    EXPECT_EQ(printed(command + " 2>&1 >/dev/full; echo ${PIPESTATUS[-1]}"),
              "tavi-cli: cannot write: No space left on device\n74\n");
  }
  EXPECT_EQ(printed("trap \"\" PIPE; " + endless + " 2>/dev/null | head -n 1; echo ${PIPESTATUS[1]}"),
            answer + "\n74\n");
}

// Others may have made the streams such that do not wait.
TEST(Filter, WaitsForStreamsThatDoNot) {
  const std::string filter =
      "{ perl -MFcntl -e \"fcntl \\$_, F_SETFL, O_NONBLOCK for *STDIN, *STDOUT\"; $cli solve --json-lines; }";
  // Here standard input is empty before each task, and there standard output full.
  EXPECT_EQ(printed("coproc filter " + filter + "\nfor i in {1..20}; do echo " + quoted(task) +
                    " >&${filter[1]}; read -r line <&${filter[0]}; done; echo \"$line\""),
            answer + '\n');
  EXPECT_EQ(printed("yes " + quoted(task) + " | head -n 2000 | " + filter +
                    " | { while read -r line; do ((++count)); done; echo $count; }"),
            "2000\n");
}

TEST(Filter, AnswersInPieces) {
  const auto typeset = [](const std::string& latex) {
    return nlohmann::json::parse(printed(latex + " | $cli typeset --json-lines"));
  };
  EXPECT_EQ(typeset("head -c 20000 /dev/zero | tr \"\\0\" 1")["glyphs"].size(), 20000U);
  EXPECT_EQ(typeset("printf \"\\\\\\\\frac11%.0s\" {1..5000}")["rules"].size(), 5000U);
}

TEST(Filter, RepairsAndEscapesTexts) {
  // Every kind of byte goes through a text and comes back: control characters, quotes, letters beyond ASCII.
  EXPECT_EQ(printed("printf \"a\\\"\\\\\\\\\\t\\001é\\377\\n\" | $cli typeset --json-lines | head -c 50"),
            R"({"latex":"a\"\\\t\u0001é)"
            "\xef\xbf\xbd"
            R"(","size":20.0,"width":)");
}

TEST(Filter, DrawsTheSameBytesAtAnyTime) {
  EXPECT_EQ(printed("pdf() { echo " + quoted(task) +
                    " | TZ=$1 $cli render --json-lines pdf | cut -d \\\" -f 4 | base64 -d; }\n"
                    "pdf UTC | head -c 4; pdf UTC | grep -ac CreationDate\n"
                    "cmp <(pdf UTC) <(pdf Asia/Kolkata) && echo same"),
            "%PDF0\nsame\n");
}

// Several processes at once give what one gives, in the same order.
TEST(Filter, GivesTheSameOnSeveralProcesses) {
  if (printed("command -v parallel >/dev/null && echo there") != "there\n") GTEST_SKIP() << "no parallel";
#ifdef __SANITIZE_ADDRESS__
  const std::string count = "50000";
#else
  const std::string count = "1000000";
#endif
  EXPECT_EQ(
      printed(
          "tasks() { for mode in 0 1; do for a in -3 -1/2 0.5 2/3 2 9 x \"(\"; do for b in -2 3/2 1.5 4 π; "
          "do "
          "printf \"{\\\"first\\\":\\\"%s\\\",\\\"second\\\":\\\"%s\\\",\\\"mode\\\":%s}\\n\" $a $b $mode; "
          "done; done; done; echo [; }\n"
          "many() { yes \"$(tasks)\" | head -n " +
          count +
          "; }\n"
          "exec 3>&1\n"
          "many | $cli solve --json-lines | tee >(cmp - "
          "<(many | parallel --will-cite --pipe --keep-order --jobs 2 --block 4M $cli solve --json-lines) "
          "&& echo same >&3) | wc -l"),
      "same\n" + count + '\n');
}

}  // namespace
}  // namespace tavi
