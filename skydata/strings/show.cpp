// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/strings/show.h"
#include "skydata/files/object_names.h"

#include <set>
#include <sstream>

#include "common_interfaces/string_table.h"
#include "common_interfaces/text_formats.h"
#include "skydata/files/source_error.h"
#include "skydata/files/whole_file.h"
#include "skydata/strings/samples.h"
#include "skydata/strings/source.h"
#include "skydata/strings/table.h"
#include "utils/code_page.h"
#include "utils/locale.h"
#include "utils/path.h"
#include "utils/program.h"

namespace skydata {
namespace {

namespace fs = std::filesystem;
using CommonInterfaces::QX4Strings;
using CommonInterfaces::TextUse;

constexpr char kFileName[] = "qxstrings.txt";

void LoadTable(const fs::path& folder, const std::string& language) {
  ZentharPath::SetRoots(fs::absolute(folder).string().c_str(), nullptr);
  SetSystemLocale(language.c_str());
  QX4Strings::StartLocaleUpdate();
  const QX4Strings loaded;
  QX4Strings::FinishLocaleUpdate();
}

std::set<std::string> GetIdentifiers(const TextSamples& samples) {
  std::set<std::string> identifiers;
  for (const TextSample& sample : samples) {
    std::istringstream words(sample.identifiers);
    for (std::string word; words >> word;) identifiers.insert(word);
  }
  return identifiers;
}

void AddTexts(unsigned first, unsigned last, const char* use, const std::set<std::string>& shown,
              TextSamples& samples) {
  for (unsigned identifier = first; identifier <= last; ++identifier) {
    const char* const text = QX4Strings::GetString(identifier, true);
    const std::string name = NameIdentifier(identifier);
    if (text && !shown.count(name)) samples.push_back({name, use, text});
  }
}

// The texts that are in no sample, as they stand: those that the library hands on, then those of
// applications.
void AddPlainTexts(TextSamples& samples) {
  const std::set<std::string> shown = GetIdentifiers(samples);
  int count = 0;
  const TextUse* const uses = CommonInterfaces::GetTextUses(&count);
  for (int i = 0; i < count; ++i) AddTexts(uses[i].first, uses[i].last, uses[i].use, shown, samples);
  AddTexts(kFirstOfApplications, kLastOfApplications, "text of an application", shown, samples);
}

std::string ShowLoadedTable(const std::string& language) {
  TextSamples samples;
  AddTimeSamples(samples);
  AddPlaceSamples(samples);
  AddViewSamples(samples);
  AddObjectSamples(samples);
  AddPlainTexts(samples);
  std::string shown;
  for (const TextSample& sample : samples) {
    std::string text = sample.text;
    for (auto at = text.find('\n'); at != std::string::npos; at = text.find('\n', at))
      text.replace(at, 1, "\\n");
    shown += sample.identifiers + '\t' + sample.use + '\t' +
             CodePageToUtf8(GetCodePageOf(language.c_str()), text) + '\n';
  }
  return shown;
}

}  // namespace

fs::path FindDataRoot() {
  const fs::path prefix = fs::path(GetProgramFolder()).parent_path();
  const fs::path installed = prefix / "share" / "common_interfaces" / "data", built = prefix / "data";
  for (const auto& folder : {installed, built})
    if (fs::is_regular_file(folder / kFileName)) return folder;
  throw SourceError((installed / kFileName).string(), 0,
                    "not found, nor " + (built / kFileName).string() + "; --data names another data root");
}

std::string ShowLanguage(const fs::path& data, const std::string& language) {
  const fs::path folder = data / "languages" / language;
  if (!fs::is_regular_file(folder / kFileName))
    throw SourceError((folder / kFileName).string(), 0, "not found");
  LoadTable(folder, language);
  return ShowLoadedTable(language);
}

std::string ShowFile(const fs::path& path, const std::string& language) {
  const StringsSource source = ReadStrings(path, language);
  const ScratchFile folder(fs::temp_directory_path());
  ReplaceFile(folder.GetPath() / kFileName, MakeStringTable(source));
  LoadTable(folder.GetPath(), source.language);
  fs::remove(folder.GetPath() / kFileName);
  return ShowLoadedTable(source.language);
}

}  // namespace skydata
