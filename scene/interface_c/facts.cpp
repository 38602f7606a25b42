// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/interface_c/sky.h"
#include "scene/words/object_facts.h"
#include "scene/words/reasons.h"

namespace {

// "Magnitude: -1.44" is a caption and a text; what has no caption is all text.
void AddFact(const scene::ObjectFact& fact, scene::List<SceneFact>& list) {
  const auto colon = fact.line.find(": ");
  const bool hasCaption = colon != std::string::npos;
  list.records.push_back({static_cast<int32_t>(fact.kind),
                          list.Keep(fact.line.substr(0, hasCaption ? colon : 0)),
                          list.Keep(fact.line.substr(hasCaption ? colon + 2 : 0))});
}

scene::List<SceneReason> MakeList(const scene::Explanation& why, const scene::ShownView& view) {
  scene::List<SceneReason> list;
  const auto add = [&list](SceneReasonKind kind, const std::string& text, const std::string& fix = "") {
    list.records.push_back({kind, list.Keep(text), list.Keep(fix)});
  };
  if (why.IsDrawn()) add(SCENE_REASON_DRAWN, scene::GetDrawnText());
  for (const auto& reason : scene::ListReasons(why, view.camera.GetZoom(), view.observer.horizon))
    add(SCENE_REASON_HIDDEN, reason.text, reason.fix);
  if (!why.IsDrawn() || !why.code) return list;
  add(SCENE_REASON_ZOOM, scene::DescribeZoomOfDrawing(why));
  add(SCENE_REASON_LABEL, scene::DescribeLabel(why));
  return list;
}

}  // namespace

int scene_get_facts(SceneSky* sky, SceneObject object, SceneArray* facts) {
  return scene::Call(sky, [&] {
    if (!scene::IsKnown(facts))
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "the array is null or its size too small");
    const auto found = scene::FindNamed(object, *sky);
    if (!found) return static_cast<int>(SCENE_NOT_FOUND);
    scene::List<SceneFact> list;
    for (const auto& fact : scene::ListCatalogFacts(*found, sky->GetSearch(), sky->catalogs))
      AddFact(fact, list);
    for (const auto& fact : scene::ListSightFacts(*found, sky->catalogs, sky->camera)) AddFact(fact, list);
    scene::Give(std::move(list), sky->facts, facts);
    return static_cast<int>(SCENE_OK);
  });
}

int scene_explain(SceneSky* sky, SceneObject object, SceneArray* reasons) {
  return scene::Call(sky, [&] {
    if (!scene::IsKnown(reasons))
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "the array is null or its size too small");
    const auto found = scene::FindNamed(object, *sky);
    if (!found) return static_cast<int>(SCENE_NOT_FOUND);
    const scene::SkyFrame& frame = sky->maker->GetFrame();
    if (frame.GetWidth() == 0) return scene::Fail(*sky, SCENE_NOT_FOUND, "no frame was computed");
    const scene::ShownView view = {frame,      sky->camera,  sky->maker->GetObserver(),
                                   sky->shown, sky->filters, sky->settings};
    scene::Give(MakeList(scene::Explain(*found, view), view), sky->reasons, reasons);
    return static_cast<int>(SCENE_OK);
  });
}
