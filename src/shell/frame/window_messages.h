#pragma once

#include "platform/message_presenter.h"

namespace tavi {

/// Toasts and alerts over the application's window.
MessagePresenter messagesOverWindow();

}  // namespace tavi
