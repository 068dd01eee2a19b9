#include "charts_stage.h"

#include <QFile>
#include <QQmlContext>

#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest/quicktest.h>

#include "charts/chart_reader.h"
#include "platform/localization.h"

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

void ChartsStage::applicationAvailable() {
  loadTranslations({"en"});
}

void ChartsStage::qmlEngineAvailable(QQmlEngine* engine) {
  engine->rootContext()->setContextProperty("stage", this);
}

}  // namespace tavi

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  tavi::ChartsStage stage;
  return quick_test_main_with_setup(argc, argv, "charts", TAVI_QML_TESTS, &stage);
}
