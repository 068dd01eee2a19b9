#include "solution/exact/exact_sheet_controller.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTextBoundaryFinder>
#include <algorithm>
#include <array>
#include <map>
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

/// A sentence as it is spoken, and as it is set in pieces between which a line may be broken.
QVariantMap shown(const exact::Sentence& sentence) {
  constexpr QChar standIn = u'x';  // A line is broken beside a formula where it would be beside a letter.
  const QString words = wordsOf(sentence.key);
  QString text;
  QString spoken;
  std::map<qsizetype, QString> formulas;  // by their places in the text
  for (qsizetype at = 0; at < words.size(); ++at) {
    const auto place = static_cast<std::size_t>(words.mid(at + 1, 1).toInt() - 1);
    if (words[at] == u'%' && place < sentence.formulas.size()) {
      const QString& formula = formulas[text.size()] = qString(sentence.formulas[place]);
      text += standIn;
      spoken += typeset::spokenText(formula);
      ++at;
    } else {
      text += words[at];
      spoken += words[at];
    }
  }

  QVariantList pieces;
  QVariantList piece;
  QString word;
  const auto endWord = [&] {
    if (!word.isEmpty()) piece.append(QVariantMap{{QStringLiteral("word"), std::exchange(word, {})}});
  };
  QTextBoundaryFinder breaks(QTextBoundaryFinder::Line, text);
  for (qsizetype at = 0; at < text.size(); ++at) {
    if (const auto formula = formulas.find(at); formula != formulas.end()) {
      endWord();
      piece.append(QVariantMap{{QStringLiteral("formula"), formula->second}});
    } else {
      // A blank at the end of a text has no width.
      word += text[at] == u' ' ? QChar(QChar::Nbsp) : text[at];
    }
    breaks.setPosition(at + 1);
    if (!breaks.isAtBoundary()) continue;
    endWord();
    pieces.append(QVariant(std::exchange(piece, {})));
  }
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
