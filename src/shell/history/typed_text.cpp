#include "shell/history/typed_text.h"

#include <QStringBuilder>
#include <algorithm>

#include "input/mode.h"
#include "shell/calculate_view_controller.h"

namespace tavi {

bool isDigit(QChar each) {
  return u'0' <= each && each <= u'9';
}

namespace {

/// In brackets where a sign of calculation or a factor would part it from the power.
QString bracketed(const QString& number) {
  const auto isOfNumber = [](QChar each) { return isDigit(each) || each == u'.'; };
  return number.size() == 1 || std::ranges::all_of(number, isOfNumber) ? number : u'(' % number % u')';
}

QString raised(const QString& digits) {
  constexpr QStringView signs = u"⁰¹²³⁴⁵⁶⁷⁸⁹";
  QString result = digits;
  for (QChar& digit : result) digit = signs[digit.unicode() - u'0'];
  return result;
}

}  // namespace

QString typedText(const Calculation& calculation) {
  const QString first = calculation.inputParameters.value(QStringLiteral("aTextField"));
  const QString second = calculation.inputParameters.value(QStringLiteral("xTextField"));
  if (first.isEmpty() && second.isEmpty()) return {};
  const int mode = calculation.setupParameter.value(CalculateViewController::modeKey).toInt();
  if (modeOf(mode) != Mode::root) return bracketed(second) % u'^' % bracketed(first);
  const QString sign =
      std::ranges::all_of(first, isDigit) ? raised(first) + u'√' : QStringLiteral("√[") + first + u']';
  return sign + bracketed(second);
}

}  // namespace tavi
