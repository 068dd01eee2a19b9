#include "appearance/interface_fonts.h"

#include <QFontDatabase>
#include <QStringList>

#include "number/fatal_stop.h"

namespace tavi {

namespace {

/// Loads a font file and gives a font of its first family, whatever the file calls it.
QFont loaded(const QString& file, QFont::Weight weight) {
  const int id = QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/") + file);
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

}  // namespace

QFont InterfaceFont::book(int size) {
  static const QFont font = loaded(QStringLiteral("Lato-Regular.ttf"), QFont::Normal);
  return sized(font, size);
}

QFont InterfaceFont::medium(int size) {
  static const QFont font = loaded(QStringLiteral("Lato-Medium.ttf"), QFont::Medium);
  return sized(font, size);
}

QFont InterfaceFont::heavy(int size) {
  static const QFont font = loaded(QStringLiteral("Lato-Heavy.ttf"), QFont::ExtraBold);
  return sized(font, size);
}

QFont InterfaceFont::icons(int size) {
  static const QFont font = loaded(QStringLiteral("materialdesignicons-webfont.ttf"), QFont::Normal);
  return sized(font, size);
}

}  // namespace tavi
