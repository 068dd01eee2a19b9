#include "appearance/interface_fonts.h"

#include <QFontDatabase>
#include <QResource>
#include <QStringList>

#include "number/fatal_stop.h"

namespace tavi {

namespace {

/// Loads a built-in font file and gives a font of its first family, whatever the file calls it.
QFont loaded(const QString& file, QFont::Weight weight) {
  const QResource resource(QStringLiteral(":/fonts/") + file);
  const auto* bytes = reinterpret_cast<const char*>(resource.data());
  const int id = QFontDatabase::addApplicationFontFromData(QByteArray::fromRawData(bytes, resource.size()));
  const QStringList families = QFontDatabase::applicationFontFamilies(id);
  if (families.isEmpty()) fatalStop("a font of the interface cannot be loaded");
  QFont font(families.first());
  font.setWeight(weight);
  return font;
}

QFont sized(QFont font, int size) {
  font.setPixelSize(size);
  return font;
}

/// All that words are written in, at once: a font that comes later lets go of what was worked out with those
/// before.
struct Faces {
  QFont book = loaded(QStringLiteral("Lato-Regular.ttf"), QFont::Normal);
  QFont medium = loaded(QStringLiteral("Lato-Medium.ttf"), QFont::Medium);
  QFont heavy = loaded(QStringLiteral("Lato-Heavy.ttf"), QFont::ExtraBold);
};

const Faces& faces() {
  static const Faces faces;
  return faces;
}

}  // namespace

QFont InterfaceFont::book(int size) {
  return sized(faces().book, size);
}

QFont InterfaceFont::medium(int size) {
  return sized(faces().medium, size);
}

QFont InterfaceFont::heavy(int size) {
  return sized(faces().heavy, size);
}

QFont InterfaceFont::icons(int size) {
  static const QFont font = loaded(QStringLiteral("icons.ttf"), QFont::Normal);
  return sized(font, size);
}

}  // namespace tavi
