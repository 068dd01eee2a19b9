#pragma once

#include <QQmlEngine>
#include <QQuickItem>
#include <QString>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/online_test.h"
#include "shell/frame/tab_item.h"

namespace tavi {

struct AlertAction;
enum class AlertStyle;

/// One screen or a part of it: the behaviour behind a tree of items. Containers hold their children as shared
/// pointers and show and hide them; everything happens on the main thread.
///
/// Order of events: `viewDidLoad` once, when the view is first asked for; `viewWillAppear` before and
/// `viewDidAppear` after the view comes on the screen; `viewWillDisappear` before it goes. When one screen
/// takes the place of another, the old one's `viewWillDisappear` comes before anything of the new one.
class ViewController : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the application")
  Q_PROPERTY(tavi::TabItem* tabItem READ tabItem CONSTANT)
  Q_PROPERTY(QString title READ title CONSTANT)
  Q_PROPERTY(
      tavi::ViewController* presentedController READ presentedController NOTIFY presentedControllerChanged)
  Q_PROPERTY(PresentationStyle presentationStyle READ presentationStyle CONSTANT)
  Q_PROPERTY(bool isPresentationAnimated READ isPresentationAnimated CONSTANT)
  Q_PROPERTY(bool isLeaving READ isLeaving NOTIFY leavingChanged)

 public:
  /// How a presented controller lies over the window. The numbers are those of stored scenes and callers.
  enum class PresentationStyle {
    FullScreen = 0,          ///< Over all of it, on a ground of its own.
    PageSheet = 1,           ///< A high sheet from the foot; in a wide window a large card.
    FormSheet = 2,           ///< The same, in a wide window a small card.
    OverFullScreen = 5,      ///< Over all of it; what is below shows where the view is translucent.
    OverCurrentContext = 6,  ///< The same, and it fades in where it stands.
    Alert,                   ///< A card as high as its view needs, in the middle.
    ActionSheet,             ///< As high as its view needs, at the foot; a tap beside it cancels.
  };
  Q_ENUM(PresentationStyle)

  using Completion = std::function<void()>;

  ViewController();
  ~ViewController() override;

  /// Where the view comes from: a QML file of the module, such as "shell/CalculatePage.qml", whose root item
  /// takes this controller as its required property `controller`. Nothing is loaded yet.
  void setPage(QQmlEngine& engine, const QString& page);

  /// A view that was made elsewhere; `viewDidLoad` still comes when it is first asked for.
  void setView(std::unique_ptr<QQuickItem> view);

  /// The view, loaded and prepared at the first call. None if the controller was given neither page nor view:
  /// it then loads as if it had one. A page that does not load is a fatal stop.
  QQuickItem* view();
  bool isViewLoaded() const { return isViewLoaded_; }
  QQmlEngine* engine() const { return engine_; }

  /// To be called by whoever shows and hides the view. Calls that change nothing do nothing.
  void beginAppearance();
  void endAppearance();
  void disappear();
  bool isAppearing() const { return isAppearing_; }

  /// The container this controller is in, or none.
  ViewController* parentController() const { return parentController_; }

  /// The nearest container of that class, or none.
  template <typename Controller>
  Controller* ancestor() const {
    for (ViewController* parent = parentController_; parent; parent = parent->parentController_)
      if (auto* found = qobject_cast<Controller*>(parent)) return found;
    return nullptr;
  }

  /// What a screen reader calls the screen; empty for one without a name of its own.
  virtual QString title() const { return {}; }

  /// How this controller comes up once it is presented; a page sheet unless it says otherwise. To be set
  /// before.
  PresentationStyle presentationStyle() const { return presentationStyle_; }
  void setPresentationStyle(PresentationStyle style) { presentationStyle_ = style; }

  /// Shows the controller over the whole window, above all that is open in it. It waits its turn while
  /// something is shown already, unless that itself presents it.
  void present(std::shared_ptr<ViewController> controller, bool isAnimated = true);

  /// Takes away what this controller has presented, if anything, and what that has. The completion is called
  /// when nothing of it is seen any more, before the next one that waits comes up.
  void dismissPresented(Completion completion = {});

