// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Settings texts: what they build is read, dumped, and built again.
#include <sstream>
#include <string>

#include "fuzz/input.h"
#include "fuzz/scratch.h"
#include "skydata/files/source_error.h"
#include "skydata/settings/dump.h"
#include "skydata/settings/reader/file_reader.h"
#include "skydata/settings/text/compiler.h"
#include "skydata/settings/text/parser.h"

namespace {

using fuzz::Require;

std::string Build(const std::string& text) {
  const std::string folder = fuzz::Scratch::Get().Path("work");
  return skydata::CompileSettings(skydata::ParseSettingsText(text, folder + "/text"), folder);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  if (text.find("include") != std::string::npos) return 0;  // files of this machine
  std::string built;
  try {
    built = Build(text);
  } catch (const skydata::SourceError& error) {
    Require(!error.GetMessage().empty() && error.GetLine() >= 0, "a text that is refused says why and where");
    return 0;
  }
  static const skydata::FieldNames names;
  const auto file = skydata::ReadSettingsFile(built, names, skydata::RecordLayout::kCurrent);
  std::ostringstream dump;
  skydata::WriteSettingsText(file, dump);
  try {
    const std::string again = Build(dump.str());
    if (file.blocks.empty()) return 0;
    std::ostringstream second;
    skydata::WriteSettingsText(skydata::ReadSettingsFile(again, names, skydata::RecordLayout::kCurrent),
                               second);
    Require(second.str() == dump.str(), "a dump that is built dumps as the same");
  } catch (const skydata::SourceError& error) {
    Require(file.blocks.empty(), error.what());
  }
  return 0;
}
