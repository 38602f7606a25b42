// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/options/view_group.h"

#include "skyview/options/stop.h"

namespace skyview {
namespace {

constexpr std::size_t kMaxZoneName = 63;  // what a camera keeps

std::optional<std::string> ParseZone(const std::string& text) {
  if (text.empty() || text.size() > kMaxZoneName) return std::nullopt;
  return text;
}

bool ReadTime(const std::string& text, ViewOptions& view) {
  view.timeText = text;
  return Put(ParseClockTime(text), view.clockTime) || Put(ParseTime(text), view.time);
}

// What looks like numbers was meant to be coordinates.
bool ReadPlace(const std::string& text, ViewOptions& view) {
  if (Put(ParsePlace(text), view.place)) return true;
  const bool isName = text.find_first_not_of("0123456789+-., ") != std::string::npos;
  return isName && Put(ParseName(text), view.city);
}

bool ReadLook(const std::string& text, ViewOptions& view) {
  return Put(ParseLook(text), view.look) || Put(ParseAim(text), view.aim);
}

bool ReadMarker(const std::string& text, ViewOptions& view) {
  const auto mark = ParseMark(text);
  if (mark) view.markers.push_back(*mark);
  return mark.has_value();
}

constexpr OptionRow<ViewOptions> kRows[] = {
    {{"--view", "FILE[:ID]", "restore the view with this number, 1 when left out"},
     Times::kOnce,
     [](const std::string& text, ViewOptions& view) { return Put(ParseViewFile(text), view.view); }},
    {{"--session", "FILE", "restore the session that is kept in this file"},
     Times::kOnce,
     [](const std::string& text, ViewOptions& view) { return Put(ParseName(text), view.session); }},
    {{"--home", "", "go to the home on the Earth"},
     Times::kOnce,
     [](const std::string&, ViewOptions& view) { return view.home = true; }},
    {{"--moving-type", "N[,keep]",
      "change to this way of moving, 0 to 11, before the other view options; keep: with zoom and place"},
     Times::kOnce,
     [](const std::string& text, ViewOptions& view) { return Put(ParseMovingType(text), view.movingType); }},
    {{"--time", "YYYY-MM-DD[THH:MM[:SS]][Z|+HH:MM]|now|today|tonight",
      "moment, local in the zone unless Z or an offset stands behind it; today: noon; tonight: the middle of "
      "the "
      "night that ends with the next sunrise at the place (default without a saved view: tonight)"},
     Times::kOnce,
     ReadTime},
    {{"--zone", "NAME", "time zone of the IANA database, for example Europe/Berlin"},
     Times::kOnce,
     [](const std::string& text, ViewOptions& view) { return Put(ParseZone(text), view.zone); }},
    {{"--place", "LAT,LON|CITY[,COUNTRY]",
      "degrees, north and east positive, for example 52.52,13.405; or a city, with its height and, without "
      "--zone, its time zone"},
     Times::kOnce,
     ReadPlace},
    {{"--look", "AZ,ALT|NAME[@ZOOM]",
      "degrees, azimuth 0 to 360 from north over east, altitude -90 to 90; or an object, with the zoom "
      "behind @"},
     Times::kOnce,
     ReadLook},
    {{"--zoom", "FACTOR", "0.25 to 10000; 1 shows 37 degrees from the centre to a corner"},
     Times::kOnce,
     [](const std::string& text, ViewOptions& view) { return Put(ParseZoom(text), view.zoom); }},
    {{"--fov", "DEGREES", "the angle across the picture, 0.0001 to 359, in place of --zoom"},
     Times::kOnce,
     [](const std::string& text, ViewOptions& view) { return Put(ParseField(text), view.field); }},
    {{"--size", "WIDTHxHEIGHT", "pixels, each 64 to 16384 (default: 1600x1000)"},
     Times::kOnce,
     [](const std::string& text, ViewOptions& view) { return Put(ParseSize(text), view.size); }},
    {{"--marker", "RA,DEC[,ID]",
      "mark this place of the sky, degrees J2000, or hours with h behind RA; may be given again"},
     Times::kAgain,
     ReadMarker}};

void CheckZoom(const ViewOptions& view) {
  if (view.zoom && view.field) throw Stop{kBadOption, "--fov: says the zoom, wants no --zoom beside it"};
  if (!view.aim || !view.aim->zoom || (!view.zoom && !view.field)) return;
  throw Stop{kBadOption, "--look " + view.aim->name + "@ZOOM: says the zoom, wants no " +
                             (view.zoom ? "--zoom" : "--fov") + " beside it"};
}

void Check(const ViewOptions& view) {
  CheckZoom(view);
  if (view.markers.size() > static_cast<std::size_t>(kMaxMarks))
    throw Stop{kBadOption, "--marker: given more than " + std::to_string(kMaxMarks) + " times"};
  if (view.session && view.view) throw Stop{kBadOption, "--session: holds a view, wants no --view beside it"};
}

}  // namespace

const OptionGroup<ViewOptions> kViewGroup = {"View", kRows, Check};

}  // namespace skyview
