// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/satellites.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <vector>

#include "astro/satellite.h"
#include "utils/debug.h"
#include "utils/messages.h"
#include "utils/text.h"
#include "utils/whole_file.h"

namespace scene {
namespace {

constexpr double kMinutesPerDay = 1440.0;

const char* Describe(SatelliteFault fault) {
  switch (fault) {
    case SatelliteFault::kEccentricity:
      return "its eccentricity is out of range";
    case SatelliteFault::kMeanMotion:
      return "its mean motion is not above zero";
    case SatelliteFault::kPerturbedEccentricity:
      return "its perturbed eccentricity is out of range";
    case SatelliteFault::kSemiLatusRectum:
      return "its semi-latus rectum is negative";
    default:
      return "it has decayed";
  }
}

// Takes the lines of a file one after the other.
class SatelliteReader {
 public:
  SatelliteReader(const std::string& path, BodyList& bodies) : m_Path(path), m_Bodies(bodies) {}

  void TakeLine(std::string_view line, int number) {
    while (!line.empty() && (line.back() == '\r' || line.back() == ' ')) line.remove_suffix(1);
    if (line.empty() || line.front() == '#') return;
    const bool first = line.starts_with("1 "), second = line.starts_with("2 ");
    if (second && !m_First.empty()) {
      TakeSet(std::string(line), number);
    } else if (second || (first && !m_First.empty()) || (!first && !m_First.empty())) {
      Complain(number, "the second line of a set is missing or has lost its first one");
    }
    if (second) return Forget();
    if (first) {
      m_First = line;
    } else {
      Forget();
      m_Name = line.starts_with("0 ") ? line.substr(2) : line;
    }
  }

  void Finish(int number) {
    if (!m_First.empty()) Complain(number, "the file ends within a set");
  }

  int GetCount() const { return m_Count; }

 private:
  void Forget() {
    m_Name.clear();
    m_First.clear();
  }
  void Complain(int number, const std::string& what) const {
    PrintDebugString("%s:%d: %s, left out\n", m_Path.c_str(), number, what.c_str());
  }
  void TakeSet(const std::string& second, int line) {
    SkyBody body;
    int number = 0;
    std::string error;
    if (!ParseTwoLineElements(m_First, second, body.elements, number, error)) return Complain(line, error);
    const std::string name = m_Name.empty() ? std::to_string(number) : m_Name;
    const SatelliteFault fault = SatelliteModel(body.elements).GetFault();
    if (fault != SatelliteFault::kNone) return Complain(line, name + ": " + Describe(fault));
    body.id = SSO_ID(FourCC("scft"), number);
    if (FindBody(m_Bodies, body.id) >= 0) {
      return Complain(line, name + ": another set of the number " + std::to_string(number));
    }
    body.hasElements = true;
    body.names = {name};
    if (!m_Name.empty()) body.names.push_back(std::to_string(number));
    const auto bracket = name.find(" (");
    if (bracket != std::string::npos && name.ends_with(")")) {
      body.names.push_back(name.substr(0, bracket));
      body.names.push_back(name.substr(bracket + 2, name.size() - bracket - 3));
    }
    m_Bodies.push_back(std::move(body));
    ++m_Count;
  }

  const std::string& m_Path;
  BodyList& m_Bodies;
  std::string m_Name, m_First;
  int m_Count = 0;
};

constexpr double kFresh = 30.0;  // days

struct DoubtfulSatellite {
  const char* name;
  double age;  // of the elements, days; negative: ahead of the moment
  SatelliteFault fault;
};

DoubtfulSatellite Judge(const SkyBody& body, const SkyMoment& moment) {
  const double age = moment.day - body.elements.epoch + moment.fraction;
  double position[3], velocity[3];
  const SatelliteFault fault =
      SatelliteModel(body.elements).GetState(age * kMinutesPerDay, position, velocity);
  return {body.names.front().c_str(), age, fault};
}

void ReportOne(const DoubtfulSatellite& satellite) {
  if (satellite.fault != SatelliteFault::kNone) {
    PrintDebugString("%s: nobody can tell where it is, %s\n", satellite.name, Describe(satellite.fault));
  } else {
    PrintDebugString("%s: its elements are %.0f days %s, its place is a guess\n", satellite.name,
                     std::fabs(satellite.age), satellite.age > 0.0 ? "old" : "ahead of the moment");
  }
}

// "84 to 105 days old", "40 to 50 days ahead of the moment", "up to 40 days ahead of the moment and up to 50
// days old"
std::string DescribeAges(double least, double most) {
  if (least > 0.0) return FormatText("%.0f to %.0f days old", least, most);
  if (most < 0.0) return FormatText("%.0f to %.0f days ahead of the moment", -most, -least);
  return FormatText("up to %.0f days ahead of the moment and up to %.0f days old", -least, most);
}

void ReportOld(const std::string& file, const std::vector<DoubtfulSatellite>& old) {
  const auto [least, most] =
      std::minmax_element(old.begin(), old.end(), [](const auto& a, const auto& b) { return a.age < b.age; });
  const auto lost = std::count_if(old.begin(), old.end(),
                                  [](const auto& one) { return one.fault != SatelliteFault::kNone; });
  const std::string ages = DescribeAges(least->age, most->age);
  const std::string unknown =
      lost > 0 ? FormatText("; nobody can tell where %d of them are", static_cast<int>(lost)) : "";
  PrintDebugString("%s: the elements of %d satellites are %s, their places are guesses%s\n", file.c_str(),
                   static_cast<int>(old.size()), ages.c_str(), unknown.c_str());
}

}  // namespace

bool LoadSatellites(const std::string& path, BodyList& bodies, std::string& error) {
  std::string content, reason;
  if (!ReadWholeFile(path.c_str(), content, reason)) {
    error = path + ": " + reason;
    return false;
  }
  std::string_view rest = content;
  if (rest.starts_with("\xEF\xBB\xBF")) rest.remove_prefix(3);
  SatelliteReader reader(path, bodies);
  int number = 0;
  while (!rest.empty()) {
    const auto end = rest.find('\n');
    reader.TakeLine(rest.substr(0, end), ++number);
    rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
  }
  reader.Finish(number);
  if (reader.GetCount() > 0) return true;
  error = path + ": holds no two-line elements that can be used";
  return false;
}

void ReportLostSatellites(const std::string& file, const BodyList& bodies, const SkyMoment& moment) {
  std::vector<DoubtfulSatellite> old;
  for (const auto& body : bodies) {
    if (body.id.kind != FourCC("scft") || !body.hasElements) continue;
    const DoubtfulSatellite satellite = Judge(body, moment);
    if (std::fabs(satellite.age) > kFresh) {
      old.push_back(satellite);
    } else if (satellite.fault != SatelliteFault::kNone) {
      ReportOne(satellite);
    }
  }
  if (old.size() == 1) ReportOne(old.front());
  if (old.size() > 1) ReportOld(file, old);
}

}  // namespace scene
