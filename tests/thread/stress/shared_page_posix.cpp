// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <stdexcept>

#include "thread/stress/shared_page.h"

namespace stress {

SharedPage::SharedPage(const std::string& name, bool make) : m_Name("/" + name), m_Made(make) {
  const int file = shm_open(m_Name.c_str(), O_RDWR | (make ? O_CREAT | O_EXCL : 0), 0600);
  if (file < 0 || (make && ftruncate(file, sizeof(Page)) != 0)) throw std::runtime_error("shm_open");
  void* const memory = mmap(nullptr, sizeof(Page), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
  close(file);
  if (memory == MAP_FAILED) throw std::runtime_error("mmap");
  m_Page = static_cast<Page*>(memory);
}

SharedPage::~SharedPage() {
  munmap(m_Page, sizeof(Page));
  if (m_Made) shm_unlink(m_Name.c_str());
}

}  // namespace stress
