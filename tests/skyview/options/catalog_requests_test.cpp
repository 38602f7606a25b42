// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/options/catalog_requests.h"

#include <gtest/gtest.h>

#include "skyview/options/options.h"

using namespace scene;
using namespace skyview;

namespace {

std::string MessageOf(const std::vector<std::string>& arguments) { return ParseOptions(arguments).message; }

bool Contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

}  // namespace

TEST(FavouriteActions, AreReadWithTheirNames) {
  EXPECT_EQ(ParseFavouriteAction("show")->verb, FavouriteVerb::kShow);
  const auto add = ParseFavouriteAction("add=α Ori");
  ASSERT_TRUE(add);
  EXPECT_EQ(add->verb, FavouriteVerb::kAdd);
  EXPECT_EQ(add->name, "α Ori");
  const auto remove = ParseFavouriteAction("remove=a=b");
  ASSERT_TRUE(remove);
  EXPECT_EQ(remove->verb, FavouriteVerb::kRemove);
  EXPECT_EQ(remove->name, "a=b");
}

TEST(FavouriteActions, OtherTextsAreRefused) {
  for (const char* bad : {"", "add", "add=", "remove=", "Show", "show=", "show=x", "=x", "change=x"}) {
    EXPECT_FALSE(ParseFavouriteAction(bad)) << bad;
  }
}

TEST(ImageGroups, AreReadInAnyOrderAndWrittenInOne) {
  EXPECT_EQ(ParseImageGroups("deepsky"), unsigned{kDeepskyImages});
  EXPECT_EQ(ParseImageGroups("milkyway,constellations"), unsigned{kMilkyWayImages | kConstellationImages});
  for (unsigned groups = 1; groups < 8; ++groups) {
    EXPECT_EQ(ParseImageGroups(FormatImageGroups(groups)), groups);
  }
  EXPECT_EQ(FormatImageGroups(0), "");
}

TEST(ImageGroups, OtherTextsAreRefused) {
  for (const char* bad :
       {"", ",", "deepsky,", ",deepsky", "deepsky,deepsky", "Deepsky", "deepsky milkyway"}) {
    EXPECT_FALSE(ParseImageGroups(bad)) << bad;
  }
}

TEST(CatalogOptions, AreRead) {
  const auto parsed =
      ParseOptions({"--work", "w", "--favourites", "add=Sirius", "--favourites", "show", "--frames-of",
                    "deepsky", "--frames-of", "constellations", "--showers", "--body", "Mars"});
  ASSERT_EQ(parsed.outcome, ParseOutcome::kRun) << parsed.message;
  ASSERT_EQ(parsed.options.favouriteActions.size(), 2u);
  EXPECT_EQ(parsed.options.favouriteActions[0].name, "Sirius");
  EXPECT_TRUE(WantsFavouritesShown(parsed.options.favouriteActions));
  EXPECT_EQ(parsed.options.framesOf, unsigned{kDeepskyImages | kConstellationImages});
  EXPECT_TRUE(parsed.options.showers);
  EXPECT_EQ(parsed.options.body.value_or(""), "Mars");
  EXPECT_TRUE(parsed.options.favourites.empty()) << "the list is no filter";
}

TEST(CatalogOptions, NothingIsShownUnlessAskedFor) {
  const auto parsed = ParseOptions({});
  EXPECT_TRUE(parsed.options.favouriteActions.empty());
  EXPECT_EQ(parsed.options.framesOf, 0u);
  EXPECT_FALSE(parsed.options.showers || parsed.options.body);
}

TEST(CatalogOptions, BadValueNamesOptionValueAndForm) {
  const struct {
    const char *option, *value, *form;
  } cases[] = {{"--favourites", "Sirius", "show|add=NAME|remove=NAME"},
               {"--frames-of", "stars", "constellations|deepsky|milkyway"},
               {"--body", "", "NAME"}};
  for (const auto& c : cases) {
    const std::string message = MessageOf({"--work", "w", c.option, c.value});
    EXPECT_TRUE(Contains(message, std::string(c.option) + " '" + c.value + "'")) << message;
    EXPECT_TRUE(Contains(message, c.form)) << message;
    EXPECT_FALSE(Contains(message, "\n"));
  }
}

TEST(CatalogOptions, ListOfFavouritesWantsAWorkArea) {
  for (const char* action : {"show", "add=Sirius", "remove=Sirius"}) {
    EXPECT_TRUE(Contains(MessageOf({"--favourites", action}), "--work FOLDER")) << action;
  }
}

TEST(CatalogOptions, SequenceWantsADrawingRun) {
  const std::vector<std::string> play = {"--play", "time=1h", "--frames", "2",
                                         "--out",  "a%d.png", "--work",   "w"};
  for (const auto& [option, value] : {std::pair("--body", "Mars"), std::pair("--favourites", "show")}) {
    auto arguments = play;
    arguments.insert(arguments.end(), {option, value});
    EXPECT_TRUE(Contains(MessageOf(arguments), std::string("--play: draws, which ") + option));
  }
}

TEST(CatalogOptions, HelpListsThem) {
  const std::string help = MessageOf({"--help"});
  for (const char* option : {"--favourites", "--frames-of", "--showers", "--body"}) {
    EXPECT_TRUE(Contains(help, option)) << option;
  }
}
