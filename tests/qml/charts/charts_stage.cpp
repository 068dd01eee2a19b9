#include "charts_stage.h"

#include <QFile>
#include <QPainter>
#include <QQmlContext>
#include <QQuickWindow>
#include <algorithm>

#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest/quicktest.h>

#include "appearance/appearance.h"
#include "charts/chart_reader.h"
#include "offscreen.h"
#include "platform/localization.h"
#include "solution/rows/chart_row.h"

Q_IMPORT_QML_PLUGIN(TaviPlugin)

namespace tavi {

ChartRow ChartsStage::example(const QString& name) const {
  QFile file(QStringLiteral(TAVI_SOURCE_DIR "/tests/charts/examples/%1.json").arg(name));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return std::get<ChartRequest>(readChartRequest(file.readAll().toStdString())).charts;
}

ChartRow ChartsStage::tree(int trials) const {
  auto data = std::make_shared<BernoulliDistributionTreeChartData>();
  data->frameRatio = 2;
  data->probabilityOfSuccess = 0.5;
  data->trials = trials;
  return {std::move(data)};
}

void ChartsStage::setDark(bool isDark) const {
  Appearance::shared().force(isDark);
}

int ChartsStage::differenceFromPicture(QQuickItem* view) const {
  const QImage screen = view->window()->grabWindow().convertToFormat(QImage::Format_RGB32);
  const double scale = view->window()->effectiveDevicePixelRatio();
  const QSizeF size = view->size();
  QImage picture((size * scale).toSize(), QImage::Format_RGB32);
  picture.fill(RowPalette::current().page);
  QPainter painter(&picture);
  painter.scale(scale, scale);
  makePainter(ChartTableViewCell{view->property("charts").value<ChartRow>()}, size.height())
      ->paint(painter, size, RowPalette::current());
  painter.end();
  int greatest = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const QRgb one = screen.pixel(x, y);
      const QRgb other = picture.pixel(x, y);
      for (const int difference :
           {qRed(one) - qRed(other), qGreen(one) - qGreen(other), qBlue(one) - qBlue(other)})
        greatest = std::max(greatest, std::abs(difference));
    }
  }
  return greatest;
}

void ChartsStage::applicationAvailable() {
  loadTranslations({"en"});
}

void ChartsStage::qmlEngineAvailable(QQmlEngine* engine) {
  engine->rootContext()->setContextProperty("stage", this);
}

}  // namespace tavi

int main(int argc, char** argv) {
  tavi::useOffscreenScreen();
  tavi::ChartsStage stage;
  return quick_test_main_with_setup(argc, argv, "charts", TAVI_QML_TESTS, &stage);
}
