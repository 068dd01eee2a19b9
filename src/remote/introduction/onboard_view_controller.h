#pragma once

#include <QColor>
#include <QFont>
#include <QList>
#include <functional>
#include <memory>

#include "appearance/view.h"
#include "shell/frame/view_controller.h"

namespace tavi {

/// One page of a short sequence.
struct OnboardPage {
  Q_GADGET
  QML_ANONYMOUS
  Q_PROPERTY(QString title MEMBER title)
  Q_PROPERTY(QString imageName MEMBER imageName)
  Q_PROPERTY(QString description MEMBER description)
  Q_PROPERTY(QString advanceButtonTitle MEMBER advanceButtonTitle)

 public:
  QString title;
  QString imageName;
  QString description;
  QString advanceButtonTitle;

  bool operator==(const OnboardPage&) const = default;
};

/// The look of the pages, as it is when the sequence is made.
struct OnboardAppearance {
  Q_GADGET
  QML_ANONYMOUS
  Q_PROPERTY(QColor tintColor MEMBER tintColor)
  Q_PROPERTY(QColor titleColor MEMBER titleColor)
  Q_PROPERTY(QColor textColor MEMBER textColor)
  Q_PROPERTY(QColor backgroundColor MEMBER backgroundColor)
  Q_PROPERTY(QFont titleFont MEMBER titleFont)
  Q_PROPERTY(QFont textFont MEMBER textFont)
  Q_PROPERTY(QColor advanceButtonColor MEMBER advanceButtonColor)
  Q_PROPERTY(QFont advanceButtonFont MEMBER advanceButtonFont)
  Q_PROPERTY(tavi::LayerShadow advanceButtonShadow MEMBER advanceButtonShadow)

 public:
  QColor tintColor;
  QColor titleColor;
  QColor textColor;
  QColor backgroundColor;
  QFont titleFont;
  QFont textFont;
  QColor advanceButtonColor;  ///< Of its title.
  QFont advanceButtonFont;
  LayerShadow advanceButtonShadow;
};

/// A short sequence of pictures with words, from page to page by swipe, key or button. The button of the last
/// page ends it and then runs the completion.
class OnboardViewController : public tavi::ViewController,
                              public std::enable_shared_from_this<OnboardViewController> {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by OnboardingManager")
  Q_PROPERTY(QVariantList pages READ pages CONSTANT)
  Q_PROPERTY(tavi::OnboardAppearance appearance READ appearance CONSTANT)
  Q_PROPERTY(bool isSheet READ isSheet CONSTANT)
  Q_PROPERTY(int currentPage READ currentPage WRITE setCurrentPage NOTIFY currentPageChanged)

 public:
  /// The title is for those who cannot see the pages. Without any page it is a fatal stop.
  OnboardViewController(QString title, QList<OnboardPage> pages, OnboardAppearance appearance,
                        std::function<void()> completion);

  void presentFrom(ViewController& presenter, bool isAnimated);

  QString title() const override { return title_; }
  const QList<OnboardPage>& pageItems() const { return pages_; }
  QVariantList pages() const;
  const OnboardAppearance& appearance() const { return appearance_; }
  bool isSheet() const { return presentationStyle() == PresentationStyle::FormSheet; }

  int currentPage() const { return currentPage_; }
  void setCurrentPage(int page);

  /// The button: the next page or, on the last one, the end.
  Q_INVOKABLE void advance();

  /// Escape and Back: a sheet goes; over the full screen it is only a page back.
  void cancel() override;

 signals:
  void currentPageChanged();

 private:
  QString title_;
  QList<OnboardPage> pages_;
  OnboardAppearance appearance_;
  std::function<void()> completion_;
  int currentPage_ = 0;
};

}  // namespace tavi
