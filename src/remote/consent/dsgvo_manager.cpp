#include "remote/consent/dsgvo_manager.h"

#include <utility>

#include "platform/localization.h"
#include "remote/consent/consent_alert.h"
#include "remote/consent/privacy_text.h"

namespace tavi {

namespace {

void ask(ViewController& over, const char* title, const QString& text, std::vector<AlertAction> actions) {
  const auto present = [&over, title, text, actions = std::move(actions)] {
    auto alert = std::make_shared<ConsentAlert>(localized(title), text, actions, AlertStyle::alert);
    if (over.engine()) alert->setPage(*over.engine(), QStringLiteral("shell/frame/AlertPage.qml"));
    over.present(std::move(alert));
  };
  QMetaObject::invokeMethod(&over, present, Qt::QueuedConnection);
}

AlertAction answer(const char* title, const Preference<bool>& consent, bool isGiven,
                   PreferenceStore& preferences, DsgvoManager::Answer then) {
  return {localized(title), [&consent, isGiven, &preferences, then = std::move(then)] {
            preferences.setValue(consent, isGiven);
            if (then) then();
          }};
}

}  // namespace

void DsgvoManager::showConsent(ViewController& over, PreferenceStore& preferences, Answer accepted) {
  ask(over, "dsgvoTitlePro", privacyText(MeasurementSettings::fromBundle(ResourceBundle::main())),
      {answer("dsgvoAccept", preferences::isDsgvoAccepted, true, preferences, std::move(accepted))});
}

void DsgvoManager::showYoutubeConsent(ViewController& over, PreferenceStore& preferences, Answer accepted,
                                      Answer declined) {
  const auto& consent = preferences::isYoutubeDsgvoAccepted;
  ask(over, "dsgvoYoutubeTitle", localized("dsgvoYoutubeText"),
      {answer("dsgvoAccept", consent, true, preferences, std::move(accepted)),
       answer("dsgvoDecline", consent, false, preferences, std::move(declined))});
}

}  // namespace tavi
