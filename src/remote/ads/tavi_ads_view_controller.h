#pragma once

#include <functional>
#include <optional>

#include "appearance/view.h"
#include "platform/application_context.h"
#include "platform/links.h"
#include "platform/preferences.h"
#include "remote/remote_records.h"
#include "shell/frame/view_controller.h"

namespace tavi {

/// An offer for another product over the whole window: a picture, a button to close it and one that leads to
/// the offer. Whoever presents it sets `currentAd` before.
class TaviAdsViewController : public tavi::ViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by who presents it")
  Q_PROPERTY(QString pictureName READ pictureName NOTIFY configured)
  Q_PROPERTY(QString discountTitle READ discountTitle NOTIFY configured)
  Q_PROPERTY(QColor closeColor READ closeColor NOTIFY configured)
  Q_PROPERTY(QColor discountColor READ discountColor NOTIFY configured)
  Q_PROPERTY(QColor discountTitleColor READ discountTitleColor NOTIFY configured)
  Q_PROPERTY(tavi::LayerShadow buttonShadow READ buttonShadow NOTIFY configured)

 public:
  explicit TaviAdsViewController(PreferenceStore& preferences = PreferenceStore::standard(),
                                 const Links& links = Links::shared(),
                                 std::function<ApplicationContext()> context = ApplicationContext::current);

  std::optional<TaviAdData> currentAd;

  QString title() const override { return discountTitle_; }
  QString pictureName() const { return pictureName_; }
  QString discountTitle() const { return discountTitle_; }
  QColor closeColor() const { return closeColor_; }
  QColor discountColor() const { return discountColor_; }
  static QColor discountTitleColor();
  LayerShadow buttonShadow() const { return buttonShadow_; }  ///< None in dark appearance.

  // What the page calls.
  Q_INVOKABLE void tappedCloseButton();
  Q_INVOKABLE void tappedDiscountButton();

  /// Escape and Back close it as the button does.
  void cancel() override { tappedCloseButton(); }

 signals:
  void configured();

 protected:
  void viewDidLoad() override;
  void viewDidAppear() override;

 private:
  void configureAd();
  void log(QLatin1StringView event) const;

  PreferenceStore& preferences_;
  const Links& links_;
  std::function<ApplicationContext()> context_;
  QString pictureName_;
  QString discountTitle_;
  QColor closeColor_;
  QColor discountColor_;
  LayerShadow buttonShadow_;
};

}  // namespace tavi
