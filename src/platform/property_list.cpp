#include "platform/property_list.h"

#include <QDateTime>
#include <QXmlStreamReader>

namespace tavi {
namespace {

constexpr int maximumDepth = 64;

// Reads one element after the other; the first fault is raised in the XML reader, which then delivers nothing
// more.
class Reader {
 public:
  explicit Reader(const QByteArray& data) : xml_(data) {}

  PropertyList read() {
    QVariant value;
    if (!xml_.readNextStartElement() || xml_.name() != u"plist")
      xml_.raiseError(QStringLiteral("not a property list"));
    else if (!xml_.readNextStartElement())
      xml_.raiseError(QStringLiteral("an empty property list"));
    else
      value = element(0);
    if (!xml_.hasError() && xml_.readNextStartElement()) xml_.raiseError(QStringLiteral("a second value"));
    while (!xml_.atEnd()) xml_.readNext();
    if (!xml_.hasError()) return {value, {}};
    return {std::nullopt, QStringLiteral("line %1: %2").arg(xml_.lineNumber()).arg(xml_.errorString())};
  }

 private:
  QVariant element(int depth) {
    if (depth > maximumDepth) return fault(QStringLiteral("nested too deeply"));
    const QStringView name = xml_.name();
    if (name == u"dict") return dictionary(depth);
    if (name == u"array") return array(depth);
    if (name == u"true" || name == u"false") {
      const bool value = name == u"true";
      xml_.skipCurrentElement();
      return value;
    }
    return scalar(name.toString(), xml_.readElementText());
  }

  QVariant scalar(const QString& type, const QString& text) {
    if (type == u"string") return text;
    if (type == u"data") return QByteArray::fromBase64(text.toLatin1());
    bool isValid = false;
    QVariant value;
    if (type == u"integer") {
      value = text.trimmed().toLongLong(&isValid);
    } else if (type == u"real") {
      value = text.trimmed().toDouble(&isValid);
    } else if (type == u"date") {
      const QDateTime date = QDateTime::fromString(text.trimmed(), Qt::ISODate);
      isValid = date.isValid();
      value = date.toUTC();
    }
    return isValid ? value : fault(QStringLiteral("not a value: %1 \"%2\"").arg(type, text));
  }

  QVariant dictionary(int depth) {
    QVariantMap map;
    while (xml_.readNextStartElement()) {
      if (xml_.name() != u"key") return fault(QStringLiteral("a dict entry without a key"));
      const QString key = xml_.readElementText();
      if (!xml_.readNextStartElement()) return fault(QStringLiteral("a key without a value"));
      map.insert(key, element(depth + 1));
    }
    return map;
  }

  QVariant array(int depth) {
    QVariantList list;
    while (xml_.readNextStartElement()) list.append(element(depth + 1));
    return list;
  }

  QVariant fault(const QString& what) {
    if (!xml_.hasError()) xml_.raiseError(what);
    return {};
  }

  QXmlStreamReader xml_;
};

}  // namespace

PropertyList readPropertyList(const QByteArray& xml) {
  return Reader(xml).read();
}

}  // namespace tavi