  /// The same for this controller, if something has presented it.
  void dismiss(Completion completion);
  Q_INVOKABLE void dismiss() { dismiss({}); }

  /// What Escape and Back do to a presented controller: it goes, unless it says otherwise.
  Q_INVOKABLE virtual void cancel() { dismiss(); }

  /// What is shown over this controller until nothing of it is seen any more, or none.
  ViewController* presentedController() const { return presented_.get(); }

  /// Whether something is shown over the window that this controller is in.
  bool isCovered() const {
    return parentController_ ? parentController_->isCovered() : presented_ != nullptr;
  }

  /// What shows this controller, or none.
  ViewController* presenter() const { return presenter_; }

  // Between a presented controller and what draws it over the window.
  bool isPresentationAnimated() const { return isPresentationAnimated_; }
  bool isLeaving() const { return isLeaving_; }
  Q_INVOKABLE void presentationShown() { isPresentationShown_ = true; }
  Q_INVOKABLE void presentationGone();

  /// Shows a message over the window, with one button "OK" if no actions are given.
  void presentAlert(const std::optional<QString>& title, const std::optional<QString>& message,
                    std::vector<AlertAction> actions, AlertStyle style);

  TabItem* tabItem() { return &tabItem_; }

  /// Titles the page's tab in the medium font and enables or disables it.
  void setUpTabItem(const QString& title, bool isEnabled);

  /// Asks the network; runs the action later when it answers at all. Otherwise says that there is no network
  /// and runs the failure action, if any, once the user has read it.
  void runWhenOnline(std::function<void()> action, std::function<void()> failureAction = {},
                     const OnlineTest& test = OnlineTest::shared());

 signals:
  void presentedControllerChanged();
  void leavingChanged();

 protected:
  virtual void viewDidLoad() {}
  /// Colours the view: when it has loaded, and again whenever the appearance changes.
  virtual void applyAppearance() {}
  virtual void viewWillAppear() {}
  virtual void viewDidAppear() {}
  virtual void viewWillDisappear() {}

  /// The children that come and go together with this container.
  virtual std::vector<ViewController*> visibleChildren() const { return {}; }

  /// Makes the controller a child of this one, and undoes it. Containers do both where they take and give up
  /// a child.
  void adopt(ViewController& child) { child.parentController_ = this; }
  static void release(ViewController& child) { child.parentController_ = nullptr; }

  /// Puts the next child in the place of the one in the slot; `show` is called when the new view may be
  /// shown.
  void replaceChild(std::shared_ptr<ViewController>& slot, std::shared_ptr<ViewController> next,
                    const std::function<void()>& show);

  /// Gives the controller up once what runs now is done: its own items may be in the middle of a tap.
  void releaseLater(std::shared_ptr<ViewController> controller);

 private:
  struct Request {
    std::shared_ptr<ViewController> controller;
    bool isAnimated;
  };

  void load();
  void presentNext();
  void finishDismissal();

  QQmlEngine* engine_ = nullptr;
  QString page_;
  std::unique_ptr<QQuickItem> view_;
  bool isViewLoaded_ = false;
  bool isAppearing_ = false;
  ViewController* parentController_ = nullptr;
  ViewController* presenter_ = nullptr;
  std::shared_ptr<ViewController> presented_;
  std::deque<Request> waiting_;
  std::vector<Completion> dismissalCompletions_;
  PresentationStyle presentationStyle_ = PresentationStyle::PageSheet;
  bool isPresentationAnimated_ = true;
  bool isPresentationShown_ = false;
  bool isLeaving_ = false;
  std::deque<std::shared_ptr<ViewController>> leaving_;
  TabItem tabItem_;
};

/// A page with a strip for a banner at its foot. Nothing fills the strip yet.
class AdHandlingViewController : public tavi::ViewController {
  Q_OBJECT

 public:
  QQuickItem* bannerView() const { return bannerView_; }

 protected:
  QQuickItem* bannerView_ = nullptr;
};

/// Height at the foot of the window that the system keeps for itself, in device-independent pixels.
double bottomSafeAreaInset();

}  // namespace tavi
