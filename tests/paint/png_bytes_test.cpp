// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/png_bytes.h"

#include <gtest/gtest.h>

#include <new>
#include <string>

#include "support/allocation_counter.h"

namespace {

// A black picture of 300 x 200 pixels.
class PngBytes : public testing::Test {
 protected:
  ~PngBytes() override { cairo_surface_destroy(surface); }
  cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, 300, 200);
  std::string bytes, error;
};

}  // namespace

// Each allocation fails once. A picture of which a piece is missing is never taken for whole.
TEST_F(PngBytes, AreWholeOrNoneWhenMemoryRunsOut) {
  std::string whole;
  ASSERT_TRUE(paint::MakePngBytes(surface, whole, error)) << error;
  int told = 0, thrown = 0;
  bool failed = true;
  for (int allocations = 0; failed; ++allocations) {
    ASSERT_LT(allocations, 1000) << "never done";
    std::string piece, message;
    bool made = false, hasThrown = false;
    host_test::FailAllocationAfter(allocations);
    try {
      made = paint::MakePngBytes(surface, piece, message);
    } catch (const std::bad_alloc&) {
      hasThrown = true;
    }
    failed = host_test::HasAllocationFailed();
    host_test::FailAllocationAfter(-1);
    EXPECT_EQ(made, !failed) << allocations;
    EXPECT_EQ(message, made || hasThrown ? "" : "out of memory");
    EXPECT_TRUE(!made || piece == whole);
    thrown += hasThrown ? 1 : 0;
    told += made || hasThrown ? 0 : 1;
  }
  EXPECT_GT(told, 0) << "while the library writes";
  EXPECT_GT(thrown, 0) << "before it does";
}
