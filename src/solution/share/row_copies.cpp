#include "solution/share/row_copies.h"

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <variant>

#include "charts/view/chart_words.h"
#include "typeset/math_label.h"
#include "typeset/mathml.h"
#include "typeset/parser.h"

namespace tavi {

namespace {

QString wordsOf(const SolutionStepTableViewCell& step) {
  QStringList parts{step.title, step.message, typeset::spokenText(step.latex)};
  parts.removeAll(QString());
  return parts.join(QStringLiteral(", "));
}

QString wordsOf(const ChartRow& charts) {
  const std::optional<ChartView> view = ChartManager::chartView(charts);
  return view ? QString::fromStdString(chartWords(*view, typeset::translatedPhrase)) : QString();
}

QImage pictureOf(const SolutionRow& row, double viewWidth) {
  constexpr double scale = 3;
  const auto painter = makePainter(row, {.viewWidth = viewWidth});
  const double width = std::max(viewWidth, painter->width());
  const QSizeF size(width, painter->height(width));
  QImage image((size * scale).toSize(), QImage::Format_RGB32);
  if (image.isNull()) return image;
  const RowPalette palette = RowPalette::current();
  image.fill(palette.page);
  QPainter device(&image);
  device.scale(scale, scale);
  painter->paint(device, size, palette);
  return image;
}

}  // namespace

QString wordsOf(const SolutionRow& row) {
  if (const auto* step = std::get_if<SolutionStepTableViewCell>(&row.content)) return wordsOf(*step);
  if (const auto* charts = std::get_if<ChartTableViewCell>(&row.content)) return wordsOf(charts->chartData);
  return {};
}

std::unique_ptr<QMimeData> copyOfRow(const SolutionRow& row, RowCopy::Form form, double viewWidth) {
  auto data = std::make_unique<QMimeData>();
  const auto* step = std::get_if<SolutionStepTableViewCell>(&row.content);
  if (form == RowCopy::Picture || !step) {
    data->setImageData(pictureOf(row, viewWidth));
  } else if (form == RowCopy::Words || step->latex.isEmpty()) {
    data->setText(wordsOf(*step));
  } else if (form == RowCopy::Latex) {
    data->setText(step->latex);
  } else {
    const std::string mathml = typeset::mathml(typeset::parse(step->latex.toStdString()).list);
    data->setText(QString::fromStdString(mathml));
    data->setData(QStringLiteral("application/mathml+xml"), QByteArray::fromStdString(mathml));
  }
  return data;
}

}  // namespace tavi
