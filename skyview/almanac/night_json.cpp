// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>
#include <utility>

#include "astro/meteor_showers.h"
#include "scene/words/disc_text.h"
#include "scene/words/event_title.h"
#include "skyview/almanac/event_formats.h"
#include "skyview/almanac/night_cells.h"
#include "skyview/almanac/night_report.h"
#include "utils/json.h"
#include "utils/messages.h"

namespace skyview {
namespace {

using Members = std::vector<std::pair<std::string, std::string>>;

class NightJson {
 public:
  NightJson(const NightReport& report, const scene::SkyCatalogs& catalogs,
            const std::vector<scene::Shower>& showers, const LocalClock& clock)
      : m_Report(report), m_Catalogs(catalogs), m_Showers(showers), m_Clock(clock) {}

  std::string Write() const {
    const scene::NightPlan& plan = m_Report.plan;
    Members night = {
        {"latitude", Degrees(m_Report.place.lat, 4)},
        {"longitude", Degrees(m_Report.place.lon, 4)},
        {"zone", JsonString(m_Clock.GetZone())},
        {"from", Moment(plan.whole.begin)},
        {"to", Moment(plan.whole.end)},
        {"sunset", Moment(plan.sun.set)},
        {"sunrise", Moment(plan.sun.rise)},
        {"twilights", JsonObject({{"civil", Twilight(plan.civil)},
                                  {"nautical", Twilight(plan.nautical)},
                                  {"astronomical", Twilight(plan.astronomical)}})},
        {"darkness", JsonString(kDarkness[static_cast<int>(plan.darkness)])},
        {"dark", plan.darkness == scene::Darkness::kNone ? "null" : Span(plan.dark)},
        {"moonless", List(plan.moonless, [this](const auto& span) { return Span(span); })},
        {"moon", Moon()},
        {"planets", List(plan.planets, [this](const auto& body) { return JsonObject(Body(body)); })},
        {"aperture_mm", FormatText("%.0f", m_Report.equipment.GetAperture())}};
    const auto object = [this](const auto& found) { return Object(found); };
    const auto event = [this](const auto& found) {
      return FormatEventAsJson(found, m_Catalogs, m_Showers, m_Clock);
    };
    night.push_back({"objects", List(m_Report.objects, object)});
    night.push_back({"small_bodies", List(m_Report.smallBodies, object)});
    night.push_back(
        {"showers", List(m_Report.showers, [this](const auto& shower) { return Shower(shower); })});
    night.push_back(
        {"jupiter_moons", List(m_Report.moonEvents, [this](const auto& e) { return MoonEvent(e); })});
    night.push_back({"passes", List(m_Report.passes, event)});
    night.push_back({"phases", List(m_Report.phases, event)});
    night.push_back({"next", List(m_Report.next, event)});
    return JsonObject(night) + "\n";
  }

 private:
  // By scene::Darkness.
  static constexpr const char* kDarkness[] = {"none", "sunset", "civil", "nautical", "astronomical"};
  // By astro::MoonPhenomenon.
  static constexpr const char* kPhenomena[] = {"transit", "shadow-transit", "occultation", "eclipse"};

  static std::string Number(double value, int decimals) { return FormatText("%.*f", decimals, value); }
  static std::string Degrees(double radians, int decimals = 1) {
    return Number(radians / scene::kRadiansPerDegree, decimals);
  }
  std::string Moment(const std::optional<scene::SkyMoment>& moment) const {
    return moment ? JsonString(FormatStamp(*moment, m_Clock)) : "null";
  }
  std::string Twilight(const astro::Twilight& twilight) const {
    return JsonObject({{"dusk", Moment(twilight.dusk)}, {"dawn", Moment(twilight.dawn)}});
  }
  std::string Span(const scene::NightSpan& span) const {
    return JsonObject({{"from", Moment(span.begin)}, {"to", Moment(span.end)}});
  }
  template <class Values, class Format>
  static std::string List(const Values& values, Format format) {
    std::string json;
    for (const auto& value : values) json += (json.empty() ? "" : ", ") + format(value);
    return "[" + json + "]";
  }

  Members Sight(const scene::NightSight& sight) const {
    return {{"best", Moment(sight.moment)},
            {"altitude", Degrees(sight.altitude)},
            {"azimuth", Degrees(sight.azimuth)}};
  }
  Members Body(const scene::NightBody& body) const {
    const auto& events = body.events;
    Members members = {
        {"name", JsonString(GetBodyName(body.id, m_Catalogs))},
        {"rise", Moment(events.rise)},
        {"transit", Moment(events.transit)},
        {"set", Moment(events.set)},
        {"stays_up", events.staysUp ? "true" : "false"},
        {"stays_down", events.staysDown ? "true" : "false"},
        {"magnitude", Number(body.seen.magnitude, 2)},
        {"diameter_arcsec", Number(2.0 * body.seen.angularRadius / astro::kRadiansPerArcsecond, 2)},
        {"lit_percent", std::to_string(scene::GetLitPercent(body.seen.phaseAngle))},
        {"constellation", JsonString(GetConstellationName(body.seen.astrometric, m_Catalogs))}};
    if (!body.best) return members;
    for (auto& member : Sight(*body.best)) members.push_back(std::move(member));
    return members;
  }
  std::string Moon() const {
    Members members = Body(m_Report.plan.moon);
    members.push_back({"age_days", m_Report.moonAge ? Number(*m_Report.moonAge, 2) : "null"});
    return JsonObject(members);
  }
  std::string Object(const scene::NightObject& object) const {
    Members members = Sight(object.best);
    members.insert(members.begin(), {"name", JsonString(GetNightObjectName(object.object, m_Catalogs))});
    members.push_back({"magnitude", Number(object.magnitude, 2)});
    members.push_back({"from_moon", Degrees(object.fromMoon)});
    members.push_back({"moon_altitude", Degrees(object.moonAltitude)});
    members.push_back({"margin", Number(object.margin, 2)});
    return JsonObject(members);
  }
  std::string Shower(const scene::NightShower& shower) const {
    const std::string code = astro::GetVisualShowers()[static_cast<std::size_t>(shower.shower)].code;
    Members members = Sight(shower.radiant);
    members.insert(members.begin(), {{"name", JsonString(scene::GetShowerName(shower.shower, m_Showers))},
                                     {"code", JsonString(code)}});
    members.push_back({"an_hour", Number(shower.rate, 1)});
    members.push_back({"days_to_maximum", Degrees(shower.toPeak)});
    return JsonObject(members);
  }
  std::string MoonEvent(const NightMoonEvent& event) const {
    return JsonObject({{"moon", JsonString(GetBodyName(event.event.moon, m_Catalogs))},
                       {"kind", JsonString(kPhenomena[static_cast<int>(event.event.kind)])},
                       {"begin", event.event.beginIsHidden ? "null" : Moment(event.begin)},
                       {"end", event.event.endIsHidden ? "null" : Moment(event.end)}});
  }

  const NightReport& m_Report;
  const scene::SkyCatalogs& m_Catalogs;
  const std::vector<scene::Shower>& m_Showers;
  const LocalClock& m_Clock;
};

}  // namespace

std::string FormatNightAsJson(const NightReport& report, const scene::SkyCatalogs& catalogs,
                              const std::vector<scene::Shower>& showers, const LocalClock& clock) {
  return NightJson(report, catalogs, showers, clock).Write();
}

}  // namespace skyview
