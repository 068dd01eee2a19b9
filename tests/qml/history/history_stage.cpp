#include "history_stage.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QMetaEnum>
#include <QQmlContext>
#include <QStyleHints>
#include <algorithm>

#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest/quicktest.h>

#include "offscreen.h"
#include "platform/localization.h"
#include "shell/frame/controller_host.h"
#include "shell/frame/view_manager.h"

Q_IMPORT_QML_PLUGIN(TaviPlugin)

namespace tavi {

namespace {

QStringList linesOf(const QAccessibleInterface& item) {
  const QMetaEnum roles = QMetaEnum::fromType<QAccessible::Role>();
  QStringList lines{roles.valueToKey(item.role()) + QStringLiteral(" ") + item.text(QAccessible::Name)};
  for (int i = 0; i < item.childCount(); ++i)
    if (!item.child(i)->state().invisible) lines += linesOf(*item.child(i));
  return lines;
}

}  // namespace

void HistoryStage::open(QQuickItem* holder, const QStringList& tasks) {
  const auto emptyPage = [] {
    auto page = std::make_shared<ViewController>();
    page->setView(std::make_unique<QQuickItem>());
    return page;
  };
  ViewManager::hideToast();
  store_.setCurrentSelectedCalculation(std::nullopt);
  QVariantList records;
  for (const QString& latex : tasks) records.append(Calculation({}, latex, {}, {}).properties());
  preferences_.setValue("Calculations", records);
  store_.loadCalculations();

  history_ = std::make_shared<HistoryTableViewController>(store_, emptyPage);
  history_->setPage(*engine_, "shell/history/HistoryPage.qml");
  toolbar_ = std::make_shared<AppToolbarController>(history_);
  toolbar_->setPage(*engine_, "shell/frame/ToolbarPage.qml");
  drawer_ = std::make_shared<AppNavigationDrawerController>(toolbar_, emptyPage());
  drawer_->setPage(*engine_, "shell/frame/DrawerPage.qml");
  drawer_->beginAppearance();
  auto host = std::make_unique<ControllerHost>(holder);
  host->setSize(holder->size());
  host->setController(drawer_.get());
  host_ = std::move(host);
  drawer_->endAppearance();
}

void HistoryStage::close() {
  host_.reset();
  drawer_.reset();
  toolbar_.reset();
  history_.reset();
}

QStringList HistoryStage::told(QObject* item) {
  return linesOf(*QAccessible::queryAccessibleInterface(item));
}

QStringList HistoryStage::stored() const {
  QStringList tasks;
  for (const Calculation& calculation : store_.calculations()) tasks.append(calculation.latexString);
  return tasks;
}

QString HistoryStage::picked() const {
  const auto& picked = store_.currentSelectedCalculation();
  return picked ? picked->latexString : QString();
}

QString HistoryStage::clipboard() {
  return QGuiApplication::clipboard()->text();
}

// Tests tap faster than fingers, and need not wait long for a tap to be no double tap.
void HistoryStage::applicationAvailable() {
  QGuiApplication::styleHints()->setMouseDoubleClickInterval(50);
  loadTranslations({"en"});
}

void HistoryStage::qmlEngineAvailable(QQmlEngine* engine) {
  engine_ = engine;
  engine->rootContext()->setContextProperty("stage", this);
}

}  // namespace tavi

int main(int argc, char** argv) {
  tavi::useOffscreenScreen();
  tavi::HistoryStage stage;
  return quick_test_main_with_setup(argc, argv, "history", TAVI_QML_TESTS, &stage);
}
