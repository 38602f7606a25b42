// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What the second process writes: blocks of several thousand bytes, which go to the file in more than one
// piece. The first field of each block holds its id.
#pragma once

#include <string>

#include "common_interfaces/settings_data.h"
#include "common_interfaces/settings_field.h"

namespace test_support {

constexpr unsigned kPeerOwner = 0x50454552;  // "PEER"
constexpr unsigned kPeerSection = 0x746E656B;
constexpr int kPeerFields = 200;

inline std::string PeerRecord(int nameId) {
  const auto bytes = [](unsigned value, int width) {
    std::string text;
    for (int i = 0; i < width; ++i) text += static_cast<char>(value >> (8 * i));
    return text;
  };
  return bytes(kPeerSection, 4) + bytes(static_cast<unsigned>(nameId), 4) + bytes(4, 1) + bytes(1, 2) +
         bytes(0, 4) + bytes(1, 1) + bytes(0xFFFFFFFF, 4) + bytes(static_cast<unsigned>(nameId) * 3, 4);
}

}  // namespace test_support
