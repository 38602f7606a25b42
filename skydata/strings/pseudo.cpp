// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/strings/pseudo.h"
#include "skydata/files/text_lines.h"

#include <algorithm>
#include <limits>

#include "common_interfaces/text_formats.h"
#include "skydata/strings/rules.h"
#include "utils/utf8.h"

namespace skydata {
namespace {

// Pairs of letters: plain, with an accent that the code page has.
constexpr char kWesternPairs[] = "AÅCÇDÐEÉIÎNÑOÖSŠUÛYÝZŽaácçdðeéfƒiînñoösšuûyýzž";
constexpr char kCyrillicPairs[] = "ГҐЕЁИЙКЌУЎІЇгґеёийкќуўії";
constexpr char kGreekPairs[] = "ΑΆΕΈΗΉΙΊΟΌΥΎΩΏαάεέηήιίοόυύωώ";

const char* GetPairs(CodePage page) {
  if (page == CodePage::kCyrillic) return kCyrillicPairs;
  return page == CodePage::kGreek ? kGreekPairs : kWesternPairs;
}

constexpr char kNoBreakBlank[] = "\xC2\xA0";

// Splits the front of a text into what must stay whole: an escape, a conversion, or one character.
std::string TakePiece(const std::string& text, std::size_t at) {
  if (text[at] == '\\') return text.substr(at, 2);
  if (text[at] == '%') {
    const std::size_t end = text.find_first_not_of("+- #0123456789.l", at + 1);
    return text.substr(at, end == std::string::npos ? end : end + 1 - at);
  }
  int length = 1;
  DecodeUtf8(text, static_cast<int>(at), &length);
  return text.substr(at, static_cast<std::size_t>(length));
}

std::string Accent(const std::string& piece, CodePage page) {
  const std::string pairs = GetPairs(page);
  for (std::size_t at = 0; at < pairs.size();) {
    const std::string plain = TakePiece(pairs, at);
    const std::string accented = TakePiece(pairs, at + plain.size());
    if (piece == plain) return accented;
    at += plain.size() + accented.size();
  }
  return piece;
}

std::string AccentAll(const std::string& text, CodePage page) {
  std::string accented;
  for (std::size_t at = 0; at < text.size();) {
    const std::string piece = TakePiece(text, at);
    accented += Accent(piece, page);
    at += piece.size();
  }
  return accented;
}

// Where the end of a text begins that its users count on to be the end: escapes such as \n, and a no-break
// blank.
std::size_t FindTail(const std::string& text) {
  std::size_t tail = 0;
  for (std::size_t at = 0; at < text.size();) {
    const std::string piece = TakePiece(text, at);
    at += piece.size();
    if (piece != "\\n" && piece != "\\t" && piece != kNoBreakBlank) tail = at;
  }
  return tail;
}

// `room`: the bytes that the text may have.
std::string Disguise(const std::string& text, CodePage page, int room) {
  const std::size_t tail = FindTail(text);
  const std::string body = AccentAll(text.substr(0, tail), page);
  const int spare = room - CountCharacters(text) - 2;
  if (body.empty() || spare < 0) return body + text.substr(tail);
  const int longer = std::min((CountCharacters(body) + 2) / 3, spare);
  return "[" + body + std::string(static_cast<std::size_t>(longer), '~') + "]" + text.substr(tail);
}

bool IsData(unsigned identifier) {
  static constexpr unsigned kData[] = {14000, 14001, 14002, 14003, 20560, 40830};
  return std::find(std::begin(kData), std::end(kData), identifier) != std::end(kData);
}

std::string DisguiseEntry(const StringsEntry& entry, CodePage page) {
  if (IsData(entry.identifier)) return entry.written;
  const auto* const use = CommonInterfaces::FindTextUse(entry.identifier);
  int room = use ? use->maxLength : std::numeric_limits<int>::max();
  const bool isShower = entry.identifier >= kFirstShower && entry.identifier <= kLastShower;
  if (!isShower) return Disguise(entry.written, page, room);
  const std::size_t name = std::min(entry.written.find(';'), entry.written.size());
  const std::string data = entry.written.substr(name);
  return Disguise(entry.written.substr(0, name), page, room - CountCharacters(data)) + data;
}

}  // namespace

std::string MakePseudoLanguage(const StringsSource& source) {
  std::string table;
  auto entry = source.entries.begin();
  for (const StringsLine& line : source.lines) {
    std::string text = line.text;
    if (entry != source.entries.end() && entry->line == line.number) {
      text.replace(static_cast<std::size_t>(entry->begin), entry->written.size(),
                   DisguiseEntry(*entry, source.page));
      ++entry;
    }
    table += text + '\n';
  }
  return table;
}

}  // namespace skydata
