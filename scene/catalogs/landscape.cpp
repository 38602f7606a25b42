// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/landscape.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "common_interfaces/panoramas.h"
#include "utils/numbers.h"
#include "utils/whole_file.h"

namespace scene {
namespace {

constexpr double kTurn = 2.0 * kPi;
constexpr std::size_t kPoints = 720;  // of a skyline
constexpr std::size_t kMostPoints = 10000;
constexpr double kLowest = -10.0, kAltitudes = 40.0;  // of a picture, degrees

struct Size {
  double width, height;
};

bool TakeSeparated(std::string_view& text, double& value) {
  const auto first = text.find_first_not_of(" ,\t\r\n");
  text.remove_prefix(std::min(first, text.size()));
  return TakeNumber(text, value);
}

// The value of an attribute of the element that the text begins with; "" without it.
std::string_view FindAttribute(std::string_view element, std::string_view name) {
  element = element.substr(0, element.find('>'));
  const std::string key = " " + std::string(name) + "=\"";
  const auto at = element.find(key);
  if (at == std::string_view::npos) return {};
  element.remove_prefix(at + key.size());
  return element.substr(0, element.find('"'));
}

bool ParseSize(std::string_view svg, Size& size) {
  const auto at = svg.find("<svg");
  if (at == std::string_view::npos) return false;
  std::string_view box = FindAttribute(svg.substr(at), "viewBox");
  double left = 1.0, top = 1.0;
  return TakeSeparated(box, left) && TakeSeparated(box, top) && TakeSeparated(box, size.width) &&
         TakeSeparated(box, size.height) && left == 0.0 && top == 0.0 && size.width > 0.0 &&
         size.height > 0.0;
}

bool ParseColour(std::string_view text, LandscapeLayer& layer) {
  unsigned value = 0;
  if (text.size() != 7 || text.front() != '#') return false;
  text.remove_prefix(1);
  if (!TakeHexadecimal(text, value) || !text.empty()) return false;
  layer.red = static_cast<unsigned char>(value >> 16);
  layer.green = static_cast<unsigned char>(value >> 8);
  layer.blue = static_cast<unsigned char>(value);
  return true;
}

// The points above the foot of the picture, from its left to its right edge.
bool ParseSkyline(std::string_view text, const Size& size, std::vector<double>& x, std::vector<double>& y) {
  double across = 0.0, down = 0.0;
  while (TakeSeparated(text, across)) {
    if (!TakeSeparated(text, down) || x.size() == kMostPoints) return false;
    if (!(across >= 0.0 && across <= size.width && down >= 0.0 && down <= size.height)) return false;
    if (down == size.height) continue;
    if (!x.empty() && across <= x.back()) return false;
    x.push_back(across);
    y.push_back(down);
  }
  return x.size() >= 2 && x.front() == 0.0 && x.back() == size.width &&
         text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

// The height at a place between points, along a curve without corners (Catmull and Rom), which meets itself
// behind the edges.
double Interpolate(const std::vector<double>& x, const std::vector<double>& y, double at) {
  const auto behind = std::upper_bound(x.begin() + 1, x.end() - 1, at);
  const auto i = static_cast<std::size_t>(behind - x.begin()) - 1, last = x.size() - 1;
  const double before = i > 0 ? y[i - 1] : y[last - 1], after = i + 2 <= last ? y[i + 2] : y[1];
  const double t = (at - x[i]) / (x[i + 1] - x[i]);
  const double a = 0.5 * (y[i + 1] - before), b = 0.5 * (after - y[i]), rise = y[i + 1] - y[i];
  return y[i] + t * (a + t * (3.0 * rise - 2.0 * a - b + t * (a + b - 2.0 * rise)));
}

void FillLayer(const std::vector<double>& x, const std::vector<double>& y, const Size& size,
               double leftAzimuth, LandscapeLayer& layer) {
  for (std::size_t i = 0; i < kPoints; ++i) {
    const double azimuth = static_cast<double>(i) / kPoints;  // turns
    const double fromLeft = azimuth - leftAzimuth / 360.0;
    const double down = Interpolate(x, y, size.width * (fromLeft - std::floor(fromLeft)));
    const double altitude =
        std::clamp(kLowest + kAltitudes * (1.0 - down / size.height), -80.0, 80.0) * kRadiansPerDegree;
    layer.altitudes.push_back(altitude);
    layer.skyline.push_back(MakeDirection(-kTurn * azimuth, altitude));
  }
}

}  // namespace

double Landscape::GetSkyline(const Direction& direction) const {
  const double azimuth = -std::atan2(direction.v[1], direction.v[0]) / kTurn;
  const double place = (azimuth - std::floor(azimuth)) * kPoints;
  const auto step = std::min(static_cast<std::size_t>(place), kPoints - 1);
  const double part = place - static_cast<double>(step);
  double skyline = -kPi;
  for (const LandscapeLayer& layer : layers) {
    const double from = layer.altitudes[step], to = layer.altitudes[(step + 1) % kPoints];
    skyline = std::max(skyline, from + (to - from) * part);
  }
  return skyline;
}

bool Landscape::Hides(const Direction& direction, double radius) const {
  constexpr double kHighest = 0.7;  // sine of more than the picture of a landscape reaches up to, and a disc
  if (direction.v[2] > kHighest || layers.empty()) return false;
  return std::asin(std::clamp(direction.v[2], -1.0, 1.0)) + radius < GetSkyline(direction);
}

bool ParseLandscape(std::string_view svg, double leftAzimuth, Landscape& landscape, std::string& error) {
  constexpr std::string_view kElement = "<polygon";
  Landscape read;
  Size size = {};
  if (!ParseSize(svg, size)) {
    error = "is no SVG whose viewBox begins at 0 0";
    return false;
  }
  for (auto at = svg.find(kElement); at != std::string_view::npos; at = svg.find(kElement, at + 1)) {
    const std::string_view element = svg.substr(at);
    std::vector<double> x, y;
    LandscapeLayer layer = {};
    if (!ParseColour(FindAttribute(element, "fill"), layer) ||
        !ParseSkyline(FindAttribute(element, "points"), size, x, y)) {
      error = "polygon " + std::to_string(read.layers.size() + 1) +
              " has no fill #RRGGBB or no skyline from the left to the right edge";
      return false;
    }
    FillLayer(x, y, size, leftAzimuth, layer);
    read.layers.push_back(std::move(layer));
  }
  if (read.layers.empty()) {
    error = "holds no polygon";
    return false;
  }
  landscape = std::move(read);
  return true;
}

bool LoadLandscape(const SSO_ID& body, int choice, Landscape& landscape, std::string& error) {
  const CommonInterfaces::PanoramaDesc description;
  const auto* const all = description.GetPanoramas(body);
  landscape.layers.clear();
  const auto isChosen = [choice](const CommonInterfaces::PanoramaInfo& info) {
    return choice == kDefaultLandscape ? info.IsDefault() : info.GetId() == choice;
  };
  const auto found = all ? std::find_if(all->begin(), all->end(), isChosen) : decltype(all->begin())();
  if (!all || found == all->end()) {
    error = "media:surface:panoramas.ini has no landscape " + std::to_string(choice);
    return choice == kDefaultLandscape;
  }
  std::string svg;
  if (ReadWholeFile(found->GetPath().c_str(), svg, error) &&
      ParseLandscape(svg, found->GetLeftAzimuth(), landscape, error)) {
    return true;
  }
  error = found->GetPath() + ": " + error;
  return false;
}

}  // namespace scene
