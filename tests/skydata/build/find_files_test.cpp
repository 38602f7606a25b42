// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "skydata/build/catalog_files.h"
#include "tests/skydata/tiny_source.h"
#include "utils/bytes.h"
#include "utils/text.h"

namespace skydata {
namespace {

using namespace std::string_literals;

constexpr char kArticles[] = "find/articles.tsv", kArticleColumns[] = "Kind\tObject\tArticle\tTitle\n";
constexpr char kDistances[] = "find/distances.tsv",
               kDistanceColumns[] = "Kind\tObject\tName\tDistance_pc\tReference\n";
constexpr char kFlights[] = "find/flight_objects.tsv", kFlightColumns[] = "Kind\tObject\tName\n";

class FindSource : public testing::Test {
 protected:
  std::string Articles(const std::string& rows) {
    m_Source.Write(kArticles, kArticleColumns + rows);
    return m_Source.Make(MakeArticles);
  }
  std::string ArticleMessage(const std::string& rows) {
    return m_Source.Message(MakeArticles, kArticles, kArticleColumns + rows);
  }
  std::string DistanceMessage(const std::string& rows) {
    return m_Source.Message(MakeDistances, kDistances, kDistanceColumns + rows);
  }
  std::string FlightMessage(const std::string& rows) {
    return m_Source.Message(MakeFlightObjects, kFlights, kFlightColumns + rows);
  }
  skydata_test::TinySource m_Source;
};

// "plnt" 0x706C6E74 stands as "tnlp"; a galaxy's number loses its sub-type, 62, for 0x3C.
TEST_F(FindSource, ArticlesAreLittleEndianSortedAndGalaxiesRemapped) {
  EXPECT_EQ(Articles("plnt\t3\t1003\tEarth\nmoon\t301\t258\tMoon\ngala\t31\t2031\tM31\nclst\t13\t7\tM13\n"),
            "tslc\x0D\x00\x00\x29\x07\x00\x00\x00"s
            "alag\x1F\x00\x00\x3C\xEF\x07\x00\x00"s
            "noom\x2D\x01\x00\x00\x02\x01\x00\x00"s
            "tnlp\x03\x00\x00\x00\xEB\x03\x00\x00"s);
}
TEST_F(FindSource, AConstellationIsTheNameIdOfItsAbbreviation) {
  const std::string bytes = Articles("cnst\tOri\t5\tOrion\n");
  ASSERT_EQ(bytes.size(), 12u);
  EXPECT_EQ(static_cast<int>(LoadLE32(bytes.data() + 4)), GetUniqueID("Ori"));
}
TEST_F(FindSource, NoRowsMakeAnEmptyTable) { EXPECT_EQ(Articles(""), ""); }
TEST_F(FindSource, AnObjectOfATableMustBeInItsCatalog) {
  EXPECT_EQ(ArticleMessage("star\t4\t1\tT\n"), "find/articles.tsv:2: Object: no star '4' is known");
  EXPECT_EQ(ArticleMessage("moon\t302\t1\tT\n"), "find/articles.tsv:2: Object: no moon '302' is known");
  EXPECT_EQ(ArticleMessage("cnst\tXyz\t1\tT\n"), "find/articles.tsv:2: Object: no cnst 'Xyz' is known");
  EXPECT_EQ(ArticleMessage("nebu\t31\t1\tT\n"), "find/articles.tsv:2: Kind: 'nebu' is no kind with numbers");
  EXPECT_EQ(ArticleMessage("clst\t31\t1\tT\n"), "find/articles.tsv:2: Object: no clst '31' is known");
  EXPECT_EQ(ArticleMessage("comt\t1\t1\tT\nastr\t1\t2\tT\nstar\t3\t3\tT\n"), "");
}
TEST_F(FindSource, AnObjectHasOneArticle) {
  EXPECT_EQ(ArticleMessage("star\t3\t1\tT\nstar\t3\t2\tT\n"),
            "find/articles.tsv:3: Object: star 3 stands above already");
}
TEST_F(FindSource, AnArticleHasAnIdentifierAndATitle) {
  EXPECT_EQ(ArticleMessage("star\t3\t-1\tT\n"), "find/articles.tsv:2: Article: -1 is out of range");
  EXPECT_EQ(ArticleMessage("star\t3\tx\tT\n"), "find/articles.tsv:2: Article: 'x' is no number");
  EXPECT_EQ(ArticleMessage("star\t3\t1\n"), "find/articles.tsv:2: Title: must not be empty");
}

// Stars 2 and 7 have parallaxes, 1 a negative one, 3 none.
TEST_F(FindSource, DistancesAreGroupsOfSortedNumbersWithTheStarsOfTheirOwnCatalog) {
  m_Source.Write(kDistances, kDistanceColumns + "gala\t31\tM31\t790000\tR\nclst\t13\tM13\t7700\tR\n"s);
  EXPECT_EQ(m_Source.Make(MakeDistances),
            "tslc\x01\x00\x00\x00\x0D\x00\x00\x29"s
            "alag\x01\x00\x00\x00\x1F\x00\x00\x3E"s
            "rats\x02\x00\x00\x00\x02\x00\x00\x00\x07\x00\x00\x00"s);
}
TEST_F(FindSource, ADistanceHasAValueAndAReference) {
  EXPECT_EQ(DistanceMessage("clst\t13\tM13\t\tR\n"), "find/distances.tsv:2: Distance_pc: must not be empty");
  EXPECT_EQ(DistanceMessage("clst\t13\tM13\t-5\tR\n"),
            "find/distances.tsv:2: Distance_pc: -5 is out of range");
  EXPECT_EQ(DistanceMessage("clst\t13\tM13\t7700\n"), "find/distances.tsv:2: Reference: must not be empty");
}
TEST_F(FindSource, ADistanceStandsOnce) {
  EXPECT_EQ(DistanceMessage("clst\t13\tM13\t1\tR\nclst\t13\tM13\t2\tR\n"),
            "find/distances.tsv:3: Object: clst 13 stands above already");
  EXPECT_EQ(DistanceMessage("star\t7\tS\t40\tR\n"),
            "find/distances.tsv:2: Object: star 7 stands above already");
  EXPECT_EQ(DistanceMessage("star\t3\tS\t40\tR\n"), "");
}

TEST_F(FindSource, FlightsAreLinesOfKindAndNumber) {
  m_Source.Write(kFlights, kFlightColumns + "gala\t31\tM31\nplnt\t3\tEarth\nclst\t13\tM13\n"s);
  EXPECT_EQ(m_Source.Make(MakeFlightObjects), "gala\t1040187423\nplnt\t3\nclst\t687865869\n");
}
TEST_F(FindSource, AFlightIsListedOnceAndStarsNotAtAll) {
  EXPECT_EQ(FlightMessage("plnt\t3\tA\nplnt\t3\tB\n"),
            "find/flight_objects.tsv:3: Object: plnt 3 stands above already");
  EXPECT_EQ(FlightMessage("star\t3\tA\n"),
            "find/flight_objects.tsv:2: Kind: stars can always be flown to and are never looked up");
  EXPECT_EQ(FlightMessage("plnt\t9\tA\n"), "find/flight_objects.tsv:2: Object: no plnt '9' is known");
}
TEST_F(FindSource, AWrongCatalogIsNamedItself) {
  m_Source.Write("stars/stars.tsv", "HR\n");
  EXPECT_EQ(FlightMessage("plnt\t3\tA\n").substr(0, 36), "stars/stars.tsv:1: wants the columns");
}

}  // namespace
}  // namespace skydata
