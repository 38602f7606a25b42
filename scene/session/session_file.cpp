// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/session/session_file.h"

#include <algorithm>
#include <charconv>

#include "scene/session/checksum.h"
#include "scene/session/mark_text.h"
#include "scene/session/orbit_request.h"
#include "scene/visibility/object_filter.h"
#include "utils/text.h"

namespace scene {
namespace {

constexpr std::string_view kFirstLine = "skyview session 1", kEnd = "end ";

// Every option is back at what a session without its line has.
void ClearOptions(SessionCapsule& capsule) {
  capsule.framesOf = 0;
  capsule.showers = capsule.plainSky = false;
  capsule.chart = {};
  capsule.orbits.clear();
}

bool IsControl(char c) { return static_cast<unsigned char>(c) < ' '; }

// Control characters would end the line or hide in it.
std::string WithoutControls(std::string text) {
  std::replace_if(text.begin(), text.end(), IsControl, ' ');
  return text;
}

// Reads the lines between the first and the last.
class SessionReader {
 public:
  // Whole lines of options, of which the others are as they were.
  bool ReadOptions(std::string_view lines, SessionCapsule& capsule) {
    m_Capsule = capsule;
    ClearOptions(m_Capsule);
    for (; !lines.empty(); lines.remove_prefix(lines.find('\n') + 1)) {
      if (!TakeLine(lines.substr(0, lines.find('\n')))) return false;
    }
    capsule = std::move(m_Capsule);
    return true;
  }
  bool Read(std::string_view body, SessionCapsule& capsule, std::string& error) {
    for (int line = 2; !body.empty(); ++line) {
      const auto end = body.find('\n');
      if (!TakeLine(body.substr(0, end))) {
        error = "line " + std::to_string(line) + " '" + WithoutControls(std::string(body.substr(0, end))) +
                "' is not understood";
        return false;
      }
      body.remove_prefix(end + 1);
    }
    if (!m_HasLanguage || !m_HasSize || m_Capsule.view.empty()) {
      error = "the session lacks its language, its size or its view";
      return false;
    }
    capsule = std::move(m_Capsule);
    return true;
  }

 private:
  bool TakeLine(std::string_view line) {
    const auto blank = line.find(' ');
    if (blank == std::string_view::npos || blank + 1 == line.size()) return false;
    if (std::any_of(line.begin(), line.end(), IsControl)) return false;  // never written
    const auto word = line.substr(0, blank), value = line.substr(blank + 1);
    if (word == "language") return TakeText(value, m_HasLanguage, m_Capsule.language);
    if (word == "zone") return TakeText(value, m_HasZone, m_Capsule.zone);
    if (word == "place") return TakeText(value, m_HasPlace, m_Capsule.place);
    if (word == "size") return TakeSize(value);
    if (word == "view") return TakeView(value);
    if (word == "set") return TakeInto(value, m_Capsule.settings);
    if (word == "favourite") return TakeFavourite(value, m_Capsule.favourites);
    if (word == "mark") return TakeFavourite(value, m_Capsule.marks);
    if (word == "frames-of") return TakeFrames(value);
    if (word == "showers") return TakeShowers(value);
    if (word == "sky") return TakeSky(value);
    if (word == "tle") return TakeText(value, m_HasTle, m_Capsule.tle);
    if (word == "orbits") return ParseOrbits(value) && TakeText(value, m_HasOrbits, m_Capsule.orbits);
    if (word == "marker") return TakeMarker(value);
    if (word == "data") return TakeData(value);
    return ReadChartLine(word, value, m_Capsule.chart);
  }

  // Once a session.
  static bool TakeText(std::string_view value, bool& has, std::string& text) {
    if (has) return false;
    has = true;
    text = value;
    return true;
  }

  bool TakeSize(std::string_view value) {
    const auto size = ParseSize(value);
    if (!size || m_HasSize) return false;
    m_HasSize = true;
    m_Capsule.size = *size;
    return true;
  }

  static bool TakeInto(std::string_view value, std::vector<std::string>& list) {
    list.emplace_back(value);
    return true;
  }

