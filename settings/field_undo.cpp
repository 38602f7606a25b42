// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// One level of undo of a settings field: of its values or of its compare status.
#include <cstring>
#include <memory>

#include "common_interfaces/settings_field.h"
#include "settings/field_record.h"
#include "utils/debug.h"

namespace CommonInterfaces {

namespace {

// m_StoreState.
constexpr int kNothingSaved = 0;
constexpr int kValuesSaved = 1;
constexpr int kStatusSaved = 2;

// What m_pSavedData points to: the length of the record, and the whole record. The values alone would not say
// how many they were, which a resize between saving and restoring asks for.
constexpr int kPrefixSize = sizeof(int);

}  // namespace

bool SettingField::SetDataAndStore(const void* in) {
  if (!in || !m_pFieldData) return false;
  if (m_StoreState == kValuesSaved) PrintDebugString("Extra call of SettingField::SetDataAndStore\n");
  const auto size = static_cast<std::size_t>(m_RecordSize);
  auto* const saved = new unsigned char[kPrefixSize + size];
  delete[] m_pSavedData;
  m_pSavedData = saved;
  std::memcpy(m_pSavedData, &m_RecordSize, kPrefixSize);
  std::memcpy(m_pSavedData + kPrefixSize, m_pFieldData, size);
  m_StoreState = kValuesSaved;
  return SetData(in);
}

void SettingField::RestoreData() {
  if (!m_pSavedData || m_StoreState != kValuesSaved) return;
  int savedSize = 0;
  std::memcpy(&savedSize, m_pSavedData, kPrefixSize);
  const auto* const saved = reinterpret_cast<const FieldData*>(m_pSavedData + kPrefixSize);
  // An assignment in between can have left no record, or one that these values mean nothing to.
  const bool fits = m_pFieldData && m_pFieldData->type == saved->type;
  FieldData* const restored = fits ? CopyFieldData(saved, savedSize) : nullptr;
  const std::unique_ptr<unsigned char[]> block(m_pSavedData);
  m_pSavedData = nullptr;
  m_StoreState = kNothingSaved;
  if (!restored) {
    PrintDebugString("Saved values do not fit the field in function SettingField::RestoreData\n");
    return;
  }
  const unsigned count = HeldElements(*restored, savedSize);
  const std::size_t bytes = std::size_t{count} * GetTypeSize();
  if (count != GetSize() || std::memcmp(restored->data, m_pFieldData->data, bytes) != 0) m_bModified = true;

  // Everything but the header and its element count comes from what was saved.
  std::memcpy(static_cast<void*>(restored), m_pFieldData, kFieldHeaderSize);
  restored->size = saved->size;
  ReplaceRecord(restored, savedSize);
}

bool SettingField::SetCompareStatusAndStore(unsigned char status) {
  if (!m_pFieldData) return false;
  if (m_StoreState == kStatusSaved)
    PrintDebugString("Extra call of SettingField::SetCompareStatusAndStore\n");
  m_SavedCompareStatus = GetCompareStatus();
  m_StoreState = kStatusSaved;
  return SetCompareStatus(status);
}

void SettingField::RestoreCompareStatus() {
  if (m_StoreState != kStatusSaved) return;
  m_StoreState = kNothingSaved;
  SetCompareStatus(m_SavedCompareStatus);
}

}  // namespace CommonInterfaces
