// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <random>
#include <set>

#include <gtest/gtest.h>

#include "common_interfaces/render_settings.h"
#include "render/animation_clock.h"
#include "utils/text.h"

using CommonInterfaces::OrbitFade;
using CommonInterfaces::RenderSettings;
using test_support::AnimationClock;

namespace {

const SSO_ID kComet(FourCC("comt"), 1);
const SSO_ID kAsteroid(FourCC("astr"), 4);
const SSO_ID kMars(FourCC("plnt"), 4);
const SSO_ID kMoon(FourCC("moon"), 301);

constexpr OrbitFade kOn{0.0, 0.0, 1.0f, 1.0f};
constexpr OrbitFade kOff{0.0, 0.0, 0.0f, 0.0f};

TEST(OrbitFadesTest, NoOrbitIsShownInAnEmptyMapOrOfAnUnknownObject) {
  RenderSettings settings;
  EXPECT_FALSE(settings.isObjectWithOrbit(kComet));
  settings.SetOrbit(kComet, kOn);
  EXPECT_FALSE(settings.isObjectWithOrbit(kAsteroid));
  EXPECT_FALSE(settings.isObjectWithOrbit(SSO_ID(FourCC("comt"), 2)));
  EXPECT_TRUE(settings.isObjectWithOrbit(kComet));
}

TEST(OrbitFadesTest, OnlyKindAndNumberMakeTheObject) {
  RenderSettings settings;
  settings.SetOrbit(kComet, kOn);
  SSO_ID named = kComet;
  named.third = 7;
  named.name[0] = 'x';
  EXPECT_TRUE(settings.isObjectWithOrbit(named));
}

TEST(OrbitFadesTest, KindsAndNumbersAreOrderedAsSignedNumbers) {
  RenderSettings settings;
  const SSO_ID negativeKind(-5, 3);
  const SSO_ID negativeNumber(FourCC("comt"), -1);
  for (const SSO_ID& id : {kComet, negativeNumber, negativeKind}) settings.SetOrbit(id, kOn);
  auto entry = settings.GetOrbits().begin();
  EXPECT_TRUE((entry++)->first == negativeKind);
  EXPECT_TRUE((entry++)->first == negativeNumber);
  EXPECT_TRUE((entry++)->first == kComet);
}

TEST(OrbitFadesTest, AnOrbitThatHasFadedOutIsErasedWhenItIsAskedFor) {
  AnimationClock clock(0.0);
  RenderSettings settings;
  settings.SetOrbit(kComet, OrbitFade{0.0, 1.0, 1.0f, 0.0f});
  clock.Set(0.999);
  EXPECT_TRUE(settings.isObjectWithOrbit(kComet));
  clock.Set(1.0);
  EXPECT_EQ(settings.GetOrbits().size(), 1u);
  EXPECT_FALSE(settings.isObjectWithOrbit(kComet));
  EXPECT_TRUE(settings.GetOrbits().empty());
}

TEST(OrbitFadesTest, AnOrbitThatBeginsToFadeInIsErasedAtItsVeryStart) {
  AnimationClock clock(0.0);
  RenderSettings settings;
  settings.SetOrbit(kComet, OrbitFade{0.0, 1.0, 0.0f, 1.0f});
  EXPECT_FALSE(settings.isObjectWithOrbit(kComet));  // its opacity is not above 0 yet
  EXPECT_TRUE(settings.GetOrbits().empty());
}

TEST(OrbitFadesTest, AnOpacityBelowZeroIsNoneToo) {
  AnimationClock clock(0.0);
  RenderSettings settings;
  settings.SetOrbit(kComet, OrbitFade{1.0, 2.0, 0.0f, 1.0f});  // starts in the future
  EXPECT_FALSE(settings.isObjectWithOrbit(kComet));
  EXPECT_TRUE(settings.GetOrbits().empty());
}

TEST(OrbitFadesTest, PlanetsAndMoonsAreNotAmongTheOtherOrbits) {
  RenderSettings settings;
  settings.SetOrbit(kMars, kOn);
  settings.SetOrbit(kMoon, kOn);
  EXPECT_FALSE(settings.isNPMOrbits());
  settings.SetOrbit(kComet, kOn);
  EXPECT_TRUE(settings.isNPMOrbits());
}

// What counts is that the end is not 0, whatever its sign.
TEST(OrbitFadesTest, AnOrbitWithANegativeEndIsOnAndCleared) {
  AnimationClock clock(2.0);
  RenderSettings settings;
  settings.SetOrbit(kComet, OrbitFade{0.0, 0.0, 1.0f, -0.5f});
  EXPECT_TRUE(settings.isNPMOrbits());
  settings.clearNPMOrbits(false);
  EXPECT_EQ(settings.GetOrbits().at(kComet).m_StartValue, -0.5f);
  EXPECT_EQ(settings.GetOrbits().at(kComet).m_EndValue, 0.0f);
  EXPECT_FALSE(settings.isNPMOrbits());
}

TEST(OrbitFadesTest, AnOrbitThatIsFadingOutIsNotOn) {
  AnimationClock clock(0.5);
  RenderSettings settings;
  settings.SetOrbit(kComet, OrbitFade{0.0, 1.0, 1.0f, 0.0f});
  EXPECT_FALSE(settings.isNPMOrbits());
  EXPECT_TRUE(settings.isObjectWithOrbit(kComet));
  settings.SetOrbit(kAsteroid, OrbitFade{0.0, 1.0, 0.0f, 1.0f});
  EXPECT_TRUE(settings.isNPMOrbits());
}

TEST(OrbitFadesTest, ClearedOrbitsFadeOutOver150Milliseconds) {
  AnimationClock clock(100.0);
  RenderSettings settings;
  settings.SetOrbit(kComet, kOn);
  settings.clearNPMOrbits(false);
  EXPECT_FALSE(settings.isNPMOrbits());
  EXPECT_EQ(settings.GetOrbits().at(kComet).m_EndTime, 100.0 + 0.15);
  clock.Set(100.075);
  EXPECT_NEAR(settings.GetOrbitAlpha(kComet), 0.5f, 1e-6);
  clock.Set(100.149);
  EXPECT_TRUE(settings.isObjectWithOrbit(kComet));
  clock.Set(100.0 + 0.15);
  EXPECT_FALSE(settings.isObjectWithOrbit(kComet));
  EXPECT_TRUE(settings.GetOrbits().empty());
}

TEST(OrbitFadesTest, ClearedOrbitsFadeFromWhereTheyStand) {
  AnimationClock clock(0.25);
  RenderSettings settings;
  settings.SetOrbit(kComet, OrbitFade{0.0, 1.0, 0.0f, 1.0f});
  settings.clearNPMOrbits(false);
  const OrbitFade& fade = settings.GetOrbits().at(kComet);
  EXPECT_EQ(fade.m_StartTime, 0.25);
  EXPECT_EQ(fade.m_StartValue, 0.25f);
  EXPECT_EQ(fade.m_EndValue, 0.0f);
}

TEST(OrbitFadesTest, ClearingAgainDoesNotProlongTheFade) {
  AnimationClock clock(0.0);
  RenderSettings settings;
  settings.SetOrbit(kComet, kOn);
  settings.clearNPMOrbits(false);
  clock.Set(0.1);
  settings.clearNPMOrbits(false);
  EXPECT_EQ(settings.GetOrbits().at(kComet).m_EndTime, 0.15);
}

TEST(OrbitFadesTest, ClearingAtOnceErasesWhatIsOnAndNothingElse) {
  AnimationClock clock(0.5);
  RenderSettings settings;
  settings.SetOrbit(kComet, kOn);
  settings.SetOrbit(kAsteroid, OrbitFade{0.0, 1.0, 1.0f, 0.0f});  // fading out: goes on
  settings.SetOrbit(kMars, kOn);
  settings.SetOrbit(kMoon, kOn);
  settings.clearNPMOrbits(true);
  EXPECT_EQ(settings.GetOrbits().count(kComet), 0u);
  EXPECT_TRUE(settings.isObjectWithOrbit(kAsteroid));
  EXPECT_TRUE(settings.isObjectWithOrbit(kMars));
  EXPECT_TRUE(settings.isObjectWithOrbit(kMoon));
}

TEST(OrbitFadesTest, ClearingLeavesPlanetsAndMoonsAsTheyAre) {
  RenderSettings settings;
  settings.SetOrbit(kMars, kOn);
  settings.SetOrbit(kMoon, kOn);
  settings.clearNPMOrbits(false);
  EXPECT_EQ(settings.GetOrbits().at(kMars).m_EndValue, 1.0f);
  EXPECT_EQ(settings.GetOrbits().at(kMoon).m_EndValue, 1.0f);
}

TEST(OrbitFadesTest, SettingAnOrbitAgainReplacesItsFade) {
  RenderSettings settings;
  settings.SetOrbit(kComet, kOff);
  settings.SetOrbit(kComet, kOn);
  EXPECT_TRUE(settings.isObjectWithOrbit(kComet));
}

TEST(OrbitFadesTest, ShownOrbitsFadeInAndOutFromWhereTheyStand) {
  AnimationClock clock(0.0);
  RenderSettings settings;
  settings.ShowOrbit(kComet, false, 1.0);
  EXPECT_TRUE(settings.GetOrbits().empty());
  settings.SetOrbit(kComet, OrbitFade{0.0, 0.0, 0.0f, 0.25f});
  settings.ShowOrbit(kComet, true, 1.0);
  clock.Set(0.5);
  EXPECT_EQ(settings.GetOrbitAlpha(kComet), 0.625f);
  settings.ShowOrbit(kComet, false, 1.0);
  clock.Set(1.0);
  EXPECT_EQ(settings.GetOrbitAlpha(kComet), 0.3125f);
  settings.ShowOrbit(kComet, true, 0.0);
  EXPECT_EQ(settings.GetOrbitAlpha(kComet), 1.0f);
}

TEST(OrbitFadesTest, AnOrbitShownFromNothingIsThereInTheSameFrame) {
  AnimationClock clock(3.0);
  RenderSettings settings;
  settings.ShowOrbit(kComet, true, 1.0);
  EXPECT_TRUE(settings.isObjectWithOrbit(kComet));
  EXPECT_EQ(settings.GetOrbitAlpha(kComet), 1.0f / 255.0f);
  clock.Set(4.0);
  EXPECT_EQ(settings.GetOrbitAlpha(kComet), 1.0f);
}

TEST(OrbitFadesTest, AskingForTheOpacityErasesNothing) {
  RenderSettings settings;
  settings.SetOrbit(kComet, kOff);
  EXPECT_EQ(settings.GetOrbitAlpha(kComet), 0.0f);
  EXPECT_EQ(settings.GetOrbitAlpha(kAsteroid), 0.0f);
  EXPECT_EQ(settings.GetOrbits().size(), 1u);
}

// The orbits as a plain list, with the rules written out.
class Model {
 public:
  struct Entry {
    SSO_ID id;
    double start, end;
    float from, to;
  };

