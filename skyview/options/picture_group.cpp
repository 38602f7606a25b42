// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/options/picture_group.h"

#include <algorithm>

#include "skyview/options/stop.h"

namespace skyview {
namespace {

constexpr std::size_t kMaxPictures = 2;

constexpr OptionText kPatterns = {"--out", "NAME%03d.svg|NAME%03d.png|NAME%03d.pdf",
                                  "with --play one number, %d or %01d to %09d, and no other %"};

bool ReadPicture(const std::string& name, PictureOptions& pictures) {
  if (!IsPictureName(name)) return false;
  if (std::find(pictures.out.begin(), pictures.out.end(), name) != pictures.out.end())
    throw Stop{kBadOption, "--out '" + name + "': given twice; wants two different files"};
  pictures.out.push_back(name);
  return true;
}

constexpr OptionRow<PictureOptions> kPictureRows[] = {
    {{"--out", "FILE.svg|FILE.png|FILE.pdf", "picture to write; may be given twice"},
     Times::kAgain,
     ReadPicture}};

std::optional<std::string> ParsePngName(const std::string& text) {
  if (!IsPictureName(text) || !text.ends_with(".png")) return std::nullopt;
  return text;
}

constexpr OptionRow<SequenceOptions> kSequenceRows[] = {
    {{"--play", "time=STEP|view=STEP[,view=STEP...]",
      "draw a sequence; STEP of time: 30s, 10m, 1h, 1d; of the view: degrees of azimuth, altitude, slope"},
     Times::kOnce,
     [](const std::string& text, SequenceOptions& sequence) { return Put(ParsePlay(text), sequence.play); }},
    {{"--frames", "N", "number of frames of the sequence, 1 to 10000"},
     Times::kOnce,
     [](const std::string& text, SequenceOptions& sequence) {
       return Put(ParseFrameCount(text), sequence.frames);
     }},
    {{"--contact-sheet", "FILE.png", "all frames of the sequence in one picture"},
     Times::kOnce,
     [](const std::string& text, SequenceOptions& sequence) {
       return Put(ParsePngName(text), sequence.contactSheet);
     }},
    {{"--animation", "FILE.png", "all frames of the sequence as one animated PNG, ten a second"},
     Times::kOnce,
     [](const std::string& text, SequenceOptions& sequence) {
       return Put(ParsePngName(text), sequence.animation);
     }},
    {{"--trails", "FILE.png", "the trails that the stars of all frames leave, in one picture"},
     Times::kOnce,
     [](const std::string& text, SequenceOptions& sequence) {
       return Put(ParsePngName(text), sequence.trails);
     }}};

constexpr OptionRow<KeepOptions> kKeepRows[] = {
    {{"--save-view", "FILE[:ID]", "write the view shown to this file, in place of the one there"},
     Times::kOnce,
     [](const std::string& text, KeepOptions& keep) { return Put(ParseViewFile(text), keep.saveView); }},
    {{"--save-session", "FILE", "keep all that the picture is drawn from in this small text file"},
     Times::kOnce,
     [](const std::string& text, KeepOptions& keep) { return Put(ParseName(text), keep.saveSession); }}};

void CheckPictures(const PictureOptions& pictures) {
  if (pictures.out.size() > kMaxPictures)
    throw Stop{kBadOption, "--out: given more than twice; wants at most two files"};
}

void CheckFrames(const SequenceOptions& sequence) {
  if (sequence.play && !sequence.frames) throw Stop{kBadOption, "--play: wants --frames N beside it"};
  if (sequence.frames && !sequence.play) throw Stop{kBadOption, "--frames: wants --play beside it"};
  const std::pair<const char*, const std::optional<std::string>&> files[] = {
      {"--contact-sheet", sequence.contactSheet},
      {"--animation", sequence.animation},
      {"--trails", sequence.trails}};
  for (const auto& [name, file] : files) {
    if (file && !sequence.play) throw Stop{kBadOption, std::string(name) + ": wants --play beside it"};
    for (const auto& [otherName, other] : files) {
      if (file && &other != &file && other == file)
        throw Stop{kBadOption,
                   std::string(name) + " '" + *file + "': given twice; wants two different files"};
    }
  }
}

}  // namespace

const OptionGroup<PictureOptions> kPictureGroup = {"Picture", kPictureRows, CheckPictures};
const OptionGroup<SequenceOptions> kSequenceGroup = {"Sequence", kSequenceRows, CheckFrames};
const OptionGroup<KeepOptions> kKeepGroup = {"Keep", kKeepRows, nullptr};

void CheckSequence(const SequenceOptions& sequence, const PictureOptions& pictures) {
  if (!sequence.play) return;
  for (const auto& name : pictures.out) {
    if (!FrameNames::Parse(name)) ThrowBadValue(kPatterns, name);
  }
  if (pictures.out.empty() && !sequence.contactSheet && !sequence.animation && !sequence.trails)
    throw Stop{kBadOption, "--play: wants --out NAME%03d.png or --contact-sheet FILE.png beside it"};
}

}  // namespace skyview
