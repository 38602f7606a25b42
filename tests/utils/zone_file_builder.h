// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Builds compiled zone files by hand, field by field as RFC 8536 lays them out; counts that lie can be put
// in.
struct ZoneFileBuilder {
  struct Type {
    int offset;
    unsigned char daylight, name;
  };
  struct Change {
    long long time;
    unsigned char type;
  };
  struct Leap {
    long long time;
    int correction;
  };

  char version = '2';
  std::vector<Type> types = {{3600, 0, 0}};
  std::vector<Change> changes;
  std::vector<Leap> leaps;
  std::string names = std::string("AAA\0", 4);
  std::string flags;  // the standard-time indicators, then the UT indicators, half of the bytes each
  std::string footer = "\n\n";
  std::string firstBlock;  // of a file of version 2 and up; "": the smallest that is valid

  std::vector<unsigned char> Build() const {
    std::string file;
    if (version == 0) {
      file = Block(4);
    } else {
      ZoneFileBuilder first;
      first.version = version;
      file = (firstBlock.empty() ? first.Block(4) : firstBlock) + Block(8) + footer;
    }
    return {file.begin(), file.end()};
  }

  std::string Block(int timeSize) const {
    const auto half = static_cast<std::uint32_t>(flags.size() / 2);
    std::string out = "TZif";
    out += version;
    out.append(15, '\0');
    for (std::uint32_t count :
         {half, half, static_cast<std::uint32_t>(leaps.size()), static_cast<std::uint32_t>(changes.size()),
          static_cast<std::uint32_t>(types.size()), static_cast<std::uint32_t>(names.size())}) {
      Append(out, count, 4);
    }
    for (const Change& change : changes) Append(out, static_cast<std::uint64_t>(change.time), timeSize);
    for (const Change& change : changes) out += static_cast<char>(change.type);
    for (const Type& type : types) {
      Append(out, static_cast<std::uint32_t>(type.offset), 4);
      out += static_cast<char>(type.daylight);
      out += static_cast<char>(type.name);
    }
    out += names;
    for (const Leap& leap : leaps) {
      Append(out, static_cast<std::uint64_t>(leap.time), timeSize);
      Append(out, static_cast<std::uint32_t>(leap.correction), 4);
    }
    return out + flags;
  }

  static void Append(std::string& out, std::uint64_t value, int bytes) {
    for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8) out += static_cast<char>(value >> shift & 0xFF);
  }
};
