// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The scene while memory runs out: data root, frames, search, almanac, sessions.
#include <memory>

#include "astro/julian_date.h"
#include "memory/every_allocation.h"
#include "memory/made.h"
#include "scene/almanac/moon_paths.h"
#include "scene/almanac/night_plan.h"
#include "scene/almanac/year_graph.h"
#include "scene/catalogs/cities.h"
#include "scene/catalogs/data_root.h"
#include "scene/catalogs/star_tile_writer.h"
#include "scene/display_text.h"
#include "scene/frame/frame_maker.h"
#include "scene/search/object_search.h"
#include "scene/session/session_file.h"
#include "scene/small_root.h"
#include "scene/words/event_search.h"
#include "scene/words/object_facts.h"

using namespace scene;
using namespace memory_tests;

namespace {

class SceneMemory : public testing::Test {
 protected:
  void SetUp() override {
    WriteTiles(9.0);
    Open(m_Catalogs);
    m_Camera.CreateDefault();
    m_Camera.SetBasePlane(1);
    m_Camera.SetUniversalTime(Time());
    m_Camera.SetRA_Dec({180.0 * kRadiansPerDegree, 30.0 * kRadiansPerDegree, 0.0});
    m_Camera.SetWinRect({800, 500, 800, 500});
    m_Camera.SetZoom(0.5);
  }

  void WriteTiles(double magnitude) {
    StarTileWriter writer;
    ASSERT_TRUE(writer.Open(m_Root.dir.Path("data/catalogs/stars.tiles").c_str(), "made up"));
    for (int i = 0; i < 300; ++i) ASSERT_TRUE(writer.Add({i + 1, i * 0.02, i * 0.004, magnitude}));
    ASSERT_TRUE(writer.Commit());
  }
  void Open(SkyCatalogs& catalogs) {
    std::string error;
    EXPECT_TRUE(OpenDataRoot(m_Root.dir.Path("data"), "", "en", catalogs, error)) << error;
  }
  static CommonInterfaces::_Date Time() {
    CommonInterfaces::_Date time;
    DJ({2026, 1, 15, 21, 0, 0.0}, time.day, time.fraction);
    return time;
  }
  static SkyMoment Moment(double days = 0.0) { return MakeMoment(Time().day, Time().fraction + days); }
  static std::string StateOf(const SkyCatalogs& catalogs) {
    return std::to_string(catalogs.stars.GetCount()) + ' ' + std::to_string(catalogs.starTiles.size()) + ' ' +
           std::to_string(catalogs.constellations.size()) + ' ' + std::to_string(catalogs.figures.size()) +
           ' ' + std::to_string(catalogs.bodies.size());
  }

