// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Options as data: what a command line may name, what it means, and who reads it.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <utility>

namespace skyview {

// An option as the command line names it, what its value looks like ("": it takes none), and what it is for.
struct OptionText {
  const char* name;
  const char* form;
  const char* purpose;
};

enum class Times { kOnce, kAgain };

// One option of a group. `read` takes the value, or "" of an option without one, into the group; false when
// the text is not wholly of the accepted form. It is called for each time that the option was given, in that
// order.
template <class Group>
struct OptionRow {
  OptionText text;
  Times times;
  bool (*read)(const std::string& value, Group& group);
};

// Options that commands share.
template <class Group>
struct OptionGroup {
  const char* title;  // above them in the help
  std::span<const OptionRow<Group>> rows;
  void (*check)(
      const Group& group);  // throws Stop where they make no sense with each other; null: they always do
};

// What most readers do: a parser's answer, when there is one, goes to its place.
template <class Value, class Place>
bool Put(std::optional<Value> value, Place& place) {
  if (!value) return false;
  place = *std::move(value);
  return true;
}

inline std::optional<std::string> ParseName(const std::string& text) {
  if (text.empty()) return std::nullopt;
  return text;
}

// Throws the Stop of a value that is not of the form: "--zoom 'x': wants FACTOR (PURPOSE)".
[[noreturn]] void ThrowBadValue(const OptionText& option, const std::string& value);

}  // namespace skyview
