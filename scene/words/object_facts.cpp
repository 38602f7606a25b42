// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/words/object_facts.h"

#include "astro/constants.h"
#include "astro/coordinates.h"
#include "astro/earth_orientation.h"
#include "astro/vectors.h"
#include "common_interfaces/field_names.h"
#include "common_interfaces/units.h"
#include "scene/almanac/object_day.h"
#include "scene/view/air.h"
#include "scene/view/base_plane.h"
#include "scene/words/angle_text.h"
#include "scene/words/besides.h"
#include "scene/words/disc_text.h"
#include "scene/words/moment_text.h"
#include "scene/words/words.h"
#include "utils/text.h"
#include "utils/timezone.h"

namespace scene {
namespace {

using astro::HorizonPlace;
using astro::MakeHorizonPlace;
using astro::RiseTransitSet;
using CommonInterfaces::Camera;
using CommonInterfaces::FormatLocalizedText;

// Texts of the library's status lines.
constexpr unsigned kHoursFormat = 7216, kHorizonFormat = 7217, kDistanceFormat = 7212, kFirstUnit = 1160;

class SightWriter {
 public:
  SightWriter(const FoundObject& object, ObjectSight& sight, const ObservedBody& seen, const Camera& camera,
              SkyCatalogs& catalogs)
      : m_Object(object),
        m_Kind(GetKind(object, catalogs)),
        m_Sight(sight),
        m_Seen(seen),
        m_Camera(camera),
        m_Catalogs(catalogs),
        m_Place(GetPlace(camera)),
        m_Now(GetMoment(camera)) {}

  std::vector<ObjectFact> Write() {
    AddPositions();
    AddConstellation();
    AddDirection();
    AddDistance();
    if (m_Kind != FourCC("feat")) AddLook();
    AddBesides();
    AddEvents();
    if (IsInSolarSystem() && IsOutsideModel(m_Now))
      Add(FactKind::kWarning, Localize(Word::kOutsideModel, {}));
    return std::move(m_Facts);
  }

 private:
  void Add(FactKind kind, const std::string& text) { m_Facts.push_back({kind, PutSignsFirst(ToUtf8(text))}); }
  bool IsInSolarSystem() const {
    return m_Kind == FourCC("feat") || m_Kind == FourCC("plnt") || m_Kind == FourCC("moon") ||
           m_Kind == FourCC("astr") || m_Kind == FourCC("comt");
  }
  void AddPositions();
  void AddConstellation();
  void AddDirection();
  void AddDistance();
  void AddLook();
  void AddBesides();
  void AddEvents();
  void AddEvent(FactKind kind, Word text, Word none, const std::optional<SkyMoment>& event,
                bool withAltitude);
  std::string FormatEvent(const SkyMoment& moment) const;

