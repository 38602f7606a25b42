// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "skydata/build/catalogs.h"
#include "skydata/tiny_source.h"
#include "support/temp_dir.h"

namespace skydata {
namespace {

class NameCatalogs : public testing::Test {
 protected:
  // What stands below the two lines of the header.
  static std::string RecordsOf(const std::string& table) {
    return table.substr(table.find('\n', table.find('\n') + 1) + 1);
  }

  test_support::TempDir m_Dir;
};

TEST_F(NameCatalogs, NamesAreTakenAsTheyStand) {
  m_Dir.Write("names/names.tsv", "# by hand\nObject\tLanguage\tName\nHIP 91262\tde\tWega\n");
  EXPECT_EQ(RecordsOf(MakeObjectNames(m_Dir.Path())), "HIP 91262\tde\tWega\n");
  m_Dir.Write("names/names.tsv", "Object\tLanguage\tName\nHIP 91262\t\tWega\n");
  EXPECT_EQ(skydata_test::MessageOf(m_Dir, [&] { MakeObjectNames(m_Dir.Path()); }),
            "names/names.tsv:2: Language: must not be empty");
}

TEST_F(NameCatalogs, AsciiNamesOfCitiesAreFurtherNames) {
  const std::string header =
      "Name\tAsciiName\tOtherNames\tCountry\tCountryName\tLat_deg\tLon_deg\tHeight_m\tPopulation\tZone\n";
  m_Dir.Write("cities/cities.tsv", header +
                                       "Zürich\tZurich\tЦюрих\tCH\tSwitzerland\t0\t0\t\t5\tEurope/Zurich\n"
                                       "Bonn\tBonn\t\tDE\tGermany\t0\t0\t60\t5\tEurope/Berlin\n");
  EXPECT_EQ(RecordsOf(MakeCities(m_Dir.Path())),
            "Zürich\tZurich; Цюрих\tCH\tSwitzerland\t0\t0\t\t5\tEurope/Zurich\n"
            "Bonn\t\tDE\tGermany\t0\t0\t60\t5\tEurope/Berlin\n");
  m_Dir.Write("cities/cities.tsv", header + "Bonn\tBonn\t\tDE\tGermany\t95\t0\t60\t5\tEurope/Berlin\n");
  EXPECT_EQ(skydata_test::MessageOf(m_Dir, [&] { MakeCities(m_Dir.Path()); }),
            "cities/cities.tsv:2: Lat_deg: 95 is out of range");
}

TEST_F(NameCatalogs, PlacesOnBodiesBecomeRadians) {
  m_Dir.Write("gazetteers/io.tsv",
              "Name\tType\tLat_deg\tLon_deg_east\tDiameter_km\n"
              "Loki\tPatera\t0\t-180\t226.5\nX\tMons\t0\t0\t\n");
  EXPECT_EQ(RecordsOf(MakeGazetteer(m_Dir.Path("gazetteers/io.tsv"))),
            "Loki\tPatera\t0\t-3.141592653589793\t226.5\nX\tMons\t0\t0\t\n");
}

TEST_F(NameCatalogs, APairWantsTheNumberOfAStar) {
  const std::string header = "HR\tHIP\tDiscoverer\tPair\tMag1\tMag2\tSeparation_arcsec\tPosAngle_deg\n";
  m_Dir.Write("doubles/doubles.tsv", header + "\t5\t\tAB\t1\t\t3600\t180\n");
  EXPECT_EQ(RecordsOf(MakeDoubleStars(m_Dir.Path())),
            "\t5\t\tAB\t1\t\t0.017453292519943295\t"
            "3.141592653589793\n");
  m_Dir.Write("doubles/doubles.tsv", header + "\t\t\tAB\t1\t2\t3\t4\n");
  EXPECT_EQ(skydata_test::MessageOf(m_Dir, [&] { MakeDoubleStars(m_Dir.Path()); }),
            "doubles/doubles.tsv:2: HIP: wants HR or HIP");
}

TEST_F(NameCatalogs, AsterismsHaveAPriority) {
  m_Dir.Write("names/asterisms.tsv", "Key\tName\tPriority\nKite\tKite\t0\n");
  EXPECT_EQ(skydata_test::MessageOf(m_Dir, [&] { MakeAsterisms(m_Dir.Path()); }),
            "names/asterisms.tsv:2: Priority: 0 is out of range");
}

}  // namespace
}  // namespace skydata
