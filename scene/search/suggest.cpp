// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Names that begin like what is being typed.
#include <algorithm>
#include <tuple>
#include <utility>

#include "scene/class_limits.h"
#include "scene/name_key.h"
#include "scene/object_names.h"
#include "scene/object_search.h"
#include "scene/search/named_objects.h"
#include "utils/text.h"

namespace scene {

namespace {

bool IsDesignation(std::string_view written) {
  constexpr std::string_view kGreekLeads = "\xCE\xCF";
  return kGreekLeads.find(written.front()) != std::string_view::npos ||
         written.find_first_of("0123456789") != std::string_view::npos;
}

}  // namespace

struct ObjectSearch::Candidate {
  FoundObject object;
  std::string_view written;
  bool isExact;
  double prominence;  // as a magnitude: the less, the sooner

  // Who types letters means a name sooner than "α CMa" or "HR 2491".
  auto GetRank() const {
    constexpr double kDesignation = 3.0;
    return std::tuple(!isExact, prominence + (IsDesignation(written) ? kDesignation : 0.0), written.size());
  }
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
  const auto add = [&](const FoundObject& object, std::string_view written, bool isExact) {
    candidates.push_back({object, written, isExact, GetProminence(object)});
  };
  for (const auto& names : m_Names) {
    names->ForPrefix(key, [&](const NameIndex::Name& name) {
      if (name.form == NameIndex::kPlain) add(FromNamed(name.object), name.written, name.key == key);
    });
  }
  const auto addListed = [&](const Name& name) {
    const bool isLost =
        name.object.group == ObjectGroup::kTileStar && !FindTileStar(*m_Catalogs, name.object.index);
    if (name.key.starts_with(key) && !isLost) add(name.object, name.written, name.key == key);
  };
  for (const auto* names : {&GetListed().shown, &GetListed().further, &std::as_const(*m_Features)}) {
    for (const Name& name : *names) addListed(name);
  }
}

std::vector<Suggestion> ObjectSearch::Suggest(const std::string& text, std::size_t most) const {
  const std::string key = MakeNameKey(text), expanded = MakeNameKey(ExpandGreekLetter(text));
  std::vector<Suggestion> suggestions;
  if (key.empty()) return suggestions;
  if (!m_Features) AppendFeatureKeys(m_Features.emplace());
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
