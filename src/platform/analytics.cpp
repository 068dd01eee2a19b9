#include "platform/analytics.h"

namespace tavi {
namespace {

std::deque<AnalyticsEvent>& kept() {
  static std::deque<AnalyticsEvent> events;
  return events;
}

void keep(const AnalyticsEvent& event) {
  if (kept().size() == Analytics::capacity) kept().pop_front();
  kept().push_back(event);
}

Analytics::Sink& sharedSink() {
  static Analytics::Sink sink = keep;
  return sink;
}

}  // namespace

void Analytics::logEvent(const QString& name, std::optional<QVariantMap> parameters) {
  sharedSink()({name, std::move(parameters)});
}

void Analytics::setSink(Sink sink) {
  sharedSink() = sink ? std::move(sink) : keep;
}

const std::deque<AnalyticsEvent>& Analytics::recentEvents() {
  return kept();
}

void Analytics::clearRecentEvents() {
  kept().clear();
}

}  // namespace tavi
