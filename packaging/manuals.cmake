# The manual pages, packed as the man command expects them. NAME.1 is in English, NAME.de.1 in German.
find_program(QUENDAL_GZIP gzip REQUIRED)

# Packs SOURCE into NAME in the build folder; the same bytes whenever it is done.
function(quendal_packed source name)
  cmake_path(GET name PARENT_PATH folder)
  file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/${folder})
  add_custom_command(OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${name}
    COMMAND ${QUENDAL_GZIP} -9 -n -c ${source} > ${CMAKE_CURRENT_BINARY_DIR}/${name}
    DEPENDS ${source} VERBATIM)
  set_property(GLOBAL APPEND PROPERTY quendal_packed_files ${CMAKE_CURRENT_BINARY_DIR}/${name})
endfunction()

set(manuals quendal-script quendal-curves)
if(QUENDAL_DESKTOP)
  list(APPEND manuals quendal)
endif()
foreach(manual IN LISTS manuals)
  quendal_packed(${CMAKE_CURRENT_SOURCE_DIR}/man/${manual}.1 man1/${manual}.1.gz)
  quendal_packed(${CMAKE_CURRENT_SOURCE_DIR}/man/${manual}.de.1 de/man1/${manual}.1.gz)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/man1/${manual}.1.gz
    DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/de/man1/${manual}.1.gz
    DESTINATION ${CMAKE_INSTALL_MANDIR}/de/man1)
endforeach()
