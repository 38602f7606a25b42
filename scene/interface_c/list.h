// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "scene/scene_c.h"

namespace scene {

// Records for the caller with the texts that they point to. What was handed out stays where it is when the
// list is moved.
template <class Record>
struct List {
  std::vector<Record> records;
  std::deque<std::string> texts;

  const char* Keep(std::string text) { return texts.emplace_back(std::move(text)).c_str(); }
  SceneArray Describe() const {
    return {0, static_cast<uint32_t>(records.size()), sizeof(Record), records.data()};
  }
};

}  // namespace scene
