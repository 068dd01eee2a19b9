#pragma once

#include <QString>

#include "platform/picture_file.h"

namespace tavi {

/// Whether the desktop has a dialog of its own to choose a file with. Qt's own is no stand-in: it follows
/// neither the style nor the language of the application.
bool hasFileDialog();

/// What to tell of a file that could not be written; empty for one that is.
QString failureWords(WriteResult result);

}  // namespace tavi
