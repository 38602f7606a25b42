// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

// A point of the window, pixels.
template <class T>
struct tPoint {
  T x, y;
};
static_assert(sizeof(tPoint<int>) == 8 && sizeof(tPoint<double>) == 16);

// Four numbers about a window; who takes one says which is which.
template <class T>
struct tRect {
  T left, top, right, bottom;
};
static_assert(sizeof(tRect<int>) == 16);
