#pragma once

#include <QVariantList>

#include "appearance/formula_scale.h"
#include "shell/app_services.h"
#include "shell/frame/view_controller.h"
#include "shell/history/history_transfer.h"

namespace tavi {

/// What the user can choose, in a sheet over the menu. Each choice is kept at once; the appearance and the
/// consent to measurement hold at once, too, the language from the next start on.
class SettingsViewController : public tavi::ViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the application")
  Q_PROPERTY(QString label READ title CONSTANT)
  Q_PROPERTY(int appearance READ appearance NOTIFY changed)
  Q_PROPERTY(int leastFormulaPercent MEMBER leastFormulaPercent CONSTANT)
  Q_PROPERTY(int mostFormulaPercent MEMBER mostFormulaPercent CONSTANT)
  Q_PROPERTY(QVariantList languages READ languages CONSTANT)
  Q_PROPERTY(QString language READ language NOTIFY changed)
  Q_PROPERTY(QString languageName READ chosenLanguageName NOTIFY changed)
  Q_PROPERTY(bool canMeasure READ canMeasure CONSTANT)
  Q_PROPERTY(bool isMeasuring READ isMeasuring NOTIFY changed)
  Q_PROPERTY(QString measurementText READ sentText CONSTANT)
  Q_PROPERTY(tavi::HistoryTransfer* transfer READ transfer CONSTANT)

 public:
  /// In the order in which the page offers them.
  enum AppearanceChoice { asSystem, light, dark };

  explicit SettingsViewController(AppServices services) : services_(std::move(services)) {}

  /// Presents the settings over the controller, as a page sheet.
  static void show(ViewController& over, const AppServices& services);

  QString title() const override;
  int appearance() const;
  /// Of { code, name }, each under its own name; the first one, with an empty code, is the system's.
  static QVariantList languages();
  /// The code of the chosen one, or empty for the system's.
  QString language() const;
  QString chosenLanguageName() const;
  /// Whether there is a collector; without one nothing is measured whatever the user says.
  bool canMeasure() const { return services_.measurement != nullptr; }
  bool isMeasuring() const;
  /// What is sent, for whoever wants to know before agreeing.
  static QString sentText();

  HistoryTransfer* transfer() { return &transfer_; }

  // What the page calls.
  Q_INVOKABLE void chooseAppearance(int choice);
  /// The size of a working's formulas; see FormulaScale.
  Q_INVOKABLE void scaleFormulas(int percent);
  Q_INVOKABLE void chooseLanguage(const QString& code);
  Q_INVOKABLE void setMeasuring(bool isAccepted);

 signals:
  void changed();

 private:
  AppServices services_;
  HistoryTransfer transfer_{*this, services_.calcManager, services_.notifications};
  const int leastFormulaPercent = FormulaScale::least;
  const int mostFormulaPercent = FormulaScale::most;
};

/// Shows the interface as the stored choice says.
void applyStoredAppearance(const PreferenceStore& preferences);

}  // namespace tavi
