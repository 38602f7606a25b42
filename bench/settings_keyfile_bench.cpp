// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The same work done by GKeyFile of GLib: an INI file, values kept as text.
#include <glib.h>

#include "bench/scratch_file.h"
#include "bench/settings_work.h"

namespace bench {
namespace {

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
    g_key_file_set_integer(keyFile.file, key.sectionText.c_str(), key.name.c_str(), value++);
}

void SettingsGetPeerKeyFile(benchmark::State& state) {
  KeyFile keyFile;
  Fill(keyFile, state);
  const auto keys = MakeQuestions(state);
  for (auto _ : state) {
    for (const FieldKey& key : keys)
      benchmark::DoNotOptimize(
          g_key_file_get_integer(keyFile.file, key.sectionText.c_str(), key.name.c_str(), nullptr));
  }
  CountQuestions(state);
}

void SettingsSetPeerKeyFile(benchmark::State& state) {
  KeyFile keyFile;
  Fill(keyFile, state);
  const auto keys = MakeQuestions(state);
  int value = 0;
  for (auto _ : state) {
    ++value;
    for (const FieldKey& key : keys)
      g_key_file_set_integer(keyFile.file, key.sectionText.c_str(), key.name.c_str(), value);
  }
  CountQuestions(state);
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
        g_key_file_get_integer(keyFile.file, key.sectionText.c_str(), key.name.c_str(), nullptr));
  }
  CountFields(state);
}

BENCHMARK(SettingsGetPeerKeyFile)->Apply(AllShapes);
BENCHMARK(SettingsSetPeerKeyFile)->Apply(AllShapes);
BENCHMARK(SettingsLoadPeerKeyFile)->Apply(Loads);

}  // namespace
}  // namespace bench
