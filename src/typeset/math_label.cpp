#include "typeset/math_label.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QtGui/QAccessible>
#include <QtQml/QQmlEngine>
#include <QtQml/QQmlProperty>
#include <QtQuick/QQuickPaintedItem>

#include "appearance/contrast.h"
#include "typeset/bundled_font.h"
#include "typeset/parser.h"
#include "typeset/spoken_math.h"

namespace tavi::typeset {
namespace {

// Place and size of the part drawn are multiples of this, which is a whole number of device pixels at every
// usual scale: else its picture is stretched and blurs.
constexpr double sliceGrid = 20;

MathFont& sharedFont() {
  static MathFont font = MathFont::open(bundledMathFont()).value();
  return font;
}

}  // namespace

std::string translatedPhrase(const Phrase& phrase) {
  const std::string id(phrase.key);
  const QString translated = qtTrId(id.c_str());
  return translated == QLatin1String(id) ? englishPhrase(phrase) : translated.toStdString();
}

namespace {

QString spoken(const List& line) {
  return QString::fromStdString(spokenMath(line, translatedPhrase));
}

}  // namespace

QString spokenText(const QString& latex) {
  return spoken(parse(latex.toStdString()).list);
}

/// The part of a label that is seen. The label sets what it draws in the thread of the interface; the scene
/// graph takes it over while that thread waits, and draws in its own.
class MathSlice : public QQuickPaintedItem {
 public:
  explicit MathSlice(QQuickItem* parent) : QQuickPaintedItem(parent) {}

  void setPicture(MathPicture picture, QPointF origin) {
    next_.picture = std::make_shared<const MathPicture>(std::move(picture));
    next_.origin = origin;
    update();
  }
  void setInk(const Ink& ink) {
    next_.ink = ink;
    update();
  }

  void paint(QPainter* painter) override {
    if (!shown_.picture) return;
    const QPointF origin = shown_.origin - shown_.corner;
    shown_.picture->paint(*painter, origin, shown_.ink, -origin.x(), shown_.width - origin.x());
  }

 protected:
  QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override {
    next_.corner = position();
    next_.width = width();
    shown_ = next_;
    return QQuickPaintedItem::updatePaintNode(node, data);
  }

 private:
  struct Content {
    std::shared_ptr<const MathPicture> picture;
    Ink ink;
    QPointF origin;  // the start of the baseline in the label
    QPointF corner;  // of the slice in the label
    double width = 0;
  };
  Content next_;
  Content shown_;
};

MathLabel::MathLabel(QQuickItem* parent) : QQuickItem(parent), slice_(new MathSlice(this)) {
  setFlag(ItemObservesViewport);
}

void MathLabel::registerType() {
  qmlRegisterType<MathLabel>("Tavi.Typeset", 1, 0, "MathLabel");
}

void MathLabel::setLatex(const QString& latex) {
  if (latex == latex_) return;
  latex_ = latex;
  setLine();
  emit latexChanged();
}

void MathLabel::setFontSize(qreal fontSize) {
  if (!(fontSize > 0) || !std::isfinite(fontSize) || fontSize == fontSize_) return;
  fontSize_ = fontSize;
  setLine();
  emit fontSizeChanged();
}

void MathLabel::setTextColor(const QColor& color) {
  if (color == textColor_) return;
  const QColor before = backgroundColor();
  textColor_ = color;
  slice_->setInk({.text = color, .background = backgroundColor()});
  emit textColorChanged();
  if (backgroundColor() != before) emit backgroundColorChanged();
}

QColor MathLabel::backgroundColor() const {
  if (backgroundColor_.isValid()) return backgroundColor_;
  return contrastRatio(textColor_, Qt::white) > contrastRatio(textColor_, Qt::black) ? Qt::white : Qt::black;
}

void MathLabel::setBackgroundColor(const QColor& color) {
  if (color == backgroundColor_) return;
  backgroundColor_ = color;
  slice_->setInk({.text = textColor_, .background = backgroundColor()});
  emit backgroundColorChanged();
}

void MathLabel::setLine() {
  if (!isComponentComplete()) return;
  const Formula formula = parse(latex_.toStdString());
  const Layout layout = layOut(formula.list, sharedFont(), fontSize_);
  const auto& fault = formula.error ? formula.error : layout.error;
  const QString error = fault ? QString::fromStdString(fault->text()) : QString();
  const QString words = spoken(formula.list);

  const bool isWidthNew = std::exchange(contentWidth_, layout.width) != layout.width;
  contentHeight_ = layout.height + layout.depth;
  slice_->setPicture(MathPicture(layout), {0, layout.height});
  slice_->setSize({});
  setImplicitSize(contentWidth_, contentHeight_);
  setBaselineOffset(layout.height);
  showVisiblePart();
  if (isWidthNew) emit contentWidthChanged();
  if (std::exchange(error_, error) != error) emit errorChanged();
  if (std::exchange(spokenText_, words) != words) {
    tellAssistiveTechnology();
    emit spokenTextChanged();
  }
}

void MathLabel::tellAssistiveTechnology() {
  if (QQmlContext* context = qmlContext(this)) {
    QQmlProperty(this, QStringLiteral("Accessible.role"), context).write(QAccessible::StaticText);
    QQmlProperty(this, QStringLiteral("Accessible.name"), context).write(spokenText_);
  }
}

void MathLabel::componentComplete() {
  QQuickItem::componentComplete();
  setLine();
  observeAncestors();
}

void MathLabel::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
  QQuickItem::geometryChange(newGeometry, oldGeometry);
  showVisiblePart();
}

