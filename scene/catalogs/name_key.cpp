// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/name_key.h"

namespace scene {
namespace {

constexpr unsigned kGreekCapitals = 0x391, kGreekSmall = 0x3B1, kCombining = 0x300, kCombiningEnd = 0x370;

// In the order of the characters, the final sigma before the other one.
constexpr std::string_view kGreek[] = {"alpha",   "beta", "gamma", "delta",  "epsilon", "zeta", "eta",
                                       "theta",   "iota", "kappa", "lambda", "mu",      "nu",   "xi",
                                       "omicron", "pi",   "rho",   "sigma",  "sigma",   "tau",  "upsilon",
                                       "phi",     "chi",  "psi",   "omega"};
constexpr unsigned kGreekCount = sizeof kGreek / sizeof kGreek[0];

// Latin letters with marks by the last character of each run; "" between the letters.
struct LetterRun {
  unsigned last;
  std::string_view letters;
};
constexpr LetterRun kLatin[] = {
    {0xB1, ""},   {0xB2, "2"},  {0xB3, "3"},  {0xB8, ""},   {0xB9, "1"},  {0xBF, ""},    {0xC5, "a"},
    {0xC6, "ae"}, {0xC7, "c"},  {0xCB, "e"},  {0xCF, "i"},  {0xD0, "d"},  {0xD1, "n"},   {0xD6, "o"},
    {0xD7, ""},   {0xD8, "o"},  {0xDC, "u"},  {0xDD, "y"},  {0xDE, "th"}, {0xDF, "ss"},  {0xE5, "a"},
    {0xE6, "ae"}, {0xE7, "c"},  {0xEB, "e"},  {0xEF, "i"},  {0xF0, "d"},  {0xF1, "n"},   {0xF6, "o"},
    {0xF7, ""},   {0xF8, "o"},  {0xFC, "u"},  {0xFD, "y"},  {0xFE, "th"}, {0xFF, "y"},   {0x105, "a"},
    {0x10D, "c"}, {0x111, "d"}, {0x11B, "e"}, {0x123, "g"}, {0x127, "h"}, {0x131, "i"},  {0x133, "ij"},
    {0x135, "j"}, {0x138, "k"}, {0x142, "l"}, {0x14B, "n"}, {0x151, "o"}, {0x153, "oe"}, {0x159, "r"},
    {0x161, "s"}, {0x167, "t"}, {0x173, "u"}, {0x175, "w"}, {0x178, "y"}, {0x17E, "z"},  {0x17F, "s"}};

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
char ToLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

// The small letter of a Cyrillic one, whose marks are left out as those of Latin letters are.
unsigned FoldCyrillic(unsigned character) {
  constexpr unsigned kCapitals = 0x410, kSmall = 0x430, kCapitalYo = 0x401, kYo = 0x451, kYe = 0x435;
  if (character == kCapitalYo || character == kYo) return kYe;
  if (character >= kCapitals && character < kSmall) return character + (kSmall - kCapitals);
  return character >= 0x400 && character < kCapitals ? character + 0x50 : character;
}

void AppendTwoBytes(unsigned character, std::string& key) {
  key.push_back(static_cast<char>(0xC0 | character >> 6));
  key.push_back(static_cast<char>(0x80 | (character & 0x3F)));
}

// Appends a character of two bytes of UTF-8; false for one of a script that is left alone.
bool AppendFolded(unsigned character, std::string& key) {
  for (const unsigned first : {kGreekCapitals, kGreekSmall}) {
    if (character < first || character >= first + kGreekCount) continue;
    key += kGreek[character - first];
    return true;
  }
  for (const auto& run : kLatin) {
    if (character > run.last) continue;
    key += run.letters;
    return true;
  }
  if (character >= 0x400 && character < 0x460) {
    AppendTwoBytes(FoldCyrillic(character), key);
    return true;
  }
  return character >= kCombining && character < kCombiningEnd;
}

}  // namespace

std::string MakeNameKey(std::string_view name) {
  std::string key;
  for (std::size_t i = 0; i < name.size(); ++i) {
    const auto byte = static_cast<unsigned char>(name[i]);
    if (byte < 0x80) {
      if (IsLetter(name[i]) || (name[i] >= '0' && name[i] <= '9')) key.push_back(ToLower(name[i]));
    } else if ((byte & 0xE0) == 0xC0 && i + 1 < name.size() &&
               AppendFolded((byte & 0x1Fu) << 6 | (static_cast<unsigned char>(name[i + 1]) & 0x3Fu), key)) {
      ++i;
    } else {
      key.push_back(name[i]);
    }
  }
  return key;
}

std::string ExpandGreekLetter(std::string_view name) {
  constexpr std::size_t kShort = 3;
  std::size_t length = 0;
  std::string head;
  while (length < name.size() && IsLetter(name[length])) head.push_back(ToLower(name[length++]));
  if (length != kShort || length == name.size()) return std::string(name);
  for (const auto letter : kGreek) {
    if (letter.starts_with(head)) return std::string(letter) + std::string(name.substr(length));
  }
  return std::string(name);
}

}  // namespace scene
