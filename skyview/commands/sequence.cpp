// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/commands/sequence.h"

#include <optional>

#include "paint/animation.h"
#include "paint/contact_sheet.h"
#include "paint/picture_file.h"
#include "paint/star_trails.h"
#include "scene/frame/caption.h"
#include "scene/words/moment_text.h"
#include "skyview/commands/start.h"
#include "skyview/reports/status.h"
#include "skyview/session/playback.h"
#include "utils/clock.h"
#include "utils/messages.h"
#include "utils/progress_bar.h"

namespace skyview {
namespace {

using CommonInterfaces::Camera;

constexpr double kOrbitFadeIn = 1.0;  // seconds
constexpr int kFramesPerSecond = 10;  // of the animation clock and of animated pictures

// Local time of the camera's zone, Universal Time without one.
std::string GetMomentText(const Camera& camera) {
  CommonInterfaces::_Date time;
  camera.GetUniversalTime(time);
  return scene::FormatMoment(time.day, time.fraction + camera.GetLocUTCdelta());
}

// The animation clock at a frame of a sequence.
void SetAnimationClock(int frame) {
  AnimationInterval::m_CurrentTime = static_cast<double>(frame) / kFramesPerSecond;
}

void ComputeFrame(PictureSize size, Camera& camera, scene::FrameMaker& maker) {
  camera.UpdateLocUTCDeltaFromTimeZone();
  maker.Prepare();
  scene::SkyFrame& frame = maker.GetFrame();
  frame.SetCaption(scene::MakeCaption(MakeStatus(camera, frame.GetCatalogs()), size.width, size.height));
  maker.Compute();
}

// All that is made of the frames of a sequence. Throws Stop for what cannot be written.
class SequencePictures {
 public:
  SequencePictures(const SequenceOptions& options, const std::vector<std::string>& patterns,
                   const SkyOptions& asked)
      : m_Options(options), m_Sheet(FindSheet(asked.chart)) {
    const int count = options.frames.value_or(1);
    const PictureSize size = asked.view.GetSize();
    for (const auto& pattern : patterns) m_Names.push_back(*FrameNames::Parse(pattern));
    if (options.contactSheet) m_Copies.emplace(count, size.width, size.height);
    if (options.trails) m_Trails.emplace(size.width, size.height);
    if (!options.animation) return;
    m_Animation.emplace(count, kFramesPerSecond);
    Require(m_Animation->Open(*options.animation, m_Error), m_Error);
  }

  void Add(int number, const scene::DisplayList& list, const std::string& moment) {
    for (const auto& name : m_Names)
      Require(paint::WritePicture(list, name.Get(number), m_Error, m_Sheet), m_Error);
    Require(!m_Copies || m_Copies->Add(list, moment, m_Error), m_Error);
    Require(!m_Animation || m_Animation->Add(list, m_Error), m_Error);
    Require(!m_Trails || m_Trails->Add(list, m_Error), m_Error);
  }

  void Finish() {
    Require(!m_Copies || m_Copies->Write(*m_Options.contactSheet, m_Error), m_Error);
    Require(!m_Animation || m_Animation->Close(m_Error), m_Error);
    Require(!m_Trails || m_Trails->Write(*m_Options.trails, m_Error), m_Error);
  }

 private:
  const SequenceOptions& m_Options;
  std::optional<paint::Sheet> m_Sheet;
  std::vector<FrameNames> m_Names;
  std::optional<paint::ContactSheet> m_Copies;
  std::optional<paint::Animation> m_Animation;
  std::optional<paint::StarTrails> m_Trails;
  std::string m_Error;
};

}  // namespace

void ShowOrbits(const SequenceOptions& options, ShownSky& sky) {
  if (!options.play) return sky.ShowOrbits(0.0);
  SetAnimationClock(0);
  sky.ShowOrbits(kOrbitFadeIn);
  SetAnimationClock(1);
}

std::optional<paint::Sheet> FindSheet(const ChartOptions& chart) {
  if (!chart.page) return std::nullopt;
  return paint::Sheet{chart.page->width, chart.page->height, scene::Page::kMargin};
}

void DrawSequence(const SequenceOptions& options, const std::vector<std::string>& patterns,
                  const SkyOptions& asked, ShownSky& sky, std::ostream* terminal) {
  if (!options.play) return;
  Camera& camera = sky.GetCamera();
  scene::FrameMaker& maker = sky.GetMaker();
  const int count = options.frames.value_or(1);
  SequencePictures pictures(options, patterns, asked);
  ProgressBar progress(terminal);
  StartPlays(*options.play, camera);
  for (int number = 1; number <= count; ++number) {
    progress.Show(FormatText("frame %d of %d", number, count), (number - 1.0) / count);
    if (number > 1) AdvancePlays(camera);
    SetAnimationClock(number);
    ComputeFrame(asked.view.GetSize(), camera, maker);
    pictures.Add(number, maker.GetFrame().GetDisplayList(), GetMomentText(camera));
  }
  camera.StopAnyPlay();
  pictures.Finish();
}

}  // namespace skyview
