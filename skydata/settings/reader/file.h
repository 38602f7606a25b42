// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A settings file as it lies on the disk, block after block, whole or damaged. File format:
// docs/formats/settings_file.md.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "skydata/settings/reader/findings.h"
#include "skydata/settings/text/document.h"

namespace skydata {

enum class RecordLayout { kCurrent, kOld };

struct FileSection {
  std::size_t offset = 0;
  SectionText text;  // without fields
  int first = 0, last = 0;
  int begin = 0, end = 0;  // the run that a reader takes: fields [begin, end), inside what the block has
};

struct FileField {
  std::size_t offset = 0;  // of its length
  int size = 0;            // of its record, in the layout of the file
  unsigned section = 0;    // that the record names
  int run = -1;            // index of the first section whose run holds the field; -1: none
  FieldText text;
};

struct FileBlock {
  std::size_t offset = 0, end = 0;
  unsigned owner = 0, id = 0;
  RecordLayout layout = RecordLayout::kCurrent;
  bool isWhole = true;          // all fields that it counts were read
  bool isLayoutCertain = true;  // every record has exactly the length that its header asks for in this layout
  std::vector<FileSection> sections;
  std::vector<FileField> fields;
};

struct SettingsFile {
  std::size_t size = 0;
  bool hasHeader = false;
  unsigned version = 0;
  std::vector<FileBlock> blocks;
  std::vector<Finding> damage;  // what kept the reader from bytes of the file
};

// The first field of that section and name that a reader finds in the block; null when there is none.
const FileField* FindField(const FileBlock& block, unsigned section, int nameId);

// The first field of that section and name among all of the block, whatever the runs say: what is laid over
// defaults.
const FileField* FindOwnField(const FileBlock& block, unsigned section, int nameId);

// The number of elements that a reader sees, and whether an own value of that shape counts over the default.
std::size_t GetElementCount(const FieldText& field);
bool HasSameShape(const FieldText& own, const FieldText& usual);

// The first block with that key; null when there is none.
const FileBlock* FindBlock(const SettingsFile& file, unsigned owner, unsigned id);

// "block OWNER ID", as messages name it.
std::string DescribeBlock(const FileBlock& block);

}  // namespace skydata
