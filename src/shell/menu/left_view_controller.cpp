#include "shell/menu/left_view_controller.h"

#include <array>
#include <utility>

#include "number/fatal_stop.h"
#include "platform/analytics.h"
#include "platform/localization.h"
#include "remote/analytics_events.h"
#include "remote/consent/dsgvo_manager.h"
#include "remote/introduction/onboarding_manager.h"
#include "shell/frame/alert_controller.h"
#include "shell/frame/link_opening.h"
#include "shell/frame/navigation_drawer_controller.h"
#include "shell/frame/toolbar_controller.h"
#include "shell/settings/settings_view_controller.h"

namespace tavi {

namespace {

constexpr auto headerKeys = std::to_array<const char*>({nullptr, "Visit us:", "All in one:", "Other apps:"});

constexpr int communityRow = 0;

/// The record that is built in has none.
bool isRatingPageKnown(const AppMetaData& app) {
  return !app.ratingURLPro.isEmpty();
}

QUrl addressOf(const QString& text) {
  return {text, QUrl::StrictMode};
}

std::optional<QString> nameIn(const AppMetaData& app, const QString& language) {
  const auto name = app.appName.constFind(language);
  return name == app.appName.constEnd() ? std::nullopt : std::optional(*name);
}

std::optional<QString> englishName(const AppMetaData& app) {
  return nameIn(app, QStringLiteral("en"));
}

}  // namespace

std::span<const LeftViewController::Row> LeftViewController::mainRows() {
  static constexpr auto rows = std::to_array<Row>(
      {{"Calculate Title", events::tappedMenuCalculate, &LeftViewController::rebuildRoot},
       {"History", events::tappedMenuHistory, &LeftViewController::openHistory},
       {"introduction", events::tappedOnboarding, &LeftViewController::showIntroduction},
       {"privacyPolicy", events::tappedPrivacyPolicy, &LeftViewController::showPrivacyPolicy}});
  return rows;
}

std::span<const LeftViewController::Row> LeftViewController::contactRows() {
  static constexpr auto rows =
      std::to_array<Row>({{"Discord", events::tappedDiscord, &LeftViewController::openCommunity},
                          {"Rate this App", events::tappedRateApp, &LeftViewController::openRatingPage}});
  return rows;
}

LeftViewController::LeftViewController(Screens screens, AppServices services)
    : screens_(std::move(screens)),
      services_(std::move(services)),
      mainSectionRows_(titles(mainRows())),
      contactSectionRows_(titles(contactRows())),
      multiApps_(services_.remoteConfigManager.multiApps()),
      singleApps_(services_.remoteConfigManager.singleApps()) {}

void LeftViewController::viewDidLoad() {
  reloadTable();
}

void LeftViewController::viewWillAppear() {
  observer_ = std::make_unique<QObject>();
  for (const QLatin1StringView name :
       {NotificationCenter::applicationDidBecomeActive, RemoteConfigManager::didLoadMenu})
    services_.notifications.observe(name, observer_.get(), [this] { didUpdateMenu(); });
  // What leads nowhere may lead somewhere by now.
  reloadTable();
}

void LeftViewController::viewWillDisappear() {
  observer_.reset();
}

void LeftViewController::didUpdateMenu() {
  singleApps_ = services_.remoteConfigManager.singleApps();
  multiApps_ = services_.remoteConfigManager.multiApps();
  reloadTable();
}

int LeftViewController::numberOfSections() const {
  return multiApps_.isEmpty() || singleApps_.isEmpty() ? 2 : 4;
}

QStringList LeftViewController::rowTitles(int section) const {
  switch (section) {
    case mainSection:
      return mainSectionRows_;
    case contactSection:
      return contactSectionRows_;
    case multiAppsSection:
      return names(multiApps_);
    default:
      return names(singleApps_);
  }
}

QString LeftViewController::titleForHeader(int section) {
  const char* key = elementAt(headerKeys, static_cast<std::size_t>(section));
  return key ? u' ' + localized(key) : QString();
}

void LeftViewController::reloadTable() {
  QList<MenuTable::Row> rows;
  for (int section = 0; section < numberOfSections(); ++section) {
    int rowInSection = 0;
    for (const QString& title : rowTitles(section)) {
      if (isShown(section, rowInSection)) rows.append({section, rowInSection, title});
      ++rowInSection;
    }
  }
  table_.reload(std::move(rows));
}

bool LeftViewController::isShown(int section, int row) const {
  if (section != contactSection) return true;
  if (row == communityRow) return services_.settings.communityLink.isValid();
  const std::optional<AppMetaData> app = services_.remoteConfigManager.peekCurrentApp();
  return app && isRatingPageKnown(*app);
}

QStringList LeftViewController::titles(std::span<const Row> rows) {
  QStringList titles;
  for (const Row& row : rows) titles.append(localized(row.key));
  return titles;
}

QStringList LeftViewController::names(const QList<AppMetaData>& apps) const {
  const QString language = services_.context().languageCode.value_or(QString());
  QStringList names;
  for (const AppMetaData& app : apps)
    names.append(nameIn(app, language).value_or(englishName(app).value_or(QString())));
  return names;
}

const LeftViewController::Row& LeftViewController::tapped(std::span<const Row> rows, int row) {
  const Row& tapped = elementAt(rows, static_cast<std::size_t>(row));
  Analytics::logEvent(tapped.event);
  return tapped;
}

void LeftViewController::didSelectRow(int section, int row) {
  switch (section) {
    case mainSection:
      return (this->*tapped(mainRows(), row).action)();
    case contactSection:
      return runWhenOnline([this, action = tapped(contactRows(), row).action] { (this->*action)(); }, {},
                           services_.onlineTest);
    case multiAppsSection:
      return openApp(multiApps_, row);
    default:
      return openApp(singleApps_, row);
  }
}

void LeftViewController::rebuildRoot() {
  auto* drawer = ancestor<AppNavigationDrawerController>();
  if (drawer) drawer->transition(screens_.makeRoot(), [drawer] { drawer->closeLeftView(); });
}

void LeftViewController::openHistory() {
  auto* drawer = ancestor<AppNavigationDrawerController>();
  auto* toolbar = drawer ? qobject_cast<AppToolbarController*>(drawer->rootController()) : nullptr;
  if (!toolbar) fatalStop("the history has no drawer with a toolbar to open in");
  toolbar->transition(screens_.makeHistory(), [drawer] { drawer->closeLeftView(); });
}

void LeftViewController::showIntroduction() {
  const auto introduction = OnboardingManager::introduction(services_.userDefaults);
  introduction->setPresentationStyle(PresentationStyle::FormSheet);
  introduction->presentFrom(*this, true);
}

void LeftViewController::showPrivacyPolicy() {
  DsgvoManager::showConsent(*this, services_.userDefaults);
}

void LeftViewController::showSettings() {
  SettingsViewController::show(*this, services_);
}

void LeftViewController::openCommunity() {
  const QUrl& link = services_.settings.communityLink;
  if (link.isValid()) openOrSay(services_.links, link);
}

void LeftViewController::openRatingPage() {
  const std::optional<AppMetaData>& app = services_.remoteConfigManager.currentApp();
  if (!app) return presentAlert(localized("noInternet"), std::nullopt, {}, AlertStyle::alert);
  if (!isRatingPageKnown(*app) || !openIfPossible(app->ratingURLPro)) return;
  const QString name = required(englishName(*app), "the application has no English name");
  Analytics::logEvent(events::tappedRatingInMenu, QVariantMap{{QStringLiteral("taviApp"), name}});
}

void LeftViewController::openApp(std::span<const AppMetaData> apps, int row) const {
  const AppMetaData& app = elementAt(apps, static_cast<std::size_t>(row));
  const bool isInstalled = openIfPossible(app.appURLPro) || openIfPossible(app.appURL);
  const QUrl store = addressOf(app.storeURLPro);
  if (!isInstalled && store.isValid()) openOrSay(services_.links, store);
  Analytics::logEvent(events::tappedAppLink,
                      QVariantMap{{QStringLiteral("has_app"), isInstalled},
                                  {QStringLiteral("taviApp"), englishName(app).value_or(QString())}});
}

bool LeftViewController::openIfPossible(const QString& text) const {
  const QUrl address = addressOf(text);
  if (!address.isValid()) fatalStop("a record's link is no address");
  if (!services_.links.canOpen(address)) return false;
  openOrSay(services_.links, address);
  return true;
}

}  // namespace tavi
