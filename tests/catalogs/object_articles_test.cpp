// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/object_articles.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <limits>

#include "support/debug_capture.h"
#include "support/temp_dir.h"
#include "utils/bytes.h"
#include "utils/text.h"

namespace {

using CommonInterfaces::ArticlesInformation;
using Lines = std::vector<std::string>;

constexpr int kStar = FourCC("star"), kGalaxy = FourCC("gala"), kMesh = FourCC("mesh");
constexpr char kFile[] = "data/media/find/object_articles_table.bin";
constexpr int kSmallest = std::numeric_limits<int>::min(), kLargest = std::numeric_limits<int>::max();

std::string Table(std::initializer_list<int> words) {
  std::string bytes;
  for (const int word : words) {
    unsigned char raw[4];
    StoreLE32(raw, static_cast<unsigned>(word));
    bytes.append(reinterpret_cast<const char*>(raw), 4);
  }
  return bytes;
}

class Articles : public testing::Test {
 protected:
  void Write(const std::string& content) { roots.dir.Write(kFile, content); }

  test_support::TempRoots roots;
  test_support::DebugCapture debug;
};

TEST_F(Articles, ArticleOfKindAndNumber) {
  Write(Table({kStar, 5, 100, kStar, 3, 101, FourCC("nebu"), 5, 102}));
  const ArticlesInformation articles;
  EXPECT_EQ(articles.GetArticleId(kStar, 5), 100);
  EXPECT_EQ(articles.GetArticleId(kStar, 3), 101);
  EXPECT_EQ(articles.GetArticleId(FourCC("nebu"), 5), 102);
  EXPECT_EQ(articles.GetArticleId(kStar, 4), -1);
  EXPECT_EQ(articles.GetArticleId(FourCC("nebu"), 3), -1);
  EXPECT_EQ(articles.GetArticleId(FourCC("clst"), 5), -1);
  EXPECT_TRUE(debug.lines.empty());
}

// The bytes of one record, written out: 'star' is 0x73746172.
TEST_F(Articles, WordsAreLittleEndian) {
  Write(std::string("rats\x02\x01\0\0\x04\x03\x02\x01", 12));
  EXPECT_EQ(ArticlesInformation().GetArticleId(kStar, 0x102), 0x01020304);
}

TEST_F(Articles, GalaxiesAreFiledUnderARemappedNumber) {
  Write(Table({kGalaxy, 0x3C345678, 7, kGalaxy, 0x12345678, 8}));
  const ArticlesInformation articles;
  EXPECT_EQ(articles.GetArticleId(kGalaxy, 0x12345678), 7);
  EXPECT_EQ(articles.GetArticleId(kGalaxy, 0x345678), 7);
  EXPECT_EQ(articles.GetArticleId(kGalaxy, static_cast<int>(0xFF345678u)), 7);
  EXPECT_EQ(articles.GetArticleId(kGalaxy, 0x345679), -1);
}

TEST_F(Articles, OtherKindsKeepTheirNumber) {
  Write(Table({kStar, 0x3C345678, 7}));
  const ArticlesInformation articles;
  EXPECT_EQ(articles.GetArticleId(kStar, 0x12345678), -1);
  EXPECT_EQ(articles.GetArticleId(kStar, 0x3C345678), 7);
}

TEST_F(Articles, AMeshHasNoArticle) {
  Write(Table({kMesh, 1, 7}));
  EXPECT_EQ(ArticlesInformation().GetArticleId(kMesh, 1), -1);
}

TEST_F(Articles, OrderIsThatOfSignedNumbers) {
  Write(Table({1, 1, 10, -1, 5, 11, 1, -1, 12, kLargest, kLargest, 13, kSmallest, kSmallest, 14, 0, 0, 15}));
  const ArticlesInformation articles;
  EXPECT_EQ(articles.GetArticleId(1, 1), 10);
  EXPECT_EQ(articles.GetArticleId(-1, 5), 11);
  EXPECT_EQ(articles.GetArticleId(1, -1), 12);
  EXPECT_EQ(articles.GetArticleId(kLargest, kLargest), 13);
  EXPECT_EQ(articles.GetArticleId(kSmallest, kSmallest), 14);
  EXPECT_EQ(articles.GetArticleId(0, 0), 15);
  EXPECT_EQ(articles.GetArticleId(-1, -1), -1);
}

TEST_F(Articles, OfTwoRecordsTheFirstInTheFileCounts) {
  std::string table;
  for (int article = 1; article <= 40; ++article)
    table += Table({kStar, 5, article, kStar, 4, 1000 - article});
  Write(table);
  const ArticlesInformation articles;
  EXPECT_EQ(articles.GetArticleId(kStar, 5), 1);
  EXPECT_EQ(articles.GetArticleId(kStar, 4), 999);
}

TEST_F(Articles, ManyRecordsInAnyOrder) {
  std::string table;
  for (int i = 0; i < 10007; ++i) {
    const int number = i * 4099 % 10007;  // each number below 10007 once
    table += Table({kStar, number * 2, number + 1});
  }
  Write(table);
  const ArticlesInformation articles;
  for (int number = 0; number < 10007; ++number) {
    ASSERT_EQ(articles.GetArticleId(kStar, number * 2), number + 1);
    ASSERT_EQ(articles.GetArticleId(kStar, number * 2 + 1), -1);
  }
}

TEST_F(Articles, NegativeIdentifiersAreHandedOut) {
  Write(Table({kStar, 5, -1, kStar, 6, kSmallest}));
  const ArticlesInformation articles;
  EXPECT_EQ(articles.GetArticleId(kStar, 5), -1);
  EXPECT_EQ(articles.GetArticleId(kStar, 6), kSmallest);
}

TEST_F(Articles, AFileOf13BytesIsRejectedAsAWhole) {
  Write(Table({kStar, 5, 100}) + "x");
  const ArticlesInformation articles;
  EXPECT_EQ(articles.GetArticleId(kStar, 5), -1);
  EXPECT_EQ(debug.lines, Lines{"Bad file size of file media:find:object_articles_table.bin \n"});
}

TEST_F(Articles, EveryLengthThatIsNoMultipleOf12IsRejected) {
  const std::string whole = Table({kStar, 5, 100, kStar, 6, 101, kStar, 7, 102});
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    debug.lines.clear();
    Write(whole.substr(0, length));
    const ArticlesInformation articles;
    EXPECT_EQ(articles.GetArticleId(kStar, 5), length >= 12 && length % 12 == 0 ? 100 : -1) << length;
    EXPECT_EQ(debug.lines.empty(), length % 12 == 0) << length;
  }
}

TEST_F(Articles, AnEmptyFileIsAnEmptyTable) {
  Write("");
  EXPECT_EQ(ArticlesInformation().GetArticleId(kStar, 5), -1);
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(Articles, AMissingFileIsReportedWithThePathAsGiven) {
  const ArticlesInformation articles("media:find:other.bin");
  EXPECT_EQ(articles.GetArticleId(kStar, 5), -1);
  EXPECT_EQ(debug.lines, Lines{"File media:find:other.bin not found\n"});
}

TEST_F(Articles, AFolderIsNotFound) {
  roots.dir.Write("data/media/find/folder/x", "");
  const ArticlesInformation articles("media:find:folder");
  EXPECT_EQ(debug.lines, Lines{"File media:find:folder not found\n"});
}

TEST_F(Articles, ANullPathIsNotFound) {
  EXPECT_EQ(ArticlesInformation(nullptr).GetArticleId(kStar, 5), -1);
  EXPECT_EQ(debug.lines, Lines{"File  not found\n"});
}

}  // namespace
