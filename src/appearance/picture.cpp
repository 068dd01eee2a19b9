#include "appearance/picture.h"

#include <QSvgRenderer>
#include <array>

#include "appearance/appearance.h"
#include "platform/resource_bundle.h"

namespace tavi {

namespace {

struct ColorPair {
  QByteArrayView light;
  QByteArrayView dark;
};

/// Every colour of the drawings that is another one in the dark.
constexpr auto colorPairs = std::to_array<ColorPair>({
    {"#fdfdfe", "#1c1c1e"},  // paper
    {"#eceff1", "#2c2c2e"},  // page
    {"#d1d1d6", "#48484a"},  // line
    {"#1c1c1f", "#f5f5f7"},  // ink
    {"#c79400", "#8b6800"},  // dark gold
    {"#fff54f", "#b3ac37"},  // bright yellow
    {"#ffc400", "#b38900"},  // strong yellow
    {"#ed407a", "#a62d55"},  // pink
    {"#b5004f", "#7f0037"},  // dark magenta
});

}  // namespace

QByteArray pictureNamed(const QString& name) {
  QByteArray drawing = ResourceBundle::main().picture(name).value_or(QByteArray());
  if (Appearance::shared().isDark())
    for (const auto& [light, dark] : colorPairs) drawing.replace(light, dark);
  return drawing;
}

QSizeF pictureSize(const QString& name) {
  const QByteArray drawing = pictureNamed(name);
  return drawing.isEmpty() ? QSizeF() : QSizeF(QSvgRenderer(drawing).defaultSize());
}

void paintPicture(QPainter& painter, const QString& name, const QRectF& frame) {
  QSvgRenderer drawing(pictureNamed(name));
  if (!drawing.isValid()) return;
  QRectF place({}, QSizeF(drawing.defaultSize()).scaled(frame.size(), Qt::KeepAspectRatio));
  place.moveCenter(frame.center());
  drawing.render(&painter, place);
}

}  // namespace tavi
