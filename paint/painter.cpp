// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/painter.h"

#include <span>
#include <vector>

#include "paint/records.h"

namespace paint {
namespace {

template <class Record>
std::span<const Record> GetRecords(const std::vector<Record>& records, const scene::Run& run) {
  return {records.data() + run.first, static_cast<std::size_t>(run.count)};
}

void PaintTexts(const scene::DisplayList& list, const scene::Run& run, float least, cairo_t* context) {
  for (const auto& text : GetRecords(list.GetTexts(), run)) {
    if (text.size >= least) PaintText(list, text, context);
  }
}

void PaintRun(const scene::DisplayList& list, const scene::Run& run, const PaintScope& scope,
              cairo_t* context) {
  switch (run.type) {
    case scene::RecordType::kPoint:
      for (const auto& point : GetRecords(list.GetPoints(), run)) PaintPoint(point, context);
      break;
    case scene::RecordType::kDisc:
      for (const auto& disc : GetRecords(list.GetDiscs(), run)) PaintDisc(disc, context);
      break;
    case scene::RecordType::kGlobe:
      for (const auto& globe : GetRecords(list.GetGlobes(), run)) PaintGlobe(list, globe, context);
      break;
    case scene::RecordType::kShadow:
      for (const auto& shadow : GetRecords(list.GetShadows(), run)) PaintShadow(shadow, context);
      break;
    case scene::RecordType::kPolyline:
      PaintPolylines(list, GetRecords(list.GetPolylines(), run), context);
      break;
    case scene::RecordType::kEllipse:
      for (const auto& ellipse : GetRecords(list.GetEllipses(), run)) PaintEllipse(ellipse, context);
      break;
    case scene::RecordType::kPolygon:
      for (const auto& area : GetRecords(list.GetPolygons(), run)) PaintPolygon(list, area, context);
      break;
    case scene::RecordType::kGradient:
      for (const auto& gradient : GetRecords(list.GetGradients(), run)) PaintGradient(gradient, context);
      break;
    case scene::RecordType::kText:
      PaintTexts(list, run, scope.leastText, context);
      break;
    case scene::RecordType::kMesh:
      for (const auto& mesh : GetRecords(list.GetMeshes(), run)) PaintMesh(list, mesh, context);
      break;
  }
}

}  // namespace

void PaintDisplayList(const scene::DisplayList& list, cairo_t* context, const PaintScope& scope) {
  cairo_save(context);
  cairo_new_path(context);
  cairo_rectangle(context, 0.0, 0.0, list.GetWidth(), list.GetHeight());
  cairo_clip(context);
  for (const auto& run : list.GetRuns()) {
    if (scope.layers & PaintScope::GetBit(run.layer)) PaintRun(list, run, scope, context);
  }
  cairo_restore(context);
}

}  // namespace paint
