// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Stars of others: FITS files and tables of text, gone through twice.
#include <cmath>
#include <string>
#include <vector>

#include "fuzz/input.h"
#include "fuzz/scratch.h"
#include "skydata/files/source_error.h"
#include "skydata/stars/star_input.h"

namespace {

using fuzz::Require;

// A file of that size has no more stars.
std::size_t CountStars(skydata::StarInput& input, std::size_t most, std::vector<int>& numbers) {
  scene::TileStar star;
  std::size_t count = 0;
  while (input.Take(star)) {
    Require(scene::StarTileWriter::FindFault(star) == nullptr, "a star can stand in a tile catalog");
    Require(++count <= most, "stars are pieces of the file");
    Require(input.GetShare() >= 0.0 && input.GetShare() <= 1.0, "a share of the file");
    numbers.push_back(star.number);
  }
  return count;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string path = fuzz::Scratch::Get().Write("work/stars.table", data, size);
  try {
    const auto input = skydata::OpenStarInput(path);
    std::vector<int> first, second;
    CountStars(*input, size, first);
    const auto placeless = input->GetPlaceless();
    input->Rewind();
    CountStars(*input, size, second);
    Require(first == second && placeless == input->GetPlaceless(), "the second time as the first");
    Require(input->GetOrigin().find('\0') == std::string::npos, "an origin is a text");
  } catch (const skydata::SourceError& error) {
    Require(fuzz::IsOneLine(error.what()) && std::string(error.what()).find(path) == 0,
            "what is wrong is one line that names the file");
  }
  return 0;
}
