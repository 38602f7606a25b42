// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/render_settings.h"

#include <algorithm>
#include <utility>

#include "utils/clock.h"
#include "utils/one_thread.h"

namespace CommonInterfaces {

namespace {

constexpr double kFirstLayerFade = 0.5;  // seconds

template <class T>
void SwitchOff(FadingValue<T>& value, double duration) {
  if (value.m_EndValue != T(0)) value.FadeTo(T(0), AnimationInterval::m_CurrentTime, duration);
}

unsigned char MarkOf(const std::map<int, unsigned char>& marks, int number) {
  const auto found = marks.find(number);
  return found == marks.end() ? kNoFavoriteMark : found->second;
}

bool Contains(const std::vector<int>& numbers, int number) {
  return std::find(numbers.begin(), numbers.end(), number) != numbers.end();
}

}  // namespace

RenderSettings::RenderSettings() = default;

RenderSettings::~RenderSettings() = default;

RenderSettings& RenderSettings::operator=(const RenderSettings& other) {
  RenderSettings copy(other);
  return *this = std::move(copy);
}

void RenderSettings::CreateDefault() {
  const ChangesObject use(this, "RenderSettings");
  m_bConstellationsIn3DFlight = false;
  m_bOrbitMarks = m_bShadows = m_bComaAndTail = m_bFavoritesOnly = false;
  m_LabelsDrawn = m_OrbitsDrawn = 0;
  m_StarScale = m_BodyScale = 1.0f;
  m_LabelOffset = 0.0f;
  // A layer that is fading out already goes on as it does.
  SwitchOff(m_ConstellationLines, kFirstLayerFade);
  for (auto layer : {&RenderSettings::m_ConstellationNames, &RenderSettings::m_ConstellationBounds,
                     &RenderSettings::m_ConstellationImages, &RenderSettings::m_Grid,
                     &RenderSettings::m_MilkyWay, &RenderSettings::m_Atmosphere}) {
    SwitchOff(this->*layer, 0.0);
  }
  SwitchOff(m_Exposure, 0.0);
}

void RenderSettings::ReadSelf(void*) {}

void RenderSettings::WriteSelf(FILE*) {}

unsigned char RenderSettings::GetAsterFavo(int number) const { return MarkOf(m_AsteroidMarks, number); }
unsigned char RenderSettings::GetCometFavo(int number) const { return MarkOf(m_CometMarks, number); }
unsigned char RenderSettings::GetSCFavo(int number) const { return MarkOf(m_SpacecraftMarks, number); }

void RenderSettings::SetAsterFavo(int number, unsigned char mark) {
  const ChangesObject use(this, "RenderSettings");
  m_AsteroidMarks[number] = mark;
}
void RenderSettings::SetCometFavo(int number, unsigned char mark) {
  const ChangesObject use(this, "RenderSettings");
  m_CometMarks[number] = mark;
}
void RenderSettings::SetSCFavo(int number, unsigned char mark) {
  const ChangesObject use(this, "RenderSettings");
  m_SpacecraftMarks[number] = mark;
}

void RenderSettings::ClearFavo() {
  const ChangesObject use(this, "RenderSettings");
  m_AsteroidMarks.clear();
  m_CometMarks.clear();
  m_SpacecraftMarks.clear();
}

unsigned char RenderSettings::GetSC(int number) const { return MarkOf(m_Spacecraft, number); }

void RenderSettings::InsertSCelem(int number, unsigned char mark) {
  const ChangesObject use(this, "RenderSettings");
  m_Spacecraft.emplace(number, mark);
}

void RenderSettings::ClearSC() {
  const ChangesObject use(this, "RenderSettings");
  m_Spacecraft.clear();
}

bool RenderSettings::IsPlanetInclude(int number) const { return Contains(m_IncludedPlanets, number); }

bool RenderSettings::IsMooonInclude(int number) const { return Contains(m_IncludedMoons, number); }

void RenderSettings::enableConstellationsIn3DFlight(bool enable) { m_bConstellationsIn3DFlight = enable; }

}  // namespace CommonInterfaces
