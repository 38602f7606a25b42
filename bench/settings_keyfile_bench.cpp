// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The same work done by GKeyFile of GLib: an INI file, values kept as text, all of them whole numbers.
#include <glib.h>

#include "bench/scratch_file.h"
#include "bench/settings_work.h"

namespace bench {
namespace {

std::string SectionText(const FieldKey& key) { return std::to_string(key.section); }

struct KeyFile {
  KeyFile() = default;
  KeyFile(const KeyFile&) = delete;
  KeyFile& operator=(const KeyFile&) = delete;
  ~KeyFile() { g_key_file_free(file); }
  GKeyFile* const file = g_key_file_new();
};

void Fill(KeyFile& keyFile, const benchmark::State& state) {
  int value = 0;
  for (const FieldKey& key : MakeKeys(state))
    g_key_file_set_integer(keyFile.file, SectionText(key).c_str(), NameOf(key.field).c_str(), value++);
}

// The texts that its questions are made of.
struct TextKey {
  std::string section, name;
};

std::vector<TextKey> MakeTexts(const benchmark::State& state) {
  std::vector<TextKey> texts;
  for (const FieldKey& key : MakeKeys(state)) texts.push_back({SectionText(key), NameOf(key.field)});
  return texts;
}

void SettingsGetPeerKeyFile(benchmark::State& state) {
  KeyFile keyFile;
  Fill(keyFile, state);
  const auto texts = MakeTexts(state);
  RunOver(state, MakeQuestions(state), [&](const FieldKey& key) {
    const TextKey& text = texts[static_cast<std::size_t>(key.field)];
    return g_key_file_get_integer(keyFile.file, text.section.c_str(), text.name.c_str(), nullptr);
  });
}

void SettingsSetPeerKeyFile(benchmark::State& state) {
  KeyFile keyFile;
  Fill(keyFile, state);
  const auto texts = MakeTexts(state);
  int value = 0;
  RunOver(state, MakeQuestions(state), [&](const FieldKey& key) {
    const TextKey& text = texts[static_cast<std::size_t>(key.field)];
    g_key_file_set_integer(keyFile.file, text.section.c_str(), text.name.c_str(), ++value);
    return value;
  });
}

void SettingsLoadPeerKeyFile(benchmark::State& state) {
  const std::string path = ScratchPath("settings.ini");
  {
    KeyFile keyFile;
    Fill(keyFile, state);
    if (!g_key_file_save_to_file(keyFile.file, path.c_str(), nullptr)) state.SkipWithError("cannot write");
  }
  const FieldKey key = MakeKey(1, PerSection(state));
  for (auto _ : state) {
    KeyFile keyFile;
    g_key_file_load_from_file(keyFile.file, path.c_str(), G_KEY_FILE_NONE, nullptr);
    benchmark::DoNotOptimize(
        g_key_file_get_integer(keyFile.file, SectionText(key).c_str(), NameOf(key.field).c_str(), nullptr));
  }
  CountFields(state);
}

BENCHMARK(SettingsGetPeerKeyFile)->Apply(AllShapes);
BENCHMARK(SettingsSetPeerKeyFile)->Apply(AllShapes);
BENCHMARK(SettingsLoadPeerKeyFile)->Apply(Loads);

}  // namespace
}  // namespace bench
