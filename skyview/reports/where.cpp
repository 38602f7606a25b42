// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/reports/where.h"

#include <cmath>
#include <cstdlib>

#include "astro/constants.h"
#include "astro/coordinates.h"
#include "astro/earth_orientation.h"
#include "astro/julian_date.h"
#include "astro/rise_set.h"
#include "astro/vectors.h"
#include "common_interfaces/text_formats.h"
#include "common_interfaces/units.h"
#include "scene/air.h"
#include "scene/base_plane.h"
#include "skyview/reports/angle_text.h"
#include "skyview/reports/besides.h"
#include "skyview/reports/body_texts.h"
#include "skyview/reports/host_texts.h"
#include "skyview/reports/moment_text.h"
#include "utils/text.h"
#include "utils/timezone.h"

namespace skyview {
namespace {

using astro::FindHorizonPlace;
using astro::HorizonPlace;
using astro::MakeHorizonPlace;
using astro::RiseTransitSet;
using CommonInterfaces::Camera;
using CommonInterfaces::FormatLocalizedText;

// Texts of the library's status lines.
constexpr unsigned kHoursFormat = 7216, kHorizonFormat = 7217, kDistanceFormat = 7212, kFirstUnit = 1160;

constexpr double kStep = 1.0 / 96.0;             // days between two looks at an object
constexpr double kSatelliteStep = 1.0 / 2880.0;  // half a minute: a pass lasts some minutes

// Writes the lines about one object.
class WhereWriter {
 public:
  WhereWriter(scene::ObjectSight& sight, const ObservedBody& seen, const Camera& camera, int kind,
              const scene::SkyCatalogs& catalogs, const std::string& besides)
      : m_Kind(kind),
        m_Besides(besides),
        m_Sight(sight),
        m_Seen(seen),
        m_Camera(camera),
        m_Catalogs(catalogs),
        m_Place(scene::GetPlace(camera)),
        m_Now(scene::GetMoment(camera)),
        m_Satellite(kind == FourCC("scft")),
        m_Constellation(kind == FourCC("cnst")),
        m_InSolarSystem(kind == FourCC("feat") || kind == FourCC("plnt") || kind == FourCC("moon") ||
                        kind == FourCC("astr") || kind == FourCC("comt")) {}

  std::string Write() {
    AddPositions();
    AddConstellation();
    AddDirection();
    AddDistance();
    if (m_Kind != FourCC("feat")) AddLook();
    m_Text += m_Besides;
    AddEvents();
    if (m_InSolarSystem && IsOutsideModel(m_Now)) Add(Localize(HostText::kOutsideModel, {}));
    return std::move(m_Text);
  }

 private:
  void Add(const std::string& text) { m_Text += PutSignsFirst(scene::ToUtf8(text)) + "\n"; }
  void AddPositions();
  void AddConstellation();
  void AddDirection();
  void AddDistance();
  void AddLook();
  void AddEvents();
  void AddEvent(HostText text, HostText none, const std::optional<scene::SkyMoment>& event,
                bool withAltitude);
  std::optional<HorizonPlace> Find(const scene::SkyMoment& moment) const;
  scene::SkyMoment FindStart() const;
  RiseTransitSet FindEvents() const;
  RiseTransitSet FindPass() const;
  void FindHighest(RiseTransitSet& pass) const;
  std::string FormatEvent(const scene::SkyMoment& moment) const;

