#pragma once

namespace tavi {

/// True while the calculate action runs; keypad, clear action and menu button then do nothing. Main thread
/// only.
inline bool isCalculating = false;

}  // namespace tavi
