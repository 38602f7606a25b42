// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/text_layer.h"

#include <cstdio>

namespace paint {
namespace {

void AppendEscaped(const char* text, std::string& to) {
  for (; *text; ++text) {
    switch (*text) {
      case '&':
        to += "&amp;";
        break;
      case '<':
        to += "&lt;";
        break;
      case '>':
        to += "&gt;";
        break;
      default:
        to += *text;
    }
  }
}

const char* GetAnchor(float anchor) { return anchor == 0.0f ? "start" : anchor == 1.0f ? "end" : "middle"; }

}  // namespace

std::string MakeTextLayer(const scene::DisplayList& list) {
  std::string layer = "<g id=\"labels\" fill-opacity=\"0\" font-family=\"sans-serif\">\n";
  char start[160];
  for (const auto& text : list.GetTexts()) {
    std::snprintf(start, sizeof start, "<text x=\"%.1f\" y=\"%.1f\" font-size=\"%.1f\" text-anchor=\"%s\">",
                  static_cast<double>(text.x), static_cast<double>(text.y), static_cast<double>(text.size),
                  GetAnchor(text.anchor));
    layer += start;
    AppendEscaped(list.GetText(text), layer);
    layer += "</text>\n";
  }
  return layer + "</g>\n";
}

}  // namespace paint