void MathLabel::itemChange(ItemChange change, const ItemChangeData& value) {
  QQuickItem::itemChange(change, value);
  if (change == ItemParentHasChanged || change == ItemSceneChange) observeAncestors();
}

// Every item between the label and its viewport may move the one under the other.
void MathLabel::observeAncestors() {
  for (const auto& connection : std::exchange(ancestors_, {})) disconnect(connection);
  for (QQuickItem* item = parentItem(); item != nullptr; item = item->parentItem()) {
    ancestors_.push_back(connect(item, &QQuickItem::xChanged, this, &MathLabel::showVisiblePart));
    ancestors_.push_back(connect(item, &QQuickItem::widthChanged, this, &MathLabel::showVisiblePart));
    ancestors_.push_back(connect(item, &QQuickItem::parentChanged, this, &MathLabel::observeAncestors));
    if (item == viewportItem()) break;
  }
  showVisiblePart();
}

// The slice reaches beyond what is seen by half of that at either side, so that scrolling seldom draws anew,
// and beyond the line by what its letters may overhang.
void MathLabel::showVisiblePart() {
  const QRectF whole =
      QRectF(0, 0, contentWidth_, contentHeight_).marginsAdded({fontSize_, fontSize_, fontSize_, fontSize_});
  double left = whole.left();
  double right = whole.right();
  if (const QQuickItem* viewport = viewportItem(); viewport != nullptr && viewport->width() > 0) {
    const QRectF window = mapRectFromItem(viewport, viewport->boundingRect());
    left = std::clamp(window.left(), whole.left(), whole.right());
    right = std::clamp(window.right(), whole.left(), whole.right());
  }
  const bool isCovered = slice_->width() > 0 && slice_->x() <= left && slice_->x() + slice_->width() >= right;
  if (isCovered) return;
  const double reserve = (right - left) / 2;
  const auto toGrid = [](double value) { return std::floor(value / sliceGrid) * sliceGrid; };
  const auto upToGrid = [](double value) { return std::ceil(value / sliceGrid) * sliceGrid; };
  const double start = toGrid(std::max(whole.left(), left - reserve));
  slice_->setPosition({start, toGrid(whole.top())});
  slice_->setSize({upToGrid(std::min(whole.right(), right + reserve) - start),
                   upToGrid(whole.bottom() - toGrid(whole.top()))});
  slice_->update();
}

}  // namespace tavi::typeset
