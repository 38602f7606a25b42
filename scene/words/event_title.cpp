// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/words/event_title.h"

#include <algorithm>
#include <cmath>

#include "astro/meteor_showers.h"
#include "astro/solar_eclipses.h"
#include "common_interfaces/text_formats.h"
#include "scene/catalogs/object_names.h"
#include "scene/catalogs/texts.h"
#include "scene/search/body_name.h"

namespace scene {
namespace {

using astro::EventKind;
using CommonInterfaces::FormatLocalizedText;

// What stands behind the text of an event.
enum class Form {
  kPlain,
  kBody,
  kBodyAngle,  // in degrees
  kBodyNumber,
  kBodyMore,  // the event's other number
  kNumber,
  kEclipse,
  kOther,  // the other body
  kTwo,
  kMoonOfPlanet
};

struct Row {
  unsigned text;
  Form form;
};

// By kind.
constexpr Row kRows[] = {
    {900730, Form::kBody},         {900731, Form::kBodyAngle},    {900732, Form::kBody},
    {900733, Form::kPlain},        {900734, Form::kPlain},        {900735, Form::kPlain},
    {900736, Form::kPlain},        {900737, Form::kPlain},        {900738, Form::kPlain},
    {900739, Form::kPlain},        {900740, Form::kPlain},        {900741, Form::kPlain},
    {900742, Form::kPlain},        {900743, Form::kPlain},        {900744, Form::kPlain},
    {900745, Form::kPlain},        {900746, Form::kPlain},        {900747, Form::kPlain},
    {900748, Form::kPlain},        {900749, Form::kNumber},       {900750, Form::kNumber},
    {900751, Form::kPlain},        {900752, Form::kPlain},        {900753, Form::kEclipse},
    {900754, Form::kEclipse},      {900755, Form::kEclipse},      {900756, Form::kOther},
    {900757, Form::kOther},        {900758, Form::kTwo},          {900760, Form::kTwo},
    {900761, Form::kBody},         {900762, Form::kBody},         {900764, Form::kBodyMore},
    {900765, Form::kBodyAngle},    {900766, Form::kBodyAngle},    {900767, Form::kBody},
    {900768, Form::kBody},         {900769, Form::kBodyNumber},   {900770, Form::kBodyNumber},
    {900771, Form::kBodyNumber},   {900772, Form::kBody},         {900773, Form::kBodyAngle},
    {900774, Form::kBodyNumber},   {900715, Form::kMoonOfPlanet}, {900716, Form::kMoonOfPlanet},
    {900717, Form::kMoonOfPlanet}, {900718, Form::kMoonOfPlanet}};
static_assert(std::size(kRows) == astro::kEventKinds);

constexpr unsigned kMoonAndPhenomenon = 900775, kSouthOf = 900759, kWithTheSun = 900763;
constexpr unsigned kFirstLunar = 900315, kFirstSolar = 900318, kHybrid = 900776;

// The planets beyond the Earth are never before the Sun.
bool IsInner(const SSO_ID& planet) { return planet.number < astro::kEarthNumber; }

unsigned ChooseText(const astro::SkyEvent& event) {
  if (event.kind == EventKind::kConjunction && event.value < 0.0) return kSouthOf;
  if (event.kind == EventKind::kSuperiorConjunction && !IsInner(event.body)) return kWithTheSun;
  return kRows[static_cast<int>(event.kind)].text;
}

std::string GetEclipseKind(const astro::SkyEvent& event) {
  const auto text = [&event](unsigned first, auto kind) {
    return FormatLocalizedText(first + static_cast<unsigned>(event.detail - static_cast<int>(kind)), {});
  };
  if (event.kind == EventKind::kLunarEclipse) return text(kFirstLunar, astro::LunarEclipse::kPenumbral);
  if (event.kind == EventKind::kSolarEclipseHere) return text(kFirstSolar, astro::SolarEclipse::kPartial);
  if (event.detail == static_cast<int>(astro::SolarEclipseType::kHybrid))
    return FormatLocalizedText(kHybrid, {});
  return text(kFirstSolar, astro::SolarEclipseType::kPartial);
}

// Of a penumbral eclipse of the Moon the magnitude in the penumbra.
double GetEclipseMagnitude(const astro::SkyEvent& event) {
  return event.kind == EventKind::kLunarEclipse && event.value < 0.0 ? event.more : event.value;
}

}  // namespace

std::string GetShowerName(int number, const std::vector<Shower>& showers) {
  const std::string code = astro::GetVisualShowers()[static_cast<std::size_t>(number)].code;
  const auto named = std::find_if(showers.begin(), showers.end(),
                                  [&code](const Shower& shower) { return code == shower.record.code; });
  return named == showers.end() ? code : named->name;
}

std::string GetEventBody(const SSO_ID& id, const SkyCatalogs& catalogs, const std::vector<Shower>& showers) {
  if (id.kind == astro::kShowerKind) return GetShowerName(id.number, showers);
  if (id.IsEmpty()) return "";
  std::string name = GetBodyName(id, catalogs);
  if (name.empty()) name = ToUtf8(GetObjectName(id, catalogs));
  // The stars that are passed have numbers of the Bright Star Catalogue, which every catalog may lack.
  return name.empty() && id.kind == FourCC("star") ? "HR " + std::to_string(id.number) : name;
}

std::string GetEventTitle(const astro::SkyEvent& event, const SkyCatalogs& catalogs,
                          const std::vector<Shower>& showers) {
  const Row& row = kRows[static_cast<int>(event.kind)];
  const unsigned text = ChooseText(event);
  const std::string body = ToCodePage(GetEventBody(event.body, catalogs, showers)),
                    other = ToCodePage(GetEventBody(event.other, catalogs, showers));
  const double degrees = std::fabs(event.value) / kRadiansPerDegree;
  const auto format = [&]() -> std::string {
    switch (row.form) {
      case Form::kPlain:
        return FormatLocalizedText(text, {});
      case Form::kBody:
        return FormatLocalizedText(text, {body.c_str()});
      case Form::kBodyAngle:
        return FormatLocalizedText(text, {body.c_str(), degrees});
      case Form::kBodyNumber:
        return FormatLocalizedText(text, {body.c_str(), event.value});
      case Form::kBodyMore:
        return FormatLocalizedText(text, {body.c_str(), event.more});
      case Form::kNumber:
        return FormatLocalizedText(text, {event.value});
      case Form::kEclipse:
        return FormatLocalizedText(text, {GetEclipseKind(event).c_str(), GetEclipseMagnitude(event)});
      case Form::kOther:
        return FormatLocalizedText(text, {other.c_str()});
      case Form::kTwo:
        return FormatLocalizedText(text, {body.c_str(), other.c_str(), degrees});
      case Form::kMoonOfPlanet:
        break;
    }
    return FormatLocalizedText(kMoonAndPhenomenon, {body.c_str(), FormatLocalizedText(text, {}).c_str()});
  };
  return ToUtf8(format());
}

}  // namespace scene
