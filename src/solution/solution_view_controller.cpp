#include "solution/solution_view_controller.h"

#include <QClipboard>
#include <QCoroFuture>
#include <QCoroTimer>
#include <QGuiApplication>
#include <QPointer>
#include <QQuickWindow>
#include <QtConcurrentRun>
#include <algorithm>

#include "appearance/color_manager.h"
#include "appearance/formula_scale.h"
#include "number/fatal_stop.h"
#include "platform/analytics.h"
#include "platform/localization.h"
#include "remote/analytics_events.h"
#include "remote/manual/manual_view_controller.h"
#include "shell/frame/alert_controller.h"
#include "shell/frame/detached_task.h"
#include "shell/frame/page_tab_bar_controller.h"
#include "shell/frame/screenshot.h"
#include "shell/frame/toolbar_controller.h"
#include "shell/frame/view_manager.h"
#include "solution/exact/account_library.h"
#include "solution/exact/exact_sheet_controller.h"
#include "solution/share/share_sheet_controller.h"
#include "solution/share/step_records.h"
#include "solution/share/table_capture.h"
#include "typeset/math_label.h"

namespace tavi {

SolutionViewController::SolutionViewController(const RemoteConfigManager& remoteConfig,
                                               NotificationCenter& notifications,
                                               PreferenceStore& preferences, const ProjectSettings& settings,
                                               const Links& links)
    : remoteConfig_(remoteConfig),
      notifications_(notifications),
      preferences_(preferences),
      videos_(*this, preferences, settings, links) {
  updateTabItem();
}

void SolutionViewController::showSolution(AppPageTabBarController* tabs,
                                          const std::optional<SolutionSteps>& solutionSteps,
                                          const std::optional<ChartRows>& chartSteps,
                                          const std::optional<QString>& manualImageName,
                                          const std::optional<RowHeights>& configuredRowHeight,
                                          double rowHeight, std::optional<exact::AccountQuestion> question) {
  if (!tabs) return;
  auto* page = qobject_cast<SolutionViewController*>(elementAt(tabs->viewControllers(), 1).get());
  if (!page || !solutionSteps) return;
  page->data_.solutionSteps = *solutionSteps;
  page->data_.chartSteps = required(chartSteps, "a solution without a list of charts");
  page->data_.configuredRowHeight = configuredRowHeight;
  page->data_.rowHeight = rowHeight;
  page->manualImageName_ = manualImageName;
  if (question) question->steps = *solutionSteps;
  page->setQuestion(std::move(question));
  page->table_.reset(page->data_.rows());
  page->scrollToTop();
  tabs->select(1);
  page->takeAccountLater();
  // Beside the input it is open already, and the keyboard stays there.
  if (!tabs->isSideBySide()) return emit page->solutionShown();
  if (page->isAppearing()) page->viewWillAppear();
}

void SolutionViewController::handleClearAllButton() {
  scrollToTop();
  data_.solutionSteps.clear();
  data_.chartSteps.clear();
  updateTabItem();
  manualImageName_.reset();
  setQuestion({});
  hasFooter_ = false;
  table_.update(data_.rows());
  emit layoutChanged();
}

void SolutionViewController::setQuestion(std::optional<exact::AccountQuestion> question) {
  reader_.stop();
  question_ = std::move(question);
  account_.reset();
  ++questionNumber_;
  emit marksChanged();
}

void SolutionViewController::takeAccountLater() {
  if (!question_ || !view() || !view()->window()) return;
  const auto begin = [this, number = questionNumber_] {
    if (number == questionNumber_) detached(takeAccount());
  };
  connect(view()->window(), &QQuickWindow::frameSwapped, this, begin,
          static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
}

QCoro::Task<> SolutionViewController::takeAccount() {
  const QPointer<SolutionViewController> self(this);
  const auto number = questionNumber_;
  const QFuture<std::optional<exact::Account>> taken =
      QtConcurrent::run([question = *question_] { return accountOf(question); });
  std::optional<exact::Account> account = co_await taken;
  if (!self || number != questionNumber_) co_return;
  account_ = std::move(account);
  emit marksChanged();
}

QVariantList SolutionViewController::marks() const {
  QVariantList marks;
  for (std::size_t line = 0; account_ && line < account_->proof.lines.size(); ++line)
    marks.append(account_->isMarked(line));
  return marks;
}

void SolutionViewController::tappedExactButton() {
  if (!question_) return;
  if (!account_) account_ = accountOf(*question_);
  if (!account_) return;
  emit marksChanged();
  auto sheet = std::make_shared<ExactSheetController>(*question_, *account_);
  if (engine()) sheet->setPage(*engine(), QStringLiteral("solution/exact/ExactSheet.qml"));
  present(std::move(sheet));
}

void SolutionViewController::tappedShareButton() {
  const QVariantList records = stepRecords(data_.solutionSteps);
  Analytics::logEvent(events::taviTappedShare,
                      QVariantMap{{QStringLiteral("solutionSteps"), records},
                                  {QStringLiteral("solutionStepsCount"), qlonglong{records.size()}}});
  detached(share());
}

/// The message and the picture race: whichever is done last finds the picture there and the message gone, and
/// so shows the one sheet.
QCoro::Task<> SolutionViewController::share() {
  if (data_.solutionSteps.empty()) co_return;
  isTakingScreenshot = true;
  ViewManager::showSpinner();
  const QPointer<SolutionViewController> self(this);
  const auto items = std::make_shared<ShareItems>();
  presentAlert(localized("sharingImageQualityTitle"), localized("sharingImageQualityText"),
               {{localized("OK"),
                 [self, items] {
                   items->isMessageRead = true;
                   if (self) self->presentShareSheet(*items);
                 }}},
               AlertStyle::alert);
  const PicturedTable table = picturedTable();
  // The tap is over before the capture begins, so that message and spinner are seen even for a short working.
  co_await QCoro::sleepFor(std::chrono::milliseconds(0));
  const QImage image = co_await tableViewScreenshot(table);
  if (!image.isNull()) items->images.push_back(image);
  ViewManager::hideSpinner();
  isTakingScreenshot = false;
  if (self) self->presentShareSheet(*items);
}

std::vector<SolutionRow> SolutionViewController::picturedRows() const {
  std::vector<SolutionRow> rows = table_.rows();
  for (SolutionRow& row : rows)
    if (auto* videos = std::get_if<VideoCollectionTableViewCell>(&row.content))
      videos->isLocked = videos_.isLocked();
  return rows;
}

PicturedTable SolutionViewController::picturedTable() {
  const double viewWidth = view() ? view()->width() : 0;
  PicturedTable table{.width = tableView_ ? tableView_->width() : viewWidth, .sections = {{}}};
  for (const SolutionRow& row : picturedRows())
    table.sections.front().rows.emplace_back(
        [row, viewWidth] { return makePainter(row, RowTarget{.viewWidth = viewWidth}); });
  return table;
}

QString SolutionViewController::subject() const {
  if (data_.solutionSteps.empty()) return {};
  return typeset::spokenText(QString::fromStdString(data_.solutionSteps.front().latexString.value_or("")));
}

std::optional<QString> SolutionViewController::rowWords(int row) const {
  if (row >= table_.rowCount()) return std::nullopt;
  const auto line = static_cast<std::size_t>(row);
  const QString words = wordsOf(table_.rows()[line]);
  const bool isMarked = account_ && line < account_->proof.lines.size() && account_->isMarked(line);
  return isMarked ? words + QStringLiteral(", ") + localized("exactLineFalse") : words;
}

void SolutionViewController::stopReadingWhenCovered() {
  if (isCovered()) reader_.stop();
}

void SolutionViewController::presentShareSheet(const ShareItems& items) {
  if (items.images.empty() || (isCovered() && !items.isMessageRead)) return;
  auto sheet = std::make_shared<ShareSheetController>(
      SharedWorking{items.images.front(), picturedRows(), view() ? view()->width() : 0, subject()});
  if (engine()) sheet->setPage(*engine(), QStringLiteral("solution/share/ShareSheet.qml"));
  present(std::move(sheet));
}

void SolutionViewController::scaleFormulas(int percent) {
  FormulaScale::shared().choose(preferences_, percent);
}

void SolutionViewController::copyRow(int row, RowCopy::Form form) {
  const std::vector<SolutionRow>& rows = table_.rows();
  if (rows.empty()) return;
  auto copied = rows.begin() + row;
  if (row < 0 || row >= table_.rowCount()) {
    copied = std::ranges::find_if(rows, [](const SolutionRow& each) {
      const auto* step = std::get_if<SolutionStepTableViewCell>(&each.content);
      return step != nullptr && step->isResult;
    });
    if (copied == rows.end()) copied = rows.begin();
  }
  const double viewWidth = view() ? view()->width() : 0;
  QGuiApplication::clipboard()->setMimeData(
      copyOfRow(*copied, form, viewWidth).release());  // which takes it over
  ViewManager::showToast(localized("sharingCopied"));
}

void SolutionViewController::manualButtonPressed() {
  if (manualImageName_ && !manualImageName_->isEmpty()) ManualViewController::show(*this, *manualImageName_);
}

void SolutionViewController::viewDidLoad() {
  updateTabItem();
  notifications_.observe(clearCurrentCalculation, this, [this] { handleClearAllButton(); });
  if (!view()) return;
  tableView_ = view()->findChild<QQuickItem*>(QStringLiteral("solutionTable"));
  if (!tableView_) fatalStop("Der trailing Constraint der tableView wurde nicht gefunden.");
}

void SolutionViewController::applyAppearance() {
  if (view()) ColorManager::applyStyleToSubviews(*view());
}

void SolutionViewController::viewWillAppear() {
  ViewController* window = this;
  while (window->parentController()) window = window->parentController();
  connect(window, &ViewController::presentedControllerChanged, this,
          &SolutionViewController::stopReadingWhenCovered, Qt::UniqueConnection);
  applyAppearance();
  isManualButtonHidden_ = !manualImageName_ || manualImageName_->isEmpty();
  isShareButtonHidden_ = data_.solutionSteps.empty();
  updateTabItem();
  data_.videoUrlStrings = remoteConfig_.videoLinks(VideoTopic::powersAndRoots);
  hasFooter_ = true;
  table_.update(data_.rows());
  if (bannerView()) bannerView()->setVisible(false);
  bottomBannerInset_ = bottomSafeAreaInset();
  emit layoutChanged();
  if (auto* toolbarController = ancestor<BasicToolbarController>())
    toolbarController->toolbar()->setTitle(localized("Calculate Title"));
}

void SolutionViewController::updateTabItem() {
  setUpTabItem(localized("Result"), !data_.solutionSteps.empty());
}

void SolutionViewController::scrollToTop() {
  if (!data_.solutionSteps.empty()) emit scrollToTopRequested();
}

}  // namespace tavi
