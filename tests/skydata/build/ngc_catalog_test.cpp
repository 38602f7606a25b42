// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The NGC, the IC and the outlines of nebulae, made of the data that ship.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

#include "skydata/build/catalogs.h"
#include "skydata/build/ngc_entries.h"
#include "tests/skydata/made_table.h"
#include "tests/skydata/source_text.h"

namespace skydata {
namespace {

using Table = skydata_test::MadeTable;

constexpr double kRadiansPerDegree = 3.14159265358979323846 / 180.0;

const Table& Ngc() {
  static const Table table(MakeNgcCatalog(CI_DATA_SOURCE));
  return table;
}
const Table& Messier() {
  static const Table table(MakeDeepskyCatalog(CI_DATA_SOURCE));
  return table;
}
const NgcEntries& Entries() {
  static const NgcEntries entries(CI_DATA_SOURCE);
  return entries;
}

std::string NumberOf(int subType, int low) { return std::to_string(subType * 16777216 + low); }

TEST(NgcCatalog, EveryEntryIsAnObjectOrLeftOutForAReason) {
  const SourceTable& source = Entries().GetTable();
  ASSERT_EQ(source.GetRowCount(), 14026);
  std::map<NgcEntries::Fate, std::size_t> fates;
  for (int row = 0; row < source.GetRowCount(); ++row) ++fates[Entries().Get(row).fate];
  EXPECT_EQ(fates[NgcEntries::Fate::kDuplicate], 652u);
  EXPECT_EQ(fates[NgcEntries::Fate::kNonExistent], 3u);
  EXPECT_EQ(fates[NgcEntries::Fate::kMessier], 110u);
  EXPECT_EQ(fates[NgcEntries::Fate::kObject], 14026u - 652u - 3u - 110u);
  EXPECT_EQ(Ngc().GetCount(), fates[NgcEntries::Fate::kObject] + fates[NgcEntries::Fate::kMessier]);
}

TEST(NgcCatalog, NoObjectIsThereTwice) {
  std::set<std::string> numbers, designations;
  for (std::size_t i = 0; i < Messier().GetCount(); ++i)
    EXPECT_TRUE(numbers.insert(Messier().GetText(i, "Number:i32")).second);
  std::size_t further = 0;
  for (std::size_t i = 0; i < Ngc().GetCount(); ++i) {
    EXPECT_TRUE(designations.insert(Ngc().GetText(i, "NGC_ICnumber:text")).second);
    const bool isNew = numbers.insert(Ngc().GetText(i, "Number:i32")).second;
    EXPECT_EQ(isNew, Ngc().GetText(i, "MessierNumber:i32").empty()) << i;
    further += isNew;
  }
  EXPECT_EQ(numbers.size(), 110 + further);
}

// An entry of Messier's list that was missed would stand beside its twin.
TEST(NgcCatalog, NoObjectOfItsKindStandsWhereAMessierObjectStands) {
  std::set<std::string> alone = {"51"};  // its companion NGC 5195 is an object of its own
  for (std::size_t m = 0; m < Messier().GetCount(); ++m) {
    const double ra = Messier().GetNumber(m, "RA:f64"), dec = Messier().GetNumber(m, "Dec:f64");
    for (std::size_t i = 0; i < Ngc().GetCount(); ++i) {
      if (!Ngc().GetText(i, "MessierNumber:i32").empty()) continue;
      if (Ngc().GetText(i, "Type:text") != "gala" || Messier().GetText(m, "Type:text") != "gala") continue;
      const double away = std::hypot((Ngc().GetNumber(i, "RA:f64") - ra) * std::cos(dec),
                                     Ngc().GetNumber(i, "Dec:f64") - dec);
      const double brighter =
          Ngc().GetNumber(i, "VisMagnitude:f32") - Messier().GetNumber(m, "VisMagnitude:f32");
      const bool isTwin = away < 0.03 * kRadiansPerDegree && std::fabs(brighter) < 1.0;
      EXPECT_FALSE(isTwin) << Messier().GetText(m, "MessierNumber:i32") << " "
                           << Ngc().GetText(i, "NGC_ICnumber:text");
    }
  }
}

TEST(NgcCatalog, AMessierObjectIsFoundByItsMarkOrByItsDesignation) {
  const std::pair<const char*, const char*> known[] = {
      {"NGC 224", "31"}, {"IC 4715", "24"}, {"M 40", "40"}, {"Mel 22", "45"}, {"NGC 5866", "102"}};
  for (const auto& [designation, messier] : known) {
    const std::size_t i = Ngc().Find("NGC_ICnumber:text", designation);
    EXPECT_EQ(Ngc().GetText(i, "MessierNumber:i32"), messier);
    const std::size_t m = Messier().Find("MessierNumber:i32", messier);
    EXPECT_EQ(Ngc().GetText(i, "Number:i32"), Messier().GetText(m, "Number:i32"));
  }
}

TEST(NgcCatalog, TypesHaveTheirKindAndSubType) {
  struct Known {
    const char *designation, *kind;
    int subType, low;
  };
  constexpr Known kKnown[] = {{"NGC 7331", "gala", 62, 1733100},    {"NGC 1399", "gala", 63, 1139900},
                              {"IC 10", "gala", 64, 2001000},       {"NGC 3115", "gala", 65, 1311500},
                              {"NGC 1499", "nebu", 0, 1149900},     {"NGC 7000", "nebu", 34, 1700000},
                              {"B 33", "nebu", 35, 3000033},        {"NGC 2237", "nebu", 0, 1223700},
                              {"NGC 7293", "nebu", 32, 1729300},    {"NGC 6992", "nebu", 33, 1699200},
                              {"NGC 104", "clst", 41, 1010400},     {"NGC 869", "clst", 40, 1086900},
                              {"C 14", "clst", 45, 3100014},        {"HCG 92", "gala", 68, 3400092},
                              {"NGC 1990", "dsnv", 71, 1199000},    {"IC 1", "clst", 44, 2000100},
                              {"IC 80 NED02", "gala", 63, 2008032}, {"ESO 56-115", "gala", 62, 4056115},
                              {"PGC 3853", "gala", 62, 5003853},    {"UGC 5470", "gala", 63, 15005470}};
  for (const Known& known : kKnown) {
    const std::size_t i = Ngc().Find("NGC_ICnumber:text", known.designation);
    EXPECT_EQ(Ngc().GetText(i, "Type:text"), known.kind) << known.designation;
    EXPECT_EQ(Ngc().GetText(i, "Number:i32"), NumberOf(known.subType, known.low)) << known.designation;
  }
}

TEST(NgcCatalog, EntriesOfOtherFormsHaveNoNumber) {
  for (const char* name : {"",
                           " ",
                           " 224",
                           "M",
                           "M ",
                           "B",
                           "NGC",
                           "NGC ",
                           "NGC x",
                           "NGC 7841",
                           "NGC 224 ",
                           "NGC 224AB",
                           "NGC 224 NED00",
                           "NGC 224 NED30",
                           "NGC 224 NED1",
                           "NGC -1",
                           "IC 5387",
                           "B 33A",
                           "ESO 56",
                           "ESO 56-",
                           "ESO 56-1150",
                           "M 111",
                           "XYZ 1"}) {
    EXPECT_EQ(FindEntryNumber(name), std::nullopt) << name;
  }
  EXPECT_EQ(FindEntryNumber("NGC 61A"), 1006101);
  EXPECT_EQ(FindEntryNumber("IC 715SE"), 2071563);
  EXPECT_EQ(FindEntryNumber("M 110"), 110);
}

// IC 10: V 10.35, B 11.78; IC 2: B 15.46 alone, a galaxy; NGC 7822, a nebula, has neither.
TEST(NgcCatalog, TheMagnitudeIsVisualElseFromTheBlueOneElseUnknown) {
  EXPECT_EQ(Ngc().GetText(Ngc().Find("NGC_ICnumber:text", "IC 10"), "VisMagnitude:f32"), "10.35");
  EXPECT_EQ(Ngc().GetText(Ngc().Find("NGC_ICnumber:text", "IC 2"), "VisMagnitude:f32"), "14.66");
  EXPECT_EQ(Ngc().GetText(Ngc().Find("NGC_ICnumber:text", "NGC 7822"), "VisMagnitude:f32"), "");
}

// What stands for a colour is the median of those that are known.
TEST(NgcCatalog, TypicalColoursAreTheMediansOfTheTable) {
  const SourceTable& source = Entries().GetTable();
  std::map<std::string, std::vector<double>> colours;
  for (int row = 0; row < source.GetRowCount(); ++row) {
    const auto blue = source.FindNumber(row, kNgcBlue, -2, 30),
               visual = source.FindNumber(row, kNgcVisual, -2, 30);
    if (!blue || !visual) continue;
    const std::string& type = source.GetText(row, kNgcType);
    const bool has = type == "G" || type == "GCl" || type == "PN";
    colours[has ? type : "others"].push_back(*blue - *visual);
  }
  ASSERT_EQ(colours.size(), 4u);
  for (auto& [type, values] : colours) {
    ASSERT_GT(values.size(), 100u) << type;
    std::sort(values.begin(), values.end());
    EXPECT_NEAR(GetTypicalColour(type), values[values.size() / 2], 0.05) << type;
  }
}

// Sizes and position angle of M 31 and NGC 891 as in the Third Reference Catalogue (de Vaucouleurs et al.
// 1991): 35 and 22 degrees.
TEST(NgcCatalog, PositionAnglesAreRadiansFromNorthByEast) {
  EXPECT_NEAR(Ngc().GetNumber(Ngc().Find("NGC_ICnumber:text", "NGC 224"), "PositionAngle:f32"),
              35.0 * kRadiansPerDegree, 1e-6);
  EXPECT_NEAR(Ngc().GetNumber(Ngc().Find("NGC_ICnumber:text", "NGC 891"), "PositionAngle:f32"),
              22.0 * kRadiansPerDegree, 2.0 * kRadiansPerDegree);
  EXPECT_EQ(Ngc().GetText(Ngc().Find("NGC_ICnumber:text", "NGC 7789"), "PositionAngle:f32"), "");
}

TEST(NgcCatalog, NamesOfDuplicatesAndOtherEntriesStay) {
  const auto names = [](const char* designation) {
    return ";" + Ngc().GetText(Ngc().Find("NGC_ICnumber:text", designation), "OtherNames:text") + ";";
  };
  EXPECT_NE(names("NGC 281").find(";IC 11;"), std::string::npos);  // a duplicate
  EXPECT_NE(names("NGC 7000").find(";C 20;"), std::string::npos);  // Caldwell's
  EXPECT_NE(names("C 9").find(";Sh 2-155;"), std::string::npos);   // Sharpless'
  EXPECT_NE(names("NGC 224").find(";PGC 2557;"), std::string::npos);
  EXPECT_NE(names("C 41").find(";Cr 50;Mel 25;"), std::string::npos);
  EXPECT_EQ(names("NGC 5457").find("M 102"), std::string::npos) << "Messier's list has another for 102";
  EXPECT_EQ(Ngc().GetText(Ngc().Find("NGC_ICnumber:text", "B 33"), "ProperName:text"), "Horsehead Nebula");
}

// IC 4703 shares the name Eagle Nebula with M 16.
TEST(NgcCatalog, NamesOfMessiersObjectsAreTheirsAlone) {
  std::set<std::string> names;
  for (std::size_t i = 0; i < Messier().GetCount(); ++i)
    names.insert(Messier().GetText(i, "ProperName:text"));
  names.erase("");
  for (std::size_t i = 0; i < Ngc().GetCount(); ++i) {
    if (!Ngc().GetText(i, "MessierNumber:i32").empty()) continue;
    EXPECT_EQ(names.count(Ngc().GetText(i, "ProperName:text")), 0u) << Ngc().GetText(i, "NGC_ICnumber:text");
  }
}

TEST(NebulaOutlines, EveryContourNamesItsObjectWhereThereIsOne) {
  const Table outlines(MakeNebulaOutlines(CI_DATA_SOURCE));
  std::set<std::string> numbers = {""};
  for (std::size_t i = 0; i < Ngc().GetCount(); ++i) numbers.insert(Ngc().GetText(i, "Number:i32"));
  std::set<std::string> objects, regions;
  int contours = 0;
  for (std::size_t i = 0; i < outlines.GetCount(); ++i) {
    if (outlines.GetText(i, "Level:i32").empty()) continue;
    ++contours;
    objects.insert(outlines.GetText(i, "Object:text"));
    EXPECT_EQ(numbers.count(outlines.GetText(i, "Number:i32")), 1u) << i;
    if (outlines.GetText(i, "Number:i32").empty()) regions.insert(outlines.GetText(i, "Object:text"));
  }
  EXPECT_EQ(contours, 513);
  EXPECT_EQ(objects.size(), 193u);
  EXPECT_EQ(regions, (std::set<std::string>{"Antlia", "Cepheus", "CoronaAustralis", "Cygnus", "LBN 1032",
                                            "LBN 1037", "Orion", "Puppis", "Scorpion", "Vela"}));
  EXPECT_EQ(outlines.GetText(outlines.Find("Object:text", "NGC 1976"), "Number:i32"), NumberOf(30, 42));
}

// Each entry of the tables below is wrong in one thing.
class DamagedNgc : public testing::Test {
 protected:
  static constexpr const char* kMessierHeader =
      "Messier\tNGC_IC\tName\tType\tV_mag\tLargest_arcmin\tSmallest_arcmin\tRA_deg\tDec_deg\n";
  static constexpr const char* kHeader =
      "Name\tType\tRA_deg\tDec_deg\tLargest_arcmin\tSmallest_arcmin\tPosAngle_deg\tB_mag\tV_mag\tHubble\t"
      "Messier\tSameAs\tConstellation\tCommonNames\tOtherEntries\n";

