# The solution screen: its table, its picture, sharing.
add_executable(tavi_solution_tests
  lsan_suppressions.cpp
  calculate_main.cpp
  solution/share_test.cpp
  solution/solution_page_test.cpp
  solution/solution_screen_test.cpp
  solution/solution_table_data_test.cpp
  solution/table_capture_test.cpp)
target_include_directories(tavi_solution_tests PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(tavi_solution_tests PRIVATE tavi_options tavi_app tavi_appplugin Qt6::Test GTest::gtest)
gtest_discover_tests(tavi_solution_tests DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 120)
