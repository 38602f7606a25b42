// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cairo.h>

#include <string>

namespace paint {

// The pixels of an image surface of the format RGB24 as a PNG file in `bytes`, colours of eight bits, without
// transparency. False, with one line in `error`, when that fails.
bool MakePngBytes(cairo_surface_t* surface, std::string& bytes, std::string& error);

}  // namespace paint
