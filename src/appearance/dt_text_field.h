#pragma once

#include <QColor>
#include <QFont>
#include <QQuickItem>
#include <QString>
#include <optional>

#include <QtQml/qqmlregistration.h>

namespace tavi {

/// Part of a text in UTF-16 units, from start up to but not including end. An empty one is a caret.
struct TextRange {
  qsizetype start = 0;
  qsizetype end = 0;

  friend bool operator==(const TextRange&, const TextRange&) = default;
};

/// How a field looks while nothing is wrong with it; lengths in device-independent pixels.
struct FieldStyle {
  Q_GADGET
  QML_ANONYMOUS
  Q_PROPERTY(QColor labelColor MEMBER labelColor)
  Q_PROPERTY(QColor caretColor MEMBER caretColor)
  Q_PROPERTY(double labelOffset MEMBER labelOffset)
  Q_PROPERTY(QFont labelFont MEMBER labelFont)
  Q_PROPERTY(bool isLabelFloating MEMBER isLabelFloating)
  Q_PROPERTY(bool isBorderShown MEMBER isBorderShown)

 public:
  QColor labelColor;
  QColor caretColor;
  double labelOffset = 0;  ///< Top of the floating label, from the top of the field.
  QFont labelFont;
  bool isLabelFloating = false;  ///< The label moves out of the field that is filled or typed into.
  bool isBorderShown = false;

  friend bool operator==(const FieldStyle&, const FieldStyle&) = default;
};

/// An input field with a floating label. It holds text and selection and takes no typing of its own: whoever
/// owns it changes the text; its QML draws it and reports where the user put the caret.
class DTTextField : public QQuickItem {
  Q_OBJECT
  QML_NAMED_ELEMENT(DTTextFieldItem)
  Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
  Q_PROPERTY(int selectionStart READ selectionStart NOTIFY selectionChanged)
  Q_PROPERTY(int selectionEnd READ selectionEnd NOTIFY selectionChanged)
  Q_PROPERTY(bool isHidden READ isHidden WRITE setHidden NOTIFY isHiddenChanged)
  Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor NOTIFY appearanceChanged)
  Q_PROPERTY(QString faultWords READ faultWords NOTIFY appearanceChanged)
  Q_PROPERTY(tavi::FieldStyle style READ style WRITE setStyle NOTIFY appearanceChanged)

 public:
  explicit DTTextField(QQuickItem* parent = nullptr);

  QString text() const { return text_; }

  /// A changed text has the caret behind it and is no longer at fault.
  void setText(const QString& text);

  /// Absent until the user has first begun to edit here.
  const std::optional<TextRange>& selectedTextRange() const { return selection_; }

  /// A range that does not lie within the text is a fatal stop.
  void setSelectedTextRange(TextRange range);

  /// The user put the caret somewhere or selected something. A range that does not lie within the text counts
  /// for nothing.
  Q_INVOKABLE void select(int start, int end);

  /// True for the field that has the focus on its page, be the window active or not.
  bool isFirstResponder() const { return hasFocus(); }

  /// Whether the field itself is hidden, whatever it stands in.
  bool isHidden() const { return isHidden_; }
  void setHidden(bool isHidden);

  /// Whether the field stands in something, and that is not hidden.
  bool isInVisibleHolder() const { return parentItem() != nullptr && parentItem()->isVisible(); }

  /// Of a field at fault the colour of its fault in the appearance in force, else what was set last. Setting
  /// it takes a fault away.
  QColor borderColor() const;
  void setBorderColor(const QColor& color);

  enum class Fault { missing, wrong };

  /// Marks the field, for the eye and, with the words, for assistive technology.
  void setFault(Fault fault, const QString& words);
  bool isFaulty() const { return fault_.has_value(); }
  QString faultWords() const { return faultWords_; }
  void clearFault();

  /// The background lies in the attached view, where styling writes it as well.
  QColor backgroundColor() const;
  void setBackgroundColor(const QColor& color);

  const FieldStyle& style() const { return style_; }
  void setStyle(const FieldStyle& style);

  /// The name under which the field is found; empty if it has none.
  QString accessibilityIdentifier;

 signals:
  void textChanged();
  void selectionChanged();
  void isHiddenChanged();
  void appearanceChanged();

  /// The user is about to edit here.
  void shouldBeginEditing(tavi::DTTextField* field);

 protected:
  void itemChange(ItemChange change, const ItemChangeData& data) override;

 private:
  bool isWithinText(TextRange range) const;
  int selectionStart() const { return selection_ ? static_cast<int>(selection_->start) : 0; }
  int selectionEnd() const { return selection_ ? static_cast<int>(selection_->end) : 0; }

  QString text_;
  std::optional<TextRange> selection_;
  bool isHidden_ = false;
  QColor borderColor_;
  std::optional<Fault> fault_;
  QString faultWords_;
  FieldStyle style_;
};

}  // namespace tavi
