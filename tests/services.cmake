add_executable(tavi_services_tests
  services_main.cpp
  platform/online_test_test.cpp
  platform/preference_store_faults_test.cpp
  platform/preference_store_test.cpp
  platform/property_list_test.cpp
  platform/remote_config_service_test.cpp
  platform/services_test.cpp
  platform/store_children.cpp
  platform/test_support.cpp
  remote/remote_config_manager_test.cpp
  remote/remote_records_test.cpp
  shell/calc_manager_test.cpp)
target_include_directories(tavi_services_tests PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(tavi_services_tests PRIVATE
  tavi_services tavi_engine tavi_options Qt6::Core Qt6::Network SQLite::SQLite3 GTest::gtest)
gtest_discover_tests(tavi_services_tests DISCOVERY_TIMEOUT 60
  PROPERTIES TIMEOUT 120 ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
