# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
#
# scene_web: the scene as one module for browsers and Node, bin/scene.wasm, with the functions of scene_c.h and the
# memory that they are called with.
set(ci_c_header ${PROJECT_SOURCE_DIR}/scene/include/scene/scene_c.h)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${ci_c_header})
file(READ ${ci_c_header} ci_c_text)
string(REGEX MATCHALL "SCENE_API [^;]*[^a-z_](scene_[a-z_0-9]+)\\(" ci_c_functions "${ci_c_text}")
list(TRANSFORM ci_c_functions REPLACE "^.*[^a-z_](scene_[a-z_0-9]+)\\($" "-Wl,--export=\\1")

file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/scene_web.cpp CONTENT "")
add_executable(scene_web ${PROJECT_BINARY_DIR}/scene_web.cpp)
target_link_libraries(scene_web PRIVATE scene_inside common_interfaces_inside)
target_link_options(scene_web PRIVATE -mexec-model=reactor ${ci_c_functions} -Wl,--export=malloc -Wl,--export=free
  -Wl,--gc-sections -Wl,--strip-all)
set_target_properties(scene_web PROPERTIES OUTPUT_NAME scene)
