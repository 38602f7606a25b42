// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <string>
#include <vector>

#include "common_interfaces/settings_data.h"
#include "scene/catalogs/sky_map.h"
#include "scene/language_files.h"
#include "scene/orbit_tables.h"
#include "support/camera_settings.h"
#include "support/temp_dir.h"
#include "utils/path.h"
#include "utils/text.h"

namespace host_test {

// The brightest stars, from the Bright Star Catalogue (Hoffleit & Warren 1991; CDS V/50): right ascension and
// declination in degrees (J2000), V, proper motion in mas/yr (right ascension times cos Dec), parallax in
// mas, radial velocity in km/s.
struct BrightStar {
  int number;
  const char* name;
  const char* bayer;
  const char* spectrum;
  double ra, dec, magnitude, motionRA, motionDec, parallax, radialVelocity;
};
inline constexpr BrightStar kBrightStars[] = {
    {2491, "Sirius", "α CMa", "A1Vm", 101.28708, -16.71611, -1.46, -553, -1205, 375, -8},
    {2326, "Canopus", "α Car", "F0II", 95.98792, -52.69583, -0.72, 22, 21, 28, 21},
    {5340, "Arcturus", "α Boo", "K1.5III", 213.91542, 19.18250, -0.04, -1093, -1998, 90, -5},
    {5459, "Rigil Kentaurus", "α Cen", "G2V", 219.89958, -60.83528, -0.01, -3642, 699, 751, -22},
    {7001, "Vega", "α Lyr", "A0Va", 279.23458, 38.78361, 0.03, 202, 286, 123, -14},
    {1708, "Capella", "α Aur", "G5IIIe+G0III", 79.17250, 45.99806, 0.08, 76, -425, 73, 30},
    {1713, "Rigel", "β Ori", "B8Ia:", 78.63458, -8.20167, 0.12, 0, -1, 13, 21},
    {2943, "Procyon", "α CMi", "F5IV-V", 114.82542, 5.22500, 0.38, -710, -1023, 288, -3},
    {472, "Achernar", "α Eri", "B3Vpe", 24.42875, -57.23667, 0.46, 95, -35, 26, 16},
    {2061, "Betelgeuse", "α Ori", "M1-2Ia-Iab", 88.79292, 7.40694, 0.50, 26, 9, 5, 21}};

inline std::string StarTable() {
  constexpr double kDegree = 0.017453292519943295;
  std::string table =
      "# Bright stars\nNumber:i32\tRA:f64\tDec:f64\tVisMagnitude:f32\tSpectrType:text\tPropMotionRA:f32\t"
      "PropMotionDec:f32\tProperName:text\tBayer:text\tFlamsteed:text\n";
  char line[256];
  for (const auto& star : kBrightStars) {
    std::snprintf(line, sizeof line, "%d\t%.17g\t%.17g\t%g\t%s\t%g\t%g\t%s\t%s\t\n", star.number,
                  star.ra * kDegree, star.dec * kDegree, star.magnitude, star.spectrum, star.motionRA,
                  star.motionDec, star.name, star.bayer);
    table += line;
  }
  return table;
}

// A piece of the Milky Way from 1.6 to 1.9 radians of right ascension and -0.2 to 0.3 of declination.
inline std::string MilkyWayMap() {
  constexpr int kSide = 64;
  std::string cells;
  for (int cell = 0; cell < kSide * kSide; ++cell) {
    const scene::Direction direction = scene::SkyMap::GetCellDirection(kSide, cell % kSide, cell / kSide);
    const double ra = std::atan2(direction.v[1], direction.v[0]), dec = std::asin(direction.v[2]);
    cells += ra > 1.6 && ra < 1.9 && dec > -0.2 && dec < 0.3 ? '\x80' : '\0';
  }
  return scene::MakeSkyMap(kSide, cells, "A piece of the Milky Way");
}

// A data root with a few objects of every kind.
class SmallRoot {
 public:
  SmallRoot() {
    dir.Write("data/qxstrings.txt", ShippedStrings("en"));
    for (const char* language : {"en", "de", "ru"}) {
      dir.Write(std::string("data/languages/") + language + "/qxstrings.txt", ShippedStrings(language));
    }
    dir.Write("data/catalogs/stars.txt", StarTable());
    dir.Write("data/catalogs/deepsky.txt",
              "Type:text\tNumber:i32\tRA:f64\tDec:f64\tVisMagnitude:f32\tLargestDimension:"
              "f32\tSmallestDimension:f32\t"
              "MessierNumber:i32\tNGC_ICnumber:text\tProperName:text\n"
              "nebu\t42\t1.4640\t-0.0951\t4.0\t0.0247\t0.0175\t42\tNGC 1976\tGreat Orion Nebula\n"
              "gala\t31\t0.18643\t0.72030\t3.4\t0.0518\t0.0116\t31\tNGC 224\tAndromeda Galaxy\n"
              "clst\t45\t0.99047\t0.42092\t1.6\t0.0320\t0.0320\t45\t\tPleiades\n");
    dir.Write(
        "data/catalogs/constellations.txt",
        "Label:text\tProperName:text\tEnglishName:text\tRA:f64\tDec:f64\nOri\tOrion\tHunter\t1.45\t0.07\n");
    dir.Write("data/catalogs/constellation_lines.txt",
              "Label:text\tNumber:i32\tRA:f64\tDec:f64\nOri\t0\t1.5497\t0.1293\nOri\t0\t1.4871\t-0.0339\n"
              "Ori\t0\t1.3724\t-0.1431\n");
    dir.Write("data/catalogs/milkyway.map", MilkyWayMap());
    dir.Write("data/catalogs/asteroids.txt", OrbitTable(kAsteroids, 2, false));
    dir.Write("data/catalogs/comets.txt", OrbitTable(kComets, 1, true));
    dir.Write("data/catalogs/planets&moons/planets&moons.txt",
              "plnt\t2\tVenus\t0\nplnt\t4\tMars\t0\nplnt\t5\tJupiter\t0\nplnt\t10\tSun\t0\nmoon\t301\tMoon\t0"
              "\nmoon\t501\tIo\t0\n"
              "moon\t201\tNeith\t0\n");
    WriteSettings();
  }
  ~SmallRoot() { ZentharPath::SetRoots(nullptr, nullptr); }

  test_support::TempDir dir;

  static constexpr const char* kClasses[] = {"star", "clst", "gala", "nebu", "dsnv"};

 private:
  void WriteSettings() {
    using CommonInterfaces::SettingsData;
    const std::string path = dir.Path("data/filters.data");
    SettingsData settings(SettingsData::kDefaultsTag, FourCC("FLTR"), path.c_str());
    for (const char* cls : kClasses) {
      const auto section = static_cast<unsigned>(GetFOURCC(cls));
      test_support::AddField(settings, section, test_support::UInt8("Draw", 1));
      settings.SetSectionStatus(section, 1);
    }
    settings.Write(path.c_str());
    auto camera = test_support::CameraFields();
    test_support::ReplaceField(camera, test_support::UInt8("m_BasePlane", 1));
    test_support::AppendBlock(path, test_support::kCAMR, SettingsData::kDefaultsTag,
                              test_support::kCameraSection, camera);
  }
};

}  // namespace host_test
