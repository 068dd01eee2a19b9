#pragma once

#include <chrono>
#include <functional>

#include "platform/network_access.h"

namespace tavi {

/// Whether the network can be reached, found out by one real request.
class OnlineTest {
 public:
  using Completion = std::function<void(bool isOnline)>;

  static OnlineTest& shared();

  /// Address to ask and how long to wait; the standard is a large public website and eight seconds.
  explicit OnlineTest(QUrl address = standardAddress(),
                      std::chrono::milliseconds timeout = std::chrono::seconds(8),
                      NetworkAccessFactory makeAccess = makeNetworkAccess);

  static QUrl standardAddress();

  /// Sends the request and answers later, on this thread. Any HTTP response counts as online, whatever its
  /// status; a redirect is one too and is not followed. No answer once the context is destroyed.
  void run(QObject* context, Completion completion) const;

 private:
  QUrl address_;
  std::chrono::milliseconds timeout_;
  NetworkAccessFactory makeAccess_;
};

}  // namespace tavi
