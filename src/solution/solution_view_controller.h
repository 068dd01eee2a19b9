#pragma once

#include <QCoroTask>
#include <QImage>
#include <QPointer>
#include <QStringList>
#include <memory>
#include <optional>
#include <vector>

#include "exact/account_module.h"
#include "platform/notification_center.h"
#include "remote/remote_config_manager.h"
#include "remote/videos/video_row_controller.h"
#include "shell/frame/view_controller.h"
#include "solution/reader.h"
#include "solution/rows/row_measures.h"
#include "solution/rows/solution_table_data.h"
#include "solution/share/row_copies.h"
#include "solution/share/table_capture.h"
#include "solution/solution_table.h"

namespace tavi {

class AppPageTabBarController;

/// The second page: one solved problem as a table of steps, charts and videos, with the buttons to share it
/// and to open the manual.
class SolutionViewController : public tavi::AdHandlingViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the application")
  Q_PROPERTY(QAbstractItemModel* table READ table CONSTANT)
  Q_PROPERTY(tavi::RowMeasures measures READ measures CONSTANT)
  Q_PROPERTY(tavi::VideoRowController* videos READ videos CONSTANT)
  Q_PROPERTY(tavi::Reader* reader READ reader CONSTANT)
  Q_PROPERTY(bool hasExactValue READ hasExactValue NOTIFY marksChanged)
  Q_PROPERTY(QVariantList marks READ marks NOTIFY marksChanged)
  Q_PROPERTY(bool isShareButtonHidden READ isShareButtonHidden NOTIFY layoutChanged)
  Q_PROPERTY(bool isManualButtonHidden READ isManualButtonHidden NOTIFY layoutChanged)
  Q_PROPERTY(bool hasFooter READ hasFooter NOTIFY layoutChanged)
  Q_PROPERTY(double bottomBannerInset READ bottomBannerInset NOTIFY layoutChanged)

 public:
  /// Posted by the calculate screen when the page shall forget its solution and cannot be reached otherwise.
  static constexpr QLatin1StringView clearCurrentCalculation{"ClearCurrentCalculationNotification"};

  using RowHeights = SolutionTableData::RowHeights;

  explicit SolutionViewController(const RemoteConfigManager& remoteConfig = RemoteConfigManager::shared(),
                                  NotificationCenter& notifications = NotificationCenter::shared(),
                                  PreferenceStore& preferences = PreferenceStore::standard(),
                                  const ProjectSettings& settings = ProjectSettings::shared(),
                                  const Links& links = Links::shared());

  /// The view goes first: its row of videos looks at what belongs to this object.
  ~SolutionViewController() override { setView({}); }

  /// Fills the solution page of the tabs (page 1) and opens it; nothing without tabs or steps. Fewer than two
  /// pages is a fatal stop, and so are steps without a list of charts. A step has the height configured for
  /// its row or else `rowHeight`. With a question, whose steps are left out, the page tells the exact value.
  static void showSolution(AppPageTabBarController* tabs, const std::optional<SolutionSteps>& solutionSteps,
                           const std::optional<ChartRows>& chartSteps,
                           const std::optional<QString>& manualImageName,
                           const std::optional<RowHeights>& configuredRowHeight, double rowHeight,
                           std::optional<exact::AccountQuestion> question = {});

  /// Forgets the solution: the table is empty and the tab cannot be opened.
  void handleClearAllButton();

  const SolutionSteps& solutionSteps() const { return data_.solutionSteps; }
  const ChartRows& chartSteps() const { return data_.chartSteps; }
  const QStringList& videoUrlStrings() const { return data_.videoUrlStrings; }

  SolutionTable* table() { return &table_; }
  static RowMeasures measures() { return rowMeasures; }
  VideoRowController* videos() { return &videos_; }
  Reader* reader() { return &reader_; }
  bool hasExactValue() const { return question_.has_value(); }
  /// Of each step whether it is not true; empty until that is known.
  QVariantList marks() const;
  bool isShareButtonHidden() const { return isShareButtonHidden_; }
  bool isManualButtonHidden() const { return isManualButtonHidden_; }
  bool hasFooter() const { return hasFooter_; }  ///< A quarter of the table's height, empty.
  double bottomBannerInset() const { return bottomBannerInset_; }

  // What the page calls.
  /// Pictures the whole table while a message says so, and then offers the picture.
  Q_INVOKABLE void tappedShareButton();
  Q_INVOKABLE void manualButtonPressed();
  /// Offers the exact value of the task.
  Q_INVOKABLE void tappedExactButton();
  /// Shows formulas at that size in per cent, now and from the next start on; 0 as the desktop says.
  Q_INVOKABLE void scaleFormulas(int percent);
  /// Puts the row on the clipboard; without such a row that of the result.
  Q_INVOKABLE void copyRow(int row, tavi::RowCopy::Form form);

 signals:
  void layoutChanged();
  void marksChanged();
  void scrollToTopRequested();
  /// A new solution is on the screen.
  void solutionShown();

 protected:
  void viewDidLoad() override;
  void applyAppearance() override;
  void viewWillAppear() override;
  void viewWillDisappear() override { reader_.stop(); }

 private:
  /// What the message before a share sheet and the capture behind it share.
  struct ShareItems {
    std::vector<QImage> images;
    bool isMessageRead = false;
  };

  void updateTabItem();
  void scrollToTop();
  void setQuestion(std::optional<exact::AccountQuestion> question);
  /// Takes the account in another thread, once the working was seen.
  void takeAccountLater();
  QCoro::Task<> takeAccount();
  QCoro::Task<> share();
  /// The rows as they stand: the lock of the videos is not among what they hold.
  std::vector<SolutionRow> picturedRows() const;
  PicturedTable picturedTable();
  /// The task in words.
  QString subject() const;
  /// What assistive technology is told of the row; absent behind the last.
  std::optional<QString> rowWords(int row) const;
  void stopReadingWhenCovered();
  void presentShareSheet(const ShareItems& items);

  const RemoteConfigManager& remoteConfig_;
  NotificationCenter& notifications_;
  PreferenceStore& preferences_;
  SolutionTableData data_;
  QPointer<QQuickItem> tableView_;
  std::optional<QString> manualImageName_;
  std::optional<exact::AccountQuestion> question_;
  std::optional<exact::Account> account_;
  quint64 questionNumber_ = 0;

  SolutionTable table_;
  VideoRowController videos_;
  Reader reader_{[this](int row) { return rowWords(row); }};
  bool isShareButtonHidden_ = true;
  bool isManualButtonHidden_ = true;
  bool hasFooter_ = false;
  double bottomBannerInset_ = 0;
};

}  // namespace tavi
