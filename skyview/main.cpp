// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <iostream>

#include "scene/catalogs/data_root.h"
#include "skyview/commands/skyview.h"
#include "utils/program.h"

namespace {

UTILS_MADE_FIRST const MemoryGuard s_Guard("skyview");

int Run(int argumentCount, char** arguments) {
  return skyview::Run({arguments + 1, arguments + argumentCount}, GetProgramFolder(), std::cout, std::cerr);
}

}  // namespace

int main(int argumentCount, char** arguments) { return RunProgram(Run, argumentCount, arguments); }
