#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QTemporaryDir>
#include <memory>

#include "platform/preference_store.h"
#include "remote/manual/manual_view_controller.h"
#include "remote/rating/rating_view_controller.h"

namespace tavi {

/// Hands out what the pages around the calculation act on, as the context property "stage".
class RemoteStage : public QObject {
  Q_OBJECT
  Q_PROPERTY(tavi::ManualViewController* manual READ manual CONSTANT)
  Q_PROPERTY(tavi::RatingViewController* rating READ rating CONSTANT)

 public:
  ManualViewController* manual() { return &manual_; }
  RatingViewController* rating() { return rating_.get(); }

 public slots:
  void qmlEngineAvailable(QQmlEngine* engine);

 private:
  QTemporaryDir folder_;
  PreferenceStore preferences_{folder_.filePath("preferences.sqlite")};
  ManualViewController manual_{QStringLiteral("qrx_info")};
  std::shared_ptr<RatingViewController> rating_ =
      std::make_shared<RatingViewController>(preferences_, OnlineTest::shared(), [] {});
};

}  // namespace tavi
