// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A database record that a test makes up, and a solar-system model that keeps what it receives.
#pragma once

#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "astro/object_records.h"
#include "astro/solar_system.h"
#include "common_interfaces/field_data.h"
#include "common_interfaces/record_source.h"
#include "utils/text.h"

namespace test_support {

// Every value stands at an odd address, so that none is aligned.
class MadeUpRecord : public CommonInterfaces::BaseDB {
 public:
  void SetBytes(const char* name, unsigned type, const void* bytes, std::size_t size) {
    Field& field = m_Fields[GetUniqueID(name)];
    field.type = type;
    field.bytes.assign(size + 1, 0);
    std::memcpy(field.bytes.data() + 1, bytes, size);
  }

  template <class T>
  void Set(const char* name, unsigned type, const std::vector<T>& values) {
    SetBytes(name, type, values.data(), values.size() * sizeof(T));
  }

  void SetDouble(const char* name, double value) {
    Set(name, CommonInterfaces::kFieldDouble, std::vector<double>{value});
  }
  void SetFloat(const char* name, float value) {
    Set(name, CommonInterfaces::kFieldFloat, std::vector<float>{value});
  }
  void SetShort(const char* name, short value) {
    Set(name, CommonInterfaces::kFieldInt16, std::vector<short>{value});
  }

  // Whole numbers from 0 to 127 in the encoding of a type code.
  void SetEncoded(const char* name, unsigned type, const std::vector<int>& values) {
    using namespace CommonInterfaces;
    switch (type) {
      case kFieldInt8:
        return Set(name, type, As<signed char>(values));
      case kFieldUInt8:
      case kFieldBytes:
        return Set(name, type, As<unsigned char>(values));
      case kFieldInt16:
        return Set(name, type, As<short>(values));
      case kFieldUInt16:
        return Set(name, type, As<unsigned short>(values));
      case kFieldInt32:
        return Set(name, type, As<int>(values));
      case kFieldUInt32:
        return Set(name, type, As<unsigned>(values));
      case kFieldFloat:
        return Set(name, type, As<float>(values));
      default:
        return Set(name, type, As<double>(values));
    }
  }

  void Remove(const char* name) { m_Fields.erase(GetUniqueID(name)); }

  const void* GetField(int fieldId) const override {
    const auto found = m_Fields.find(fieldId);
    return found == m_Fields.end() ? nullptr : found->second.bytes.data() + 1;
  }

  unsigned GetFieldType(int fieldId) const override {
    const auto found = m_Fields.find(fieldId);
    return found == m_Fields.end() ? 77 : found->second.type;
  }

 private:
  struct Field {
    unsigned type = 0;
    std::vector<unsigned char> bytes;
  };

  template <class T>
  static std::vector<T> As(const std::vector<int>& values) {
    std::vector<T> converted;
    for (const int value : values) converted.push_back(static_cast<T>(value));
    return converted;
  }

  std::map<int, Field> m_Fields;
};

// Keeps a copy of every record, by the kind of its object, and the pointer itself.
class RecordingModel : public CQXSolSys {
 public:
  struct Call {
    std::string operation;
    SSO_ID id;
    const void* data = nullptr;
    StarRecord star;
    DeepskyRecord deepsky;
    ConstellationRecord constellation;
    OrbitalElements elements;
  };

  bool SetAimObject(const SSO_ID& id, const void* data) override { return Keep("aim", id, data); }
  bool SetLocateObject(const SSO_ID& id, const void* data) override { return Keep("locate", id, data); }
  bool SetAdditionalObject(const SSO_ID& id, const void* data) override {
    return Keep("additional", id, data);
  }
  bool InitIntegr(const SSO_ID& id, const void* data) override { return Keep("integration", id, data); }

  double GetGravity(const SSO_ID& body) const override {
    askedFor.push_back(body);
    return gravity;
  }

  std::vector<Call> calls;
  mutable std::vector<SSO_ID> askedFor;  // central bodies
  double gravity = 4.0;                  // au^3/day^2; a round number, for sums in one's head

 private:
  bool Keep(const char* operation, const SSO_ID& id, const void* data) {
    Call call;
    call.operation = operation;
    call.id = id;
    call.data = data;
    switch (data == nullptr ? 0 : id.kind) {
      case FourCC("star"):
      case FourCC("uSTR"):
        std::memcpy(&call.star, data, sizeof call.star);
        break;
      case FourCC("gala"):
      case FourCC("nebu"):
      case FourCC("clst"):
      case FourCC("dsnv"):
      case FourCC("uDSO"):
        std::memcpy(&call.deepsky, data, sizeof call.deepsky);
        break;
      case FourCC("cnst"):
        std::memcpy(&call.constellation, data, sizeof call.constellation);
        break;
      case FourCC("comt"):
      case FourCC("astr"):
      case FourCC("scft"):
      case FourCC("fAST"):
      case FourCC("fCOM"):
      case FourCC("fSCO"):
      case FourCC("uSCO"):
        std::memcpy(&call.elements, data, sizeof call.elements);
        break;
      default:
        break;
    }
    calls.push_back(call);
    return true;
  }
};

}  // namespace test_support
