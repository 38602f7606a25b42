// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "skydata/settings/explain.h"

namespace skydata {

using BlockKey = std::pair<unsigned, unsigned>;  // owner and id

// One of the two values that a container may take for a field, with the block that it comes from.
struct Candidate {
  std::string fileName;
  const SettingsFile* file = nullptr;
  const FileBlock* block = nullptr;  // null: the file has none with the key
  const FileField* field = nullptr;
};

// The container that a request is about, and the values that it finds.
struct FieldChoice {
  std::string problem;  // what is in the way of a choice, "" for nothing
  int nameId = 0;
  std::string name;  // of the field, as it is to be shown
  BlockKey key;
  Candidate usual, own;  // of the defaults; of the container itself, which may be that of the defaults

  bool IsOfDefaults() const;
};

// The block of that owner with the defaults.
BlockKey DefaultsOf(const BlockKey& key);

FieldChoice ChooseField(const ExplainRequest& request, const SettingsFile& file, const SettingsFile& defaults,
                        const FieldNames& names);

}  // namespace skydata
