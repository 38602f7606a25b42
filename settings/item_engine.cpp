// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/item_engine.h"

namespace CommonInterfaces {

ReferenceCounted::~ReferenceCounted() = default;

int ReferenceCounted::retain() { return ++m_RefCount; }

int ReferenceCounted::release() {
  const int count = --m_RefCount;
  if (count == 0) delete this;
  return count;
}

BaseItem::~BaseItem() = default;

Engine::Engine() = default;

Engine::~Engine() { Engine::Clear(); }

// The next entry is looked up by key after each call: the item may have removed any of them.
template <class Call>
void Engine::ForEachItem(Call call) {
  for (auto entry = m_Items.begin(); entry != m_Items.end();) {
    const int key = entry->first;
    if (entry->second) call(entry->second);
    entry = m_Items.upper_bound(key);
  }
}

void Engine::EmptyEntriesOf(const BaseItem* item) {
  for (auto& entry : m_Items)
    if (entry.second == item) entry.second = nullptr;
}

// Entries are emptied before their item goes: its destructor may ask the engine something.
void Engine::Clear() {
  ForEachItem([this](BaseItem* item) {
    EmptyEntriesOf(item);
    delete item;
  });
  m_Items.clear();
}

int Engine::Add(int key, BaseItem* item) {
  m_Items.try_emplace(key, item);
  return static_cast<int>(m_Items.size());
}

int Engine::Remove(int key) {
  if (BaseItem* const item = FindItem(key)) {
    EmptyEntriesOf(item);
    delete item;
  }
  m_Items.erase(key);
  return static_cast<int>(m_Items.size());
}

Engine::ErrFlag Engine::SetUp(void* context) {
  ForEachItem([context](BaseItem* item) { item->SetUp(context); });
  return kSuccess;
}

void Engine::SetObject(void* object) {
  ForEachItem([object](BaseItem* item) { item->SetObject(object); });
}

bool Engine::Init(void* context) {
  ForEachItem([context](BaseItem* item) { item->Init(context); });
  return true;
}

void Engine::Release() {
  ForEachItem([](BaseItem* item) { item->Release(); });
}

BaseList* Engine::Run(int key, BaseList* list) {
  BaseItem* const item = FindItem(key);
  return item ? item->Run(list) : nullptr;
}

BaseItem* Engine::FindItem(int key) const {
  const auto found = m_Items.find(key);
  return found == m_Items.end() ? nullptr : found->second;
}

}  // namespace CommonInterfaces
