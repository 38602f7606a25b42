// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <charconv>
#include <cmath>
#include <cstdio>

#include "common_interfaces/record_lines.h"
#include "text/record_lines_inside.h"

using namespace CommonInterfaces::record_lines;

namespace {

constexpr char kDegreeSign = '\xB0';  // in the code pages of our languages

}  // namespace

int GetRaOrDec(char*& cursor, double& value) {
  SkipBlanks(cursor);
  if (*cursor == '\0') return 0;
  const double sign = TakeSign(cursor);
  double sum = 0.0;
  bool isInHours = false;
  while (!Is(*cursor, kNumberStop)) {
    const double number = TakeReal(cursor);
    const char mark = *cursor;
    if (mark != '\0') ++cursor;
    switch (mark) {
      case 'h':
        isInHours = true;
        sum += number;
        break;
      case kDegreeSign:
      case 'g':
        sum += number;
        break;
      case '\'':
      case 'm':
        sum += number / 60;
        break;
      case '"':
      case 's':
        sum += number / 3600;
        break;
      default:
        value = sign * number;
        return 1;
    }
  }
  value = sign * (isInHours ? sum * 15 : sum);
  return 1;
}

namespace {

constexpr int kWrittenSize = 32;
constexpr double kLargestDegrees = 2147483520.0;  // the largest float below 2^31
constexpr float kMinuteExcess = 0.001f;  // minutes that single precision leaves just below a whole number

// The magnitude in single precision; 0 for what is not a number.
float GetMagnitude(double degrees) {
  const double magnitude = std::abs(degrees);
  if (std::isnan(magnitude)) return 0.0f;
  return static_cast<float>(magnitude < kLargestDegrees ? magnitude : kLargestDegrees);
}

int CutTo(int length, char* text) {
  text[length] = '\0';
  return length;
}

int WriteRightAscension(double degrees, char* text) {
  const float hours = GetMagnitude(degrees) / 15;
  const int wholeHours = static_cast<int>(hours);
  const float rest = hours - static_cast<float>(wholeHours);
  int minutes = static_cast<int>(rest * 60 + kMinuteExcess);
  float seconds = (rest - static_cast<float>(minutes) / 60) * 3600 + 0.009f;
  CarrySixty(minutes, seconds);

  char secondsText[16] = {};
  std::to_chars(secondsText, secondsText + sizeof secondsText - 1, seconds, std::chars_format::fixed, 2);
  const int length = std::snprintf(text, kWrittenSize, "%2dh%2dm%ss", wholeHours, minutes, secondsText);
  return seconds <= 0.01f ? CutTo(6, text) : length;
}

int WriteSigned(double degrees, char* text) {
  const float magnitude = GetMagnitude(degrees);
  const int wholeDegrees = static_cast<int>(magnitude);
  const float rest = magnitude - static_cast<float>(wholeDegrees);
  int minutes = static_cast<int>(rest * 60 + kMinuteExcess);
  int seconds = static_cast<int>(std::abs((rest - static_cast<float>(minutes) / 60) * 3600) + 0.01f);
  CarrySixty(minutes, seconds);

  std::snprintf(text, kWrittenSize, "%c%3d%c%2d%c%2d%c", degrees < -1e-5 ? '-' : ' ', wholeDegrees,
                kDegreeSign, minutes, '\'', seconds, '"');
  return CutTo(seconds == 0 ? 7 : 11, text);
}

}  // namespace

short SetRadOrDec(double value, short mode, char* out) {
  return static_cast<short>(mode == 1 ? WriteRightAscension(value, out) : WriteSigned(value, out));
}

std::string SetRadOrDec(double value, short mode) {
  char text[kWrittenSize];
  SetRadOrDec(value, mode, text);
  return text;
}
