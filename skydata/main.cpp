// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <iostream>

#include "skydata/command_line.h"
#include "skydata/standard_streams.h"
#include "utils/program.h"

namespace {

UTILS_MADE_FIRST const MemoryGuard s_Guard("skydata");

int Run(int argc, char** argv) {
  skydata::KeepStreamBytes();
  return skydata::Run(std::vector<std::string>(argv + std::min(argc, 1), argv + argc), std::cout, std::cerr);
}

}  // namespace

int main(int argc, char** argv) { return RunProgram(Run, argc, argv); }
