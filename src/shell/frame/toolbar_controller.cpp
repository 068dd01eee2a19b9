#include "shell/frame/toolbar_controller.h"

#include <utility>

#include "appearance/interface_colors.h"
#include "appearance/interface_fonts.h"
#include "output/localized_string.h"
#include "platform/analytics.h"
#include "platform/localization.h"
#include "remote/analytics_events.h"
#include "shell/frame/is_calculating.h"
#include "shell/frame/navigation_drawer_controller.h"

namespace tavi {

namespace {

std::shared_ptr<ToolbarButton> makeButton(const char* title, const QString& identifier, const QString& icon,
                                          std::function<void()> action) {
  auto button = std::make_shared<ToolbarButton>();
  button->title = localized(title);
  button->accessibilityIdentifier = identifier;
  button->icon = icon;
  button->tintColor = InterfaceColor::darkTitle();
  button->action = std::move(action);
  return button;
}

}  // namespace

BasicToolbarController::BasicToolbarController(std::shared_ptr<ViewController> root)
    : root_(std::move(root)) {
  adopt(*root_);
}

// The page reads the toolbar, so it goes first.
BasicToolbarController::~BasicToolbarController() {
  setView(nullptr);
}

void BasicToolbarController::transition(std::shared_ptr<ViewController> to,
                                        const std::function<void()>& completion) {
  replaceChild(root_, std::move(to), [this] { emit rootControllerChanged(); });
  if (completion) completion();
}

void BasicToolbarController::viewDidLoad() {
  toolbar_.setStyle({.titleFont = InterfaceFont::heavy(20), .titleColor = InterfaceColor::darkTitle()});
}

void BasicToolbarController::applyAppearance() {
  Toolbar::Style style = toolbar_.style();
  color(style, KeypadPalette::shared());
  toolbar_.setStyle(style);
}

void BasicToolbarController::color(Toolbar::Style& style, const KeypadPalette& palette) const {
  style.backgroundColor = palette.brightYellow;
}

void AppToolbarController::viewDidLoad() {
  BasicToolbarController::viewDidLoad();
  menuButton_ = makeButton("menuButton", QStringLiteral("menuButton"), QStringLiteral("menu"),
                           [this] { handleMenuButton(); });

  Toolbar::Style style = toolbar()->style();
  style.shrinksTitle = true;
  toolbar()->setStyle(style);
  toolbar()->setLeftViews({menuButton_});
}

void AppToolbarController::color(Toolbar::Style& style, const KeypadPalette& palette) const {
  BasicToolbarController::color(style, palette);
  style.statusBarColor = palette.darkGold;
}

void AppToolbarController::handleMenuButton() {
  Analytics::logEvent(events::tappedMenuButton);
  if (isCalculating) return;
  if (auto* drawer = ancestor<AppNavigationDrawerController>()) drawer->toggleLeftView();
}

void MenuToolbarController::viewDidLoad() {
  BasicToolbarController::viewDidLoad();
  Toolbar::Style style = toolbar()->style();
  style.topInset = 57;
  style.shrinksTitle = true;
  style.height = 90;
  toolbar()->setStyle(style);
  const QString title = QString::fromStdString(LocalizedString::taviSolver.text());
  toolbar()->setTitle(QStringLiteral("  %1  ").arg(title));
  if (openSettings_)
    toolbar()->setRightViews({makeButton("settings", QStringLiteral("settingsButton"),
                                         QStringLiteral("settings"), openSettings_)});
}

void MenuToolbarController::color(Toolbar::Style& style, const KeypadPalette& palette) const {
  style.backgroundColor = palette.darkGold;
}

}  // namespace tavi
