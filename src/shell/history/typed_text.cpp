#include "shell/history/typed_text.h"

#include <algorithm>

#include "input/mode.h"
#include "shell/calculate_view_controller.h"

namespace tavi {
namespace {

bool isDigits(const QString& text) {
  return std::ranges::all_of(text, [](QChar each) { return u'0' <= each && each <= u'9'; });
}

/// In brackets where a sign of calculation or a factor would part it from the power.
QString bracketed(const QString& number) {
  const bool isWhole = number.size() == 1 || isDigits(QString(number).remove(u'.'));
  return isWhole ? number : u'(' + number + u')';
}

QString raised(const QString& digits) {
  constexpr QStringView signs = u"⁰¹²³⁴⁵⁶⁷⁸⁹";
  QString result;
  for (const QChar digit : digits) result += signs[digit.unicode() - u'0'];
  return result;
}

}  // namespace

QString typedText(const Calculation& calculation) {
  const QString first = calculation.inputParameters.value(QStringLiteral("aTextField"));
  const QString second = calculation.inputParameters.value(QStringLiteral("xTextField"));
  if (first.isEmpty() && second.isEmpty()) return {};
  const int mode = calculation.setupParameter.value(CalculateViewController::modeKey).toInt();
  if (modeOf(mode) != Mode::root) return bracketed(second) + u'^' + bracketed(first);
  const QString sign = isDigits(first) ? raised(first) + u'√' : QStringLiteral("√[") + first + u']';
  return sign + bracketed(second);
}

}  // namespace tavi
