// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What is shown of a work as time goes by.
#include <sstream>

#include <gtest/gtest.h>

#include "support/fault_injection_linux.h"
#include "utils/progress_bar.h"

namespace test_support {
namespace {

// Four fifths took 10 seconds and a little, the last one takes a quarter of that; a line that is shorter
// wipes out the one before.
TEST(Progress, TheTimeThatIsLeftIsShownFromTheSecondSecondOn) {
  std::ostringstream terminal;
  {
    ProgressBar bar(&terminal);
    bar.Show("reading", 0.0);
    AdvanceSteadyClock(10);
    bar.Show("reading", 0.8);
    AdvanceSteadyClock(1);
    bar.Show("x", 0.0);
  }
  AdvanceSteadyClock(-11);
  const std::string none(40, '.'), most = std::string(32, '#') + std::string(8, '.');
  const std::string first = "[" + none + "] 0 % reading", third = "[" + none + "] 0 % x";
  const std::string second = "[" + most + "] 80 % reading, 0:03 left";
  const std::string shown = terminal.str(), last = shown.substr(shown.rfind('[') - 1);
  EXPECT_EQ(shown.substr(0, first.size() + second.size() + 2), "\r" + first + "\r" + second);
  EXPECT_EQ(last, "\r" + third + std::string(second.size() - third.size(), ' ') + "\r" +
                      std::string(second.size(), ' ') + "\r");
}

}  // namespace
}  // namespace test_support
