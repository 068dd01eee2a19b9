#pragma once

#include <memory>
#include <string>
#include <vector>

#include <QtCore/QString>
#include <QtGui/QColor>
#include <QtQuick/QQuickItem>

#include "typeset/math_font.h"
#include "typeset/math_painter.h"
#include "typeset/spoken_math.h"

namespace tavi::typeset {

class MathSlice;

/// The phrase in the language of the installed translations.
std::string translatedPhrase(const Phrase& phrase);

/// A line of LaTeX in words, in the language of the installed translations.
QString spokenText(const QString& latex);

/// A line of LaTeX as mathematics. Its implicit size is that of the line; it draws no more of a wide line
/// than the viewport around it shows, and it tells assistive technology the line in words.
class MathLabel : public QQuickItem {
  Q_OBJECT
  Q_PROPERTY(QString latex READ latex WRITE setLatex NOTIFY latexChanged)
  Q_PROPERTY(qreal fontSize READ fontSize WRITE setFontSize NOTIFY fontSizeChanged)
  Q_PROPERTY(QColor textColor READ textColor WRITE setTextColor NOTIFY textColorChanged)
  Q_PROPERTY(
      QColor backgroundColor READ backgroundColor WRITE setBackgroundColor NOTIFY backgroundColorChanged)
  Q_PROPERTY(QString error READ error NOTIFY errorChanged)
  Q_PROPERTY(qreal contentWidth READ contentWidth NOTIFY contentWidthChanged)
  Q_PROPERTY(QString spokenText READ spokenText NOTIFY spokenTextChanged)

 public:
  explicit MathLabel(QQuickItem* parent = nullptr);

  /// Makes the type known as `MathLabel` of the module `Tavi.Typeset` 1.0.
  static void registerType();

  [[nodiscard]] QString latex() const { return latex_; }
  void setLatex(const QString& latex);

  /// The em in pixels, 20 at first. Only sizes above 0 are taken.
  [[nodiscard]] qreal fontSize() const { return fontSize_; }
  void setFontSize(qreal fontSize);

  [[nodiscard]] QColor textColor() const { return textColor_; }
  void setTextColor(const QColor& color);

  /// What the label stands on; it draws none, but keeps the colours of the line legible on it. Until it is
  /// set, white under dark text and black under light text.
  [[nodiscard]] QColor backgroundColor() const;
  void setBackgroundColor(const QColor& color);

  /// What is wrong with the line and where; empty when nothing is.
  [[nodiscard]] QString error() const { return error_; }

  [[nodiscard]] qreal contentWidth() const { return contentWidth_; }

  /// The line in words, in the language of the installed translations.
  [[nodiscard]] QString spokenText() const { return spokenText_; }

 signals:
  void latexChanged();
  void fontSizeChanged();
  void textColorChanged();
  void backgroundColorChanged();
  void errorChanged();
  void contentWidthChanged();
  void spokenTextChanged();

 protected:
  void componentComplete() override;
  void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
  void itemChange(ItemChange change, const ItemChangeData& value) override;

 private:
  void setLine();
  void observeAncestors();
  void showVisiblePart();
  void tellAssistiveTechnology();

  QString latex_;
  qreal fontSize_ = 20;
  QColor textColor_ = Qt::black;
  QColor backgroundColor_;
  double contentWidth_ = 0;
  double contentHeight_ = 0;
  QString error_;
  QString spokenText_;
  MathSlice* slice_;
  std::vector<QMetaObject::Connection> ancestors_;
};

}  // namespace tavi::typeset
