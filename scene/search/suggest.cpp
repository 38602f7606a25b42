// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Names that begin like what is being typed.
#include <algorithm>
#include <utility>

#include "scene/catalogs/name_key.h"
#include "scene/catalogs/object_names.h"
#include "scene/search/named_objects.h"
#include "scene/search/object_search.h"
#include "scene/visibility/class_limits.h"
#include "utils/text.h"

namespace scene {

namespace {

bool IsDesignation(std::string_view written) {
  constexpr std::string_view kGreekLeads = "\xCE\xCF";
  return kGreekLeads.find(written.front()) != std::string_view::npos ||
         written.find_first_of("0123456789") != std::string_view::npos;
}

// By how much an object stands behind others that are found by their best known names. Aliases are mostly of
// other languages: they are for who knows what to type.
constexpr double kBestName = 0.0, kOtherName = 1.5, kAlias = 12.0, kDesignation = 3.0;

}  // namespace

struct ObjectSearch::Candidate {
  FoundObject object;
  std::string_view written;
  bool isExact;
  double prominence;  // as a magnitude: the less, the sooner

  auto GetRank() const { return std::pair(!isExact, prominence); }
};

// Magnitudes, and for what has none about that of objects which people know as well.
double ObjectSearch::GetProminence(const FoundObject& object) const {
  constexpr double kSun = -30.0, kMoon = -20.0, kPlanet = -10.0, kPlanetsMoon = 7.0, kSmallBody = 8.0;
  constexpr double kConstellation = -1.0, kAsterism = 1.0, kTileStar = 10.0, kFeature = 30.0;
  constexpr double kDeepsky = -3.0;  // each is known better than a star of its magnitude
  const auto index = static_cast<std::size_t>(object.index);
  switch (object.group) {
    case ObjectGroup::kStar:
      return MagnitudeOfCode(m_Catalogs->stars.GetCode(object.index));
    case ObjectGroup::kDeepsky:
      return MagnitudeOfCode(m_Catalogs->deepsky[index].code) + kDeepsky;
    case ObjectGroup::kConstellation:
      return kConstellation;
    case ObjectGroup::kAsterism:
      return kAsterism;
    case ObjectGroup::kTileStar:
      return kTileStar;
    case ObjectGroup::kFeature:
      return kFeature - std::min(m_Catalogs->gazetteers.GetFeature(object.index).prominence, 10.0);
    case ObjectGroup::kBody:
      break;
  }
  if (object.index == kSunBody) return kSun;
  if (object.index == kMoonBody) return kMoon;
  if (m_Catalogs->bodies[index].hasElements) return kSmallBody;
  return m_Catalogs->bodies[index].id.kind == FourCC("plnt") ? kPlanet : kPlanetsMoon;
}

void ObjectSearch::AppendCandidates(const std::string& key, std::vector<Candidate>& candidates) const {
  const auto add = [&](const FoundObject& object, std::string_view written, bool isExact, double behind) {
    const double further = IsDesignation(written) ? kDesignation : behind;
    candidates.push_back({object, written, isExact, GetProminence(object) + further});
  };
  for (const auto& names : m_Names) {
    names->ForPrefix(key, [&](const NameIndex::Name& name, bool isFirst) {
      if (name.form == NameIndex::kPlain)
        add(FromNamed(name.object), name.written, name.key == key, isFirst ? kBestName : kOtherName);
    });
  }
  const auto addListed = [&](const std::vector<Name>& names, double behind) {
    for (const Name& name : names) {
      if (!name.key.starts_with(key)) continue;
      const bool isLost =
          name.object.group == ObjectGroup::kTileStar && !FindTileStar(*m_Catalogs, name.object.index);
      if (!isLost) add(name.object, name.written, name.key == key, behind);
    }
  };
  addListed(GetListed().shown, kBestName);
  addListed(GetListed().further, kAlias);
  addListed(*m_Features, kBestName);
}

std::vector<Suggestion> ObjectSearch::Suggest(const std::string& text, std::size_t most) const {
  const std::string key = MakeNameKey(text), expanded = MakeNameKey(ExpandGreekLetter(text));
  std::vector<Suggestion> suggestions;
  if (key.empty()) return suggestions;
  if (!m_Features) {
    std::vector<Name> features;
    AppendFeatureKeys(features);
    m_Features = std::move(features);
  }
  std::vector<Candidate> candidates;
  AppendCandidates(key, candidates);
  if (expanded != key) AppendCandidates(expanded, candidates);
  if (const auto entry = FindCatalogueKey(key)) AppendCandidates(*entry, candidates);
  std::string tileStar;
  if (const auto star = FindTileStarNamed(key)) {
    tileStar = GetTileStarName(star->index);
    candidates.push_back({*star, tileStar, true, GetProminence(*star)});
  }
  std::stable_sort(candidates.begin(), candidates.end(),
                   [](const Candidate& a, const Candidate& b) { return a.GetRank() < b.GetRank(); });
  for (const Candidate& candidate : candidates) {
    const bool isNew = std::none_of(suggestions.begin(), suggestions.end(), [&](const Suggestion& other) {
      return other.object == candidate.object;
    });
    if (suggestions.size() == most) break;
    if (isNew) suggestions.push_back({candidate.object, std::string(candidate.written)});
  }
  return suggestions;
}

}  // namespace scene
