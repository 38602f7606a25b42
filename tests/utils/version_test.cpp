// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/version.h"

#include <gtest/gtest.h>

namespace {

TEST(WorkspaceVersion, IsZeroUntilTheHostSetsIt) {
  EXPECT_EQ(GetWorkspaceVersion(), 0u);
  SetWorkspaceVersion(0xFFFFFFFFu);
  EXPECT_EQ(GetWorkspaceVersion(), 0xFFFFFFFFu);
  SetWorkspaceVersion(0);
}

}  // namespace
