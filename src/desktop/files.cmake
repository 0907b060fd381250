# What reads files and texts for the desktop host, without any toolkit: the fuzzers include this too.

set(QUENDAL_DESKTOP_FILES
  command_line.cpp
  control_file.cpp
  report_record.cpp
  rtf_builder.cpp
  rtf_reader.cpp
  rtf_tokens.cpp
  table_grid.cpp
  text_bytes.cpp)
list(TRANSFORM QUENDAL_DESKTOP_FILES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
quendal_library(quendal_desktop_files SOURCES ${QUENDAL_DESKTOP_FILES} LINKS quendal_host)