  std::string Message(const std::string& rows) {
    m_Dir.Write("deepsky/messier.tsv",
                std::string(kMessierHeader) + "31\tNGC 224\t\tspiral galaxy\t3.4\t178\t63\t10\t41\n");
    m_Dir.Write("deepsky/openngc.tsv", kHeader + rows);
    return skydata_test::MessageOf(m_Dir, [&] { MakeNgcCatalog(m_Dir.Path()); });
  }
  test_support::TempDir m_Dir;
  static constexpr const char* kAndromeda = "NGC 224\tG\t10\t41\n";
};

TEST_F(DamagedNgc, AnEntryTwiceIsRefused) {
  EXPECT_EQ(Message(std::string(kAndromeda) + "IC 1\tG\t1\t2\nIC 1\tG\t1\t2\n"),
            "deepsky/openngc.tsv:4: Name: IC 1 stands above already");
}
TEST_F(DamagedNgc, AnUnknownTypeIsRefused) {
  EXPECT_EQ(Message(std::string(kAndromeda) + "IC 1\tQSO\t1\t2\n"),
            "deepsky/openngc.tsv:3: Type: 'QSO' is no known type");
}
TEST_F(DamagedNgc, AnEntryOfAnUnknownCatalogueIsRefused) {
  EXPECT_EQ(Message(std::string(kAndromeda) + "XY 1\tG\t1\t2\n"),
            "deepsky/openngc.tsv:3: Name: 'XY 1' is no entry of a known catalogue");
}
TEST_F(DamagedNgc, ADuplicateOfNothingIsRefused) {
  EXPECT_EQ(Message(std::string(kAndromeda) + "IC 1\tDup\t1\t2\t\t\t\t\t\t\t\tNGC 7\n"),
            "deepsky/openngc.tsv:3: SameAs: 'NGC 7' names no object");
}
TEST_F(DamagedNgc, AMessierObjectTwiceIsRefused) {
  EXPECT_EQ(Message(std::string(kAndromeda) + "IC 1\tG\t1\t2\t\t\t\t\t\t\t31\n"),
            "deepsky/openngc.tsv:3: Messier: no Messier 31 is left");
}
TEST_F(DamagedNgc, AMessierObjectWithoutAnEntryIsRefused) {
  EXPECT_EQ(Message("IC 1\tG\t1\t2\n"), "deepsky/openngc.tsv: has no entry for Messier 31");
}

}  // namespace
}  // namespace skydata
