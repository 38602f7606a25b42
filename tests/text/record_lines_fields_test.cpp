// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <clocale>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "common_interfaces/record_lines.h"
#include "support/debug_capture.h"
#include "support/record_line.h"

namespace {

using test_support::DebugCapture;
using test_support::Line;

using FieldToBuffer = int (*)(char*&, char*);
using FieldToString = int (*)(char*&, std::string&);

struct Reader {
  const char* name;
  FieldToBuffer toBuffer;
  FieldToString toString;
};

const Reader kReaders[] = {
    {"GetString1", GetString1, GetString1},
    {"GetStringLwr", GetStringLwr, GetStringLwr},
    {"GetString2", GetString2, GetString2},
    {"GetString3", GetString3, GetString3},
    {"CopyClippedByChar", [](char*& cursor, char* out) { return CopyClippedByChar(',', cursor, out); },
     [](char*& cursor, std::string& out) { return CopyClippedByChar(',', cursor, out); }},
};

// A field, its length as it was returned, and what is left of the line.
struct Field {
  int length;
  std::string text;
  std::string rest;

  bool operator==(const Field& other) const {
    return length == other.length && text == other.text && rest == other.rest;
  }
};

void PrintTo(const Field& field, std::ostream* out) {
  *out << field.length << ", \"" << field.text << "\", \"" << field.rest << "\"";
}

// Reads with both forms, into a buffer of exactly 256 bytes and into a string, and expects the same of both.
template <class ToBuffer, class ToString>
Field Read(std::string_view text, ToBuffer toBuffer, ToString toString) {
  Line line(text), other(text);
  const std::unique_ptr<char[]> buffer(new char[256]);
  std::memset(buffer.get(), 'x', 256);
  const int length = toBuffer(line.cursor, buffer.get());
  std::string written = "left over";
  EXPECT_EQ(toString(other.cursor, written), length);
  EXPECT_EQ(written, buffer.get());
  EXPECT_EQ(other.GetRest(), line.GetRest());
  EXPECT_TRUE(line.IsInside());
  return {length, buffer.get(), line.GetRest()};
}

Field Read(const Reader& reader, std::string_view text) {
  return Read(text, reader.toBuffer, reader.toString);
}
Field String1(std::string_view text) { return Read(kReaders[0], text); }
Field StringLwr(std::string_view text) { return Read(kReaders[1], text); }
Field String2(std::string_view text) { return Read(kReaders[2], text); }
Field String3(std::string_view text) { return Read(kReaders[3], text); }

Field Clipped(char delimiter, std::string_view text) {
  return Read(
      text, [=](char*& cursor, char* out) { return CopyClippedByChar(delimiter, cursor, out); },
      [=](char*& cursor, std::string& out) { return CopyClippedByChar(delimiter, cursor, out); });
}

void ExpectSkips(int (*skip)(char*&), std::string_view text, int result, const char* rest) {
  Line line(text);
  EXPECT_EQ(skip(line.cursor), result) << text;
  EXPECT_EQ(line.GetRest(), rest) << text;
}

TEST(RemoveLeading, SkipsBlanksAndSaysWhetherACharacterRemains) {
  ExpectSkips(RemoveLeading, " \t\r\nx ", 1, "x ");
  ExpectSkips(RemoveLeading, "x", 1, "x");
  ExpectSkips(RemoveLeading, " \t\r\n", 0, "");
  ExpectSkips(RemoveLeading, "", 0, "");
}

TEST(RemoveLeading, SemicolonIsACharacterThatRemains) { ExpectSkips(RemoveLeading, " ; x", 1, "; x"); }

TEST(RemoveTrail, MovesForwardPastTheSeparatorDespiteItsName) {
  ExpectSkips(RemoveTrail, " ; next", 1, "next");
  ExpectSkips(RemoveTrail, ";;\t;\r\n; x;", 1, "x;");
  ExpectSkips(RemoveTrail, "x ;", 1, "x ;");
  ExpectSkips(RemoveTrail, " ;\t;", 0, "");
  ExpectSkips(RemoveTrail, "", 0, "");
}

TEST(RemoveTrail, EveryByteAsFirstCharacter) {
  for (int byte = 1; byte < 256; ++byte) {
    const bool isBlank = std::strchr(" \t\r\n", byte) != nullptr;
    const std::string text = std::string(1, static_cast<char>(byte)) + "x";
    ExpectSkips(RemoveLeading, text, 1, isBlank ? "x" : text.c_str());
    ExpectSkips(RemoveTrail, text, 1, isBlank || byte == ';' ? "x" : text.c_str());
  }
}

TEST(GetString1, EndsAtBlankSemicolonOrEnd) {
  EXPECT_EQ(String1("  Big Bear"), (Field{3, "Big", " Bear"}));
  EXPECT_EQ(String1("Big\tBear"), (Field{3, "Big", "\tBear"}));
  EXPECT_EQ(String1("Big\r\n"), (Field{3, "Big", "\r\n"}));
  EXPECT_EQ(String1("\nBig;Bear"), (Field{3, "Big", ";Bear"}));
  EXPECT_EQ(String1("Big"), (Field{3, "Big", ""}));
  EXPECT_EQ(String1("a!b,c"), (Field{5, "a!b,c", ""}));
}

TEST(GetString1, EmptyFieldGivesZeroAndAnEmptyText) {
  EXPECT_EQ(String1(""), (Field{0, "", ""}));
  EXPECT_EQ(String1(" \t\r\n"), (Field{0, "", ""}));
  EXPECT_EQ(String1("  ;x"), (Field{0, "", ";x"}));
}

TEST(GetStringLwr, LowersTheField) { EXPECT_EQ(StringLwr(" NGC-224;X"), (Field{7, "ngc-224", ";X"})); }

TEST(GetStringLwr, EmptyFieldGivesZeroAndAnEmptyText) { EXPECT_EQ(StringLwr(" ;X"), (Field{0, "", ";X"})); }

TEST(GetStringLwr, InTheCLocaleOnlyLatinCapitalsChange) {
  ASSERT_STREQ(std::setlocale(LC_CTYPE, nullptr), "C");
  for (int byte = 1; byte < 256; ++byte) {
    if (std::strchr(" \t\r\n;", byte)) continue;
    const int expected = byte >= 'A' && byte <= 'Z' ? byte + 32 : byte;
    EXPECT_EQ(StringLwr(std::string(1, static_cast<char>(byte))),
              (Field{1, std::string(1, static_cast<char>(expected)), ""}));
  }
}

TEST(GetString3, SpacesStayInTheField) {
  EXPECT_EQ(String3("  Big Bear \tnext"), (Field{9, "Big Bear ", "\tnext"}));
  EXPECT_EQ(String3("Big Bear;next"), (Field{8, "Big Bear", ";next"}));
  EXPECT_EQ(String3("Big Bear\r\n"), (Field{8, "Big Bear", "\r\n"}));
  EXPECT_EQ(String3("Big Bear\nx"), (Field{8, "Big Bear", "\nx"}));
  EXPECT_EQ(String3("Big Bear"), (Field{8, "Big Bear", ""}));
}

TEST(GetString3, FailsLikeGetString1OnAnEmptyField) {
  EXPECT_EQ(String3(" ;x"), (Field{0, "", ";x"}));
  EXPECT_EQ(String3(" \t "), (Field{0, "", ""}));
}

TEST(GetString2, TrailingBlankStaysAndTheSeparatorIsPassed) {
  EXPECT_EQ(String2("Big Bear ; next"), (Field{9, "Big Bear ", "next"}));
}

TEST(GetString2, SpacesAndTabsStayInTheField) {
  EXPECT_EQ(String2(" Big\tBear \t"), (Field{10, "Big\tBear \t", ""}));
  EXPECT_EQ(String2("Big\tBear\r\nnext"), (Field{8, "Big\tBear", "next"}));
  EXPECT_EQ(String2("a;;b"), (Field{1, "a", "b"}));
}

TEST(GetString2, AfterAnEmptyFieldTheCursorStaysOnTheSeparator) {
  EXPECT_EQ(String2("  ; next"), (Field{0, "", "; next"}));
  EXPECT_EQ(String2("  "), (Field{0, "", ""}));
}

TEST(CopyClippedByChar, DelimiterIsTaken) {
  EXPECT_EQ(Clipped(',', "a,b"), (Field{1, "a", "b"}));
  EXPECT_EQ(Clipped('"', "a b\"\""), (Field{3, "a b", "\""}));
}

TEST(CopyClippedByChar, BlanksAndSemicolonsStayInTheField) {
  EXPECT_EQ(Clipped(',', "  a;\t,b"), (Field{5, "  a;\t", "b"}));
}

TEST(CopyClippedByChar, LineEndStopsAndStays) {
  EXPECT_EQ(Clipped(',', "a\nb"), (Field{1, "a", "\nb"}));
  EXPECT_EQ(Clipped(',', "a\r\nb"), (Field{1, "a", "\r\nb"}));
  EXPECT_EQ(Clipped(',', "a"), (Field{1, "a", ""}));
}

TEST(CopyClippedByChar, AtTheLineEndNothingIsTaken) {
  EXPECT_EQ(Clipped(',', ""), (Field{0, "", ""}));
  EXPECT_EQ(Clipped(',', "\na"), (Field{0, "", "\na"}));
  EXPECT_EQ(Clipped(',', "\ra"), (Field{0, "", "\ra"}));
}

TEST(CopyClippedByChar, EmptyFieldGivesZeroAndItsDelimiterIsTaken) {
  EXPECT_EQ(Clipped(',', ",b"), (Field{0, "", "b"}));
}

TEST(CopyClippedByChar, LineFeedAsDelimiterIsTakenBehindAFieldOnly) {
  EXPECT_EQ(Clipped('\n', "a\nb"), (Field{1, "a", "b"}));
  EXPECT_EQ(Clipped('\n', "\nb"), (Field{0, "", "\nb"}));
}

TEST(CopyClippedByChar, ZeroAsDelimiterIsTheEndAndNeverPassed) {
  EXPECT_EQ(Clipped('\0', "a,b"), (Field{3, "a,b", ""}));
}

TEST(CopyClippedByChar, EveryByteAsDelimiter) {
  for (int byte = 1; byte < 256; ++byte) {
    const char delimiter = static_cast<char>(byte);
    if (delimiter == 'a') continue;
    EXPECT_EQ(Clipped(delimiter, std::string("a") + delimiter + "b"), (Field{1, "a", "b"})) << byte;
  }
}

TEST(RecordLines, FieldOf255BytesFitsTheBuffer) {
  for (const Reader& reader : kReaders) {
    const DebugCapture debug;
    const std::string field(255, 'a');
    EXPECT_EQ(Read(reader, field + "\rb"),
              (Field{255, field, std::string(reader.name) == "GetString2" ? "b" : "\rb"}))
        << reader.name;
    EXPECT_TRUE(debug.lines.empty()) << reader.name;
  }
}

TEST(RecordLines, LongerFieldIsCutTo255BytesReportedAndTakenWhole) {
  for (const Reader& reader : kReaders) {
    for (int length : {256, 257, 1000}) {
      const DebugCapture debug;
      Line line(std::string(static_cast<unsigned>(length), 'a') + "\rb");
      const std::unique_ptr<char[]> buffer(new char[256]);
      EXPECT_EQ(reader.toBuffer(line.cursor, buffer.get()), 255) << reader.name;
      EXPECT_EQ(buffer.get(), std::string(255, 'a')) << reader.name;
      EXPECT_EQ(*line.cursor, std::string(reader.name) == "GetString2" ? 'b' : '\r') << reader.name;
      ASSERT_EQ(debug.lines.size(), 1u) << reader.name;
      EXPECT_EQ(debug.lines[0], "A text of " + std::to_string(length) + " bytes is cut to 255\n");
    }
  }
}

TEST(RecordLines, StringFormCutsNothing) {
  for (const Reader& reader : kReaders) {
    const DebugCapture debug;
    Line line(std::string(1000, 'a') + ";");
    std::string field;
    const int expected = std::string(reader.name) == "CopyClippedByChar" ? 1001 : 1000;
    EXPECT_EQ(reader.toString(line.cursor, field), expected) << reader.name;
    EXPECT_EQ(field.size(), static_cast<unsigned>(expected)) << reader.name;
    EXPECT_TRUE(debug.lines.empty()) << reader.name;
  }
}

TEST(RecordLines, EveryByteAsFirstCharacterOfAField) {
  for (int byte = 1; byte < 256; ++byte) {
    const std::string text = std::string(1, static_cast<char>(byte)) + "b";
    const bool isBlank = std::strchr(" \t\r\n", byte) != nullptr;
    const Field expected = byte == ';' ? Field{0, "", text}
                           : isBlank   ? Field{1, "b", ""}
                                       : Field{2, text, ""};
    EXPECT_EQ(String1(text), expected) << byte;
    EXPECT_EQ(String2(text), expected) << byte;
    EXPECT_EQ(String3(text), expected) << byte;
  }
}

// Whatever the bytes, every parser stays in the line and leaves a sound text; the address sanitizer watches
// the rest.
TEST(RecordLines, RandomBytesAreSafe) {
  std::mt19937 random(7);
  const std::string likely = "0123456789.eE-+ \t\r\n;!'\"hmsg\xB0,aZ";
  for (int i = 0; i < 30000; ++i) {
    std::string text;
    for (auto length = random() % 60; length != 0; --length) {
      text += random() % 4 != 0 ? likely[random() % likely.size()] : static_cast<char>(random() % 255 + 1);
    }
    Line line(text);
    for (int steps = 0; steps < 200 && *line.cursor != '\0'; ++steps) {
      char* const before = line.cursor;
      double number = 0.0;
      int integer = 0;
      const auto choice = random() % 11;
      if (choice == 0) {
        GetLong1(line.cursor, integer);
        ASSERT_GE(integer, 0);
      } else if (choice == 1) {
        GetDouble(line.cursor, number);
      } else if (choice == 2) {
        GetRaOrDec(line.cursor, number);
      } else if (choice == 3) {
        GetSign(line.cursor);
      } else if (choice == 4) {
        RemoveLeading(line.cursor);
      } else if (choice == 5) {
        RemoveTrail(line.cursor);
      } else {
        const Reader& reader = kReaders[choice - 6];
        const std::unique_ptr<char[]> buffer(new char[256]);
        const int length = reader.toBuffer(line.cursor, buffer.get());
        ASSERT_EQ(static_cast<std::size_t>(length), std::strlen(buffer.get()));
      }
      ASSERT_TRUE(line.IsInside() && line.cursor >= before) << choice;
      short r, g, b;
      GetRGB(line.cursor, r, g, b);
    }
  }
}

}  // namespace
