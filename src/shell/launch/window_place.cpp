#include "shell/launch/window_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <array>
#include <chrono>
#include <vector>

#include "platform/preferences.h"

namespace tavi {

namespace {

constexpr auto lengths =
    std::to_array<QLatin1StringView>({QLatin1StringView("x"), QLatin1StringView("y"),
                                      QLatin1StringView("width"), QLatin1StringView("height")});
const QString maximized = QStringLiteral("isMaximized");

// Far beyond every desktop; so sums of lengths have no overflow.
constexpr qlonglong longest = 1'000'000;

// A window that is moved or resized by hand changes many times a second.
constexpr std::chrono::milliseconds restBeforeKept{500};

int area(const QRect& rectangle) {
  return std::max(0, rectangle.width()) * std::max(0, rectangle.height());
}

}  // namespace

QVariantMap record(const WindowPlace& place) {
  const auto values = std::to_array<qlonglong>(
      {place.normal.x(), place.normal.y(), place.normal.width(), place.normal.height()});
  QVariantMap record{{maximized, place.isMaximized}};
  for (std::size_t i = 0; i < lengths.size(); ++i) record.insert(lengths.at(i), values.at(i));
  return record;
}

std::optional<WindowPlace> windowPlace(const QVariantMap& record) {
  std::array<int, lengths.size()> values{};
  for (std::size_t i = 0; i < lengths.size(); ++i) {
    const QVariant value = record.value(lengths.at(i));
    if (value.typeId() != QMetaType::LongLong || qAbs(value.toLongLong()) > longest) return std::nullopt;
    values.at(i) = value.toInt();
  }
  const QRect normal(values[0], values[1], values[2], values[3]);
  if (normal.isEmpty()) return std::nullopt;
  return WindowPlace{normal, record.value(maximized).toBool()};
}

QRect onScreen(const QRect& place, QSize least, std::span<const QRect> screens) {
  if (screens.empty()) return place;
  const QRect screen = *std::ranges::max_element(
      screens, {}, [&place](const QRect& each) { return area(each.intersected(place)); });
  const QSize size = place.size().expandedTo(least).boundedTo(screen.size());
  const QPoint furthest = screen.bottomRight() - QPoint(size.width() - 1, size.height() - 1);
  return {QPoint(std::clamp(place.x(), screen.x(), furthest.x()),
                 std::clamp(place.y(), screen.y(), furthest.y())),
          size};
}

WindowMemory::WindowMemory(QWindow& window, PreferenceStore& preferences)
    : window_(window), preferences_(preferences), place_{window.geometry()} {
  restore();
  kept_ = place_;
  rest_.setSingleShot(true);
  rest_.setInterval(restBeforeKept);
  connect(&rest_, &QTimer::timeout, this, &WindowMemory::keep);
  for (const auto changed :
       {&QWindow::xChanged, &QWindow::yChanged, &QWindow::widthChanged, &QWindow::heightChanged})
    connect(&window_, changed, this, &WindowMemory::note);
  connect(&window_, &QWindow::windowStateChanged, this, &WindowMemory::note);
}

WindowMemory::~WindowMemory() {
  keep();
}

void WindowMemory::restore() {
  const std::optional<WindowPlace> left = windowPlace(preferences_.value(preferences::windowPlace));
  std::vector<QRect> screens;
  for (const QScreen* screen : QGuiApplication::screens()) screens.push_back(screen->availableGeometry());
  if (!left) {
    // The desktop finds a place for it.
    window_.resize(onScreen(window_.geometry(), window_.minimumSize(), screens).size());
    place_.normal = window_.geometry();
    return;
  }
  place_ = {onScreen(left->normal, window_.minimumSize(), screens), left->isMaximized};
  window_.setGeometry(place_.normal);
}

void WindowMemory::show() {
  if (place_.isMaximized)
    window_.showMaximized();
  else
    window_.show();
}

void WindowMemory::note() {
  const Qt::WindowStates states = window_.windowStates();
  if (!states.testFlag(Qt::WindowMinimized)) place_.isMaximized = states.testFlag(Qt::WindowMaximized);
  rest_.start();
}

// A state and the geometry that comes with it are told one after the other, so the latter is looked at once
// both are there.
void WindowMemory::keep() {
  if (window_.windowStates() == Qt::WindowNoState && window_.isVisible()) place_.normal = window_.geometry();
  if (place_ != kept_ && preferences_.setValue(preferences::windowPlace, record(place_))) kept_ = place_;
}

}  // namespace tavi
