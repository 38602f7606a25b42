# Installs the build tree into a scratch prefix, moves that prefix, and builds and runs the program against it. With an
# EMULATOR the programs are those of another system, and their libraries lie beside them.
cmake_minimum_required(VERSION 3.25)

function(run)
  execute_process(COMMAND ${ARGN} COMMAND_ECHO STDOUT COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(REMOVE_RECURSE ${SCRATCH})
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${SCRATCH}/installed)
file(RENAME ${SCRATCH}/installed ${SCRATCH}/moved)  # the package must not depend on where it was installed

file(GLOB_RECURSE config ${SCRATCH}/moved/common_interfacesConfig.cmake)
get_filename_component(config_dir ${config} DIRECTORY)
set(how -DCMAKE_CXX_COMPILER=${COMPILER})
if(TOOLCHAIN)
  set(how -DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN})
endif()
run(${CMAKE_COMMAND} -G ${GENERATOR} -S ${PROGRAM_DIR} -B ${SCRATCH}/program ${how}
    -Dcommon_interfaces_DIR=${config_dir})
run(${CMAKE_COMMAND} --build ${SCRATCH}/program)
if(EMULATOR)
  file(COPY ${SCRATCH}/program/program${SUFFIX} DESTINATION ${SCRATCH}/moved/bin)
  run(${EMULATOR} ${SCRATCH}/moved/bin/program${SUFFIX})
else()
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
endif()

# The installed application finds its data beside itself.
run(${EMULATOR} ${SCRATCH}/moved/bin/skyview${SUFFIX} limits --work ${SCRATCH}/work)
