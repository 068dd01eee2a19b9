#include "solution/exact/exact_sheet_controller.h"

#include <QClipboard>
#include <QGuiApplication>
#include <algorithm>
#include <array>
#include <utility>

#include "exact/sentences.h"
#include "platform/localization.h"
#include "shell/frame/view_manager.h"
#include "solution/exact/account_library.h"
#include "typeset/math_label.h"

namespace tavi {

namespace {

/// How many digits a decimal is shown with.
constexpr std::array digitSteps{exact::usualDigits, 30, 60, 120, 250, 500, exact::maximumDigits};

/// What is typeset in one line at most, in bytes of LaTeX.
constexpr std::size_t longestLine = 1500;

QString qString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

exact::Sentence wholeNumberSentence(const exact::WholeNumber& number) {
  return {"exactWholeNumber", {number.digitCount, number.firstDigits, number.lastDigits}};
}

/// The words in the user's language, without one in English.
QString wordsOf(std::string_view key) {
  const QString words = localized(std::string(key).c_str());
  return words == qString(key) ? qString(exact::englishWords(key)) : words;
}

/// Words that a line may be broken between. Scripts without blanks may be broken at every character.
void appendWords(QVariantList& pieces, const QString& text) {
  constexpr char16_t firstIdeograph = 0x2E80;
  QString word;
  const auto end = [&] {
    if (!word.isEmpty()) pieces.append(QVariantMap{{QStringLiteral("word"), std::exchange(word, {})}});
  };
  for (const QChar character : text) {
    word += character == u' ' ? QChar(QChar::Nbsp) : character;
    if (character == u' ' || character.unicode() >= firstIdeograph) end();
  }
  end();
}

QVariantMap shown(const exact::Sentence& sentence) {
  const QString words = wordsOf(sentence.key);
  QVariantList pieces;
  QString spoken;
  qsizetype from = 0;
  for (qsizetype at = words.indexOf(u'%'); at >= 0; at = words.indexOf(u'%', from)) {
    const auto place = static_cast<std::size_t>(words.mid(at + 1, 1).toInt() - 1);
    if (place >= sentence.formulas.size()) break;
    const QString formula = qString(sentence.formulas[place]);
    appendWords(pieces, words.mid(from, at - from));
    pieces.append(QVariantMap{{QStringLiteral("formula"), formula}});
    spoken += words.mid(from, at - from) + typeset::spokenText(formula);
    from = at + 2;
  }
  appendWords(pieces, words.mid(from));
  spoken += words.mid(from);
  return {{QStringLiteral("spoken"), spoken}, {QStringLiteral("pieces"), pieces}};
}

}  // namespace

ExactSheetController::ExactSheetController(exact::AccountQuestion question, exact::Account account)
    : question_(std::move(question)), account_(std::move(account)) {
  setPresentationStyle(PresentationStyle::ActionSheet);
}

QString ExactSheetController::title() const {
  return localized("exactTitle");
}

QString ExactSheetController::value() const {
  const exact::ExactValue& value = account_.value;
  if (value.latex == value.task || value.latex.size() > longestLine) return qString(value.task);
  return qString(value.task + " = " + value.latex);
}

QString ExactSheetController::decimal() const {
  const exact::ExactValue& value = account_.value;
  if (!value.decimal || *value.decimal == value.latex) return {};
  const bool isRounded = value.decimal->find("\\ldots") != std::string::npos;
  return QStringLiteral("%1 %2").arg(isRounded ? u"\\approx" : u"=", qString(*value.decimal));
}

bool ExactSheetController::hasMoreDigits() const {
  return account_.value.decimal && question_.digits < digitSteps.back() &&
         account_.value.decimal->find("\\ldots") != std::string::npos;
}

bool ExactSheetController::hasFewerDigits() const {
  return question_.digits > digitSteps.front();
}

QVariantList ExactSheetController::sentences() const {
  const exact::ExactValue& value = account_.value;
  QVariantList sentences;
  if (value.wholeNumber) sentences.append(shown(wholeNumberSentence(*value.wholeNumber)));
  if (value.reason) sentences.append(shown(*value.reason));
  if (value.note) sentences.append(shown(*value.note));
  for (const std::string_view key : exact::sentenceKeys(account_.rules())) sentences.append(shown({key}));
  return sentences;
}

void ExactSheetController::showMoreDigits() {
  if (hasMoreDigits()) setDigits(*std::ranges::upper_bound(digitSteps, question_.digits));
}

void ExactSheetController::showFewerDigits() {
  if (hasFewerDigits()) setDigits(*(std::ranges::lower_bound(digitSteps, question_.digits) - 1));
}

void ExactSheetController::setDigits(int digits) {
  question_.digits = digits;
  exact::AccountQuestion ofValue = question_;
  ofValue.steps.clear();
  if (auto account = accountOf(ofValue)) account_.value = std::move(account->value);
  emit changed();
}

void ExactSheetController::copyLatex() {
  copy(qString(account_.value.latex));
}

void ExactSheetController::copyText() {
  const exact::ExactValue& value = account_.value;
  const bool isNumber = value.kind == exact::Kind::integer;
  copy(isNumber ? qString(value.latex) : typeset::spokenText(qString(value.latex)));
}

void ExactSheetController::copy(const QString& text) {
  QGuiApplication::clipboard()->setText(text);
  ViewManager::showToast(localized("sharingCopied"));
  dismiss();
}

}  // namespace tavi
