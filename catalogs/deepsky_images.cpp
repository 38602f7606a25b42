// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cstring>
#include <map>
#include <string>
#include <utility>

#include "catalogs/deepsky_line.h"
#include "common_interfaces/sky_images.h"
#include "utils/characters.h"
#include "utils/debug.h"
#include "utils/path.h"
#include "utils/whole_file.h"

namespace CommonInterfaces {
namespace {

constexpr char kImageFile[] = "media:skyobjects:dso_images:dsoimagestrue.txt";

using Key = std::pair<unsigned, unsigned>;  // the low 24 bits of the number, the letter
using Catalog = std::map<Key, DSOImageDesc>;

Key KeyOf(unsigned number) { return {number & 0xFFFFFFu, number >> 28 & 7u}; }

// Process-wide; the one thread that has instances.
Catalog s_Images;
Catalog::iterator s_Cursor = s_Images.end();  // of the walk
DSOImageDesc* s_Current = nullptr;            // into s_Images
int s_Instances = 0;

void Clear() {
  s_Images.clear();
  s_Cursor = s_Images.end();
  s_Current = nullptr;
  DSOImages::s_IndependentImages = std::vector<DSOImageDesc>();  // with its memory
}

// What a reading of the file makes, beside what there is.
struct Reading {
  Catalog images;
  std::vector<DSOImageDesc> independent;

  void AddLine(char* line) {
    DSOImageDesc image;
    if (!ParseDeepskyImage(line, image)) return;
    if (image.flags & DSOImageDesc::kIndependent) independent.push_back(image);
    images.emplace(KeyOf(image.number), image);
  }
};

// The last line of a file may lack its end, but not what its format always has.
bool IsCutOff(const char* line) {
  constexpr int kFields = 9;
  int fields = 0;
  for (bool isInside = false; *line != '\0'; ++line) {
    if (!isInside && !IsBlank(*line)) ++fields;
    isInside = !IsBlank(*line);
  }
  return fields > 0 && fields < kFields;
}

const DSOImageDesc* Visit(Catalog::iterator at) {
  if (at == s_Images.end()) return nullptr;
  s_Current = &at->second;
  return s_Current;
}

}  // namespace

std::vector<DSOImageDesc> DSOImages::s_IndependentImages;

DSOImages::DSOImages() {
  if (s_Instances == 0) Reload();
  ++s_Instances;
}

DSOImages::DSOImages(const DSOImages&) : DSOImages() {}

DSOImages::~DSOImages() {
  if (--s_Instances == 0) Clear();
}

void DSOImages::Reload() {
  const std::string path = ZentharPath::GetPath(kImageFile);
  std::string text, reason = "not found";
  if (path.empty() || !ReadWholeFile(path.c_str(), text, reason)) {
    Clear();
    PrintDebugString("File %s %s\n", kImageFile, reason.c_str());
    return;
  }
  Reading reading;
  char* line = text.data();
  if (text.starts_with("\xEF\xBB\xBF")) line += 3;
  char* const end = text.data() + text.size();
  for (int number = 1; line < end; ++number) {
    auto* next = static_cast<char*>(std::memchr(line, '\n', static_cast<std::size_t>(end - line)));
    if (!next && *line != '!' && IsCutOff(line))
      PrintDebugString("%s:%d: the line was cut off, what it lacks has its default\n", path.c_str(), number);
    if (!next) next = end;  // the zero byte of the string is there
    *next = '\0';
    reading.AddLine(line);
    line = next + 1;
  }
  Clear();
  s_Images.swap(reading.images);
  s_Cursor = s_Images.end();
  s_IndependentImages.swap(reading.independent);
}

const DSOImageDesc* DSOImages::GetFirst() {
  s_Cursor = s_Images.begin();
  return Visit(s_Cursor);
}

const DSOImageDesc* DSOImages::GetNext() {
  if (s_Cursor != s_Images.end()) ++s_Cursor;
  return Visit(s_Cursor);
}

// What stands in the bits of a letter need not be one: the numbers of the catalogs carry the sub-type there.
const DSOImageDesc* DSOImages::Find(int, int number) {
  const Key key = KeyOf(static_cast<unsigned>(number));
  const auto exact = s_Images.find(key);
  if (exact != s_Images.end()) return Visit(exact);
  const auto lowest = s_Images.lower_bound({key.first, 0});
  return lowest != s_Images.end() && lowest->first.first == key.first ? Visit(lowest) : nullptr;
}

void DSOImages::AddData(float largestDimension, float magnitude, float smallestDimension,
                        unsigned short positionAngle) {
  if (!s_Current) return;
  s_Current->magnitude = magnitude;
  s_Current->largestDimension = largestDimension;
  s_Current->smallestDimension = smallestDimension;
  s_Current->positionAngle = positionAngle;
}

}  // namespace CommonInterfaces
