#pragma once

#include <QHash>
#include <QStringList>
#include <optional>

#include "output/string_output.h"
#include "platform/notification_center.h"
#include "remote/remote_config_manager.h"
#include "shell/table_rows.h"
#include "shell/view_controller.h"
#include "solution/solution_step_cell.h"

namespace tavi {

class AppPageTabBarController;

/// The second page: one solved problem as a table of steps, with the buttons to share it and to open the
/// manual.
class SolutionViewController : public AdHandlingViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the application")
  Q_PROPERTY(QAbstractItemModel* table READ table CONSTANT)
  Q_PROPERTY(bool isShareButtonHidden READ isShareButtonHidden NOTIFY layoutChanged)
  Q_PROPERTY(bool isManualButtonHidden READ isManualButtonHidden NOTIFY layoutChanged)
  Q_PROPERTY(bool hasFooter READ hasFooter NOTIFY layoutChanged)
  Q_PROPERTY(double bottomBannerInset READ bottomBannerInset NOTIFY layoutChanged)

 public:
  /// Posted by the calculate screen when the page shall forget its solution and cannot be reached otherwise.
  static constexpr QLatin1StringView clearCurrentCalculation{"ClearCurrentCalculationNotification"};

  /// Heights of single rows by row index, in device-independent pixels.
  using RowHeights = QHash<int, double>;

  explicit SolutionViewController(const RemoteConfigManager& remoteConfig = RemoteConfigManager::shared(),
                                  NotificationCenter& notifications = NotificationCenter::shared());

  /// Fills the solution page of the tabs (page 1) and opens it; nothing without tabs or steps. Fewer than two
  /// pages is a fatal stop. A row has the height configured for it or else `rowHeight`.
  static void showSolution(AppPageTabBarController* tabs, const std::optional<SolutionSteps>& solutionSteps,
                           const QString& manualImageName,
                           const std::optional<RowHeights>& configuredRowHeight, double rowHeight);

  /// Forgets the solution: the table is empty and the tab cannot be opened.
  void handleClearAllButton();

  const SolutionSteps& solutionSteps() const { return solutionSteps_; }
  const QStringList& videoUrlStrings() const { return videoUrlStrings_; }

  TableRows* table() { return &table_; }
  double heightForRow(int row) const;
  bool isShareButtonHidden() const { return isShareButtonHidden_; }
  bool isManualButtonHidden() const { return isManualButtonHidden_; }
  bool hasFooter() const { return hasFooter_; }  ///< A quarter of the table's height, empty.
  double bottomBannerInset() const { return bottomBannerInset_; }

  // What the page calls.
  /// Fills a cell that comes into view and answers the height of its row. A step without a title is a fatal
  /// stop.
  Q_INVOKABLE double configureCell(tavi::SolutionStepTableViewCell* cell, int row) const;
  Q_INVOKABLE void tappedShareButton();
  Q_INVOKABLE void manualButtonPressed();

 signals:
  void layoutChanged();
  void scrollToTopRequested();
  void manualRequested(const QString& imageName);

 protected:
  void viewDidLoad() override;
  void viewWillAppear() override;

 private:
  void updateTabItem();
  void reloadTable() { table_.reload(static_cast<int>(solutionSteps_.size())); }
  void scrollToTop();

  const RemoteConfigManager& remoteConfig_;
  NotificationCenter& notifications_;
  SolutionSteps solutionSteps_;
  QStringList videoUrlStrings_;
  QString manualImageName_;
  std::optional<RowHeights> configuredRowHeight_;
  double rowHeight_ = 0;

  TableRows table_;
  bool isShareButtonHidden_ = true;
  bool isManualButtonHidden_ = true;
  bool hasFooter_ = false;
  double bottomBannerInset_ = 0;
};

}  // namespace tavi
