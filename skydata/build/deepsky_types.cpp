// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/build/deepsky_types.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace skydata {
namespace {

constexpr DeepskyType kMessierTypes[] = {
    {"emission nebula", "nebu", 30},   {"reflection nebula", "nebu", 31}, {"planetary nebula", "nebu", 32},
    {"supernova remnant", "nebu", 33}, {"open cluster", "clst", 40},      {"globular cluster", "clst", 41},
    {"star cloud", "clst", 42},        {"asterism", "clst", 43},          {"double star", "clst", 44},
    {"spiral galaxy", "gala", 62},     {"elliptical galaxy", "gala", 63}, {"irregular galaxy", "gala", 64}};

// Stars, novae and what nobody has made out are no objects of the deep sky and yet entries of its catalogues.
constexpr DeepskyType kNgcTypes[] = {{"EmN", "nebu", 30},   {"RfN", "nebu", 31},   {"PN", "nebu", 32},
                                     {"SNR", "nebu", 33},   {"HII", "nebu", 34},   {"DrkN", "nebu", 35},
                                     {"Cl+N", "nebu", 36},  {"Neb", "nebu", 0},    {"OCl", "clst", 40},
                                     {"GCl", "clst", 41},   {"**", "clst", 44},    {"*Ass", "clst", 45},
                                     {"GPair", "gala", 66}, {"GTrpl", "gala", 67}, {"GGroup", "gala", 68},
                                     {"*", "dsnv", 71},     {"Nova", "dsnv", 72},  {"Other", "dsnv", 73}};

// The classes of galaxies by what they begin with.
constexpr DeepskyType kHubbleTypes[] = {{"E-S0", "gala", 65}, {"S0", "gala", 65}, {"E", "gala", 63},
                                        {"S", "gala", 62},    {"I", "gala", 64},  {"", "gala", 0}};

struct Colour {
  std::string_view type;
  double blueLessVisual;
};
constexpr Colour kColours[] = {{"G", 0.8},   {"GPair", 0.8}, {"GTrpl", 0.8}, {"GGroup", 0.8},
                               {"GCl", 0.7}, {"PN", 0.8},    {"", 0.35}};

struct Catalogue {
  std::string_view name;
  int first;   // number of its entry 0
  int most;    // number of an entry
  int factor;  // of the number; behind it there is room for a part
};
constexpr Catalogue kCatalogues[] = {{"M", 0, 110, 1},
                                     {"NGC", 1000000, 7840, 100},
                                     {"IC", 2000000, 5386, 100},
                                     {"B", 3000000, 99999, 1},
                                     {"C", 3100000, 99999, 1},
                                     {"Cr", 3200000, 99999, 1},
                                     {"Harvard", 3300000, 99999, 1},
                                     {"HCG", 3400000, 99999, 1},
                                     {"Mel", 3500000, 99999, 1},
                                     {"MWSC", 3600000, 99999, 1},
                                     {"ESO", 4000000, 999, 1000},
                                     {"PGC", 5000000, 9999999, 1},
                                     {"UGC", 15000000, 99999, 1}};

template <std::size_t kCount>
const DeepskyType* Find(const DeepskyType (&types)[kCount], std::string_view name) {
  const auto found =
      std::find_if(types, types + kCount, [name](const DeepskyType& type) { return type.name == name; });
  return found == types + kCount ? nullptr : found;
}

// Takes the whole number that the text begins with.
std::optional<int> TakeInteger(std::string_view& text) {
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || text.front() == '-') return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  return value;
}

// Of an entry with parts, from 0; nothing for a text that is no part.
std::optional<int> FindPart(std::string_view text) {
  constexpr int kFirstNed = 30, kFirstSide = 61;
  constexpr std::string_view kNed = " NED", kSides[] = {"NE", "NW", "SE", "SW"};
  if (text.empty()) return 0;
  if (text.size() == 1 && text[0] >= 'A' && text[0] <= 'Z') return text[0] - 'A' + 1;
  const auto side = std::find(std::begin(kSides), std::end(kSides), text);
  if (side != std::end(kSides)) return kFirstSide + static_cast<int>(side - std::begin(kSides));
  if (!text.starts_with(kNed)) return std::nullopt;
  text.remove_prefix(kNed.size());
  const auto number = text.size() == 2 ? TakeInteger(text) : std::nullopt;
  if (!number || !text.empty() || *number < 1 || *number > 29) return std::nullopt;
  return kFirstNed + *number;
}

// Behind the number of an entry of ESO, "-115".
std::optional<int> FindFieldEntry(std::string_view text) {
  if (!text.starts_with('-')) return std::nullopt;
  text.remove_prefix(1);
  const auto number = text.empty() ? std::nullopt : TakeInteger(text);
  return number && text.empty() && *number <= 999 ? number : std::nullopt;
}

}  // namespace

const DeepskyType* FindMessierType(std::string_view name) { return Find(kMessierTypes, name); }

const DeepskyType* FindNgcType(std::string_view type, std::string_view hubble) {
  if (type != "G") return Find(kNgcTypes, type);
  return std::find_if(std::begin(kHubbleTypes), std::end(kHubbleTypes),
                      [hubble](const DeepskyType& known) { return hubble.starts_with(known.name); });
}

double GetTypicalColour(std::string_view type) {
  return std::find_if(std::begin(kColours), std::end(kColours),
                      [type](const Colour& colour) { return colour.type == type || colour.type.empty(); })
      ->blueLessVisual;
}

std::optional<int> FindEntryNumber(std::string_view name) {
  const auto blank = name.find(' ');
  const auto catalogue =
      std::find_if(std::begin(kCatalogues), std::end(kCatalogues),
                   [&](const Catalogue& known) { return known.name == name.substr(0, blank); });
  if (catalogue == std::end(kCatalogues) || blank == std::string_view::npos) return std::nullopt;
  name.remove_prefix(blank + 1);
  const auto number = TakeInteger(name);
  if (!number || *number > catalogue->most) return std::nullopt;
  const auto part = catalogue->factor == 1      ? (name.empty() ? std::optional(0) : std::nullopt)
                    : catalogue->factor == 1000 ? FindFieldEntry(name)
                                                : FindPart(name);
  if (!part) return std::nullopt;
  return catalogue->first + *number * catalogue->factor + *part;
}

}  // namespace skydata