  Entry* Find(const SSO_ID& id) {
    for (Entry& entry : m_Entries) {
      if (entry.id.kind == id.kind && entry.id.number == id.number) return &entry;
    }
    return nullptr;
  }

  void Set(const Entry& changed) {
    if (Entry* entry = Find(changed.id)) {
      *entry = changed;
    } else {
      m_Entries.push_back(changed);
    }
  }

  bool IsShown(const SSO_ID& id, double now) {
    const Entry* entry = Find(id);
    if (entry == nullptr) return false;
    if (Alpha(*entry, now) > 0.0f) return true;
    m_Entries.erase(m_Entries.begin() + (entry - m_Entries.data()));
    return false;
  }

  bool IsOther() const {
    for (const Entry& entry : m_Entries) {
      if (IsOtherOn(entry)) return true;
    }
    return false;
  }

  void Clear(bool immediately, double now) {
    std::vector<Entry> kept;
    for (const Entry& entry : m_Entries) {
      if (!IsOtherOn(entry)) {
        kept.push_back(entry);
      } else if (!immediately) {
        kept.push_back({entry.id, now, now + 0.15, Alpha(entry, now), 0.0f});
      }
    }
    m_Entries = kept;
  }

  static float Alpha(const Entry& entry, double now) {
    if (now >= entry.end) return entry.to;
    if (entry.from == entry.to || entry.end == entry.start) return entry.to;
    return static_cast<float>(entry.from +
                              (entry.to - entry.from) * (now - entry.start) / (entry.end - entry.start));
  }

