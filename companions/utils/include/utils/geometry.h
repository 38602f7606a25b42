// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

template <class T>
struct tPoint {
  T x, y;
};

template <class T>
struct tRect {
  T left, top, right, bottom;
};
