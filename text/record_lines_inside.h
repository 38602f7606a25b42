// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What the parsers of record lines share. Contracts of the exported functions:
// common_interfaces/record_lines.h.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace CommonInterfaces::record_lines {

enum CharacterClass : unsigned char {
  kBlank = 1,       // space, tab, line feed, carriage return
  kFieldEnd = 2,    // a blank, ";" or the end
  kNumberStop = 4,  // a blank, ";", "!" or the end
  kNumberPart = 8,  // what a real number is made of: digits, ".", "e", "E", "-"
};

constexpr std::array<unsigned char, 256> MakeCharacterClasses() {
  std::array<unsigned char, 256> classes{};
  for (char c : {' ', '\t', '\n', '\r'})
    classes[static_cast<unsigned char>(c)] = kBlank | kFieldEnd | kNumberStop;
  classes['\0'] = classes[';'] = kFieldEnd | kNumberStop;
  classes['!'] = kNumberStop;
  for (char c : {'.', 'e', 'E', '-'}) classes[static_cast<unsigned char>(c)] = kNumberPart;
  for (char c = '0'; c <= '9'; ++c) classes[static_cast<unsigned char>(c)] = kNumberPart;
  return classes;
}

inline constexpr std::array<unsigned char, 256> kCharacterClasses = MakeCharacterClasses();

// Whether the character is in one of the classes, whatever the locale of the process.
inline bool Is(char c, unsigned classes) {
  return (kCharacterClasses[static_cast<unsigned char>(c)] & classes) != 0;
}

inline void SkipBlanks(char*& cursor) {
  while (Is(*cursor, kBlank)) ++cursor;
}

inline int TakeSign(char*& cursor) {
  if (*cursor != '-') return 1;
  ++cursor;
  SkipBlanks(cursor);
  return -1;
}

// Takes the run of number parts at the cursor, which may be empty, and converts its start: GetDouble without
// its test of the first character.
double TakeReal(char*& cursor);

// Seconds that reach 60 become 0 and carry into the minutes; 60 minutes become 0. Deliberately nothing is
// carried from there: angles are written that way.
template <class Seconds>
void CarrySixty(int& minutes, Seconds& seconds) {
  if (seconds >= 60) {
    seconds = 0;
    ++minutes;
  }
  if (minutes == 60) minutes = 0;
}

// The replacements of StringToNear, by byte.
class NearTable {
 public:
  // From the texts of strings 14000 to 14003; null is "". One line for each pair of unequal length.
  NearTable(const char* single, const char* singleNear, const char* further, const char* furtherNear);
  std::string Convert(std::string_view text) const;

 private:
  void Add(std::string_view characters, std::string_view replacements, unsigned width);

  std::array<std::string, 256> m_Replacements;  // "": the byte stands for itself
};

// Makes the next StringToNear fetch its tables again. For tests alone; the tables belong to the life of the
// process.
void ForgetNearTableForTests();

}  // namespace CommonInterfaces::record_lines
