# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
#
# The install tree: libraries, headers, a CMake package, pkg-config files, the programs and their data root.

# On Debian libraries lie in a folder of their architecture, also below /usr/local; CMake knows that of /usr alone.
if(EXISTS /etc/debian_version AND CMAKE_LIBRARY_ARCHITECTURE AND PROJECT_IS_TOP_LEVEL AND NOT CMAKE_CROSSCOMPILING)
  set(CMAKE_INSTALL_LIBDIR lib/${CMAKE_LIBRARY_ARCHITECTURE} CACHE PATH "Where libraries go, below the prefix")
endif()
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(ci_installed_libraries common_interfaces astro utils scene)
install(TARGETS ${ci_installed_libraries} EXPORT common_interfaces_targets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
set_target_properties(${ci_installed_libraries} PROPERTIES INSTALL_RPATH $ORIGIN)

install(DIRECTORY include/common_interfaces companions/astro/include/astro companions/utils/include/utils
  scene/include/scene
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN *.h)

set(ci_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/common_interfaces)
install(EXPORT common_interfaces_targets NAMESPACE common_interfaces:: DESTINATION ${ci_package_dir})
configure_package_config_file(cmake/common_interfacesConfig.cmake.in
  ${PROJECT_BINARY_DIR}/common_interfacesConfig.cmake INSTALL_DESTINATION ${ci_package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/common_interfacesConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/common_interfacesConfig.cmake
  ${PROJECT_BINARY_DIR}/common_interfacesConfigVersion.cmake DESTINATION ${ci_package_dir})

# The package may be moved: its prefix is found from where the .pc file lies.
file(RELATIVE_PATH ci_prefix_from_pc /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/$" "" ci_prefix_from_pc ${ci_prefix_from_pc})
foreach(name common_interfaces common_interfaces_scene)
  configure_file(cmake/${name}.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()

if(MINGW)
  install(FILES ${CI_RUNTIME_DLLS} DESTINATION ${CMAKE_INSTALL_BINDIR})
  # Their licences, which those who pass them on have to pass on too.
  foreach(package gcc-mingw-w64-i686-posix-runtime mingw-w64-i686-dev)
    install(FILES /usr/share/doc/${package}/copyright RENAME ${package}.txt
      DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/common_interfaces/runtime)
  endforeach()
  install(FILES /usr/share/common-licenses/GPL-3 RENAME GPL-3.txt
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/common_interfaces/runtime)
endif()

install(FILES LICENSE NOTICE.md DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/common_interfaces)
install(DIRECTORY LICENSES DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/common_interfaces)

if(CI_BUILD_PROGRAMS)
  install(TARGETS skyview skydata RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
  set_target_properties(skyview skydata PROPERTIES INSTALL_RPATH $ORIGIN/../${CMAKE_INSTALL_LIBDIR})
  # What a user of this tree has imported is his.
  install(DIRECTORY ${PROJECT_BINARY_DIR}/data/ DESTINATION ${CMAKE_INSTALL_DATADIR}/common_interfaces/data
    PATTERN deep_stars.tiles EXCLUDE)
endif()
