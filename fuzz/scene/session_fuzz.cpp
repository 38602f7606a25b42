// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Sessions, as they are and with their check sum mended. What is read is written as a session that reads as
// the same.
#include <string>

#include "fuzz/input.h"
#include "fuzz/scratch.h"
#include "scene/session/checksum.h"
#include "scene/session/session_file.h"

namespace {

using fuzz::Require;

void CheckOptions(const scene::SessionCapsule& read) {
  for (const scene::SessionOption& option : scene::GetSessionOptions()) {
    std::string value;
    Require(scene::GetSessionOption(read, option.word, value), "a listed option is known");
    scene::SessionCapsule other = read;
    Require(scene::SetSessionOption(option.word, value, other), "a value that was asked for can be set");
    std::string again;
    Require(scene::GetSessionOption(other, option.word, again) && again == value, "and is the same then");
  }
}

void Check(const std::string& text) {
  scene::SessionCapsule capsule;
  capsule.place = "untouched";
  std::string error;
  if (!scene::ParseSession(text, capsule, error)) {
    Require(capsule.place == "untouched" && capsule.view.empty(),
            "a session that is refused changes nothing");
    Require(!error.empty(), "and says why");
    return;
  }
  Require(!capsule.view.empty(), "a session has a view");
  const std::string written = scene::FormatSession(capsule);
  scene::SessionCapsule again;
  Require(scene::ParseSession(written, again, error), "a session that was written can be read");
  Require(scene::FormatSession(again) == written, "and is the same");
  Require(again.view.size() == capsule.view.size() && again.settings == capsule.settings,
          "with all of its view and its settings");
  CheckOptions(capsule);
}

// Ends with the sum of what stands before.
std::string Mend(std::string text) {
  const auto end = text.rfind("end ");
  if (end != std::string::npos) text.resize(end);
  return text + "end " + scene::FormatChecksum(scene::Checksum(text)) + "\n";
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  Check(text);
  Check(Mend(text));
  return 0;
}
