// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Where one object is, in words.
#pragma once

#include <string>

#include "common_interfaces/camera.h"
#include "scene/search/object_sight.h"

namespace skyview {

// The object as lines in the current language, UTF-8: right ascension and declination for J2000 (without
// aberration) and of date (as it is seen), azimuth, altitude without and with refraction, distance in a
// fitting unit, magnitude, size and phase, rise, transit and set of the view's local day in its zone. The
// next day stands for an event that the day lacks; for satellites they are those of one pass, that which is
// on or the first of the next 24 hours, with its highest point in place of the transit. Then what the picture
// leaves out. `title` names the object. False when the observer is not near the Earth's surface or nobody can
// tell where the object is: `error` is then one line.
bool DescribeWhere(const scene::FoundObject& object, const std::string& title, scene::SkyCatalogs& catalogs,
                   const CommonInterfaces::Camera& camera, std::string& text, std::string& error);

}  // namespace skyview
