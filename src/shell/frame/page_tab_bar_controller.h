#pragma once

#include "shell/frame/view_controller.h"

namespace tavi {

/// The two pages, input and solution, under a bar with a tab for each. One page is open at a time, or, where
/// there is room, they stand side by side; then the selected one is that which stays when the room goes.
class AppPageTabBarController : public tavi::ViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the application")
  Q_PROPERTY(QList<tavi::TabItem*> tabItems READ tabItems CONSTANT)
  Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY selectedIndexChanged)
  Q_PROPERTY(tavi::ViewController* selectedController READ selectedController NOTIFY selectedIndexChanged)
  Q_PROPERTY(bool isSideBySide READ isSideBySide WRITE setSideBySide NOTIFY sideBySideChanged)

 public:
  explicit AppPageTabBarController(std::vector<std::shared_ptr<ViewController>> viewControllers,
                                   int selectedIndex = 0);
  ~AppPageTabBarController() override;

  const std::vector<std::shared_ptr<ViewController>>& viewControllers() const { return viewControllers_; }
  QList<TabItem*> tabItems() const;
  int selectedIndex() const { return selectedIndex_; }
  ViewController* selectedController() const;

  Q_INVOKABLE tavi::ViewController* pageAt(int index) const;
  bool isSideBySide() const { return isSideBySide_; }
  void setSideBySide(bool isSideBySide);

  /// Opens a page; opening the open one does nothing. An index outside the pages is a fatal stop.
  Q_INVOKABLE void select(int index);

  /// The tap on a tab, which opens its page if it is enabled.
  Q_INVOKABLE void tapTab(int index);

 signals:
  void selectedIndexChanged();
  void sideBySideChanged();

 protected:
  void viewDidAppear() override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  std::vector<ViewController*> visibleChildren() const override;

 private:
  std::vector<ViewController*> otherPages() const;

  std::vector<std::shared_ptr<ViewController>> viewControllers_;
  int selectedIndex_;
  bool isSideBySide_ = false;
};

}  // namespace tavi
