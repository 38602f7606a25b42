// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Random files, held against the page of the format taken word by word: every text and every line printed.
#include <map>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/debug_capture.h"
#include "support/string_table_file.h"

namespace CommonInterfaces {
namespace {

struct Model {
  std::map<unsigned, std::string> texts;
  std::vector<std::string> printed;

  explicit Model(std::string content) {
    if (content.compare(0, 3, "\xEF\xBB\xBF") == 0) content.erase(0, 3);
    for (std::size_t at = 0; at < content.size();) {
      const std::size_t feed = content.find('\n', at);
      std::string line = content.substr(at, feed - at);
      at = feed == std::string::npos ? content.size() : feed + 1;
      if (feed != std::string::npos && !line.empty() && line.back() == '\r') line.pop_back();
      line.resize(std::min<std::size_t>(line.size(), 4095));
      Add(line.substr(0, line.find('\0')));
    }
  }

 private:
  void Add(const std::string& line) {
    const std::size_t field = line.find_first_not_of('\t');
    const std::size_t fieldEnd = line.find('\t', field);
    const std::size_t text = line.find_first_not_of('\t', fieldEnd);
    if (field == std::string::npos || text == std::string::npos) return;
    const auto identifier = Identify(line.substr(field, fieldEnd - field));
    if (identifier) Keep(*identifier, Resolve(line.substr(text, line.find('\t', text) - text)));
  }

  static std::optional<unsigned> Identify(const std::string& field) {
    std::size_t at = field.find_first_not_of(" \t\n\v\f\r");
    if (at == std::string::npos) at = field.size();
    const bool negative = field[at] == '-';
    if (negative || field[at] == '+') ++at;
    const std::size_t end = std::min(field.find_first_not_of("0123456789", at), field.size());
    if (at < end) {
      unsigned number = 0;
      for (; at < end; ++at) number = 10 * number + static_cast<unsigned>(field[at] - '0');
      return negative ? 0u - number : number;
    }
    if (field.size() < 4) return std::nullopt;
    unsigned code = 0;
    for (int i = 0; i < 4; ++i)
      code = code * 256 + static_cast<unsigned char>(field[static_cast<unsigned>(i)]);
    return code;
  }

  static std::string Resolve(const std::string& field) {
    const std::size_t begin = field.find_first_not_of(" \t\r\n");
    if (begin == std::string::npos) return "";
    const std::string trimmed = field.substr(begin, field.find_last_not_of(" \t\r\n") + 1 - begin);
    std::string text;
    for (std::size_t i = 0; i < trimmed.size(); ++i) {
      const std::string two = trimmed.substr(i, 2);
      const std::string resolved = two == "\\n" ? "\n" : two == "\\t" ? "\t" : "";
      if (!resolved.empty() || two == "\\\\" || two == "\\\"") {
        text += resolved.empty() ? two.substr(1) : resolved;
        ++i;
      } else {
        text += trimmed[i];
      }
    }
    return text;
  }

  void Keep(unsigned identifier, const std::string& text) {
    const std::string shown = std::to_string(static_cast<int>(identifier));
    const auto [place, isNew] = texts.insert({identifier, text});
    if (isNew) return;
    printed.push_back(place->second == text ? "Duplicated string, ID = " + shown + "\n"
                                            : "Strings conflict, ID = " + shown + "\nOld: " + place->second +
                                                  "\nNew: " + text + "\n");
    place->second = text;
  }
};

class RandomFile {
 public:
  explicit RandomFile(unsigned seed) : m_Random(seed) {}

  std::string Make() {
    std::string content = Below(8) == 0 ? "\xEF\xBB\xBF" : "";
    for (int lines = Below(40); lines > 0; --lines) content += Line() + End();
    if (Below(3) == 0) content += Line();
    // Damage.
    for (int bytes = Below(4); bytes > 0 && !content.empty(); --bytes)
      content[static_cast<std::size_t>(Below(static_cast<int>(content.size())))] = AnyOf("\0\t\n\r\\ 7x");
    return content;
  }

 private:
  int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_Random); }
  template <std::size_t N>
  char AnyOf(const char (&characters)[N]) {
    return characters[static_cast<std::size_t>(Below(N - 1))];
  }
  std::string Tabs() { return std::string(static_cast<std::size_t>(1 + Below(5) / 4), '\t'); }
  std::string End() { return Below(4) == 0 ? "\r\n" : "\n"; }

  std::string Identifier() {
    switch (Below(8)) {
      case 0:
        return std::string("st") + AnyOf("ab") + "r";
      case 1:
        return "abc";
      case 2:
        return std::string(1, AnyOf("+- \v")) + std::to_string(Below(20)) + (Below(2) == 0 ? "ab" : "");
      case 3:
        return "429496729" + std::to_string(Below(10));
      default:
        return std::to_string(Below(20));
    }
  }

  std::string Text() {
    std::string text;
    const int length = Below(60) == 0 ? 4080 + Below(30) : Below(12);
    while (static_cast<int>(text.size()) < length) text += AnyOf("abc  \\\\nt\"\xE4\r%");
    return text;
  }

  std::string Line() {
    switch (Below(8)) {
      case 0:
        return "";
      case 1:
        return "! a comment";
      case 2:
        return Tabs() + Identifier() + Tabs() + Text() + Tabs() + "a note";
      default:
        return Identifier() + Tabs() + Text();
    }
  }

  std::mt19937 m_Random;
};

class StringTableRandom : public testing::TestWithParam<unsigned> {
 protected:
  test_support::TempRoots roots;
  test_support::DebugCapture debug;
};

TEST_P(StringTableRandom, HoldsWhatThePageOfTheFormatSays) {
  RandomFile file(GetParam());
  for (int round = 0; round < 150; ++round) {
    const std::string content = file.Make();
    const Model expected(content);
    debug.lines.clear();
    test_support::LoadStrings(roots, content);
    ASSERT_EQ(debug.lines, expected.printed) << content;
    for (const auto& [identifier, text] : expected.texts) {
      const char* const found = QX4Strings::GetString(identifier, false);
      ASSERT_NE(found, nullptr) << identifier << "\n" << content;
      ASSERT_EQ(found, text) << content;
    }
    for (unsigned identifier = 0; identifier < 64; ++identifier) {
      if (expected.texts.count(identifier) != 0) continue;
      ASSERT_EQ(QX4Strings::GetString(identifier, true), nullptr) << identifier << "\n" << content;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, StringTableRandom, testing::Range(1u, 9u));

// More texts than any table had room for at first, in an order that is none.
TEST(StringTableLarge, EveryTextIsFound) {
  const test_support::TempRoots roots;
  constexpr unsigned kTexts = 20000;
  std::string content;
  for (unsigned i = 0; i < kTexts; ++i) {
    const unsigned identifier = i * 7919 % kTexts * 641;
    content += std::to_string(identifier) + "\ttext " + std::to_string(identifier) + "\n";
  }
  test_support::LoadStrings(roots, content);
  for (unsigned i = 0; i < kTexts; ++i)
    ASSERT_EQ(QX4Strings::GetString(i * 641, false), "text " + std::to_string(i * 641));
  EXPECT_EQ(QX4Strings::GetString(640, true), nullptr);
}

}  // namespace
}  // namespace CommonInterfaces
