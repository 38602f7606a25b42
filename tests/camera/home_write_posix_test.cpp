// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Homes on a disk that is full: whichever line of a record is the one that does not fit any more, the record
// is not written.
#include <cstring>

#include "camera/home_fixture.h"
#include "camera/home_record.h"
#include "support/file_size_limit_posix.h"

namespace {

using namespace test_support;
using namespace CommonInterfaces;

class HomeWriteTest : public HomeTest {
 protected:
  static HomeParameters MakeHome() {
    HomeParameters home;
    home.flags = kHomeLocation | kHomeView | kHomeTime;
    home.observer = kMarsId;
    std::strcpy(home.locationName, "Gale");
    std::strcpy(home.timeZoneName, "Europe/Berlin");
    home.zoom = 3.5;
    home.day = 2460000;
    home.fraction = 0.25;
    return home;
  }
};

// The system writes whole pieces of a file. Each shift makes another line of the record end one.
TEST_F(HomeWriteTest, LineThatDoesNotFitEndsTheRecord) {
  constexpr int kLongestRecord = 250, kMostRecords = 1000;
  const HomeParameters home = MakeHome();
  WriteHomes("old\n");
  for (int shift = 1; shift < kLongestRecord; ++shift) {
    MTextFile file(true, '!', '}', 4096);
    ASSERT_TRUE(file.Open(roots.dir.Path("work/home_params.ini").c_str(), true));
    debug.lines.clear();
    {
      const FileSizeLimit full(0);
      ASSERT_TRUE(file.Write("!%s\n", std::string(static_cast<std::size_t>(shift), 'x').c_str()));
      int written = 0;
      while (written < kMostRecords && WriteHome(file, home)) ++written;
      ASSERT_LT(written, kMostRecords) << "never refused";
      EXPECT_FALSE(file.Close());
    }
    EXPECT_EQ(debug.lines.size(), 1u);
    ASSERT_EQ(ReadHomes(), "old\n") << shift;
  }
}

}  // namespace
