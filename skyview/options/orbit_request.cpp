// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/options/orbit_request.h"

namespace skyview {

std::optional<OrbitRequest> ParseOrbits(std::string_view text) {
  OrbitRequest request;
  for (bool more = true; more;) {
    const auto comma = text.find(',');
    const std::string_view name = text.substr(0, comma);
    if (name.find_first_not_of(' ') == std::string_view::npos) return std::nullopt;
    if (name == "planets") {
      request.planets = true;
    } else if (name == "moons") {
      request.moons = true;
    } else if (name == "all") {
      request.all = true;
    } else {
      request.names.emplace_back(name);
    }
    more = comma != std::string_view::npos;
    if (more) text.remove_prefix(comma + 1);
  }
  return request;
}

std::string FormatOrbits(const OrbitRequest& request) {
  std::string text;
  const auto add = [&text](const std::string& piece) { text += (text.empty() ? "" : ",") + piece; };
  if (request.all) add("all");
  if (request.planets) add("planets");
  if (request.moons) add("moons");
  for (const auto& name : request.names) add(name);
  return text;
}

}  // namespace skyview
