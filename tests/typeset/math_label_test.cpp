#include "typeset/math_label.h"

#include <algorithm>
#include <memory>

#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QTranslator>
#include <QtGui/QAccessible>
#include <QtGui/QPainter>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickItemGrabResult>
#include <QtQuick/QQuickPaintedItem>
#include <QtQuick/QQuickView>

#include "math_font_fixture.h"
#include "typeset/typeset.h"

namespace tavi::typeset {
namespace {

class MathLabelTest : public testing::Test {
 protected:
  static void SetUpTestSuite() { MathLabel::registerType(); }

  QQuickItem* load(const QByteArray& qml) {
    QQmlComponent component(view_.engine());
    component.setData("import QtQuick\nimport Tavi.Typeset\n" + qml, {});
    auto* item = qobject_cast<QQuickItem*>(component.create());
    EXPECT_TRUE(item) << component.errorString().toStdString();
    view_.setContent({}, nullptr, item);
    view_.resize(320, 200);
    view_.show();
    return item;
  }

  QImage grab() { return view_.grabWindow(); }

  static const QQuickPaintedItem& sliceOf(const MathLabel& label) {
    return *qobject_cast<QQuickPaintedItem*>(label.childItems().constFirst());
  }

  QQuickView view_;
};

TEST_F(MathLabelTest, IsAsLargeAsItsLine) {
  MathLabel label;
  int widthChanges = 0;
  QObject::connect(&label, &MathLabel::contentWidthChanged, [&] { ++widthChanges; });
  label.setLatex(QStringLiteral("\\frac{3}{2}^{-2}"));
  const Layout layout = typeset("\\frac{3}{2}^{-2}", testFont(), 20);
  EXPECT_EQ(label.contentWidth(), layout.width);
  EXPECT_EQ(label.implicitWidth(), layout.width);
  EXPECT_EQ(label.implicitHeight(), layout.height + layout.depth);
  EXPECT_EQ(label.baselineOffset(), layout.height);
  label.setFontSize(40);
  EXPECT_DOUBLE_EQ(label.contentWidth(), 2 * layout.width);
  label.setFontSize(-1);
  EXPECT_EQ(label.fontSize(), 40);
  label.setLatex({});
  EXPECT_EQ(label.implicitWidth(), 0);
  EXPECT_EQ(widthChanges, 3);
}

TEST_F(MathLabelTest, TellsWhatIsWrongAndWhere) {
  MathLabel label;
  label.setLatex(QStringLiteral("2+\\foo"));
  EXPECT_EQ(label.error(), QStringLiteral("unknown command \\foo at character 3"));
  EXPECT_GT(label.contentWidth(), 0);
  label.setLatex(QStringLiteral("2+π"));
  EXPECT_EQ(label.error(), QString());
  label.setLatex(QStringLiteral("2中"));
  EXPECT_EQ(label.error(), QStringLiteral("the font has no 中 at character 2"));
}

TEST_F(MathLabelTest, TellsAssistiveTechnologyTheWords) {
  QQuickItem* item = load("MathLabel { latex: '\\\\sqrt{2}=\\\\frac{3}{4}' }");
  QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(item);
  ASSERT_TRUE(interface);
  EXPECT_EQ(interface->text(QAccessible::Name), QStringLiteral("square root of 2 equals 3 over 4"));
  EXPECT_EQ(interface->role(), QAccessible::StaticText);
}

TEST_F(MathLabelTest, SpeaksTheInstalledLanguage) {
  class German : public QTranslator {
   public:
    using QTranslator::QTranslator;
    [[nodiscard]] bool isEmpty() const override { return false; }
    QString translate(const char*, const char* key, const char*, int) const override {
      return qstrcmp(key, "mathFraction") == 0 ? QStringLiteral("%1 durch %2") : QString();
    }
  } german;
  QCoreApplication::installTranslator(&german);
  MathLabel label;
  label.setLatex(QStringLiteral("\\frac{3}{4}+1"));
  EXPECT_EQ(label.spokenText(), QStringLiteral("3 durch 4 plus 1"));
  QCoreApplication::removeTranslator(&german);
}

TEST_F(MathLabelTest, DrawsInTheColourOfText) {
  auto* label = qobject_cast<MathLabel*>(load("MathLabel { latex: '\\\\color{#ff0000}{2}2'; fontSize: 80 }"));
  ASSERT_TRUE(label);
  const auto has = [](const QImage& image, const QColor& color) {
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, y) == color) return true;
      }
    }
    return false;
  };
  const QImage light = grab();
  EXPECT_TRUE(has(light, Qt::black));
  EXPECT_TRUE(has(light, legibleColor(QColor("#ff0000"), Qt::white)));
  label->setTextColor(Qt::blue);
  const QImage blue = grab();
  EXPECT_FALSE(has(blue, Qt::black));
  EXPECT_TRUE(has(blue, Qt::blue));
  EXPECT_EQ(label->backgroundColor(), QColor(Qt::white));
  label->setTextColor(Qt::white);
  EXPECT_EQ(label->backgroundColor(), QColor(Qt::black));
  EXPECT_TRUE(has(grab(), QColor("#ff0000")));
}

