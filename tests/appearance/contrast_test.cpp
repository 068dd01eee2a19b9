#include "appearance/contrast.h"

#include <gtest/gtest.h>

#include "appearance/appearance.h"
#include "appearance/color_manager.h"
#include "appearance/interface_colors.h"

namespace tavi {
namespace {

TEST(ContrastTest, IsTheRatioOfTheGuidelines) {
  EXPECT_NEAR(contrastRatio(Qt::black, Qt::white), 21, 0.001);
  EXPECT_NEAR(contrastRatio(Qt::white, QColor(0x76, 0x76, 0x76)), 4.54, 0.01);
  EXPECT_NEAR(contrastRatio(QColor(0x8e, 0x8e, 0x93), QColor(0xff, 0xc4, 0)), 2.05, 0.05);
}

TEST(ContrastTest, EveryTitleCanBeReadOnEveryColourOfThePalette) {
  for (const bool isDark : {false, true}) {
    Appearance::shared().force(isDark);
    const KeypadPalette palette = KeypadPalette::make();
    for (const QColor& ground :
         {palette.darkGold, palette.brightYellow, palette.strongYellow, palette.pink, palette.darkMagenta})
      for (const QColor& text : {InterfaceColor::darkTitle(), InterfaceColor::secondaryGray()})
        EXPECT_GE(contrastRatio(legible(text, ground), ground), 4.5)
            << isDark << " " << text.name().toStdString() << " on " << ground.name().toStdString();
  }
  Appearance::shared().force(std::nullopt);
}

TEST(ContrastTest, LeavesWhatCanBeReadAlone) {
  const QColor title = InterfaceColor::darkTitle();
  EXPECT_EQ(legible(title, QColor(0xff, 0xf5, 0x4f)), title);
  EXPECT_EQ(legible(Qt::white, Qt::black), QColor(Qt::white));
}

}  // namespace
}  // namespace tavi
