# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
#
# The shared library, and the same objects for tests that look inside.

add_library(common_interfaces ${CI_LIBRARY_KIND})
add_library(common_interfaces::common_interfaces ALIAS common_interfaces)
target_include_directories(common_interfaces PUBLIC
  $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include> $<INSTALL_INTERFACE:include>)
target_compile_features(common_interfaces PUBLIC cxx_std_20)
target_link_libraries(common_interfaces PUBLIC astro utils PRIVATE ci_compile_rules)
# Calls inside the library go straight to their functions.
if(NOT WIN32 AND NOT APPLE)
  target_link_options(common_interfaces PRIVATE -Wl,-Bsymbolic-functions)
endif()
ci_set_version(common_interfaces)

# common_interfaces_inside: every object of the library, its private headers included, for tests and fuzz targets.
add_library(common_interfaces_inside INTERFACE)
target_compile_definitions(common_interfaces_inside INTERFACE COMMON_INTERFACES_BUILD)
target_include_directories(common_interfaces_inside INTERFACE ${PROJECT_SOURCE_DIR}/include ${PROJECT_SOURCE_DIR})
target_link_libraries(common_interfaces_inside INTERFACE astro utils)

foreach(folder IN LISTS CI_LIBRARY_FOLDERS)
  target_link_libraries(common_interfaces PRIVATE ${folder}_objects)
  target_sources(common_interfaces_inside INTERFACE $<TARGET_OBJECTS:${folder}_objects>)
endforeach()
