#include "typeset/typeset.h"

#include "typeset/parser.h"

namespace tavi::typeset {

Layout typeset(std::string_view latex, MathFont& font, double size) {
  const Formula formula = parse(latex);
  Layout layout = layOut(formula.list, font, size);
  if (formula.error) layout.error = formula.error;
  return layout;
}

}  // namespace tavi::typeset
