// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/flight_objects.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <memory>
#include <random>

#include "support/debug_capture.h"
#include "support/temp_dir.h"
#include "utils/bytes.h"
#include "utils/text.h"

namespace {

using CommonInterfaces::General3DFlightObjectsList;
using CommonInterfaces::Voyvane3DFlightObjectsList;
using Lines = std::vector<std::string>;

constexpr int kStar = FourCC("star"), kGalaxy = FourCC("gala"), kNebula = FourCC("nebu");
constexpr char kDistances[] = "data/media/find/object_distances_table.bin";
constexpr char kFlights[] = "data/media/find/3d_flight_to_objects.txt";
constexpr int kSmallest = std::numeric_limits<int>::min(), kLargest = std::numeric_limits<int>::max();

std::string Word(unsigned value) {
  unsigned char raw[4];
  StoreLE32(raw, value);
  return {reinterpret_cast<const char*>(raw), 4};
}
std::string Group(int kind, unsigned count, const std::vector<int>& numbers) {
  std::string bytes = Word(static_cast<unsigned>(kind)) + Word(count);
  for (const int number : numbers) bytes += Word(static_cast<unsigned>(number));
  return bytes;
}
std::string Group(int kind, const std::vector<int>& numbers) {
  return Group(kind, static_cast<unsigned>(numbers.size()), numbers);
}

class FlightObjects : public testing::Test {
 protected:
  test_support::TempRoots roots;
  test_support::DebugCapture debug;
};

class GeneralList : public FlightObjects {
 protected:
  // Which of the numbers the list has.
  std::vector<int> Has(const std::string& table, int kind, const std::vector<int>& numbers) {
    roots.dir.Write(kDistances, table);
    General3DFlightObjectsList list;
    std::vector<int> had;
    for (const int number : numbers) {
      if (list.objectInList(kind, number)) had.push_back(number);
    }
    return had;
  }
};

class FlightList : public FlightObjects {
 protected:
  // Whether the only entry of interest is read from that text.
  bool Has(const std::string& text, int kind, int number) {
    roots.dir.Write(kFlights, text);
    return Voyvane3DFlightObjectsList().objectInList(kind, number);
  }
};

TEST_F(GeneralList, NumbersOfTheKindsGroup) {
  const std::string table = Group(kGalaxy, {-5, 3, 9}) + Group(kNebula, {4});
  EXPECT_EQ(Has(table, kGalaxy, {-6, -5, 3, 4, 9, 10}), (std::vector<int>{-5, 3, 9}));
  EXPECT_EQ(Has(table, kNebula, {3, 4}), std::vector<int>{4});
  EXPECT_EQ(Has(table, FourCC("clst"), {3, 4}), std::vector<int>{});
  EXPECT_TRUE(debug.lines.empty());
}

// 'gala' is 0x67616C61.
TEST_F(GeneralList, WordsAreLittleEndian) {
  EXPECT_EQ(Has(std::string("alag\x01\0\0\0\x02\x01\0\0", 12), kGalaxy, {0x102}), std::vector<int>{0x102});
}

TEST_F(GeneralList, BodiesAndSpacecraftAreAlwaysInReachEvenWithoutAFile) {
  General3DFlightObjectsList list;
  for (const int kind : {FourCC("plnt"), FourCC("moon"), FourCC("astr"), FourCC("comt"), FourCC("scft")}) {
    for (const int number : {kSmallest, 0, 7}) EXPECT_TRUE(list.objectInList(kind, number)) << kind;
  }
}

TEST_F(GeneralList, StarsAreNotSpecial) {
  General3DFlightObjectsList without;
  EXPECT_FALSE(without.objectInList(kStar, 1));
  EXPECT_EQ(Has(Group(kStar, {1}), kStar, {1, 2}), std::vector<int>{1});
}

TEST_F(GeneralList, AGroupOfABodyIsNotNeeded) {
  EXPECT_EQ(Has(Group(FourCC("comt"), {1}), FourCC("comt"), {1, 2}), (std::vector<int>{1, 2}));
}

TEST_F(GeneralList, ASecondGroupOfAKindIsNeverLookedAt) {
  EXPECT_EQ(Has(Group(kStar, {1}) + Group(kGalaxy, {5}) + Group(kStar, {2}), kStar, {1, 2}),
            std::vector<int>{1});
  EXPECT_EQ(Has(Group(kStar, std::vector<int>{}) + Group(kStar, {2}), kStar, {2}), std::vector<int>{});
}

TEST_F(GeneralList, TheLargestAndSmallestNumbers) {
  for (int count = 2; count <= 40; ++count) {
    std::vector<int> numbers(static_cast<std::size_t>(count), 7);
    EXPECT_EQ(Has(Group(kStar, numbers), kStar, {kSmallest, 7, kLargest}), std::vector<int>{7}) << count;
    numbers.front() = kSmallest;
    numbers.back() = kLargest;
    EXPECT_EQ(Has(Group(kStar, numbers), kStar, {kSmallest, -1, kLargest}),
              (std::vector<int>{kSmallest, kLargest}));
  }
}

TEST_F(GeneralList, ManyNumbers) {
  std::vector<int> numbers, asked;
  for (int i = 0; i < 50000; ++i) numbers.push_back(i * 3);
  for (int i = 0; i < 150000; ++i) asked.push_back(i);
  EXPECT_EQ(Has(Group(kStar, numbers), kStar, asked), numbers);
}

// Deliberate: the table must be stored sorted. Of 9 1 5 3 7 a bisection looks at 5 first and goes on to the
// left for 1 and 3, where 1 and then 9 turn it away, and to the right for 7 and 9.
TEST_F(GeneralList, NumbersOutOfOrderAreNotSorted) {
  EXPECT_EQ(Has(Group(kStar, {9, 1, 5, 3, 7}), kStar, {1, 3, 5, 7, 9}), (std::vector<int>{5, 7}));
}

TEST_F(GeneralList, NumbersOutOfOrderAreThoseThatABisectionFinds) {
  std::mt19937 random(5);
  for (int round = 0; round < 100; ++round) {
    std::vector<int> numbers(random() % 60), asked, expected;
    for (int& number : numbers) number = static_cast<int>(random() % 80);
    for (int number = -1; number < 81; ++number) {
      asked.push_back(number);
      if (std::binary_search(numbers.begin(), numbers.end(), number)) expected.push_back(number);
    }
    EXPECT_EQ(Has(Group(kStar, numbers), kStar, asked), expected);
  }
}

TEST_F(GeneralList, ATruncatedLastGroupKeepsWhatIsThere) {
  const std::string whole = Group(kGalaxy, {1}) + Group(kStar, {10, 20, 30});
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    std::vector<int> galaxies, stars;
    if (length >= 12) galaxies.push_back(1);
    if (length >= 24) stars.push_back(10);
    if (length >= 28) stars.push_back(20);
    if (length >= 32) stars.push_back(30);
    EXPECT_EQ(Has(whole.substr(0, length), kGalaxy, {1}), galaxies) << length;
    EXPECT_EQ(Has(whole.substr(0, length), kStar, {10, 20, 30}), stars) << length;
  }
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(GeneralList, ACountThatLiesCostsNoMemory) {
  EXPECT_EQ(Has(Group(kStar, 0xFFFFFFFFu, {10, 20}), kStar, {10, 20, 30}), (std::vector<int>{10, 20}));
  EXPECT_EQ(Has(Group(kStar, 0x40000001u, {10, 20}), kStar, {10, 20, 30}), (std::vector<int>{10, 20}));
}

TEST_F(GeneralList, AMissingFileIsReportedWithThePathAsGiven) {
  General3DFlightObjectsList byDefault, other("media:find:other.bin"), none(nullptr);
  EXPECT_EQ(debug.lines,
            (Lines{"File with distance information (media:find:object_distances_table.bin) not found\n",
                   "File with distance information (media:find:other.bin) not found\n",
                   "File with distance information () not found\n"}));
  EXPECT_FALSE(other.objectInList(kGalaxy, 1));
}

TEST_F(GeneralList, AnEmptyFileIsAnEmptyList) {
  EXPECT_EQ(Has("", kStar, {0, 1}), std::vector<int>{});
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(GeneralList, IsDestroyedThroughTheInterface) {
  roots.dir.Write(kDistances, Group(kStar, {1}));
  const std::unique_ptr<CommonInterfaces::_3DFlightObjectsList> list =
      std::make_unique<General3DFlightObjectsList>();
  EXPECT_TRUE(list->objectInList(kStar, 1));
}

TEST_F(FlightList, KindsAreCodesOrNumbers) {
  EXPECT_TRUE(Has("gala\t31\n", kGalaxy, 31));
  EXPECT_TRUE(Has("1734437985\t31\n", kGalaxy, 31));
  EXPECT_FALSE(Has("gala\t31\n", kGalaxy, 32));
  EXPECT_FALSE(Has("gala\t31\n", kNebula, 31));
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(FlightList, ACodeThatBeginsWithADigitIsTakenForANumber) { EXPECT_TRUE(Has("3abc\t31\n", 3, 31)); }

TEST_F(FlightList, StarsAreAlwaysInReachEvenWithoutAFile) {
  Voyvane3DFlightObjectsList list;
  EXPECT_TRUE(list.objectInList(kStar, 12));
  EXPECT_TRUE(list.objectInList(kStar, -1));
}

TEST_F(FlightList, BodiesAreNotSpecial) {
  EXPECT_FALSE(Has("gala\t31\n", FourCC("plnt"), 3));
  EXPECT_TRUE(Has("plnt\t3\n", FourCC("plnt"), 3));
}

TEST_F(FlightList, BadLinesAreSkippedSilently) {
  const std::string text = "gala\nstars\t1\n\t2\ngala\tx\ngala\t\n\n gala\t3\ngala 4\ngala\t5\n";
  EXPECT_TRUE(Has(text, kGalaxy, 5));
  for (const int number : {0, 1, 2, 3, 4}) EXPECT_FALSE(Has(text, kGalaxy, number)) << number;
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(FlightList, EntriesInAnyOrderAreFound) {
  std::string text;
  for (int i = 0; i < 1009; ++i) {
    text += (i % 2 ? "nebu\t" : "gala\t") + std::to_string(i * 401 % 1009 - 500) + "\tmore\n";
  }
  roots.dir.Write(kFlights, text);
  Voyvane3DFlightObjectsList list;
  for (int i = 0; i < 1009; ++i) {
    const int number = i * 401 % 1009 - 500;
    ASSERT_TRUE(list.objectInList(i % 2 ? kNebula : kGalaxy, number));
    ASSERT_FALSE(list.objectInList(i % 2 ? kGalaxy : kNebula, number));
  }
}

TEST_F(FlightList, NegativeKindsAndNumbers) {
  const std::string text = "-7\t-2147483648\n2147483647\t2147483647\n";
  EXPECT_TRUE(Has(text, -7, kSmallest));
  EXPECT_TRUE(Has(text, kLargest, kLargest));
  EXPECT_FALSE(Has(text, -7, 0));
}

TEST_F(FlightList, MarkLineEndsAndLongLines) {
  EXPECT_TRUE(Has("\xEF\xBB\xBFgala\t31\r\n", kGalaxy, 31));
  EXPECT_TRUE(Has("nebu\t1\r\ngala\t31", kGalaxy, 31));
  EXPECT_TRUE(Has("gala\t31\t" + std::string(300, 'x') + "\n", kGalaxy, 31));
  EXPECT_FALSE(Has("nebu\t1\t" + std::string(300, 'x') + "gala\t31\n", kGalaxy, 31));
}

TEST_F(FlightList, AMissingFileIsReported) {
  Voyvane3DFlightObjectsList list;
  EXPECT_EQ(debug.lines,
            Lines{"File with 3d flight information (media:find:3d_flight_to_objects.txt) not found\n"});
  EXPECT_FALSE(list.objectInList(kGalaxy, 31));
}

TEST_F(FlightList, AnEmptyFileIsAnEmptyList) {
  EXPECT_FALSE(Has("", kGalaxy, 31));
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(FlightObjects, FolderInPlaceOfTheDistancesIsTold) {
  std::filesystem::create_directories(roots.dir.Path(kDistances));
  General3DFlightObjectsList list;
  EXPECT_FALSE(list.objectInList(kGalaxy, 1));
  ASSERT_EQ(debug.lines.size(), 1u);
  EXPECT_NE(debug.lines[0].find("File with distance information ("), std::string::npos);
}

TEST_F(FlightObjects, FolderInPlaceOfTheFlightsIsTold) {
  std::filesystem::create_directories(roots.dir.Path(kFlights));
  Voyvane3DFlightObjectsList list;
  EXPECT_FALSE(list.objectInList(kGalaxy, 1));
  ASSERT_EQ(debug.lines.size(), 1u);
  EXPECT_NE(debug.lines[0].find("File with 3d flight information ("), std::string::npos);
}

}  // namespace
