// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A line of the deep-sky pictures (docs/formats/sky_images.md), field by field.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "skydata/files/text_lines.h"

namespace skydata {

enum PictureColumn {
  kPictureNumber,
  kPictureSize,
  kPictureRA,
  kPictureDec,
  kPictureRotation,
  kPictureFlags,
  kPictureAspect,
  kPictureLayer,
  kPictureBlack,
  kPictureBrightness,
  kPictureColumns
};

const char* NamePictureColumn(int column);

// The fields between the blanks of a line, up to one that begins with '!'. None for a comment.
std::vector<TextField> SplitAtBlanks(const TextLine& line);

// A number as the parsers of record lines read it, none where they would not take the whole field.
std::optional<double> ParsePlainNumber(const std::string& text, bool isWhole);

// Degrees, of an angle with marks or without; none where the parsers would not take the whole field.
// `lacksMark`: the last number has no mark, while those before it have, and so takes their place.
std::optional<double> ParseAngle(const std::string& text, bool& lacksMark);

// The number and the letter A to G, '\0' without one; false where it is neither.
bool ParsePictureNumber(const std::string& text, int& number, char& letter);

}  // namespace skydata
