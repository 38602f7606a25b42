// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/reports/shower_report.h"

#include <algorithm>
#include <cstdlib>

#include "common_interfaces/dates.h"
#include "scene/bodies/shower_activity.h"
#include "scene/view/standing.h"
#include "skyview/reports/host_texts.h"

namespace skyview {
namespace {

struct ActiveShower {
  const scene::Shower* shower;
  int daysToPeak;
};

std::string FormatPeak(int days) {
  if (days == 0) return Localize(HostText::kPeakToday, {});
  return Localize(days > 0 ? HostText::kDaysToPeak : HostText::kDaysSincePeak, {std::abs(days)});
}

std::string FormatLine(const ActiveShower& active, const scene::ObserverFrame& observer) {
  const auto& record = active.shower->record;
  std::string line = Localize(HostText::kShower, {record.name, record.code, static_cast<int>(record.raHours),
                                                  static_cast<int>(record.raMinutes), record.decSign,
                                                  static_cast<int>(record.decDegrees)});
  if (observer.horizon) {
    const scene::Standing standing =
        scene::FindStanding(scene::ApparentDirection(active.shower->radiant, observer), observer);
    line += Localize(HostText::kStanding, {standing.azimuth, standing.altitude});
  }
  return "  " + scene::ToUtf8(line + FormatPeak(active.daysToPeak)) + "\n";
}

std::string FormatDate(const CommonInterfaces::Camera& camera) {
  CommonInterfaces::_Date local;
  camera.GetUniversalTime(local);
  local.fraction += camera.GetLocUTCdelta();
  const std::string date = CommonInterfaces::GetDateString(local);
  return date.substr(std::min(date.find_first_not_of(' '), date.size()));
}

}  // namespace

std::string MakeShowerReport(const CommonInterfaces::Camera& camera, const scene::ObserverFrame& observer,
                             const std::vector<scene::Shower>& showers) {
  std::vector<ActiveShower> active;
  for (const auto& shower : showers) {
    if (const auto days = scene::FindDaysToPeak(shower.record, scene::GetCivilDay(camera)))
      active.push_back({&shower, *days});
  }
  std::stable_sort(active.begin(), active.end(), [](const ActiveShower& a, const ActiveShower& b) {
    return std::abs(a.daysToPeak) < std::abs(b.daysToPeak);
  });
  std::string report = scene::ToUtf8(Localize(HostText::kActiveShowers, {FormatDate(camera).c_str(),
                                                                         static_cast<int>(active.size())})) +
                       "\n";
  for (const auto& entry : active) report += FormatLine(entry, observer);
  return report;
}

}  // namespace skyview
