// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Star records of a database into the solar-system model: field by field in any encoding, against a program
// that knows the layout of the database and fills the model's record itself.
#include <cstring>
#include <vector>

#include <benchmark/benchmark.h>

#include "astro/object_records.h"
#include "astro/solar_system.h"
#include "common_interfaces/field_data.h"
#include "common_interfaces/field_names.h"
#include "common_interfaces/record_conversion.h"
#include "common_interfaces/record_source.h"
#include "utils/text.h"

namespace {

using CommonInterfaces::FieldIds;

// One star as a database keeps it: packed, and 16 bits for the proper motion.
#pragma pack(push, 1)
struct CatalogStar {
  double ra, dec;                         // radians
  short properMotionRA, properMotionDec;  // milliarcseconds a year
  float parallax;                         // milliarcseconds
  float radialVelocity;                   // km/s
  float radius;                           // solar radii
  float visMagnitude, blueMagnitude, absMagnitude;
};
#pragma pack(pop)

std::vector<CatalogStar> MakeStars(unsigned count) {
  std::vector<CatalogStar> stars(count);
  for (unsigned i = 0; i < count; ++i) {
    CatalogStar& star = stars[i];
    star.ra = i * 6.283e-6;
    star.dec = i * 3.1e-6 - 1.55;
    star.properMotionRA = static_cast<short>(i % 4001) - 2000;
    star.properMotionDec = static_cast<short>(i % 3001) - 1500;
    star.parallax = 0.01f * static_cast<float>(i % 10000);
    star.radialVelocity = static_cast<float>(i % 400) - 200.0f;
    star.radius = 1.0f;
    star.visMagnitude = 0.001f * static_cast<float>(i % 12000);
    star.blueMagnitude = star.visMagnitude + 0.5f;
    star.absMagnitude = 4.8f;
  }
  return stars;
}

// The columns as a table of offsets, found by name id.
class CatalogReader : public CommonInterfaces::BaseDB {
 public:
  void Select(const CatalogStar& star) { m_Star = reinterpret_cast<const unsigned char*>(&star); }

  const void* GetField(int fieldId) const override {
    const Column* column = Find(fieldId);
    return column == nullptr ? nullptr : m_Star + column->offset;
  }
  unsigned GetFieldType(int fieldId) const override {
    const Column* column = Find(fieldId);
    return column == nullptr ? 0 : column->type;
  }

 private:
  struct Column {
    int nameId;
    unsigned offset;
    unsigned type;
  };

  const Column* Find(int fieldId) const {
    if (m_Last != nullptr && m_Last->nameId == fieldId)
      return m_Last;  // the type of the field just asked for
    for (const Column& column : m_Columns) {
      if (column.nameId == fieldId) return m_Last = &column;
    }
    return nullptr;
  }

  const Column m_Columns[10] = {
      {FieldIds::RA, offsetof(CatalogStar, ra), CommonInterfaces::kFieldDouble},
      {FieldIds::Dec, offsetof(CatalogStar, dec), CommonInterfaces::kFieldDouble},
      {FieldIds::PropMotionRA, offsetof(CatalogStar, properMotionRA), CommonInterfaces::kFieldInt16},
      {FieldIds::PropMotionDec, offsetof(CatalogStar, properMotionDec), CommonInterfaces::kFieldInt16},
      {FieldIds::Parallax, offsetof(CatalogStar, parallax), CommonInterfaces::kFieldFloat},
      {FieldIds::RadialVelocity, offsetof(CatalogStar, radialVelocity), CommonInterfaces::kFieldFloat},
      {FieldIds::Radius, offsetof(CatalogStar, radius), CommonInterfaces::kFieldFloat},
      {FieldIds::VisMagnitude, offsetof(CatalogStar, visMagnitude), CommonInterfaces::kFieldFloat},
      {FieldIds::BlueMagnitude, offsetof(CatalogStar, blueMagnitude), CommonInterfaces::kFieldFloat},
      {FieldIds::AbsMagnitude, offsetof(CatalogStar, absMagnitude), CommonInterfaces::kFieldFloat}};
  const unsigned char* m_Star = nullptr;
  mutable const Column* m_Last = nullptr;
};

// Takes the record and keeps it, as a model does.
class KeepingModel : public CQXSolSys {
 public:
  bool SetAimObject(const SSO_ID&, const void* data) override {
    std::memcpy(&m_Star, data, sizeof m_Star);
    return true;
  }
  StarRecord m_Star;
};

void ConvertStars(benchmark::State& state) {
  const auto stars = MakeStars(static_cast<unsigned>(state.range(0)));
  CatalogReader reader;
  KeepingModel model;
  for (auto _ : state) {
    int number = 0;
    for (const CatalogStar& star : stars) {
      reader.Select(star);
      SSO_ID id(FourCC("star"), ++number);
      CommonInterfaces::ConvertDBRecord(id, &reader, nullptr, &model, CommonInterfaces::kConvertAimObject);
      benchmark::DoNotOptimize(model.m_Star);
    }
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void ConvertStarsPeer(benchmark::State& state) {
  constexpr double kMilliarcsecond = 0.001 * 4.84813681109536e-06;
  const auto stars = MakeStars(static_cast<unsigned>(state.range(0)));
  KeepingModel model;
  CQXSolSys* target = &model;
  benchmark::DoNotOptimize(target);
  for (auto _ : state) {
    int number = 0;
    for (const CatalogStar& star : stars) {
      const SSO_ID id(FourCC("star"), ++number);
      StarRecord record;
      record.ra = star.ra;
      record.dec = star.dec;
      record.properMotionRA = star.properMotionRA * kMilliarcsecond;
      record.properMotionDec = star.properMotionDec * kMilliarcsecond;
      record.parallax = star.parallax * kMilliarcsecond;
      record.radialVelocity = star.radialVelocity;
      record.radius = star.radius;
      record.visMagnitude = star.visMagnitude;
      record.blueMagnitude = star.blueMagnitude;
      record.absMagnitude = star.absMagnitude;
      target->SetAimObject(id, &record);
      benchmark::DoNotOptimize(model.m_Star);
    }
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

BENCHMARK(ConvertStars)->Arg(1000000);
BENCHMARK(ConvertStarsPeer)->Arg(1000000);

}  // namespace
