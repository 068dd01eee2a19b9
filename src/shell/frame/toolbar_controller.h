#pragma once

#include "appearance/keypad_palette.h"
#include "shell/frame/toolbar.h"
#include "shell/frame/view_controller.h"

namespace tavi {

/// A container that shows one controller under a toolbar.
class BasicToolbarController : public tavi::ViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the application")
  Q_PROPERTY(tavi::Toolbar* toolbar READ toolbar CONSTANT)
  Q_PROPERTY(tavi::ViewController* rootController READ rootController NOTIFY rootControllerChanged)

 public:
  explicit BasicToolbarController(std::shared_ptr<ViewController> root);
  ~BasicToolbarController() override;

  Toolbar* toolbar() { return &toolbar_; }
  ViewController* rootController() const { return root_.get(); }

  /// Puts another controller in the place of the root, then calls the completion.
  void transition(std::shared_ptr<ViewController> to, const std::function<void()>& completion = {});

 signals:
  void rootControllerChanged();

 protected:
  void viewDidLoad() override;
  void applyAppearance() override;
  /// The colours of the bar in the appearance whose palette that is.
  virtual void color(Toolbar::Style& style, const KeypadPalette& palette) const;
  std::vector<ViewController*> visibleChildren() const override { return {root_.get()}; }

 private:
  Toolbar toolbar_;
  std::shared_ptr<ViewController> root_;
};

/// The bar over the pages, with the menu button.
class AppToolbarController : public tavi::BasicToolbarController {
  Q_OBJECT

 public:
  using BasicToolbarController::BasicToolbarController;

  ToolbarButton* menuButton() const { return menuButton_.get(); }
  void handleMenuButton();

 protected:
  void viewDidLoad() override;
  void color(Toolbar::Style& style, const KeypadPalette& palette) const override;

 private:
  std::shared_ptr<ToolbarButton> menuButton_;
};

/// The head of the side menu, with the application's title and the way to its settings.
class MenuToolbarController : public tavi::BasicToolbarController {
  Q_OBJECT

 public:
  explicit MenuToolbarController(std::shared_ptr<ViewController> root,
                                 std::function<void()> openSettings = {})
      : BasicToolbarController(std::move(root)), openSettings_(std::move(openSettings)) {}

 protected:
  void viewDidLoad() override;
  void color(Toolbar::Style& style, const KeypadPalette& palette) const override;

 private:
  std::function<void()> openSettings_;
};

}  // namespace tavi
