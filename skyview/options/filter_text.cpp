// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/options/filter_text.h"

#include <cmath>

#include "common_interfaces/field_data.h"
#include "common_interfaces/queries.h"
#include "common_interfaces/string_table.h"
#include "scene/visibility/class_limits.h"
#include "scene/view/directions.h"
#include "skyview/reports/host_texts.h"
#include "skyview/options/name_list.h"
#include "skyview/reports/text_format.h"
#include "utils/text.h"

namespace skyview {
namespace {

constexpr double kMinutesPerRadian = 60.0 / kRadiansPerDegree;

std::string DescribeRange(const FilterRule& rule, const ObjectTraits& traits) {
  switch (rule.quantity) {
    case Quantity::kMagnitude:
      return Format("lets magnitudes %.2f to %.2f pass, it has %.2f", MagnitudeOfCode(rule.least),
                    MagnitudeOfCode(rule.most), MagnitudeOfCode(traits.code));
    case Quantity::kColour:
      return Format("lets colour indices %.2f to %.2f pass, ", rule.least, rule.most) +
             (std::isnan(traits.colour) ? "its own is unknown" : Format("it has %.2f", traits.colour));
    default:
      return Format("lets sizes of %.1f' to %.1f' pass, ", rule.least * kMinutesPerRadian,
                    rule.most * kMinutesPerRadian) +
             (std::isnan(traits.size) ? "its own is unknown"
                                      : Format("it has %.1f'", traits.size * kMinutesPerRadian));
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
  if (cls == ObjectTraits::kNoClass) return "unknown";
  if (section == FourCC("star"))
    return cls < sizeof kSpectra - 1 ? std::string(1, kSpectra[cls]) : std::to_string(cls);
  const char* name = CommonInterfaces::QX4Strings::GetString(cls, true);
  return name && *name ? ToUtf8(name) : std::to_string(cls);
}

std::string DescribeRule(const FilterRule& rule, int section, const ObjectTraits& traits) {
  switch (rule.condition) {
    case kRangeCondition:
      return DescribeRange(rule, traits);
    case kSwitchesCondition:
      return "lets " + ListCatalogs(rule.wanted, section) + " pass, it is in " +
             ListCatalogs(traits.catalogs, section);
    case kUndefinedCondition:
      return "lets no object pass of which the class is unknown";
    case CommonInterfaces::kLabelListCondition:
      return "lets the class " + NameClass(rule.wanted, section) + " pass, its own is " +
             NameClass(traits.cls, section);
    default:
      return "";
  }
}

}  // namespace

std::vector<std::string> DescribeRejections(const ObjectFilter& filter, int section,
                                            const ObjectTraits& traits) {
  std::vector<std::string> lines;
  const std::string name = GetCodeText(section);
  for (const auto& rule : filter.GetRules()) {
    if (filter.Passes(rule, traits)) continue;
    if (rule.quantity == Quantity::kNumber) {
      lines.push_back("only the favourites of the section " + name + " are shown, and it is none of them");
      continue;
    }
    const std::string field = name + "." + GetFieldTitle(rule.nameId);
    lines.push_back("the filter " + field + " rejects it: it " + DescribeRule(rule, section, traits) +
                    " (--set " + field + ":off)");
  }
  return lines;
}

}  // namespace skyview
