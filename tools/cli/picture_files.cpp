#include "picture_files.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <iostream>
#include <string>

#include <QtCore/QBuffer>
#include <QtCore/QSaveFile>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>
#include <QtSvg/QSvgGenerator>

#include "appearance/appearance.h"

namespace tavi::cli {
namespace {

// What QImage can paint on.
constexpr double widestImage = 32767;

bool readScale(std::string_view text, double& scale) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), scale);
  return error == std::errc{} && end == text.data() + text.size() && scale > 0 && scale <= 20;
}

void paintScaled(QPaintDevice& device, const Picture& picture, double scale) {
  QPainter painter(&device);
  painter.scale(scale, scale);
  picture.paint(painter);
}

bool writePng(QIODevice& file, const Picture& picture, double scale) {
  const QSizeF size = picture.size * scale;
  if (size.width() > widestImage || size.height() > widestImage) {
    std::cerr << "tavi-cli: the picture would be " << std::ceil(size.width())
              << " pixels wide; an SVG has no limit\n";
    return false;
  }
  QImage image(size.toSize().expandedTo({1, 1}), QImage::Format_ARGB32_Premultiplied);
  if (image.isNull()) return false;
  image.fill(Qt::transparent);
  paintScaled(image, picture, scale);
  return image.save(&file, "PNG");
}

bool writeSvg(QIODevice& file, const Picture& picture, double scale) {
  QSvgGenerator generator;
  generator.setOutputDevice(&file);
  generator.setResolution(96);
  const QSizeF size = picture.size * scale;
  generator.setSize({static_cast<int>(std::ceil(size.width())), static_cast<int>(std::ceil(size.height()))});
  generator.setViewBox(QRectF({0, 0}, size));
  paintScaled(generator, picture, scale);
  return true;
}

// The moment of its making, which a PDF may leave out, gives way to spaces: a picture has the same bytes at
// any time.
bool writePdf(QIODevice& file, const Picture& picture, double scale) {
  qputenv("TZ", "UTC");  // The moment has another length in other zones.
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setResolution(72);
  writer.setPageSize(QPageSize(picture.size * scale, QPageSize::Point, {}, QPageSize::ExactMatch));
  writer.setPageMargins({});
  paintScaled(writer, picture, scale);
  if (const auto begin = bytes.indexOf("/CreationDate ("); begin >= 0) {
    std::fill(bytes.begin() + begin, bytes.begin() + bytes.indexOf(')', begin) + 1, ' ');
  }
  return file.write(bytes) == bytes.size();
}

bool save(const QString& name, const Picture& picture, double scale,
          bool (*write)(QIODevice& file, const Picture& picture, double scale)) {
  if (name.isEmpty()) return true;
  QSaveFile file(name);
  const bool isSaved = file.open(QIODevice::WriteOnly) && write(file, picture, scale) && file.commit();
  if (!isSaved) std::cerr << "tavi-cli: cannot write " << name.toStdString() << '\n';
  return isSaved;
}

}  // namespace

PictureFiles::Read PictureFiles::read(Arguments& arguments) {
  const std::string_view option = arguments.front();
  if (option == "--dark") {
    isDark = true;
    arguments = arguments.subspan(1);
    return Read::done;
  }
  const bool isFile = option == "--png" || option == "--svg" || option == "--pdf";
  if (!isFile && option != "--scale") return Read::notMine;
  if (arguments.size() < 2) return Read::wrong;
  const std::string_view value = arguments[1];
  arguments = arguments.subspan(2);
  if (!isFile) return readScale(value, scale) ? Read::done : Read::wrong;
  (option == "--png"   ? png
   : option == "--svg" ? svg
                       : pdf) = QString::fromUtf8(value.data(), static_cast<qsizetype>(value.size()));
  return Read::done;
}

std::string PictureFiles::needOf(std::string_view option) {
  return std::string(option) +
         (option == "--scale" ? " needs a number above 0 and up to 20" : " needs the name of a file");
}

int PictureFiles::draw(const std::function<Picture()>& make) const {
  return inAppearance([&] {
    const Picture picture = make();
    const bool areSaved = save(png, picture, scale, writePng) && save(svg, picture, scale, writeSvg) &&
                          save(pdf, picture, scale, writePdf);
    return areSaved ? success : cannotWrite;
  });
}

int PictureFiles::inAppearance(const std::function<int()>& work) const {
  Appearance::shared().force(isDark);
  return work();
}

const PictureFormat* pictureFormat(std::string_view name) {
  static constexpr std::array formats{PictureFormat{"png", writePng, false},
                                      PictureFormat{"svg", writeSvg, true},
                                      PictureFormat{"pdf", writePdf, false}};
  const auto* const found = std::find_if(formats.begin(), formats.end(),
                                         [name](const PictureFormat& each) { return each.name == name; });
  return found == formats.end() ? nullptr : found;
}

}  // namespace tavi::cli
