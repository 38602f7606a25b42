// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <map>
#include <memory>
#include <random>
#include <set>

#include <gtest/gtest.h>

#include "common_interfaces/path_line.h"
#include "common_interfaces/render_settings.h"
#include "support/debug_capture.h"
#include "utils/text.h"

using CommonInterfaces::PathLine;
using CommonInterfaces::PathPoint;
using CommonInterfaces::RenderSettings;
using test_support::DebugCapture;

namespace {

const SSO_ID kSun(FourCC("plnt"), 10);
const SSO_ID kEarth(FourCC("plnt"), 3);
const SSO_ID kComet(FourCC("comt"), 1);
const SSO_ID kAsteroid(FourCC("astr"), 4);

PathLine* MakePath(const SSO_ID& object, const SSO_ID& reference, int kind) {
  auto path = std::make_unique<PathLine>();
  path->m_Object = object;
  path->m_Reference = reference;
  path->m_Kind = static_cast<unsigned char>(kind & 63);
  path->m_Points.resize(3);
  return path.release();
}

// The cache is the process's: every test begins and ends with an empty one. The sanitizers' build says when a
// path is destroyed twice, used afterwards or forgotten.
class PathCacheTest : public testing::Test {
 protected:
  PathCacheTest() { Empty(); }
  ~PathCacheTest() override { Empty(); }

  static void Empty() {
    for (const auto& [key, path] : Cache()) delete path;
    Cache().clear();
  }

  static std::map<int, PathLine*>& Cache() { return RenderSettings::s_PathLineCache; }

