// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Another program that saves its block into the same settings file at any moment.
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

}  // namespace
}  // namespace test_support
