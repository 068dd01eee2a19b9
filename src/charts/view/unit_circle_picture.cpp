#include "charts/view/unit_circle_picture.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "appearance/interface_fonts.h"
#include "charts/view/canvas.h"
#include "number/number_text.h"
#include "typeset/math_painter.h"

namespace tavi {

namespace {

constexpr double edge = 12;
constexpr double radiusOfWidth = 0.375;
constexpr double lineWidth = 5;  // of arcs and projections
constexpr double circleWidth = 1.5;
constexpr double arrowWidth = 2;
constexpr double buttonSize = 40;
constexpr double runningOpacity = 0.5;  // of the button
constexpr float arcSaturation = 0.9F;
constexpr double leastTextSize = 12;
constexpr double largestTextSize = 38;

double degreesOf(double radians) {
  return radians * 180 / std::numbers::pi;
}

class UnitCirclePainter {
 public:
  UnitCirclePainter(QPainter& painter, const UnitCircleChartView& circle, QSizeF size, double progress,
                    const ChartPalette& palette)
      : painter_(painter),
        circle_(circle),
        state_(unitCircleState(circle, progress)),
        palette_(palette),
        size_(size) {
    const double side = std::min(size.height() - 2 * edge, 0.55 * size.width());
    center_ = {edge + side / 2, size.height() / 2};
    side_ = side;
    radius_ = radiusOfWidth * side;
    textSize_ = std::clamp(side / 10, leastTextSize, largestTextSize);
  }

  void paint() {
    paintGround();
    paintArcs();
    paintProjections();
    paintArrow();
    paintQuadrants();
    paintLabels();
    paintButton();
  }

 private:
  void paintGround() {
    const double half = side_ / 2;
    painter_.setPen(QPen(palette_.gray, circleWidth));
    painter_.drawEllipse(center_, radius_, radius_);
    drawCrispLine(painter_, center_ - QPointF(half, 0), center_ + QPointF(half, 0), 1, palette_.gray);
    drawCrispLine(painter_, center_ - QPointF(0, half), center_ + QPointF(0, half), 1, palette_.gray);
  }

  // Each turn covers the one before.
  void paintArcs() {
    for (std::size_t index = state_.turns > 2 ? state_.turns - 2 : 0; index < state_.turns; ++index) {
      const UnitCircleTurn& turn = circle_.turns[index];
      const double part = index + 1 == state_.turns ? state_.drawnOfTurn : 1;
      const QColor color = QColor::fromHsvF(static_cast<float>(std::fmod(turn.hue, 1)), arcSaturation,
                                            static_cast<float>(std::max(0.0, turn.brightness)));
      painter_.setPen(QPen(color, lineWidth, Qt::SolidLine, Qt::FlatCap));
      QPainterPath arc;
      const QRectF box(center_.x() - radius_, center_.y() - radius_, 2 * radius_, 2 * radius_);
      arc.arcMoveTo(box, 0);
      arc.arcTo(box, 0, std::clamp(degreesOf(turn.radians), -360.0, 360.0) * part);
      painter_.drawPath(arc);
    }
  }

  // Blue along the axis, red from there to the point.
  void paintProjections() {
    if (state_.drawnProjections <= 0 || !std::isfinite(circle_.b)) return;
    const QPointF foot = center_ + QPointF(radius_ * std::cos(circle_.b), 0);
    const QPointF height(0, -radius_ * std::sin(circle_.b));
    const auto stroke = [&](QPointF from, QPointF way, const QColor& color) {
      painter_.setPen(QPen(palette_.described(color.name().toStdString()), lineWidth, Qt::SolidLine,
                           Qt::FlatCap, Qt::BevelJoin));
      painter_.drawLine(from, from + way * state_.drawnProjections);
    };
    stroke(center_, foot - center_, Qt::blue);
    stroke(foot, height, Qt::red);
  }

  double arrowAngle() const {
    if (state_.turns == 0) return 0;
    return circle_.turns[state_.turns - 1].radians * state_.drawnOfTurn;
  }

  void paintArrow() {
    const double angle = arrowAngle();
    if (!std::isfinite(angle)) return;
    const double headLength = std::min(14.0, radius_ / 4);
    painter_.save();
    painter_.translate(center_);
    painter_.rotate(-degreesOf(angle));
    painter_.setPen(QPen(palette_.label, arrowWidth, Qt::SolidLine, Qt::RoundCap));
    painter_.drawLine(QPointF(0, 0), QPointF(radius_ - headLength, 0));
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(palette_.label);
    const std::array head{QPointF(radius_, 0), QPointF(radius_ - headLength, headLength / 3),
                          QPointF(radius_ - headLength, -headLength / 3)};
    painter_.drawPolygon(head.data(), static_cast<int>(head.size()));
    painter_.restore();
  }

