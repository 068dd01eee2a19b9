#include "remote/introduction/onboarding_manager.h"

#include <array>

#include "appearance/appearance.h"
#include "appearance/interface_colors.h"
#include "appearance/interface_fonts.h"
#include "appearance/keypad_palette.h"
#include "platform/localization.h"

namespace tavi {

namespace {

QString words(const char* key) {
  const QString title = u'"' + localized("Tavi Solver") + u'"';
  return localized(key).replace(QStringLiteral("§appname"), title);
}

std::shared_ptr<OnboardViewController> make(const char* title, std::span<const PageDescription> pages,
                                            PreferenceStore& preferences) {
  return std::make_shared<OnboardViewController>(
      localized(title), OnboardingManager::onboardingPageItems(pages),
      OnboardingManager::onboardingAppearance(),
      [&preferences] { preferences.setValue(preferences::isOnboardingFinished, true); });
}

}  // namespace

std::span<const PageDescription> OnboardingManager::mainPages() {
  static constexpr auto pages =
      std::to_array<PageDescription>({{"", "main_onboarding_1", "", "onboardingA"},
                                      {"", "single_onboarding_2", "", "onboardingB"},
                                      {"", "single_onboarding_3", "", "onboardingC"},
                                      {"", "single_onboarding_4", "", "onboardingD"},
                                      {"", "main_onboarding_4", "", "onboardingE"}});
  return pages;
}

std::span<const PageDescription> OnboardingManager::videoPages() {
  static constexpr auto pages =
      std::to_array<PageDescription>({{"", "onboarding_youtube_1", "", "onboardingYoutube1"},
                                      {"", "onboarding_youtube_2", "", "onboardingYoutube2"},
                                      {"", "onboarding_youtube_3", "", "onboardingYoutube3"},
                                      {"", "onboarding_youtube_4", "", "onboardingYoutube4"},
                                      {"", "onboarding_youtube_5", "", "onboardingYoutube5"}});
  return pages;
}

QList<OnboardPage> OnboardingManager::onboardingPageItems(std::span<const PageDescription> pages) {
  QList<OnboardPage> items;
  for (const PageDescription& page : pages) {
    const bool isLast = &page == &pages.back();
    items.append({.title = QString::fromUtf8(page.title),
                  .imageName = QString::fromUtf8(page.imageName),
                  .description = words(page.description),
                  .advanceButtonTitle = localized(isLast ? "letsStart" : "next")});
  }
  return items;
}

OnboardAppearance OnboardingManager::onboardingAppearance() {
  const bool isDark = Appearance::shared().isDark();
  const KeypadPalette palette = KeypadPalette::make();
  const QColor tint = isDark ? palette.brightYellow : palette.darkGold;
  OnboardAppearance appearance{.tintColor = tint,
                               .titleColor = InterfaceColor::label(),
                               .textColor = InterfaceColor::label(),
                               .backgroundColor = InterfaceColor::background(),
                               .titleFont = InterfaceFont::book(28),
                               .textFont = InterfaceFont::book(17),
                               .advanceButtonColor = tint,
                               .advanceButtonFont = InterfaceFont::medium(20),
                               .advanceButtonShadow = {}};
  if (!isDark)
    appearance.advanceButtonShadow = {
        .color = InterfaceColor::shadow(), .opacity = 0.7, .offset = {0, 1}, .radius = 1};
  return appearance;
}

std::shared_ptr<OnboardViewController> OnboardingManager::introduction(PreferenceStore& preferences) {
  return make("introduction", mainPages(), preferences);
}

std::shared_ptr<OnboardViewController> OnboardingManager::videoGuide(PreferenceStore& preferences) {
  auto guide = make("videoGuide", videoPages(), preferences);
  guide->setPresentationStyle(ViewController::PresentationStyle::FormSheet);
  return guide;
}

}  // namespace tavi
