// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/files/printable_stream.h"

#include <sstream>

#include <gtest/gtest.h>

#include "tests/support/full_stream.h"

namespace skydata {
namespace {

TEST(PrintableStream, LinesGoOnAsSoonAsTheyAreWhole) {
  std::ostringstream target;
  PrintableStream stream(target);
  stream << "one " << 1;
  EXPECT_EQ(target.str(), "");
  stream << "\ntwo\nthr" << std::flush;
  EXPECT_EQ(target.str(), "one 1\ntwo\n");
  stream << "ee" << '\n';
  EXPECT_EQ(target.str(), "one 1\ntwo\nthree\n");
}

TEST(PrintableStream, LastLineWithoutAnEndGoesWithTheStream) {
  std::ostringstream target;
  PrintableStream(target) << "cut";
  EXPECT_EQ(target.str(), "cut");
}

// Two bytes of one character, written one at a time.
TEST(PrintableStream, CharactersAreWholeWhereverTheirWritingWasCut) {
  std::ostringstream target;
  PrintableStream stream(target);
  stream << '\xC3' << '\xA9' << '\x1B' << "\xC3\n";
  EXPECT_EQ(target.str(), "\xC3\xA9\\x1B\\xC3\n");
}

TEST(PrintableStream, TargetKnowsThatItDidNotTakeAll) {
  test_support::FullStream target(4);
  PrintableStream stream(target);
  stream << "abc\n";
  EXPECT_TRUE(target.good());
  stream << "def\n";
  EXPECT_TRUE(target.bad());
  EXPECT_TRUE(stream.good());
}

}  // namespace
}  // namespace skydata
