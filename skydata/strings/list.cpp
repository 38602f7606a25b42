// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/strings/list.h"
#include "skydata/files/object_names.h"

#include "common_interfaces/text_formats.h"
#include "skydata/strings/source.h"

namespace skydata {
namespace {

using CommonInterfaces::TextUse;

std::string NameRange(const TextUse& use) {
  const std::string first = NameIdentifier(use.first);
  return use.first == use.last ? first : first + " to " + NameIdentifier(use.last);
}

// "int, double, text" for a format, "none" for one without arguments, "no format" for any other text.
std::string NameArguments(const TextUse& use) {
  if (!use.arguments) return "no format";
  std::string names;
  for (const char* type = use.arguments; *type; ++type) {
    if (!names.empty()) names += ", ";
    names += *type == 'd' ? "int" : *type == 'f' ? "double" : *type == 's' ? "text" : "character";
  }
  return names.empty() ? "none" : names;
}

std::string ListWith(const char* before, const char* between, const char* after) {
  std::string list;
  int count = 0;
  const TextUse* const uses = CommonInterfaces::GetTextUses(&count);
  for (int i = 0; i < count; ++i) {
    const TextUse& use = uses[i];
    list += before + NameRange(use) + between + NameArguments(use) + between + std::to_string(use.maxLength) +
            between + (use.isRequired ? "required" : "optional") + between + use.use + after;
  }
  return list;
}

}  // namespace

std::string ListTexts() { return ListWith("", "\t", "\n"); }

std::string ListTextsAsMarkdown() {
  return "| identifier | arguments | bytes | | use |\n|---|---|---|---|---|\n" +
         ListWith("| ", " | ", " |\n");
}

}  // namespace skydata
