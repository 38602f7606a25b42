// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/almanac/night_bands.h"

#include <algorithm>

namespace scene {
namespace {

bool Overlap(const NightHours& a, const NightHours& b) { return a.begin < b.end && b.begin < a.end; }

NightHours MiddleOf(const NightHours& hours) {
  const float middle = 0.5f * (hours.begin + hours.end);
  return {middle, middle};
}

class BandPen {
 public:
  BandPen(const ChartFrame& chart, const NightHours& shown,
          const std::vector<std::vector<NightHours>>& nights)
      : m_Chart(chart), m_Shown(shown), m_Nights(nights) {}

  bool Add() {
    bool any = false;
    for (int night = 0; night < static_cast<int>(m_Nights.size()); ++night) {
      for (const auto& hours : m_Nights[static_cast<std::size_t>(night)]) {
        AddBelow(night, hours);
        AddAbove(night, hours);
        any = true;
      }
    }
    return any;
  }

 private:
  static constexpr double kHalf = 0.5;

  std::vector<NightHours> FindNeighbours(int night, const NightHours& hours) const {
    std::vector<NightHours> found;
    if (night < 0 || night >= static_cast<int>(m_Nights.size())) return found;
    for (const auto& other : m_Nights[static_cast<std::size_t>(night)]) {
      if (Overlap(hours, other)) found.push_back(other);
    }
    return found;
  }
  void AddQuad(const NightHours& above, const NightHours& below, double top, double bottom) const {
    AddNightQuad(m_Chart, m_Shown, above, below, top, bottom);
  }

  // From the middle of the night to that of the next one. Where stretches part or come together the wider
  // side is the rectangle of its own half night.
  void AddBelow(int night, const NightHours& hours) const {
    const double middle = night + kHalf, next = middle + 1.0;
    const bool last = night + 1 == static_cast<int>(m_Nights.size());
    const auto below = FindNeighbours(night + 1, hours);
    if (last) return AddQuad(hours, hours, middle, night + 1.0);
    if (below.empty()) return AddQuad(hours, MiddleOf(hours), middle, next);
    const bool one = below.size() == 1 && FindNeighbours(night, below[0]).size() == 1;
    AddQuad(hours, one ? below[0] : hours, middle, one ? next : night + 1.0);
  }

  void AddAbove(int night, const NightHours& hours) const {
    const double middle = night + kHalf;
    if (night == 0) return AddQuad(hours, hours, 0.0, middle);
    const auto above = FindNeighbours(night - 1, hours);
    if (above.empty()) return AddQuad(MiddleOf(hours), hours, middle - 1.0, middle);
    const bool one = above.size() == 1 && FindNeighbours(night, above[0]).size() == 1;
    if (!one) AddQuad(hours, hours, night, middle);
  }

  const ChartFrame& m_Chart;
  const NightHours& m_Shown;
  const std::vector<std::vector<NightHours>>& m_Nights;
};

}  // namespace

void AddNightQuad(const ChartFrame& chart, const NightHours& shown, const NightHours& above,
                  const NightHours& below, double top, double bottom) {
  const auto x = [&](float hour) { return chart.X(std::clamp(hour, shown.begin, shown.end)); };
  DisplayList& list = chart.GetList();
  list.AddVertex(x(above.begin), chart.Y(top));
  list.AddVertex(x(above.end), chart.Y(top));
  list.AddVertex(x(below.end), chart.Y(bottom));
  list.AddVertex(x(below.begin), chart.Y(bottom));
  list.EndRing();
}

bool AddNightBand(const ChartFrame& chart, const NightHours& shown,
                  const std::vector<std::vector<NightHours>>& nights) {
  return BandPen(chart, shown, nights).Add();
}

}  // namespace scene
