#pragma once

#include <QList>
#include <QQmlListProperty>
#include <QString>
#include <QStringList>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "appearance/dt_text_field.h"
#include "input/error_manager.h"
#include "number/math_operation.h"
#include "output/string_output.h"
#include "platform/notification_center.h"
#include "shell/calc_manager.h"
#include "shell/frame/toolbar.h"
#include "shell/frame/view_controller.h"

namespace tavi {

/// The input page: two fields, a mode switch and a keypad of its own. It collects texts, keeps the fields of
/// the two modes equal and runs the calculation, whose steps go to the solution page.
///
/// In mode 0 the field "xTextField" is the base and "aTextField" the exponent, in mode 1 they are the
/// radicand and the root index. Each identifier has one field in the view of each mode; these twins hold the
/// same text.
class CalculateViewController : public tavi::AdHandlingViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the application")

  // What the page puts in before it is shown.
  Q_PROPERTY(QQuickItem* segmentedControl MEMBER segmentedControl)
  Q_PROPERTY(QQuickItem* modeAView MEMBER modeAView)
  Q_PROPERTY(QQuickItem* modeBView MEMBER modeBView)
  Q_PROPERTY(QQmlListProperty<tavi::DTTextField> aTextField READ aTextFieldOutlet)
  Q_PROPERTY(QQmlListProperty<tavi::DTTextField> xTextField READ xTextFieldOutlet)

  // What the page shows.
  Q_PROPERTY(QString fillInText READ fillInText NOTIFY loaded)
  Q_PROPERTY(QString deleteIcon READ deleteIcon NOTIFY loaded)
  Q_PROPERTY(QString calculateIcon READ calculateIcon NOTIFY loaded)
  Q_PROPERTY(double bottomBannerInset READ bottomBannerInset NOTIFY bottomBannerInsetChanged)
  Q_PROPERTY(bool isMinusKeyEnabled READ isMinusKeyEnabled NOTIFY caretChanged)

 public:
  explicit CalculateViewController(CalcManager& store = CalcManager::shared(),
                                   NotificationCenter& notifications = NotificationCenter::shared(),
                                   ErrorManager& errorManager = ErrorManager::shared(),
                                   TaviStringOutput& outputHelper = TaviStringOutput::shared(),
                                   TaviMathOperation& basicOperationHelper = TaviMathOperation::shared());

  /// Under which a record's set-up holds the mode.
  static constexpr QLatin1StringView modeKey{"inputCalculationSelection"};

  // What the views of the page call.
  Q_INVOKABLE void segmentedControlValueChanged(int index);
  Q_INVOKABLE void tappedKeypadButton(const QString& title);
  Q_INVOKABLE void tappedDeleteButton();
  Q_INVOKABLE void tappedCalculateButton();
  Q_INVOKABLE void tappedManualButton();

  /// A key of a hardware keyboard does what the keypad's key does; false for a key that means nothing here.
  Q_INVOKABLE bool pressedHardwareKey(int key, int modifiers, const QString& text);

  /// Shows the fields of mode 0 or 1; none of them for any other mode.
  void selectMode(int index);

  /// Types a key's title at the caret of the current field, in place of what is selected. The minus is a sign
  /// toggle for the whole field. A minus at caret 0 of a text that holds one, and a key without a title, are
  /// a fatal stop.
  void insertKeypadValue(const QString& title);

  /// Deletes what is selected, or the character before the caret.
  void deleteBackward();

  /// Deletes what is selected, or the character behind the caret.
  void deleteForward();

  /// Empties fields and solution, forgets snapshot and picked record, and opens this page.
  void clearAll();

  /// Carries the task out: to the history and the solution page, or to words about what is wrong with it.
  /// True for a solution.
  bool performCalculation();

  /// Adds a task to the history. Fewer texts than identifiers are a fatal stop.
  void recordCalculation(const std::vector<std::string>& texts, const std::string& latex);

  /// Shows what explains this page.
  void showManual();

  /// False where the minus key would be a fatal stop; the keypad then switches the key off.
  bool isMinusKeyEnabled() const;

  QString fillInText() const { return fillInText_; }
  QString deleteIcon() const { return deleteIcon_; }
  QString calculateIcon() const { return calculateIcon_; }
  double bottomBannerInset() const { return bottomBannerInset_; }

  QQuickItem* segmentedControl = nullptr;  ///< Has the mode as its property "selectedSegmentIndex".
  QQuickItem* modeAView = nullptr;
  QQuickItem* modeBView = nullptr;
  QList<DTTextField*> aTextField;
  QList<DTTextField*> xTextField;

  std::shared_ptr<ToolbarButton> clearAllButton;
  DTTextField* currentTextField = nullptr;  ///< What the keypad types into; none until the user taps a field.
  int requiredAmountOfTextFields = 0;
  QList<DTTextField*> allFields;  ///< In view order.
  std::vector<std::string> allIds;

 signals:
  void loaded();
  void bottomBannerInsetChanged();
  void caretChanged();
  /// The page has come on the screen, as it does at each visit.
  void appeared();

 protected:
  void viewDidLoad() override;
  void applyAppearance() override;
  void viewWillAppear() override;
  void viewDidAppear() override;
  void viewWillDisappear() override;

 private:
  QQmlListProperty<DTTextField> aTextFieldOutlet() { return {this, &aTextField}; }
  QQmlListProperty<DTTextField> xTextFieldOutlet() { return {this, &xTextField}; }

  void configureFields();
  void configureFieldsBelow(const QQuickItem& item);
  void refillFields();
  void fillFrom(const Calculation& calculation);
  void buildToolbar();
  void wipeMarks();
  void deleteRange(TextRange range);
  void setText(const QString& text);
  void moveEditingToVisibleTwin();
  bool textFieldShouldBeginEditing(DTTextField* field);

  int mode() const;
  std::string visibleText(std::string_view identifier) const;
  bool rejectCalculation(std::string_view key, const std::vector<std::string>& fieldIds);

  CalcManager& store_;
  NotificationCenter& notifications_;
  ErrorManager& errorManager_;
  TaviStringOutput& outputHelper_;
  TaviMathOperation& basicOperationHelper_;

  QString fillInText_;
  QString deleteIcon_;
  QString calculateIcon_;
  double bottomBannerInset_ = 0;
};

}  // namespace tavi
