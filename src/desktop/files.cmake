# What reads files and texts for the desktop host, without any toolkit: the fuzzers include this too.

set(QUENDAL_DESKTOP_FILES
  files/command_line.cpp
  files/control_check.cpp
  files/control_file.cpp
  files/nearest_word.cpp
  files/report_record.cpp
  files/rtf_builder.cpp
  files/rtf_reader.cpp
  files/rtf_tokens.cpp
  files/table_grid.cpp
  files/text_bytes.cpp
  files/wav_check.cpp
  files/wmf_objects.cpp
  files/wmf_reader.cpp
  files/wmf_shapes.cpp)
list(TRANSFORM QUENDAL_DESKTOP_FILES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
quendal_library(quendal_desktop_files SOURCES ${QUENDAL_DESKTOP_FILES} LINKS quendal_teacher)
