// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/build/data_root.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <map>

#include "common_interfaces/camera.h"
#include "common_interfaces/settings_data.h"
#include "common_interfaces/settings_field.h"
#include "scene/catalogs/prepared_sky.h"
#include "skydata/show/files.h"
#include "skydata/strings/check.h"
#include "support/camera_settings.h"
#include "tests/skydata/source_text.h"

namespace skydata {
namespace {

using CommonInterfaces::Camera;
using CommonInterfaces::SettingField;
using CommonInterfaces::SettingsData;

constexpr unsigned kFilters = FourCC("FLTR");

unsigned MemoryOrder(const char* bytes) {
  unsigned word = 0;
  for (int i = 3; i >= 0; --i) word = word << 8 | static_cast<unsigned char>(bytes[i]);
  return word;
}

class DataRoot : public testing::Test {
 protected:
  DataRoot() { BuildDataRoot(CI_DATA_SOURCE, m_Roots.dir.Path("data"), "en"); }
  test_support::TempRoots m_Roots;
};

TEST_F(DataRoot, PreparedCatalogsAreThoseOfTheTables) {
  for (const char* name : {"stars", "ngc_ic"}) {
    scene::PreparedSkySummary summary;
    std::string error;
    const std::string path = m_Roots.dir.Path(std::string("data/catalogs/") + name + ".prepared");
    ASSERT_TRUE(scene::InspectPreparedSky(path.c_str(), summary, error)) << error;
    EXPECT_TRUE(summary.changedTexts.empty()) << name;
    for (const auto& [part, count] : summary.counts) EXPECT_GT(count, 0u) << part;
    const ShownTable shown = ShowPreparedSky(path);
    ASSERT_EQ(shown.rows.size(), summary.counts.size());
    EXPECT_EQ(shown.rows[0][1].text, name == std::string("stars") ? "9096" : "13371");
  }
}

TEST_F(DataRoot, HasEveryFileOfTheLayout) {
  for (const char* name : {"qxstrings.txt", "filters.data", "FilterCorrection.data", "views/orion.data",
                           "views/southern_cross.data", "views/pleiades.data", "media/time_interval.ini"}) {
    EXPECT_FALSE(m_Roots.dir.Read(std::string("data/") + name).empty()) << name;
  }
  for (const char* name : {"stars", "deepsky", "ngc_ic", "nebula_outlines", "constellations",
                           "constellation_lines", "constellation_bounds"}) {
    const std::string base = std::string("data/catalogs/") + name;
    EXPECT_EQ(m_Roots.dir.Read(base + ".txt")[0], '#') << name;
    EXPECT_NE(m_Roots.dir.Read(base + ".source.md").find("Licence"), std::string::npos) << name;
  }
  for (const auto& [base, extension] :
       std::map<std::string, std::string>{{"catalogs/milkyway", ".map"},
                                          {"catalogs/comets/best_observation_time", ".ini"},
                                          {"catalogs/planets&moons/planets&moons", ".txt"},
                                          {"media/find/3d_flight_to_objects", ".txt"},
                                          {"media/find/object_articles_table", ".bin"},
                                          {"media/find/object_distances_table", ".bin"},
                                          {"media/skyobjects/constell_images/constell", ".dat"},
                                          {"media/skyobjects/dso_images/dsoimagestrue", ".txt"},
                                          {"media/skyobjects/mway_images/mway", ".dat"},
                                          {"media/surface/panoramas", ".ini"}}) {
    EXPECT_FALSE(m_Roots.dir.Read("data/" + base + extension).empty()) << base;
    EXPECT_NE(m_Roots.dir.Read("data/" + base + ".source.md").find("icence"), std::string::npos) << base;
  }
}

TEST_F(DataRoot, EveryLanguageHasItsTableAndEnglishIsTheDefault) {
  for (const std::string language : {"en", "de", "ru"}) {
    const std::string name = "data/languages/" + language + "/qxstrings.txt";
    const StringsSource table = ReadStrings(m_Roots.dir.Path(name));
    EXPECT_FALSE(table.isUtf8) << language;
    EXPECT_EQ(FormatFindings(CheckStrings(table)), "");
  }
  EXPECT_EQ(m_Roots.dir.Read("data/qxstrings.txt"), m_Roots.dir.Read("data/languages/en/qxstrings.txt"));
}

TEST_F(DataRoot, AnotherLanguageMayBeTheDefault) {
  BuildDataRoot(CI_DATA_SOURCE, m_Roots.dir.Path("russian"), "ru");
  EXPECT_EQ(m_Roots.dir.Read("russian/qxstrings.txt"), m_Roots.dir.Read("data/languages/ru/qxstrings.txt"));
}

TEST_F(DataRoot, EveryClassHasItsZoomDependentFields) {
  SettingsData settings(1, kFilters, "filters.data");
  ASSERT_TRUE(settings.Read(nullptr));
  for (int row = 0; row < Camera::s_ZoomDependDescSize; ++row) {
    const auto& desc = Camera::s_ZoomDependDesc[row];
    SettingField* field = settings.GetAtField(desc.objectClass, desc.fieldId, true);
    ASSERT_NE(field, nullptr) << row;
    EXPECT_EQ(field->GetType(), CommonInterfaces::kFieldInt16) << row;
    EXPECT_EQ(field->GetSize(), 1u) << row;
    EXPECT_EQ(settings.GetSectionStatus(desc.objectClass, false), 1) << row;
  }
}

TEST_F(DataRoot, ObjectsAreNotCorrectedAndLabelsOfStarsAre) {
  SettingsData settings(1, kFilters, "filters.data");
  ASSERT_TRUE(settings.Read(nullptr));
  Camera camera(1);
  camera.CreateDefault();
  camera.FillMagCorrectionsVector(&settings);
  for (int row = 0; row < Camera::s_ZoomDependDescSize; row += 2)
    EXPECT_EQ(camera.GetMagCorrection(row), 0.0f) << row;
  EXPECT_EQ(camera.GetMagCorrection(1), -15.0f);
  EXPECT_EQ(camera.GetDarkMagLabel(FourCC("star")), 45);  // magnitude 2.5 at zoom 1
  EXPECT_EQ(camera.GetDarkMagLabel(FourCC("nebu")), 60);  // magnitude 4.0
}

TEST_F(DataRoot, EveryCameraRecordHasItsDefaults) {
  using namespace test_support;
  struct Record {
    unsigned identifier;
    RecordFields changes;  // to what every record holds
  };
  constexpr double kDegree = 0.017453292519943295;
  const auto type = [](int movingType) { return Int8("m_ObsMovingType", movingType); };
  const auto plane = [](int basePlane) { return UInt8("m_BasePlane", basePlane); };
  const auto place = [](int coordinates, double longitude, double distance, int unit) {
    return RecordFields{UInt8("m_DispCoorSysObserver", coordinates), Double("m_fi", 0.0),
                        Double("m_lam", longitude), Double("m_dist", distance), UInt8("m_distUnits", unit)};
  };
  const auto look = [](double longitude, double latitude) {
    return RecordFields{Double("m_alp", longitude), Double("m_bet", latitude)};
  };
  const auto sun = Int32("m_ObsObjID", 10);
  const auto together = [](std::initializer_list<RecordFields> parts) {
    RecordFields all;
    for (const RecordFields& part : parts) all.insert(all.end(), part.begin(), part.end());
    return all;
  };
  const auto south = look(180 * kDegree, 30 * kDegree);
  const Record records[] = {
      {MemoryOrder("RMAC"), {}},
      {MemoryOrder("QXSC"), together({south, {plane(1)}})},
      {MemoryOrder("QXMC"), together({south, {type(1), plane(1)}})},
      {MemoryOrder("VOHC"), {type(2)}},
      {MemoryOrder("NCFC"),
       together({{type(3), sun, plane(2)}, place(0, 0.0, 1.0, 4), look(266.84 * kDegree, -5.54 * kDegree)})},
      // A million kilometres before the galactic centre.
      {MemoryOrder("LOSC"),
       together({{type(4), plane(3)}, place(3, 180 * kDegree, 1e6 / 149597870.7, 3), look(0.0, 0.0)})},
      {MemoryOrder("STSC"), {type(5)}},
      // 8500 parsec from the centre of our Galaxy.
      {MemoryOrder("LAGC"),
       together({{type(9), UInt32("m_ObsObjType", 0x67616C61), Int32("m_ObsObjID", 0x3D000000), plane(3)},
                 place(3, 180 * kDegree, 8500 * 206264.8062470964, 7),
                 look(0.0, 0.0)})},
      {MemoryOrder("TLFC"), together({{type(10), sun, plane(3)}, place(3, 0.0, 1.0, 4), look(0.0, 0.0)})}};
  for (const Record& record : records) {
    SettingsData settings(1, record.identifier, "filters.data");
    ASSERT_TRUE(settings.Read(nullptr)) << record.identifier;
    auto expected = CameraFields();
    for (const RecordField& change : record.changes) ReplaceField(expected, change);
    ASSERT_EQ(settings.GetFieldCount(), static_cast<int>(expected.size()));
    ASSERT_EQ(settings.GetSectionCount(), 1);
    EXPECT_EQ(settings.GetSectionAt(0)->id, 0x63616D72u);  // "camr"
    for (int i = 0; i < settings.GetFieldCount(); ++i) {
      const auto& want = expected[static_cast<std::size_t>(i)];
      const SettingField& field = *settings.GetFieldAt(i);
      EXPECT_EQ(field.GetNameId(), GetUniqueID(want.key.c_str())) << want.key;
      ASSERT_EQ(field.GetType(), want.type) << want.key;
      ASSERT_EQ(field.GetSize(), want.count) << want.key;
      std::vector<unsigned char> bytes(want.bytes.size());
      field.GetData(bytes.data());
      EXPECT_EQ(bytes, want.bytes) << want.key;
    }
  }
}

TEST_F(DataRoot, ACameraTakesItsDefaultsFromThere) {
  Camera camera(1);
  camera.SetZoom(7.0);
  camera.CreateDefault();
  EXPECT_EQ(camera.GetZoom(), 1.0);
  EXPECT_TRUE(camera.GetObserver() == SSO_ID(FourCC("plnt"), 3));
  EXPECT_DOUBLE_EQ(camera.GetLocation().lat, 0.9948376736367679);
  EXPECT_DOUBLE_EQ(camera.GetViewAngles().lon, 4.6355944932969395);
}

TEST_F(DataRoot, CorrectionFieldsAreLoadedByTheirOwnerAlone) {
  EXPECT_EQ(SettingsData(1, kFilters, "filters.data").GetCorrectionCount(), 4);
  EXPECT_EQ(SettingsData(1, MemoryOrder("RMAC"), "filters.data").GetCorrectionCount(), 0);
}

class DamagedSource : public testing::Test {
 protected:
  DamagedSource() {
    std::filesystem::copy(CI_DATA_SOURCE, m_Dir.Path("source"), std::filesystem::copy_options::recursive);
  }
  std::string BuildMessage() {
    return skydata_test::MessageOf(m_Dir,
                                   [&] { BuildDataRoot(m_Dir.Path("source"), m_Dir.Path("out"), "en"); });
  }
  test_support::TempDir m_Dir;
};

TEST_F(DamagedSource, NothingIsWrittenWhenAnythingIsWrong) {
  m_Dir.Write("source/milkyway/outlines.tsv", "Level\tRing\tRA_deg\tDec_deg\n1\t0\t1\tx\n");
  EXPECT_EQ(BuildMessage(), "source/milkyway/outlines.tsv:2: Dec_deg: 'x' is no number");
  EXPECT_TRUE(std::filesystem::is_empty(m_Dir.Path("out")));
}

TEST_F(DamagedSource, AnEarlierDataRootStaysAsItWas) {
  ASSERT_EQ(BuildMessage(), "");
  const std::string before = m_Dir.Read("out/filters.data");
  m_Dir.Write("source/settings/filters.ini", "header 2\n[block FLTR defaults]\n[section star]\n");
  m_Dir.Write("source/views/orion.ini", "header 1\nnonsense\n");
  EXPECT_EQ(BuildMessage(),
            "source/views/orion.ini:2: 'nonsense' is no heading, no field, no 'header' and no 'include'");
  EXPECT_EQ(m_Dir.Read("out/filters.data"), before);
}

TEST_F(DamagedSource, ATextThatItsCodePageLacksIsNamed) {
  const std::string table = m_Dir.Read("source/strings/de/qxstrings.txt");
  const std::string line = std::to_string(std::count(table.begin(), table.end(), '\n') + 1);
  m_Dir.Write("source/strings/de/qxstrings.txt", table + "900500\t\u2605\n");
  EXPECT_EQ(BuildMessage(), "source/strings/de/qxstrings.txt:" + line +
                                ": U+2605 '\u2605' is not in windows-1252, the code page of the language");
  EXPECT_TRUE(std::filesystem::is_empty(m_Dir.Path("out")));
}

TEST_F(DamagedSource, ALanguageWithoutATableIsNamed) {
  std::filesystem::remove(m_Dir.Path("source/strings/ru/qxstrings.txt"));
  EXPECT_EQ(BuildMessage(), "source/strings/ru/qxstrings.txt: cannot be opened");
}

TEST_F(DamagedSource, AFileOfAnotherNameInTheDataRootStays) {
  m_Dir.Write("out/mine.txt", "mine");
  ASSERT_EQ(BuildMessage(), "");
  EXPECT_EQ(m_Dir.Read("out/mine.txt"), "mine");
}

TEST_F(DamagedSource, BuildingAgainGivesTheSameBytes) {
  ASSERT_EQ(BuildMessage(), "");
  const std::string before = m_Dir.Read("out/filters.data") + m_Dir.Read("out/catalogs/stars.txt");
  ASSERT_EQ(BuildMessage(), "");
  EXPECT_EQ(m_Dir.Read("out/filters.data") + m_Dir.Read("out/catalogs/stars.txt"), before);
}

TEST_F(DamagedSource, AMissingSourcePageIsNamed) {
  std::filesystem::remove(m_Dir.Path("source/stars/SOURCE.md"));
  EXPECT_EQ(BuildMessage(), "source/stars/SOURCE.md: cannot be opened");
}

TEST_F(DamagedSource, AMissingFolderIsNamed) {
  std::filesystem::remove_all(m_Dir.Path("source/views"));
  EXPECT_EQ(BuildMessage(), "source/views: no such folder");
}

TEST_F(DamagedSource, AFileInPlaceOfTheDataRootIsNamed) {
  m_Dir.Write("out", "file");
  EXPECT_EQ(BuildMessage(), "out: cannot be made");
}

}  // namespace
}  // namespace skydata
