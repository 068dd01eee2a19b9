#include "shell/frame/alert_controller.h"

#include <algorithm>
#include <utility>

#include "number/fatal_stop.h"
#include "platform/localization.h"

namespace tavi {

AlertController::AlertController(std::optional<QString> title, std::optional<QString> message,
                                 std::vector<AlertAction> actions, AlertStyle style)
    : title_(std::move(title)), message_(std::move(message)), actions_(std::move(actions)), style_(style) {
  if (actions_.empty()) actions_.push_back({localized("OK")});
}

QStringList AlertController::actionTitles() const {
  QStringList titles;
  for (const AlertAction& action : actions_) titles.append(action.title);
  return titles;
}

void AlertController::choose(int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= actions_.size()) fatalStop("no such alert action");
  const auto handler = actions_[static_cast<std::size_t>(index)].handler;
  dismiss();
  if (handler) handler();
}

void AlertController::cancel() {
  const auto found = std::ranges::find(actions_, AlertActionStyle::cancel, &AlertAction::style);
  if (found != actions_.end()) choose(static_cast<int>(found - actions_.begin()));
}

}  // namespace tavi
