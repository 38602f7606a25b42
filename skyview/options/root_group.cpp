// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/options/root_group.h"

namespace skyview {
namespace {

constexpr OptionRow<RootOptions> kRows[] = {
    {{"--data", "FOLDER", "data root (default: the one beside the program)"},
     Times::kOnce,
     [](const std::string& text, RootOptions& root) { return Put(ParseName(text), root.data); }},
    {{"--work", "FOLDER", "work area, whose files hide those of the data root (default: none)"},
     Times::kOnce,
     [](const std::string& text, RootOptions& root) { return Put(ParseName(text), root.work); }},
    {{"--language", "LANG",
      "language of all texts, one of those below languages in the data root (default: en)"},
     Times::kOnce,
     [](const std::string& text, RootOptions& root) { return Put(ParseName(text), root.language); }}};

}  // namespace

const OptionGroup<RootOptions> kRootGroup = {"Data and language", kRows, nullptr};

}  // namespace skyview