  FoundObject m_Object;
  int m_Kind;
  ObjectSight& m_Sight;
  const ObservedBody& m_Seen;
  const Camera& m_Camera;
  SkyCatalogs& m_Catalogs;
  EarthPlace m_Place;
  SkyMoment m_Now;
  std::vector<ObjectFact> m_Facts;
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

void SightWriter::AddPositions() {
  double orientation[9], ofDate[3];
  PrecessionNutationMatrix(m_Now.julianDateTT, orientation);
  MV3prod(orientation, m_Seen.apparent, ofDate);
  Add(FactKind::kJ2000, Localize(Word::kWhereJ2000, {FormatEquatorial(m_Seen.astrometric).c_str()}));
  Add(FactKind::kOfDate, Localize(Word::kWhereOfDate, {FormatEquatorial(ofDate).c_str()}));
}

// The names of the catalog, which a code page may lack letters for, stand behind the text.
void SightWriter::AddConstellation() {
  const double* const v = m_Seen.astrometric;
  const int found = m_Kind == FourCC("cnst") ? -1 : m_Catalogs.bounds.Find({{v[0], v[1], v[2]}});
  if (found < 0) return;
  m_Facts.push_back(
      {FactKind::kConstellation, Say(Word::kWhereConstellation) + ": " +
                                     m_Catalogs.constellations[static_cast<std::size_t>(found)].localName});
}

void SightWriter::AddDirection() {
  double axes[9];
  HorizonAxes(m_Now, m_Place, axes);
  const HorizonPlace stands = MakeHorizonPlace(axes, m_Seen.apparent, 0.0);
  Add(FactKind::kDirection,
      Localize(Word::kWhereDirection,
               {FormatAngles(kHorizonFormat, stands.azimuth, kAngleDegrees, stands.altitude).c_str()}));
  const double lifted = LiftedAltitude(stands.altitude);
  if (lifted > 0.0) {
    Add(FactKind::kRefraction, Localize(Word::kWhereRefraction, {lifted / kRadiansPerDegree}));
  }
}

void SightWriter::AddDistance() {
  if (!(m_Seen.distance > 0.0)) return;
  const char unit = ChooseUnit(m_Seen.distance);
  const std::string name = FormatLocalizedText(kFirstUnit + static_cast<unsigned>(unit), {});
  Add(FactKind::kDistance,
      FormatLocalizedText(kDistanceFormat,
                          {CommonInterfaces::ConvertUnitFromAU(m_Seen.distance, unit), name.c_str()}));
}

void SightWriter::AddLook() {
  constexpr double kFaintest = 99.0;  // what lies above stands for no magnitude
  if (m_Seen.magnitude < kFaintest)
    Add(FactKind::kMagnitude, Localize(Word::kWhereMagnitude, {m_Seen.magnitude}));
  if (!(m_Seen.angularRadius > 0.0)) return;
  const std::string size = FormatSize(2.0 * m_Seen.angularRadius);
  if (m_Seen.sunDistance > 0.0) {
    Add(FactKind::kSize,
        Localize(Word::kWhereSizeAndPhase, {size.c_str(), GetLitPercent(m_Seen.phaseAngle)}));
  } else {
    Add(FactKind::kSize, Localize(Word::kWhereSize, {size.c_str()}));
  }
}

// "22:03" on the day of the view, else with its date, by the clocks of the view's zone at that moment.
std::string SightWriter::FormatEvent(const SkyMoment& moment) const {
  const char* zone = m_Camera.GetDisplayTimeZoneName(true);
  const double offset = *zone ? getLocalUTCDeltaForTimezone(zone, moment.day + moment.fraction) : 0.0;
  const std::string text = FormatMoment(moment.day, moment.fraction + offset);
  const std::string today = FormatDay(m_Now.day, m_Now.fraction + m_Camera.GetLocUTCdelta());
  return text.starts_with(today + " ") ? text.substr(today.size() + 1) : text;
}

void SightWriter::AddEvent(FactKind kind, Word text, Word none, const std::optional<SkyMoment>& event,
                           bool withAltitude) {
  const auto there = event ? FindPlaceOverHorizon(m_Sight, *event, m_Place) : std::nullopt;
  if (!there) return Add(kind, Localize(none, {}));
  const double angle = (withAltitude ? there->altitude : there->azimuth) / kRadiansPerDegree;
  Add(kind, Localize(text, {FormatEvent(*event).c_str(), angle}));
}

void SightWriter::AddBesides() {
  const std::string lines = DescribeBesides(m_Object, m_Catalogs, m_Camera);
  for (std::size_t begin = 0; begin < lines.size();) {
    const auto end = lines.find('\n', begin);
    m_Facts.push_back({FactKind::kBesides, lines.substr(begin, end - begin)});
    begin = end + 1;
  }
}

void SightWriter::AddEvents() {
  const RiseTransitSet events = FindObjectDay(m_Sight, m_Kind, m_Camera);
  if (events.staysDown) return Add(FactKind::kRise, Localize(Word::kWhereStaysDown, {}));
  if (events.staysUp) {
    Add(FactKind::kRise, Localize(Word::kWhereStaysUp, {}));
  } else {
    AddEvent(FactKind::kRise, Word::kWhereRises, Word::kWhereNoRise, events.rise, false);
  }
  AddEvent(FactKind::kTransit, Word::kWhereTransit, Word::kWhereNoTransit, events.transit, true);
  if (events.staysUp) return;
  AddEvent(FactKind::kSet, Word::kWhereSets, Word::kWhereNoSet, events.set, false);
}

// A fact under its caption; nothing for what is not known.
void AddNamed(FactKind kind, Word caption, const std::string& text, std::vector<ObjectFact>& facts) {
  if (!text.empty()) facts.push_back({kind, Say(caption) + ": " + text});
}

std::string FindSpectralType(const FoundObject& object, SkyCatalogs& catalogs) {
  if (object.group != ObjectGroup::kStar) return "";
  catalogs.starTable.Select(catalogs.stars.GetRecord(object.index));
  return FieldText(catalogs.starTable, CommonInterfaces::FieldIds::SpectrType);
}

}  // namespace

std::vector<ObjectFact> ListCatalogFacts(const FoundObject& object, const ObjectSearch& search,
                                         SkyCatalogs& catalogs) {
  std::vector<ObjectFact> facts;
  AddNamed(FactKind::kName, Word::kName, search.GetName(object), facts);
  AddNamed(FactKind::kOtherNames, Word::kOtherNames, search.GetOtherNames(object), facts);
  AddNamed(FactKind::kKind, Word::kKind, DescribeType(object, catalogs), facts);
  AddNamed(FactKind::kSpectralType, Word::kSpectralType, FindSpectralType(object, catalogs), facts);
  return facts;
}

std::vector<ObjectFact> ListSightFacts(const FoundObject& object, SkyCatalogs& catalogs,
                                       const Camera& camera) {
  if (!IsNearSurface(camera)) return {};
  ObjectSight sight(object, catalogs);
  ObservedBody seen;
  if (!sight.Observe(GetMoment(camera), GetPlace(camera), seen)) return {};
  return SightWriter(object, sight, seen, camera, catalogs).Write();
}

char ChooseUnit(double distance) {
  constexpr double kAuPerLightYear = 63241.077;
  if (distance * astro::kKilometresPerAu < 1e5) return CommonInterfaces::kKilometre;
  if (distance < 0.1) return CommonInterfaces::kThousandKilometres;
  if (distance < 1000.0) return CommonInterfaces::kAstronomicalUnit;
  return distance < 1e5 * kAuPerLightYear ? CommonInterfaces::kLightYear : CommonInterfaces::kKiloparsec;
}

}  // namespace scene
