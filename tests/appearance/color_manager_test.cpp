#include "appearance/color_manager.h"

#include <QImage>
#include <QPainter>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "appearance/appearance.h"
#include "appearance/interface_colors.h"
#include "appearance/shadow_item.h"
#include "number/fatal_stop.h"

namespace tavi {
namespace {

using Kind = View::Kind;

class ColorManagerTest : public testing::Test {
 protected:
  ColorManagerTest() { Appearance::shared().force(false); }
  ~ColorManagerTest() override { Appearance::shared().force(std::nullopt); }

  /// A view below the parent.
  QQuickItem* add(QQuickItem* parent, Kind kind, int tag = 0) {
    auto* item = new QQuickItem(parent);
    item->setParent(parent);
    View& view = *qobject_cast<View*>(qmlAttachedPropertiesObject<View>(item, true));
    view.setKind(kind);
    view.setTag(tag);
    return item;
  }

  static View& view(const QQuickItem* item) { return *View::of(item); }

  QQuickItem root;
};

TEST_F(ColorManagerTest, WritesColoursAsTruncatedHexadecimal) {
  struct Case {
    QColor color;
    const char* text;
  };
  const Case cases[] = {{QColor::fromRgbF(1, 1, 1), "#ffffff"},
                        {QColor::fromRgbF(0, 0, 0), "#000000"},
                        {QColor::fromRgbF(0.5F, 0, 0), "#7f0000"},
                        {QColor::fromRgbF(1, 0.5F, 0, 0.25F), "#ff7f00"},
                        {QColor::fromHsvF(0.5F, 1, 1), "#00ffff"}};
  for (const Case& each : cases) EXPECT_EQ(ColorManager::hexString(each.color), QLatin1String(each.text));
  EXPECT_EQ(ColorManager::hexString(QColor()), std::nullopt);
}

TEST_F(ColorManagerTest, DimsInDarkAppearanceOnly) {
  const QColor yellow = QColor::fromRgbF(1, 0.77F, 0, 0.5F);
  EXPECT_EQ(ColorManager::adjustedForAppearance(yellow, 0.7), yellow);

  Appearance::shared().force(true);
  const QColor dimmed = ColorManager::adjustedForAppearance(yellow, 0.7);
  EXPECT_NEAR(dimmed.valueF(), 0.7, 0.001);
  EXPECT_NEAR(dimmed.hueF(), yellow.hueF(), 0.001);
  EXPECT_NEAR(dimmed.alphaF(), 0.5, 0.001);
  EXPECT_EQ(ColorManager::adjustedForAppearance(Qt::black, 0.7).rgb(), qRgb(0, 0, 0));
  EXPECT_NEAR(ColorManager::adjustedForAppearance(yellow, -1).valueF(), 0, 0.001);
  EXPECT_NEAR(KeypadPalette::make().color(103)->valueF(), 0.7, 0.001);
}

TEST_F(ColorManagerTest, WhatIsNotSetFollowsTheAppearance) {
  View& button = view(add(&root, Kind::IconButton));
  int changes = 0;
  const QObject context;
  QObject::connect(&button, &View::styleChanged, &context, [&changes] { ++changes; });
  for (const bool isDark : {true, false}) {
    Appearance::shared().force(isDark);
    EXPECT_EQ(button.tintColor(), InterfaceColor::label());
    EXPECT_EQ(KeypadPalette::shared().pink, KeypadPalette::make().pink);
  }
  EXPECT_EQ(changes, 2);
}

TEST_F(ColorManagerTest, FindsTheKeypadColoursByTag) {
  const KeypadPalette palette = KeypadPalette::make();
  EXPECT_EQ(palette.color(101), palette.darkGold);
  EXPECT_EQ(palette.color(105), palette.darkMagenta);
  for (const int other : {100, 106, 0, -1, std::numeric_limits<int>::min()})
    EXPECT_EQ(palette.color(other), std::nullopt) << other;
}

TEST_F(ColorManagerTest, StylesByExactKind) {
  struct Case {
    Kind kind;
    bool isStyled;
  };
  const Case cases[] = {{Kind::Plain, true},          {Kind::Button, true}, {Kind::FlatButton, true},
                        {Kind::FloatingButton, true}, {Kind::Image, true},  {Kind::Stack, false},
                        {Kind::IconButton, false},    {Kind::Label, false}, {Kind::SegmentedControl, false},
                        {Kind::Other, false}};
  for (const Case& each : cases) {
    QQuickItem parent;
    const QQuickItem* item = add(&parent, each.kind, 103);
    ColorManager::applyStyleToSubviews(parent);
    EXPECT_EQ(view(item).backgroundColor() == KeypadPalette::shared().strongYellow, each.isStyled)
        << static_cast<int>(each.kind);
  }
}

TEST_F(ColorManagerTest, GoesThroughPlainViewsStacksAndItemsThatAreNoViews) {
  QQuickItem* holder = add(&root, Kind::Plain, 101);
  auto* noView = new QQuickItem(holder);
  noView->setParent(holder);
  const QQuickItem* key = add(add(noView, Kind::Stack), Kind::Button, 102);
  const QQuickItem* inButton = add(add(&root, Kind::Button), Kind::Plain, 102);
  ColorManager::applyStyleToSubviews(root);

  EXPECT_EQ(view(key).backgroundColor(), KeypadPalette::shared().brightYellow);
  EXPECT_EQ(view(key).titleColor(), InterfaceColor::darkTitle());
  EXPECT_EQ(view(holder).backgroundColor(), QColor(Qt::transparent)) << "a holder of views has no colour";
  EXPECT_EQ(view(inButton).backgroundColor(), QColor(Qt::transparent))
      << "what a button holds is its own affair";
}

TEST_F(ColorManagerTest, GivesFieldsStarsAndTranslucentViewsTheirOwn) {
  const QQuickItem* field = add(&root, Kind::TextField, 104);
  const QQuickItem* stars = add(&root, Kind::Stars, 104);
  const QQuickItem* glass = add(&root, Kind::Plain, ColorManager::translucentTag);
  ColorManager::applyStyleToSubviews(root);

  EXPECT_EQ(view(field).backgroundColor(), InterfaceColor::background());
  EXPECT_EQ(view(stars).filledColor(), KeypadPalette::shared().pink);
  EXPECT_EQ(view(stars).shadow().opacity, 0.7);
  EXPECT_EQ(view(glass).alpha(), 0.5);
}

TEST_F(ColorManagerTest, KeepsAnEarlierShadowInDarkAppearance) {
  View& button = view(add(&root, Kind::Button));
  Appearance::shared().force(true);
  ColorManager::applyStyle(button);
  EXPECT_EQ(button.shadow().opacity, 0);

  Appearance::shared().force(false);
  ColorManager::applyStyle(button);
  const LayerShadow shadow = button.shadow();
  EXPECT_EQ(shadow.offset, QPointF(0, 1));
  EXPECT_EQ(shadow.radius, 1);

  Appearance::shared().force(true);
  ColorManager::applyStyle(button);
  EXPECT_EQ(button.shadow(), shadow);

  ColorManager::applyFloatingShadow(button);
  EXPECT_EQ(button.shadow().offset, QPointF());
  EXPECT_EQ(button.shadow().opacity, 0.5);
}

class ShadowItemTest : public testing::Test {
 protected:
  /// The shadow of an item of 60 by 40.
  static QImage pictured(const LayerShadow& shadow) {
    ShadowItem item;
    item.setSize({60, 40});
    item.setShadow(shadow);
    item.setCornerRadius(4);
    return item.picture(1);
  }
};

TEST_F(ShadowItemTest, FadesFromTheShapeOutwardsWithoutAnEdge) {
  const QImage image = pictured({.color = Qt::black, .opacity = 0.5, .offset = {0, 2}, .radius = 3});
  EXPECT_NEAR(qAlpha(image.pixel(30, 21)), 128, 3);
  EXPECT_LT(qAlpha(image.pixel(30, 0)), 3) << "nothing reaches the upper edge";
  for (int y = 1; y < 21; ++y) {
    const int step = qAlpha(image.pixel(30, y)) - qAlpha(image.pixel(30, y - 1));
    EXPECT_GE(step, 0) << y;
    EXPECT_LE(step, 30) << y;
  }
}

TEST_F(ShadowItemTest, ShowsNothingWithoutOpacity) {
  EXPECT_TRUE(pictured({.color = Qt::black, .opacity = 0, .offset = {}, .radius = 3}).isNull());
}

}  // namespace
}  // namespace tavi
