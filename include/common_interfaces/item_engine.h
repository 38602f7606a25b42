// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The item engine: a registry of pluggable items by integer key. The application registers items, tells all
// of them at once about its life (SetUp, SetObject, Init, Release), and runs one of them over a query list
// (queries.h).
//
//   auto* engine = new Engine;        // count 1
//   engine->Add(10, new MyItem);      // the engine owns the item now
//   engine->SetUp(context);
//   if (BaseList* result = engine->Run(10, queries)) ...
//   engine->release();                // count 0: the engine goes, and its items with it
//
// Nothing here takes locks: an engine, its items and its count belong to one thread at a time.
#pragma once

#include <map>

#include "common_interfaces/api.h"

namespace CommonInterfaces {

class BaseList;

// An object that lives as long as somebody holds it. The creator holds it: the count is 1 after construction.
// One that is released must have been made with `new`; one on the stack is never released down to 0.
class COMMON_INTERFACES_API ReferenceCounted {
 public:
  ReferenceCounted() = default;
  ReferenceCounted(const ReferenceCounted&) = delete;
  ReferenceCounted& operator=(const ReferenceCounted&) = delete;
  virtual ~ReferenceCounted();

  // Both return the new count. At 0 release has deleted the object. Every retain is paid back by one release;
  // one more than that is the caller's error.
  int retain();
  int release();

 protected:
  int m_RefCount = 1;
};

// What the application plugs in. The virtual operations stand in the order of their slots, which is part of
// the binary interface. What `context` and `object` point to is settled between the application and its
// items; the engine hands them on as they are.
class COMMON_INTERFACES_API BaseItem {
 public:
  BaseItem() = default;
  BaseItem(const BaseItem&) = default;
  BaseItem& operator=(const BaseItem&) = default;
  virtual ~BaseItem();

  virtual void SetUp(void* context) = 0;
  virtual void SetObject(void* object) = 0;
  virtual bool Init(void* context) = 0;  // false: the item is not ready. Engine::Init does not ask
  virtual void Release() = 0;            // gives back what the item holds; deletes nothing
  // Works over `list`, which stays the caller's. Whose the result is, is settled by the item.
  virtual BaseList* Run(BaseList* list) = 0;
};

// Owns its items: Remove, Clear and the end of the engine delete them, each once, also an item that is
// registered under several keys. Remove empties the other entries of such an item: they stay registered and
// count, refuse another item until they are removed themselves, and broadcasts and Run pass over them. An
// entry added with a null item is the same.
//
// Broadcasts walk the entries in ascending order of their keys (signed), so that an item under two keys is
// called twice. An item may add and remove entries from inside a call, but must not delete itself there:
// entries behind its own key that are new are still called, those that are gone are not.
class COMMON_INTERFACES_API Engine : public ReferenceCounted {
 public:
  // All that SetUp ever returns is success.
  enum ErrFlag : int { kSuccess = 0 };

  Engine();

  // The virtual operations follow in the order of their slots, which is part of the binary interface.

  ~Engine() override;

  // Deletes all items and removes all entries.
  virtual void Clear();

  // Registers the item, which the engine owns from then on; without memory (std::bad_alloc) it remains the
  // caller's and nothing changes. When the key is taken, the earlier item stays and
  // the new one remains the caller's: the returned number of entries is then the same as before. Prints
  // nothing.
  virtual int Add(int key, BaseItem* item);

  // Deletes the item and removes the entry. An unknown key changes nothing. Returns the number of entries
  // left.
  virtual int Remove(int key);

  // Broadcasts. SetUp returns kSuccess and Init true whatever the items answer, and without items too.
  // Release deletes nothing and leaves the count alone: it is no release().
  virtual ErrFlag SetUp(void* context);
  virtual void SetObject(void* object);
  virtual bool Init(void* context);
  virtual void Release();

  // What the item under the key makes of the list; null for an unknown key and an empty entry, which leave
  // the list alone.
  virtual BaseList* Run(int key, BaseList* list);

 protected:
  // The item under the key, still the engine's; null when there is none.
  BaseItem* FindItem(int key) const;

 private:
  template <class Call>
  void ForEachItem(Call call);
  void EmptyEntriesOf(const BaseItem* item);

  std::map<int, BaseItem*> m_Items;
};

}  // namespace CommonInterfaces
