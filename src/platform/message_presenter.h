#pragma once

#include <QString>
#include <functional>

namespace tavi {

/// How words reach the user: in passing, or so that he has to answer.
struct MessagePresenter {
  std::function<void(const QString& text)> showToast = [](const QString&) {};
  std::function<void(const QString& title, const QString& text)> presentAlert = [](const QString&,
                                                                                   const QString&) {};
  std::function<void()> hideToast = [] {};  ///< Takes back what was shown in passing.
};

}  // namespace tavi