  static PathLine* Put(int key, const SSO_ID& object, const SSO_ID& reference, int kind) {
    return Cache()[key] = MakePath(object, reference, kind);
  }
};

TEST(PathLineTest, APointTakes56BytesAndAKindSixBits) {
  EXPECT_EQ(sizeof(PathPoint), 56u);
  const std::unique_ptr<PathLine> path(MakePath(kComet, kSun, 63));
  EXPECT_EQ(path->m_Kind, 63);
  path->m_Kind = static_cast<unsigned char>(path->m_Kind + 1) & 63;
  EXPECT_EQ(path->m_Kind, 0);
}

TEST_F(PathCacheTest, AnEmptyCacheHasNoPath) {
  EXPECT_EQ(RenderSettings::takePathFromCache(kComet, &kSun, 1), nullptr);
}

TEST_F(PathCacheTest, ATakenPathIsTheCallersAndOutOfTheCache) {
  PathLine* path = MakePath(kComet, kSun, 1);
  RenderSettings::movePathToCache(path);
  const std::unique_ptr<PathLine> taken(RenderSettings::takePathFromCache(kComet, &kSun, 1));
  EXPECT_EQ(taken.get(), path);
  EXPECT_EQ(taken->m_Points.size(), 3u);
  EXPECT_TRUE(Cache().empty());
  EXPECT_EQ(RenderSettings::takePathFromCache(kComet, &kSun, 1), nullptr);
}

TEST_F(PathCacheTest, ObjectReferenceAndKindMustAllAgree) {
  RenderSettings::movePathToCache(MakePath(kComet, kSun, 1));
  EXPECT_EQ(RenderSettings::takePathFromCache(kAsteroid, &kSun, 1), nullptr);
  EXPECT_EQ(RenderSettings::takePathFromCache(kComet, &kEarth, 1), nullptr);
  EXPECT_EQ(RenderSettings::takePathFromCache(kComet, &kSun, 2), nullptr);
  EXPECT_EQ(RenderSettings::takePathFromCache(kComet, &kSun, 1 + 64), nullptr);
  EXPECT_EQ(RenderSettings::takePathFromCache(kComet, &kSun, 1 - 64), nullptr);
  EXPECT_EQ(Cache().size(), 1u);
}

TEST_F(PathCacheTest, TheFirstPathInTheOrderOfTheKeysIsTaken) {
  PathLine* second = Put(20, kComet, kSun, 1);
  PathLine* first = Put(-7, kComet, kSun, 1);
  EXPECT_EQ(RenderSettings::takePathFromCache(kComet, &kSun, 1), first);
  EXPECT_EQ(RenderSettings::takePathFromCache(kComet, &kSun, 1), second);
  delete first;
  delete second;
}

TEST_F(PathCacheTest, KeysCountFromOne) {
  RenderSettings::movePathToCache(MakePath(kComet, kSun, 1));
  RenderSettings::movePathToCache(MakePath(kComet, kSun, 2));
  RenderSettings::movePathToCache(MakePath(kAsteroid, kSun, 1));
  ASSERT_EQ(Cache().size(), 3u);
  EXPECT_EQ(Cache().at(1)->m_Kind, 1);
  EXPECT_EQ(Cache().at(2)->m_Kind, 2);
  EXPECT_TRUE(Cache().at(3)->m_Object == kAsteroid);
}

TEST_F(PathCacheTest, AnEarlierPathOfTheSameObjectReferenceAndKindIsDestroyed) {
  RenderSettings::movePathToCache(MakePath(kComet, kSun, 1));
  PathLine* newer = MakePath(kComet, kSun, 1);
  RenderSettings::movePathToCache(newer);
  ASSERT_EQ(Cache().size(), 1u);
  EXPECT_EQ(Cache().at(1), newer);
}

TEST_F(PathCacheTest, TheKeyIsCountedAfterTheEarlierPathIsGone) {
  RenderSettings::movePathToCache(MakePath(kComet, kSun, 1));
  RenderSettings::movePathToCache(MakePath(kComet, kSun, 2));
  PathLine* newer = MakePath(kComet, kSun, 2);
  RenderSettings::movePathToCache(newer);
  ASSERT_EQ(Cache().size(), 2u);
  EXPECT_EQ(Cache().at(2), newer);
}

TEST_F(PathCacheTest, APathDisplacedByTheKeyIsDestroyed) {
  for (const int kind : {1, 2, 3}) RenderSettings::movePathToCache(MakePath(kComet, kSun, kind));
  delete RenderSettings::takePathFromCache(kComet, &kSun, 1);  // keys 2 and 3 are left
  PathLine* newer = MakePath(kAsteroid, kSun, 1);
  RenderSettings::movePathToCache(newer);  // two entries, so its key is 3
  ASSERT_EQ(Cache().size(), 2u);
  EXPECT_EQ(Cache().at(2)->m_Kind, 2);
  EXPECT_EQ(Cache().at(3), newer);
  EXPECT_EQ(RenderSettings::takePathFromCache(kComet, &kSun, 3), nullptr);
}

TEST_F(PathCacheTest, APathThatIsHandedOverTwiceStaysWhole) {
  PathLine* path = MakePath(kComet, kSun, 1);
  RenderSettings::movePathToCache(path);
  RenderSettings::movePathToCache(path);
  ASSERT_EQ(Cache().size(), 1u);
  EXPECT_EQ(Cache().at(1)->m_Points.size(), 3u);
}

TEST_F(PathCacheTest, APathThatWasChangedInTheCacheIsHandedOverAgainUnharmed) {
  PathLine* path = MakePath(kComet, kSun, 1);
  RenderSettings::movePathToCache(path);
  RenderSettings::movePathToCache(MakePath(kComet, kSun, 2));
  path->m_Kind = 2;
  RenderSettings::movePathToCache(path);
  ASSERT_EQ(Cache().size(), 1u);
  EXPECT_EQ(Cache().at(1), path);
}

TEST_F(PathCacheTest, NoReferenceFindsNothingAndSaysSo) {
  RenderSettings::movePathToCache(MakePath(kComet, kSun, 1));
  DebugCapture capture;
  EXPECT_EQ(RenderSettings::takePathFromCache(kComet, nullptr, 1), nullptr);
  EXPECT_EQ(capture.lines, std::vector<std::string>{"Path cache: no reference object given\n"});
  EXPECT_EQ(Cache().size(), 1u);
}

TEST_F(PathCacheTest, NoPathChangesNothing) {
  RenderSettings::movePathToCache(nullptr);
  EXPECT_TRUE(Cache().empty());
  Cache()[1] = nullptr;
  EXPECT_EQ(RenderSettings::takePathFromCache(kComet, &kSun, 1), nullptr);
}

TEST_F(PathCacheTest, AllInstancesShareTheCacheAndCopiesDoNotTouchIt) {
  RenderSettings::movePathToCache(MakePath(kComet, kSun, 1));
  {
    RenderSettings settings;
    RenderSettings copy(settings);
    copy.CreateDefault();
    settings = copy;
  }
  EXPECT_EQ(Cache().size(), 1u);
}

TEST_F(PathCacheTest, AHundredThousandRandomOperationsAgreeWithAPlainMap) {
  std::mt19937 random(42);
  const auto below = [&](unsigned n) { return static_cast<int>(random() % n); };
  const SSO_ID objects[] = {kComet, kAsteroid, kEarth, SSO_ID(FourCC("comt"), -1), SSO_ID()};
  const SSO_ID references[] = {kSun, kEarth, SSO_ID()};

  struct Known {
    int object, reference, kind;
    PathLine* path;
  };
  std::map<int, Known> model;
  const auto find = [&](int object, int reference, int kind) {
    auto entry = model.begin();
    while (entry != model.end() && (entry->second.object != object || entry->second.reference != reference ||
                                    entry->second.kind != kind)) {
      ++entry;
    }
    return entry;
  };

  for (int step = 0; step < 100000; ++step) {
    const int object = below(5), reference = below(3), kind = below(3) * 31;
    if (below(2) == 0) {
      PathLine* path = MakePath(objects[object], references[reference], kind);
      RenderSettings::movePathToCache(path);
      const auto earlier = find(object, reference, kind);
      if (earlier != model.end()) model.erase(earlier);
      model[static_cast<int>(model.size()) + 1] = {object, reference, kind, path};
    } else {
      const auto expected = find(object, reference, kind);
      PathLine* taken = RenderSettings::takePathFromCache(objects[object], &references[reference], kind);
      if (expected == model.end()) {
        ASSERT_EQ(taken, nullptr) << step;
      } else {
        ASSERT_EQ(taken, expected->second.path) << step;
        ASSERT_EQ(taken->m_Points.size(), 3u);
        delete taken;
        model.erase(expected);
      }
    }
    ASSERT_EQ(Cache().size(), model.size()) << step;
    if (step % 20 != 0) continue;
    for (const auto& [key, known] : model) {
      ASSERT_EQ(Cache().count(key), 1u) << step;
      ASSERT_EQ(Cache().at(key), known.path) << step;
      ASSERT_TRUE(known.path->m_Object == objects[known.object]) << step;
    }
  }
}

// What is left here is destroyed with the process: the leak checker of the sanitizers' build would find it
// otherwise. An entry that is null does no harm then.
TEST(PathCacheAtTheEndTest, APathLeftInTheCacheGoesWithTheProcess) {
  RenderSettings::movePathToCache(MakePath(kComet, kSun, 1));
  RenderSettings::s_PathLineCache[7] = nullptr;
  EXPECT_EQ(RenderSettings::s_PathLineCache.size(), 2u);
}

}  // namespace