  bool TakeView(std::string_view value) {
    return value.find('=') != std::string_view::npos && TakeInto(value, m_Capsule.view);
  }

  bool TakeFrames(std::string_view value) {
    const auto groups = ParseImageGroups(value);
    if (!groups || m_Capsule.framesOf != 0) return false;
    m_Capsule.framesOf = *groups;
    return true;
  }

  bool TakeShowers(std::string_view value) {
    if (value != "on" || m_Capsule.showers) return false;
    return m_Capsule.showers = true;
  }

  bool TakeSky(std::string_view value) {
    if (value != "none" || m_Capsule.plainSky) return false;
    return m_Capsule.plainSky = true;
  }

  static bool TakeFavourite(std::string_view value, std::vector<SessionFavourite>& list) {
    const auto blank = value.find(' ');
    if (blank == std::string_view::npos) return false;
    SessionFavourite favourite;
    favourite.kind = GetFOURCC(std::string(value.substr(0, blank)).c_str());
    const auto number = value.substr(blank + 1);
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), favourite.number);
    if (favourite.kind == -1 || error != std::errc() || end != number.data() + number.size()) return false;
    list.push_back(favourite);
    return true;
  }

  bool TakeMarker(std::string_view value) {
    const auto mark = ParseMark(value);
    if (!mark || !mark->id || m_Capsule.markers.size() == static_cast<std::size_t>(kMaxMarks)) return false;
    m_Capsule.markers.push_back(*mark);
    return true;
  }

  bool TakeData(std::string_view value) {
    const auto blank = value.find(' ');
    if (blank == std::string_view::npos) return false;
    const auto checksum = ParseChecksum(value.substr(0, blank));
    if (!checksum || blank + 1 == value.size()) return false;
    m_Capsule.data.push_back({std::string(value.substr(blank + 1)), *checksum});
    return true;
  }

  SessionCapsule m_Capsule;
  bool m_HasLanguage = false, m_HasSize = false, m_HasZone = false, m_HasPlace = false;
  bool m_HasTle = false, m_HasOrbits = false;
};

std::string FormatFavourite(const SessionFavourite& favourite) {
  return GetCodeText(favourite.kind) + " " + std::to_string(favourite.number);
}

void AppendLine(const char* word, const std::string& value, std::string& text) {
  if (!value.empty()) text += std::string(word) + " " + WithoutControls(value) + "\n";
}

std::string FormatShown(const SessionCapsule& capsule) {
  std::string text;
  AppendLine("frames-of", FormatImageGroups(capsule.framesOf), text);
  AppendLine("showers", capsule.showers ? "on" : "", text);
  AppendLine("sky", capsule.plainSky ? "none" : "", text);
  return text + FormatChart(capsule.chart);
}

std::string FormatOptions(const SessionCapsule& capsule) {
  std::string text = FormatShown(capsule);
  AppendLine("orbits", capsule.orbits, text);
  return text;
}

// visit(word, value, line) for each line of a text.
template <class Visit>
void ForLines(std::string_view text, Visit visit) {
  while (!text.empty()) {
    const auto line = text.substr(0, text.find('\n') + 1);
    const auto blank = line.find(' ');
    visit(line.substr(0, blank), line.substr(blank + 1, line.size() - blank - 2), line);
    text.remove_prefix(line.size());
  }
}

bool IsRepeated(std::string_view word) { return word == "eyepiece" || word == "sensor"; }

// What makes no sense beside the option.
std::string_view GetRival(std::string_view word) {
  if (word == "bortle") return "limit-magnitude";
  return word == "limit-magnitude" ? "bortle" : word;
}

bool IsOption(std::string_view word) {
  const auto& options = GetSessionOptions();
  return std::any_of(options.begin(), options.end(),
                     [word](const SessionOption& option) { return option.word == word; });
}

}  // namespace

bool IsNameableKind(int kind) {
  const std::string text = GetCodeText(kind);
  return GetFOURCC(text.c_str()) == kind && kind != -1 &&
         std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) > ' '; });
}

