// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace host_test {

// What keeps the text from being well-formed XML as far as pictures use it: tags that nest and close, quoted
// attributes, no bare '<' or '&' in texts, one root. "" when nothing does.
inline std::string FindXmlFault(std::string_view xml) {
  std::vector<std::string> open;
  bool rooted = false;
  for (std::size_t at = 0; at < xml.size();) {
    const auto next = xml.find('<', at);
    for (auto amp = xml.find('&', at); amp < next && amp != std::string_view::npos;
         amp = xml.find('&', amp + 1)) {
      const auto end = xml.find(';', amp);
      if (end == std::string_view::npos || end - amp > 8) return "bare &";
    }
    if (next == std::string_view::npos) break;
    if (xml.substr(next, 2) == "<?") {
      at = xml.find("?>", next) + 2;
      continue;
    }
    std::size_t end = next + 1;
    for (char quote = 0; end < xml.size() && (quote || xml[end] != '>'); ++end) {
      if (xml[end] == '<') return "< inside a tag";
      if (quote && xml[end] == quote) {
        quote = 0;
      } else if (!quote && (xml[end] == '"' || xml[end] == '\'')) {
        quote = xml[end];
      }
    }
    if (end == xml.size()) return "tag without end";
    const std::string_view tag = xml.substr(next + 1, end - next - 1);
    const std::string name(
        tag.substr(tag.front() == '/' ? 1 : 0, tag.find_first_of(" \n/", 1) - (tag.front() == '/')));
    if (tag.front() == '/') {
      if (open.empty() || open.back() != name) return "unexpected </" + name + ">";
      open.pop_back();
    } else {
      if (open.empty() && rooted) return "second root " + name;
      rooted = true;
      if (tag.back() != '/') open.push_back(name);
    }
    at = end + 1;
  }
  if (!open.empty()) return "<" + open.back() + "> not closed";
  return rooted ? "" : "no element";
}

}  // namespace host_test
