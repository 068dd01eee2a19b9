#pragma once

#include <QColor>
#include <QFont>
#include <QObject>
#include <QQmlEngine>

#include "appearance/color_manager.h"

namespace tavi {

/// Colours, fonts and measures for QML.
class Theme : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(bool isDark READ isDark NOTIFY appearanceChanged)
  Q_PROPERTY(bool isMotionReduced READ isMotionReduced NOTIFY motionChanged)
  Q_PROPERTY(int formulaPercent READ formulaPercent NOTIFY formulaPercentChanged)
  Q_PROPERTY(QColor label READ label NOTIFY appearanceChanged)
  Q_PROPERTY(QColor secondaryGray READ secondaryGray NOTIFY appearanceChanged)
  Q_PROPERTY(QColor background READ background NOTIFY appearanceChanged)
  Q_PROPERTY(QColor groupedBackground READ groupedBackground NOTIFY appearanceChanged)
  Q_PROPERTY(QColor page READ page NOTIFY appearanceChanged)
  Q_PROPERTY(QColor hairline READ hairline NOTIFY appearanceChanged)
  Q_PROPERTY(QColor focus READ focus NOTIFY appearanceChanged)
  Q_PROPERTY(QColor red READ red NOTIFY appearanceChanged)
  Q_PROPERTY(QColor accentText READ accentText NOTIFY appearanceChanged)
  Q_PROPERTY(tavi::LayerShadow edgeShadow READ edgeShadow NOTIFY appearanceChanged)
  Q_PROPERTY(QColor darkTitle READ darkTitle CONSTANT)
  Q_PROPERTY(QColor darkGold READ darkGold NOTIFY appearanceChanged)
  Q_PROPERTY(QColor brightYellow READ brightYellow NOTIFY appearanceChanged)
  Q_PROPERTY(QColor strongYellow READ strongYellow NOTIFY appearanceChanged)
  Q_PROPERTY(QColor pink READ pink NOTIFY appearanceChanged)
  Q_PROPERTY(QColor darkMagenta READ darkMagenta NOTIFY appearanceChanged)
  Q_PROPERTY(int tabletWidth READ tabletWidth CONSTANT)
  Q_PROPERTY(int sideBySideWidth READ sideBySideWidth CONSTANT)
  Q_PROPERTY(int lowHeight READ lowHeight CONSTANT)
  Q_PROPERTY(int lowBarHeight READ lowBarHeight CONSTANT)
  Q_PROPERTY(int touchTarget READ touchTarget CONSTANT)

 public:
  explicit Theme(QObject* parent = nullptr);

  static bool isDark();
  static bool isMotionReduced();  ///< What would move stands at once.
  static int formulaPercent();    ///< The size of a working's formulas, 100 for the usual one.
  static QColor label();
  static QColor secondaryGray();
  static QColor background();
  static QColor groupedBackground();
  static QColor page();
  static QColor hairline();         ///< Thin separating lines.
  static QColor focus();            ///< The ring around what the keyboard acts on.
  static QColor red();              ///< What deletes.
  static QColor accentText();       ///< Pink as it can be read as text on the background.
  static LayerShadow edgeShadow();  ///< Where a view that scrolls sideways goes on.
  static QColor darkTitle();
  static QColor darkGold() { return KeypadPalette::shared().darkGold; }
  static QColor brightYellow() { return KeypadPalette::shared().brightYellow; }
  static QColor strongYellow() { return KeypadPalette::shared().strongYellow; }
  static QColor pink() { return KeypadPalette::shared().pink; }
  static QColor darkMagenta() { return KeypadPalette::shared().darkMagenta; }

  /// Windows from this width on are laid out as a tablet's.
  static int tabletWidth() { return 840; }
  /// From this width on input and working stand side by side.
  static int sideBySideWidth() { return 1000; }
  /// Windows below this height go without the status strip and have bars of the height below.
  static int lowHeight() { return 560; }
  static int lowBarHeight() { return 40; }
  /// Smallest side of what a finger taps, but in a low window.
  static int touchTarget() { return 48; }

  /// The text's colour, changed as little as it takes to be read on the ground.
  Q_INVOKABLE static QColor legible(const QColor& text, const QColor& ground);

  Q_INVOKABLE static QFont book(int size);
  Q_INVOKABLE static QFont medium(int size);
  Q_INVOKABLE static QFont heavy(int size);
  Q_INVOKABLE static QFont icons(int size);

 signals:
  void appearanceChanged();
  void motionChanged();
  void formulaPercentChanged();
};

}  // namespace tavi
