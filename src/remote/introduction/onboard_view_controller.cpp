#include "remote/introduction/onboard_view_controller.h"

#include <algorithm>
#include <utility>

#include "number/fatal_stop.h"

namespace tavi {

OnboardViewController::OnboardViewController(QString title, QList<OnboardPage> pages,
                                             OnboardAppearance appearance, std::function<void()> completion)
    : title_(std::move(title)),
      pages_(std::move(pages)),
      appearance_(std::move(appearance)),
      completion_(std::move(completion)) {
  if (pages_.isEmpty()) fatalStop("a sequence without pages");
}

void OnboardViewController::presentFrom(ViewController& presenter, bool isAnimated) {
  if (presenter.engine()) setPage(*presenter.engine(), QStringLiteral("remote/introduction/OnboardPage.qml"));
  presenter.present(shared_from_this(), isAnimated);
}

QVariantList OnboardViewController::pages() const {
  QVariantList pages;
  for (const OnboardPage& page : pages_) pages.append(QVariant::fromValue(page));
  return pages;
}

void OnboardViewController::setCurrentPage(int page) {
  const int inRange = std::clamp(page, 0, static_cast<int>(pages_.size()) - 1);
  if (currentPage_ == inRange) return;
  currentPage_ = inRange;
  emit currentPageChanged();
}

void OnboardViewController::advance() {
  if (currentPage_ + 1 < pages_.size()) return setCurrentPage(currentPage_ + 1);
  // Once only, however often the button is tapped while the pages go.
  dismiss(std::exchange(completion_, {}));
}

void OnboardViewController::cancel() {
  if (isSheet()) return dismiss({});
  setCurrentPage(currentPage_ - 1);
}

}  // namespace tavi