  int m_Kind;
  const std::string& m_Besides;
  scene::ObjectSight& m_Sight;
  const ObservedBody& m_Seen;
  const Camera& m_Camera;
  const scene::SkyCatalogs& m_Catalogs;
  scene::EarthPlace m_Place;
  scene::SkyMoment m_Now;
  bool m_Satellite, m_Constellation, m_InSolarSystem;
  std::string m_Text;
};

std::string FormatAngles(unsigned format, double first, int firstMode, double second) {
  const M_DMSTag a = Rad2GMS(first, firstMode), b = Rad2GMS(second, kAngleSignedDegrees);
  return FormatLocalizedText(format, {a.degrees, a.minutes, static_cast<double>(a.seconds), b.degrees,
                                      b.minutes, static_cast<double>(b.seconds)});
}

std::string FormatEquatorial(const double v[3]) {
  double ra = 0.0, dec = 0.0;
  psf(v, 1.0, ra, dec);
  return FormatAngles(kHoursFormat, ra, kAngleHours, dec);
}

void WhereWriter::AddPositions() {
  double orientation[9], ofDate[3];
  PrecessionNutationMatrix(m_Now.julianDateTT, orientation);
  MV3prod(orientation, m_Seen.apparent, ofDate);
  Add(Localize(HostText::kWhereJ2000, {FormatEquatorial(m_Seen.astrometric).c_str()}));
  Add(Localize(HostText::kWhereOfDate, {FormatEquatorial(ofDate).c_str()}));
}

// The names of the catalog, which a code page may lack letters for, stand behind the text.
void WhereWriter::AddConstellation() {
  const double* const v = m_Seen.astrometric;
  const int found = m_Constellation ? -1 : m_Catalogs.bounds.Find({{v[0], v[1], v[2]}});
  if (found < 0) return;
  m_Text += scene::ToUtf8(Localize(HostText::kWhereConstellation, {})) + ": " +
            m_Catalogs.constellations[static_cast<std::size_t>(found)].localName + "\n";
}

void WhereWriter::AddDirection() {
  double axes[9];
  scene::HorizonAxes(m_Now, m_Place, axes);
  const HorizonPlace stands = MakeHorizonPlace(axes, m_Seen.apparent, 0.0);
  Add(Localize(HostText::kWhereDirection,
               {FormatAngles(kHorizonFormat, stands.azimuth, kAngleDegrees, stands.altitude).c_str()}));
  const double lifted = scene::LiftedAltitude(stands.altitude);
  if (lifted > 0.0) {
    Add(Localize(HostText::kWhereRefraction, {lifted / scene::kRadiansPerDegree}));
  }
}

void WhereWriter::AddDistance() {
  if (!(m_Seen.distance > 0.0)) return;
  const char unit = ChooseUnit(m_Seen.distance);
  const std::string name = FormatLocalizedText(kFirstUnit + static_cast<unsigned>(unit), {});
  Add(FormatLocalizedText(kDistanceFormat,
                          {CommonInterfaces::ConvertUnitFromAU(m_Seen.distance, unit), name.c_str()}));
}

void WhereWriter::AddLook() {
  constexpr double kFaintest = 99.0;  // what lies above stands for no magnitude
  if (m_Seen.magnitude < kFaintest) Add(Localize(HostText::kWhereMagnitude, {m_Seen.magnitude}));
  if (!(m_Seen.angularRadius > 0.0)) return;
  const std::string size = FormatSize(2.0 * m_Seen.angularRadius);
  if (m_Seen.sunDistance > 0.0) {
    Add(Localize(HostText::kWhereSizeAndPhase, {size.c_str(), GetLitPercent(m_Seen.phaseAngle)}));
  } else {
    Add(Localize(HostText::kWhereSize, {size.c_str()}));
  }
}

std::optional<HorizonPlace> WhereWriter::Find(const scene::SkyMoment& moment) const {
  ObservedBody seen;
  if (!m_Sight.Observe(moment, m_Place, seen)) return std::nullopt;
  double axes[9];
  scene::HorizonAxes(moment, m_Place, axes);
  // Stars and deep-sky objects rise with their centres.
  const double radius = seen.sunDistance > 0.0 || seen.lightTime > 0.0 ? seen.angularRadius : 0.0;
  return MakeHorizonPlace(axes, seen.apparent, astro::GetRiseAltitude(radius));
}

// The midnight before the moment by the clocks of the place.
scene::SkyMoment WhereWriter::FindStart() const {
  const double offset = m_Camera.GetLocUTCdelta();
  int day = m_Now.day;
  double fraction = m_Now.fraction + offset;
  Adjust_JD(day, fraction);
  return scene::MakeMoment(day, -0.5 - offset);
}

RiseTransitSet WhereWriter::FindEvents() const {
  const scene::SkyMoment start = FindStart();
  const FindHorizonPlace find =
      astro::MakeSmoothFinder([this](const scene::SkyMoment& moment) { return Find(moment); }, start);
  RiseTransitSet events = FindRiseTransitSet(find, start, 1.0, kStep);
  if (events.staysUp || events.staysDown) return events;
  if (events.rise && events.transit && events.set) return events;
  const RiseTransitSet next = FindRiseTransitSet(find, scene::Later(start, 1.0), 1.0, kStep);
  if (!events.rise) events.rise = next.rise;
  if (!events.set) events.set = next.set;
  if (!events.transit) {
    events.transit = next.transit;
    events.transitAltitude = next.transitAltitude;
  }
  return events;
}

// The pass that is on, else the first of the next 24 hours: what begins below the horizon sets after it
// rises.
RiseTransitSet WhereWriter::FindPass() const {
  constexpr double kBack = 1.0 / 96.0;  // days
  const auto isUp = [this](const scene::SkyMoment& moment) {
    const auto place = Find(moment);
    return place && place->altitude >= place->eventAltitude;
  };
  double before = 0.0;
  while (before < 1.0 && isUp(scene::Later(m_Now, -before))) before += kBack;
  const FindHorizonPlace find = [this](const scene::SkyMoment& moment) { return Find(moment); };
  RiseTransitSet pass = FindRiseTransitSet(find, scene::Later(m_Now, -before), 1.0 + before, kSatelliteStep);
  if (!pass.staysUp && !pass.staysDown) FindHighest(pass);
  return pass;
}

// Most satellites cross the meridian from the west: what counts is where the pass is highest.
void WhereWriter::FindHighest(RiseTransitSet& pass) const {
  pass.transit.reset();
  if (!pass.rise || !pass.set) return;
  const auto days = [](const scene::SkyMoment& moment) { return moment.day + moment.fraction; };
  const auto altitude = [this, &pass](double later) {
    const auto place = Find(scene::Later(*pass.rise, later));
    return place ? place->altitude : -1.0;
  };
  constexpr double kPrecision = 1e-5;  // days
  double low = 0.0, high = days(*pass.set) - days(*pass.rise);
  while (high - low > kPrecision) {
    const double third = (high - low) / 3.0;
    if (altitude(low + third) < altitude(high - third)) {
      low += third;
    } else {
      high -= third;
    }
  }
  pass.transit = scene::Later(*pass.rise, 0.5 * (low + high));
}

// "22:03" on the day of the view, else with its date, by the clocks of the view's zone at that moment.
std::string WhereWriter::FormatEvent(const scene::SkyMoment& moment) const {
  const char* zone = m_Camera.GetDisplayTimeZoneName(true);
  const double offset = *zone ? getLocalUTCDeltaForTimezone(zone, moment.day + moment.fraction) : 0.0;
  const std::string text = FormatMoment(moment.day, moment.fraction + offset);
  const std::string today = FormatDay(m_Now.day, m_Now.fraction + m_Camera.GetLocUTCdelta());
  return text.starts_with(today + " ") ? text.substr(today.size() + 1) : text;
}

void WhereWriter::AddEvent(HostText text, HostText none, const std::optional<scene::SkyMoment>& event,
                           bool withAltitude) {
  const auto there = event ? Find(*event) : std::nullopt;
  if (!there) return Add(Localize(none, {}));
  const double angle = (withAltitude ? there->altitude : there->azimuth) / scene::kRadiansPerDegree;
  Add(Localize(text, {FormatEvent(*event).c_str(), angle}));
}

void WhereWriter::AddEvents() {
  const RiseTransitSet events = m_Satellite ? FindPass() : FindEvents();
  if (events.staysDown) return Add(Localize(HostText::kWhereStaysDown, {}));
  if (events.staysUp) {
    Add(Localize(HostText::kWhereStaysUp, {}));
  } else {
    AddEvent(HostText::kWhereRises, HostText::kWhereNoRise, events.rise, false);
  }
  AddEvent(HostText::kWhereTransit, HostText::kWhereNoTransit, events.transit, true);
  if (events.staysUp) return;
  AddEvent(HostText::kWhereSets, HostText::kWhereNoSet, events.set, false);
}

}  // namespace

char ChooseUnit(double distance) {
  constexpr double kAuPerLightYear = 63241.077;
  if (distance * astro::kKilometresPerAu < 1e5) return CommonInterfaces::kKilometre;
  if (distance < 0.1) return CommonInterfaces::kThousandKilometres;
  if (distance < 1000.0) return CommonInterfaces::kAstronomicalUnit;
  return distance < 1e5 * kAuPerLightYear ? CommonInterfaces::kLightYear : CommonInterfaces::kKiloparsec;
}

bool DescribeWhere(const scene::FoundObject& object, const std::string& title, scene::SkyCatalogs& catalogs,
                   const Camera& camera, std::string& text, std::string& error) {
  if (!scene::IsNearSurface(camera)) {
    error = "wants an observer near the Earth's surface (moving type 0 or 1)";
    return false;
  }
  scene::ObjectSight sight(object, catalogs);
  ObservedBody seen;
  if (!sight.Observe(scene::GetMoment(camera), scene::GetPlace(camera), seen)) {
    error = "'" + title + "': nobody can tell where it is at that moment";
    return false;
  }
  const int kind = scene::GetKind(object, catalogs);
  const std::string type = DescribeType(object, catalogs),
                    besides = DescribeBesides(object, catalogs, camera);
  text = title + (type.empty() ? "" : " - " + type) + "\n";
  text += WhereWriter(sight, seen, camera, kind, catalogs, besides).Write();
  return true;
}

}  // namespace skyview
