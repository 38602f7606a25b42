// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <iostream>

#include "paint/picture_file.h"
#include "skyview/commands/command.h"
#include "skyview/commands/sequence.h"
#include "skyview/commands/shown_sky.h"
#include "skyview/commands/start.h"
#include "skyview/options/picture_group.h"
#include "utils/program.h"

namespace skyview {
namespace {

struct DrawOptions {
  RootOptions root;
  SkyOptions sky;
  PictureOptions pictures;
  SequenceOptions sequence;
  KeepOptions keep;
};

DrawOptions Parse(const Call& call) {
  DrawOptions options;
  CommandLine line(call.command.name, call.command.purpose);
  line.Take(kRootGroup, options.root);
  TakeSky(line, options.sky);
  line.Take(kPictureGroup, options.pictures);
  line.Take(kSequenceGroup, options.sequence);
  line.Take(kKeepGroup, options.keep);
  line.Check([&options] { CheckSequence(options.sequence, options.pictures); });
  line.Parse(call.arguments);
  return options;
}

void WritePictures(const DrawOptions& options, const scene::SkyFrame& frame) {
  if (options.sequence.play) return;  // the names are patterns
  std::string error;
  for (const auto& name : options.pictures.out)
    Require(paint::WritePicture(frame.GetDisplayList(), name, error, FindSheet(options.sky.chart)), error);
}

// Files that keep what was drawn.
void Keep(const DrawOptions& options, ShownSky& sky) {
  std::string error;
  const auto& [saveView, saveSession] = options.keep;
  if (saveView) Require(SaveView(sky.GetCamera(), *saveView, error), error);
  if (saveSession) {
    Require(SaveSession(*saveSession, options.root.GetLanguage(), options.sky, sky.GetView().settings,
                        sky.GetMarkers(), sky.GetMarks(), sky.GetCamera(), error),
            error);
  }
  KeepSettings(options.sky.settings, sky.GetView());
}

}  // namespace

std::string RunDraw(const Call& call) {
  DrawOptions options = Parse(call);
  SkyOptions& asked = options.sky;
  const auto session = Start(call, options.root, asked.view, asked.satellites, asked.extras, asked.chart);
  ShownSky sky(asked, session, call.clock, call.diagnostics);
  ShowOrbits(options.sequence, sky);
  sky.Compute();
  WritePictures(options, sky.GetMaker().GetFrame());
  Keep(options, sky);
  const std::string report = sky.MakeReport();
  DrawSequence(options.sequence, options.pictures.out, asked, sky, IsErrorTerminal() ? &std::cerr : nullptr);
  return report;
}

}  // namespace skyview
