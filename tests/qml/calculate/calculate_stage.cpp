#include "calculate_stage.h"

#include <QQmlContext>

#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest/quicktest.h>

#include "offscreen.h"

Q_IMPORT_QML_PLUGIN(TaviPlugin)

namespace tavi {

QQuickItem* CalculateStage::open(QQuickItem* holder) {
  toasts_.clear();
  store_.clearCalculations();
  store_.setCurrentCalculation(std::nullopt);
  controller_ =
      std::make_unique<CalculateViewController>(store_, notifications_, errorManager_, output_, operation_);
  controller_->setPage(*engine_, "shell/CalculatePage.qml");
  controller_->beginAppearance();
  controller_->view()->setParentItem(holder);
  controller_->view()->setSize(holder->size());
  controller_->endAppearance();
  return controller_->view();
}

// Tests tap faster than fingers, and need not wait long for a tap to be no double tap.
void CalculateStage::applicationAvailable() {
  QGuiApplication::styleHints()->setMouseDoubleClickInterval(50);
}

void CalculateStage::qmlEngineAvailable(QQmlEngine* engine) {
  engine_ = engine;
  engine->rootContext()->setContextProperty("stage", this);
}

}  // namespace tavi

int main(int argc, char** argv) {
  tavi::useOffscreenScreen();
  tavi::CalculateStage stage;
  return quick_test_main_with_setup(argc, argv, "calculate", TAVI_QML_TESTS, &stage);
}
