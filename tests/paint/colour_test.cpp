// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/colour.h"

#include <gtest/gtest.h>

TEST(FillWith, PatternIsGoneAfterwards) {
  cairo_surface_t* const surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, 4, 4);
  cairo_t* const context = cairo_create(surface);
  cairo_pattern_t* const pattern = cairo_pattern_create_linear(0.0, 0.0, 4.0, 0.0);
  cairo_pattern_reference(pattern);  // ours
  paint::FillWith(pattern, context);
  cairo_destroy(context);
  EXPECT_EQ(cairo_pattern_get_reference_count(pattern), 1u);
  cairo_pattern_destroy(pattern);
  cairo_surface_destroy(surface);
}