QByteArray wideFormula() {
  return R"(Flickable {
    width: 320; height: 200; contentWidth: label.implicitWidth; contentHeight: height
    MathLabel { id: label; objectName: 'label'; latex: '=' + '\\left( \\frac{2}{3} \\right) '.repeat(600) }
  })";
}

TEST_F(MathLabelTest, DrawsOfAWideFormulaOnlyWhatIsSeen) {
  QQuickItem* flickable = load(wideFormula());
  auto* label = flickable->findChild<MathLabel*>(QStringLiteral("label"));
  ASSERT_TRUE(label);
  ASSERT_GT(label->contentWidth(), 25000);
  const QQuickPaintedItem& slice = sliceOf(*label);
  for (const double x : {0.0, 100.0, 1000.0, 1040.5, 12345.0, label->contentWidth() - 320, 500.0}) {
    SCOPED_TRACE(x);
    flickable->setProperty("contentX", x);
    EXPECT_LE(slice.x(), x > 0 ? x : 0);
    EXPECT_GE(slice.x() + slice.width(), std::min(x + 320, label->contentWidth()));
    EXPECT_LE(slice.width(), 3 * 320);
  }
}

TEST_F(MathLabelTest, ScrollingShowsTheSameLine) {
  QQuickItem* flickable = load(wideFormula());
  auto* label = flickable->findChild<MathLabel*>(QStringLiteral("label"));
  ASSERT_TRUE(label);
  const Layout layout = typeset(label->latex().toStdString(), testFont(), 20);
  const MathPicture picture(layout);
  for (const double x : {0.0, 700.0, 9000.0, 8800.0}) {
    SCOPED_TRACE(x);
    flickable->setProperty("contentX", x);
    const QImage shown = grab().convertToFormat(QImage::Format_RGB32);
    // As the item does: onto nothing first, then onto the window. Qt blends text into a filled image
    // differently.
    QImage line(shown.size(), QImage::Format_ARGB32_Premultiplied);
    line.fill(Qt::transparent);
    QPainter linePainter(&line);
    const double scale = flickable->window()->effectiveDevicePixelRatio();
    linePainter.scale(scale, scale);
    picture.paint(linePainter, {-x, layout.height}, {});
    linePainter.end();
    QImage expected(shown.size(), QImage::Format_RGB32);
    expected.fill(Qt::white);
    QPainter(&expected).drawImage(0, 0, line);
    int differing = 0;
    for (int row = 0; row < shown.height(); ++row) {
      for (int column = 0; column < shown.width(); ++column) {
        differing += std::abs(qGray(shown.pixel(column, row)) - qGray(expected.pixel(column, row))) > 8;
      }
    }
    EXPECT_EQ(differing, 0);
  }
}

TEST_F(MathLabelTest, RowsOutsideTheWindowAreDrawnForCaptures) {
  QQuickItem* column = load(R"(Item { width: 320; height: 200
      MathLabel { objectName: 'label'; y: 5000; latex: '\\frac{1}{2}' } })");
  auto* label = column->findChild<MathLabel*>(QStringLiteral("label"));
  ASSERT_TRUE(label);
  EXPECT_GE(sliceOf(*label).width(), label->contentWidth());
}

}  // namespace
}  // namespace tavi::typeset
