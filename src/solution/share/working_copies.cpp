#include "solution/share/working_copies.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <algorithm>
#include <cmath>
#include <set>
#include <variant>

#include "solution/rows/row_stack.h"

namespace tavi {

namespace {

/// What has a meaning of its own in the text of LaTeX.
QString escaped(const QString& text) {
  QString escaped;
  for (const QChar character : text) {
    switch (character.unicode()) {
      case u'\\':
        escaped += QStringLiteral("\\textbackslash{}");
        break;
      case u'~':
        escaped += QStringLiteral("\\textasciitilde{}");
        break;
      case u'^':
        escaped += QStringLiteral("\\textasciicircum{}");
        break;
      case u'#':
      case u'$':
      case u'%':
      case u'&':
      case u'_':
      case u'{':
      case u'}':
        escaped += u'\\';
        [[fallthrough]];
      default:
        escaped += character;
    }
  }
  return escaped;
}

/// Colours as xcolor knows them, by a name, since brackets inside the index of a root would end it:
/// \color{#ff3333}{2} of a working is \textcolor{FF3333}{2} there. Adds the names to the set.
QString withNamedColors(const QString& latex, std::set<QString>& names) {
  constexpr QLatin1StringView ours{"\\color{#"};
  constexpr qsizetype digits = 6;
  QString converted;
  qsizetype from = 0;
  for (qsizetype at = latex.indexOf(ours); at >= 0; at = latex.indexOf(ours, from)) {
    const QString name = latex.mid(at + ours.size(), digits).toUpper();
    names.insert(name);
    converted += latex.mid(from, at - from) + QStringLiteral("\\textcolor{") + name;
    from = at + ours.size() + digits;
  }
  return converted + latex.mid(from);
}

}  // namespace

QByteArray pdfOfWorking(const std::vector<SolutionRow>& rows) {
  constexpr double pageWidth = 600;  // in device-independent pixels, so that formulas are set in 14 points
  constexpr double margin = 15;      // millimetres
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setResolution(1200);
  writer.setPageSize(QPageSize(QPageSize::A4));
  writer.setPageMargins({margin, margin, margin, margin}, QPageLayout::Millimeter);
  const double scale = writer.width() / pageWidth;
  const double pageHeight = writer.height() / scale;
  QPainter painter(&writer);
  const RowPalette palette = RowPalette::printed();
  double y = 0;
  for (const SolutionRow& row : rows) {
    const auto rowPainter = makePainter(row, {.viewWidth = pageWidth, .widestLine = pageWidth});
    const double width = std::max(pageWidth, rowPainter->width());
    const QSizeF size(width, rowPainter->height(width));
    if (size.isEmpty()) continue;
    // What cannot be parted and is larger than a page is drawn smaller.
    const double fit = std::min({1.0, pageWidth / size.width(), pageHeight / size.height()});
    if (y > 0 && y + fit * size.height() > pageHeight) {
      writer.newPage();
      y = 0;
    }
    painter.save();
    painter.scale(scale, scale);
    painter.translate(0, y);
    painter.scale(fit, fit);
    rowPainter->paint(painter, size, palette);
    painter.restore();
    y += fit * size.height();
  }
  painter.end();
  return bytes;
}

QByteArray svgOfWorking(const std::vector<SolutionRow>& rows, double viewWidth) {
  const RowStack stack(rows, viewWidth);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  QSvgGenerator generator;
  generator.setOutputDevice(&buffer);
  generator.setResolution(96);
  generator.setSize({static_cast<int>(std::ceil(stack.size().width())),
                     static_cast<int>(std::ceil(stack.size().height()))});
  generator.setViewBox(QRectF({}, stack.size()));
  QPainter painter(&generator);
  stack.paint(painter, RowPalette::current());
  painter.end();
  return bytes;
}

QString latexOfWorking(const std::vector<SolutionRow>& rows) {
  QStringList lines;
  std::set<QString> colors;
  for (const SolutionRow& row : rows) {
    const auto* step = std::get_if<SolutionStepTableViewCell>(&row.content);
    if (!step) continue;
    for (const QString& text : {step->title, step->message})
      if (!text.isEmpty()) lines.append(QStringLiteral("&\\text{%1}").arg(escaped(text)));
    if (!step->latex.isEmpty()) lines.append(u'&' + withNamedColors(step->latex, colors));
  }
  QString latex = QStringLiteral("% needs the packages amsmath and xcolor\n");
  for (const QString& color : colors) latex += QStringLiteral("\\definecolor{%1}{HTML}{%1}\n").arg(color);
  return latex + QStringLiteral("\\begin{align*}\n") + lines.join(QStringLiteral(" \\\\\n")) +
         QStringLiteral("\n\\end{align*}\n");
}

}  // namespace tavi
