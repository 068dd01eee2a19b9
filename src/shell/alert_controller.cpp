#include "shell/alert_controller.h"

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
  if (presenter()) presenter()->dismissPresented();
  if (handler) handler();
}

}  // namespace tavi
