# The services of the desktop host; CMakeLists.txt beside it includes this and adds the windows.

find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets Multimedia PrintSupport)
find_package(QCustomPlotQt6 REQUIRED)

include(${CMAKE_CURRENT_LIST_DIR}/files.cmake)

set(QUENDAL_DESKTOP_SERVICES
  boxes/about_box.cpp
  boxes/box_sign.cpp
  boxes/box_window.cpp
  boxes/calculator_display.cpp
  boxes/calculator_keypad.cpp
  boxes/calculator_window.cpp
  boxes/desktop_calculator.cpp
  boxes/desktop_message_box.cpp
  boxes/veil.cpp
  boxes/wrapped_text.cpp
  charts/chart_legend.cpp
  charts/chart_plot.cpp
  charts/chart_snapshot.cpp
  charts/chemical_term.cpp
  charts/fitted_segments.cpp
  charts/qcustomplot_chart_painter.cpp
  script/synthetic_input.cpp
  services/data_folder.cpp
  services/desktop_host_app.cpp
  services/desktop_random.cpp
  services/desktop_sound_bank.cpp
  services/desktop_system_info.cpp
  services/ini_host_control.cpp
  services/report_file.cpp
  services/rich_text_reader.cpp
  services/rich_text_writer.cpp
  services/user_settings.cpp)

set(QUENDAL_DESKTOP_SERVICE_LINKS
  quendal_desktop_files Qt6::Widgets Qt6::Multimedia Qt6::PrintSupport
  QCustomPlotQt6::QCustomPlotQt6)

# Where services/data_folder.cpp looks last.
set_source_files_properties(services/data_folder.cpp PROPERTIES COMPILE_DEFINITIONS
  "QUENDAL_INSTALLED_DATA=\"${QUENDAL_INSTALLED_DATA}\"")
