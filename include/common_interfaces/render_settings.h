// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The display options that the renderer consults every frame. A short guide: docs/render_settings.md.
#pragma once

#include <cstdio>
#include <map>
#include <vector>

#include "astro/object_id.h"
#include "common_interfaces/api.h"
#include "common_interfaces/fading_value.h"

namespace CommonInterfaces {

struct PathLine;

// The mark of an object that has none.
inline constexpr unsigned char kNoFavoriteMark = 128;

// Copied by value: the copy has every option and containers of its own; only the path cache is shared by all.
// One thread, the renderer's. Nothing fails unless said, but for want of memory: std::bad_alloc, and options,
// cache and what is handed over are as they were. Times are on the animation clock (fading_value.h).
class COMMON_INTERFACES_API RenderSettings {
 public:
  RenderSettings();  // no options on, all containers empty, the scales at 1
  virtual ~RenderSettings();
  RenderSettings(const RenderSettings&) = default;
  RenderSettings& operator=(const RenderSettings& other);
  RenderSettings& operator=(RenderSettings&&) = default;

  // Clears the flags and counters, sets the scales to 1 and the label offset to 0, and turns every fading
  // value that is on (its end value is not 0) into a fade to 0 that starts now from where it stands: the
  // constellation lines over 0.5 seconds, all others at once. Deliberately leaves the containers and the path
  // cache as they are.
  void CreateDefault();

  // Deliberately do nothing: the application keeps the options in its settings files. The arguments may be
  // null.
  void ReadSelf(void* source);
  void WriteSelf(FILE* file);

  // Favourite marks by number; kNoFavoriteMark for an object without one.
  unsigned char GetAsterFavo(int number) const;
  unsigned char GetCometFavo(int number) const;
  unsigned char GetSCFavo(int number) const;
  // Sets a mark, in place of an earlier one.
  void SetAsterFavo(int number, unsigned char mark);
  void SetCometFavo(int number, unsigned char mark);
  void SetSCFavo(int number, unsigned char mark);
  void ClearFavo();  // all three kinds

  // The spacecraft of the user's filter, with a mark each; kNoFavoriteMark for one that is not in it.
  unsigned char GetSC(int number) const;
  // Deliberately keeps the mark of a spacecraft that is there already.
  void InsertSCelem(int number, unsigned char mark);
  void ClearSC();

  // Planets and moons that are drawn, by number (3 the Earth, 301 the Moon). The second name has three
  // letters o: callers are bound to it.
  bool IsPlanetInclude(int number) const;
  bool IsMooonInclude(int number) const;
  void SetIncludedPlanets(const std::vector<int>& numbers) { m_IncludedPlanets = numbers; }
  void SetIncludedMoons(const std::vector<int>& numbers) { m_IncludedMoons = numbers; }
  const std::vector<int>& GetIncludedPlanets() const { return m_IncludedPlanets; }
  const std::vector<int>& GetIncludedMoons() const { return m_IncludedMoons; }

  void enableConstellationsIn3DFlight(bool enable);
  bool areConstellationsIn3DFlight() const { return m_bConstellationsIn3DFlight; }
  // The list itself, for the caller to change: one entry for each constellation, not 0 where it is drawn
  // whatever the filters say.
  std::vector<char>& getForcedConstellationList() { return m_ForcedConstellations; }

  // Whether the orbit of that object is to be drawn now: its opacity is above 0. An entry whose opacity is
  // not has faded out and is erased by this call.
  bool isObjectWithOrbit(const SSO_ID& id);
  // Whether an orbit is on or being faded in (its end value is not 0) of anything but a planet or a moon.
  bool isNPMOrbits() const;
  // Turns off those orbits: fades them out over 0.15 seconds from where they stand, or erases them at once.
  // Orbits that are fading out already go on as they do.
  void clearNPMOrbits(bool immediately);
  // Sets the fade of an object's orbit, in place of an earlier one.
  void SetOrbit(const SSO_ID& id, const OrbitFade& fade);
  // Fades an orbit in or out from where it stands, over `duration` seconds. One that fades in begins at an
  // opacity of 1/255 at least, so that isObjectWithOrbit finds it in the same frame. Switching off what is
  // not there does nothing.
  void ShowOrbit(const SSO_ID& id, bool show, double duration);
  // The opacity now, 0 for an object without an orbit. Erases nothing.
  float GetOrbitAlpha(const SSO_ID& id) const;
  const std::map<SSO_ID, OrbitFade>& GetOrbits() const { return m_Orbits; }

  // Takes the first cached path, in the order of the keys, of that object, reference and kind out of the
  // cache: it is the caller's then. Null when there is none. `reference` must not be null; null prints one
  // line and finds nothing.
  static PathLine* takePathFromCache(const SSO_ID& object, const SSO_ID* reference, int kind);
  // Hands a path made with `new` to the cache. A cached path of the same object, reference and kind is
  // destroyed first. The key is the number of entries then in the cache, plus 1: deliberately so, although
  // after a path was taken from the middle that key may be another path's, which is then displaced and
  // destroyed too. Null is ignored.
  static void movePathToCache(PathLine* path);

  // The computed paths, by key, for the life of the process; owned by the cache, which destroys what is left
  // when the process ends. One thread.
  static std::map<int, PathLine*> s_PathLineCache;

  // Layers that fade, opacities 0 to 1. CreateDefault fades the first one out and switches off the others.
  FadingValue<float> m_ConstellationLines;
  FadingValue<float> m_ConstellationNames;
  FadingValue<float> m_ConstellationBounds;
  FadingValue<float> m_ConstellationImages;
  FadingValue<float> m_Grid;
  FadingValue<float> m_MilkyWay;
  FadingValue<float> m_Atmosphere;
  FadingValue<double> m_Exposure;  // correction of the magnitude limits by the simulated exposure, magnitudes

  float m_StarScale = 1.0f;    // of the discs that stars are drawn as
  float m_BodyScale = 1.0f;    // of the discs of planets and moons
  float m_LabelOffset = 0.0f;  // pixels between an object and its name, beyond the usual

  bool m_bOrbitMarks = false;     // dates along orbits
  bool m_bShadows = false;        // shadows of planets and moons
  bool m_bComaAndTail = false;    // comets with coma and tail
  bool m_bFavoritesOnly = false;  // only small bodies that have a favourite mark
  int m_LabelsDrawn = 0;          // in this frame
  int m_OrbitsDrawn = 0;          // in this frame

 private:
  std::vector<int> m_IncludedPlanets;
  std::vector<int> m_IncludedMoons;
  std::map<int, unsigned char> m_AsteroidMarks;
  std::map<int, unsigned char> m_CometMarks;
  std::map<int, unsigned char> m_SpacecraftMarks;
  std::map<int, unsigned char> m_Spacecraft;
  bool m_bConstellationsIn3DFlight = false;
  std::vector<char> m_ForcedConstellations;
  std::map<SSO_ID, OrbitFade> m_Orbits;
};

}  // namespace CommonInterfaces
