#include "shell/history/history_search.h"

#include <QDeadlineTimer>
#include <algorithm>

#include "shell/history/typed_text.h"
#include "typeset/math_label.h"
#include "typeset/parser.h"

namespace tavi {
namespace {

/// The same for all ways to write a thing.
QString folded(const QString& text) {
  QString result = text.normalized(QString::NormalizationForm_KC).toCaseFolded();
  result.replace(u'−', u'-').replace(u',', u'.');
  return result.remove(u'(').remove(u')');
}

}  // namespace

void HistorySearch::begin(const QString& query) {
  words_ = folded(query).split(u' ', Qt::SkipEmptyParts);
  next_ = 0;
  found_.clear();
}

void HistorySearch::goOn(std::chrono::milliseconds time) {
  constexpr qsizetype stride = 64;
  const QDeadlineTimer deadline(time);
  const QList<Calculation>& calculations = store_.calculations();
  for (; next_ < calculations.size(); ++next_) {
    if (next_ % stride == stride - 1 && deadline.hasExpired()) return;
    if (next_ == texts_.size()) texts_.append(wordsOf(calculations[next_]));
    const auto isThere = [&text = texts_[next_]](const QString& word) { return text.contains(word); };
    if (isOn() && std::ranges::all_of(words_, isThere)) found_.append(next_);
  }
}

void HistorySearch::remove(qsizetype index) {
  if (index < texts_.size()) texts_.removeAt(index);
  if (index < next_) --next_;
  found_.removeOne(index);
  for (qsizetype& each : found_)
    if (each > index) --each;
}

void HistorySearch::forget() {
  texts_.clear();
  next_ = 0;
  found_.clear();
}

QString HistorySearch::wordsOf(const Calculation& calculation) {
  const auto phrase = [this](const typeset::Phrase& each) -> std::string {
    auto [known, isNew] = phrases_.try_emplace(each.key);
    if (isNew) known->second = typeset::translatedPhrase(each);
    return known->second;
  };
  QStringList ways = calculation.inputParameters.values();
  ways += typedText(calculation);
  const auto line = typeset::parse(calculation.latexString.toStdString());
  ways += QString::fromStdString(typeset::spokenMath(line.list, phrase));
  return folded(ways.join(u'\n'));
}

}  // namespace tavi
