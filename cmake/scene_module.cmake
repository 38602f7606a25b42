# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
#
# scene_web: the scene as one module for browsers and Node, bin/scene.wasm, with the functions of the C headers and
# the memory that they are called with.
file(GLOB ci_c_headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/scene/include/scene/*_c.h)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${ci_c_headers})
set(ci_exports -Wl,--export=malloc -Wl,--export=free)
foreach(header IN LISTS ci_c_headers)
  file(READ ${header} text)
  string(REGEX MATCHALL "SCENE_API [^;]*[^a-z_](scene_[a-z_0-9]+)\\(" functions "${text}")
  list(TRANSFORM functions REPLACE "^.*[^a-z_](scene_[a-z_0-9]+)\\($" "-Wl,--export=\\1")
  list(APPEND ci_exports ${functions})
endforeach()

file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/scene_web.cpp CONTENT "")
add_executable(scene_web ${PROJECT_BINARY_DIR}/scene_web.cpp)
target_link_libraries(scene_web PRIVATE scene_inside common_interfaces_inside)
target_link_options(scene_web PRIVATE -mexec-model=reactor ${ci_exports} -Wl,--gc-sections
  -Wl,--strip-all)
set_target_properties(scene_web PROPERTIES OUTPUT_NAME scene)
