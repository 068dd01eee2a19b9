#include "appearance/dt_text_field.h"

#include "appearance/appearance.h"
#include "appearance/interface_colors.h"
#include "appearance/view.h"
#include "number/fatal_stop.h"

namespace tavi {

namespace {

View& viewOf(const DTTextField& field) {
  View* view = View::of(&field);
  if (!view) fatalStop("a field that is no view");
  return *view;
}

}  // namespace

DTTextField::DTTextField(QQuickItem* parent) : QQuickItem(parent) {
  setFlag(ItemIsFocusScope);
  connect(&Appearance::shared(), &Appearance::changed, this, &DTTextField::appearanceChanged);
}

void DTTextField::setText(const QString& text) {
  if (text == text_) return;
  text_ = text;
  if (selection_) selection_ = TextRange{text.size(), text.size()};
  clearFault();
  emit textChanged();
  if (selection_) emit selectionChanged();
}

void DTTextField::setSelectedTextRange(TextRange range) {
  if (!isWithinText(range)) fatalStop("a caret outside the text");
  if (selection_ == range) return;
  selection_ = range;
  emit selectionChanged();
}

void DTTextField::select(int start, int end) {
  if (isWithinText({start, end})) setSelectedTextRange({start, end});
}

bool DTTextField::isWithinText(TextRange range) const {
  return 0 <= range.start && range.start <= range.end && range.end <= text_.size();
}

void DTTextField::setHidden(bool isHidden) {
  if (isHidden == isHidden_) return;
  isHidden_ = isHidden;
  setVisible(!isHidden);
  emit isHiddenChanged();
}

QColor DTTextField::borderColor() const {
  if (!fault_) return borderColor_;
  return *fault_ == Fault::missing ? InterfaceColor::orange() : InterfaceColor::red();
}

void DTTextField::setBorderColor(const QColor& color) {
  if (color == borderColor_ && !fault_) return;
  borderColor_ = color;
  fault_.reset();
  faultWords_.clear();
  emit appearanceChanged();
}

void DTTextField::setFault(Fault fault, const QString& words) {
  fault_ = fault;
  faultWords_ = words;
  emit appearanceChanged();
}

void DTTextField::clearFault() {
  if (!fault_) return;
  fault_.reset();
  faultWords_.clear();
  emit appearanceChanged();
}

QColor DTTextField::backgroundColor() const {
  return viewOf(*this).backgroundColor();
}

void DTTextField::setBackgroundColor(const QColor& color) {
  viewOf(*this).setBackgroundColor(color);
}

void DTTextField::setStyle(const FieldStyle& style) {
  if (style == style_) return;
  style_ = style;
  emit appearanceChanged();
}

void DTTextField::itemChange(ItemChange change, const ItemChangeData& data) {
  QQuickItem::itemChange(change, data);
  if (change != ItemActiveFocusHasChanged || !data.boolValue) return;
  if (!selection_) setSelectedTextRange({text_.size(), text_.size()});
  emit shouldBeginEditing(this);
}

}  // namespace tavi
