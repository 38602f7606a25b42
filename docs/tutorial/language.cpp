// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Says the same in every language of a data root: tutorial_language DATA_ROOT
#include <common_interfaces/common_interfaces.h>
#include <scene/scene.h>

#include <cstdio>
#include <string>

namespace {

// Texts in memory are in the code page of their language; what is printed is UTF-8.
void PrintTexts(CommonInterfaces::Camera& camera) {
  std::string caption;
  const std::string date = CommonInterfaces::GetDateString(&camera, caption);
  const scene::CompassLetters compass = scene::FetchCompassLetters();
  std::printf("  %s, %s\n", scene::ToUtf8(date).c_str(), scene::ToUtf8(caption).c_str());
  std::printf("  %s %s %s %s\n", compass.text[0], compass.text[2], compass.text[4], compass.text[6]);
  std::printf("  %s\n",
              scene::ToUtf8(CommonInterfaces::QX4Strings::GetString(FourCC("comt"), false)).c_str());
}

bool Run(const char* data, std::string& error) {
  if (!scene::SetSkyRoots(data, "", error)) return false;
  CommonInterfaces::Camera camera(1);
  camera.CreateDefault();
  camera.ReadSelf("views:orion.data", 1);
  for (const std::string& language : scene::FindLanguages(data)) {
    // Whoever keeps a text takes it anew when the function is called; nobody does here.
    if (!scene::SwitchLanguage(
            data, language, [] {}, error))
      return false;
    std::printf("%s\n", language.c_str());
    PrintTexts(camera);
  }
  return true;
}

}  // namespace

int main(int argumentCount, char** arguments) {
  if (argumentCount != 2) {
    std::fprintf(stderr, "usage: tutorial_language DATA_ROOT\n");
    return 2;
  }
  std::string error;
  if (Run(arguments[1], error)) return 0;
  std::fprintf(stderr, "tutorial_language: %s\n", error.c_str());
  return 1;
}
