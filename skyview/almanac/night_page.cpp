// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>

#include "common_interfaces/object_kinds.h"
#include "scene/words/disc_text.h"
#include "scene/words/event_title.h"
#include "skyview/almanac/night_cells.h"
#include "skyview/almanac/night_report.h"
#include "skyview/almanac/text_table.h"
#include "utils/messages.h"

namespace skyview {
namespace {

constexpr int kPageWidth = 100, kIndent = 2;
constexpr Align kLeft = Align::kLeft, kRight = Align::kRight;

class NightWriter {
 public:
  NightWriter(const NightReport& report, const scene::SkyCatalogs& catalogs,
              const std::vector<scene::Shower>& showers, const LocalClock& clock)
      : m_Report(report), m_Catalogs(catalogs), m_Showers(showers), m_Clock(clock) {}

  std::string Write() {
    AddTitle();
    AddTwilights();
    AddDarkness();
    AddMoon();
    AddPlanets();
    AddObjects(FormatObjectsHeading(), m_Report.objects);
    AddObjects(GetText(HostText::kSmallBodies), m_Report.smallBodies);
    AddShowers();
    AddMoonEvents();
    AddPasses();
    AddNext();
    return std::move(m_Text);
  }

 private:
  void AddTitle();
  void AddTwilights();
  void AddDarkness();
  void AddMoon();
  void AddPlanets();
  void AddObjects(const std::string& heading, const std::vector<scene::NightObject>& objects);
  void AddShowers();
  void AddMoonEvents();
  void AddPasses();
  void AddNext();

  // A table under its heading; nothing without rows.
  void AddTable(const std::string& heading, const TextTable& table) {
    if (table.HasRows()) m_Text += "\n" + heading + "\n" + table.Format(kIndent);
  }
  std::vector<std::string> MakeBodyRow(const scene::NightBody& body) const;
  std::string GetObjectKind(const scene::FoundObject& object) const;
  std::string GetLettersOf(const scene::NightObject& object) const;
  std::string FormatMoonless() const;
  std::string FormatObjectsHeading() const;
  std::string Time(const std::optional<scene::SkyMoment>& moment) const {
    return moment ? m_Clock.FormatTime(*moment) : "-";
  }