std::string FormatSession(const SessionCapsule& capsule) {
  std::string text(kFirstLine);
  text += "\n";
  AppendLine("language", capsule.language, text);
  AppendLine("size", std::to_string(capsule.size.width) + "x" + std::to_string(capsule.size.height), text);
  AppendLine("zone", capsule.zone, text);
  AppendLine("place", capsule.place, text);
  for (const auto& value : capsule.view) AppendLine("view", value, text);
  for (const auto& change : capsule.settings) AppendLine("set", change, text);
  for (const auto& favourite : capsule.favourites) {
    AppendLine("favourite", FormatFavourite(favourite), text);
  }
  for (const auto& mark : capsule.marks) AppendLine("mark", FormatFavourite(mark), text);
  text += FormatShown(capsule);
  AppendLine("tle", capsule.tle, text);
  AppendLine("orbits", capsule.orbits, text);
  for (const auto& marker : capsule.markers) AppendLine("marker", FormatMark(marker), text);
  for (const auto& file : capsule.data)
    AppendLine("data", FormatChecksum(file.checksum) + " " + file.name, text);
  return text + std::string(kEnd) + FormatChecksum(Checksum(text)) + "\n";
}

const std::vector<SessionOption>& GetSessionOptions() {
  static const std::vector<SessionOption> kOptions = {{"style", "screen|print|night|photo"},
                                                      {"landscape", "NUMBER|none"},
                                                      {"legend", "on|off"},
                                                      {"bortle", "1..9"},
                                                      {"limit-magnitude", "0..6.5"},
                                                      {"eyepiece", "DEGREES[ DEGREES...]"},
                                                      {"sensor", "WIDTHxHEIGHT@FOCUS[@ANGLE][ ...]"},
                                                      {"telrad", "on"},
                                                      {"sky", "none"},
                                                      {"frames-of", "constellations|deepsky|milkyway[,...]"},
                                                      {"showers", "on"},
                                                      {"orbits", "planets|moons|all|NAME[,NAME...]"}};
  return kOptions;
}

bool GetSessionOption(const SessionCapsule& capsule, std::string_view word, std::string& value) {
  if (!IsOption(word)) return false;
  std::string values;
  const std::string lines = FormatOptions(capsule);
  ForLines(lines, [&](std::string_view name, std::string_view text, std::string_view) {
    if (name == word) values += (values.empty() ? "" : " ") + std::string(text);
  });
  value = std::move(values);
  return true;
}

bool SetSessionOption(std::string_view word, std::string_view value, SessionCapsule& capsule) {
  if (!IsOption(word) || value.find('\n') != std::string_view::npos) return false;
  std::string lines;
  const std::string before = FormatOptions(capsule);
  ForLines(before, [&](std::string_view name, std::string_view, std::string_view line) {
    if (name != word && (value.empty() || name != GetRival(word))) lines += line;
  });
  while (!value.empty()) {
    const auto end = IsRepeated(word) ? value.find(' ') : std::string_view::npos;
    lines += std::string(word) + " " + std::string(value.substr(0, end)) + "\n";
    value = end == std::string_view::npos ? "" : value.substr(end + 1);
  }
  return SessionReader().ReadOptions(lines, capsule);
}

bool ParseSession(std::string_view text, SessionCapsule& capsule, std::string& error) {
  const auto first = text.find('\n');
  if (first == std::string_view::npos || text.substr(0, first) != kFirstLine) {
    error = "is no session (its first line wants '" + std::string(kFirstLine) + "')";
    return false;
  }
  const auto last = text.substr(0, text.size() - 1).rfind('\n') + 1;
  const auto end = text.substr(last);
  if (text.back() != '\n' || !end.starts_with(kEnd) ||
      ParseChecksum(end.substr(kEnd.size(), end.size() - kEnd.size() - 1)) !=
          Checksum(text.substr(0, last))) {
    error = "is damaged: its last line does not hold the checksum of the others";
    return false;
  }
  return SessionReader().Read(text.substr(first + 1, last - first - 1), capsule, error);
}

}  // namespace scene
