// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "scene/search/why.h"

namespace skyview {

// An explanation; the reasons are in the language of the texts, with the options that change them.
struct ExplanationLines {
  std::vector<std::string> reasons;  // why the object is not drawn, all that apply; empty for what is drawn
  std::vector<std::string> facts;    // where it stands; of what is drawn also since which zoom, and its label
};

// `view` is the one that was explained.
ExplanationLines DescribeExplanation(const scene::Explanation& explanation, const scene::ShownView& view);

// The explanation as lines, each ending in "\n"; `title` names the object.
std::string FormatExplanation(const std::string& title, const scene::Explanation& explanation,
                              const scene::ShownView& view);

}  // namespace skyview
