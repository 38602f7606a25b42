// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/utils/files/file_owner_posix.h"
#include "companions/utils/files/replace_file_platform.h"

namespace utils_internal {

bool MayOwnerWrite(const struct stat&) { return true; }

bool CopyPermissions(int, const struct stat&) { return true; }

TargetLock::TargetLock(const std::string&) : m_Handle(-1) {}
TargetLock::~TargetLock() { m_Handle = -1; }

}  // namespace utils_internal
