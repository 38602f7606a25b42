// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <iostream>

#include "skyview/session/sky_roots.h"
#include "skyview/commands/skyview.h"
#include "utils/program.h"

int main(int argumentCount, char** arguments) {
  return skyview::Run({arguments + 1, arguments + argumentCount}, GetProgramFolder(), std::cout, std::cerr);
}
