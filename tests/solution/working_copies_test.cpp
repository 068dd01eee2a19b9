// A working as a document, a drawing and a text of LaTeX.
#include "solution/share/working_copies.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "appearance/appearance.h"
#include "solution/rows/solution_table_data.h"
#include "solver/rehearsal.h"

namespace tavi {
namespace {

std::vector<SolutionRow> rowsOf(SolutionSteps steps) {
  SolutionTableData data;
  data.solutionSteps = std::move(steps);
  data.rowHeight = 100;
  return data.rows();
}

SolutionSteps working(Mode mode, std::string first, std::string second) {
  const Rehearsal ending = rehearse({mode, std::move(first), std::move(second)});
  const auto* outcome = std::get_if<CalculationOutcome>(&ending);
  return outcome && outcome->solutionSteps ? *outcome->solutionSteps : SolutionSteps();
}

SolutionStep step(std::string title, std::string latex) {
  return {.title = std::move(title), .latexString = std::move(latex), .messageString = std::nullopt};
}

qsizetype pagesOf(const QByteArray& pdf) {
  return QString::fromLatin1(pdf).count(QRegularExpression(QStringLiteral("/Type /Page\\b")));
}

TEST(WorkingCopiesTest, APdfHasAPageForEachPageful) {
  EXPECT_TRUE(pdfOfWorking(rowsOf({step("Result", "1")})).startsWith("%PDF"));
  EXPECT_EQ(pagesOf(pdfOfWorking(rowsOf({step("Result", "1")}))), 1);
  // Seven or eight rows of 100 on a page that is 600 wide.
  const qsizetype pages = pagesOf(pdfOfWorking(rowsOf(SolutionSteps(40, step("Step", "1")))));
  EXPECT_GE(pages, 5);
  EXPECT_LE(pages, 6);
}

TEST(WorkingCopiesTest, PrintIsAlikeInEitherAppearance) {
  SolutionTableData data;
  data.solutionSteps = {step("Result", "\\color{#ff3333}{1}")};
  data.chartSteps = {{std::make_shared<CommonSplineChartData>()},
                     {std::make_shared<UnitCircleChartData>(90, 1.57, 90, 0, Quadrant::first)},
                     {std::make_shared<BernoulliDistributionTreeChartData>()}};
  for (const ChartRow& charts : data.chartSteps) charts.front()->frameRatio = 2;
  const auto printed = [](const SolutionRow& row, bool isDark) {
    Appearance::shared().force(isDark);
    QImage image(400, 200, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    makePainter(row, {.viewWidth = 400})->paint(painter, {400, 200}, RowPalette::printed());
    painter.end();
    Appearance::shared().force(false);
    return image;
  };
  for (const SolutionRow& row : data.rows())
    EXPECT_EQ(printed(row, true), printed(row, false)) << kindOf(row);
}

TEST(WorkingCopiesTest, AnSvgNamesNoFont) {
  const QByteArray svg = svgOfWorking(rowsOf({step("Result", "\\frac{3}{4}")}), 412);
  EXPECT_TRUE(svg.startsWith("<?xml"));
  EXPECT_FALSE(svg.contains("<text"));
  EXPECT_TRUE(svg.contains("viewBox=\"0 0 412 132\""));
}

TEST(WorkingCopiesTest, LatexHasTitlesAsTextAndColoursAsXcolorKnowsThem) {
  const QString latex =
      latexOfWorking(rowsOf({step("50 % & more_{}", "=\\color{#5774f7}{x}+\\color{#ff3333}{y}"),
                             {.title = "", .latexString = std::nullopt, .messageString = "No \\ solution"}}));
  EXPECT_TRUE(latex.contains("&\\text{50 \\% \\& more\\_\\{\\}} \\\\\n"));
  EXPECT_TRUE(latex.contains("\\textcolor{5774F7}{x}+\\;\\textcolor{FF3333}{y}"));
  EXPECT_TRUE(latex.contains("\\text{No \\textbackslash{} solution}"));
}

/// Where a TeX is installed, all worked examples go through it.
TEST(WorkingCopiesTest, LatexCompiles) {
  const QString tex = QStandardPaths::findExecutable("pdflatex");
  if (tex.isEmpty()) GTEST_SKIP() << "no TeX";
  QFile examples(QStringLiteral(TAVI_SOURCE_DIR "/tests/solver/worked_examples.md"));
  ASSERT_TRUE(examples.open(QFile::ReadOnly));
  const QTemporaryDir folder;
  QFile document(folder.filePath("workings.tex"));
  ASSERT_TRUE(document.open(QFile::WriteOnly));
  document.write(
      "\\documentclass{article}\\usepackage{amsmath}\\usepackage{xcolor}\\allowdisplaybreaks\\begin{document}"
      "\n");
  int workings = 0;
  const QRegularExpression heading(QStringLiteral("^#+ (power|root) `([^`]*)` `([^`]*)`"));
  for (const QString& line : QString::fromUtf8(examples.readAll()).split(u'\n')) {
    const QRegularExpressionMatch match = heading.match(line);
    if (!match.hasMatch()) continue;
    const SolutionSteps steps = working(match.captured(1) == u"power" ? Mode::power : Mode::root,
                                        match.captured(2).toStdString(), match.captured(3).toStdString());
    if (steps.empty()) continue;
    document.write(latexOfWorking(rowsOf(steps)).toUtf8());
    ++workings;
  }
  document.write("\\end{document}\n");
  document.close();
  EXPECT_GT(workings, 20);
  QProcess process;
  process.setWorkingDirectory(folder.path());
  process.start(tex, {"-interaction=nonstopmode", "-halt-on-error", "workings.tex"});
  ASSERT_TRUE(process.waitForFinished(100'000));
  EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardOutput().right(2000).toStdString();
}

}  // namespace
}  // namespace tavi
