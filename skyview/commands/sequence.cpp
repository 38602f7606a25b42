// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/commands/sequence.h"

#include <optional>

#include "paint/contact_sheet.h"
#include "paint/picture_file.h"
#include "scene/caption.h"
#include "skyview/commands/start.h"
#include "skyview/reports/moment_text.h"
#include "skyview/reports/status.h"
#include "skyview/session/playback.h"
#include "utils/clock.h"

namespace skyview {
namespace {

using CommonInterfaces::Camera;

constexpr double kOrbitFadeIn = 1.0;  // seconds

// Local time of the camera's zone, Universal Time without one.
std::string GetMomentText(const Camera& camera) {
  CommonInterfaces::_Date time;
  camera.GetUniversalTime(time);
  return FormatMoment(time.day, time.fraction + camera.GetLocUTCdelta());
}

// The animation clock at a frame of a sequence.
void SetAnimationClock(int frame) {
  constexpr double kFramesPerSecond = 10.0;
  AnimationInterval::m_CurrentTime = frame / kFramesPerSecond;
}

void ComputeFrame(PictureSize size, Camera& camera, scene::FrameMaker& maker) {
  camera.UpdateLocUTCDeltaFromTimeZone();
  maker.Prepare();
  scene::SkyFrame& frame = maker.GetFrame();
  frame.SetCaption(scene::MakeCaption(MakeStatus(camera, frame.GetCatalogs()), size.width, size.height));
  maker.Compute();
}

void WriteFrame(const std::vector<FrameNames>& names, int number, const scene::SkyFrame& frame) {
  std::string error;
  for (const auto& name : names)
    Require(paint::WritePicture(frame.GetDisplayList(), name.Get(number), error), error);
}

}  // namespace

void ShowOrbits(const SequenceOptions& options, ShownSky& sky) {
  if (!options.play) return sky.ShowOrbits(0.0);
  SetAnimationClock(0);
  sky.ShowOrbits(kOrbitFadeIn);
  SetAnimationClock(1);
}

void DrawSequence(const SequenceOptions& options, const std::vector<std::string>& patterns, PictureSize size,
                  ShownSky& sky) {
  if (!options.play) return;
  Camera& camera = sky.GetCamera();
  scene::FrameMaker& maker = sky.GetMaker();
  const int count = options.frames.value_or(1);
  std::vector<FrameNames> names;
  for (const auto& pattern : patterns) names.push_back(*FrameNames::Parse(pattern));
  std::optional<paint::ContactSheet> sheet;
  if (options.contactSheet) sheet.emplace(count, size.width, size.height);
  std::string error;
  StartPlays(*options.play, camera);
  for (int number = 1; number <= count; ++number) {
    if (number > 1) AdvancePlays(camera);
    SetAnimationClock(number);
    ComputeFrame(size, camera, maker);
    WriteFrame(names, number, maker.GetFrame());
    Require(!sheet || sheet->Add(maker.GetFrame().GetDisplayList(), GetMomentText(camera), error), error);
  }
  camera.StopAnyPlay();
  Require(!sheet || sheet->Write(*options.contactSheet, error), error);
}

}  // namespace skyview
