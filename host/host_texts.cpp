// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "host/host_texts.h"

#include <cstddef>
#include <iterator>

#include "utils/code_page.h"
#include "utils/locale.h"

namespace skyview {
namespace {

using CommonInterfaces::TextUse;

constexpr int kMaxLength = 200;  // bytes; a line of the report stays readable

constexpr TextUse kHostTexts[] = {
    {900001, 900002, "s", kMaxLength, true, "skyview: place, coordinates"},
    {900003, 900004, "s", kMaxLength, true, "skyview: date, centre of the view"},
    {900005, 900005, "ss", kMaxLength, true, "skyview: direction, compass point"},
    {900006, 900006, "sss", kMaxLength, true, "skyview: Universal Time, its caption, clock time and date"},
    {900007, 900007, "sssss", kMaxLength, true, "skyview: local time likewise, zone and offset"},
    {900008, 900008, "f", kMaxLength, true, "skyview: refraction at the centre, degrees"},
    {900009, 900009, "sfff", kMaxLength, true, "skyview: class and its magnitude limits"},
    {900010, 900011, "d", kMaxLength, true, "skyview: numbers of objects drawn"},
    {900012, 900013, "f", kMaxLength, true, "skyview: zoom of a list of limits"},
    {900014, 900014, "sfff", kMaxLength, true, "skyview: class and its limits in that list"},
    {900021, 900030, "", kMaxLength, true, "skyview: classes of objects"},
    {900100, 900111, "", kMaxLength, true, "skyview: the Earth as a place, names of bodies"},
};

CodePage GetPage() { return GetCodePageOf(GetSystemLocale()); }

bool IsContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

}  // namespace

const TextUse* GetHostTexts(int* count) {
  *count = static_cast<int>(std::size(kHostTexts));
  return kHostTexts;
}

std::string Localize(HostText text, std::initializer_list<CommonInterfaces::FormatArgument> arguments) {
  return CommonInterfaces::FormatLocalizedText(static_cast<unsigned>(text), arguments);
}

std::string ToUtf8(const std::string& text) { return CodePageToUtf8(GetPage(), text); }

std::string ToCodePage(const std::string& utf8) {
  std::string rest = utf8, text;
  int bad = 0;
  while (!Utf8ToCodePage(GetPage(), rest, &text, &bad)) {
    const auto begin = static_cast<std::size_t>(bad);
    std::size_t end = begin + 1;
    while (end < rest.size() && IsContinuation(rest[end])) ++end;
    rest.replace(begin, end - begin, "?");
  }
  return text;
}

}  // namespace skyview