  const NightReport& m_Report;
  const scene::SkyCatalogs& m_Catalogs;
  const std::vector<scene::Shower>& m_Showers;
  const LocalClock& m_Clock;
  std::string m_Text;
};

std::string Utf8(const std::string& text) { return scene::ToUtf8(text); }

void NightWriter::AddTitle() {
  const scene::NightSpan& night = m_Report.plan.whole;
  const std::string from = scene::ToCodePage(m_Clock.FormatLongDay(night.begin)),
                    to = scene::ToCodePage(m_Clock.FormatLongDay(night.end));
  m_Text = Utf8(Localize(HostText::kNightDates, {from.c_str(), to.c_str()})) + "\n";
  const std::string place = scene::ToCodePage(FormatPlace(m_Report.place)), zone = m_Clock.GetZone(),
                    offset = m_Clock.FormatOffset(m_Report.plan.middle);
  m_Text += Utf8(Localize(HostText::kNightPlace, {place.c_str(), zone.c_str(), offset.c_str()})) + "\n\n";
}

void NightWriter::AddTwilights() {
  const scene::NightPlan& plan = m_Report.plan;
  TextTable table({{kLeft}, {kRight}, {kRight}, {kRight}, {kRight}});
  table.AddRow({GetText(HostText::kTwilight), GetText(HostText::kSunItself), GetText(HostText::kCivil),
                GetText(HostText::kNautical), GetText(HostText::kAstronomical)});
  table.AddRow({GetText(HostText::kEveningUntil), Time(plan.sun.set), Time(plan.civil.dusk),
                Time(plan.nautical.dusk), Time(plan.astronomical.dusk)});
  table.AddRow({GetText(HostText::kMorningFrom), Time(plan.sun.rise), Time(plan.civil.dawn),
                Time(plan.nautical.dawn), Time(plan.astronomical.dawn)});
  m_Text += table.Format(0);
}

std::string NightWriter::FormatMoonless() const {
  const scene::NightPlan& plan = m_Report.plan;
  if (plan.moonless.empty()) return GetText(HostText::kNeverMoonless);
  std::vector<std::string> spans;
  for (const auto& span : plan.moonless) spans.push_back(Time(span.begin) + "-" + Time(span.end));
  return Utf8(Localize(HostText::kMoonless, {JoinNames(spans).c_str()}));
}

void NightWriter::AddDarkness() {
  const scene::NightPlan& plan = m_Report.plan;
  const int minutes = static_cast<int>(std::lround(plan.dark.GetLength() * 1440.0));
  const std::string length = Localize(HostText::kHoursAndMinutes, {minutes / 60, minutes % 60});
  std::vector<std::string> parts = {Utf8(CommonInterfaces::FormatLocalizedText(
      static_cast<unsigned>(HostText::kFirstDarkness) + static_cast<unsigned>(plan.darkness),
      {Time(plan.dark.begin).c_str(), Time(plan.dark.end).c_str(), length.c_str()}))};
  if (plan.darkness != scene::Darkness::kNone) parts.push_back(FormatMoonless());
  m_Text += WrapList("", parts, kPageWidth, 0);
}

void NightWriter::AddMoon() {
  const ObservedBody& moon = m_Report.plan.moon.seen;
  const int lit = scene::GetLitPercent(moon.phaseAngle);
  // It waxes until it is full, which is the next of the two to come.
  const auto turn = std::find_if(m_Report.phases.begin(), m_Report.phases.end(), [](const auto& event) {
    return event.kind == astro::EventKind::kNewMoon || event.kind == astro::EventKind::kFullMoon;
  });
  const bool waxing = turn != m_Report.phases.end() && turn->kind == astro::EventKind::kFullMoon;
  const std::string name = GetBodyName(astro::kMoon, m_Catalogs),
                    phase = Utf8(scene::GetMoonPhaseName(scene::GetMoonPhase(lit, waxing)));
  m_Text += name + ": " +
            Utf8(Localize(HostText::kMoonOfNight,
                          {scene::ToCodePage(phase).c_str(), lit, m_Report.moonAge.value_or(0.0),
                           scene::FormatSize(2.0 * moon.angularRadius).c_str()})) +
            "\n";
  std::vector<std::string> phases;
  for (const auto& event : m_Report.phases) {
    phases.push_back(scene::GetEventTitle(event, m_Catalogs, m_Showers) + " " +
                     m_Clock.FormatMoment(event.moment));
  }
  if (!phases.empty()) m_Text += WrapList("", phases, kPageWidth, 0);
}

std::vector<std::string> NightWriter::MakeBodyRow(const scene::NightBody& body) const {
  const astro::RiseTransitSet& events = body.events;
  return {GetBodyName(body.id, m_Catalogs),
          FormatRising(events.rise, events, m_Clock),
          Time(events.transit),
          FormatRising(events.set, events, m_Clock),
          body.best ? Time(body.best->moment) : "-",
          body.best ? FormatDegrees(body.best->altitude) : "",
          body.best ? FormatTowards(body.best->azimuth) : "",
          FormatMagnitude(body.seen.magnitude),
          FormatShortSize(2.0 * body.seen.angularRadius),
          GetConstellationName(body.seen.astrometric, m_Catalogs)};
}

void NightWriter::AddPlanets() {
  TextTable table({{kLeft, 12},
                   {kRight},
                   {kRight},
                   {kRight},
                   {kRight},
                   {kRight},
                   {kLeft},
                   {kRight},
                   {kRight},
                   {kLeft, 20}});
  table.AddRow({"", GetText(HostText::kRise), GetText(HostText::kTransit), GetText(HostText::kSet),
                GetText(HostText::kBest), GetText(HostText::kAltitude), GetText(HostText::kTowards),
                GetText(HostText::kMagnitude), GetText(HostText::kSize), GetText(HostText::kConstellation)});
  table.AddRow(MakeBodyRow(m_Report.plan.moon));
  for (const auto& planet : m_Report.plan.planets) table.AddRow(MakeBodyRow(planet));
  AddTable(GetText(HostText::kPlanets), table);
}

std::string NightWriter::FormatObjectsHeading() const {
  const double aperture = m_Report.equipment.GetAperture();
  const Equipment equipment = m_Report.equipment.GetEquipment();
  const std::string with = equipment == Equipment::kEye          ? Localize(HostText::kNakedEye, {})
                           : equipment == Equipment::kBinoculars ? Localize(HostText::kBinoculars, {aperture})
                                                                 : Localize(HostText::kTelescope, {aperture});
  return GetText(HostText::kWhatIsBest) + " (" + Utf8(with) + ")";
}

std::string NightWriter::GetObjectKind(const scene::FoundObject& object) const {
  const char* const kind = CommonInterfaces::GetObjectTypeName(scene::GetKind(object, m_Catalogs),
                                                               scene::GetNumber(object, m_Catalogs));
  return kind ? Utf8(kind) : "";
}

std::string NightWriter::GetLettersOf(const scene::NightObject& object) const {
  if (object.object.group != scene::ObjectGroup::kDeepsky) return "";
  const auto& found = m_Catalogs.deepsky[static_cast<std::size_t>(object.object.index)];
  return GetConstellationLetters(found.direction.v, m_Catalogs);
}

void NightWriter::AddObjects(const std::string& heading, const std::vector<scene::NightObject>& objects) {
  TextTable table({{kLeft, 28}, {kLeft, 19}, {kLeft}, {kRight}, {kRight}, {kLeft}, {kRight}, {kRight}});
  table.AddRow({"", GetText(HostText::kKind), "", GetText(HostText::kBest), GetText(HostText::kAltitude),
                GetText(HostText::kTowards), GetText(HostText::kMagnitude), GetText(HostText::kFromMoon)});
  for (const auto& object : objects) {
    table.AddRow({GetNightObjectName(object.object, m_Catalogs), GetObjectKind(object.object),
                  GetLettersOf(object), Time(object.best.moment), FormatDegrees(object.best.altitude),
                  FormatTowards(object.best.azimuth), FormatMagnitude(object.magnitude),
                  object.moonAltitude > 0.0 ? FormatDegrees(object.fromMoon) : "-"});
  }
  AddTable(heading, table);
}

std::string FormatPeak(double days) {
  const int whole = static_cast<int>(std::lround(days));
  if (whole == 0) return GetText(HostText::kPeakNow);
  return Utf8(Localize(whole > 0 ? HostText::kPeakIn : HostText::kPeakAgo, {std::abs(whole)}));
}

void NightWriter::AddShowers() {
  TextTable table({{kLeft, 32}, {kRight}, {kRight}, {kRight}, {kLeft}, {kLeft}});
  table.AddRow({"", GetText(HostText::kRate), GetText(HostText::kBest), GetText(HostText::kAltitude),
                GetText(HostText::kTowards), GetText(HostText::kMaximum)});
  for (const auto& shower : m_Report.showers) {
    table.AddRow({scene::GetShowerName(shower.shower, m_Showers), FormatText("%.0f", shower.rate),
                  Time(shower.radiant.moment), FormatDegrees(shower.radiant.altitude),
                  FormatTowards(shower.radiant.azimuth),
                  FormatPeak(shower.toPeak / scene::kRadiansPerDegree)});
  }
  AddTable(GetText(HostText::kShowersOfNight), table);
}

void NightWriter::AddMoonEvents() {
  TextTable table({{kLeft}, {kLeft}, {kLeft}});
  table.AddRow({"", GetText(HostText::kKind), ""});
  for (const auto& event : m_Report.moonEvents) {
    table.AddRow({GetBodyName(event.event.moon, m_Catalogs),
                  GetText(HostText::kFirstMoonPhenomenon, static_cast<int>(event.event.kind)),
                  (event.event.beginIsHidden ? "..." : Time(event.begin)) + "-" +
                      (event.event.endIsHidden ? "..." : Time(event.end))});
  }
  AddTable(GetText(HostText::kJupiterMoons), table);
}

void NightWriter::AddPasses() {
  TextTable table({{kLeft, 40}, {kRight}, {kRight}, {kRight}, {kRight}, {kRight}});
  table.AddRow({"", GetText(HostText::kRise), GetText(HostText::kBest), GetText(HostText::kSet),
                GetText(HostText::kAltitude), GetText(HostText::kMagnitude)});
  for (const auto& pass : m_Report.passes) {
    table.AddRow({GetBodyName(pass.body, m_Catalogs), Time(Later(pass.moment, -pass.sinceBegin)),
                  Time(pass.moment), Time(Later(pass.moment, pass.untilEnd)), FormatDegrees(pass.value),
                  FormatMagnitude(pass.more)});
  }
  AddTable(GetText(HostText::kSatellites), table);
}

void NightWriter::AddNext() {
  m_Text += "\n" + Utf8(Localize(HostText::kNextDays, {kNextDays})) + "\n";
  for (const auto& event : m_Report.next) {
    m_Text += CutTo("  " + m_Clock.FormatMoment(event.moment) + "  " +
                        scene::GetEventTitle(event, m_Catalogs, m_Showers),
                    kPageWidth) +
              "\n";
  }
  if (m_Report.next.empty()) m_Text += "  " + GetText(HostText::kNone) + "\n";
}

}  // namespace

std::string FormatNight(const NightReport& report, const scene::SkyCatalogs& catalogs,
                        const std::vector<scene::Shower>& showers, const LocalClock& clock) {
  return NightWriter(report, catalogs, showers, clock).Write();
}

}  // namespace skyview
