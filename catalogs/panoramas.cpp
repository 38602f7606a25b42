// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/panoramas.h"

#include "catalogs/line_fields.h"
#include "utils/debug.h"
#include "utils/path.h"
#include "utils/text.h"

namespace CommonInterfaces {
namespace {

constexpr std::size_t kFieldCount = 7;

// Up to and with the last separator, so that a name can follow.
std::string FolderOf(const std::string& path) { return path.substr(0, path.find_last_of("\\/") + 1); }

// A field that is no number counts as not given.
unsigned short ReadLow16Bits(const std::string& field) {
  int value = PanoramaInfo::kNotGiven;
  ReadNumber(field, value);
  return static_cast<unsigned short>(value & 0xFFFF);
}

}  // namespace

PanoramaDesc::PanoramaDesc(const char* path) {
  const std::string resolved = ZentharPath::GetPath(path);
  const std::string folder = FolderOf(resolved);
  ForEachLine(resolved, [&](const char* line) { LoadLine(line, folder); });
}

void PanoramaDesc::LoadLine(const char* line, const std::string& folder) {
  const auto fields = GetTokens(line, kFieldDelimiter);
  if (fields.size() < kFieldCount) return;
  const int kind = GetFOURCC(fields[0].c_str());
  int number = 0, flag = 0;
  if (kind == -1 || !ReadNumber(fields[1], number)) return;
  ReadNumber(fields[3], flag);
  PanoramaInfo info(ReadLow16Bits(fields[4]));
  info.SetPath(folder + fields[2]);
  info.SetDefault(flag > 0);
  info.SetTitle(fields[5]);
  info.SetLeftAzimuth(ReadLow16Bits(fields[6]));
  m_Panoramas[{kind, number}].push_back(std::move(info));
}

const PanoramaInfo* PanoramaDesc::GetPanorama(const SSO_ID& body, int index) const {
  const std::vector<PanoramaInfo>* const panoramas = GetPanoramas(body);
  if (panoramas && index >= 0 && static_cast<std::size_t>(index) < panoramas->size()) {
    return &(*panoramas)[static_cast<std::size_t>(index)];
  }
  PrintDebugString("Panorama for object (%d, %d) not found\n", body.kind, body.number);
  return nullptr;
}

const std::vector<PanoramaInfo>* PanoramaDesc::GetPanoramas(const SSO_ID& body) const {
  const auto found = m_Panoramas.find({body.kind, body.number});
  return found != m_Panoramas.end() ? &found->second : nullptr;
}

}  // namespace CommonInterfaces
