find_package(Qt6 6.4 REQUIRED COMPONENTS QuickTest Test)

add_executable(tavi_calculate_tests
  lsan_suppressions.cpp
  calculate_main.cpp
  input/error_manager_test.cpp
  shell/calculate_page.cpp
  shell/calculate_view_controller_test.cpp
  shell/every_input_test.cpp)
target_include_directories(tavi_calculate_tests PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(tavi_calculate_tests PRIVATE tavi_options tavi_app tavi_appplugin Qt6::Test GTest::gtest)
gtest_discover_tests(tavi_calculate_tests DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)

add_executable(tavi_calculate_qml_tests
  lsan_suppressions.cpp
  qml/calculate/calculate_stage.cpp qml/calculate/calculate_stage.h)
set_target_properties(tavi_calculate_qml_tests PROPERTIES AUTOMOC ON)
target_compile_definitions(tavi_calculate_qml_tests PRIVATE
  TAVI_QML_TESTS="${CMAKE_CURRENT_SOURCE_DIR}/qml/calculate")
target_link_libraries(tavi_calculate_qml_tests PRIVATE tavi_options tavi_app tavi_appplugin Qt6::QuickTest)
add_test(NAME tavi_calculate_qml_tests COMMAND tavi_calculate_qml_tests)
set_tests_properties(tavi_calculate_qml_tests PROPERTIES TIMEOUT 120)
