// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "common_interfaces/object_lists.h"
#include "support/debug_capture.h"
#include "support/temp_dir.h"
#include "utils/text.h"

namespace object_lists {

using CommonInterfaces::ChoosingObjectsFile;
using CommonInterfaces::FavouriteObjectsFile;
using CommonInterfaces::ObjectDesc;
using CommonInterfaces::SelectedObjectsFile;

// "star" as files spell it is 1937006962, "gala" 1734437985.
inline constexpr char kFavourites[] = "work/catalogs/favourites.txt";
inline constexpr char kSelection[] = "catalogs:selection.txt";
inline constexpr char kSelectionFile[] = "work/catalogs/selection.txt";
inline constexpr char kChosenFile[] = "work/catalogs/observationobjects.txt";

// Short words for what an identifier holds.
inline std::string Text(const SSO_ID& object) {
  return std::string(object.name) + "|" + std::to_string(object.kind) + "|" + std::to_string(object.number) +
         "|" + std::to_string(object.third) + "|" + std::to_string(object.fourth);
}
inline std::string Text(const ObjectDesc& object) {
  return object.name + "|" + std::to_string(object.kind) + "|" + std::to_string(object.number);
}
template <class Entry>
std::vector<std::string> Texts(const std::vector<Entry>& objects) {
  std::vector<std::string> texts;
  for (const auto& object : objects) texts.push_back(Text(object));
  return texts;
}
using Lines = std::vector<std::string>;

inline SSO_ID Object(int kind, int number, const char* name = "") {
  SSO_ID object(kind, number);
  std::strncpy(object.name, name, sizeof object.name - 1);
  return object;
}

class ObjectLists : public testing::Test {
 protected:
  Lines ReadFavourites(const std::string& content) {
    roots.dir.Write(kFavourites, content);
    FavouriteObjectsFile favourites;
    favourites.Read();
    return Texts(favourites.GetObjects());
  }
  Lines ReadSelection(const std::string& content) {
    roots.dir.Write(kSelectionFile, content);
    std::vector<ObjectDesc> objects;
    SelectedObjectsFile(kSelection).GetObjects(objects);
    return Texts(objects);
  }
  Lines ReadChosen(const std::string& content) {
    roots.dir.Write(kChosenFile, content);
    std::vector<SSO_ID> objects;
    ChoosingObjectsFile().GetObjects(objects);
    return Texts(objects);
  }

  test_support::TempRoots roots;
  test_support::DebugCapture debug;
};

}  // namespace object_lists
