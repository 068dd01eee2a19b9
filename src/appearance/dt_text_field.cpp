#include "appearance/dt_text_field.h"

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
}

void DTTextField::setText(const QString& text) {
  if (text == text_) return;
  text_ = text;
  if (selection_) selection_ = TextRange{text.size(), text.size()};
  setFault({});
  emit textChanged();
  if (selection_) emit selectionChanged();
}

void DTTextField::setSelectedTextRange(TextRange range) {
  if (!contains(range)) fatalStop("a caret outside the text");
  if (selection_ == range) return;
  selection_ = range;
  emit selectionChanged();
}

void DTTextField::select(int start, int end) {
  if (contains({start, end})) setSelectedTextRange({start, end});
}

bool DTTextField::contains(TextRange range) const {
  return 0 <= range.start && range.start <= range.end && range.end <= text_.size();
}

void DTTextField::setHidden(bool isHidden) {
  if (isHidden == isHidden_) return;
  isHidden_ = isHidden;
  setVisible(!isHidden);
  emit isHiddenChanged();
}

void DTTextField::setBorderColor(const QColor& color) {
  if (color == borderColor_) return;
  borderColor_ = color;
  emit appearanceChanged();
}

void DTTextField::setFault(const QString& words) {
  if (words == fault_) return;
  fault_ = words;
  emit faultChanged();
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
