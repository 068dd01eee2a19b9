#pragma once

#include <QString>
#include <QVariantMap>
#include <deque>
#include <functional>
#include <optional>

namespace tavi {

/// One thing a user did. Parameters are texts, integers, booleans, numbers, lists and maps; absent means none
/// at all.
struct AnalyticsEvent {
  QString name;
  std::optional<QVariantMap> parameters;
};

/// The one call by which the application reports what its user does. Main thread only.
class Analytics {
 public:
  using Sink = std::function<void(const AnalyticsEvent&)>;

  /// How many events `recentEvents` keeps.
  static constexpr std::size_t capacity = 64;

  /// Hands the event on and returns at once; nothing comes back.
  static void logEvent(const QString& name, std::optional<QVariantMap> parameters = std::nullopt);

  /// Where events go from now on. An empty sink restores the first one, which is `recentEvents`.
  static void setSink(Sink sink);

  /// The last events of this process, oldest first, unless another sink took them.
  static const std::deque<AnalyticsEvent>& recentEvents();

  /// Forgets the recent events.
  static void clearRecentEvents();
};

}  // namespace tavi
