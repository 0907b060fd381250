# Tests of the services of the desktop host; CMakeLists.txt beside it includes this.
quendal_tests(desktop_services_test
  SOURCES
    services_main.cpp
    services_box_test.cpp
    services_calculator_test.cpp
    services_chart_legend_test.cpp
    services_chart_line_test.cpp
    services_chart_test.cpp
    services_chart_view_test.cpp
    services_command_line_test.cpp
    services_control_check_test.cpp
    services_control_test.cpp
    services_data_folder_test.cpp
    services_report_test.cpp
    services_rich_text_test.cpp
    services_rtf_test.cpp
    services_sound_test.cpp
    services_user_settings_test.cpp
    wmf_reader_test.cpp
  LINKS quendal_desktop quendal_test_support)

# Pictures of boxes, calculator and chart, for looking: quendal_desktop_services_gallery FOLDER
add_executable(quendal_desktop_services_gallery services_gallery.cpp)
target_link_libraries(quendal_desktop_services_gallery
  PRIVATE quendal_desktop quendal_test_support)
