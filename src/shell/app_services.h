#pragma once

#include <functional>
#include <memory>

#include "measurement/measurement_client.h"
#include "platform/application_context.h"
#include "platform/links.h"
#include "platform/notification_center.h"
#include "platform/online_test.h"
#include "platform/preference_store.h"
#include "platform/project_settings.h"
#include "platform/remote_config_service.h"
#include "remote/rating/rating_view_controller.h"
#include "remote/remote_config_manager.h"
#include "shell/calc_manager.h"

namespace tavi {

/// What the application works with.
struct AppServices {
  RemoteConfigService& remoteConfig = RemoteConfigService::shared();
  RemoteConfigManager& remoteConfigManager = RemoteConfigManager::shared();
  CalcManager& calcManager = CalcManager::shared();
  PreferenceStore& userDefaults = PreferenceStore::standard();
  NotificationCenter& notifications = NotificationCenter::shared();
  const Links& links = Links::shared();
  const OnlineTest& onlineTest = OnlineTest::shared();
  std::function<ApplicationContext()> context = ApplicationContext::current;
  const ProjectSettings& settings = ProjectSettings::shared();
  std::shared_ptr<RatingViewController> rating = {};  ///< The one of the application; made at the launch.
  MeasurementClient* measurement = nullptr;           ///< None where no collector is named.
};

}  // namespace tavi
