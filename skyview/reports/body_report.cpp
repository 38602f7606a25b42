// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/reports/body_report.h"

#include <algorithm>
#include <vector>

#include "common_interfaces/gazetteers.h"
#include "common_interfaces/panoramas.h"
#include "common_interfaces/planets_and_moons.h"
#include "scene/catalogs/name_key.h"
#include "scene/catalogs/object_names.h"
#include "scene/visibility/object_filter.h"
#include "skyview/reports/host_texts.h"
#include "utils/messages.h"
#include "utils/near_names.h"
#include "utils/path.h"

namespace skyview {
namespace {

using CommonInterfaces::PanoramaDesc;
using CommonInterfaces::PanoramaInfo;
using CommonInterfaces::PlanetMoonDescription;

constexpr const char* kBodyFile = "catalogs\\planets&moons\\planets&moons.txt";
constexpr const char* kNothing = "-";

// A body by its names, UTF-8.
struct Body {
  SSO_ID id;
  std::string written;    // in the description
  std::string localized;  // "" where the language has none of its own
  const std::string& GetName() const { return localized.empty() ? written : localized; }
};

class BodyReport {
 public:
  BodyReport() {
    SSO_ID id;
    for (bool more = m_Description.GetFirstPlanet(id); more; more = m_Description.GetNextPlanet(id)) Add(id);
    // Behind the planets: one description runs one enumeration of each kind.
    const std::size_t planets = m_Bodies.size();
    for (std::size_t i = 0; i < planets; ++i) {
      const SSO_ID planet = m_Bodies[i].id;
      for (bool more = m_Description.GetFirstMoon(id, planet); more; more = m_Description.GetNextMoon(id))
        Add(id);
    }
  }

  const Body* Find(const std::string& name) const {
    const std::string key = scene::MakeNameKey(name);
    for (const auto& body : m_Bodies) {
      if (scene::MakeNameKey(body.written) == key || scene::MakeNameKey(body.localized) == key) return &body;
    }
    return nullptr;
  }

  std::vector<std::string> GetNames() const {
    std::vector<std::string> names;
    for (const auto& body : m_Bodies) {
      names.push_back(body.GetName());
      names.push_back(body.written);
    }
    return names;
  }

  std::string Describe(const Body& body, std::vector<std::string>& diagnostics) const {
    std::string text = GetTitle(body) + "\n";
    AddLine(HostText::kParent, GetTitle(m_Description.GetParentObject(body.id)), text);
    AddLine(HostText::kMoons, ListMoons(body.id), text);
    AddLine(HostText::kGazetteer, FindGazetteer(body.id, diagnostics), text);
    AddPanoramas(body.id, text);
    return text;
  }

 private:
  void Add(const SSO_ID& id) {
    const char* const name = m_Description.GetObjectName(id);
    m_Bodies.push_back(
        {id, name ? scene::MessageToUtf8(name) : "", scene::ToUtf8(scene::GetPlanetOrMoonName(id))});
  }

  static std::string GetTitle(const Body& body) {
    return body.GetName() + " (" + scene::GetCodeText(body.id.kind) + " " + std::to_string(body.id.number) +
           ")";
  }

  std::string GetTitle(const SSO_ID& id) const {
    for (const auto& body : m_Bodies) {
      if (body.id == id) return GetTitle(body);
    }
    return id.IsEmpty() ? "" : scene::GetCodeText(id.kind) + " " + std::to_string(id.number);
  }

  std::string ListMoons(const SSO_ID& planet) const {
    std::vector<std::string> moons;
    for (const auto& body : m_Bodies) {
      if (body.id.kind != planet.kind && m_Description.GetParentObject(body.id) == planet) {
        moons.push_back(GetTitle(body));
      }
    }
    return moons.empty() ? "" : std::to_string(moons.size()) + ": " + JoinNames(moons);
  }

  static std::string FindGazetteer(const SSO_ID& id, std::vector<std::string>& diagnostics) {
    const std::size_t before = diagnostics.size();
    std::string name = CommonInterfaces::GetGazetteersFileName(id);
    diagnostics.resize(before);
    return name;
  }

  static std::string DescribePanorama(const PanoramaInfo& panorama) {
    std::string text = scene::MessageToUtf8(panorama.GetTitle());
    if (!text.empty()) text += ", ";
    text += panorama.GetPath();
    if (panorama.IsDefault()) text += ", " + scene::ToUtf8(Localize(HostText::kDefaultPanorama, {}));
    if (ZentharPath::GetPath(panorama.GetPath().c_str()).empty())
      text += ", " + scene::ToUtf8(Localize(HostText::kFileMissing, {}));
    return text;
  }

  void AddPanoramas(const SSO_ID& id, std::string& text) const {
    const auto* panoramas = m_Panoramas.GetPanoramas(id);
    if (!panoramas) return AddLine(HostText::kPanorama, "", text);
    for (const auto& panorama : *panoramas) AddLine(HostText::kPanorama, DescribePanorama(panorama), text);
  }

  static void AddLine(HostText caption, const std::string& value, std::string& text) {
    text += scene::ToUtf8(Localize(caption, {})) + ": " + (value.empty() ? kNothing : value) + "\n";
  }

  PlanetMoonDescription m_Description;
  PanoramaDesc m_Panoramas;
  std::vector<Body> m_Bodies;
};

}  // namespace

std::optional<std::string> DescribeBody(const std::string& name, std::vector<std::string>& diagnostics,
                                        std::string& error) {
  if (ZentharPath::GetPath(kBodyFile).empty()) {
    error = std::string(kBodyFile) + ": not found, which body wants";
    return std::nullopt;
  }
  const BodyReport report;
  if (const Body* body = report.Find(name)) return report.Describe(*body, diagnostics);
  const std::string near = JoinNames(FindNearNames(name, report.GetNames()));
  error = "body '" + name + "': no such body" + (near.empty() ? "" : "; similar: " + near);
  return std::nullopt;
}

}  // namespace skyview
