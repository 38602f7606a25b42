// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/chart/light_curve.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

#include "common_interfaces/variable_stars.h"
#include "scene/catalogs/name_key.h"
#include "utils/messages.h"

namespace scene {
namespace {

// Which star an identifier is follows from epoch, period and range of its model, which are those of the star
// in the General Catalogue of Variable Stars (Samus' et al. 2017, version 5.1), and from date and magnitude
// of its outburst: novae as listed by Strope, Schaefer & Henden 2010 (AJ 140, 34), supernovae by Green &
// Stephenson 2003 and SIMBAD.
constexpr VariableStar kStars[] = {
    {0x48780B23, "Algol", "beta Persei, beta Per, bet Per", false, 2.86731, 0.0, 0.0},
    {0x4B710A52, "Sheliak", "beta Lyrae, beta Lyr, bet Lyr", false, 12.9138, 0.0, 0.0},
    {0x52230A71, "chi Cygni", "chi Cyg", false, 408.05, 0.0, 0.0},
    {0x45C70F9B, "delta Cephei", "delta Cep, del Cep", false, 5.36634, 0.0, 0.0},
    {0x41EE0C46, "RR Lyrae", "RR Lyr", false, 0.5669, 0.0, 0.0},
    {0x44781255, "Mira", "omicron Ceti, omicron Cet, omi Cet", false, 333.8, 0.0, 0.0},
    {0x447807F5, "T Coronae Borealis", "T CrB", false, 29000.0, 2431850.5, 2431930.5},
    {0x41A701C0, "V603 Aquilae", "V603 Aql, Nova Aquilae 1918", false, 0.0, 2421731.5, 2422093.5},
    {0x2F5DC054, "SN 1054", "supernova of 1054", true, 0.0, 2106199.0, 2106579.0},
    {0x3C24553D, "SN 1006", "supernova of 1006", true, 0.0, 2088586.0, 2088966.0},
    {0x0DC3C508, "SN 1572", "Tycho's supernova, B Cas", true, 0.0, 2295500.5, 2295880.5},
    {0x295848A3, "SN 1604", "Kepler's supernova, V843 Oph", true, 0.0, 2307150.5, 2307530.5},
    {0x46FA33D6, "SN 1885A", "S Andromedae, S And", true, 0.0, 2409731.0, 2410111.0},
    {0x33703631, "SN 1987A", "supernova of 1987", true, 0.0, 2446811.0, 2447191.0},
    {0x77C91FD3, "V1500 Cygni", "V1500 Cyg, Nova Cygni 1975", true, 0.0, 2442633.0, 2442995.0}};

std::optional<unsigned> ParseIdentifier(std::string_view text) {
  const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
  if (hexadecimal) text.remove_prefix(2);
  unsigned id = 0;
  const auto [end, error] =
      std::from_chars(text.data(), text.data() + text.size(), id, hexadecimal ? 16 : 10);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return id;
}

bool HasKey(std::string_view names, const std::string& key) {
  while (!names.empty()) {
    const auto comma = names.find(',');
    if (MakeNameKey(names.substr(0, comma)) == key) return true;
    names = comma == std::string_view::npos ? std::string_view() : names.substr(comma + 1);
  }
  return false;
}

double GetMagnitude(const VariableStar& star, double julianDate) {
  double magnitude = 0.0;
  star.isUserStar ? CommonInterfaces::GetVarUserStarMagnitude(&magnitude, star.id, julianDate)
                  : CommonInterfaces::GetVarStarMagnitude(&magnitude, star.id, julianDate);
  return magnitude;
}

void ChooseSpan(const VariableStar& star, double julianDate, LightCurve& curve) {
  if (star.last > 0.0) {
    const double cycles =
        star.period > 0.0 ? std::floor((julianDate - star.first) / star.period) * star.period : 0.0;
    curve.first = star.first + cycles;
    curve.last = star.last + cycles;
  } else {
    curve.first = julianDate - star.period;
    curve.last = julianDate + star.period;
  }
}

}  // namespace

const VariableStar* FindVariableStar(std::string_view text) {
  const auto id = ParseIdentifier(text);
  const std::string key = MakeNameKey(text), expanded = MakeNameKey(ExpandGreekLetter(std::string(text)));
  for (const auto& star : kStars) {
    if (id ? star.id == *id
           : HasKey(star.name, key) || HasKey(star.others, key) || HasKey(star.others, expanded)) {
      return &star;
    }
  }
  return nullptr;
}

std::vector<std::string> ListVariableStars() {
  std::vector<std::string> names;
  for (const auto& star : kStars) names.emplace_back(star.name);
  return names;
}

LightCurve MakeLightCurve(const VariableStar& star, double julianDate) {
  constexpr int kSteps = 1200;
  LightCurve curve;
  curve.title = FormatText("%s (0x%08X)", star.name, star.id);
  ChooseSpan(star, julianDate, curve);
  for (int i = 0; i <= kSteps; ++i) {
    const double when = curve.first + (curve.last - curve.first) * i / kSteps;
    curve.points.push_back({when, GetMagnitude(star, when)});
  }
  const auto [least, most] = std::minmax_element(curve.points.begin(), curve.points.end(),
                                                 [](const auto& a, const auto& b) { return a.y < b.y; });
  const double margin = 0.08 * std::max(most->y - least->y, 0.1);
  curve.brightest = least->y - margin;
  curve.faintest = most->y + margin;
  return curve;
}

double ChooseTick(double length, int count) {
  double tick = std::pow(10.0, std::floor(std::log10(length / count)));
  for (const double factor : {2.0, 2.5, 2.0}) {  // 1, 2, 5, 10
    if (length / tick <= count) break;
    tick *= factor;
  }
  return tick;
}

}  // namespace scene
