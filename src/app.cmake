# The application: controllers, the items they drive, and its resources.
find_package(Qt6 6.4 REQUIRED COMPONENTS Concurrent Core Gui Qml Quick QuickControls2 LinguistTools)
find_package(QCoro6 REQUIRED COMPONENTS Core)

qt_add_library(tavi_app STATIC)
# Byte code alone starts as fast as generated C++ here, and builds in a fraction of the time.
set_target_properties(tavi_app PROPERTIES AUTOMOC ON QT_QMLCACHEGEN_ARGUMENTS --only-bytecode)
set_source_files_properties(appearance/Icons.qml PROPERTIES QT_QML_SINGLETON_TYPE TRUE)
qt_add_qml_module(tavi_app
  URI Tavi
  VERSION 1.0
  RESOURCE_PREFIX /qt-project.org/imports
  OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/qml/Tavi
  SOURCES
    appearance/appearance.cpp appearance/appearance.h
    appearance/color_manager.cpp appearance/color_manager.h
    appearance/contrast.cpp appearance/contrast.h
    appearance/interface_colors.cpp appearance/interface_colors.h
    appearance/interface_fonts.cpp appearance/interface_fonts.h
    appearance/shadow_item.cpp appearance/shadow_item.h
    appearance/theme.cpp appearance/theme.h
    appearance/view.cpp appearance/view.h
    input/error_manager.cpp input/error_manager.h
    platform/localization.cpp platform/localization.h
    shell/alert_controller.cpp shell/alert_controller.h
    shell/app_delegate.cpp shell/app_delegate.h
    shell/app_services.h
    shell/calculate_action.cpp
    shell/calculate_view_controller.cpp shell/calculate_view_controller.h
    shell/controller_host.cpp shell/controller_host.h
    shell/detached_task.h
    shell/dt_text_field.cpp shell/dt_text_field.h
    shell/history_table_view_cell.cpp shell/history_table_view_cell.h
    shell/history_table_view_controller.cpp shell/history_table_view_controller.h
    shell/left_view_controller.cpp shell/left_view_controller.h
    shell/menu_table.cpp shell/menu_table.h
    shell/navigation_drawer_controller.cpp shell/navigation_drawer_controller.h
    shell/page_loader.cpp shell/page_loader.h
    shell/page_tab_bar_controller.cpp shell/page_tab_bar_controller.h
    shell/radical_item.cpp shell/radical_item.h
    shell/screenshot.cpp shell/screenshot.h
    shell/sheet_controller.h
    shell/tab_item.cpp shell/tab_item.h
    shell/table_rows.cpp shell/table_rows.h
    shell/toolbar.cpp shell/toolbar.h
    shell/toolbar_controller.cpp shell/toolbar_controller.h
    shell/view_controller.cpp shell/view_controller.h
    shell/view_manager.cpp shell/view_manager.h
    solution/chart_table_view_cell.cpp solution/chart_table_view_cell.h
    solution/math_label_type.h
    solution/share_sheet_controller.cpp solution/share_sheet_controller.h
    solution/solution_step_cell.cpp solution/solution_step_cell.h
    solution/solution_table.cpp solution/solution_table.h
    solution/solution_table_data.cpp solution/solution_table_data.h
    solution/solution_table_source.cpp solution/solution_table_source.h
    solution/solution_view_controller.cpp solution/solution_view_controller.h
    solution/step_records.cpp solution/step_records.h
    solution/step_row_picture.cpp solution/step_row_picture.h
    solution/table_capture.cpp solution/table_capture.h
    solution/table_view_cell.cpp solution/table_view_cell.h
    solution/video_collection_table_view_cell.cpp solution/video_collection_table_view_cell.h
  QML_FILES
    appearance/ActionButton.qml
    appearance/EdgeShadow.qml
    appearance/FloatingButton.qml
    appearance/FocusRing.qml
    appearance/Icon.qml
    appearance/IconButton.qml
    appearance/Icons.qml
    appearance/ScrollThumb.qml
    shell/AlertPage.qml
    shell/AppWindow.qml
    shell/CalculatePage.qml
    shell/DTTextField.qml
    shell/DrawerPage.qml
    shell/HistoryDrag.qml
    shell/HistoryPage.qml
    shell/HistoryRow.qml
    shell/Keypad.qml
    shell/LeftPage.qml
    shell/SegmentedControl.qml
    shell/SheetPage.qml
    shell/SpinnerOverlay.qml
    shell/TabsPage.qml
    shell/ToastLayer.qml
    shell/ToolbarPage.qml
    solution/ShareSheet.qml
    solution/SolutionPage.qml
    solution/SolutionStepCell.qml)
# A coroutine's frame has members of this file's own types, which the compiler doubts in a file of several.
set_source_files_properties(solution/share_sheet_controller.cpp solution/table_capture.cpp
  PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
target_include_directories(tavi_app
  PUBLIC ${CMAKE_CURRENT_SOURCE_DIR}
  # The generated registration of QML types includes headers by their bare names.
  PRIVATE appearance shell solution typeset)
target_link_libraries(tavi_app
  PUBLIC tavi_engine tavi_services tavi_math_label QCoro6::Core Qt6::Gui Qt6::Qml Qt6::Quick
  PRIVATE tavi_math_font Qt6::Concurrent Qt6::QuickControls2 tavi_options)


# Built in: fonts from their Debian packages, the style of the controls, translations by key.
function(tavi_add_font file folder)
  find_file(path ${file} PATHS ${folder} REQUIRED NO_DEFAULT_PATH NO_CACHE)
  set_source_files_properties(${path} PROPERTIES QT_RESOURCE_ALIAS ${file})
  qt_add_resources(tavi_app "font_${file}" PREFIX /fonts FILES ${path})
endfunction()
foreach(weight Regular Medium Heavy)
  tavi_add_font(Lato-${weight}.ttf /usr/share/fonts/truetype/lato)
endforeach()
tavi_add_font(materialdesignicons-webfont.ttf /usr/share/fonts/truetype/materialdesignicons-webfont)

set(resources ${PROJECT_SOURCE_DIR}/resources)
qt_add_resources(tavi_app controls_style PREFIX / BASE ${resources} FILES ${resources}/qtquickcontrols2.conf)
qt_add_translations(tavi_app
  TS_FILES ${resources}/translations/tavi_en.ts ${resources}/translations/tavi_de.ts
  RESOURCE_PREFIX /i18n
  LRELEASE_OPTIONS -idbased)

# The application object, for the executable and for tools that drive it.
add_library(tavi_application STATIC shell/application.cpp shell/application.h)
set_target_properties(tavi_application PROPERTIES AUTOMOC ON)
target_link_libraries(tavi_application PUBLIC tavi_app tavi_appplugin PRIVATE tavi_options)

add_executable(tavi main.cpp)
target_link_libraries(tavi PRIVATE tavi_application tavi_options)