  host_test::SmallRoot m_Root;
  SkyCatalogs m_Catalogs;
  CommonInterfaces::Camera m_Camera{1};
};

template <class Make>
void FailText(Make make) {
  FailEveryAllocation([] { return std::make_unique<std::string>("an earlier text"); },
                      [&](std::string& text) { text = make(); },
                      [](const std::string& text) { return text; });
}

TEST_F(SceneMemory, DataRootIsOpened) {
  FailEveryAllocation([] { return std::make_unique<SkyCatalogs>(); },
                      [this](SkyCatalogs& catalogs) { Open(catalogs); },
                      [](const SkyCatalogs& catalogs) { return StateOf(catalogs); });
}

struct Picture {
  Picture(CommonInterfaces::Camera& camera, const SkyCatalogs& catalogs)
      : maker(camera, catalogs, shown, ObjectFilters::None(), markers) {}
  void Compute() {
    maker.Prepare();
    maker.Compute();
  }
  ShownKinds shown;
  SkyMarkers markers;
  FrameMaker maker;
};

TEST_F(SceneMemory, FrameIsComputed) {
  FailEveryAllocation([this] { return std::make_unique<Picture>(m_Camera, m_Catalogs); },
                      [](Picture& picture) { picture.Compute(); },
                      [](Picture& picture) {
                        return host_test::DisplayText(picture.maker.GetFrame().GetDisplayList()).Get();
                      },
                      Leaves::kAgain);
}

// A block of the pool that the heap does not give leaves objects out; nothing else does so.
TEST_F(SceneMemory, FrameSaysWhenObjectsAreLeftOut) {
  int leftOut = 0;
  bool ranOut = true;
  for (int at = 0; ranOut; ++at) {
    Picture picture(m_Camera, m_Catalogs);
    bool threw = false;
    host_test::FailAllocationAfter(at);
    try {
      picture.Compute();
    } catch (const std::bad_alloc&) {
      threw = true;
    }
    ranOut = host_test::HasAllocationFailed();
    host_test::FailAllocationAfter(-1);
    if (threw) continue;
    EXPECT_EQ(picture.maker.GetFrame().IsPoolExhausted(), ranOut) << "allocation " << at;
    leftOut += ranOut ? 1 : 0;
  }
  EXPECT_GT(leftOut, 0);
}

TEST_F(SceneMemory, ObjectsAreSearched) {
  FailMaking<ObjectSearch>(
      [this] { return std::make_unique<ObjectSearch>(m_Catalogs); },
      [](const ObjectSearch& search) { return std::to_string(search.Find("Sirius").size()); });
  // What is read at the first question is not kept before it is whole.
  FailEveryAllocation(
      [this] { return std::make_unique<ObjectSearch>(m_Catalogs); },
      [](const ObjectSearch& search) {
        std::string error;
        EXPECT_TRUE(search.FindOne("alpha CMa", error));
        EXPECT_FALSE(search.FindOne("Sirrius", error));
        EXPECT_FALSE(search.Suggest("b", 5).empty());
      },
      [](const ObjectSearch& search) { return search.GetTitle(search.Find("Betelgeuse").at(0)); },
      Leaves::kNothing);
}

TEST_F(SceneMemory, ObjectsAreDescribed) {
  const ObjectSearch search(m_Catalogs);
  const FoundObject sirius = search.Find("Sirius").at(0);
  FailText([&] {
    std::string text;
    for (const ObjectFact& fact : ListCatalogFacts(sirius, search, m_Catalogs)) text += fact.line + '\n';
    for (const ObjectFact& fact : ListSightFacts(sirius, m_Catalogs, m_Camera)) text += fact.line + '\n';
    return text;
  });
}

TEST_F(SceneMemory, EventsAreFound) {
  constexpr EarthPlace kBerlin = {0.2339, 0.9163, 0.0};
  FailText([&] {
    std::string text;
    for (const char* kinds : {"phases", "planets"}) {
      const FoundEvents found =
          FindEvents(FindKinds(kinds), {Moment(), Moment(6.0), kBerlin}, m_Catalogs.bodies);
      text += std::to_string(found.events.size()) + ' ';
    }
    return text + "events, which are more than a short text";
  });
}

TEST_F(SceneMemory, YearAndMoonsAreDrawn) {
  FailText([] {
    const YearGraph graph = MakeYearGraph(2461056, 2, 0.0, {0.2339, 0.9163, 0.0});
    const std::vector<MoonPath> paths = MakeJupiterMoonPaths(Moment(), 0.5, 0.25);
    static_cast<void>(graph);
    return std::to_string(paths.size()) + " moons, and behind it more than a short text";
  });
}

TEST_F(SceneMemory, NightIsPlanned) {
  FailText([] {
    const std::optional<NightPlan> plan = MakeNightPlan(Moment(), {0.2339, 0.9163, 0.0});
    return std::string(plan ? "there is a plan of the night" : "there is no plan of the night");
  });
}

TEST_F(SceneMemory, SessionIsWrittenAndRead) {
  SessionCapsule capsule;
  capsule.language = "en";
  capsule.place = "A place with a name that is longer than a short one";
  capsule.view = {"m_Zoom=0.68", "DateFrom=0,0,0,0,0"};
  capsule.favourites = {{FourCC("nebu"), -42}};
  FailText([&] { return FormatSession(capsule); });
  const std::string text = FormatSession(capsule);
  FailEveryAllocation([] { return std::make_unique<SessionCapsule>(); },
                      [&](SessionCapsule& read) {
                        std::string error;
                        EXPECT_TRUE(ParseSession(text, read, error)) << error;
                      },
                      [](const SessionCapsule& read) { return FormatSession(read); });
}

// The target stays, and nothing is left beside it.
TEST_F(SceneMemory, TilesAreWritten) {
  const auto state = [this](int) {
    std::string names = m_Root.dir.Read("data/catalogs/stars.tiles");
    for (const auto& entry : std::filesystem::directory_iterator(m_Root.dir.Path("data/catalogs")))
      names += entry.path().extension() == ".tmp" ? entry.path().string() : std::string();
    return names;
  };
  const auto prepare = [this] {
    WriteTiles(9.0);
    return std::make_unique<int>();
  };
  const auto write = [this](int) {
    StarTileWriter writer(100);  // the rest goes to files beside the target
    const bool isOpen = writer.Open(m_Root.dir.Path("data/catalogs/stars.tiles").c_str(), "made up");
    for (int i = 0; isOpen && i < 300; ++i)
      if (!writer.Add({i + 1, i * 0.02, i * 0.004, 10.0})) return;
    if (isOpen) writer.Commit();
  };
  FailEveryAllocation(prepare, write, state);
}

}  // namespace
