// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/star_trails.h"

#include <cairo.h>

#include <map>
#include <utility>

#include "paint/colour.h"
#include "paint/painter.h"
#include "paint/picture_file.h"
#include "paint/png_bytes.h"

namespace paint {
namespace {

using scene::Layer;
using Surface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;
using Context = std::unique_ptr<cairo_t, decltype(&cairo_destroy)>;

constexpr unsigned kSky = PaintScope::GetBit(Layer::kBackground) | PaintScope::GetBit(Layer::kMilkyWay) |
                          PaintScope::GetBit(Layer::kHaze);
constexpr unsigned kLights = PaintScope::GetBit(Layer::kStars) | PaintScope::GetBit(Layer::kBodies);
constexpr unsigned kGround = PaintScope::GetBit(Layer::kGround);

Surface MakeSurface(int width, int height) {
  return Surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, width, height), cairo_surface_destroy);
}

// The colour as it is seen on black, or on white paper: where trails of a transparent one cross and join they
// would grow brighter.
scene::Rgba MakeOpaque(const scene::Rgba& colour, bool onPaper) {
  const int ground = onPaper ? 255 : 0;
  const auto mix = [&](int channel) {
    return static_cast<unsigned char>(ground + (channel - ground) * colour.alpha / 255);
  };
  return {mix(colour.red), mix(colour.green), mix(colour.blue), 255};
}

bool IsGood(cairo_t* context, std::string& error) {
  if (cairo_status(context) == CAIRO_STATUS_SUCCESS) return true;
  error = cairo_status_to_string(cairo_status(context));
  return false;
}

}  // namespace

struct StarTrails::State {
  State(int width, int height)
      : frame(MakeSurface(width, height)),
        sum(MakeSurface(width, height)),
        ground(MakeSurface(width, height)) {}

  void AddTrails(const scene::DisplayList& list, bool onPaper, cairo_t* context);

  Surface frame, sum, ground;
  std::map<std::pair<int, int>, scene::Vertex> places;  // in the frame before, by kind and number
  bool empty = true;
};

// From where each light was to where it is. What turned up in this frame, and what jumped, leaves none.
void StarTrails::State::AddTrails(const scene::DisplayList& list, bool onPaper, cairo_t* context) {
  const double far = 0.25 * (list.GetWidth() + list.GetHeight());
  std::map<std::pair<int, int>, scene::Vertex> now;
  cairo_set_line_cap(context, CAIRO_LINE_CAP_ROUND);
  for (const auto& run : list.GetRuns()) {
    if (run.type != scene::RecordType::kPoint || !(kLights & PaintScope::GetBit(run.layer))) continue;
    for (int i = run.first; i < run.first + run.count; ++i) {
      const auto& point = list.GetPoints()[static_cast<std::size_t>(i)];
      const std::pair key(point.object.kind, point.object.number);
      if (key == std::pair(0, 0)) continue;
      now[key] = {point.x, point.y};
      const auto before = places.find(key);
      if (before == places.end()) continue;
      const double dx = point.x - before->second.x, dy = point.y - before->second.y;
      if (dx * dx + dy * dy > far * far) continue;
      SetColour(MakeOpaque(point.colour, onPaper), context);
      cairo_set_line_width(context, 2.0 * point.radius);
      cairo_move_to(context, before->second.x, before->second.y);
      cairo_line_to(context, point.x, point.y);
      cairo_stroke(context);
    }
  }
  places.swap(now);
}

StarTrails::StarTrails(int width, int height) : m_State(std::make_unique<State>(width, height)) {}
StarTrails::~StarTrails() = default;

bool StarTrails::Add(const scene::DisplayList& list, std::string& error) {
  State& state = *m_State;
  const bool onPaper = list.GetStyle() == scene::ChartStyle::kPrint;
  const Context frame(cairo_create(state.frame.get()), cairo_destroy);
  PaintDisplayList(list, frame.get(), {kSky | kLights, 0.0f});
  const Context sum(cairo_create(state.sum.get()), cairo_destroy);
  if (!state.empty) cairo_set_operator(sum.get(), onPaper ? CAIRO_OPERATOR_DARKEN : CAIRO_OPERATOR_LIGHTEN);
  cairo_set_source_surface(sum.get(), state.frame.get(), 0.0, 0.0);
  cairo_paint(sum.get());
  state.empty = false;
  state.AddTrails(list, onPaper, sum.get());
  const Context whole(cairo_create(state.ground.get()), cairo_destroy);
  cairo_set_source_surface(whole.get(), state.sum.get(), 0.0, 0.0);
  cairo_paint(whole.get());
  PaintDisplayList(list, whole.get(), {kGround, 0.0f});
  for (cairo_t* const context : {frame.get(), sum.get(), whole.get()}) {
    if (!IsGood(context, error)) return false;
  }
  return true;
}

bool StarTrails::Write(const std::string& path, std::string& error) {
  std::string bytes;
  if (MakePngBytes(m_State->ground.get(), bytes, error)) return WritePictureBytes(path, bytes, error);
  error = path + ": cannot be drawn: " + error;
  return false;
}

}  // namespace paint
