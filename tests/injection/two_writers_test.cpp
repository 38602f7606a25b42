// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Another program that saves its block into the same settings file at any moment.
#include <cerrno>

#include "injection/every_call.h"
#include "settings/settings_bytes.h"

namespace test_support {
namespace {

TEST(TwoWriters, OfDifferentBlocksKeepBothWhereverTheyMeet) {
  SettingsData ours(kId, kOwner, "filters.data"), theirs(2, kOwner, "filters.data");
  Create(ours, Int(kPlnt, 1, 10));
  Create(theirs, Int(kStar, 1, 20));
  const std::string header = Header(0), kept = Block(kOwner, 3, {}, {});
  const std::string first = Block(kOwner, kId, {Section(kPlnt, 0, 0, 0)}, {Int(kPlnt, 1, 10)});
  const std::string second = Block(kOwner, 2, {Section(kStar, 0, 0, 0)}, {Int(kStar, 1, 20)});
  for (const bool isNew : {false, true}) {
    const std::string old = isNew ? header : header + kept;
    for (int i = 0;; ++i) {
      const TempRoots roots;
      if (!isNew) roots.dir.Write("work/named.data", old);
      FaultInjection meeting(i, [&] { EXPECT_TRUE(theirs.Save("named.data")); });
      EXPECT_TRUE(ours.Save("named.data"));
      meeting.Stop();
      if (meeting.GetCall().empty()) {
        EXPECT_GT(i, 10);
        break;
      }
      const std::string both = roots.dir.Read("work/named.data");
      EXPECT_TRUE(both == old + first + second || both == old + second + first) << meeting.GetCall() << i;
    }
  }
}

// As nobody but a fault does: our own block is made anew a thousand times, and given up.
TEST(TwoWriters, OneThatIsAlwaysFasterWinsAndTheOtherOneTellsIt) {
  const TempRoots roots;
  const std::string path = roots.dir.Write("work/named.data", Header(0));
  SettingsData ours(kId, kOwner, "filters.data");
  Create(ours, Int(kPlnt, 1, 10));
  DebugCapture debug;
  int changes = 0;
  const auto meanwhile = [&](std::string_view call) {
    if (call == "flock" && ++changes > 0) std::ofstream(path, std::ios::binary | std::ios::app) << 'x';
    return call == "fsync" ? EINVAL : 0;  // which would take long, and is no failure
  };
  FaultInjection fault(meanwhile);
  EXPECT_FALSE(ours.Save("named.data"));
  fault.Stop();
  EXPECT_EQ(changes, 1000);
  EXPECT_EQ(roots.dir.Read("work/named.data"), Header(0) + std::string(1000, 'x'));
  EXPECT_EQ(debug.lines, std::vector<std::string>{"Settings cannot be saved in file named.data\n"});
}

}  // namespace
}  // namespace test_support