  void paintQuadrants() {
    const QFont font = InterfaceFont::book(static_cast<int>(textSize_));
    for (const Quadrant quadrant : {Quadrant::first, Quadrant::second, Quadrant::third, Quadrant::fourth}) {
      const double own = quadrant == circle_.quadrant ? state_.quadrantAlpha : 0;
      const QColor color = withOpacity(palette_.label, std::max(own, state_.quadrantsAlpha));
      const bool isLeft = quadrant == Quadrant::second || quadrant == Quadrant::third;
      const bool isLow = quadrant == Quadrant::third || quadrant == Quadrant::fourth;
      const QString text = textOf(rawValue(quadrant));
      const double corner = 0.42 * side_;
      const QPointF middle = center_ + QPointF(isLeft ? -corner : corner, isLow ? corner : -corner);
      drawText(painter_, text, font, color, middle - QPointF(textWidth(text, font), textHeight(font)) / 2);
    }
  }

  // The angle, its parts, and the coordinates in the colours of the projections.
  void paintLabels() {
    const auto number = [](const std::optional<double>& value) {
      return value ? decimalText(*value + 0.0, 2) : "-";
    };
    const UnitCircleLabels& labels = state_.labels;
    const std::array lines{
        "\\alpha = " + labels.alpha.value_or("-"),
        "\\gamma = " + labels.gamma.value_or("-"),
        "k = " + (labels.fullCircles ? std::to_string(*labels.fullCircles) : "-"),
        "\\color{#0000ff}{\\cos\\alpha = " + number(labels.pX) + "}",
        "\\color{#ff0000}{\\sin\\alpha = " + number(labels.pY) + "}",
    };
    const double lineHeight = (size_.height() - 2 * edge) / lines.size();
    const double left = center_.x() + side_ / 2 + 2 * edge;
    const typeset::Ink ink{.text = palette_.label, .background = palette_.background};
    double middle = edge + lineHeight / 2;
    for (const std::string& line : lines) {
      const typeset::Layout layout = setFormula(line, textSize_);
      typeset::MathPicture(layout).paint(painter_, {left, middle + textSize_ / 3}, ink);
      middle += lineHeight;
    }
  }

  void paintButton() {
    const QRectF button = replayButton(size_);
    const bool isActive = circle_.isFinished && !state_.isRunning;
    painter_.save();
    painter_.setOpacity(isActive ? 1 : runningOpacity);
    drawCard(painter_, button, buttonSize / 2, palette_.accent, palette_.label, palette_.isDark);
    const double radius = buttonSize / 5;
    const QRectF turn(button.center() - QPointF(radius, radius), button.center() + QPointF(radius, radius));
    painter_.setPen(QPen(Qt::white, 2.5, Qt::SolidLine, Qt::FlatCap));
    painter_.setBrush(Qt::NoBrush);
    QPainterPath arc;
    arc.arcMoveTo(turn, 350);
    arc.arcTo(turn, 350, -290);
    painter_.drawPath(arc);
    // Its head, where it ends.
    const QPointF end = arc.currentPosition();
    const std::array head{end + QPointF(-5, -2.5), end + QPointF(4, -3.5), end + QPointF(2, 5)};
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(Qt::white);
    painter_.drawPolygon(head.data(), static_cast<int>(head.size()));
    painter_.restore();
  }

  QPainter& painter_;
  const UnitCircleChartView& circle_;
  UnitCircleState state_;
  const ChartPalette& palette_;
  QSizeF size_;
  QPointF center_;
  double side_ = 0;
  double radius_ = 0;
  double textSize_ = 0;
};

}  // namespace

void paintUnitCircle(QPainter& painter, const UnitCircleChartView& circle, QSizeF size, double progress,
                     const ChartPalette& palette) {
  painter.save();
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  UnitCirclePainter(painter, circle, size, progress, palette).paint();
  painter.restore();
}

QRectF replayButton(QSizeF size) {
  return {size.width() - edge - buttonSize, size.height() - edge - buttonSize, buttonSize, buttonSize};
}

}  // namespace tavi
