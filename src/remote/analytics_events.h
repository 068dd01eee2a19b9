#pragma once

#include <QLatin1StringView>
#include <QStringView>
#include <algorithm>
#include <array>

/// Every event the application reports, by the name it is reported under. A comment gives the parameters; an
/// event without one passes none at all. "taviApp" is the English name of an application, "sendingApp" the
/// identifier of this one or "unknown".
namespace tavi::events {

// Menu button and side menu. The button's event comes before the test whether a calculation is running.
inline constexpr QLatin1StringView tappedMenuButton{"tapped_menu_button"};
inline constexpr QLatin1StringView tappedMenuCalculate{"tapped_menu_calculate"};
inline constexpr QLatin1StringView tappedMenuHistory{"tapped_menu_history"};
inline constexpr QLatin1StringView tappedOnboarding{"tapped_onboarding"};
inline constexpr QLatin1StringView tappedPrivacyPolicy{"tapped_privacy_policy"};
inline constexpr QLatin1StringView tappedDiscord{"tapped_discord"};   // before the online test
inline constexpr QLatin1StringView tappedRateApp{"tapped_rate_app"};  // before the online test
// "taviApp": text. After the page was opened.
inline constexpr QLatin1StringView tappedRatingInMenu{"Tapped Rating in Menu"};
// "has_app": boolean, "taviApp": text, empty without an English name. After the link was opened.
inline constexpr QLatin1StringView tappedAppLink{"Tapped App Link"};

// Calculate screen.
inline constexpr QLatin1StringView tappedClear{"tapped_clear"};
// "solutionSteps": list of step records, "solutionStepsCount": integer. After the hand-over to the solution
// page.
inline constexpr QLatin1StringView taviCalculate{"tavi_calculate"};
// "error_case": text, the key of the input error.
inline constexpr QLatin1StringView taviGotError{"tavi_got_error"};

// History.
// "calc_count": integer, records before the clearing.
inline constexpr QLatin1StringView tappedHistoryClear{"tapped_history_clear"};
inline constexpr QLatin1StringView tappedHistoryDeleteSingleCalc{"tapped_history_delete_single_calc"};
// "calc_parameters": map of text to text, "latex_string": text. Between the store's update and the change of
// screen.
inline constexpr QLatin1StringView tappedHistoryItem{"tapped_history_item"};

// Solution screen.
// "solutionSteps": list of step records, "solutionStepsCount": integer.
inline constexpr QLatin1StringView taviTappedShare{"tavi_tapped_share"};

// House advertisements, each with "sendingApp": text, "taviAdId": text, the image name or "unknown", and
// "countTaviAdsPresented": integer, in the first event after its increment.
inline constexpr QLatin1StringView taviAdsPresented{"taviAds_presented"};
inline constexpr QLatin1StringView taviAdsClosedAds{"taviAds_closedAds"};
inline constexpr QLatin1StringView taviAdsOpenedAdProduct{"taviAds_openedAdProduct"};

// Rating prompt.
// "app": text, a fixed code of two letters, "rating": floating point, the stars given.
inline constexpr QLatin1StringView tappedRatedApp{"tapped_rated_app"};
inline constexpr QLatin1StringView tappedRatedAppCancel{"tapped_rated_app_cancel"};

/// An event and what it carries.
struct EventKind {
  QLatin1StringView name;
  std::array<QLatin1StringView, 3> parameters = {};  ///< By name; those that are empty are none.
};

/// All of them. What measurement keeps and the privacy text tells is what stands here.
inline constexpr auto vocabulary = std::to_array<EventKind>(
    {{tappedMenuButton},
     {tappedMenuCalculate},
     {tappedMenuHistory},
     {tappedOnboarding},
     {tappedPrivacyPolicy},
     {tappedDiscord},
     {tappedRateApp},
     {tappedRatingInMenu, {QLatin1StringView{"taviApp"}}},
     {tappedAppLink, {QLatin1StringView{"has_app"}, QLatin1StringView{"taviApp"}}},
     {tappedClear},
     {taviCalculate, {QLatin1StringView{"solutionSteps"}, QLatin1StringView{"solutionStepsCount"}}},
     {taviGotError, {QLatin1StringView{"error_case"}}},
     {tappedHistoryClear, {QLatin1StringView{"calc_count"}}},
     {tappedHistoryDeleteSingleCalc},
     {tappedHistoryItem, {QLatin1StringView{"calc_parameters"}, QLatin1StringView{"latex_string"}}},
     {taviTappedShare, {QLatin1StringView{"solutionSteps"}, QLatin1StringView{"solutionStepsCount"}}},
     {taviAdsPresented,
      {QLatin1StringView{"sendingApp"}, QLatin1StringView{"taviAdId"},
       QLatin1StringView{"countTaviAdsPresented"}}},
     {taviAdsClosedAds,
      {QLatin1StringView{"sendingApp"}, QLatin1StringView{"taviAdId"},
       QLatin1StringView{"countTaviAdsPresented"}}},
     {taviAdsOpenedAdProduct,
      {QLatin1StringView{"sendingApp"}, QLatin1StringView{"taviAdId"},
       QLatin1StringView{"countTaviAdsPresented"}}},
     {tappedRatedApp, {QLatin1StringView{"app"}, QLatin1StringView{"rating"}}},
     {tappedRatedAppCancel}});

/// The kind of that name; null where there is none.
inline const EventKind* kindOf(QStringView name) {
  const auto* const found =
      std::ranges::find_if(vocabulary, [name](const EventKind& kind) { return kind.name == name; });
  return found == vocabulary.end() ? nullptr : &*found;
}

// Parameters in which stands what the user typed, or its working.
inline constexpr std::array<QLatin1StringView, 3> typedParameters{QLatin1StringView{"solutionSteps"},
                                                                  QLatin1StringView{"calc_parameters"},
                                                                  QLatin1StringView{"latex_string"}};

}  // namespace tavi::events
