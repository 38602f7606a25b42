// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/session/choice.h"

#include "scene/view/base_plane.h"
#include "skyview/reports/host_texts.h"
#include "skyview/session/here_and_now.h"

namespace skyview {
namespace {

HostText ChooseText(const ViewOptions& options, const CommonInterfaces::Camera& camera) {
  if (!scene::IsNearSurface(camera)) return HostText::kChoseNow;
  const Standpoint standpoint = FindStandpoint(options, camera);
  if (standpoint == Standpoint::kHome) return HostText::kChoseTonightAtHome;
  return standpoint == Standpoint::kGiven ? HostText::kChoseTonightThere : HostText::kChoseTonight;
}

}  // namespace

std::string DescribeChoice(const ViewOptions& options, const CommonInterfaces::Camera& camera) {
  if (!FollowsClock(options) || options.clockTime) return "";
  return scene::ToUtf8(Localize(ChooseText(options, camera), {})) + "\n";
}

}  // namespace skyview
