// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "scene/frame_helpers.h"
#include "scene/search/why.h"

namespace host_test {

// A frame over catalogs of its own, and what was asked of it.
class WhyFixture : public testing::Test {
 protected:
  void Compute() {
    f.observer = scene::PrepareObserver(f.camera);
    f.shown = scene::ReadShownKinds(settings);
    f.shown.naturalSky = naturalSky;
    filters.Refresh(settings);
    frame->Compute(f.camera, f.observer, f.shown, filters);
  }
  void UseCatalogs() {
    std::string error;
    ASSERT_TRUE(LoadSkyCatalogs(catalogs, error)) << error;
    frame = std::make_unique<scene::SkyFrame>(catalogs);
  }
  scene::Explanation Why(const scene::FoundObject& object) { return scene::Explain(object, GetView()); }
  scene::Explanation Why(const std::string& name) {
    std::string error;
    return Why(scene::ObjectSearch(catalogs).FindOne(name, error).value());
  }
  scene::ShownView GetView() { return {*frame, f.camera, f.observer, f.shown, filters, settings}; }

  FrameFixture f;
  bool naturalSky = true;
  CommonInterfaces::SettingsData settings{1, FourCC("FLTR"), "nothing.data"};
  scene::ObjectFilters filters;
  scene::SkyCatalogs catalogs;
  std::unique_ptr<scene::SkyFrame> frame;
};

}  // namespace host_test
