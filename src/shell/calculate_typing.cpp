// What keypad, keyboard and clipboard do to the fields, and what is shown of it beside them.
#include <QClipboard>
#include <QGuiApplication>
#include <QKeySequence>
#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <variant>

#include "input/pasted_text.h"
#include "input/typed_task.h"
#include "input/typing_hint.h"
#include "number/fatal_stop.h"
#include "platform/localization.h"
#include "shell/calculate_view_controller.h"
#include "shell/frame/is_calculating.h"
#include "solution/display_latex.h"
#include "solver/rehearsal.h"

namespace tavi {

namespace {

constexpr QChar minus = u'-';
constexpr std::size_t mostUndoable = 200;

// What a hardware keyboard types for a key of the keypad: the title itself or one of these.
struct TypedAlias {
  QChar typed;
  QChar title;
};
constexpr std::array<TypedAlias, 9> typedAliases{{{u',', u'.'},
                                                  {u'p', u'π'},
                                                  {u'P', u'π'},
                                                  {u'X', u'x'},
                                                  {u'Y', u'y'},
                                                  {u'Z', u'z'},
                                                  {u':', u'/'},
                                                  {u'÷', u'/'},
                                                  {u'−', u'-'}}};
constexpr QStringView keypadTitles = u"0123456789./-πxyz";

struct Command {
  QKeySequence::StandardKey key;
  void (CalculateViewController::*run)();
};
constexpr std::array commands{Command{QKeySequence::Copy, &CalculateViewController::copySelection},
                              Command{QKeySequence::Cut, &CalculateViewController::cutSelection},
                              Command{QKeySequence::Paste, &CalculateViewController::paste},
                              Command{QKeySequence::SelectAll, &CalculateViewController::selectAll},
                              Command{QKeySequence::Undo, &CalculateViewController::undo},
                              Command{QKeySequence::Redo, &CalculateViewController::redo}};
// What redoes on other systems, and so in many a user's fingers.
const QKeySequence otherRedo{Qt::CTRL | Qt::Key_Y};

// The key of the keypad that a typed character stands for.
std::optional<QChar> titleOf(QChar typed) {
  if (typed.isDigit()) return QChar(u'0' + typed.digitValue());
  const auto* const alias = std::ranges::find(typedAliases, typed, &TypedAlias::typed);
  const QChar title = alias == typedAliases.end() ? typed : alias->title;
  return keypadTitles.contains(title) ? std::optional(title) : std::nullopt;
}

QString without(const QString& text, TextRange range) {
  return QString(text).remove(range.start, range.end - range.start);
}

// Such a root, or power, has a zero under its fraction bar sooner or later.
bool isDividingByZero(Mode mode, const TypedTask& typed) {
  const auto isZero = [&typed](std::size_t field) { return elementAt(typed.numbers, field)->value() == 0.0; };
  return isZero(1) || (mode == Mode::root && isZero(0));
}

// What there is to know before a task that can be read is worked out.
std::string_view outcomeHint(const Task& task, const TypedTask& typed) {
  const Rehearsal rehearsal = rehearse(task);
  if (std::holds_alternative<ExpansionTooLong>(rehearsal)) return "hintTooLong";
  const auto* outcome = std::get_if<CalculationOutcome>(&rehearsal);
  if (!outcome || !outcome->solutionSteps) return "hintOutOfRange";
  const bool isInfinite =
      outcome->solutionSteps->back().latexString.value_or("").find("\\infty") != std::string::npos;
  if (!isInfinite) return "";
  return isDividingByZero(*task.mode, typed) ? "hintDividesByZero" : "hintInfinite";
}

}  // namespace

void CalculateViewController::watch(DTTextField& field) {
  connect(&field, &DTTextField::selectionChanged, this, &CalculateViewController::caretChanged);
  connect(&field, &DTTextField::focusChanged, this, [this] {
    emit caretChanged();
    emit taskChanged();
  });
  connect(&field, &DTTextField::textChanged, this, [this, &field] {
    setNotice({});
    emit caretChanged();
    // Of twins one tells.
    if (field.isInVisibleHolder()) emit taskChanged();
  });
}

// The user goes on where something is wrong.
void CalculateViewController::goToFault(const QList<DTTextField*>& fields) {
  const auto first =
      std::ranges::find_if(fields, [](const DTTextField* field) { return field->isVisible(); });
  if (first == fields.end()) return;
  (*first)->forceActiveFocus();
  const QByteArray text = (*first)->text().toUtf8();
  const auto place = static_cast<qsizetype>(faultPlace({text.data(), static_cast<std::size_t>(text.size())}));
  const qsizetype caret = QString::fromUtf8(text.first(place)).size();
  (*first)->setSelectedTextRange({caret, caret});
}

bool CalculateViewController::textFieldShouldBeginEditing(DTTextField* field) {
  currentTextField = field;
  setNotice({});
  emit caretChanged();
  emit taskChanged();
  return true;
}

DTTextField* CalculateViewController::visibleField(const QString& identifier) const {
  const auto field = std::ranges::find_if(allFields, [&identifier](const DTTextField* each) {
    return each->isInVisibleHolder() && each->accessibilityIdentifier == identifier;
  });
  return field == allFields.end() ? nullptr : *field;
}

// A change of the mode takes the caret along, so that the user sees what he goes on typing into.
void CalculateViewController::moveEditingToVisibleTwin() {
  DTTextField* hidden = currentTextField;
  if (!hidden || !hidden->isFirstResponder() || hidden->isInVisibleHolder()) return;
  DTTextField* twin = visibleField(hidden->accessibilityIdentifier);
  if (!twin) return;
  twin->forceActiveFocus();
  if (const auto& range = hidden->selectedTextRange()) twin->setSelectedTextRange(*range);
}

TaskPreview CalculateViewController::preview() const {
  if (!segmentedControl) return {};
  const std::optional<Mode> mode = modeOf(this->mode());
  const DTTextField* firstField = visibleField("aTextField");
  const DTTextField* secondField = visibleField("xTextField");
  if (!firstField || !secondField) return {};
  const std::string first = firstField->text().toStdString();
  const std::string second = secondField->text().toStdString();
  const TypedTask typed = typedTask(mode, first, second);
  const bool isRejected = firstField->isFaulty() || secondField->isFaulty();
  const bool isUntouched = first.empty() && second.empty() && !isTypingPossible();
  const std::string_view hint = !typed.errorKey ? outcomeHint({mode, first, second}, typed)
                                : isUntouched   ? "hintTapField"
                                : isRejected    ? faultHint(mode, typed)
                                                : typingHint(mode, typed);
  return {.latex = QString::fromStdString(displayLatex(typedLatex(typed))),
          .hint = hint.empty() ? QString() : localized(std::string(hint).c_str()),
          .isReadable = !typed.errorKey};
}

void CalculateViewController::setNotice(const QString& words) {
  if (std::exchange(notice_, words) != words) emit noticeChanged();
}

bool CalculateViewController::isTypingPossible() const {
  return currentTextField != nullptr && currentTextField->isFirstResponder() &&
         currentTextField->selectedTextRange();
}

bool CalculateViewController::isDeletePossible() const {
  return currentTextField != nullptr && currentTextField->selectedTextRange() &&
         currentTextField->selectedTextRange()->end > 0;
}

bool CalculateViewController::isSelectionThere() const {
  if (!currentTextField || !currentTextField->selectedTextRange()) return false;
  const TextRange selection = *currentTextField->selectedTextRange();
  return selection.start < selection.end;
}

bool CalculateViewController::isMinusKeyEnabled() const {
  if (!isTypingPossible()) return false;
  const TextRange selection = *currentTextField->selectedTextRange();
  return selection.start > 0 || !without(currentTextField->text(), selection).contains(minus);
}

void CalculateViewController::tappedKeypadButton(const QString& title) {
  insertKeypadValue(title);
}

void CalculateViewController::tappedDeleteButton() {
  deleteBackward();
}

void CalculateViewController::tappedCalculateButton() {
  if (!isCalculating) performCalculation();
}

void CalculateViewController::tappedManualButton() {
  showManual();
}

bool CalculateViewController::pressedHardwareKey(int key, int modifiers, const QString& text) {
  const auto held = Qt::KeyboardModifiers(QFlag(modifiers)) & ~Qt::KeypadModifier;
  const QKeySequence pressed(QKeyCombination(held, static_cast<Qt::Key>(key)));
  for (const Command& command : commands) {
    const bool isOtherRedo = command.key == QKeySequence::Redo && pressed == otherRedo;
    if (!isOtherRedo && !QKeySequence::keyBindings(command.key).contains(pressed)) continue;
    (this->*command.run)();
    return true;
  }
  if ((held & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0) return false;
  switch (key) {
    case Qt::Key_Backspace:
      tappedDeleteButton();
      return true;
    case Qt::Key_Delete:
      deleteForward();
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      tappedCalculateButton();
      return true;
    default:
      break;
  }
  const bool isRaising = text == u"^" || key == Qt::Key_Dead_Circumflex;
  if (isRaising && beginExponent()) return true;
  if (text.size() != 1) return false;
  const std::optional<QChar> title = titleOf(text.front());
  const QString keyNotice = localized("hintKey");
  if (!title) {
    if (isTypingPossible() && text.front().isPrint() && !text.front().isSpace()) setNotice(keyNotice);
    return false;
  }
  // Quick fingers are beyond the key that typed nothing before its words are read.
  const bool isKeyNoticeKept = notice_ == keyNotice;
  if (beginTyping() && (title != minus || isMinusKeyEnabled())) tappedKeypadButton(*title);
  if (isKeyNoticeKept) setNotice(keyNotice);
  return true;
}

// The sign for a power leads from its base to its exponent; false where there is no such way.
bool CalculateViewController::beginExponent() {
  DTTextField* exponent = visibleField("aTextField");
  if (modeOf(mode()) != Mode::power || exponent == nullptr || exponent->isFirstResponder()) return false;
  exponent->forceActiveFocus();
  return true;
}

// Gives a field the focus if none has it: the one typed into before, else the one that has no default.
bool CalculateViewController::beginTyping() {
  if (isTypingPossible()) return true;
  const bool isBegun = currentTextField != nullptr && currentTextField->isInVisibleHolder();
  if (DTTextField* field = isBegun ? currentTextField : visibleField("xTextField")) field->forceActiveFocus();
  return isTypingPossible();
}

void CalculateViewController::insertKeypadValue(const QString& title) {
  if (title.isEmpty()) fatalStop("a keypad key without a title");
  if (isCalculating || !currentTextField || !currentTextField->selectedTextRange()) return;
  errorManager_.withdrawMessage();
  const TextRange selection = *currentTextField->selectedTextRange();
  const qsizetype caret = selection.start;
  QString text = without(currentTextField->text(), selection);
  if (isTypingPossible() || isSelectionThere()) keepForUndo();
  currentTextField->setText(text);
  currentTextField->setSelectedTextRange({caret, caret});
  if (!currentTextField->isFirstResponder()) return errorManager_.refreshFields();

  qsizetype delta = 1;
  if (title != minus) {
    text.insert(caret, title);
  } else if (text.contains(minus)) {
    text.remove(minus);
    delta = -1;
  } else {
    text.prepend(minus);
  }
  setText(text);
  currentTextField->setSelectedTextRange({caret + delta, caret + delta});
  errorManager_.refreshFields();
}

void CalculateViewController::deleteBackward() {
  if (isCalculating || !currentTextField || !currentTextField->selectedTextRange()) return;
  errorManager_.withdrawMessage();
  TextRange selection = *currentTextField->selectedTextRange();
  if (selection.end == 0) return;
  if (selection.start == selection.end) --selection.start;
  deleteRange(selection);
}

void CalculateViewController::deleteForward() {
  if (isCalculating || !currentTextField || !currentTextField->selectedTextRange()) return;
  errorManager_.withdrawMessage();
  TextRange selection = *currentTextField->selectedTextRange();
  if (selection.start == currentTextField->text().size()) return;
  if (selection.start == selection.end) ++selection.end;
  deleteRange(selection);
}

void CalculateViewController::deleteRange(TextRange range) {
  keepForUndo();
  setText(without(currentTextField->text(), range));
  currentTextField->setSelectedTextRange({range.start, range.start});
  errorManager_.refreshFields();
}

// The text of the current field and of its twin.
void CalculateViewController::setText(const QString& text) {
  currentTextField->setText(text);
  setText(currentTextField->accessibilityIdentifier, text);
}

void CalculateViewController::setText(const QString& identifier, const QString& text) {
  for (DTTextField* field : allFields) {
    if (field->accessibilityIdentifier == identifier) field->setText(text);
  }
}

void CalculateViewController::copySelection() {
  if (!isSelectionThere()) return;
  const TextRange selection = *currentTextField->selectedTextRange();
  QGuiApplication::clipboard()->setText(
      currentTextField->text().sliced(selection.start, selection.end - selection.start));
}

void CalculateViewController::cutSelection() {
  if (isCalculating || !isSelectionThere()) return;
  copySelection();
  errorManager_.withdrawMessage();
  deleteRange(*currentTextField->selectedTextRange());
}

void CalculateViewController::selectAll() {
  if (isTypingPossible()) currentTextField->setSelectedTextRange({0, currentTextField->text().size()});
}

void CalculateViewController::paste() {
  if (isCalculating || !beginTyping()) return;
  errorManager_.withdrawMessage();
  const TextRange selection = *currentTextField->selectedTextRange();
  const auto inPlace = [&](const QString& text) {
    return without(currentTextField->text(), selection).insert(selection.start, text);
  };
  const QString copied = QGuiApplication::clipboard()->text();
  auto pasted = readPasted(copied.toStdString());
  const QString number = QString::fromStdString(pasted ? pasted->number : "");
  QString text = inPlace(number);
  qsizetype caret = selection.start + number.size();
  // What stands around it may belong to it, as the 2 to the half of "2½".
  const auto whole = readPasted(inPlace(copied).toStdString());
  if (whole && (!pasted || (!pasted->exponent && whole->number != text.toStdString()))) {
    pasted = whole;
    text = QString::fromStdString(whole->number);
    caret = text.size();
  }
  if (!pasted) return setNotice(localized("hintPaste"));
  if (pasted->exponent) {
    return pastePower(QString::fromStdString(pasted->number), QString::fromStdString(*pasted->exponent));
  }
  if (text.lastIndexOf(minus) > 0) return setNotice(localized("hintPasteMinus"));
  if (text.count(u'/') > 1) return setNotice(localized("hintOneBar"));
  keepForUndo();
  setText(text);
  currentTextField->setSelectedTextRange({caret, caret});
  errorManager_.refreshFields();
}

void CalculateViewController::pastePower(const QString& base, const QString& exponent) {
  if (modeOf(mode()) != Mode::power) return setNotice(localized("hintPastePower"));
  keepForUndo();
  setText("xTextField", base);
  setText("aTextField", exponent);
  errorManager_.refreshFields();
}

CalculateViewController::TypingState CalculateViewController::typingState() const {
  TypingState state;
  for (const DTTextField* field : allFields) state.texts[field->accessibilityIdentifier] = field->text();
  if (isTypingPossible()) {
    state.identifier = currentTextField->accessibilityIdentifier;
    state.selection = *currentTextField->selectedTextRange();
  }
  return state;
}

void CalculateViewController::restore(const TypingState& state) {
  errorManager_.withdrawMessage();
  for (const auto& [identifier, text] : state.texts.asKeyValueRange()) setText(identifier, text);
  if (DTTextField* field = visibleField(state.identifier)) {
    field->forceActiveFocus();
    field->setSelectedTextRange(state.selection);
  }
  errorManager_.refreshFields();
}

void CalculateViewController::keepForUndo() {
  undoable_.push_back(typingState());
  if (undoable_.size() > mostUndoable) undoable_.erase(undoable_.begin());
  redoable_.clear();
}

void CalculateViewController::undo() {
  moveBetween(undoable_, redoable_);
}

void CalculateViewController::redo() {
  moveBetween(redoable_, undoable_);
}

void CalculateViewController::moveBetween(std::vector<TypingState>& from, std::vector<TypingState>& to) {
  if (isCalculating || from.empty()) return;
  to.push_back(typingState());
  const TypingState state = std::move(from.back());
  from.pop_back();
  restore(state);
}

}  // namespace tavi
