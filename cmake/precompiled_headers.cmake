# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
#
# Headers that most sources read, compiled once for all targets that are compiled alike: half of the time of a build from
# scratch. A source includes what it uses all the same: the presets wasm32 and debug precompile nothing and find one
# that does not. clang-tidy cannot read what GCC has precompiled, so it takes the compile commands of the preset debug.

option(CI_PRECOMPILED_HEADERS "Compile the most used headers once" ON)

set(ci_precompiled_dir ${PROJECT_BINARY_DIR}/precompiled)
file(CONFIGURE OUTPUT ${ci_precompiled_dir}/objects.cpp CONTENT "")
file(CONFIGURE OUTPUT ${ci_precompiled_dir}/tests.cpp CONTENT "")
set(ci_standard_headers <algorithm> <charconv> <cmath> <cstdint> <cstdio> <cstdlib> <cstring> <filesystem> <fstream>
  <functional> <iterator> <limits> <map> <memory> <optional> <set> <sstream> <string> <string_view> <utility> <vector>)

# ci_use_precompiled(TARGET OWNER)
function(ci_use_precompiled target owner)
  target_precompile_headers(${target} REUSE_FROM ${owner})
  # GCC 12 warns of strings that are joined (GCC bug 105651), and no longer sees that the place is in a system header.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(${target} PRIVATE -Wno-array-bounds -Wno-stringop-overflow -Wno-stringop-overread)
  endif()
endfunction()

# ci_precompile_objects(TARGET): TARGET is compiled as ci_add_objects does it.
function(ci_precompile_objects target)
  if(NOT CI_PRECOMPILED_HEADERS)
    return()
  endif()
  if(NOT TARGET ci_precompiled_objects)
    add_library(ci_precompiled_objects OBJECT ${ci_precompiled_dir}/objects.cpp)
    target_link_libraries(ci_precompiled_objects PRIVATE ci_compile_rules)
    target_compile_options(ci_precompiled_objects PRIVATE ${CI_OBJECT_OPTIONS})
    target_precompile_headers(ci_precompiled_objects PRIVATE ${ci_standard_headers})
  endif()
  ci_use_precompiled(${target} ci_precompiled_objects)
endfunction()

# ci_precompile_tests(TARGET): TARGET is compiled as ci_add_test_program does it. The owner of the headers is a program
# too, since programs are compiled as other position-independent code than libraries.
function(ci_precompile_tests target)
  if(NOT CI_PRECOMPILED_HEADERS)
    return()
  endif()
  if(NOT TARGET ci_precompiled_tests)
    add_executable(ci_precompiled_tests ${ci_precompiled_dir}/tests.cpp)
    set_target_properties(ci_precompiled_tests PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${ci_precompiled_dir})
    target_link_libraries(ci_precompiled_tests PRIVATE ci_compile_rules GTest::gtest_main)
    target_compile_options(ci_precompiled_tests PRIVATE ${CI_TEST_OPTIONS})
    target_precompile_headers(ci_precompiled_tests PRIVATE ${ci_standard_headers} <gtest/gtest.h>)
  endif()
  ci_use_precompiled(${target} ci_precompiled_tests)
endfunction()
