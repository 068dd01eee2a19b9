#pragma once

#include <QObject>
#include <algorithm>

namespace tavi {

/// How the rows of a solution are laid out, on the screen and in every picture of them. Lengths are
/// device-independent pixels.
struct RowMeasures {
  Q_GADGET
  Q_PROPERTY(double pageMargin MEMBER pageMargin CONSTANT)
  Q_PROPERTY(double edge MEMBER edge CONSTANT)
  Q_PROPERTY(double padding MEMBER padding CONSTANT)
  Q_PROPERTY(double gap MEMBER gap CONSTANT)
  Q_PROPERTY(double messageIndent MEMBER messageIndent CONSTANT)
  Q_PROPERTY(double corner MEMBER corner CONSTANT)
  Q_PROPERTY(double hairline MEMBER hairline CONSTANT)
  Q_PROPERTY(double barWidth MEMBER barWidth CONSTANT)
  Q_PROPERTY(int messageSize MEMBER messageSize CONSTANT)

 public:
  double pageMargin = 16;     ///< Around the rows in a picture.
  double edge = 16;           ///< From the card to titles and formulas.
  double padding = 12;        ///< Over the first and under the last line of a row.
  double gap = 8;             ///< Between a title and its formula, and over a formula without a title.
  double messageIndent = 28;  ///< From the card to a message.
  double corner = 12;         ///< Radius where the card begins and ends.
  double hairline = 1;        ///< Over a row with a title.
  double barWidth = 4;        ///< Beside the result.
  int messageSize = 16;
  int titleSize = 14;

  /// The em of the formulas on a page of that width.
  Q_INVOKABLE static double formulaSize(double viewWidth) { return viewWidth >= tabletWidth ? 24 : 20; }

  /// The card of a row of videos in a row of that height and a table of that height. Videos need no more,
  /// however wide the window and so high the row is.
  Q_INVOKABLE double videoCardHeight(double rowHeight, double tableHeight) const {
    return std::min(rowHeight - pageMargin, std::clamp(tableHeight - 2 * pageMargin, 260.0, 440.0));
  }

  /// Pages from this width on are laid out as a tablet's.
  static constexpr double tabletWidth = 840;
};

/// The one set of measures.
inline constexpr RowMeasures rowMeasures;

}  // namespace tavi
