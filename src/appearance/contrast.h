#pragma once

#include <QColor>

namespace tavi {

/// The contrast of two opaque colours as WCAG 2 defines it, from 1 (the same) to 21 (black and white).
double contrastRatio(const QColor& one, const QColor& other);

/// The text's colour if it can be read on the ground (4.5 to 1), else its nearest mixture with black, or
/// where black is too weak with white, that can.
QColor legible(const QColor& text, const QColor& ground);

}  // namespace tavi
