// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/commands/command.h"
#include "skyview/commands/start.h"
#include "skyview/reports/body_report.h"

namespace skyview {
namespace {

struct BodyOptions {
  RootOptions root;
  std::string name;
};

BodyOptions Parse(const Call& call) {
  BodyOptions options;
  CommandLine line(call.command.name, call.command.purpose);
  line.TakeName("NAME", "a planet, the Sun or a moon, for example Mars", options.name);
  line.Take(kRootGroup, options.root);
  line.Parse(call.arguments);
  return options;
}

}  // namespace

std::string RunBody(const Call& call) {
  const BodyOptions options = Parse(call);
  EnterRoots(options.root, call.programFolder);
  std::string error;
  const auto description = DescribeBody(options.name, call.diagnostics.lines, error);
  Require(description.has_value(), error);
  return *description;
}

}  // namespace skyview
