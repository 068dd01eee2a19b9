#include "charts/distribution_function_presentation.h"

#include "output/string_output.h"

namespace tavi {

DistributionFunctionPresentationView::DistributionFunctionPresentationView(double p)
    : values{"0;", TaviStringOutput::numberLatex(p) + ";", "1;"} {}

}  // namespace tavi
