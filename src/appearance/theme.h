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
  Q_PROPERTY(int lowHeight READ lowHeight CONSTANT)
  Q_PROPERTY(int lowBarHeight READ lowBarHeight CONSTANT)
  Q_PROPERTY(int touchTarget READ touchTarget CONSTANT)

 public:
  explicit Theme(QObject* parent = nullptr);

  bool isDark() const;
  bool isMotionReduced() const;  ///< What would move stands at once.
  QColor label() const;
  QColor secondaryGray() const;
  QColor background() const;
  QColor groupedBackground() const;
  QColor page() const;
  QColor hairline() const;         ///< Thin separating lines.
  QColor focus() const;            ///< The ring around what the keyboard acts on.
  QColor red() const;              ///< What deletes.
  QColor accentText() const;       ///< Pink as it can be read as text on the background.
  LayerShadow edgeShadow() const;  ///< Where a view that scrolls sideways goes on.
  QColor darkTitle() const;
  QColor darkGold() const { return KeypadPalette::shared().darkGold; }
  QColor brightYellow() const { return KeypadPalette::shared().brightYellow; }
  QColor strongYellow() const { return KeypadPalette::shared().strongYellow; }
  QColor pink() const { return KeypadPalette::shared().pink; }
  QColor darkMagenta() const { return KeypadPalette::shared().darkMagenta; }

  /// Windows from this width on are laid out as a tablet's.
  int tabletWidth() const { return 840; }
  /// Windows below this height go without the status strip and have bars of the height below.
  int lowHeight() const { return 560; }
  int lowBarHeight() const { return 40; }
  /// Smallest side of what a finger taps, but in a low window.
  int touchTarget() const { return 48; }

  /// The text's colour, changed as little as it takes to be read on the ground.
  Q_INVOKABLE QColor legible(const QColor& text, const QColor& ground) const;

  Q_INVOKABLE QFont book(int size) const;
  Q_INVOKABLE QFont medium(int size) const;
  Q_INVOKABLE QFont heavy(int size) const;
  Q_INVOKABLE QFont icons(int size) const;

 signals:
  void appearanceChanged();
  void motionChanged();
};

}  // namespace tavi
