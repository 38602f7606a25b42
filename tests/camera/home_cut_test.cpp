// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
// A stored home with each of its numbers spoiled in turn, and with each of its lines cut off.
#include <sstream>
#include <string>
#include <vector>

#include "camera/home_fixture.h"

namespace {

using namespace test_support;
using namespace CommonInterfaces;

constexpr char kMars[] = "1\n0 2 0 0.15 0.87 1 2 1886154356 4\n";
const std::vector<std::string> kEarth = {"7",
                                         "1 2 149597870.7 0.15 -0.87 4 3 1886154356 3 1",
                                         "Berlin",
                                         "0.5 -0.25 0.125 2",
                                         "3.5",
                                         "1 1836019566 301",
                                         "2460000 0.25 1",
                                         "Europe/Berlin"};

std::vector<std::string> WordsOf(const std::string& line) {
  std::istringstream stream(line);
  std::vector<std::string> words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

class HomeCutTest : public HomeTest {
 protected:
  // Mars stands before it and is kept, what is damaged is left out, and one line says so.
  void ExpectDamaged(const std::vector<std::string>& lines) {
    std::string text = kMars;
    for (const std::string& line : lines) text += line + "\n";
    WriteHomes(text);
    debug.lines.clear();
    const Camera camera(1);
    EXPECT_NE(camera.FindHome(kMarsId), nullptr) << text;
    EXPECT_EQ(camera.FindHome(kEarthId), nullptr) << text;
    ASSERT_EQ(debug.lines.size(), 1u) << text;
    EXPECT_NE(debug.lines[0].find("home 2 is damaged"), std::string::npos) << debug.lines[0];
  }
};

TEST_F(HomeCutTest, WholeItIsRead) {
  std::string text = kMars;
  for (const std::string& line : kEarth) text += line + "\n";
  WriteHomes(text);
  EXPECT_NE(Camera(1).FindHome(kEarthId), nullptr);
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(HomeCutTest, NoNumberMayBeAnythingElse) {
  int spoiled = 0;
  for (std::size_t i = 0; i < kEarth.size(); ++i) {
    if (kEarth[i] == "Berlin" || kEarth[i] == "Europe/Berlin") continue;
    const std::vector<std::string> words = WordsOf(kEarth[i]);
    for (std::size_t k = 0; k < words.size(); ++k, ++spoiled) {
      std::vector<std::string> lines = kEarth;
      lines[i].clear();
      for (std::size_t j = 0; j < words.size(); ++j) lines[i] += (j == k ? "x" : words[j]) + " ";
      ExpectDamaged(lines);
    }
  }
  EXPECT_EQ(spoiled, 22);
}

TEST_F(HomeCutTest, NoLineMayBeMissingAtTheEnd) {
  for (std::size_t count = 1; count < kEarth.size(); ++count)
    ExpectDamaged({kEarth.begin(), kEarth.begin() + static_cast<std::ptrdiff_t>(count)});
}

}  // namespace
