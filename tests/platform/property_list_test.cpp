#include "platform/property_list.h"

#include <QDateTime>

#include <gtest/gtest.h>

#include "platform/test_support.h"

namespace tavi {
namespace {

QByteArray plist(const QByteArray& value) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
         "<!DOCTYPE plist PUBLIC \"-//Example//DTD PLIST 1.0//EN\" "
         "\"http://example.org/PropertyList-1.0.dtd\">"
         "<plist version=\"1.0\">" +
         value + "</plist>";
}

TEST(PropertyListTest, ReadsEveryElement) {
  struct Case {
    QByteArray xml;
    QVariant value;
  };
  const Case cases[] = {
      {"<string> a &amp; b <![CDATA[<c>]]></string>", " a & b <c>"},
      {"<string/>", ""},
      {"<integer>-7</integer>", -7LL},
      {"<real>2.5</real>", 2.5},
      {"<true/>", true},
      {"<false></false>", false},
      {"<date>2024-02-29T12:00:00Z</date>", QDateTime({2024, 2, 29}, {12, 0}, Qt::UTC)},
      {"<data>\n aGVs\n bG8=\n</data>", QByteArray("hello")},
      {"<array/>", QVariantList()},
      {"<dict> <!-- a note --> "
       "<key>a</key><array><integer>1</integer><dict/></array><key>b</key><true/></dict>",
       QVariantMap{{"a", QVariantList{1LL, QVariantMap()}}, {"b", true}}},
  };
  for (const Case& each : cases) {
    const PropertyList list = readPropertyList(plist(each.xml));
    ASSERT_TRUE(list.value) << each.xml.toStdString() << list.error.toStdString();
    EXPECT_EQ(list.value->typeId(), each.value.typeId()) << each.xml.toStdString();
    EXPECT_EQ(*list.value, each.value);
  }
}

TEST(PropertyListTest, TellsWhatIsWrong) {
  const QByteArray files[] = {
      "",
      "{}",
      "<html/>",
      "<plist/>",
      plist("<dict>").chopped(8),
      plist("<dict><string>a</string></dict>"),
      plist("<dict><key>a</key></dict>"),
      plist("<dict><key>a</key><integer>1.5</integer></dict>"),
      plist("<date>yesterday</date>"),
      plist("<uid>1</uid>"),
      plist("<true/><true/>"),
      plist("<string>a<b/></string>"),
      plist(QByteArray("<array>").repeated(100) + QByteArray("</array>").repeated(100)),
  };
  for (const QByteArray& file : files) {
    const PropertyList list = readPropertyList(file);
    EXPECT_FALSE(list.value) << file.toStdString();
    EXPECT_FALSE(list.error.isEmpty()) << file.toStdString();
  }
}

}  // namespace
}  // namespace tavi
