# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
#
# Builds an example within an application that has the libraries in its own tree, in both ways that CMake has for it. The
# second finds what the first has compiled. FetchContent takes the sources of SOURCE instead of a clone of it.
cmake_minimum_required(VERSION 3.25)

function(run)
  execute_process(COMMAND ${ARGN} COMMAND_ECHO STDOUT COMMAND_ERROR_IS_FATAL ANY)
endfunction()

get_filename_component(name ${EXAMPLE} NAME)
file(REMOVE_RECURSE ${SCRATCH})
foreach(how add_subdirectory FetchContent)
  run(${CMAKE_COMMAND} -G ${GENERATOR} -S ${PROJECT} -B ${SCRATCH} -DCMAKE_CXX_COMPILER=${COMPILER} -DHOW=${how}
    -DSOURCE=${SOURCE} -DEXAMPLE=${EXAMPLE} -DFETCHCONTENT_SOURCE_DIR_COMMON_INTERFACES=${SOURCE})
  file(REMOVE ${SCRATCH}/example/${name})
  run(${CMAKE_COMMAND} --build ${SCRATCH} --target ${name})
  run(${SCRATCH}/example/${name} ${DATA})
  # Nothing but the libraries gets into the application's tree.
  execute_process(COMMAND ${CMAKE_COMMAND} --build ${SCRATCH} --target help
    OUTPUT_VARIABLE targets COMMAND_ERROR_IS_FATAL ANY)
  foreach(other skyview skydata cookbook draw_svg utils_tests)
    if(targets MATCHES "(^|\n)${other}: ")
      message(FATAL_ERROR "${how}: the application gets the target ${other}")
    endif()
  endforeach()
endforeach()
