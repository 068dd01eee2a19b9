#include "input/error_manager.h"

#include <QDebug>
#include <algorithm>
#include <array>

#include "appearance/interface_colors.h"
#include "output/localized_string.h"
#include "output/tavi_error.h"
#include "platform/analytics.h"
#include "platform/localization.h"
#include "remote/analytics_events.h"

namespace tavi {

namespace {

QString text(std::string_view latin) {
  return QString::fromLatin1(latin.data(), static_cast<qsizetype>(latin.size()));
}

// The keys that carry numbers, and how many of them. Their words have a place %0, %1 for each.
struct NumberedKey {
  std::string_view key;
  qsizetype numbers;
};
constexpr std::array numberedKeys{
    NumberedKey{TaviError::mustBeBiggerThanXAndLessThanY, 2},
    NumberedKey{TaviError::mustBeGreatherThanX, 1},
    NumberedKey{TaviError::mustBeLessThanX, 1},
};

}  // namespace

ErrorManager& ErrorManager::shared() {
  static ErrorManager manager;
  return manager;
}

ErrorManager::ErrorManager(MessagePresenter presenter) : presenter_(std::move(presenter)) {}

void ErrorManager::refreshFields() {
  if (requiredAmountOfFields < 1) return;
  int filled = 0;
  QList<DTTextField*> empty;
  for (const auto& field : allFields) {
    if (!field || !field->isInVisibleHolder()) continue;
    field->setEnabled(true);
    field->setBackgroundColor(InterfaceColor::fieldBackground());
    if (field->text().isEmpty()) {
      empty.append(field);
    } else {
      ++filled;
    }
  }
  if (filled < requiredAmountOfFields) return;
  for (DTTextField* field : empty) {
    field->setEnabled(false);
    field->setBackgroundColor(InterfaceColor::fieldFill());
  }
}

void ErrorManager::reportInputError(const QString& key, const QList<DTTextField*>& fields) {
  Analytics::logEvent(events::taviGotError, QVariantMap{{"error_case", key}});
  const bool isMissing = key == text(TaviError::notEnoughInputValues);
  qInfo().noquote() << (isMissing ? QString("INPUT: NOT ENOUGH INPUT VALUES") : "INPUT ERROR: " + key);
  for (DTTextField* field : fields) {
    field->setFault(isMissing ? DTTextField::Fault::missing : DTTextField::Fault::wrong,
                    wordsOf(key).value_or(QString()));
  }
  showErrorMessage(key);
}

void ErrorManager::showErrorMessage(const QString& key) const {
  const std::optional<QString> words = wordsOf(key);
  if (!words) return;
  if (key.section(u'§', 0, 0, QString::SectionSkipEmpty) == text(TaviError::oppositionError))
    presenter_.presentAlert(QString::fromStdString(LocalizedString::error.text()), *words);
  else
    presenter_.showToast(*words);
}

std::optional<QString> ErrorManager::wordsOf(const QString& key) {
  const QStringList pieces = key.split(u'§', Qt::SkipEmptyParts);
  if (pieces.isEmpty()) return std::nullopt;
  QString words = localized(qUtf8Printable(pieces.front()));
  const auto* const numbered = std::ranges::find_if(
      numberedKeys, [&](const NumberedKey& row) { return text(row.key) == pieces.front(); });
  if (numbered == numberedKeys.end()) return words;
  if (pieces.size() != 1 + numbered->numbers) return std::nullopt;
  for (qsizetype i = 0; i < numbered->numbers; ++i) words.replace(u'%' + QString::number(i), pieces[i + 1]);
  return words;
}

}  // namespace tavi
