// What the calculate button sets going: the one bridge from the screen to the engine.
#include <algorithm>
#include <variant>

#include "appearance/interface_colors.h"
#include "input/typed_task.h"
#include "input/typing_hint.h"
#include "number/fatal_stop.h"
#include "output/tavi_error.h"
#include "platform/analytics.h"
#include "platform/localization.h"
#include "remote/analytics_events.h"
#include "shell/calculate_view_controller.h"
#include "shell/frame/is_calculating.h"
#include "shell/frame/page_tab_bar_controller.h"
#include "solution/share/step_records.h"
#include "solution/solution_view_controller.h"
#include "solver/rehearsal.h"

namespace tavi {

namespace {

QString qString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

bool CalculateViewController::performCalculation() {
  isCalculating = true;
  errorManager_.withdrawMessage();
  wipeMarks();
  std::vector<std::string> texts;
  for (const std::string& identifier : allIds) texts.push_back(visibleText(identifier));
  const std::string& firstText = elementAt(texts, 0);
  const std::string& secondText = elementAt(texts, 1);
  const std::string& firstId = elementAt(allIds, 0);
  const std::string& secondId = elementAt(allIds, 1);
  const Task task{modeOf(mode()), firstText, secondText, firstId, secondId};
  outputHelper_.reset();
  const Rehearsal rehearsal = rehearse(task, outputHelper_, basicOperationHelper_);
  if (const std::optional<Rejection> rejection = rejectionOf(task, rehearsal))
    return rejectCalculation(rejection->key, rejection->fieldIds);

  const auto& outcome = std::get<CalculationOutcome>(rehearsal);
  recordCalculation(texts, required(outcome.latexString, "a solution without its task"));
  SolutionViewController::showSolution(ancestor<AppPageTabBarController>(), outputHelper_.solutionSteps,
                                       ChartRows{}, QStringLiteral("qrx_info"), std::nullopt, 100.0,
                                       exact::AccountQuestion{*task.mode, firstText, secondText, {}});
  const QVariantList records = stepRecords(outputHelper_.solutionSteps);
  Analytics::logEvent(events::taviCalculate, QVariantMap{{"solutionSteps", records},
                                                         {"solutionStepsCount", qlonglong{records.size()}}});
  isCalculating = false;
  basicOperationHelper_.withFraction = false;
  outputHelper_.reset();
  return true;
}

bool CalculateViewController::rejectCalculation(std::string_view key,
                                                const std::vector<std::string>& fieldIds) {
  QList<DTTextField*> fieldsAtFault;
  for (DTTextField* field : allFields) {
    if (std::ranges::find(fieldIds, field->accessibilityIdentifier.toStdString()) != fieldIds.end()) {
      fieldsAtFault.append(field);
    }
  }
  errorManager_.reportInputError(qString(key), fieldsAtFault);
  // That a text is no number says too little of what is wrong with it.
  if (key == TaviError::inputParameterError) {
    const TypedTask typed =
        typedTask(modeOf(mode()), visibleText(elementAt(allIds, 0)), visibleText(elementAt(allIds, 1)));
    const QString words = localized(std::string(faultHint(modeOf(mode()), typed)).c_str());
    for (DTTextField* field : fieldsAtFault) field->setFault(DTTextField::Fault::wrong, words);
  }
  isCalculating = false;
  goToFault(fieldsAtFault);
  emit taskChanged();
  return false;
}

std::string CalculateViewController::visibleText(std::string_view identifier) const {
  const auto field = std::ranges::find_if(allFields, [name = qString(identifier)](const DTTextField* each) {
    return each->accessibilityIdentifier == name && !each->isHidden();
  });
  return field == allFields.end() ? "" : (*field)->text().toStdString();
}

int CalculateViewController::mode() const {
  const QVariant index = segmentedControl ? segmentedControl->property("selectedSegmentIndex") : QVariant();
  if (!index.isValid()) fatalStop("a page without its mode switch");
  return index.toInt();
}

void CalculateViewController::recordCalculation(const std::vector<std::string>& texts,
                                                const std::string& latex) {
  Calculation calculation;
  for (std::size_t i = 0; i < allIds.size(); ++i) {
    calculation.inputParameters[qString(allIds[i])] = qString(elementAt(texts, i));
  }
  calculation.setupParameter = {{modeKey, qlonglong{mode()}}, {"appKey", "QRX"}};
  calculation.latexString = qString(latex);
  calculation.calculatedAt = QDateTime::currentDateTimeUtc();
  store_.addCalculation(calculation);
}

}  // namespace tavi
