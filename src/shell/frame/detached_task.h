#pragma once

#include <QCoroTask>
#include <exception>

namespace tavi {

/// Lets the task run on by itself. What it throws, which is only ever a fatal stop, ends the process as it
/// would anywhere else; a task that nobody awaits keeps it to itself.
inline QCoro::Task<> detached(QCoro::Task<> task) {
  try {
    co_await task;
  } catch (...) {
    std::terminate();
  }
}

}  // namespace tavi
