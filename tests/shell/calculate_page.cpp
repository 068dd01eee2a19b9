#include "shell/calculate_page.h"

#include <QTest>
#include <stdexcept>

namespace tavi {

CalculatePage::CalculatePage() {
  window.resize(412, 744);
  window.show();
  window.requestActivate();
  if (!QTest::qWaitForWindowActive(&window)) throw std::runtime_error("the window does not become active");
  rebuild();
}

void CalculatePage::rebuild() {
  if (controller) controller->disappear();
  controller =
      std::make_unique<CalculateViewController>(store, notifications, errorManager, output, operation);
  controller->setPage(engine, "shell/CalculatePage.qml");
  controller->beginAppearance();
  controller->view()->setParentItem(window.contentItem());
  controller->view()->setSize(window.size());
  controller->endAppearance();
}

DTTextField& CalculatePage::field(const QString& name) {
  auto* found = controller->view()->findChild<DTTextField*>(name);
  if (!found) throw std::invalid_argument("no field of that name");
  return *found;
}

DTTextField& CalculatePage::edit(const QString& name, qsizetype start, qsizetype end) {
  DTTextField& edited = field(name);
  edited.forceActiveFocus();
  edited.setSelectedTextRange({start, end});
  return edited;
}

void CalculatePage::type(const QString& name, QStringView keys) {
  field(name).forceActiveFocus();
  for (const QChar key : keys) controller->tappedKeypadButton(key);
}

}  // namespace tavi
