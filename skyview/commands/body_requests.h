// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What the options --tle, --orbits, --where and --light-curve ask for.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "common_interfaces/camera.h"
#include "scene/object_search.h"
#include "skyview/options/options.h"
#include "scene/sky_frame.h"

namespace skyview {

// Appends the satellites of --tle, a file of the current folder or a logical name below the roots; those that are lost
// at the view's moment are reported. False when the file cannot be used: `error` is then one line.
bool AddSatellites(const Options& options, const CommonInterfaces::Camera& camera, scene::BodyList& bodies,
                   std::string& error);

// The bodies whose orbits --orbits asks for, each once. False for a name that is no one body with an orbit: `error` is
// then one line. `search` may be null when no names are asked for.
bool FindOrbits(const Options& options, const scene::ObjectSearch* search, const scene::BodyList& bodies,
                std::vector<int>& orbits, std::string& error);

// Switches the orbits on: at once for a picture, over a second of the animation clock for a
// sequence.
void ShowOrbits(const Options& options, const std::vector<int>& orbits, scene::SkyFrame& frame);

// Draws the light curve of --light-curve around the moment to the pictures and says in one line what was drawn. False
// when a picture cannot be written: `error` is then one line.
bool DrawLightCurve(const Options& options, const CommonInterfaces::Camera& camera, std::string& text,
                    std::string& error);

}  // namespace skyview
