#pragma once

#include "platform/preference_store.h"

/// Everything the application keeps from one start to the next: the key, the kind and what an absent value
/// reads as. The keys are a contract with what users have stored, odd ones included. No other file writes one
/// as a literal.
namespace tavi::preferences {

// History.
inline const Preference<QVariantList> calculations{QLatin1StringView("Calculations")};
inline const Preference<QVariantMap> currentCalculation{
    QLatin1StringView("CurrentCalculation")};  ///< Only read.
inline const Preference<QVariantMap> currentSelectedCalculation{
    QLatin1StringView("CurrentSelectedCalculation")};
inline const Preference<QDateTime> firstAppStartAt{QLatin1StringView("firstAppStartAt")};

// Settings: "light" or "dark", otherwise as the system has it; a language that there is, otherwise the
// system's.
inline const Preference<QString> appearance{QLatin1StringView("appearance")};
inline const Preference<QString> language{QLatin1StringView("language")};

// The place of the window, and the size of formulas in per cent of the usual one; 0 until it is chosen.
inline const Preference<QVariantMap> windowPlace{QLatin1StringView("windowPlace")};
inline constexpr Preference<qlonglong> formulaScale{QLatin1StringView("formulaScale"), 0};

// Introduction and consent.
inline constexpr Preference<bool> isOnboardingFinished{QLatin1StringView("isOnboardingFinished"), false};
inline constexpr Preference<bool> isDsgvoAccepted{QLatin1StringView("isDsgvoAccepted"), false};
inline constexpr Preference<bool> isYoutubeDsgvoAccepted{QLatin1StringView("isYoutubeDsgvoAccepted"), false};
inline const Preference<QString> acceptedMeasurement{
    QLatin1StringView("acceptedMeasurement")};  ///< The terms that the user agreed to; empty for none.

// Rating and advertisements: visits left until the prompt, whether it is over for good, advertisements shown.
inline constexpr Preference<qlonglong> counterForRating{QLatin1StringView("counterForRating"), 5};
inline constexpr Preference<bool> isRatingAlreadyDone{QLatin1StringView("isRatingAlreadyDone"), false};
inline constexpr Preference<qlonglong> countTaviAdsPresented{QLatin1StringView("countTaviAdsPresented"), 0};

// Remote values, in a file of their own: the whole state is one value, so that a set of texts and the tag
// that names it can never part.
inline const Preference<QVariantMap> remoteConfig{QLatin1StringView("remoteConfig")};

}  // namespace tavi::preferences
