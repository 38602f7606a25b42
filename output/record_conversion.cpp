// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/record_conversion.h"

#include <cmath>
#include <cstring>
#include <limits>

#include "astro/constants.h"
#include "astro/object_records.h"
#include "astro/solar_system.h"
#include "astro/vectors.h"
#include "common_interfaces/field_names.h"
#include "output/database_record.h"
#include "output/orbit_records.h"
#include "output/unusable_record.h"

namespace CommonInterfaces {

namespace {

using astro::kAuPerParsecAbove;
using astro::kRadiansPerArcsecond;

// The parallax of a distance of 1 pc and of 1 kpc, in radians, as the model has always been given them:
// deliberately not the digits of kRadiansPerArcsecond.
constexpr double kParallaxOfParsec = 4.848137e-06;
constexpr double kParallaxOfKiloparsec = 4.848137e-09;

// Where the sub-type of a deep-sky object says how its distance is to be taken.
enum SubTypeWithDistance { kOpenCluster = 40, kGlobularCluster = 41, kDistanceInKiloparsecs = 50 };

int Refuse(const SSO_ID& id, const char* reason) {
  PrintUnusable(id, reason);
  return kConversionUnusable;
}

void ReadMilliarcseconds(const BaseDB& record, int fieldId, double& value) {
  if (GetFieldNumber(record, fieldId, value)) value = value * 0.001 * kRadiansPerArcsecond;
}

StarRecord ReadStar(const BaseDB& record) {
  StarRecord star;
  GetFieldNumber(record, FieldIds::RA, star.ra);
  GetFieldNumber(record, FieldIds::Dec, star.dec);
  ReadMilliarcseconds(record, FieldIds::PropMotionRA, star.properMotionRA);
  ReadMilliarcseconds(record, FieldIds::PropMotionDec, star.properMotionDec);
  ReadMilliarcseconds(record, FieldIds::Parallax, star.parallax);
  GetFieldNumber(record, FieldIds::RadialVelocity, star.radialVelocity);
  GetFieldNumber(record, FieldIds::Radius, star.radius);
  GetFieldNumber(record, FieldIds::Magnitude, star.magnitude);
  GetFieldNumber(record, FieldIds::VisMagnitude, star.visMagnitude);
  GetFieldNumber(record, FieldIds::BlueMagnitude, star.blueMagnitude);
  GetFieldNumber(record, FieldIds::AbsMagnitude, star.absMagnitude);
  return star;
}

// A distance that is not positive is none: it would put the object into the Sun. Neither is one so small or
// so large that the parallax or the size are no numbers any more.
void ReadDeepskyDistance(const BaseDB& record, int subType, DeepskyRecord& object) {
  double distance = 0.0;
  if (!GetFieldNumber(record, FieldIds::Distance, distance) || !(distance > 0.0)) return;
  const bool isFar = subType == kDistanceInKiloparsecs;
  const double parallax = (isFar ? kParallaxOfKiloparsec : kParallaxOfParsec) / distance;
  const double size = isFar ? object.angularSize * 0.5 * distance * 1000.0 * kAuPerParsecAbove : 0.0;
  if (!std::isfinite(parallax) || !(std::abs(size) <= std::numeric_limits<float>::max())) return;
  object.parallax = parallax;
  object.linearSize = static_cast<float>(size);
}

DeepskyRecord ReadDeepsky(const SSO_ID& id, const BaseDB& record) {
  DeepskyRecord object;
  GetFieldNumber(record, FieldIds::RA, object.ra);
  GetFieldNumber(record, FieldIds::Dec, object.dec);
  GetFieldNumber(record, FieldIds::LargestDimension, object.angularSize);
  GetFieldNumber(record, FieldIds::VisMagnitude, object.visMagnitude);
  GetFieldNumber(record, FieldIds::BlueMagnitude, object.blueMagnitude);
  const int subType = id.number >> 24 & 255;
  if (subType == kOpenCluster || subType == kGlobularCluster || subType == kDistanceInKiloparsecs) {
    ReadDeepskyDistance(record, subType, object);
  }
  return object;
}

// False when there is a centre but no direction in it. A record that lacks it leaves the centre at 0.
bool ReadConstellation(const BaseDB& record, ConstellationRecord& constellation) {
  if (!GetFieldNumbers(record, FieldIds::CenterVector, constellation.center, 3)) return true;
  const double length = Vmod(constellation.center, 3);
  if (!(length > 0.0) || !std::isfinite(length)) return false;
  for (double& component : constellation.center) component /= length;
  return true;
}

int ConvertFromDatabase(const SSO_ID& id, const BaseDB* record, CQXSolSys* solSys, short mode) {
  if (record == nullptr) return Refuse(id, "no database to convert it from");
  switch (id.kind) {
    case FourCC("star"):
    case FourCC("uSTR"): {
      StarRecord star = ReadStar(*record);
      SetDataToSolSys(id, &star, solSys, mode);
      return kConversionDone;
    }
    case FourCC("cnst"): {
      ConstellationRecord constellation;
      if (!ReadConstellation(*record, constellation)) return Refuse(id, "its centre has no direction");
      SetDataToSolSys(id, &constellation, solSys, mode);
      return kConversionDone;
    }
    case FourCC("comt"):
    case FourCC("astr"): {
      OrbitalElements elements = ReadElements(id, *record);
      SetDataToSolSys(id, &elements, solSys, mode);
      return kConversionDone;
    }
    default: {
      DeepskyRecord object = ReadDeepsky(id, *record);
      SetDataToSolSys(id, &object, solSys, mode);
      return kConversionDone;
    }
  }
}

int HandOver(const SSO_ID& id, unsigned char* record, CQXSolSys* solSys, short mode) {
  if (record == nullptr) return Refuse(id, "no record to hand over");
  SetDataToSolSys(id, record, solSys, mode);
  return kConversionDone;
}

int ConvertUserRecord(const SSO_ID& id, const unsigned char* record, CQXSolSys* solSys, short mode) {
  if (record == nullptr) return Refuse(id, "no record to convert");
  OrbitalElements elements;
  std::memcpy(&elements, record, sizeof elements);  // the record is not changed and may stand at any address
  if (!ConvertUserElements(id, *solSys, elements)) return kConversionUnusable;
  SetDataToSolSys(id, &elements, solSys, mode);
  return kConversionDone;
}

// What a kind is converted from.
enum class Source { kNone, kDatabase, kOrbitDatabase, kUserElements, kAsItIs };

Source SourceOf(int kind) {
  switch (kind) {
    case FourCC("star"):
    case FourCC("uSTR"):
    case FourCC("gala"):
    case FourCC("nebu"):
    case FourCC("clst"):
    case FourCC("dsnv"):
    case FourCC("uDSO"):
    case FourCC("cnst"):
      return Source::kDatabase;
    case FourCC("comt"):
    case FourCC("astr"):
      return Source::kOrbitDatabase;
    case FourCC("fAST"):
    case FourCC("fCOM"):
    case FourCC("fSCO"):
    case FourCC("uSCO"):
      return Source::kUserElements;
    case FourCC("scft"):
      return Source::kAsItIs;
    default:
      return Source::kNone;
  }
}

}  // namespace

int ConvertDBRecord(SSO_ID& id, BaseDB* db, unsigned char* record, CQXSolSys* solSys, short mode) {
  const Source source = SourceOf(id.kind);
  if (source == Source::kNone) return kConversionUnknownKind;
  if (solSys == nullptr) return Refuse(id, "no solar-system model to hand it to");
  switch (source) {
    case Source::kUserElements:
      return ConvertUserRecord(id, record, solSys, mode);
    case Source::kAsItIs:
      return HandOver(id, record, solSys, mode);
    case Source::kOrbitDatabase:
      // An additional object is deliberately not converted: its elements come ready, in `record`.
      if (mode == kConvertAdditionalObject) return HandOver(id, record, solSys, mode);
      return ConvertFromDatabase(id, db, solSys, mode);
    default:
      return ConvertFromDatabase(id, db, solSys, mode);
  }
}

void SetDataToSolSys(const SSO_ID& id, void* data, CQXSolSys* solSys, short mode) {
  if (solSys == nullptr) {
    Refuse(id, "no solar-system model to hand it to");
    return;
  }
  switch (mode) {
    case kConvertAimObject:
      solSys->SetAimObject(id, data);
      break;
    case kConvertLocateObject:
      solSys->SetLocateObject(id, data);
      break;
    case kConvertAdditionalObject:
      solSys->SetAdditionalObject(id, data);
      break;
    case kConvertIntegration:
      solSys->InitIntegr(id, data);
      break;
    default:
      break;
  }
}

}  // namespace CommonInterfaces
