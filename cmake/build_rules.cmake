# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
#
# How every target of the tree is compiled, and the three functions that make targets.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CI_LIBRARY_KIND SHARED)
if(WASI)  # a program is one module
  set(CMAKE_POSITION_INDEPENDENT_CODE OFF)
  set(CI_LIBRARY_KIND STATIC)
endif()
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)

# The compiler's runtime as DLLs, beside the programs and in the package: an exception thrown in one module can only be
# caught in another when both share the runtime that unwinds.
if(MINGW)
  foreach(dll libgcc_s_dw2-1.dll libstdc++-6.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll}
      OUTPUT_VARIABLE dll_path OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT EXISTS ${dll_path})
      find_file(dll_path_${dll} ${dll} PATH_SUFFIXES lib bin REQUIRED)
      set(dll_path ${dll_path_${dll}})
    endif()
    file(COPY ${dll_path} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
    list(APPEND CI_RUNTIME_DLLS ${dll_path})
  endforeach()
endif()

find_program(CI_CCACHE ccache)
find_program(CI_ENV env)
if(CI_CCACHE AND CI_ENV AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # What ccache must overlook to keep objects that are made with precompiled headers.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CI_ENV}
    CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CI_CCACHE})
endif()

add_library(ci_compile_rules INTERFACE)
target_compile_options(ci_compile_rules INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wformat=2
  $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor$<SEMICOLON>-Woverloaded-virtual>
  $<$<BOOL:${CI_WARNINGS_AS_ERRORS}>:-Werror>)
# GCC 12 sees overlapping copies in the concatenation of strings where there are none (GCC bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(ci_compile_rules INTERFACE -Wno-restrict)
endif()
# Clang wants braces around each row of a table that is an array in a structure; GCC knows that they may be left out.
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  target_compile_options(ci_compile_rules INTERFACE -Wno-missing-braces)
endif()
# Results must not depend on whether the compiler fuses a multiplication with an addition.
target_compile_options(ci_compile_rules INTERFACE -ffp-contract=off)
# Lines and function names for stack traces and profiles. Who looks at variables builds the preset "debug".
target_compile_options(ci_compile_rules INTERFACE $<$<CONFIG:RelWithDebInfo>:-g1>)
# Files of 2 GiB and more are recognised as such on 32-bit systems too.
target_compile_definitions(ci_compile_rules INTERFACE _FILE_OFFSET_BITS=64)
# An object that two threads use at once ends the process with one line (utils/one_thread.h).
option(CI_CHECK_THREADS "Notice objects that two threads use at once" OFF)
if(CI_CHECK_THREADS)
  target_compile_definitions(ci_compile_rules INTERFACE CI_CHECK_THREADS)
endif()
if(CI_SANITIZE)
  set(ci_sanitizers -fsanitize=${CI_SANITIZE} -fno-sanitize-recover=all)
  target_compile_options(ci_compile_rules INTERFACE ${ci_sanitizers} -fno-omit-frame-pointer -g1)
  target_link_options(ci_compile_rules INTERFACE ${ci_sanitizers})
endif()

# What is tested is optimised, the tests are not: they would take three times as long to compile.
set(CI_OBJECT_OPTIONS)
set(ci_is_sanitized 0)
if(CI_SANITIZE)
  set(CI_OBJECT_OPTIONS -O1)
  set(ci_is_sanitized 1)
endif()
set(CI_TEST_OPTIONS -O0 -g1)
# AddressSanitizer looks at the tests too, UndefinedBehaviorSanitizer at what they test.
if(CI_SANITIZE)
  list(APPEND CI_TEST_OPTIONS -fno-sanitize=undefined,float-cast-overflow)
endif()

include(cmake/precompiled_headers.cmake)
include(cmake/compile_units.cmake)

# ci_compile_parsers_fast(SOURCES...): those that include the command line parser, headers only and the longest to
# compile of all, are not optimised: it reads a few words a run. Without optimisation they cannot use what is
# precompiled for the others.
function(ci_compile_parsers_fast)
  foreach(source IN LISTS ARGN)
    file(STRINGS ${source} includes REGEX "^#include <CLI/" LIMIT_COUNT 1)
    if(includes)
      set_source_files_properties(${source} PROPERTIES COMPILE_OPTIONS -O0 SKIP_PRECOMPILE_HEADERS ON)
    endif()
  endforeach()
endfunction()

# ci_add_objects(NAME SOURCES...): the object library of one folder.
function(ci_add_objects name)
  add_library(${name} OBJECT ${ARGN})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
  target_compile_options(${name} PRIVATE ${CI_OBJECT_OPTIONS})
  target_link_libraries(${name} PRIVATE ci_compile_rules)
  ci_compile_parsers_fast(${ARGN})
  ci_precompile_objects(${name})
  ci_make_units(${name} ALL)
endfunction()

# ci_add_library_folder(FOLDER SOURCES...): a folder of the library itself, as target FOLDER_objects.
function(ci_add_library_folder folder)
  ci_add_objects(${folder}_objects ${ARGN})
  target_compile_definitions(${folder}_objects PRIVATE COMMON_INTERFACES_BUILD)
  target_include_directories(${folder}_objects PRIVATE ${PROJECT_SOURCE_DIR}/include)
  target_link_libraries(${folder}_objects PRIVATE astro utils)
endfunction()

# ci_set_version(LIBRARY): the version of the project, and the number in the name that programs load the library by. It
# moves when programs that were built before can no longer run: the major number; before 1.0 the minor one too
# (docs/versions.md).
function(ci_set_version library)
  set(soversion ${PROJECT_VERSION_MAJOR})
  if(PROJECT_VERSION_MAJOR EQUAL 0)
    set(soversion 0.${PROJECT_VERSION_MINOR})
  endif()
  set_target_properties(${library} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${soversion})
endfunction()

# ci_add_companion(NAME SOURCES...): a companion library as objects and as a shared library.
function(ci_add_companion name)
  string(TOUPPER ${name} upper)
  ci_add_objects(${name}_objects ${ARGN})
  target_compile_definitions(${name}_objects PRIVATE ${upper}_BUILD)
  target_include_directories(${name}_objects PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/include)
  add_library(${name} ${CI_LIBRARY_KIND})
  add_library(common_interfaces::${name} ALIAS ${name})
  target_link_libraries(${name} PRIVATE ${name}_objects ci_compile_rules)
  target_include_directories(${name} PUBLIC
    $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}/include> $<INSTALL_INTERFACE:include>)
  target_compile_features(${name} PUBLIC cxx_std_20)
  ci_set_version(${name})
endfunction()

# ci_find_cli11(): the target CLI11::CLI11, headers only, also for a target whose system has no such package: then the
# headers of the building system are taken, alone.
function(ci_find_cli11)
  find_package(CLI11 QUIET)
  if(NOT TARGET CLI11::CLI11)
    find_path(CI_CLI11_INCLUDE CLI/CLI.hpp PATHS /usr/include REQUIRED NO_CMAKE_FIND_ROOT_PATH)
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/cli11)
    file(CREATE_LINK ${CI_CLI11_INCLUDE}/CLI ${PROJECT_BINARY_DIR}/cli11/CLI SYMBOLIC)
    add_library(CLI11::CLI11 INTERFACE IMPORTED GLOBAL)
    target_include_directories(CLI11::CLI11 INTERFACE ${PROJECT_BINARY_DIR}/cli11)
  endif()
endfunction()
