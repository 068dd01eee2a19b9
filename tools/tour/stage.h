#pragma once

#include <QImage>
#include <QPointingDevice>
#include <QQuickItem>
#include <QString>
#include <QStringView>
#include <functional>
#include <stdexcept>

#include "input/mode.h"
#include "shell/launch/application.h"

namespace tavi::tour {

/// A step that did not come where it should, in words.
class Failure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Lets the application run until the state is reached.
void waitUntil(const std::function<bool()>& isReached, const std::string& what);

/// The running application and a finger on its window. Whatever cannot be found or does not happen within
/// a few seconds is a Failure.
class Stage {
 public:
  /// Launches the application and waits for its first frame.
  explicit Stage(Application& application);

  void resize(QSize size);

  AppDelegate& delegate() { return application_.delegate(); }
  QQuickWindow& window() { return *delegate().window(); }

  /// The visible item of that object name.
  QQuickItem& item(const QString& name) const;
  bool shows(const QString& name) const { return visibleItem(name) != nullptr; }

  const SolutionSteps& solutionSteps() { return delegate().solutionViewController()->solutionSteps(); }

  void tap(const QString& name);
  void type(const QString& field, QStringView keys);

  /// Opens the input page; beside the working it is open.
  void openInput();

  /// Clears the input page, chooses the mode and types both texts, exponent or index first.
  void prepare(Mode mode, QStringView first, QStringView second);

  /// Types the texts, taps calculate and waits for the working to be on the screen.
  void solve(Mode mode, QStringView first, QStringView second);

  /// Draws a finger to the left over the first formula that is wider than the page.
  void scrollWideLine();

  /// Takes away whatever lies over the pages.
  void clearTheView();

  /// Puts the history in the place of the pages.
  void openHistory();

  /// Shares the solution that is open, up to the sheet that offers the picture.
  void share();

  /// The picture that a sheet offers; null without one.
  QImage sharedPicture();

  /// Taps the toast in sight, if there is one.
  void sendToastsAway();

  /// Fails with the first of the texts in sight that is shortened or that does not fit into its place.
  void expectNothingCut();

  /// What the window shows once everything has come to rest, which all animations do five times as fast
  /// meanwhile.
  QImage picture();

 private:
  QQuickItem* visibleItem(const QString& name) const;

  Application& application_;
  std::unique_ptr<QPointingDevice> finger_;
};

}  // namespace tavi::tour
