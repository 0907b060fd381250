# The services of the desktop host; CMakeLists.txt beside it includes this and adds the windows.

find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets Multimedia PrintSupport)
find_package(QCustomPlotQt6 REQUIRED)

include(${CMAKE_CURRENT_LIST_DIR}/files.cmake)

set(QUENDAL_DESKTOP_SERVICES
  about_box.cpp
  box_sign.cpp
  box_window.cpp
  calculator_display.cpp
  calculator_keypad.cpp
  calculator_window.cpp
  chart_plot.cpp
  chart_snapshot.cpp
  data_folder.cpp
  desktop_calculator.cpp
  desktop_host_app.cpp
  desktop_message_box.cpp
  desktop_random.cpp
  desktop_sound_bank.cpp
  desktop_system_info.cpp
  ini_host_control.cpp
  qcustomplot_chart_painter.cpp
  report_file.cpp
  rich_text_reader.cpp
  rich_text_writer.cpp
  synthetic_input.cpp
  veil.cpp
  wrapped_text.cpp)

set(QUENDAL_DESKTOP_SERVICE_LINKS
  quendal_desktop_files Qt6::Widgets Qt6::Multimedia Qt6::PrintSupport
  QCustomPlotQt6::QCustomPlotQt6)

# Where data_folder.cpp looks last.
include(GNUInstallDirs)
set_source_files_properties(data_folder.cpp PROPERTIES COMPILE_DEFINITIONS
  "QUENDAL_INSTALLED_DATA=\"${CMAKE_INSTALL_FULL_DATADIR}/quendal/data\";QUENDAL_SOURCE_DATA=\"${CMAKE_SOURCE_DIR}/data\"")
