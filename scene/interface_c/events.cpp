// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/interface_c/sky.h"
#include "scene/view/base_plane.h"
#include "scene/words/event_kinds.h"
#include "scene/words/event_search.h"
#include "scene/words/event_title.h"

namespace {

// The kinds that the text names; nothing, and its line, for a name that nothing has.
std::optional<scene::EventKinds> ReadKinds(std::string_view text, SceneSky& sky) {
  scene::EventKinds kinds;
  for (bool more = true; more;) {
    const auto comma = text.find(',');
    const std::string name(text.substr(0, comma));
    const scene::EventKinds named = scene::FindKinds(name);
    if (named.none()) {
      sky.error = "'" + name + "': no such kind of events";
      return std::nullopt;
    }
    kinds |= named;
    more = comma != std::string_view::npos;
    if (more) text.remove_prefix(comma + 1);
  }
  return kinds;
}

double GetValue(const astro::SkyEvent& event) {
  const bool isAngle = std::string_view(scene::GetUnitOfKind(event.kind)) == "deg";
  return isAngle ? event.value / scene::kRadiansPerDegree : event.value;
}

SceneObject Name(const SSO_ID& id) {
  return id.IsEmpty() ? SceneObject{0, 0} : SceneObject{id.kind, id.number};
}

void Add(const astro::SkyEvent& event, SceneSky& sky, scene::List<SceneEvent>& list) {
  const double date = scene::ToDate(event.moment);
  list.records.push_back({date, date - event.sinceBegin, date + event.untilEnd, GetValue(event),
                          Name(event.body), Name(event.other), scene::GetKindName(event.kind),
                          scene::GetKindGroup(event.kind),
                          list.Keep(scene::GetEventTitle(event, sky.catalogs, sky.GetShowers())),
                          scene::IsAboutPlace(event.kind), 0});
}

}  // namespace

int scene_find_events(SceneSky* sky, double begin, double end, const char* kinds, SceneArray* events) {
  return scene::Call(sky, [&] {
    constexpr double kLongest = 400.0;  // days
    if (!scene::IsKnown(events) || !scene::IsDate(begin) || !scene::IsDate(end) || end - begin > kLongest)
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "wants two dates at most 400 days apart and an array");
    const auto wanted = kinds ? ReadKinds(kinds, *sky) : scene::GetRareKinds();
    if (!wanted) return static_cast<int>(SCENE_BAD_ARGUMENT);
    astro::EventSearch search = {scene::ToMoment(begin), scene::ToMoment(end), std::nullopt};
    if (scene::IsNearSurface(sky->camera)) search.place = scene::GetPlace(sky->camera);
    const scene::FoundEvents found = scene::FindEvents(*wanted, search, sky->catalogs.bodies);
    scene::List<SceneEvent> list;
    for (const auto& event : found.events) Add(event, *sky, list);
    scene::Give(std::move(list), sky->events, events);
    if (found.complete) return static_cast<int>(SCENE_OK);
    return scene::Fail(*sky, SCENE_BAD_DATA, "nobody can tell for a part of the span");
  });
}
