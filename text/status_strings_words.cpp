// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The texts that need no camera.
#include "common_interfaces/status_strings.h"
#include "common_interfaces/string_table.h"
#include "text/format_render.h"
#include "text/status_strings_text.h"
#include "text/text_ids.h"

namespace CommonInterfaces {
namespace {

unsigned GetDaysForm(int number) {
  // Wide enough for the magnitude of the lowest int.
  const long long wide = number;
  const long long magnitude = wide < 0 ? -wide : wide;
  if (magnitude >= 11 && magnitude <= 20) return TextIds::kManyDays;
  const int digit = static_cast<int>(magnitude % 10);
  if (digit == 1) return TextIds::kOneDay;
  return digit >= 2 && digit <= 4 ? TextIds::kFewDays : TextIds::kManyDays;
}

// The Greek code page has each Greek letter 128 above the Latin one of the same place in the alphabet, up to
// rho. Behind it stands the final sigma (among the capitals a gap), which no name uses: one step more.
char GetGreekLetter(char latin) {
  const int position = (latin | 0x20) - 'a';
  const int step = position >= 'r' - 'a' ? 129 : 128;
  return static_cast<char>(static_cast<unsigned char>(latin) + step);
}

bool IsLatinLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

}  // namespace

std::string FRomDMS2String(M_DMSTag const& angle) {
  const double seconds = angle.seconds;
  if (angle.degrees >= 10) return RenderFormat("%d\xC2\xB0", {angle.degrees});
  if (angle.degrees > 0) return RenderFormat("%d\xC2\xB0%d'", {angle.degrees, angle.minutes});
  if (angle.minutes < 1) return RenderFormat("%.0f\"", {seconds});
  if (angle.minutes >= 10) return RenderFormat("%d'", {angle.minutes});
  return RenderFormat("%d'%.0f\"", {angle.minutes, seconds});
}

void FRomDMS2String(char* text, M_DMSTag const& angle) {
  if (text != nullptr) CopyStatusText(FRomDMS2String(angle), text);
}

char const* GetNumberDays(int number) {
  const QX4Strings loaded;
  const char* const word = loaded.GetString(GetDaysForm(number), true);
  return word != nullptr ? word : loaded.GetString(TextIds::kOneDay, false);
}

std::string const FormatGreekName(std::string const& name) {
  std::string greek = name;
  const auto mark = greek.find('&');
  if (mark == std::string::npos) return greek;
  greek[mark] = ' ';
  if (mark + 1 < greek.size() && IsLatinLetter(greek[mark + 1])) {
    greek[mark + 1] = GetGreekLetter(greek[mark + 1]);
  }
  return greek;
}

}  // namespace CommonInterfaces
