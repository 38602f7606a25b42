# Installs the build tree into a scratch prefix, moves that prefix, and builds and runs the program against it.
cmake_minimum_required(VERSION 3.25)

function(run)
  execute_process(COMMAND ${ARGN} COMMAND_ECHO STDOUT COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(REMOVE_RECURSE ${SCRATCH})
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${SCRATCH}/installed)
file(RENAME ${SCRATCH}/installed ${SCRATCH}/moved)  # the package must not depend on where it was installed

run(${CMAKE_COMMAND} -G ${GENERATOR} -S ${PROGRAM_DIR} -B ${SCRATCH}/program
    -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_PREFIX_PATH=${SCRATCH}/moved)
run(${CMAKE_COMMAND} --build ${SCRATCH}/program)
run(${SCRATCH}/program/program)

file(GLOB_RECURSE pc ${SCRATCH}/moved/common_interfaces.pc)
get_filename_component(pc_dir ${pc} DIRECTORY)
get_filename_component(lib_dir ${pc_dir} DIRECTORY)
set(ENV{PKG_CONFIG_PATH} ${pc_dir})
execute_process(COMMAND pkg-config --cflags --libs common_interfaces
  OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${flags}")
run(${COMPILER} -std=c++20 ${PROGRAM_DIR}/program.cpp ${flags} -Wl,-rpath,${lib_dir} -o ${SCRATCH}/program_pc)
run(${SCRATCH}/program_pc)

# The installed application finds its data beside itself.
run(${SCRATCH}/moved/bin/skyview --list-limits --work ${SCRATCH}/work)
