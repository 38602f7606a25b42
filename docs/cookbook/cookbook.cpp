// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The recipes of docs/cookbook.md: cookbook DATA_ROOT WORK NAME
#include <cstdio>
#include <string>
#include <string_view>

#include "recipes.h"

namespace {

struct Recipe {
  std::string_view name;
  void (*cook)(Kitchen& kitchen);
};
constexpr Recipe kRecipes[] = {
    {"aim", Aim},
    {"pixel", FindWhereAPixelLooks},
    {"follow", FollowAPlanet},
    {"keep", KeepTheView},
    {"two_cameras", RunTwoCameras},
    {"visible", ListWhatIsVisible},
    {"why", SayWhyNot},
    {"refraction", LiftByTheAir},
    {"click", FindWhatWasClicked},
    {"mark", MarkAPlace},
    {"rise", FindRisings},
    {"full_moons", FindFullMoons},
    {"tonight", ChooseForTonight},
    {"threads", WorkBesideTheFrame},
    {"settings", ReadSettings},
    {"filter", FilterTheSky},
    {"catalog", ReadACatalog},
    {"errors", TakeTheErrors},
    {"memory", CountAllocations},
    {"companion", PutAModelInItsPlace},
};

bool Cook(const Recipe& recipe, const char* data, const char* work, std::string& error) {
  scene::SkyCatalogs catalogs;
  if (!scene::OpenDataRoot(data, work, "en", catalogs, error)) return false;
  CommonInterfaces::Camera camera(1);  // looks for its files when it is made, so the roots come first
  camera.CreateDefault();
  if (!camera.ReadSelf("views:orion.data", 1)) {
    error = "views:orion.data: holds no view 1";
    return false;
  }
  camera.SetWinRect({1600, 1000, 1600, 1000});
  Kitchen kitchen = {catalogs, camera};
  recipe.cook(kitchen);
  return true;
}

}  // namespace

int main(int argumentCount, char** arguments) {
  for (const Recipe& recipe : kRecipes) {
    if (argumentCount != 4 || recipe.name != arguments[3]) continue;
    std::string error;
    if (Cook(recipe, arguments[1], arguments[2], error)) return 0;
    std::fprintf(stderr, "cookbook: %s\n", error.c_str());
    return 1;
  }
  std::fprintf(stderr, "usage: cookbook DATA_ROOT WORK NAME; names:");
  for (const Recipe& recipe : kRecipes) std::fprintf(stderr, " %s", recipe.name.data());
  std::fprintf(stderr, "\n");
  return 2;
}