  const std::vector<Entry>& Entries() const { return m_Entries; }

 private:
  static bool IsOtherOn(const Entry& entry) {
    return entry.to != 0.0f && entry.id.kind != 0x706C6E74 && entry.id.kind != 0x6D6F6F6E;  // plnt, moon
  }

  std::vector<Entry> m_Entries;
};

void ExpectSame(const RenderSettings& settings, const Model& model) {
  ASSERT_EQ(settings.GetOrbits().size(), model.Entries().size());
  for (const Model::Entry& entry : model.Entries()) {
    const auto found = settings.GetOrbits().find(entry.id);
    ASSERT_NE(found, settings.GetOrbits().end());
    EXPECT_EQ(found->second.m_StartTime, entry.start);
    EXPECT_EQ(found->second.m_EndTime, entry.end);
    EXPECT_EQ(found->second.m_StartValue, entry.from);
    EXPECT_EQ(found->second.m_EndValue, entry.to);
  }
}

TEST(OrbitFadesTest, AHundredThousandRandomOperationsAgreeWithAPlainList) {
  std::mt19937 random(20261121);
  const auto below = [&](unsigned n) { return static_cast<int>(random() % n); };
  const int kinds[] = {FourCC("plnt"), FourCC("moon"), FourCC("comt"), FourCC("astr"), FourCC("scft"), -3};
  const float levels[] = {0.0f, 0.25f, 0.5f, 1.0f};

  AnimationClock clock(0.0);
  double now = 0.0;
  RenderSettings settings;
  Model model;
  for (int step = 0; step < 100000; ++step) {
    now += below(100) / 1000.0;
    clock.Set(now);
    const SSO_ID id(kinds[below(6)], below(5) - 1);
    switch (below(8)) {
      case 0:
        settings.clearNPMOrbits(false);
        model.Clear(false, now);
        break;
      case 1:
        if (below(10) != 0) break;
        settings.clearNPMOrbits(true);
        model.Clear(true, now);
        break;
      case 2:
        ASSERT_EQ(settings.isNPMOrbits(), model.IsOther()) << step;
        break;
      case 3:
      case 4: {
        const double start = now + below(3) * 0.1 - 0.1;
        const Model::Entry entry{id, start, start + below(4) * 0.125, levels[below(4)], levels[below(4)]};
        settings.SetOrbit(id, OrbitFade{entry.start, entry.end, entry.from, entry.to});
        model.Set(entry);
        break;
      }
      default:
        ASSERT_EQ(settings.isObjectWithOrbit(id), model.IsShown(id, now)) << step;
    }
    if (step % 50 != 0) continue;
    ASSERT_NO_FATAL_FAILURE(ExpectSame(settings, model)) << step;
  }
}

}  // namespace
