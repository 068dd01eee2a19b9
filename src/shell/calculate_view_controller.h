#pragma once

#include <QList>
#include <QMap>
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

/// What stands typed, as it is shown beside the fields.
struct TaskPreview {
  Q_GADGET
  QML_ANONYMOUS
  Q_PROPERTY(QString latex MEMBER latex)
  Q_PROPERTY(QString hint MEMBER hint)
  Q_PROPERTY(bool isReadable MEMBER isReadable)

 public:
  QString latex;            ///< As it is typeset.
  QString hint;             ///< What is missing or wrong, or what to know of the result, in few words.
  bool isReadable = false;  ///< The fields hold a task.
};

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
  Q_PROPERTY(QString deleteIcon READ deleteIcon CONSTANT)
  Q_PROPERTY(QString calculateIcon READ calculateIcon CONSTANT)
  Q_PROPERTY(double bottomBannerInset READ bottomBannerInset NOTIFY bottomBannerInsetChanged)
  Q_PROPERTY(tavi::TaskPreview preview READ preview NOTIFY taskChanged)
  Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged)

  // What the keypad and the keys of a keyboard would do.
  Q_PROPERTY(bool isTypingPossible READ isTypingPossible NOTIFY caretChanged)
  Q_PROPERTY(bool isDeletePossible READ isDeletePossible NOTIFY caretChanged)
  Q_PROPERTY(bool isMinusKeyEnabled READ isMinusKeyEnabled NOTIFY caretChanged)
  Q_PROPERTY(bool isSelectionThere READ isSelectionThere NOTIFY caretChanged)

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

  /// A key of a hardware keyboard does what the keypad's key does, or edits as it does everywhere; false for
  /// a key that means nothing here. Without a field to type into, typing begins in the first one.
  Q_INVOKABLE bool pressedHardwareKey(int key, int modifiers, const QString& text);

  /// The clipboard. What is pasted is read as a number; where that is not clear the notice says why nothing
  /// is pasted. A whole power goes into both fields.
  Q_INVOKABLE void copySelection();
  Q_INVOKABLE void cutSelection();
  Q_INVOKABLE void paste();
  Q_INVOKABLE void selectAll();

  /// Take the last change of the fields back, and the last one taken back forth again.
  Q_INVOKABLE void undo();
  Q_INVOKABLE void redo();

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

  /// The task as it stands typed in the visible fields.
  TaskPreview preview() const;

  /// Why the last paste or key did nothing; empty once something has changed since.
  QString notice() const { return notice_; }

  /// Whether keys have a field to type into, Delete something to delete.
  bool isTypingPossible() const;
  bool isDeletePossible() const;
  bool isSelectionThere() const;

  /// False where the minus key would do nothing or be a fatal stop; the keypad then switches the key off.
  bool isMinusKeyEnabled() const;

  QString fillInText() const { return fillInText_; }
  static QString deleteIcon() { return "arrowBack"; }
  static QString calculateIcon() { return "check"; }
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
  void taskChanged();
  void noticeChanged();
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

  // Typing.
  struct TypingState {
    QMap<QString, QString> texts;  // by identifier
    QString identifier;            // of the field with the caret
    TextRange selection;
  };
  void watch(DTTextField& field);
  bool beginTyping();
  bool beginExponent();
  static void goToFault(const QList<DTTextField*>& fields);
  void deleteRange(TextRange range);
  void setText(const QString& text);
  void setText(const QString& identifier, const QString& text);
  void setNotice(const QString& words);
  void pastePower(const QString& base, const QString& exponent);
  DTTextField* visibleField(const QString& identifier) const;
  TypingState typingState() const;
  void restore(const TypingState& state);
  void keepForUndo();
  void moveBetween(std::vector<TypingState>& from, std::vector<TypingState>& to);
  void moveEditingToVisibleTwin();
  void takeFocus();
  bool textFieldShouldBeginEditing(DTTextField* field);

  int mode() const;
  std::string visibleText(std::string_view identifier) const;
  bool rejectCalculation(std::string_view key, const std::vector<std::string>& fieldIds);

  CalcManager& store_;
  NotificationCenter& notifications_;
  ErrorManager& errorManager_;
  TaviStringOutput& outputHelper_;
  TaviMathOperation& basicOperationHelper_;

  std::vector<TypingState> undoable_;
  std::vector<TypingState> redoable_;
  QString notice_;

  QString fillInText_;
  double bottomBannerInset_ = 0;
};

}  // namespace tavi
