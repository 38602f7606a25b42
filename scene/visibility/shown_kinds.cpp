// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/visibility/shown_kinds.h"

#include "common_interfaces/field_data.h"
#include "scene/visibility/kind_switches.h"
#include "utils/text.h"

namespace scene {
namespace {

using CommonInterfaces::SettingsData;

struct Switch {
  bool ShownKinds::*flag;
  unsigned section;
  const char* name;
};
// Of each section the first is the one that its objects depend on.
constexpr Switch kSwitches[] = {{&ShownKinds::stars, FourCC("star"), "Draw"},
                                {&ShownKinds::doubleSigns, FourCC("star"), "ShowBinary"},
                                {&ShownKinds::variableSigns, FourCC("star"), "ShowVariable"},
                                {&ShownKinds::planetSigns, FourCC("star"), "ShowWithPlanets"},
                                {&ShownKinds::clusters, FourCC("clst"), "ClusterDraw"},
                                {&ShownKinds::galaxies, FourCC("gala"), "GalaxyDraw"},
                                {&ShownKinds::nebulae, FourCC("nebu"), "CloudsDraw"},
                                {&ShownKinds::otherDeepsky, FourCC("dsnv"), "NonOpticDraw"},
                                {&ShownKinds::constellationNames, FourCC("cnst"), "LabelsVisible"},
                                {&ShownKinds::figures, FourCC("cnst"), "PatternsVisible"},
                                {&ShownKinds::boundaries, FourCC("cnst"), "BoundariesVisible"},
                                {&ShownKinds::englishNames, FourCC("cnst"), "EnglishName"},
                                {&ShownKinds::genitiveNames, FourCC("cnst"), "LatinGenitive"},
                                {&ShownKinds::milkyWay, FourCC("grid"), "MilkyWayVisible"},
                                {&ShownKinds::horizon, FourCC("grid"), "HorizonDraw"},
                                {&ShownKinds::compass, FourCC("grid"), "Compass"},
                                {&ShownKinds::planets, FourCC("plnt"), "Draw"},
                                {&ShownKinds::planetPhases, FourCC("plnt"), "PlanetPhases"},
                                {&ShownKinds::planetGrid, FourCC("plnt"), "PlanetGrid"},
                                {&ShownKinds::planetCelPath, FourCC("plnt"), "PlanetCelPath"},
                                {&ShownKinds::planetLocPath, FourCC("plnt"), "PlanetLocPath"},
                                {&ShownKinds::planetGuides, FourCC("plnt"), "PlanetGuides"},
                                {&ShownKinds::moons, FourCC("moon"), "Draw"},
                                {&ShownKinds::moonGrid, FourCC("moon"), "MoonGrid"},
                                {&ShownKinds::moonGuides, FourCC("moon"), "MoonGuides"},
                                {&ShownKinds::moonPhases, FourCC("moon"), "MoonPhases"},
                                {&ShownKinds::asteroids, FourCC("astr"), "Draw"},
                                {&ShownKinds::asteroidBelt, FourCC("astr"), "ShowAsterBelt"},
                                {&ShownKinds::asteroidGroups, FourCC("astr"), "AsterGroups"},
                                {&ShownKinds::asteroidNames, FourCC("astr"), "AsterLabels"},
                                {&ShownKinds::comets, FourCC("comt"), "Draw"},
                                {&ShownKinds::spacecraft, FourCC("scft"), "Draw"},
                                {&ShownKinds::horizonLine, FourCC("grid"), "Horizon"},
                                {&ShownKinds::noradNumbers, FourCC("scft"), "NoradNumber"},
                                {&ShownKinds::planetFeatures, FourCC("plnt"), "PlanetFeatures"},
                                {&ShownKinds::moonFeatures, FourCC("moon"), "MoonFeatures"}};

struct LabelSwitch {
  LabelRules ShownKinds::*rules;
  bool LabelRules::*flag;
  unsigned section;
  const char* name;
};
constexpr LabelSwitch kLabelSwitches[] = {
    {&ShownKinds::starLabels, &LabelRules::shown, FourCC("star"), "ShowLabel"},
    {&ShownKinds::starLabels, &LabelRules::commonName, FourCC("star"), "CommonName"},
    {&ShownKinds::starLabels, &LabelRules::abbreviation, FourCC("star"), "LatAbbreviation"},
    {&ShownKinds::starLabels, &LabelRules::magnitude, FourCC("star"), "MagnitudeOn"},
    {&ShownKinds::clusterLabels, &LabelRules::shown, FourCC("clst"), "ClusterLabel"},
    {&ShownKinds::clusterLabels, &LabelRules::commonName, FourCC("clst"), "CommonName"},
    {&ShownKinds::clusterLabels, &LabelRules::ngcFirst, FourCC("clst"), "NGC-IC"},
    {&ShownKinds::galaxyLabels, &LabelRules::shown, FourCC("gala"), "GalaxyLabel"},
    {&ShownKinds::galaxyLabels, &LabelRules::commonName, FourCC("gala"), "CommonName"},
    {&ShownKinds::galaxyLabels, &LabelRules::ngcFirst, FourCC("gala"), "NGC-IC"},
    {&ShownKinds::nebulaLabels, &LabelRules::shown, FourCC("nebu"), "CloudsLabel"},
    {&ShownKinds::nebulaLabels, &LabelRules::commonName, FourCC("nebu"), "CommonName"},
    {&ShownKinds::nebulaLabels, &LabelRules::ngcFirst, FourCC("nebu"), "NGC-IC"},
    {&ShownKinds::otherDeepskyLabels, &LabelRules::shown, FourCC("dsnv"), "NonOpticLabel"},
    {&ShownKinds::planetLabels, &LabelRules::shown, FourCC("plnt"), "ShowLabel"},
    {&ShownKinds::moonLabels, &LabelRules::shown, FourCC("moon"), "ShowLabel"},
    {&ShownKinds::asteroidLabels, &LabelRules::shown, FourCC("astr"), "ShowLabel"},
    {&ShownKinds::cometLabels, &LabelRules::shown, FourCC("comt"), "ShowLabel"},
    {&ShownKinds::spacecraftLabels, &LabelRules::shown, FourCC("scft"), "ShowLabel"}};

struct LineChoice {
  unsigned char SkyLines::*choice;
  const char* name;
};
constexpr LineChoice kLineChoices[] = {
    {&SkyLines::equatorialGrid, "RADecGrid"}, {&SkyLines::equator, "RADecEquator"},
    {&SkyLines::eclipticGrid, "EclGrid"},     {&SkyLines::ecliptic, "EclEquator"},
    {&SkyLines::galacticGrid, "GalGrid"},     {&SkyLines::horizontalGrid, "Grid"},
    {&SkyLines::meridian, "Meridian"},        {&SkyLines::points, "Poles"}};

// Fields that the settings have for other programs that read them.
struct Undrawn {
  unsigned section;
  const char* name;
  const char* reason;
};
constexpr char kImages[] = "images of constellations are not drawn";
constexpr Undrawn kUndrawn[] = {{FourCC("cnst"), "ImagesVisible", kImages},
                                {FourCC("cnst"), "ImagesBrightness", kImages}};

// The value of a field of one byte, `otherwise` where the section has none.
unsigned char ReadByte(SettingsData& settings, unsigned section, const char* name, unsigned char otherwise) {
  const unsigned before = settings.SetCurSection(section);
  const int nameId = GetUniqueID(name);
  unsigned char value = otherwise;
  if (settings.GetAtField(section, nameId, false) &&
      settings.GetFieldType(nameId) == CommonInterfaces::kFieldUInt8) {
    settings.GetFieldElement(nameId, &value, 0);
  }
  settings.SetCurSection(before);
  return value;
}

}  // namespace

// What the settings lack counts as `otherwise`, a whole section as on.
KindState ReadSwitchState(SettingsData& settings, unsigned section, const char* name, bool otherwise) {
  if (!HasSection(settings, section)) return {name, true, otherwise, section};
  return {name, settings.GetSectionStatus(section, false) != 0,
          ReadByte(settings, section, name, otherwise) != 0, section};
}

bool HasSection(const SettingsData& settings, unsigned section) {
  for (int i = 0; i < settings.GetSectionCount(); ++i) {
    if (settings.GetSectionAt(i)->id == section) return true;
  }
  return false;
}

bool ShownKinds::IsShown(int kind) const {
  if (kind == FourCC("star")) return stars;
  if (kind == FourCC("clst")) return clusters;
  if (kind == FourCC("gala")) return galaxies;
  if (kind == FourCC("nebu")) return nebulae;
  if (kind == FourCC("plnt")) return planets;
  if (kind == FourCC("moon")) return moons;
  if (kind == FourCC("astr")) return asteroids;
  if (kind == FourCC("comt")) return comets;
  if (kind == FourCC("scft")) return spacecraft;
  return kind == FourCC("dsnv") && otherDeepsky;
}

NameForm ShownKinds::GetConstellationForm() const {
  if (englishNames) return NameForm::kEnglish;
  if (genitiveNames) return NameForm::kGenitive;
  return localNames ? NameForm::kLocal : NameForm::kLatin;
}

const LabelRules& ShownKinds::GetLabels(int kind) const {
  if (kind == FourCC("star")) return starLabels;
  if (kind == FourCC("clst")) return clusterLabels;
  if (kind == FourCC("gala")) return galaxyLabels;
  if (kind == FourCC("nebu")) return nebulaLabels;
  if (kind == FourCC("plnt")) return planetLabels;
  if (kind == FourCC("moon")) return moonLabels;
  if (kind == FourCC("astr")) return asteroidLabels;
  if (kind == FourCC("comt")) return cometLabels;
  return kind == FourCC("scft") ? spacecraftLabels : otherDeepskyLabels;
}

KindState ReadKindState(SettingsData& settings, int kind) {
  for (const auto& entry : kSwitches) {
    if (entry.section == static_cast<unsigned>(kind))
      return ReadSwitchState(settings, entry.section, entry.name, true);
  }
  return {nullptr, true, false, static_cast<unsigned>(kind)};
}

namespace {

// "PatternsVisible" is a sum, 1 the figures and 2 the asterisms; "EnglishName" a choice, 0 names in the
// language of the texts, 1 English, 2 Latin ones.
void ReadConstellations(SettingsData& settings, ShownKinds& shown) {
  constexpr unsigned kSection = FourCC("cnst"), kAsterisms = 2;
  constexpr unsigned char kFigures = 1, kLatin = 2;
  if (!HasSection(settings, kSection)) return;
  const bool on = settings.GetSectionStatus(kSection, false) != 0;
  const unsigned patterns = ReadByte(settings, kSection, "PatternsVisible", kFigures);
  shown.figures = on && (patterns & kFigures) != 0;
  shown.asterisms = on && (patterns & kAsterisms) != 0;
  const unsigned char language = ReadByte(settings, kSection, "EnglishName", 0);
  shown.englishNames = on && language != 0 && language != kLatin;
  shown.localNames = language != kLatin;
}

}  // namespace

ShownKinds ReadShownKinds(SettingsData& settings) {
  ShownKinds shown;
  for (const auto& entry : kSwitches) {
    const KindState state = ReadSwitchState(settings, entry.section, entry.name, shown.*entry.flag);
    shown.*entry.flag = state.sectionOn && state.switchOn;
  }
  for (const auto& entry : kLabelSwitches) {
    bool& flag = (shown.*entry.rules).*entry.flag;
    flag = ReadSwitchState(settings, entry.section, entry.name, flag).switchOn;
  }
  ReadConstellations(settings, shown);
  constexpr unsigned kGrid = FourCC("grid");
  if (HasSection(settings, kGrid) && settings.GetSectionStatus(kGrid, false) != 0) {
    for (const auto& entry : kLineChoices) {
      unsigned char& choice = shown.lines.*entry.choice;
      choice = ReadByte(settings, kGrid, entry.name, choice);
    }
    const unsigned char air = ReadByte(settings, kGrid, "SkyDirt", 1u | 2u);
    shown.refraction = (air & 1u) != 0;
    shown.extinction = (air & 2u) != 0;
  }
  return shown;
}

const char* FindUndrawnReason(unsigned section, int nameId) {
  for (const auto& entry : kUndrawn) {
    if (entry.section == section && GetUniqueID(entry.name) == nameId) return entry.reason;
  }
  return nullptr;
}

}  // namespace scene
