// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/reports/filter_text.h"

#include <cmath>

#include "common_interfaces/field_data.h"
#include "common_interfaces/queries.h"
#include "common_interfaces/string_table.h"
#include "scene/view/directions.h"
#include "scene/visibility/class_limits.h"
#include "skyview/reports/host_texts.h"
#include "utils/messages.h"
#include "utils/text.h"

namespace skyview {
namespace {

constexpr double kMinutesPerRadian = 60.0 / scene::kRadiansPerDegree;

std::string DescribeRange(const scene::FilterRule& rule, const scene::ObjectTraits& traits) {
  switch (rule.quantity) {
    case scene::Quantity::kMagnitude:
      return FormatText("lets magnitudes %.2f to %.2f pass, ", scene::MagnitudeOfCode(rule.least),
                        scene::MagnitudeOfCode(rule.most)) +
             (std::isnan(traits.code) ? "its own is unknown"
                                      : FormatText("it has %.2f", scene::MagnitudeOfCode(traits.code)));
    case scene::Quantity::kColour:
      return FormatText("lets colour indices %.2f to %.2f pass, ", rule.least, rule.most) +
             (std::isnan(traits.colour) ? "its own is unknown" : FormatText("it has %.2f", traits.colour));
    default:
      return FormatText("lets sizes of %.1f' to %.1f' pass, ", rule.least * kMinutesPerRadian,
                        rule.most * kMinutesPerRadian) +
             (std::isnan(traits.size) ? "its own is unknown"
                                      : FormatText("it has %.1f'", traits.size * kMinutesPerRadian));
  }
}

// The catalogues of those bits.
std::string ListCatalogs(unsigned bits, int section) {
  static const std::vector<std::string> stars = {"HR", "HIP", "Bayer letters", "Flamsteed numbers"};
  static const std::vector<std::string> deepsky = {"Messier", "NGC", "IC", "no catalogue"};
  const auto& names = section == FourCC("star") ? stars : deepsky;
  std::vector<std::string> listed;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (bits >> i & 1u) listed.push_back(names[i]);
  }
  return listed.empty() ? "none" : JoinNames(listed);
}

// A spectral class by its letter, a sub-type by the text whose identifier it is.
std::string NameClass(unsigned cls, int section) {
  constexpr char kSpectra[] = "OBAFGKM";
  if (cls == scene::ObjectTraits::kNoClass) return "unknown";
  if (section == FourCC("star"))
    return cls < sizeof kSpectra - 1 ? std::string(1, kSpectra[cls]) : std::to_string(cls);
  const char* name = CommonInterfaces::QX4Strings::GetString(cls, true);
  return name && *name ? scene::ToUtf8(name) : std::to_string(cls);
}

}  // namespace

std::string DescribeRule(const scene::FilterRule& rule, int section, const scene::ObjectTraits& traits) {
  switch (rule.condition) {
    case scene::kRangeCondition:
      return ": it " + DescribeRange(rule, traits);
    case scene::kSwitchesCondition:
      return ": it lets " + ListCatalogs(rule.wanted, section) + " pass, it is in " +
             ListCatalogs(traits.catalogs, section);
    case scene::kUndefinedCondition:
      return ": it lets no object pass of which the class is unknown";
    case CommonInterfaces::kLabelListCondition:
      return ": it lets the class " + NameClass(rule.wanted, section) + " pass, its own is " +
             NameClass(traits.cls, section);
    default:
      return "";
  }
}

}  // namespace skyview
