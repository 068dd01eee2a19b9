#include "charts/tick_labels.h"

#include <cmath>
#include <numbers>

#include "number/number_text.h"

namespace tavi {

std::string piTickLabel(double value) {
  const double halfMultiple = std::floor(2 * value / std::numbers::pi + 0.5);
  if (halfMultiple == 0) return "0";
  const bool isWhole = std::fmod(halfMultiple, 2) == 0;
  const double multiple = isWhole ? halfMultiple / 2 : halfMultiple;
  const std::string factor = multiple == 1 ? "" : multiple == -1 ? "-" : decimalText(multiple, 0);
  return factor + (isWhole ? "π" : "π/2");
}

}  // namespace tavi
