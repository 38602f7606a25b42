# Installs the build tree into a scratch prefix, puts that elsewhere, looks what it holds, and builds and runs programs
# against it: those beside this file and the examples. With an EMULATOR they are programs of another system, and their
# libraries lie beside them.
cmake_minimum_required(VERSION 3.25)

function(run)
  execute_process(COMMAND ${ARGN} COMMAND_ECHO STDOUT COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# What an application gets. It must not depend on where it was installed: a package of this system is moved, one of
# another is packed and unpacked, as script/package does it.
file(REMOVE_RECURSE ${SCRATCH})
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${SCRATCH}/installed)
if(EMULATOR)
  run(${CMAKE_COMMAND} -E chdir ${SCRATCH} ${CMAKE_COMMAND} -E tar cf package.zip --format=zip installed)
  file(REMOVE_RECURSE ${SCRATCH}/installed)
  run(${CMAKE_COMMAND} -E chdir ${SCRATCH} ${CMAKE_COMMAND} -E tar xf package.zip)
endif()
file(RENAME ${SCRATCH}/installed ${SCRATCH}/moved)
set(data ${SCRATCH}/moved/share/common_interfaces/data)

# check_contents(PATTERNS...): there is a file of each.
function(check_contents)
  foreach(pattern IN LISTS ARGN)
    file(GLOB found ${SCRATCH}/moved/${pattern})
    if(NOT found)
      message(FATAL_ERROR "the package has no ${pattern}")
    endif()
  endforeach()
endfunction()

set(libraries common_interfaces astro utils common_interfaces_scene)
check_contents(include/common_interfaces/camera.h include/astro/astro.h include/utils/utils.h include/scene/scene.h
  bin/skyview${SUFFIX} bin/skydata${SUFFIX} share/common_interfaces/data/media
  share/doc/common_interfaces/LICENSE share/doc/common_interfaces/NOTICE.md share/doc/common_interfaces/LICENSES/*.txt)
if(SUFFIX STREQUAL ".exe")
  list(TRANSFORM libraries PREPEND bin/lib OUTPUT_VARIABLE dlls)
  list(TRANSFORM dlls APPEND .dll)
  list(TRANSFORM libraries PREPEND lib/lib OUTPUT_VARIABLE import_libraries)
  list(TRANSFORM import_libraries APPEND .dll.a)
  check_contents(${dlls} ${import_libraries} bin/libstdc++-6.dll bin/libgcc_s_dw2-1.dll bin/libwinpthread-1.dll
    share/doc/common_interfaces/runtime/gcc*.txt share/doc/common_interfaces/runtime/mingw*.txt
    share/doc/common_interfaces/runtime/GPL-3.txt)
endif()

file(GLOB_RECURSE config ${SCRATCH}/moved/common_interfacesConfig.cmake)
get_filename_component(config_dir ${config} DIRECTORY)
set(how -DCMAKE_CXX_COMPILER=${COMPILER})
if(TOOLCHAIN)
  set(how -DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN})
endif()

# check_with_cmake(FOLDER ARGUMENTS...): the program of the folder, which has its name, finds the CMake package.
function(check_with_cmake folder)
  get_filename_component(name ${folder} NAME)
  set(build ${SCRATCH}/${name})
  run(${CMAKE_COMMAND} -G ${GENERATOR} -S ${folder} -B ${build} ${how} -Dcommon_interfaces_DIR=${config_dir})
  run(${CMAKE_COMMAND} --build ${build})
  if(EMULATOR)
    file(COPY ${build}/${name}${SUFFIX} DESTINATION ${SCRATCH}/moved/bin)
    set(build ${SCRATCH}/moved/bin)
  endif()
  run(${EMULATOR} ${build}/${name}${SUFFIX} ${ARGN})
endfunction()

# check_with_pkg_config(FOLDER MODULE ARGUMENTS...): the same, but it is pkg-config that tells the compiler.
function(check_with_pkg_config folder module)
  get_filename_component(name ${folder} NAME)
  file(GLOB_RECURSE pc ${SCRATCH}/moved/${module}.pc)
  file(GLOB source ${folder}/${name}.c*)
  get_filename_component(pc_dir ${pc} DIRECTORY)
  get_filename_component(lib_dir ${pc_dir} DIRECTORY)
  set(ENV{PKG_CONFIG_PATH} ${pc_dir})
  execute_process(COMMAND pkg-config --cflags --libs ${module}
    OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  separate_arguments(flags UNIX_COMMAND "${flags}")
  set(compiler ${COMPILER} -std=c++20)
  if(source MATCHES "[.]c$")
    set(compiler cc -std=c99)
  endif()
  run(${compiler} ${source} ${flags} -Wl,-rpath,${lib_dir} -o ${SCRATCH}/${name}_pc)
  run(${SCRATCH}/${name}_pc ${ARGN})
endfunction()

check_with_cmake(${PROGRAMS}/program)
check_with_cmake(${PROGRAMS}/scene_program ${data})
check_with_cmake(${PROGRAMS}/c_program ${data})
check_with_cmake(${EXAMPLES}/draw_svg ${data} ${SCRATCH}/draw_svg.svg)
check_with_cmake(${EXAMPLES}/camera_only ${data})
if(NOT EMULATOR)
  check_with_pkg_config(${PROGRAMS}/program common_interfaces)
  check_with_pkg_config(${PROGRAMS}/scene_program common_interfaces_scene ${data})
  check_with_pkg_config(${PROGRAMS}/c_program common_interfaces_scene ${data})
endif()

# The installed application finds its data beside itself.
run(${EMULATOR} ${SCRATCH}/moved/bin/skyview${SUFFIX} limits --work ${SCRATCH}/work)
