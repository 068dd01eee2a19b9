#pragma once

#include <QString>
#include <QVariantMap>

#include "platform/application_context.h"
#include "platform/preferences.h"
#include "remote/remote_records.h"

namespace tavi {

/// The name of an advertisement's picture for a user of the context's language.
QString adPictureName(const TaviAdData& ad, const ApplicationContext& context);

/// The words of the discount button: those of the template with the discount in place of each "§".
QString adDiscountTitle(const QString& text, const TaviAdData& ad);

/// What every event about an advertisement carries, or about none.
QVariantMap adParameters(const std::optional<TaviAdData>& ad, const ApplicationContext& context,
                         const PreferenceStore& preferences);

}  // namespace tavi
