// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/commands/sequence.h"

#include <optional>

#include "scene/caption.h"
#include "paint/contact_sheet.h"
#include "skyview/reports/moment_text.h"
#include "paint/picture_file.h"
#include "skyview/session/playback.h"
#include "skyview/reports/status.h"
#include "utils/clock.h"

namespace skyview {
namespace {

using CommonInterfaces::Camera;

// Local time of the camera's zone, Universal Time without one.
std::string GetMomentText(const Camera& camera) {
  CommonInterfaces::_Date time;
  camera.GetUniversalTime(time);
  return FormatMoment(time.day, time.fraction + camera.GetLocUTCdelta());
}

void ComputeFrame(const Options& options, Camera& camera, scene::FrameMaker& maker) {
  camera.UpdateLocUTCDeltaFromTimeZone();
  maker.Prepare();
  scene::SkyFrame& frame = maker.GetFrame();
  frame.SetCaption(
      scene::MakeCaption(MakeStatus(camera, frame.GetCatalogs()), options.size.width, options.size.height));
  maker.Compute();
}

bool WriteFrame(const std::vector<FrameNames>& names, int number, const scene::SkyFrame& frame, std::string& error) {
  for (const auto& name : names) {
    if (!paint::WritePicture(frame.GetDisplayList(), name.Get(number), error)) return false;
  }
  return true;
}

}  // namespace

void SetAnimationClock(int frame) {
  constexpr double kFramesPerSecond = 10.0;
  AnimationInterval::m_CurrentTime = frame / kFramesPerSecond;
}

bool DrawSequence(const Options& options, Camera& camera, scene::FrameMaker& maker, std::string& error) {
  const int count = options.frames.value_or(1);
  std::vector<FrameNames> names;
  for (const auto& pattern : options.out) names.push_back(*FrameNames::Parse(pattern));
  std::optional<paint::ContactSheet> sheet;
  if (options.contactSheet) sheet.emplace(count, options.size.width, options.size.height);
  StartPlays(*options.play, camera);
  for (int number = 1; number <= count; ++number) {
    if (number > 1) AdvancePlays(camera);
    SetAnimationClock(number);
    ComputeFrame(options, camera, maker);
    if (!WriteFrame(names, number, maker.GetFrame(), error)) return false;
    if (sheet && !sheet->Add(maker.GetFrame().GetDisplayList(), GetMomentText(camera), error)) return false;
  }
  camera.StopAnyPlay();
  return !sheet || sheet->Write(*options.contactSheet, error);
}

}  // namespace skyview
