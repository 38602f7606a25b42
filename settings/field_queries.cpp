// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Queries made from one settings field.
#include "common_interfaces/queries.h"
#include "common_interfaces/settings_field.h"
#include "utils/bytes.h"

namespace CommonInterfaces {

namespace {

constexpr unsigned kAimElements = 8;  // the fewest elements of a field that describes an object

bool IsLabelList(const FieldData& data, unsigned count) {
  return data.type == kFieldUInt8 && data.condition == kLabelListCondition && count >= 2;
}

template <class T>
BaseQuery* MakeQuery(const FieldData& data, unsigned count) {
  return new TQuery<T>(data.nameId, data.condition, data.data, count);
}

BaseQuery* MakeQueryOfType(const FieldData& data, unsigned count) {
  switch (data.type) {
    case kFieldInt8:
      return MakeQuery<char>(data, count);
    case kFieldUInt8:
      return MakeQuery<unsigned char>(data, count);
    case kFieldInt16:
      return MakeQuery<short>(data, count);
    case kFieldUInt16:
      return MakeQuery<unsigned short>(data, count);
    case kFieldInt32:
      return MakeQuery<int>(data, count);
    case kFieldUInt32:
      return MakeQuery<unsigned int>(data, count);
    case kFieldFloat:
      return MakeQuery<float>(data, count);
    case kFieldDouble:
      return MakeQuery<double>(data, count);
    default:
      return nullptr;
  }
}

}  // namespace

BaseQuery* SettingField::CreateQuery(unsigned section, bool all) {
  if (!m_pFieldData) return nullptr;
  if (m_pQuery && !m_bModified) return all || GetCompareStatus() != 0 ? m_pQuery : nullptr;
  DeleteQuery();
  if (!CheckCreateQuery(section, all)) {
    m_bModified = false;
    return nullptr;
  }
  // A label list whose selector points past its end asks for nothing; all its labels would be the wrong
  // answer.
  m_pQuery = IsLabelList(*m_pFieldData, GetSize()) ? CreateLabelQuery(m_pFieldData, all)
                                                   : MakeQueryOfType(*m_pFieldData, GetSize());
  m_bModified = false;
  return m_pQuery;
}

BaseQuery* SettingField::CreateAimQuery(unsigned /*section*/, const SSO_ID& aim) {
  const unsigned count = GetSize();
  if (GetType() != kFieldInt32 || count < kAimElements || GetCompareStatus() == 0) return nullptr;
  const SSO_ID described(static_cast<int>(LoadLE32(m_pFieldData->data)),
                         static_cast<int>(LoadLE32(m_pFieldData->data + 4)));
  return described == aim ? MakeQuery<int>(*m_pFieldData, count) : nullptr;
}

// Of a label list.
BaseQuery* SettingField::CreateLabelQuery(const FieldData* data, bool all) {
  const unsigned size = GetSize();
  unsigned start = 1;
  // Modulo 256, deliberately: with 257 elements nothing is made, with 258 the first label only.
  unsigned count = (size - 1) & 0xFF;
  if (!all) {
    start = data->data[0] + 1U;
    count = 1;
  }
  if (start >= size || count == 0) return nullptr;
  return new TQuery<unsigned char>(data->nameId, data->condition, data->data + start, count);
}

bool SettingField::CheckCreateQuery(unsigned section, bool all) {
  const bool active = GetCompareStatus() != 0 || (all && GetCondition() == kLabelListCondition);
  if (!active) return false;
  const unsigned querySection = GetQuerySection();
  return (querySection == kOwnQuerySection ? GetSection() : querySection) == section;
}

void SettingField::DeleteQuery() {
  delete m_pQuery;
  m_pQuery = nullptr;
}

}  // namespace CommonInterfaces
