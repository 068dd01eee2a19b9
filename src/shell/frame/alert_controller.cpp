#include "shell/frame/alert_controller.h"

#include <algorithm>
#include <utility>

#include "number/fatal_stop.h"
#include "platform/localization.h"

namespace tavi {

AlertController::AlertController(std::optional<QString> title, std::optional<QString> message,
                                 std::vector<AlertAction> actions, AlertStyle style)
    : title_(std::move(title)), message_(std::move(message)), actions_(std::move(actions)) {
  if (actions_.empty()) actions_.push_back({localized("OK")});
  setPresentationStyle(style == AlertStyle::alert ? PresentationStyle::Alert
                                                  : PresentationStyle::ActionSheet);
}

QStringList AlertController::actionTitles() const {
  QStringList titles;
  for (const AlertAction& action : actions_) titles.append(action.title);
  return titles;
}

const AlertAction& AlertController::action(int index) const {
  return elementAt(actions_, static_cast<std::size_t>(index));
}

bool AlertController::isDestructive(int index) const {
  return action(index).isDestructive;
}

int AlertController::firstFocus() const {
  auto found = std::ranges::find(actions_, AlertActionStyle::cancel, &AlertAction::style);
  if (found == actions_.end()) found = std::ranges::find(actions_, false, &AlertAction::isDestructive);
  return found == actions_.end() ? 0 : static_cast<int>(found - actions_.begin());
}

void AlertController::choose(int index) {
  const auto& handler = action(index).handler;
  if (!std::exchange(isAnswered_, true)) dismiss(handler);
}

void AlertController::cancel() {
  const int index = actions_.size() == 1 ? 0 : firstFocus();
  if (actions_.size() == 1 || action(index).style == AlertActionStyle::cancel) choose(index);
}

}  // namespace tavi
