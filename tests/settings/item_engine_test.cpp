// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/item_engine.h"

#include <climits>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include "common_interfaces/queries.h"

namespace CommonInterfaces {
namespace {

using Notes = std::vector<std::string>;

// Opens what derived classes of an engine see.
class OpenEngine : public Engine {
 public:
  using Engine::FindItem;
  using Engine::m_RefCount;
};

// Notes every call with its own name. Deleting twice is noticed by AddressSanitizer, and by the notes.
class NotedItem : public BaseItem {
 public:
  NotedItem(std::string name, Notes& notes, bool ready = true)
      : m_Name(std::move(name)), m_Notes(&notes), m_Ready(ready) {}
  ~NotedItem() override { Note("deleted"); }
  void SetUp(void* context) override { Note("SetUp", context); }
  void SetObject(void* object) override { Note("SetObject", object); }
  bool Init(void* context) override { return Note("Init", context), m_Ready; }
  void Release() override { Note("Release"); }
  BaseList* Run(BaseList* list) override { return Note("Run", list), &result; }

  BaseList result;

 private:
  void Note(const char* call, const void* argument = nullptr) {
    m_Notes->push_back(m_Name + " " + call + (argument ? " with argument" : ""));
  }
  std::string m_Name;
  Notes* m_Notes;
  bool m_Ready;
};

// Does something to the engine in the middle of a broadcast, or at its own end.
class MeddlingItem : public NotedItem {
 public:
  MeddlingItem(std::string name, Notes& notes) : NotedItem(std::move(name), notes) {}
  ~MeddlingItem() override {
    if (atEnd) atEnd();
  }
  void SetObject(void* object) override {
    NotedItem::SetObject(object);
    if (atCall) atCall();
  }
  std::function<void()> atCall, atEnd;
};

class ItemEngine : public testing::Test {
 protected:
  ItemEngine() : engine(new OpenEngine) {}
  ~ItemEngine() override {
    if (engine) engine->release();
  }
  NotedItem* Item(const char* name, bool ready = true) { return new NotedItem(name, notes, ready); }
  int context = 0;
  Notes notes;
  OpenEngine* engine;
};

TEST_F(ItemEngine, NewEngineIsEmptyAndHeldOnce) {
  EXPECT_EQ(engine->m_RefCount, 1);
  EXPECT_EQ(engine->Remove(0), 0);
  EXPECT_EQ(engine->FindItem(0), nullptr);
}

TEST_F(ItemEngine, AddReturnsTheNumberOfItems) {
  EXPECT_EQ(engine->Add(5, Item("a")), 1);
  EXPECT_EQ(engine->Add(-5, Item("b")), 2);
  EXPECT_EQ(engine->Add(0, Item("c")), 3);
}

TEST_F(ItemEngine, SecondItemUnderAUsedKeyStaysTheCallersAndTheFirstStaysInPlace) {
  NotedItem* const first = Item("first");
  const std::unique_ptr<NotedItem> second(Item("second"));
  EXPECT_EQ(engine->Add(1, first), 1);
  EXPECT_EQ(engine->Add(1, second.get()), 1);
  EXPECT_EQ(engine->FindItem(1), first);
  engine->Clear();
  EXPECT_EQ(notes, Notes{"first deleted"});  // the second one is deleted by its holder, and only by it
}

TEST_F(ItemEngine, RemoveDeletesTheItemAndReturnsTheNumberLeft) {
  engine->Add(1, Item("a"));
  engine->Add(2, Item("b"));
  EXPECT_EQ(engine->Remove(1), 1);
  EXPECT_EQ(notes, Notes{"a deleted"});
  EXPECT_EQ(engine->FindItem(1), nullptr);
  EXPECT_EQ(engine->Remove(2), 0);
}

TEST_F(ItemEngine, RemoveOfAnUnknownKeyChangesNothing) {
  engine->Add(1, Item("a"));
  EXPECT_EQ(engine->Remove(2), 1);
  EXPECT_EQ(engine->Remove(INT_MIN), 1);
  EXPECT_TRUE(notes.empty());
}

TEST_F(ItemEngine, KeyIsFreeAgainAfterRemove) {
  engine->Add(1, Item("a"));
  engine->Remove(1);
  EXPECT_EQ(engine->Add(1, Item("b")), 1);
  engine->SetUp(nullptr);
  EXPECT_EQ(notes, (Notes{"a deleted", "b SetUp"}));
}

TEST_F(ItemEngine, ItemUnderTwoKeysIsDeletedOnceByClear) {
  NotedItem* const twice = Item("twice");
  engine->Add(1, twice);
  engine->Add(2, Item("other"));
  EXPECT_EQ(engine->Add(3, twice), 3);
  engine->Clear();
  EXPECT_EQ(notes, (Notes{"twice deleted", "other deleted"}));
  EXPECT_EQ(engine->Remove(1), 0);
}

TEST_F(ItemEngine, ClearDeletesInAscendingOrderOfSignedKeys) {
  engine->Add(INT_MAX, Item("last"));
  engine->Add(0, Item("middle"));
  engine->Add(INT_MIN, Item("first"));
  engine->Clear();
  EXPECT_EQ(notes, (Notes{"first deleted", "middle deleted", "last deleted"}));
}

TEST_F(ItemEngine, ClearedEngineTakesItemsAgain) {
  engine->Add(1, Item("a"));
  engine->Clear();
  engine->Clear();
  EXPECT_EQ(engine->Add(1, Item("b")), 1);
}

TEST_F(ItemEngine, RemoveOfAnItemUnderSeveralKeysEmptiesItsOtherEntries) {
  NotedItem* const twice = Item("twice");
  engine->Add(1, twice);
  engine->Add(2, twice);
  EXPECT_EQ(engine->Remove(1), 1);
  EXPECT_EQ(notes, Notes{"twice deleted"});
  EXPECT_EQ(engine->FindItem(2), nullptr);
  EXPECT_EQ(engine->Run(2, nullptr), nullptr);
  engine->SetUp(nullptr);
  engine->SetObject(nullptr);
  EXPECT_TRUE(engine->Init(nullptr));
  engine->Release();
  EXPECT_EQ(notes, Notes{"twice deleted"});
}

TEST_F(ItemEngine, EmptiedEntryKeepsItsKeyUntilItIsRemoved) {
  NotedItem* const twice = Item("twice");
  engine->Add(1, twice);
  engine->Add(2, twice);
  engine->Remove(1);
  const std::unique_ptr<NotedItem> refused(Item("refused"));
  EXPECT_EQ(engine->Add(2, refused.get()), 1);
  EXPECT_EQ(engine->FindItem(2), nullptr);
  EXPECT_EQ(engine->Remove(2), 0);
  EXPECT_EQ(engine->Add(2, Item("taken")), 1);
}

TEST_F(ItemEngine, NullItemIsAnEmptyEntry) {
  EXPECT_EQ(engine->Add(1, nullptr), 1);
  EXPECT_EQ(engine->Add(2, Item("b")), 2);
  engine->Release();
  EXPECT_EQ(engine->Run(1, nullptr), nullptr);
  EXPECT_EQ(engine->Remove(1), 1);
  EXPECT_EQ(notes, Notes{"b Release"});
}

TEST_F(ItemEngine, BroadcastsReachEveryItemInAscendingOrderWithTheirArgument) {
  engine->Add(7, Item("b"));
  engine->Add(-7, Item("a"));
  EXPECT_EQ(engine->SetUp(&context), Engine::kSuccess);
  engine->SetObject(&context);
  EXPECT_TRUE(engine->Init(&context));
  engine->Release();
  EXPECT_EQ(notes, (Notes{"a SetUp with argument", "b SetUp with argument", "a SetObject with argument",
                          "b SetObject with argument", "a Init with argument", "b Init with argument",
                          "a Release", "b Release"}));
}

TEST_F(ItemEngine, ItemUnderTwoKeysIsCalledTwice) {
  NotedItem* const twice = Item("twice");
  engine->Add(1, twice);
  engine->Add(2, twice);
  engine->Release();
  EXPECT_EQ(notes, (Notes{"twice Release", "twice Release"}));
}

TEST_F(ItemEngine, InitIsTrueWhateverTheItemsAnswer) {
  engine->Add(1, Item("unready", false));
  engine->Add(2, Item("ready"));
  EXPECT_TRUE(engine->Init(nullptr));
  EXPECT_EQ(notes, (Notes{"unready Init", "ready Init"}));
}

TEST_F(ItemEngine, EmptyEngineSetsUpAndInitialisesAtOnce) {
  EXPECT_EQ(static_cast<int>(engine->SetUp(&context)), 0);
  EXPECT_TRUE(engine->Init(&context));
}

TEST_F(ItemEngine, ReleaseBroadcastDeletesNothingAndKeepsTheCount) {
  engine->Add(1, Item("a"));
  engine->Release();
  EXPECT_EQ(engine->m_RefCount, 1);
  EXPECT_EQ(notes, Notes{"a Release"});
}

TEST_F(ItemEngine, RunReturnsWhatTheItemOfThatKeyMakesOfTheList) {
  NotedItem* const item = Item("a");
  engine->Add(1, item);
  engine->Add(2, Item("b"));
  BaseList list;
  EXPECT_EQ(engine->Run(1, &list), &item->result);
  EXPECT_EQ(notes, Notes{"a Run with argument"});
}

// A list that anybody touched would crash: it is at no address.
TEST_F(ItemEngine, RunOfAnUnknownKeyReturnsNullWithoutTouchingTheList) {
  engine->Add(1, Item("a"));
  EXPECT_EQ(engine->Run(2, reinterpret_cast<BaseList*>(1)), nullptr);
  EXPECT_TRUE(notes.empty());
}

TEST_F(ItemEngine, ReleaseOfAFreshEngineReturns0AndDestroysItWithItsItems) {
  engine->Add(1, Item("a"));
  EXPECT_EQ(engine->release(), 0);
  engine = nullptr;
  EXPECT_EQ(notes, Notes{"a deleted"});
}

TEST_F(ItemEngine, RetainedEngineLivesUntilItsLastRelease) {
  engine->Add(1, Item("a"));
  EXPECT_EQ(engine->retain(), 2);
  EXPECT_EQ(engine->retain(), 3);
  EXPECT_EQ(engine->release(), 2);
  EXPECT_EQ(engine->release(), 1);
  EXPECT_TRUE(notes.empty());
  EXPECT_EQ(engine->release(), 0);
  engine = nullptr;
  EXPECT_EQ(notes, Notes{"a deleted"});
}

TEST_F(ItemEngine, EngineOnTheStackDeletesItsItems) {
  {
    Engine local;
    local.Add(1, Item("a"));
  }
  EXPECT_EQ(notes, Notes{"a deleted"});
}

TEST_F(ItemEngine, ItemMayRemoveOthersDuringABroadcast) {
  auto* const meddler = new MeddlingItem("meddler", notes);
  engine->Add(2, meddler);
  engine->Add(1, Item("before"));
  engine->Add(3, Item("behind"));
  engine->Add(4, Item("last"));
  meddler->atCall = [this] {
    engine->Remove(1);
    engine->Remove(3);
    engine->Add(0, Item("too early"));
    engine->Add(9, Item("new"));
  };
  engine->SetObject(nullptr);
  EXPECT_EQ(notes, (Notes{"before SetObject", "meddler SetObject", "before deleted", "behind deleted",
                          "last SetObject", "new SetObject"}));
}

TEST_F(ItemEngine, ItemMayAskTheEngineAtItsEnd) {
  auto* const meddler = new MeddlingItem("meddler", notes);
  engine->Add(1, meddler);
  engine->Add(2, meddler);
  engine->Add(3, Item("other"));
  meddler->atEnd = [this] {
    EXPECT_EQ(engine->FindItem(1), nullptr);
    EXPECT_EQ(engine->FindItem(2), nullptr);
    engine->Remove(3);
  };
  engine->Clear();
  EXPECT_EQ(notes, (Notes{"other deleted", "meddler deleted"}));
  EXPECT_EQ(engine->Remove(1), 0);
}

TEST(ItemEngineTypes, AreWhatTheirHeaderSays) {
  static_assert(std::is_abstract_v<BaseItem> && std::has_virtual_destructor_v<BaseItem>);
  static_assert(std::has_virtual_destructor_v<ReferenceCounted>);
  static_assert(std::is_base_of_v<ReferenceCounted, Engine>);
  static_assert(!std::is_copy_constructible_v<Engine> && !std::is_copy_assignable_v<Engine>);
  static_assert(sizeof(Engine::ErrFlag) == 4);
  EXPECT_EQ(static_cast<int>(Engine::kSuccess), 0);
}

}  // namespace
}  // namespace CommonInterfaces
