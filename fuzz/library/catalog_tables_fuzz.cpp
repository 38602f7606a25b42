// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Every reader of the binary catalog files, given the same bytes. Tables are compared with the bytes
// themselves.
#include <algorithm>
#include <iterator>
#include <vector>

#include "common_interfaces/flight_objects.h"
#include "common_interfaces/object_articles.h"
#include "common_interfaces/sky_images.h"
#include "fuzz/scratch.h"
#include "utils/bytes.h"
#include "utils/text.h"

namespace {

using fuzz::Require;

constexpr int kStar = FourCC("star"), kGalaxy = FourCC("gala"), kMesh = FourCC("mesh");
constexpr int kBodies[] = {FourCC("plnt"), FourCC("moon"), FourCC("astr"), FourCC("comt"), FourCC("scft")};

class Words {
 public:
  Words(const std::uint8_t* data, std::size_t size) : m_Data(data), m_Count(size / 4) {}

  std::size_t GetCount() const { return m_Count; }
  int operator[](std::size_t i) const { return static_cast<int>(LoadLE32(m_Data + i * 4)); }

 private:
  const std::uint8_t* m_Data;
  std::size_t m_Count;
};

// What the first record of the object says.
int FindArticle(const Words& words, int kind, int number) {
  for (std::size_t i = 0; i + 3 <= words.GetCount(); i += 3) {
    if (words[i] == kind && words[i + 1] == number) return words[i + 2];
  }
  return -1;
}

void CheckArticles(const char* path, const Words& words, bool isWhole) {
  const CommonInterfaces::ArticlesInformation articles(path);
  for (std::size_t i = 0; i + 3 <= words.GetCount(); i += 3) {
    const int kind = words[i], number = words[i + 1];
    int expected = FindArticle(words, kind, kind == kGalaxy ? (number & 0xFFFFFF) + 0x3C000000 : number);
    if (!isWhole || kind == kMesh) expected = -1;
    Require(articles.GetArticleId(kind, number) == expected, "the first record of an object is its article");
  }
}

// The numbers of the first group of the kind, as far as they are there.
std::vector<int> FindGroup(const Words& words, int kind) {
  for (std::size_t i = 0; i < words.GetCount();) {
    const std::size_t begin = std::min(i + 2, words.GetCount());
    const std::size_t claimed = i + 1 < words.GetCount() ? static_cast<unsigned>(words[i + 1]) : 0;
    const std::size_t end = begin + std::min(claimed, words.GetCount() - begin);
    if (words[i] == kind) {
      std::vector<int> numbers;
      for (std::size_t j = begin; j < end; ++j) numbers.push_back(words[j]);
      return numbers;
    }
    i = end;
  }
  return {};
}

void CheckDistances(const char* path, const Words& words) {
  CommonInterfaces::General3DFlightObjectsList list(path);
  for (const int kind : kBodies) Require(list.objectInList(kind, -1), "bodies are always in reach");
  std::vector<int> kinds = {kStar, kGalaxy};
  if (words.GetCount() > 0) kinds.push_back(words[0]);
  for (const int kind : kinds) {
    if (std::find(std::begin(kBodies), std::end(kBodies), kind) != std::end(kBodies)) continue;
    const std::vector<int> numbers = FindGroup(words, kind);
    for (std::size_t i = 0; i < words.GetCount(); ++i) {
      Require(
          list.objectInList(kind, words[i]) == std::binary_search(numbers.begin(), numbers.end(), words[i]),
          "numbers are found by bisection");
    }
  }
}

template <class Images>
void CheckImages(std::size_t size) {
  const Images images;
  std::size_t count = 0;
  for (auto image = images.GetBegin(); image != images.GetEnd(); ++image) {
    for (const auto& corner : (*image)->corners)
      Require(corner.ra == corner.ra && corner.dec == corner.dec, "corners");
    ++count;
  }
  Require(count == 0 || count * 36 + 2 <= size, "images are pieces of the file");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const fuzz::Scratch& scratch = fuzz::Scratch::Get();
  const std::string path = scratch.Write("data/table.bin", data, size);
  const Words words(data, size);
  CheckArticles(path.c_str(), words, size % 12 == 0);
  CheckDistances(path.c_str(), words);
  static const char* const kImageFiles[] = {"data/media/skyobjects/constell_images/constell.dat",
                                            "data/media/skyobjects/mway_images/mway.dat"};
  for (const char* file : kImageFiles) scratch.Write(file, data, size);
  CheckImages<CommonInterfaces::CSTLImages>(size);
  CheckImages<CommonInterfaces::MWayImages>(size);
  return 0;
}
