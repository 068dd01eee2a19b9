#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

#include "shell/frame/view_controller.h"

namespace tavi {

enum class AlertStyle { actionSheet = 0, alert = 1 };

/// Escape answers with the action of style cancel, if there is one.
enum class AlertActionStyle { normal = 0, cancel = 1 };

struct AlertAction {
  QString title;
  std::function<void()> handler = {};
  AlertActionStyle style = AlertActionStyle::normal;
  bool isDestructive = false;  ///< Shown in red, and never what the keyboard begins at.
};

/// A short question or message over a screen, with a button per action. A tap on one ends the alert and then
/// runs its handler.
class AlertController : public tavi::ViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by presentAlert")
  Q_PROPERTY(QString message READ message CONSTANT)
  Q_PROPERTY(QStringList actionTitles READ actionTitles CONSTANT)
  Q_PROPERTY(int firstFocus READ firstFocus CONSTANT)

 public:
  AlertController(std::optional<QString> title, std::optional<QString> message,
                  std::vector<AlertAction> actions, AlertStyle style);

  QString title() const override { return title_.value_or(QString()); }
  QString message() const { return message_.value_or(QString()); }
  QStringList actionTitles() const;
  Q_INVOKABLE bool isDestructive(int index) const;

  /// The action that the keyboard begins at: the cancelling one, else the first that destroys nothing.
  int firstFocus() const;

  /// The tap on the button of the action; an index outside the actions is a fatal stop.
  Q_INVOKABLE void choose(int index);

  /// The answer that changes nothing, or the only one there is; otherwise the alert stays.
  void cancel() override;

 private:
  const AlertAction& action(int index) const;

  std::optional<QString> title_;
  std::optional<QString> message_;
  std::vector<AlertAction> actions_;
  bool isAnswered_ = false;
};

}  // namespace tavi
