# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
#
# Sources of a folder that the compiler reads as one (compile_units.py says which): a build from scratch takes a third of
# the time. Who changes one source wants it compiled alone, so the presets release and debug have no units; they and
# wasm32 find a source that lives on what another includes.

option(CI_COMPILE_UNITS "Compile sources of a folder together" OFF)

set(ci_most_in_unit 16)

# ci_make_units(TARGET): of the sources that TARGET has by now.
function(ci_make_units target)
  if(NOT CI_COMPILE_UNITS)
    return()
  endif()
  get_target_property(sources ${target} SOURCES)
  list(FILTER sources EXCLUDE REGEX "\\$<")
  list(TRANSFORM sources PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ REGEX "^[^/]")
  execute_process(COMMAND python3 ${PROJECT_SOURCE_DIR}/cmake/compile_units.py ${ci_most_in_unit} ${sources}
    OUTPUT_VARIABLE lines OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  string(REPLACE "\n" ";" lines "${lines}")
  foreach(line IN LISTS lines)
    string(REGEX MATCH "^(.*)\t(.*)$" line "${line}")
    set_source_files_properties(${CMAKE_MATCH_1} PROPERTIES UNITY_GROUP ${CMAKE_MATCH_2})
  endforeach()
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
  # Fixtures in unnamed namespaces: to GCC only the first file of a unit is no header.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${target} PRIVATE -Wno-subobject-linkage)
  endif()
endfunction()
