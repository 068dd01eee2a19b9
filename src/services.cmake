# What a phone's system gives an application, and the stores above it: no screen, no engine.

add_library(tavi_services STATIC
  platform/analytics.cpp
  platform/application_context.cpp
  platform/bounded_get.cpp
  platform/links.cpp
  platform/network_access.cpp
  platform/notification_center.cpp
  platform/online_test.cpp
  platform/picture_file.cpp
  platform/preference_codec.cpp
  platform/preference_store.cpp
  platform/property_list.cpp
  platform/remote_config_service.cpp
  platform/resource_bundle.cpp
  remote/remote_config_manager.cpp
  remote/remote_records.cpp
  shell/calc_manager.cpp
  shell/calculation.cpp)
set_target_properties(tavi_services PROPERTIES AUTOMOC ON)
target_include_directories(tavi_services PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(tavi_services
  PUBLIC Qt6::Core Qt6::Network
  PRIVATE tavi_engine Qt6::Gui SQLite::SQLite3 tavi_options)
qt_add_resources(tavi_services tavi_services PREFIX / BASE ${PROJECT_SOURCE_DIR}/resources FILES
  ${PROJECT_SOURCE_DIR}/resources/ProjectSettings.json
  ${PROJECT_SOURCE_DIR}/resources/RemoteConfigDefaults.plist)
