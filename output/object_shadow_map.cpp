// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/object_shadow_map.h"

namespace CommonInterfaces {

ObjectShadowMap::~ObjectShadowMap() { ClearAll(); }

std::vector<QX_ShadowParams>* ObjectShadowMap::FindList(SSO_ID id) {
  const auto found = m_Lists.find(id);
  return found == m_Lists.end() ? nullptr : found->second;
}

// A second list is deliberately neither merged nor taken over: it stays its maker's.
void ObjectShadowMap::AddList(SSO_ID id, std::vector<QX_ShadowParams>* list) { m_Lists.emplace(id, list); }

void ObjectShadowMap::ClearAll() {
  for (auto& entry : m_Lists) delete entry.second;
  m_Lists.clear();
}

}  // namespace CommonInterfaces
