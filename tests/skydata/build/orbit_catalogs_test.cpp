// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The catalogs of orbits made of the data that ship, and what a damaged source does to them.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "astro/satellite.h"
#include "astro/two_body.h"
#include "astro/vectors.h"
#include "skydata/build/catalogs.h"
#include "skydata/files/source_error.h"
#include "support/temp_dir.h"
#include "tests/skydata/source_text.h"

namespace skydata {
namespace {

constexpr double kRadiansPerDegree = 3.14159265358979323846 / 180.0;

// A table with cells by record and column name.
class Table {
 public:
  explicit Table(const std::string& bytes) : m_Records(skydata_test::SplitTable(bytes)) {
    for (std::size_t i = 0; i < m_Records[0].size(); ++i)
      m_Columns[m_Records[0][i].substr(0, m_Records[0][i].find(':'))] = i;
  }
  std::size_t GetCount() const { return m_Records.size() - 1; }
  const std::string& GetText(std::size_t record, const std::string& column) const {
    return m_Records[record + 1].at(m_Columns.at(column));
  }
  double GetNumber(std::size_t record, const std::string& column) const {
    return std::strtod(GetText(record, column).c_str(), nullptr);
  }
  std::size_t Find(const std::string& name) const {
    for (std::size_t i = 0; i < GetCount(); ++i) {
      if (GetText(i, "ProperName") == name) return i;
    }
    throw std::out_of_range(name);
  }
  OrbitalElements GetElements(std::size_t record) const {
    OrbitalElements elements;
    elements.epoch = GetNumber(record, "JulianDate");
    elements.a = GetNumber(record, "a");
    elements.e = GetNumber(record, "e");
    elements.i = GetNumber(record, "i");
    elements.om = GetNumber(record, "om");
    elements.w = GetNumber(record, "w");
    elements.M0 = GetNumber(record, "M0");
    elements.n = GetNumber(record, "n");
    return elements;
  }

 private:
  std::vector<std::vector<std::string>> m_Records;
  std::map<std::string, std::size_t> m_Columns;
};

const Table& Asteroids() {
  static const Table table(MakeAsteroidCatalog(CI_DATA_SOURCE));
  return table;
}
const Table& Comets() {
  static const Table table(MakeCometCatalog(CI_DATA_SOURCE));
  return table;
}

double SunDistance(const OrbitalElements& elements, double moment) {
  double position[3];
  EXPECT_TRUE(ComputeTwoBodyState(elements, MakeOrbitPlane(elements), moment, position, nullptr));
  return Vmod(position, 3);
}

TEST(OrbitCatalogs, EveryNumberOnce) {
  ASSERT_EQ(Asteroids().GetCount(), 86u);
  ASSERT_EQ(Comets().GetCount(), 84u);
  for (const Table* table : {&Asteroids(), &Comets()}) {
    std::set<std::string> numbers;
    for (std::size_t i = 0; i < table->GetCount(); ++i) numbers.insert(table->GetText(i, "Number"));
    EXPECT_EQ(numbers.size(), table->GetCount());
  }
}

TEST(OrbitCatalogs, CometsWithoutANumberCountFrom1001) {
  EXPECT_EQ(Comets().GetText(Comets().Find("1P/Halley"), "Number"), "1");
  EXPECT_EQ(Comets().GetText(Comets().Find("3D/Biela"), "Number"), "3");
  EXPECT_EQ(Comets().GetText(Comets().Find("C/1577 V1"), "Number"), "1001");
  EXPECT_EQ(Comets().GetText(Comets().GetCount() - 1, "Number"), "1030");
}

// Ceres as the Small-Body Database gives it, and its period of 4.60 years.
TEST(OrbitCatalogs, AsteroidInRadians) {
  const std::size_t ceres = Asteroids().Find("Ceres");
  EXPECT_NEAR(Asteroids().GetNumber(ceres, "i"), 10.58679512153367 * kRadiansPerDegree, 1e-15);
  EXPECT_NEAR(Asteroids().GetNumber(ceres, "M0"), 334.3271698971151 * kRadiansPerDegree, 1e-14);
  EXPECT_NEAR(360.0 * kRadiansPerDegree / Asteroids().GetNumber(ceres, "n") / 365.25, 4.60184774356845, 2e-6);
  EXPECT_EQ(Asteroids().GetText(ceres, "SlopeParam"), "0.12");
  EXPECT_EQ(Asteroids().GetText(Asteroids().Find("Leda"), "SlopeParam"), "0.15");
  EXPECT_EQ(Asteroids().GetText(Asteroids().Find("Sedna"), "Diameter"), "");
}

// Every comet is where it is nearest to the Sun when the source says so, and at that distance: whatever the
// conic.
TEST(OrbitCatalogs, CometsPassTheirPerihelia) {
  std::ifstream source(std::string(CI_DATA_SOURCE) + "/orbits/comets.tsv");
  std::string line;
  std::getline(source, line);
  std::size_t record = 0;
  int conics[3] = {};
  while (std::getline(source, line)) {
    std::vector<std::string> cells;
    std::istringstream text(line);
    for (std::string cell; std::getline(text, cell, '\t');) cells.push_back(cell);
    const double q = std::strtod(cells[3].c_str(), nullptr);
    const double perihelion = std::strtod(cells[8].c_str(), nullptr);
    const OrbitalElements elements = Comets().GetElements(record);
    EXPECT_NEAR(SunDistance(elements, perihelion), q, 1e-9 * q) << cells[1];
    EXPECT_GT(SunDistance(elements, perihelion - 1.0), q) << cells[1];
    EXPECT_GT(SunDistance(elements, perihelion + 1.0), q) << cells[1];
    ++conics[elements.e < 1.0 ? 0 : (elements.e == 1.0 ? 1 : 2)];
    ++record;
  }
  EXPECT_EQ(record, 84u);
  EXPECT_EQ(conics[0], 73);
  EXPECT_EQ(conics[1], 1);
  EXPECT_EQ(conics[2], 10);
}

TEST(OrbitCatalogs, SlopeOfACometOnlyBesideAMagnitude) {
  const std::size_t bright = Comets().Find("C/1995 O1 (Hale-Bopp)");
  EXPECT_EQ(Comets().GetText(bright, "Hy"), "4");
  EXPECT_EQ(Comets().GetText(bright, "y"), "10");
  EXPECT_EQ(Comets().GetText(Comets().Find("C/1577 V1"), "Hy"), "");
  EXPECT_EQ(Comets().GetText(Comets().Find("C/1577 V1"), "y"), "");
}

TEST(OrbitCatalogs, EverySatelliteIsUpAtItsEpoch) {
  std::istringstream file(MakeSatellites(CI_DATA_SOURCE));
  int count = 0;
  for (std::string name, first, second;
       std::getline(file, name) && std::getline(file, first) && std::getline(file, second); ++count) {
    OrbitalElements elements;
    int number = 0;
    std::string error;
    ASSERT_TRUE(ParseTwoLineElements(first, second, elements, number, error)) << name << ": " << error;
    EXPECT_EQ(SatelliteModel(elements).GetFault(), SatelliteFault::kNone) << name;
  }
  EXPECT_EQ(count, 26);
}

class DamagedOrbits : public testing::Test {
 protected:
  // The message of the maker for a source of this text.
  std::string MessageOf(std::string (*make)(const std::filesystem::path&), const std::string& name,
                        const std::string& text) {
    m_Dir.Write("source/orbits/" + name, text);
    try {
      make(m_Dir.Path("source"));
    } catch (const SourceError& error) {
      return std::to_string(error.GetLine()) + ": " + error.GetMessage();
    }
    return "";
  }

