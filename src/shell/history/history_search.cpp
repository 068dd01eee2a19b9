#include "shell/history/history_search.h"

#include <QDeadlineTimer>
#include <QMap>
#include <QVarLengthArray>
#include <algorithm>

#include "shell/history/typed_text.h"
#include "typeset/math_label.h"

namespace tavi {
namespace {

/// Signs that stand for others, and those that stand for themselves.
constexpr QStringView written = u"−⁰¹²³⁴⁵⁶⁷⁸⁹√π";
constexpr QStringView plain = u"-0123456789√π";

/// Appends what is the same for all ways to write a thing, up to the first sign whose ways are not known
/// here.
qsizetype appendPlain(QStringView text, std::u16string& result) {
  for (const QChar& each : text) {
    const char16_t sign = each.unicode();
    if (u'A' <= sign && sign <= u'Z') {
      result += static_cast<char16_t>(sign + u'a' - u'A');
    } else if (sign < 0x80) {
      if (sign != u'(' && sign != u')') result += sign == u',' ? u'.' : sign;
    } else {
      const qsizetype known = written.indexOf(each);
      if (known < 0) return &each - text.data();
      result += plain[known].unicode();
    }
  }
  return text.size();
}

void appendFolded(const QString& text, std::u16string& result) {
  const std::size_t size = result.size();
  if (appendPlain(text, result) == text.size()) return;
  result.resize(size);
  const QString folded = text.normalized(QString::NormalizationForm_KC).toCaseFolded();
  for (QStringView rest = folded; !rest.isEmpty(); rest = rest.sliced(1)) {
    rest = rest.sliced(appendPlain(rest, result));
    if (rest.isEmpty()) break;
    result += rest.front().unicode();
  }
}

QString folded(const QString& text) {
  std::u16string result;
  appendFolded(text, result);
  return QString::fromStdU16String(result);
}

std::u16string_view asView(QStringView text) {
  return {text.utf16(), static_cast<std::size_t>(text.size())};
}

/// A number of its own in the place of one of several digits; no line has so many that a third digit is
/// needed.
QString placeholder(qsizetype index) {
  return QString::number(40 + index);
}

}  // namespace

QList<SpokenTasks::Piece> SpokenTasks::piecesOf(const QString& line, qsizetype numbers) {
  const QString spoken = folded(typeset::spokenText(line));
  QMap<qsizetype, qsizetype> places;
  for (qsizetype number = 0; number < numbers; ++number) {
    if (spoken.count(placeholder(number)) != 1) return {};
    places[spoken.indexOf(placeholder(number))] = number;
  }
  QList<Piece> pieces;
  qsizetype begin = 0;
  for (const auto& [place, number] : places.asKeyValueRange()) {
    pieces.append({spoken.sliced(begin, place - begin), number});
    begin = place + placeholder(number).size();
  }
  pieces.append({spoken.sliced(begin), -1});
  return pieces;
}

void SpokenTasks::append(const QString& latex, std::u16string& text) {
  constexpr qsizetype longest = 200;
  constexpr qsizetype mostNumbers = 10;
  constexpr qsizetype mostKnown = 2'000;
  QVarLengthArray<QStringView, mostNumbers> numbers;
  line_.resize(0);
  for (const QChar* from = latex.begin(); from != latex.end() && line_.size() < longest;) {
    const QChar* const to = std::find_if_not(from, latex.end(), isDigit);
    if (to - from < 2) {
      line_ += *from++;
    } else {
      line_ += placeholder(numbers.size());
      numbers.append(QStringView(from, to));
      from = to;
    }
  }
  if (line_.size() >= longest || numbers.size() > mostNumbers)
    return appendFolded(typeset::spokenText(latex), text);
  if (known_.size() > mostKnown) known_.clear();
  auto known = known_.find(line_);
  if (known == known_.end()) known = known_.insert(line_, piecesOf(line_, numbers.size()));
  if (known->isEmpty()) return appendFolded(typeset::spokenText(latex), text);
  for (const auto& [words, number] : *known) {
    text += asView(words);
    if (number >= 0) text += asView(numbers[number]);
  }
}

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
    if (next_ == ends_.size()) append(calculations[next_]);
    const QStringView text = QStringView(text_).sliced(startOf(next_), ends_[next_] - startOf(next_));
    const auto isThere = [text](const QString& word) { return text.contains(word); };
    if (isOn() && std::ranges::all_of(words_, isThere)) found_.append(next_);
  }
}

void HistorySearch::remove(qsizetype index) {
  if (index < ends_.size()) {
    const qsizetype length = ends_[index] - startOf(index);
    text_.erase(text_.begin() + startOf(index), text_.begin() + ends_[index]);
    ends_.removeAt(index);
    for (qsizetype each = index; each < ends_.size(); ++each) ends_[each] -= length;
  }
  if (index < next_) --next_;
  found_.removeOne(index);
  for (qsizetype& each : found_)
    if (each > index) --each;
}

void HistorySearch::forget() {
  text_.clear();
  ends_.clear();
  next_ = 0;
  found_.clear();
}

void HistorySearch::append(const Calculation& calculation) {
  appendFolded(typedText(calculation), text_);
  text_ += u'\n';
  spoken_.append(calculation.latexString, text_);
  ends_.append(static_cast<qsizetype>(text_.size()));
}

}  // namespace tavi
