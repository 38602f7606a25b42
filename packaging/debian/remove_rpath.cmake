# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
file(GLOB modules debian/tmp/usr/bin/* debian/tmp/usr/lib/*/lib*.so.*)
foreach(module IN LISTS modules)
  if(NOT IS_SYMLINK ${module})
    file(RPATH_REMOVE FILE ${module})
  endif()
endforeach()
