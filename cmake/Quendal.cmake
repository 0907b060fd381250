# Settings that every target of the project shares.

include(GNUInstallDirs)
set(CMAKE_INSTALL_DOCDIR ${CMAKE_INSTALL_DATAROOTDIR}/doc/quendal)
set(QUENDAL_INSTALLED_DATA ${CMAKE_INSTALL_FULL_DATADIR}/quendal/data)
# The build folder is laid out like an installed program, so that both look in the same place.
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/share/quendal)
file(CREATE_LINK ${CMAKE_SOURCE_DIR}/data ${CMAKE_BINARY_DIR}/share/quendal/data SYMBOLIC)
file(CREATE_LINK ${CMAKE_SOURCE_DIR}/tests/scripts/tour.qs
  ${CMAKE_BINARY_DIR}/share/quendal/tour.qs SYMBOLIC)

add_library(quendal_options INTERFACE)
target_compile_features(quendal_options INTERFACE cxx_std_20)
# No contraction into fused operations: the numbers agree to the last bit on every machine.
target_compile_options(quendal_options INTERFACE
  -ffp-contract=off -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
  # Rows name the fields they set; the others keep their defaults on purpose.
  -Wno-missing-field-initializers
  $<$<BOOL:${QUENDAL_WERROR}>:-Werror>)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # g++ 12 warns of overlapping copies inside the library's own text concatenation.
  target_compile_options(quendal_options INTERFACE -Wno-restrict)
endif()
if(QUENDAL_SANITIZE)
  target_compile_options(quendal_options INTERFACE
    -fsanitize=${QUENDAL_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all
    # g++ 12 sees uninitialised variants where its own instrumentation stands between.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_link_options(quendal_options INTERFACE -fsanitize=${QUENDAL_SANITIZE})
endif()
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# A library of one folder of src/, with the folder's sources and what lies below it in the house.
function(quendal_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC quendal_options ${ARG_LINKS})
endfunction()

# Compiling the tests takes longer than running them: they themselves are hardly optimised.
set(QUENDAL_TEST_OPTIONS $<$<CONFIG:Release>:-O1>)
if(QUENDAL_SANITIZE)
  set(QUENDAL_TEST_OPTIONS -O0)
endif()

# The tests of one folder, run under ctest one by one.
function(quendal_tests name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/tests)
  target_compile_definitions(${name} PRIVATE QUENDAL_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
  target_compile_options(${name} PRIVATE ${QUENDAL_TEST_OPTIONS})
  target_link_libraries(${name} PRIVATE quendal_options ${ARG_LINKS} GTest::gtest GTest::gtest_main)
  gtest_discover_tests(${name} NO_PRETTY_VALUES DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
endfunction()
