// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/session/orbit_request.h"

#include <algorithm>

#include "utils/text.h"

namespace scene {
namespace {

// Those of a group of bodies.
std::vector<int> FindGroups(const OrbitRequest& request, const BodyList& bodies) {
  std::vector<int> orbits;
  for (int i = 0; i < static_cast<int>(bodies.size()); ++i) {
    const int kind = bodies[static_cast<std::size_t>(i)].id.kind;
    const bool asked =
        (request.planets && kind == FourCC("plnt")) || (request.moons && kind == FourCC("moon"));
    if (i != kSunBody && (request.all || asked)) orbits.push_back(i);
  }
  return orbits;
}

}  // namespace

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

std::optional<std::vector<int>> FindOrbitBodies(const OrbitRequest& request, const BodyList& bodies,
                                                const ObjectSearch& search, std::string& error) {
  std::vector<int> orbits = FindGroups(request, bodies);
  for (const auto& name : request.names) {
    const auto found = search.FindOne(name, error);
    if (!found) return std::nullopt;
    if (found->group != ObjectGroup::kBody || found->index == kSunBody) {
      error = "'" + name + "': has no orbit that can be drawn";
      return std::nullopt;
    }
    if (std::find(orbits.begin(), orbits.end(), found->index) == orbits.end()) orbits.push_back(found->index);
  }
  return orbits;
}

}  // namespace scene
