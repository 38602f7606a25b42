// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

// The identifier of an object of the sky, passed by value and by reference. Files keep kind and number.
struct SSO_ID {
  // Four-character code: "plnt", "moon", "star", "gala", "clst", "nebu", "astr", "comt", "scft".
  int kind = -1;
  int number = -1;  // the Earth is "plnt" 3, the Sun "plnt" 10, the Moon "moon" 301 (planet * 100 + k)
  int third = 0;
  char name[80] = "";  // zero-terminated, never part of the identity
  int fourth = 0;

  constexpr SSO_ID() = default;  // the empty identifier: -1, -1
  constexpr SSO_ID(int objectKind, int objectNumber) : kind(objectKind), number(objectNumber) {}

  constexpr bool IsEmpty() const { return kind == -1 && number == -1; }

  // Identity and order: kind first, then number, both as signed numbers.
  friend constexpr bool operator==(const SSO_ID& a, const SSO_ID& b) {
    return a.kind == b.kind && a.number == b.number;
  }
  friend constexpr bool operator<(const SSO_ID& a, const SSO_ID& b) {
    return a.kind != b.kind ? a.kind < b.kind : a.number < b.number;
  }
};
static_assert(sizeof(SSO_ID) == 96 && offsetof(SSO_ID, kind) == 0 && offsetof(SSO_ID, number) == 4);
static_assert(offsetof(SSO_ID, third) == 8 && offsetof(SSO_ID, name) == 12 && offsetof(SSO_ID, fourth) == 92);
