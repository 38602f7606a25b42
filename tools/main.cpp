// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <iostream>

#include "tools/command_line.h"

int main(int argc, char** argv) {
  return skydata::Run(std::vector<std::string>(argv + std::min(argc, 1), argv + argc), std::cout, std::cerr);
}
