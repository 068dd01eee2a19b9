# The frame of the application: styling, navigation, launch.
add_executable(tavi_app_tests
  lsan_suppressions.cpp
  calculate_main.cpp
  appearance/color_manager_test.cpp
  appearance/contrast_test.cpp
  platform/localization_test.cpp
  platform/test_support.cpp
  shell/history_screen_test.cpp
  shell/launch_test.cpp
  shell/navigation_test.cpp
  shell/side_menu_test.cpp)
target_include_directories(tavi_app_tests PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_compile_definitions(tavi_app_tests PRIVATE
  TAVI_TRANSLATIONS="${PROJECT_SOURCE_DIR}/resources/translations")
target_link_libraries(tavi_app_tests PRIVATE tavi_options tavi_app tavi_appplugin Qt6::Test SQLite::SQLite3 GTest::gtest)
gtest_discover_tests(tavi_app_tests DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 120)

add_executable(tavi_frame_qml_tests
  lsan_suppressions.cpp
  qml/frame/frame_stage.cpp qml/frame/frame_stage.h)
set_target_properties(tavi_frame_qml_tests PROPERTIES AUTOMOC ON)
target_compile_definitions(tavi_frame_qml_tests PRIVATE TAVI_QML_TESTS="${CMAKE_CURRENT_SOURCE_DIR}/qml/frame")
target_link_libraries(tavi_frame_qml_tests PRIVATE tavi_options tavi_app tavi_appplugin Qt6::QuickTest)
add_test(NAME tavi_frame_qml_tests COMMAND tavi_frame_qml_tests)
set_tests_properties(tavi_frame_qml_tests PROPERTIES TIMEOUT 120)

add_executable(tavi_history_qml_tests
  lsan_suppressions.cpp
  qml/history/history_stage.cpp qml/history/history_stage.h)
set_target_properties(tavi_history_qml_tests PROPERTIES AUTOMOC ON)
target_compile_definitions(tavi_history_qml_tests PRIVATE
  TAVI_QML_TESTS="${CMAKE_CURRENT_SOURCE_DIR}/qml/history")
target_link_libraries(tavi_history_qml_tests PRIVATE tavi_options tavi_app tavi_appplugin Qt6::QuickTest)
add_test(NAME tavi_history_qml_tests COMMAND tavi_history_qml_tests)
set_tests_properties(tavi_history_qml_tests PROPERTIES TIMEOUT 120)
