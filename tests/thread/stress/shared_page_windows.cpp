// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <stdexcept>

#include "thread/stress/shared_page.h"

namespace stress {

SharedPage::SharedPage(const std::string& name, bool make) : m_Name(name), m_Made(make) {
  m_Handle =
      make ? CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(Page), name.c_str())
           : OpenFileMappingA(FILE_MAP_ALL_ACCESS, FALSE, name.c_str());
  if (!m_Handle) throw std::runtime_error("CreateFileMapping");
  m_Page = static_cast<Page*>(MapViewOfFile(m_Handle, FILE_MAP_ALL_ACCESS, 0, 0, sizeof(Page)));
  if (!m_Page) throw std::runtime_error("MapViewOfFile");
}

SharedPage::~SharedPage() {
  UnmapViewOfFile(m_Page);
  CloseHandle(m_Handle);
}

}  // namespace stress
