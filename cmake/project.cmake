# Settings and helpers shared by every folder of the tree.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "" FORCE)
endif()

set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")

# Programs, libraries and the module lie side by side, so a build tree runs as it is.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)

find_program(CCACHE ccache)
if(CCACHE)
  # Without this sloppiness ccache would not cache what uses a precompiled header.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
    CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE})
  add_compile_options(-fpch-preprocess)
endif()

option(KW_WARNINGS_AS_ERRORS "Treat warnings in our own code as errors" ON)
add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(KW_WARNINGS_AS_ERRORS)
  add_compile_options(-Werror)
endif()
add_link_options(-Wl,--no-undefined -Wl,--as-needed)

option(KW_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
if(KW_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

if(KW_BUILD_FUZZERS)
  if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    message(FATAL_ERROR "The fuzz targets need clang: configure with -DCMAKE_CXX_COMPILER=clang++")
  endif()
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# project_library(<target> SOURCES <file>... [DEPS <target>...])
# One folder's code, as objects that a shared library or a test program gathers.
function(project_library target)
  cmake_parse_arguments(ARG "" "" "SOURCES;DEPS" ${ARGN})
  add_library(${target} OBJECT ${ARG_SOURCES})
  target_link_libraries(${target} PUBLIC ${ARG_DEPS})
  target_precompile_headers(${target} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/precompiled.h)
endfunction()

# project_objects(<target> <library>...)
# Gathers the objects of several folders and all that they link, for a whole library or a test.
function(project_objects target)
  add_library(${target} INTERFACE)
  foreach(library ${ARGN})
    target_sources(${target} INTERFACE $<TARGET_OBJECTS:${library}>)
    target_link_libraries(${target} INTERFACE
      $<TARGET_PROPERTY:${library},INTERFACE_LINK_LIBRARIES>)
    target_include_directories(${target} INTERFACE
      $<TARGET_PROPERTY:${library},INTERFACE_INCLUDE_DIRECTORIES>)
  endforeach()
endfunction()

# project_leftovers(<test program> <library>...)
# Has the tests of a program fail that leave something behind which those libraries count.
function(project_leftovers target)
  target_sources(${target} PRIVATE ${PROJECT_SOURCE_DIR}/tests/support/leftovers.cpp)
  foreach(pair
      host_database=opens kwhost=opens kwhostui=opens
      host_editor=selection_sets kwhost=selection_sets kwhostui=selection_sets
      module_values=value_records)
    string(REPLACE "=" ";" pair ${pair})
    list(GET pair 0 library)
    list(GET pair 1 counted)
    if(library IN_LIST ARGN)
      target_sources(${target} PRIVATE ${PROJECT_SOURCE_DIR}/tests/support/count_${counted}.cpp)
    endif()
  endforeach()
endfunction()

# project_test(<folder> SOURCES <file>... LIBRARIES <object library>... [DEPS <target>...])
# One test program for a folder, made of the objects of the named libraries, so that it reaches what
# a shared library keeps to itself. Each of its tests is known to CTest by its own name; under the
# sanitizers the program is one test, since starting it takes longer than most of its tests.
function(project_test folder)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES;DEPS" ${ARGN})
  set(target ${folder}_test)
  project_objects(${target}_objects ${ARG_LIBRARIES})
  add_executable(${target} ${ARG_SOURCES})
  target_link_libraries(${target} PRIVATE
    ${target}_objects ${ARG_DEPS} test_support GTest::gmock GTest::gtest_main)
  project_leftovers(${target} ${ARG_LIBRARIES} ${ARG_DEPS})
  if(CMAKE_CXX_FLAGS_DEBUG MATCHES "--coverage")
    target_sources(${target} PRIVATE ${PROJECT_SOURCE_DIR}/tests/support/dump_coverage.cpp)
  endif()
  target_precompile_headers(${target} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/precompiled_test.h)
  # Tests themselves need no speed, and from -O2 on GCC 12 warns of string code that is right.
  target_compile_options(${target} PRIVATE $<$<CONFIG:Release>:-O1>)
  if(KW_SANITIZE)
    add_test(NAME ${target} COMMAND ${target} --gtest_brief=1)
    set_tests_properties(${target} PROPERTIES
      ENVIRONMENT "QT_QPA_PLATFORM=offscreen" TIMEOUT 900)
  else()
    gtest_discover_tests(${target} DISCOVERY_TIMEOUT 60
      PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen" TIMEOUT 300)
  endif()
endfunction()
