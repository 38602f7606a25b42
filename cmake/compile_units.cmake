# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
#
# Sources that the compiler reads as one (compile_units.py says which), so that a build from scratch takes half of the
# time. Who changes a source waits for its unit, so the preset debug has none. The objects of release and wasm32 are
# compiled one by one: there a source that lives on what another includes is found.

set(CI_COMPILE_UNITS OFF CACHE STRING "Which sources are compiled together: OFF, TESTS, those of test programs, or ALL")
set_property(CACHE CI_COMPILE_UNITS PROPERTY STRINGS OFF TESTS ALL)

set(ci_most_in_unit 16)

# ci_make_units(TARGET KIND): of the sources that TARGET has by now; KIND: TESTS or ALL.
function(ci_make_units target kind)
  if(NOT CI_COMPILE_UNITS STREQUAL kind AND NOT CI_COMPILE_UNITS STREQUAL ALL)
    return()
  endif()
  # A source that another target of the folder has too keeps its unit: a part of a unit is one as well.
  set(sources "")
  get_target_property(all_sources ${target} SOURCES)
  foreach(source IN LISTS all_sources)
    get_source_file_property(unit ${source} UNITY_GROUP)
    if(NOT unit AND NOT source MATCHES "\\$<")
      cmake_path(ABSOLUTE_PATH source BASE_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR} NORMALIZE)
      list(APPEND sources ${source})
    endif()
  endforeach()
  execute_process(COMMAND python3 ${PROJECT_SOURCE_DIR}/cmake/compile_units.py ${ci_most_in_unit} ${sources}
    OUTPUT_VARIABLE lines OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  string(REPLACE "\n" ";" lines "${lines}")
  foreach(line IN LISTS lines)
    string(REGEX MATCH "^(.*)\t(.*)$" line "${line}")
    set_source_files_properties(${CMAKE_MATCH_1} PROPERTIES UNITY_GROUP ${target}_${CMAKE_MATCH_2})
  endforeach()
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
  # Fixtures in unnamed namespaces: to GCC only the first file of a unit is no header.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${target} PRIVATE -Wno-subobject-linkage)
  endif()
endfunction()
