// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

#include "tests/skydata/source_text.h"

namespace skydata_test {

// A source folder with a few objects of every kind: planets 1 to 3 and the Moon, four stars, two deep-sky
// objects, a constellation, an asteroid and a comet.
class TinySource {
 public:
  TinySource() {
    Write("bodies/planets_moons.tsv",
          "Kind\tNumber\tName\tFlag\nplnt\t1\tMercury\nplnt\t2\tVenus\nplnt\t3\tEarth\nmoon\t301\tMoon\t1\n");
    Write("stars/stars.tsv",
          "HR\tRA_deg\tDec_deg\tV_mag\tB-V_mag\tSpectralType\tpmRAcosDec_mas_yr\tpmDec_mas_yr\tParallax_mas\t"
          "RadialVelocity_km_s\tName\tBayer\tFlamsteed\tHIP\n"
          "7\t1\t1\t1\t\t\t\t\t25\n1\t1\t1\t1\t\t\t\t\t-3\n3\t1\t1\t1\n2\t1\t1\t1\t\t\t\t\t10\n");
    Write("stars/hipparcos.tsv", "HIP\tRA_deg\tDec_deg\tV_mag\tB-V_mag\n8\t20\t-30\t9.5\t0.6\n");
    Write("deepsky/messier.tsv",
          "Messier\tNGC_IC\tName\tType\tV_mag\tLargest_arcmin\tSmallest_arcmin\tRA_deg\tDec_deg\n"
          "13\t\t\tglobular cluster\t5.8\t20\t20\t250\t36\n31\t\t\tspiral galaxy\t3.4\t178\t63\t10\t41\n");
    Write("constellations/constellations.tsv",
          "Abbreviation\tLatin\tEnglish\tRA_deg\tDec_deg\tGenitive\nOri\tOrion\tOrion\t83\t5\n");
    Write("orbits/asteroids.tsv",
          "Number\tName\tEpoch_JD_TDB\ta_au\te\ti_deg\tom_deg\tw_deg\tM0_deg\tH_mag\tG\tDiameter_km\n"
          "1\tCeres\t2459800.5\t2.77\t0.08\t10.6\t80\t74\t334\t3.3\t0.12\t939\n");
    Write("orbits/comets.tsv",
          "Number\tName\tEpoch_JD_TDB\tq_au\te\ti_deg\tom_deg\tw_deg\tPerihelion_JD_TDB\tM1_mag\n"
          "1\t1P/Halley\t2449400.5\t0.586\t0.967\t162\t58\t111\t2446467.4\t5.5\n");
  }

  void Write(const std::string& name, const std::string& content) const { dir.Write(name, content); }

  // What the maker makes, and the message of what it throws.
  using Maker = std::string (*)(const std::filesystem::path& source);
  std::string Make(Maker maker) const { return maker(dir.Path()); }
  std::string Message(Maker maker) const {
    return MessageOf(dir, [&] { maker(dir.Path()); });
  }
  // The message for a table of this text.
  std::string Message(Maker maker, const std::string& name, const std::string& content) const {
    Write(name, content);
    return Message(maker);
  }

  test_support::TempDir dir;
};

}  // namespace skydata_test
