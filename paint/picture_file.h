// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "skyview/reports/light_curve.h"
#include "scene/frame/sky_frame.h"

namespace skyview {

// Whether this skyview draws at all; one built without the drawing library fails with one line that says so.
bool CanDraw();

// The frame as the bytes of an SVG or PNG file. Both are painted by the same calls. The SVG carries its labels a
// second time as invisible text, so that they can be searched for and copied. False when the drawing library fails:
// `error` then says how.
bool MakeSvg(const SkyFrame& frame, std::string& bytes, std::string& error);
bool MakePng(const SkyFrame& frame, std::string& bytes, std::string& error);

// Writes the frame to `path`, as its ending says: beside it first, then renamed, so that a picture of that name is
// either the old one or whole. False when that fails: `error` is then one line that names the file, and nothing new is
// left behind.
bool WritePicture(const SkyFrame& frame, const std::string& path, std::string& error);

// The same with the picture of a light curve, of that size in pixels.
bool WriteCurve(const LightCurve& curve, int width, int height, const std::string& path, std::string& error);

// The same with the bytes of a picture.
bool WritePictureBytes(const std::string& path, const std::string& bytes, std::string& error);

}  // namespace skyview
