// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What a settings text says, as the parser hands it to the compiler. Form: docs/formats/settings_text.md.
#pragma once

#include <string>
#include <vector>

#include "common_interfaces/field_data.h"

namespace skydata {

// Where something stands in the sources.
struct TextPlace {
  std::string file;
  int line = 0;
};

struct FieldText {
  TextPlace place;
  std::string name;         // as written, for messages
  int nameId = 0;           // GetUniqueID of the name, or the number written instead
  unsigned char type = 0;   // a CommonInterfaces::FieldType, or a code that is none
  unsigned short size = 0;  // element count of the header
  unsigned condition = 0;
  unsigned char compareStatus = 0;
  unsigned querySection = CommonInterfaces::kOwnQuerySection;
  std::string values;    // the bytes behind the header
  bool isAgain = false;  // stands in its section a second time: only the first is ever found
};

struct SectionText {
  TextPlace place;
  unsigned id = 0;
  unsigned alias = 0xFFFFFFFFu;
  unsigned char status = 1;
  std::vector<FieldText> fields;
};

struct BlockText {
  TextPlace place;
  unsigned owner = 0, id = 0;  // the key, in the order of the file
  std::vector<SectionText> sections;
};

struct SettingsDocument {
  TextPlace place;
  bool hasHeader = true;
  unsigned version = 0;  // of the header
  std::vector<BlockText> blocks;
};

}  // namespace skydata
