#include "shell/calculate_view_controller.h"

#include <algorithm>
#include <array>
#include <utility>

#include "appearance/color_manager.h"
#include "appearance/interface_colors.h"
#include "appearance/interface_fonts.h"
#include "number/fatal_stop.h"
#include "output/localized_string.h"
#include "platform/analytics.h"
#include "platform/localization.h"
#include "remote/analytics_events.h"
#include "remote/manual/manual_view_controller.h"
#include "shell/frame/is_calculating.h"
#include "shell/frame/page_tab_bar_controller.h"
#include "shell/frame/toolbar_controller.h"
#include "shell/frame/view_manager.h"
#include "solution/solution_view_controller.h"

namespace tavi {

namespace {

// The mode of a picked record; a value that is no integer is a fatal stop.
int storedMode(const QVariant& value) {
  const bool isInteger = value.typeId() == QMetaType::LongLong || value.typeId() == QMetaType::Int;
  if (!isInteger) fatalStop("a stored mode that is no integer");
  const qlonglong mode = value.toLongLong();
  return std::in_range<int>(mode) ? static_cast<int>(mode) : -1;
}

}  // namespace

CalculateViewController::CalculateViewController(CalcManager& store, NotificationCenter& notifications,
                                                 ErrorManager& errorManager, TaviStringOutput& outputHelper,
                                                 TaviMathOperation& basicOperationHelper)
    : store_(store),
      notifications_(notifications),
      errorManager_(errorManager),
      outputHelper_(outputHelper),
      basicOperationHelper_(basicOperationHelper) {}

void CalculateViewController::viewDidLoad() {
  AdHandlingViewController::viewDidLoad();
  if (const auto& selected = store_.currentSelectedCalculation()) {
    const auto stored = selected->setupParameter.constFind(modeKey);
    if (stored != selected->setupParameter.constEnd()) selectMode(storedMode(*stored));
  }
  fillInText_ = QString::fromStdString(LocalizedString::fillInYourGivenNumbers.text());
  configureFields();
  setUpTabItem(localized("Input"), true);
  errorManager_.allFields = ErrorManager::Fields(allFields.begin(), allFields.end());
  errorManager_.requiredAmountOfFields = requiredAmountOfTextFields;
  for (DTTextField* field : allFields) field->setBorderColor(InterfaceColor::fieldNeutral());
  refillFields();
  if (const QQuickItem* root = view()) ViewManager::prepareSegmentedControls(*root);
  emit loaded();
  emit taskChanged();
}

void CalculateViewController::configureFields() {
  if (const QQuickItem* root = view()) configureFieldsBelow(*root);
  allIds = {"aTextField", "xTextField"};
}

void CalculateViewController::configureFieldsBelow(const QQuickItem& item) {
  const std::array candidates{std::pair(QLatin1StringView("aTextField"), &aTextField),
                              std::pair(QLatin1StringView("xTextField"), &xTextField)};
  for (QQuickItem* child : item.childItems()) {
    auto* field = qobject_cast<DTTextField*>(child);
    const View* attached = View::of(child);
    if (field && attached && attached->kind() == View::Kind::TextField) {
      connect(field, &DTTextField::shouldBeginEditing, this,
              &CalculateViewController::textFieldShouldBeginEditing);
      watch(*field);
      for (const auto& [identifier, fields] : candidates) {
        if (!fields->contains(field)) continue;
        field->accessibilityIdentifier = identifier;
        break;
      }
      allFields.append(field);
    }
    configureFieldsBelow(*child);
  }
}

void CalculateViewController::applyAppearance() {
  const KeypadPalette& palette = KeypadPalette::shared();
  // Each appearance has its own of the five that can be read on the background of a field.
  const bool isDark = InterfaceColor::background().lightnessF() < 0.5;
  const FieldStyle style{.labelColor = isDark ? palette.strongYellow : palette.darkMagenta,
                         .caretColor = palette.pink,
                         .labelOffset = -12,
                         .labelFont = InterfaceFont::book(10),
                         .isLabelFloating = true,
                         .isBorderShown = true};
  for (DTTextField* field : allFields) field->setStyle(style);
  if (const QQuickItem* root = view()) ColorManager::applyStyleToSubviews(*root);
  if (isAppearing()) errorManager_.refreshFields();
}

void CalculateViewController::refillFields() {
  if (const auto selected = store_.currentSelectedCalculation()) {
    store_.setCurrentSelectedCalculation(std::nullopt);
    fillFrom(*selected);
  } else if (const auto& current = store_.currentCalculation()) {
    fillFrom(*current);
  }
}

void CalculateViewController::fillFrom(const Calculation& calculation) {
  for (DTTextField* field : allFields) {
    field->setText(calculation.inputParameters.value(field->accessibilityIdentifier));
  }
}

void CalculateViewController::viewWillAppear() {
  AdHandlingViewController::viewWillAppear();
  if (bannerView()) bannerView()->setVisible(false);
  bottomBannerInset_ = bottomSafeAreaInset();
  emit bottomBannerInsetChanged();
  buildToolbar();
  errorManager_.refreshFields();
}

void CalculateViewController::buildToolbar() {
  auto* toolbarController = ancestor<BasicToolbarController>();
  if (!toolbarController) return;
  clearAllButton = std::make_shared<ToolbarButton>();
  clearAllButton->title = localized("Clear");
  clearAllButton->tintColor = InterfaceColor::darkTitle();
  clearAllButton->accessibilityIdentifier = "toolbarRemoveButton";
  clearAllButton->action = [page = QPointer(this)] {
    if (!page) return;
    page->clearAll();
    page->takeFocus();
  };
  toolbarController->toolbar()->setTitle(localized("Calculate Title"));
  toolbarController->toolbar()->setRightViews({clearAllButton});
}

void CalculateViewController::viewDidAppear() {
  AdHandlingViewController::viewDidAppear();
  takeFocus();
  emit appeared();
}

// A field that was typed into before goes on with it; else the page itself waits for keys.
void CalculateViewController::takeFocus() {
  if (QQuickItem* page = view()) page->forceActiveFocus();
}

// The snapshot from which the next instance of this page is filled.
void CalculateViewController::viewWillDisappear() {
  AdHandlingViewController::viewWillDisappear();
  Calculation snapshot;
  for (const DTTextField* field : allFields) {
    if (field->text().isEmpty() || field->accessibilityIdentifier.isEmpty()) continue;
    snapshot.inputParameters[field->accessibilityIdentifier] = field->text();
  }
  store_.setCurrentCalculation(snapshot);
}

void CalculateViewController::segmentedControlValueChanged(int index) {
  selectMode(index);
  moveEditingToVisibleTwin();
}

void CalculateViewController::selectMode(int index) {
  if (!modeAView || !modeBView || !segmentedControl) fatalStop("a page without its mode views");
  modeAView->setVisible(false);
  modeBView->setVisible(false);
  segmentedControl->setProperty("selectedSegmentIndex", index);
  if (index == 1) modeBView->setVisible(true);
  if (index == 0) modeAView->setVisible(true);
  emit taskChanged();
}

// What is left of an earlier failed attempt.
void CalculateViewController::wipeMarks() {
  for (const auto& field : errorManager_.allFields) {
    if (field) field->setBorderColor(InterfaceColor::fieldNeutral());
  }
}

void CalculateViewController::clearAll() {
  Analytics::logEvent(events::tappedClear);
  wipeMarks();
  if (isCalculating) return;
  errorManager_.withdrawMessage();

  auto* tabs = ancestor<AppPageTabBarController>();
  auto* solution =
      tabs ? qobject_cast<SolutionViewController*>(elementAt(tabs->viewControllers(), 1).get()) : nullptr;
  if (solution) {
    solution->handleClearAllButton();
  } else {
    notifications_.post(SolutionViewController::clearCurrentCalculation);
  }
  keepForUndo();
  for (DTTextField* field : allFields) field->setText("");
  basicOperationHelper_.withFraction = false;
  outputHelper_.reset();
  errorManager_.refreshFields();
  store_.setCurrentCalculation(std::nullopt);
  store_.setCurrentSelectedCalculation(std::nullopt);
  if (tabs) tabs->select(0);
}

void CalculateViewController::showManual() {
  ManualViewController::show(*this, QStringLiteral("qrx_info"));
}

}  // namespace tavi
