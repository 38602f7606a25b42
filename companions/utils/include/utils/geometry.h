// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

template <class T>
struct tPoint {
  T x, y;
};
static_assert(sizeof(tPoint<int>) == 8 && sizeof(tPoint<double>) == 16);

template <class T>
struct tRect {
  T left, top, right, bottom;
};
static_assert(sizeof(tRect<int>) == 16);
