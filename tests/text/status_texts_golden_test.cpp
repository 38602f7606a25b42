// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Every status text of fifty cameras in every language that ships, against the table that
// make_status_texts.py makes from a model of its own.
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <numbers>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "common_interfaces/camera.h"
#include "common_interfaces/dates.h"
#include "common_interfaces/status_strings.h"
#include "support/debug_capture.h"
#include "support/string_table_file.h"
#include "utils/code_page.h"
#include "utils/locale.h"
#include "utils/text.h"

namespace {

using namespace CommonInterfaces;

constexpr double kDegree = std::numbers::pi / 180;
const std::string kGolden = STATUS_TEXTS;

std::vector<std::string> ReadLines(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  EXPECT_FALSE(lines.empty()) << path;
  return lines;
}

double Number(const std::string& text) { return std::strtod(text.c_str(), nullptr); }
int Whole(const std::string& text) { return std::atoi(text.c_str()); }

// A row of status_cameras.tsv.
struct CameraRow {
  explicit CameraRow(const std::string& line) : cells(GetTokens(line.c_str(), "\t")) {}
  bool IsWhole() const { return cells.size() == 22; }
  double Real(int column) const { return Number(cells[static_cast<std::size_t>(column)]); }
  int Int(int column) const { return Whole(cells[static_cast<std::size_t>(column)]); }
  const std::string& Text(int column) const { return cells[static_cast<std::size_t>(column)]; }

  std::vector<std::string> cells;
};

void SetDaylightSaving(Camera& camera, const std::string& text) {
  if (text == "-") return;
  const auto parts = GetTokens(text.c_str(), ":");
  DaylightSavingsData rule;
  rule.IsDST = parts[0] == "1";
  rule.FirstDay = Number(parts[1]);
  rule.LastDay = Number(parts[2]);
  camera.SetDST(&rule);
}

void Prepare(Camera& camera, const CameraRow& row) {
  camera.CreateDefault();
  camera.SetMovingType(static_cast<char>(row.Int(0)), false);
  camera.SetUniversalTime({row.Int(1), row.Real(2), row.Int(3)});
  camera.SetTimeZoneName(row.Text(4) == "-" ? "" : row.Text(4).c_str(), true);
  camera.UpdateLocUTCDeltaFromTimeZone();
  SetDaylightSaving(camera, row.Text(5));
  camera.SetBelowSurface(row.Int(6) != 0);
  camera.SetLocationName(row.Text(7).c_str());
  SphCoor place;
  place.dist = row.Real(8);
  place.distUnits = static_cast<unsigned char>(row.Int(9));
  place.lon = row.Real(10) * kDegree;
  place.lat = row.Real(11) * kDegree;
  camera.SetLocation(place);
  SSO_ID centre;
  if (row.Text(12) != "-") {
    centre = SSO_ID(FourCC("plnt"), 6);
    std::snprintf(centre.name, sizeof centre.name, "%s", row.Text(12).c_str());
  }
  camera.SetCenterView(centre);
  camera.SetDirectionLock(row.Int(13) != 0);
  camera.SetAimingDispType(static_cast<unsigned char>(row.Int(14)));
  camera.SetRA_Dec({row.Real(15) * kDegree, row.Real(16) * kDegree, row.Real(17) * kDegree, 0});
  camera.SetBasePlane(static_cast<unsigned char>(row.Int(18)));
  camera.SetZoom(row.Real(19));
  const int width = row.Int(20), height = row.Int(21);
  camera.SetWinRect({width, height, width, height});
}

class StatusTextsGoldenTest : public testing::TestWithParam<const char*> {
 protected:
  StatusTextsGoldenTest() {
    SetSystemLocale(GetParam());
    std::ifstream file(kGolden + "/../../data/source/strings/" + GetParam() + "/qxstrings.txt",
                       std::ios::binary);
    const std::string source{std::istreambuf_iterator<char>(file), {}};
    std::string table;
    EXPECT_TRUE(Utf8ToCodePage(Page(), source, &table, nullptr));
    test_support::LoadStrings(roots, table);
  }
  ~StatusTextsGoldenTest() override {
    test_support::LoadStrings(roots, "");
    SetSystemLocale("en");
  }

  static CodePage Page() { return GetCodePageOf(GetParam()); }
  void Add(const std::string& name, const std::string& text) {
    lines.push_back(name + ": " + CodePageToUtf8(Page(), text));
  }
  void AddCamera(int number, Camera& camera);
  void AddWords();

