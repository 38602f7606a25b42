// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The readers of catalogs and the lists of objects while memory runs out.
#include <memory>

#include "catalogs/observation_times_inside.h"
#include "common_interfaces/flight_objects.h"
#include "common_interfaces/gazetteers.h"
#include "common_interfaces/meteor_showers.h"
#include "common_interfaces/object_articles.h"
#include "common_interfaces/object_lists.h"
#include "common_interfaces/observation_times.h"
#include "common_interfaces/panoramas.h"
#include "common_interfaces/planets_and_moons.h"
#include "common_interfaces/sky_images.h"
#include "memory/every_allocation.h"
#include "memory/made.h"
#include "settings/field_bytes.h"
#include "support/string_table_file.h"
#include "support/temp_dir.h"

namespace test_support {
namespace {

using namespace CommonInterfaces;
using namespace memory_tests;

class CatalogsMemory : public testing::Test {
 protected:
  TempRoots m_Roots;
};

TEST_F(CatalogsMemory, PlanetsAndMoonsAreRead) {
  m_Roots.dir.Write(
      "data/catalogs/planets&moons/planets&moons.txt",
      "plnt\t1\tMercury\nplnt\t2\tA planet with a long name, which has to be allocated\nmoon\t201\tM\n");
  FailMaking<PlanetMoonDescription>([] { return std::make_unique<PlanetMoonDescription>(); },
                                    [](PlanetMoonDescription& bodies) {
                                      return std::string(bodies.GetObjectName({FourCC("plnt"), 2})) +
                                             bodies.GetObjectName({FourCC("moon"), 201});
                                    });
}

// Their text 3007 is asked for.
TEST_F(CatalogsMemory, PlanetsAndMoonsAreMissing) {
  LoadStrings(m_Roots, "3007\tThe file %s cannot be read, which is a text of some length\n");
  FailMaking<PlanetMoonDescription>([] { return std::make_unique<PlanetMoonDescription>(); },
                                    [](PlanetMoonDescription& bodies) {
                                      return std::to_string(bodies.HasMoons({FourCC("plnt"), 2}));
                                    });
}

TEST_F(CatalogsMemory, PanoramasAreRead) {
  m_Roots.dir.Write("data/media/surface/panoramas.ini",
                    "plnt\t4\tgale.png\t1\t17\tThe crater of the name of Gale\t90\n");
  FailMaking<PanoramaDesc>([] { return std::make_unique<PanoramaDesc>(); },
                           [](PanoramaDesc& panoramas) {
                             return panoramas.GetPanorama({FourCC("plnt"), 4}, 0)->GetTitle();
                           });
}

TEST_F(CatalogsMemory, ArticlesAreRead) {
  std::string table;
  for (unsigned i = 0; i < 50; ++i)
    table += LittleEndian(static_cast<unsigned>(FourCC("star")), 4) + LittleEndian(i, 4) +
             LittleEndian(i + 100, 4);
  m_Roots.dir.Write("data/media/find/object_articles_table.bin", table);
  FailMaking<ArticlesInformation>(
      [] { return std::make_unique<ArticlesInformation>(); },
      [](ArticlesInformation& articles) { return std::to_string(articles.GetArticleId(FourCC("star"), 7)); });
}

TEST_F(CatalogsMemory, FlightsAreRead) {
  std::string table = LittleEndian(static_cast<unsigned>(FourCC("star")), 4) + LittleEndian(40, 4);
  for (unsigned i = 0; i < 40; ++i) table += LittleEndian(2 * i, 4);
  m_Roots.dir.Write("data/media/find/object_distances_table.bin", table);
  FailMaking<General3DFlightObjectsList>([] { return std::make_unique<General3DFlightObjectsList>(); },
                                         [](General3DFlightObjectsList& list) {
                                           return std::to_string(list.objectInList(FourCC("star"), 4)) +
                                                  std::to_string(list.objectInList(FourCC("star"), 5));
                                         });
}

TEST_F(CatalogsMemory, OtherFlightsAreRead) {
  FailMaking<Voyvane3DFlightObjectsList>(
      [] { return std::make_unique<Voyvane3DFlightObjectsList>(); },
      [](Voyvane3DFlightObjectsList& list) { return std::to_string(list.objectInList(FourCC("star"), 4)); });
}

// The instances share one list: one that could not be made leaves it to the next.
TEST_F(CatalogsMemory, ConstellationImagesAreRead) {
  m_Roots.dir.Write("data/media/skyobjects/constell_images/constell.dat",
                    std::string("\0\3", 2) + std::string(3 * 36, '\1'));
  FailMaking<CSTLImages>(
      [] { return std::make_unique<CSTLImages>(); },
      [](CSTLImages& images) { return std::to_string(images.GetEnd() - images.GetBegin()); });
}

std::string StateOfImages() {
  std::string state = std::to_string(DSOImages::s_IndependentImages.size());
  DSOImages images;
  for (const DSOImageDesc* image = images.GetFirst(); image; image = images.GetNext())
    state += ' ' + std::to_string(image->number);
  return state;
}

std::string ImageLines(int first) {
  std::string lines;
  for (int i = first; i < first + 20; ++i)
    lines += std::to_string(i) + " 10.0 0 1.5 20 0 " + (i % 2 ? "2" : "0") + " 1 1\n";
  return lines;
}

TEST_F(CatalogsMemory, DeepskyImagesAreRead) {
  m_Roots.dir.Write("data/media/skyobjects/dso_images/dsoimagestrue.txt", ImageLines(1));
  FailMaking<DSOImages>([] { return std::make_unique<DSOImages>(); },
                        [](DSOImages&) { return StateOfImages(); });
}

TEST_F(CatalogsMemory, DeepskyImagesAreReadAgain) {
  const char* const file = "data/media/skyobjects/dso_images/dsoimagestrue.txt";
  const auto prepare = [&] {
    m_Roots.dir.Write(file, ImageLines(1));
    auto images = std::make_unique<DSOImages>();
    m_Roots.dir.Write(file, ImageLines(100));
    return images;
  };
  FailEveryAllocation(
      prepare, [](DSOImages&) { DSOImages::Reload(); }, [](DSOImages&) { return StateOfImages(); });
}

TEST_F(CatalogsMemory, ShowersAreAppended) {
  LoadStrings(m_Roots,
              "6101\tPerseids;17;7;12;8;24;8;PER;109P/Swift-Tuttle;3;12;+58\n"
              "6102\tGeminids;4;12;14;12;17;12;GEM;3200 Phaethon, of which there is more to say;7;28;+33\n");
  const auto prepare = [] { return std::make_unique<std::vector<SHOWER>>(3); };
  FailEveryAllocation(
      prepare, [](std::vector<SHOWER>& showers) { EXPECT_TRUE(ReadMeteorShowers(&showers)); },
      [](const std::vector<SHOWER>& showers) {
        return std::to_string(showers.size()) + showers.front().name + showers.back().name;
      });
}

// Read once a process, and again when that could not be done.
TEST_F(CatalogsMemory, ObservationTimesAreRead) {
  m_Roots.dir.Write("data/catalogs/comets/best_observation_time.ini",
                    "comt\t1\t5/7/1986 12.5\ncomt\t1\t5/7/1996 12.5\n");
  const auto prepare = [] {
    ForgetObservationTimesForTests();
    return std::make_unique<_Date>();
  };
  FailEveryAllocation(
      prepare,
      [](_Date& date) {
        EXPECT_TRUE(GetObsTimeFromFile(&date, {FourCC("comt"), 1}, 2000));
      },
      [](const _Date& date) {
        const std::string state = std::to_string(date.day) + ' ' + std::to_string(date.fraction);
        return state;
      });
  ForgetObservationTimesForTests();
}

TEST_F(CatalogsMemory, GazetteersAreNamed) {
  FailEveryAllocation([] { return std::make_unique<std::string>("earlier"); },
                      [](std::string& name) {
                        name = GetGazetteersFileName({FourCC("moon"), 301});
                      },
                      [](const std::string& name) { return name; });
}

std::string Lines(const char* rest) {
  std::string lines;
  for (int i = 0; i < 30; ++i)
    lines += "a name that is longer than a short string\t1\t" + std::to_string(i) + rest + "\n";
  return lines;
}

std::string StateOf(const FavouriteObjectsFile& list) {
  std::string state;
  for (const SSO_ID& object : list.GetObjects()) state += std::to_string(object.number) + object.name + ' ';
  return state;
}

TEST_F(CatalogsMemory, FavouritesAreRead) {
  m_Roots.dir.Write("work/catalogs/favourites.txt", Lines(""));
  const auto prepare = [] {
    auto list = std::make_unique<FavouriteObjectsFile>();
    list->AddObject({7, 7});
    return list;
  };
  FailEveryAllocation(
      prepare, [](FavouriteObjectsFile& list) { list.Read(); }, StateOf);
}

TEST_F(CatalogsMemory, FavouriteIsAdded) {
  FailEveryAllocation([] { return std::make_unique<FavouriteObjectsFile>(); },
                      [](FavouriteObjectsFile& list) {
                        list.AddObject({7, 7});
                      },
                      StateOf);
}

TEST_F(CatalogsMemory, FavouritesAreSaved) {
  const auto prepare = [&] {
    m_Roots.dir.Write("work/catalogs/favourites.txt", Lines(""));
    auto list = std::make_unique<FavouriteObjectsFile>();
    list->AddObject({7, 7});
    return list;
  };
  FailEveryAllocation(
      prepare, [](FavouriteObjectsFile& list) { list.Save(); },
      [&](const FavouriteObjectsFile& list) {
        return StateOf(list) + m_Roots.dir.Read("work/catalogs/favourites.txt");
      });
}

std::string StateOf(const SelectedObjectsFile& list) {
  std::string state;
  std::vector<ObjectDesc> objects;
  list.GetObjects(objects);
  for (const ObjectDesc& object : objects) state += std::to_string(object.number) + object.name + ' ';
  return state;
}

TEST_F(CatalogsMemory, SelectionIsReadSetAndSaved) {
  m_Roots.dir.Write("work/catalogs/selection.txt", Lines(""));
  const auto make = [] { return std::make_unique<SelectedObjectsFile>("catalogs:selection.txt"); };
  const auto state = [](const SelectedObjectsFile& list) { return StateOf(list); };
  FailMaking<SelectedObjectsFile>(make, state);
  const std::vector<ObjectDesc> others(3, {"another name that is longer than a short string", 2, 2});
  FailEveryAllocation(
      make, [&](SelectedObjectsFile& list) { list.SetObjects(others); }, state);
  const auto prepare = [&] {
    m_Roots.dir.Write("work/catalogs/selection.txt", Lines(""));
    auto list = make();
    list->SetObjects(others);
    return list;
  };
  FailEveryAllocation(
      prepare, [](SelectedObjectsFile& list) { list.Save(); },
      [&](const SelectedObjectsFile& list) {
        return StateOf(list) + m_Roots.dir.Read("work/catalogs/selection.txt");
      });
}

TEST_F(CatalogsMemory, SelectionIsHandedOut) {
  m_Roots.dir.Write("work/catalogs/selection.txt", Lines(""));
  const SelectedObjectsFile list("catalogs:selection.txt");
  const auto prepare = [] { return std::make_unique<std::vector<ObjectDesc>>(40); };
  FailEveryAllocation(
      prepare, [&](std::vector<ObjectDesc>& out) { list.GetObjects(out); },
      [](const std::vector<ObjectDesc>& out) { return std::to_string(out.size()) + out.front().name; });
}

TEST_F(CatalogsMemory, ChosenObjectsAreReadAndSaved) {
  m_Roots.dir.Write("work/catalogs/observationobjects.txt", Lines("\t7"));
  const auto make = [] { return std::make_unique<ChoosingObjectsFile>(); };
  const auto state = [&](const ChoosingObjectsFile& list) {
    std::vector<SSO_ID> objects;
    list.GetObjects(objects);
    return std::to_string(objects.size()) + m_Roots.dir.Read("work/catalogs/observationobjects.txt");
  };
  FailMaking<ChoosingObjectsFile>(make, state);
  const auto prepare = [&] {
    m_Roots.dir.Write("work/catalogs/observationobjects.txt", Lines("\t7"));
    auto list = make();
    list->SetObjects({{1, 2}, {3, 4}});
    return list;
  };
  FailEveryAllocation(
      prepare, [](ChoosingObjectsFile& list) { list.Save(); }, state);
}

}  // namespace
}  // namespace test_support
