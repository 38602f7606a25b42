// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What a frame is made with while memory runs out: the pool, shadows, display options, records of databases.
#include <memory>

#include "common_interfaces/item_engine.h"
#include "common_interfaces/object_outputs.h"
#include "common_interfaces/object_shadow_map.h"
#include "common_interfaces/output_pool.h"
#include "common_interfaces/path_line.h"
#include "common_interfaces/record_conversion.h"
#include "common_interfaces/render_settings.h"
#include "memory/every_allocation.h"
#include "memory/made.h"
#include "output/recorded_conversion.h"

namespace test_support {
namespace {

using namespace CommonInterfaces;
using namespace memory_tests;

TEST(FrameMemory, PoolIsMade) {
  FailMaking<OutputPool>([] { return std::make_unique<OutputPool>(1000, 4); },
                         [](OutputPool&) { return "a pool"; });
}

// A block that the heap does not give is a request that is not met.
TEST(FrameMemory, PoolHandsOutWhatItHas) {
  struct Pool {
    OutputPool pool{1000, 2};
    int met = 0;
  };
  const auto take = [](Pool& pool) {
    pool.pool.clear(false);
    pool.met = 0;
    for (int i = 0; i < 2; ++i) pool.met += pool.pool.getMem(900) != nullptr;
  };
  for (const int failing : {0, 1}) {
    Pool pool;
    host_test::FailAllocationAfter(failing);
    take(pool);
    EXPECT_TRUE(host_test::HasAllocationFailed());
    host_test::FailAllocationAfter(-1);
    EXPECT_EQ(pool.met, 1);
    take(pool);
    EXPECT_EQ(pool.met, 2);
  }
}

// Until it is in the map the list is the caller's.
TEST(FrameMemory, ShadowsAreAdded) {
  using List = std::vector<QX_ShadowParams>;
  FailEveryAllocation([] { return std::make_unique<ObjectShadowMap>(); },
                      [](ObjectShadowMap& map) {
                        auto list = std::make_unique<List>(1);
                        map.AddList({1, 2}, list.get());
                        list.release();
                      },
                      [](ObjectShadowMap& map) {
                        return std::to_string(map.FindList({1, 2}) != nullptr);
                      });
}

std::string StateOf(const RenderSettings& settings) {
  std::string state = std::to_string(settings.GetIncludedPlanets().size()) + ' ' +
                      std::to_string(settings.GetIncludedMoons().size()) + ' ' +
                      std::to_string(settings.GetOrbits().size()) + ' ' +
                      std::to_string(settings.m_StarScale);
  for (int i = 0; i < 4; ++i)
    state += ' ' + std::to_string(settings.GetAsterFavo(i)) + std::to_string(settings.GetCometFavo(i)) +
             std::to_string(settings.GetSCFavo(i)) + std::to_string(settings.GetSC(i));
  return state;
}

TEST(FrameMemory, DisplayOptionsAreAssigned) {
  RenderSettings other;
  other.SetIncludedPlanets({1, 2, 3});
  other.SetIncludedMoons({301});
  other.SetAsterFavo(1, 3);
  other.SetCometFavo(2, 3);
  other.SetSCFavo(3, 3);
  other.InsertSCelem(1, 4);
  other.SetOrbit({1, 2}, {});
  other.m_StarScale = 2.0f;
  FailEveryAllocation([] { return std::make_unique<RenderSettings>(); },
                      [&](RenderSettings& settings) { settings = other; }, StateOf);
}

TEST(FrameMemory, DisplayOptionsAreSet) {
  const auto each = [](auto call) {
    FailEveryAllocation([] { return std::make_unique<RenderSettings>(); }, call, StateOf);
  };
  each([](RenderSettings& settings) { settings.SetAsterFavo(1, 2); });
  each([](RenderSettings& settings) { settings.SetIncludedMoons({1, 2, 3}); });
  each([](RenderSettings& settings) { settings.ShowOrbit({1, 2}, true, 1.0); });
}

// The path stays the caller's until the cache has it.
TEST(FrameMemory, PathIsCached) {
  struct Path {
    std::unique_ptr<PathLine> path = std::make_unique<PathLine>();
    ~Path() { delete RenderSettings::takePathFromCache({}, &kNone, 0); }
    const SSO_ID kNone;
  };
  const auto state = [](const Path& path) {
    return std::to_string(path.path != nullptr) + std::to_string(RenderSettings::s_PathLineCache.size());
  };
  FailEveryAllocation([] { return std::make_unique<Path>(); },
                      [](Path& path) {
                        RenderSettings::movePathToCache(path.path.get());
                        static_cast<void>(path.path.release());
                      },
                      state);
}

// The item stays the caller's until the engine has it.
TEST(FrameMemory, ItemIsAdded) {
  struct Item : BaseItem {
    void SetUp(void*) override {}
    void SetObject(void*) override {}
    bool Init(void*) override { return true; }
    void Release() override {}
    BaseList* Run(BaseList*) override { return nullptr; }
  };
  struct Items {
    Engine engine;
    int count = 0;
  };
  FailEveryAllocation([] { return std::make_unique<Items>(); },
                      [](Items& items) {
                        auto item = std::make_unique<Item>();
                        items.count = items.engine.Add(10, item.get());
                        static_cast<void>(item.release());
                      },
                      [](const Items& items) { return std::to_string(items.count); });
}

TEST(FrameMemory, RecordsAreConvertedWithoutAny) {
  const memory_tests::NoLines quiet;
  MadeUpRecord record;
  record.SetDouble("RA", 1.0);
  record.SetDouble("Dec", 0.5);
  CQXSolSys model;
  const unsigned long long before = host_test::GetAllocationCount();
  for (const char* kind : {"star", "gala", "cnst", "comt"}) {
    SSO_ID id(GetFOURCC(kind), 1);
    ConvertDBRecord(id, &record, nullptr, &model, kConvertLocateObject);
  }
  EXPECT_EQ(host_test::GetAllocationCount(), before);
}

}  // namespace
}  // namespace test_support