  test_support::TempRoots roots;
  test_support::DebugCapture debug;
  std::vector<std::string> lines;
};

void StatusTextsGoldenTest::AddCamera(int number, Camera& camera) {
  const std::string n = std::to_string(number) + " ";
  std::string caption;
  const std::string time = GetTimeString(&camera, caption);
  Add(n + "time", caption + "|" + time);
  const std::string date = GetDateString(&camera, caption);
  Add(n + "date", caption + "|" + date);
  Add(n + "location", GetLocationString(&camera));
  Add(n + "position", GetPositionCoordString(&camera, 7208, 7209));
  Add(n + "distance", GetDistanceString(&camera));
  Add(n + "centre", GetCenterOnString(&camera));
  Add(n + "direction", GetDirectionString(&camera, 7216, 7217, 7218));
  Add(n + "plane", GetRefPlane(&camera));
  Add(n + "slope", GetSlopeString(&camera));
  Add(n + "zoom", GetZoomString(&camera));
  Add(n + "field", GetFoV(&camera));
}

// The lines behind those of the cameras: their names hold the arguments.
void StatusTextsGoldenTest::AddWords() {
  for (int n = 0; n <= 1001; n = n == 25 ? 98 : n == 124 ? 1000 : n + 1)
    Add("days " + std::to_string(n), GetNumberDays(n));
  const M_DMSTag angles[] = {{0, 0, 0.0f},   {0, 0, 0.4f},  {0, 0, 59.4f},  {0, 1, 0.0f},
                             {0, 9, 59.4f},  {0, 10, 0.0f}, {0, 59, 59.0f}, {1, 0, 0.0f},
                             {9, 59, 59.0f}, {10, 0, 0.0f}, {360, 1, 1.0f}};
  for (const M_DMSTag& angle : angles) {
    char name[64];
    std::snprintf(name, sizeof name, "angle %d %d %g", angle.degrees, angle.minutes,
                  static_cast<double>(angle.seconds));
    lines.push_back(std::string(name) + ": " + FRomDMS2String(angle));  // UTF-8 already
  }
  for (int month = 1; month <= 12; ++month) Add("month " + std::to_string(month), GetMonth(month));
  const int dates[][3] = {{2024, 3, 5}, {1999, 12, 31}, {-44, 3, 15}, {0, 1, 1}, {987, 10, 10}};
  for (const auto& d : dates) {
    char name[64];
    std::snprintf(name, sizeof name, "long %d %d %d", d[0], d[1], d[2]);
    Add(name, GetDateString(d[0], d[1], d[2]));
  }
  for (const double jd : {2460374.5, 2451545.25, 2299160.9}) {
    std::ostringstream name;
    name.precision(10);
    name << "digits " << jd;
    Add(name.str(), getDate(jd));
  }
}

TEST_P(StatusTextsGoldenTest, EveryTextIsThatOfTheTable) {
  const auto cameras = ReadLines(kGolden + "/status_cameras.tsv");
  for (std::size_t i = 2; i < cameras.size(); ++i) {  // behind the banner and the names of the columns
    const CameraRow row(cameras[i]);
    ASSERT_TRUE(row.IsWhole()) << cameras[i];
    Camera camera(1);
    Prepare(camera, row);
    AddCamera(static_cast<int>(i) - 2, camera);
  }
  AddWords();
  auto golden = ReadLines(kGolden + "/status_texts_" + GetParam() + ".txt");
  golden.erase(golden.begin());
  ASSERT_EQ(lines.size(), golden.size());
  EXPECT_GE(lines.size(), 50u * 11);
  for (std::size_t i = 0; i < lines.size(); ++i) EXPECT_EQ(lines[i], golden[i]);
}

TEST_P(StatusTextsGoldenTest, NoTextShowsSixtySecondsOrMinutes) {
  for (const std::string& line : ReadLines(kGolden + "/status_texts_" + GetParam() + ".txt")) {
    EXPECT_EQ(line.find("60.00"), std::string::npos) << line;
    EXPECT_EQ(line.find("'60"), std::string::npos) << line;
    EXPECT_EQ(line.find("\u00B060'"), std::string::npos) << line;
  }
}

INSTANTIATE_TEST_SUITE_P(Language, StatusTextsGoldenTest, testing::Values("en", "de", "ru"),
                         [](const auto& each) { return std::string(each.param); });

}  // namespace
