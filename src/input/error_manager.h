#pragma once

#include <QList>
#include <QPointer>
#include <QString>
#include <optional>
#include <utility>

#include "appearance/dt_text_field.h"
#include "platform/message_presenter.h"

namespace tavi {

/// Between the keys of what is wrong with an input and the user: logs the key, marks the fields at fault and
/// shows the words. Main thread only.
class ErrorManager {
 public:
  using Fields = QList<QPointer<DTTextField>>;  ///< A field that is gone counts as none.

  /// Says nothing until it is given a presenter.
  static ErrorManager& shared();

  explicit ErrorManager(MessagePresenter presenter = {});
  void setPresenter(MessagePresenter presenter) { presenter_ = std::move(presenter); }

  /// Switches the empty fields off once as many are filled as the task needs, and on again when that ends.
  /// Fields of a hidden holder neither count nor change.
  void refreshFields();

  /// Logs the key, then marks the fields (orange for a missing value, red for a wrong one) with the words,
  /// then shows the words.
  void reportInputError(const QString& key, const QList<DTTextField*>& fields);

  /// Shows the words of a key, which may carry numbers behind it: mustBeLessThanX§5. A key with the wrong
  /// count of numbers shows nothing.
  void showErrorMessage(const QString& key) const;

  /// The words of such a key; absent for one with the wrong count of numbers.
  static std::optional<QString> wordsOf(const QString& key);

  /// Takes the words away again that still stand over the screen: the user goes on.
  void withdrawMessage() const { presenter_.hideToast(); }

  Fields allFields;                ///< All text fields of the screen.
  int requiredAmountOfFields = 0;  ///< How many fields the task needs; 0 leaves all fields alone.

 private:
  MessagePresenter presenter_;
};

}  // namespace tavi
