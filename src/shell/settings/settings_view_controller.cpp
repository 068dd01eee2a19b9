#include "shell/settings/settings_view_controller.h"

#include <algorithm>
#include <array>

#include "appearance/appearance.h"
#include "number/fatal_stop.h"
#include "platform/localization.h"
#include "platform/preferences.h"
#include "remote/consent/privacy_text.h"

namespace tavi {

namespace {

/// As they are stored; the system's is whatever is none of the others.
constexpr auto appearanceNames = std::to_array<QLatin1StringView>(
    {QLatin1StringView(""), QLatin1StringView("light"), QLatin1StringView("dark")});

int storedAppearance(const PreferenceStore& preferences) {
  const auto* name = std::ranges::find(appearanceNames, preferences.value(preferences::appearance));
  return name == appearanceNames.end() ? SettingsViewController::asSystem
                                       : static_cast<int>(name - appearanceNames.begin());
}

}  // namespace

void applyStoredAppearance(const PreferenceStore& preferences) {
  const int choice = storedAppearance(preferences);
  Appearance::shared().force(choice == SettingsViewController::asSystem
                                 ? std::nullopt
                                 : std::optional(choice == SettingsViewController::dark));
}

void SettingsViewController::show(ViewController& over, const AppServices& services) {
  auto settings = std::make_shared<SettingsViewController>(services);
  if (over.engine()) settings->setPage(*over.engine(), QStringLiteral("shell/settings/SettingsPage.qml"));
  settings->setPresentationStyle(PresentationStyle::PageSheet);
  over.present(std::move(settings));
}

QString SettingsViewController::title() const {
  return localized("settings");
}

int SettingsViewController::appearance() const {
  return storedAppearance(services_.userDefaults);
}

QVariantList SettingsViewController::languages() {
  const auto choice = [](const QString& code, const QString& name) {
    return QVariantMap{{QStringLiteral("code"), code}, {QStringLiteral("name"), name}};
  };
  QVariantList languages{choice({}, localized("asSystem"))};
  for (const QString& code : translatedLanguages()) languages.append(choice(code, languageName(code)));
  return languages;
}

QString SettingsViewController::language() const {
  const QString code = services_.userDefaults.value(preferences::language);
  return translatedLanguages().contains(code) ? code : QString();
}

QString SettingsViewController::chosenLanguageName() const {
  return language().isEmpty() ? localized("asSystem") : languageName(language());
}

bool SettingsViewController::isMeasuring() const {
  return canMeasure() &&
         services_.userDefaults.value(preferences::acceptedMeasurement) == services_.measurement->terms();
}

QString SettingsViewController::sentText() {
  return measurementText(MeasurementSettings::fromBundle(ResourceBundle::main()));
}

void SettingsViewController::chooseAppearance(int choice) {
  services_.userDefaults.setValue(preferences::appearance,
                                  QString(elementAt(appearanceNames, static_cast<std::size_t>(choice))));
  applyStoredAppearance(services_.userDefaults);
  emit changed();
}

void SettingsViewController::scaleFormulas(int percent) {
  FormulaScale::shared().choose(services_.userDefaults, percent);
}

void SettingsViewController::chooseLanguage(const QString& code) {
  services_.userDefaults.setValue(preferences::language, code);
  emit changed();
}

// A consent that could not be stored is none; a withdrawal holds even so.
void SettingsViewController::setMeasuring(bool isAccepted) {
  if (!canMeasure()) return;
  const bool isStored = services_.userDefaults.setValue(
      preferences::acceptedMeasurement, isAccepted ? services_.measurement->terms() : QString());
  services_.measurement->setConsent(isAccepted && isStored);
  emit changed();
}

}  // namespace tavi
