// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The landscapes that can be seen from the surface of a body. File format: docs/formats/panoramas.md.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "astro/object_id.h"
#include "common_interfaces/api.h"

namespace CommonInterfaces {

// One landscape: a picture of the horizon all around and what the surface view has to know about it. A plain
// value.
class COMMON_INTERFACES_API PanoramaInfo {
 public:
  static constexpr unsigned short kNotGiven = 0xFFFF;

  // Everything but the identifier starts as not given.
  explicit PanoramaInfo(unsigned short id = kNotGiven) : m_Id(id) {}

  const std::string& GetPath() const { return m_Path; }    // the picture, a resolved path
  bool IsDefault() const { return m_IsDefault; }           // shown to a user who chose none
  unsigned short GetId() const { return m_Id; }            // what settings keep of a choice
  const std::string& GetTitle() const { return m_Title; }  // the text as it stands in the file
  // Azimuth of the picture's left edge, degrees from north over east.
  unsigned short GetLeftAzimuth() const { return m_LeftAzimuth; }

  void SetPath(const std::string& path) { m_Path = path; }
  void SetDefault(bool isDefault) { m_IsDefault = isDefault; }
  void SetTitle(const std::string& title) { m_Title = title; }
  void SetLeftAzimuth(unsigned short degrees) { m_LeftAzimuth = degrees; }

 private:
  std::string m_Path;
  bool m_IsDefault = false;
  unsigned short m_Id;
  std::string m_Title;
  unsigned short m_LeftAzimuth = kNotGiven;
};

// The landscapes of all bodies, loaded once, by the constructor; afterwards every thread may ask. The
// description owns what it hands out.
class COMMON_INTERFACES_API PanoramaDesc {
 public:
  // A missing file leaves the description empty, a line that cannot be used is skipped; neither prints
  // anything.
  explicit PanoramaDesc(const char* path = "media:surface:panoramas.ini");

  // The landscape of the body, counted from 0 in the order of the file. For a body without any, and for an
  // index outside its list (negative ones too), null and one line "Panorama for object (%d, %d) not found\n".
  const PanoramaInfo* GetPanorama(const SSO_ID& body, int index) const;

  // All landscapes of the body in the order of the file; null, without a message, when it has none.
  const std::vector<PanoramaInfo>* GetPanoramas(const SSO_ID& body) const;

 private:
  void LoadLine(const char* line, const std::string& folder);

  std::map<std::pair<int, int>, std::vector<PanoramaInfo>> m_Panoramas;  // by kind, then number
};

}  // namespace CommonInterfaces
