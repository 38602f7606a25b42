// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/options/command_line.h"

#include <gtest/gtest.h>

#include "skyview/options/parse_groups.h"
#include "skyview/options/root_group.h"
#include "skyview/options/view_group.h"

using namespace skyview;
using host_test::Contains;

namespace {

// "test NAME" with the options of the roots.
class OneName : public testing::Test {
 protected:
  std::optional<Stop> Parse(const std::vector<std::string>& arguments) {
    root = {};
    name.clear();
    CommandLine line("test", "Tests a name.");
    line.TakeName("NAME", "an object", name);
    line.Take(kRootGroup, root);
    return host_test::Parse(line, arguments);
  }
  void ExpectRefused(const std::vector<std::string>& arguments, const std::string& part) {
    const auto stop = Parse(arguments);
    ASSERT_TRUE(stop) << part;
    EXPECT_EQ(stop->code, kBadOption) << stop->message;
    EXPECT_TRUE(Contains(stop->message, part)) << stop->message;
    EXPECT_FALSE(Contains(stop->message, "\n")) << stop->message;
  }

  RootOptions root;
  std::string name;
};

// "test NAME..."
std::optional<Stop> ParseNames(const std::vector<std::string>& arguments, std::vector<std::string>& names,
                               RootOptions& root) {
  CommandLine line("test", "Tests names.");
  line.TakeNames("NAME...", "objects", names);
  line.Take(kRootGroup, root);
  return host_test::Parse(line, arguments);
}

}  // namespace

TEST_F(OneName, OptionsStandBeforeItOrBehind) {
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{"--data", "d", "Sirius"}, {"Sirius", "--data", "d"}}) {
    ASSERT_FALSE(Parse(arguments));
    EXPECT_EQ(name, "Sirius");
    EXPECT_EQ(root.data.value_or(""), "d");
  }
}

TEST_F(OneName, MayHoldBlanksAndDashes) {
  ASSERT_FALSE(Parse({"alpha CMa"}));
  EXPECT_EQ(name, "alpha CMa");
  ASSERT_FALSE(Parse({"--data", "d", "--", "-alpha CMa"}));
  EXPECT_EQ(name, "-alpha CMa");
  EXPECT_EQ(root.data.value_or(""), "d");
  ASSERT_FALSE(Parse({"--", "--data"}));
  EXPECT_EQ(name, "--data");
  EXPECT_FALSE(root.data);
}

TEST_F(OneName, MustBeThereOnceAndNotEmpty) {
  ExpectRefused({}, "NAME is required");
  ExpectRefused({""}, "test '': wants NAME (an object)");
  ExpectRefused({"alpha", "CMa"}, "not expected: CMa");
  ExpectRefused({"-alpha"}, "-alpha");
}

TEST_F(OneName, FirstUnexpectedArgumentIsNamed) {
  ExpectRefused({"Sirius", "--zooom", "2", "--out", "a.svg"}, "not expected: --zooom (skyview test --help");
}

TEST_F(OneName, OptionTwiceOrWithoutItsValueIsNamed) {
  ExpectRefused({"Sirius", "--data", "a", "--data", "b"}, "--data");
  ExpectRefused({"Sirius", "--data"}, "--data");
}

TEST_F(OneName, HelpNamesAllAndComesBeforeWhatIsMissing) {
  const auto stop = Parse({"--help"});
  ASSERT_TRUE(stop);
  EXPECT_EQ(stop->code, kDone);
  for (const char* part : {"skyview test", "Tests a name.", "NAME", "an object", "Data and language",
                           "--data FOLDER", "--work FOLDER", "--language LANG"}) {
    EXPECT_TRUE(Contains(stop->message, part)) << part << stop->message;
  }
}

TEST(ManyNames, KeepTheirOrderAmongOptions) {
  std::vector<std::string> names;
  RootOptions root;
  ASSERT_FALSE(ParseNames({"M 42", "--work", "w", "Vega", "--", "-x"}, names, root));
  EXPECT_EQ(names, (std::vector<std::string>{"M 42", "Vega", "-x"}));
  EXPECT_EQ(root.work.value_or(""), "w");
}

TEST(ManyNames, AreOneAtLeastAndNoneEmpty) {
  std::vector<std::string> names;
  RootOptions root;
  EXPECT_TRUE(ParseNames({"--work", "w"}, names, root));
  EXPECT_TRUE(ParseNames({"Vega", ""}, names, root));
}

TEST(CommandLineChecks, RunOnceEverythingIsRead) {
  ViewOptions view;
  CommandLine line("test", "Tests a check.");
  line.Take(kViewGroup, view);
  line.Check([&view] {
    if (view.zoom) throw Stop{kBadOption, "no zoom"};
  });
  const auto stop = host_test::Parse(line, {"--zoom", "2"});
  ASSERT_TRUE(stop);
  EXPECT_EQ(stop->message, "no zoom");
}
