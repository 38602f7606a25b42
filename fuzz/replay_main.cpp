// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Runs a fuzz target without libFuzzer: every seed of a folder, then mutations of the seeds. Mutation number
// i depends on nothing but i and the seeds, so that a failure comes back:
//
//   fuzz_settings_file fuzz/corpus/settings_file --mutations=20000 --seconds=20 --trace  prints each number
//   fuzz_settings_file fuzz/corpus/settings_file --first=1234 --mutations=1 --dump   writes it to stdout
#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t kLongestInput = 1 << 16;

struct Options {
  std::string folder;
  long first = 0, mutations = 0, seconds = 20;
  bool trace = false, dump = false;
};

// Numbers that break arithmetic: ends of ranges, signs, counts that are too large.
constexpr std::uint32_t kBadNumbers[] = {0,      1,      0x7F,    0x80,       0xFF,       0x7FFF,
                                         0x8000, 0xFFFF, 0x10000, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF,
                                         19,     20,     0x10014, 0x444C46};

class Mutator {
 public:
  Mutator(const std::vector<Bytes>& seeds, long index)
      : m_Seeds(seeds), m_Random(static_cast<std::uint32_t>(index) * 2654435761u + 1u) {}

  Bytes Make() {
    Bytes input = m_Seeds[Below(m_Seeds.size())];
    for (std::size_t steps = 1 + Below(4); steps != 0; --steps) Change(input);
    if (input.size() > kLongestInput) input.resize(kLongestInput);
    return input;
  }

 private:
  std::size_t Below(std::size_t limit) { return limit == 0 ? 0 : m_Random() % limit; }

  void Change(Bytes& input) {
    switch (Below(8)) {
      case 0:
        FlipBit(input);
        break;
      case 1:
        input.resize(Below(input.size() + 1));
        break;
      case 2:
        input.insert(input.begin() + At(input), static_cast<std::uint8_t>(Below(256)));
        break;
      case 3:
        Erase(input);
        break;
      case 4:
        PutNumber(input, 1u << Below(3));
        break;
      case 5:
        PutNumber(input, 4);
        break;
      case 6:
        Repeat(input);
        break;
      default:
        Splice(input);
        break;
    }
  }

  std::ptrdiff_t At(const Bytes& input) { return static_cast<std::ptrdiff_t>(Below(input.size() + 1)); }

  void FlipBit(Bytes& input) {
    if (!input.empty()) input[Below(input.size())] ^= static_cast<std::uint8_t>(1u << Below(8));
  }

  void Erase(Bytes& input) {
    const auto from = At(input);
    const auto length = static_cast<std::ptrdiff_t>(Below(16));
    input.erase(input.begin() + from, input.begin() + std::min(from + length, std::ssize(input)));
  }

  void PutNumber(Bytes& input, std::size_t width) {
    if (input.size() < width) return;
    const std::size_t at = Below(input.size() - width + 1);
    const std::uint32_t number = kBadNumbers[Below(std::size(kBadNumbers))];
    const bool bigEndian = Below(2) != 0;
    for (std::size_t i = 0; i < width; ++i) {
      input[at + i] = static_cast<std::uint8_t>(number >> 8 * (bigEndian ? width - 1 - i : i));
    }
  }

  void Repeat(Bytes& input) {
    const auto from = At(input);
    const Bytes piece(input.begin() + from, input.begin() + std::min(from + 40, std::ssize(input)));
    input.insert(input.begin() + At(input), piece.begin(), piece.end());
  }

  void Splice(Bytes& input) {
    const Bytes& other = m_Seeds[Below(m_Seeds.size())];
    input.resize(Below(input.size() + 1));
    input.insert(input.end(), other.begin() + At(other), other.end());
  }

  const std::vector<Bytes>& m_Seeds;
  std::mt19937 m_Random;
};

Options ReadOptions(int argc, char** argv) {
  Options options;
  for (int i = 1; i < argc; ++i) {
    const std::string_view argument = argv[i];
    const auto number = [&] { return std::strtol(argv[i] + argument.find('=') + 1, nullptr, 10); };
    if (argument.starts_with("--mutations="))
      options.mutations = number();
    else if (argument.starts_with("--seconds="))
      options.seconds = number();
    else if (argument.starts_with("--first="))
      options.first = number();
    else if (argument == "--trace")
      options.trace = true;
    else if (argument == "--dump")
      options.dump = true;
    else
      options.folder = argument;
  }
  return options;
}

// In the order of their names, which every machine shares.
std::vector<Bytes> ReadSeeds(const std::string& folder) {
  std::vector<std::filesystem::path> paths;
  std::error_code missing;
  for (const auto& entry : std::filesystem::directory_iterator(folder, missing)) {
    if (entry.is_regular_file()) paths.push_back(entry.path());
  }
  std::sort(paths.begin(), paths.end());
  std::vector<Bytes> seeds;
  for (const auto& path : paths) {
    std::ifstream in(path, std::ios::binary);
    seeds.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  }
  return seeds;
}

}  // namespace

int main(int argc, char** argv) {
  const Options options = ReadOptions(argc, argv);
  const std::vector<Bytes> seeds = ReadSeeds(options.folder);
  if (seeds.empty()) {
    std::fprintf(stderr, "No seeds in \"%s\"\n", options.folder.c_str());
    return 1;
  }
  if (options.dump) {
    const Bytes input = Mutator(seeds, options.first).Make();
    return std::fwrite(input.data(), 1, input.size(), stdout) == input.size() ? 0 : 1;
  }
  for (const Bytes& seed : seeds) LLVMFuzzerTestOneInput(seed.data(), seed.size());

  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(options.seconds);
  long index = options.first;
  for (; index < options.first + options.mutations && std::chrono::steady_clock::now() < end; ++index) {
    if (options.trace) std::fprintf(stderr, "%ld\n", index);
    const Bytes input = Mutator(seeds, index).Make();
    LLVMFuzzerTestOneInput(input.data(), input.size());
  }
  std::printf("%zu seeds, %ld mutations\n", seeds.size(), index - options.first);
  return 0;
}