  test_support::TempDir m_Dir;
  const std::string m_Header =
      "Number\tName\tEpoch_JD_TDB\tq_au\te\ti_deg\tom_deg\tw_deg\tPerihelion_JD_TDB\tM1_mag\n";
  const std::string m_Comet =
      "1001\tC/1577 V1\t2297356.948\t0.1775\t1\t104.883\t31.237\t255.673\t2297356.948\n";
};

TEST_F(DamagedOrbits, CometsNameLineAndColumn) {
  const auto message = [&](const std::string& text) {
    return MessageOf(MakeCometCatalog, "comets.tsv", m_Header + m_Comet + text);
  };
  EXPECT_EQ(message(""), "");
  EXPECT_EQ(message(m_Comet), "3: Number: 1001 stands above already");
  EXPECT_EQ(message("1002\t\t2297356.948\t0.1775\t1\t104.883\t31.237\t255.673\t2297356.948\n"),
            "3: Name: must not be empty");
  EXPECT_EQ(message("1002\tX\t2297356.948\t0\t1\t104.883\t31.237\t255.673\t2297356.948\n"),
            "3: q_au: must be above 0");
  EXPECT_EQ(message("1002\tX\t2297356.948\t0.1775\t-1\t104.883\t31.237\t255.673\t2297356.948\n"),
            "3: e: -1 is out of range");
  EXPECT_EQ(message("1002\tX\t2297356.948\t0.1775\t1\t204.883\t31.237\t255.673\t2297356.948\n"),
            "3: i_deg: 204.883 is out of range");
}

TEST_F(DamagedOrbits, SatellitesNameTheLineOfTheSet) {
  const std::string set =
      "ISS (ZARYA)\n1 25544U 98067A   14020.93268519  .00009878  00000-0  18200-3 0  5082\n"
      "2 25544  51.6498 109.4756 0003572  55.9686 274.8005 15.49815350868473\n";
  const auto message = [&](const std::string& text) {
    return MessageOf(MakeSatellites, "satellites.tle", text);
  };
  EXPECT_EQ(message(set), "");
  EXPECT_EQ(message(set + set), "4: 25544 stands above already");
  EXPECT_EQ(message(set + "ANOTHER\n"), "4: a satellite takes three lines: name, line 1, line 2");
  std::string wrong = set;
  wrong[wrong.find("5082")] = '6';
  EXPECT_EQ(message(wrong), "1: line 1, column 69: the checksum must be 3");
}

}  // namespace
}  // namespace skydata
