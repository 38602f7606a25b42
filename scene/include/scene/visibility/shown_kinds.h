// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/sky_brightness.h"
#include "common_interfaces/settings_data.h"
#include "scene/api.h"
#include "scene/catalogs/label_rules.h"
#include "scene/visibility/chart_style.h"

namespace scene {

// Which lines of the sky are drawn: each number is a sum, and 0 draws nothing.
struct SkyLines {
  unsigned char equatorialGrid = 0;              // "RADecGrid": 1 of date, 2 of J2000
  unsigned char equator = 0;                     // "RADecEquator": likewise
  unsigned char eclipticGrid = 0, ecliptic = 0;  // "EclGrid", "EclEquator", of date
  unsigned char galacticGrid = 0;                // "GalGrid": 1 the grid, 2 the equator alone
  unsigned char horizontalGrid = 0;              // "Grid"
  unsigned char meridian = 0;                    // "Meridian": 1 the meridian, 2 the prime vertical
  // "Poles": 1 of the equator, with equinoxes and solstices, 2 of the ecliptic, 4 of the Galaxy, with its
  // centre, 8 zenith and nadir, 16 the paths of the equator's poles through 26,000 years
  unsigned char points = 0;
};

// What the settings say is to be drawn.
struct SCENE_API ShownKinds {
  bool stars = true;
  bool clusters = true;
  bool galaxies = true;
  bool nebulae = true;
  bool otherDeepsky = true;  // "dsnv", the objects that are not seen in visible light
  bool figures = true;
  bool constellationNames = true;
  bool boundaries = false;  // of the constellations
  // Of the names of constellations the first of these that is on, else the Latin one.
  bool englishNames = false, genitiveNames = false, localNames = true;
  bool asterisms = false;
  bool milkyWay = true;
  bool horizon = true;
  bool horizonLine = true;  // along the edge of the ground
  bool compass = true;
  bool planets = true;  // and the Sun
  bool moons = true;
  bool asteroids = true;
  bool comets = true;
  bool spacecraft = true;
  bool planetPhases = true;  // else their discs are drawn wholly lit
  bool moonPhases = true;
  // Signs at double stars, variable stars and stars with planets. Atlases have them at every zoom, pictures
  // of the screen where the zoom is 4 or more.
  bool doubleSigns = true, variableSigns = true, planetSigns = true;
  // However faint they are: the asteroids of the main belt, those of other groups, and the names of both.
  bool asteroidBelt = false, asteroidGroups = false, asteroidNames = true;
  bool planetFeatures = true;  // names on their surfaces
  bool moonFeatures = true;
  bool planetGrid = false;    // lines on the discs of planets, and of the Sun
  bool planetGuides = false;  // their axes and equators
  bool moonGrid = false, moonGuides = false;
  bool planetCelPath = false, planetLocPath = false;  // of planets among the stars and over the horizon
  bool noradNumbers = false;                          // beside satellites, in place of names
  // Day, twilight and moonlight for an observer on the Earth with a horizon; else a black sky
  // that hides nothing.
  bool naturalSky = true;
  double darkness = astro::kDarkSky;       // of the site's night (SkyLights)
  ChartStyle style = ChartStyle::kScreen;  // SetChartStyle
  bool refraction = true;                  // "SkyDirt" of "grid" 1, for an observer with a horizon
  bool extinction = true;                  // "SkyDirt" 2, under a natural sky
  SkyLines lines;

  LabelRules starLabels{true, true, false, false, false};
  LabelRules clusterLabels, galaxyLabels, nebulaLabels, otherDeepskyLabels;
  LabelRules planetLabels, moonLabels, asteroidLabels, cometLabels, spacecraftLabels;

  bool IsShown(int kind) const;  // of a class of objects, by its four-character code
  NameForm GetConstellationForm() const;
  const LabelRules& GetLabels(int kind) const;  // of an unknown class: those of "dsnv"
};

// What a kind of objects depends on: its section, and a switch there.
struct KindState {
  const char* switchName;  // null for a kind that is never drawn
  bool sectionOn, switchOn;
  unsigned section;
};

// Reads the switches: a thing is drawn while its section is on and its switch there is not 0, for example
// "Draw" of the section "star" or "PatternsVisible" of "cnst". A section or a switch that the settings lack
// changes nothing, and a switch is a field of one byte. The current section stays.
SCENE_API ShownKinds ReadShownKinds(CommonInterfaces::SettingsData& settings);

// What keeps a field of the settings from changing any picture, such as "grids are not drawn"; null for a
// field that acts and for one that is not known. Static text.
SCENE_API const char* FindUndrawnReason(unsigned section, int nameId);

}  // namespace scene
