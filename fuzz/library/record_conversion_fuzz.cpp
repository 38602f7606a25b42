// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Database records and records of the user's lists on their way into the solar-system model. The input: mode
// (16 bits), kind and number of the object, flags, gravitational parameter (double), number of fields (8
// bits); the fields, each name id (32 bits), type code (8 bits) and 24 bytes of values; the record.
#include <cmath>
#include <cstdint>
#include <cstring>
#include <vector>

#include "astro/object_records.h"
#include "astro/solar_system.h"
#include "common_interfaces/record_conversion.h"
#include "common_interfaces/record_source.h"
#include "fuzz/scratch.h"
#include "utils/debug.h"
#include "utils/text.h"

namespace {

enum Flags { kNoDatabase = 1, kNoRecord = 2, kNoModel = 4, kRealModel = 8 };

class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : m_Data(data), m_Left(size) {}

  // What is missing at the end is 0.
  template <class T>
  T Take() {
    T value{};
    const std::size_t count = m_Left < sizeof value ? m_Left : sizeof value;
    if (count > 0) std::memcpy(&value, m_Data, count);
    m_Data += count;
    m_Left -= count;
    return value;
  }

 private:
  const std::uint8_t* m_Data;
  std::size_t m_Left;
};

// Values stand at odd addresses, in memory of their own of 24 bytes: three values of the widest type.
class Record : public CommonInterfaces::BaseDB {
 public:
  explicit Record(Input& input) {
    const unsigned count = input.Take<unsigned char>();
    for (unsigned i = 0; i < count; ++i) {
      Field field;
      field.nameId = input.Take<int>();
      field.type = input.Take<unsigned char>();
      field.bytes.resize(25);
      for (std::size_t k = 1; k < field.bytes.size(); ++k) field.bytes[k] = input.Take<unsigned char>();
      m_Fields.push_back(field);
    }
  }

  const void* GetField(int fieldId) const override {
    const Field* field = Find(fieldId);
    return field == nullptr ? nullptr : field->bytes.data() + 1;
  }
  unsigned GetFieldType(int fieldId) const override {
    const Field* field = Find(fieldId);
    return field == nullptr ? 0 : field->type;
  }

 private:
  struct Field {
    int nameId = 0;
    unsigned type = 0;
    std::vector<unsigned char> bytes;
  };

  const Field* Find(int fieldId) const {
    for (const Field& field : m_Fields) {
      if (field.nameId == fieldId) return &field;
    }
    return nullptr;
  }

  std::vector<Field> m_Fields;
};

bool AreFinite(std::initializer_list<double> values) {
  for (const double value : values) {
    if (!std::isfinite(value)) return false;
  }
  return true;
}

// Checks what it receives.
class CheckingModel : public CQXSolSys {
 public:
  CheckingModel(double gravity, const void* record, short mode)
      : m_Gravity(gravity), m_Record(record), m_Mode(mode) {}

  bool SetAimObject(const SSO_ID& id, const void* data) override { return Check(0, id, data); }
  bool SetLocateObject(const SSO_ID& id, const void* data) override { return Check(1, id, data); }
  bool SetAdditionalObject(const SSO_ID& id, const void* data) override { return Check(2, id, data); }
  bool InitIntegr(const SSO_ID& id, const void* data) override { return Check(3, id, data); }
  double GetGravity(const SSO_ID&) const override { return m_Gravity; }

  int m_Calls = 0;

 private:
  bool Check(short operation, const SSO_ID& id, const void* data) {
    ++m_Calls;
    fuzz::Require(operation == m_Mode, "the mode names the operation");
    fuzz::Require(data != nullptr, "something is handed over");
    switch (id.kind) {
      case FourCC("star"):
      case FourCC("uSTR"):
        CheckStar(*static_cast<const StarRecord*>(data));
        break;
      case FourCC("cnst"):
        CheckConstellation(*static_cast<const ConstellationRecord*>(data));
        break;
      case FourCC("scft"):
        fuzz::Require(data == m_Record, "a spacecraft goes as it is");
        break;
      case FourCC("comt"):
      case FourCC("astr"):
        if (m_Mode == 2) {
          fuzz::Require(data == m_Record, "an additional object goes as it is");
          break;
        }
        [[fallthrough]];
      case FourCC("fAST"):
      case FourCC("fCOM"):
      case FourCC("fSCO"):
      case FourCC("uSCO"):
        fuzz::Require(data != m_Record, "the record is copied");
        CheckElements(*static_cast<const OrbitalElements*>(data));
        break;
      default:
        CheckDeepsky(*static_cast<const DeepskyRecord*>(data));
    }
    return true;
  }

  static void CheckStar(const StarRecord& star) {
    fuzz::Require(AreFinite({star.ra, star.dec, star.properMotionRA, star.properMotionDec, star.parallax,
                             star.radialVelocity, star.radius, star.magnitude, star.visMagnitude,
                             star.blueMagnitude, star.absMagnitude}),
                  "a star has finite numbers only");
  }

  static void CheckDeepsky(const DeepskyRecord& object) {
    fuzz::Require(AreFinite({object.ra, object.dec, object.parallax, object.angularSize, object.linearSize,
                             object.visMagnitude, object.blueMagnitude}),
                  "a deep-sky object has finite numbers only");
    fuzz::Require(object.parallax >= 0.0, "a distance is positive");
  }

  static void CheckConstellation(const ConstellationRecord& constellation) {
    const double* c = constellation.center;
    const double length = std::sqrt(c[0] * c[0] + c[1] * c[1] + c[2] * c[2]);
    fuzz::Require(length == 0.0 || std::abs(length - 1.0) < 1e-12, "a centre is a unit vector or none");
  }

  // Of what only one of the two models uses, each set has its own.
  static void CheckElements(const OrbitalElements& elements) {
    const double own = elements.elementSet == kTwoLineElements ? elements.dragTerm : elements.a;
    fuzz::Require(AreFinite({elements.epoch, own, elements.e, elements.i, elements.om, elements.w,
                             elements.M0, elements.n, elements.absMagnitude, elements.slope}),
                  "elements are finite numbers only");
  }

  double m_Gravity;
  const void* m_Record;
  short m_Mode;
};

void CountLine(const char* text, void* lines) {
  const std::size_t length = std::strlen(text);
  fuzz::Require(length > 0 && text[length - 1] == '\n', "a diagnostic ends in a line feed");
  ++*static_cast<int*>(lines);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  const short mode = input.Take<short>();
  const int kind = input.Take<int>();
  const int number = input.Take<int>();
  const SSO_ID object(kind, number);
  const unsigned flags = input.Take<unsigned char>();
  const double gravity = input.Take<double>();
  Record database(input);
  // What the real model reads is aligned, as it asks; the checking one is handed an odd address.
  const std::size_t shift = (flags & kRealModel) != 0 ? 0 : 1;
  std::vector<unsigned char> record(sizeof(OrbitalElements) + shift);
  for (std::size_t k = shift; k < record.size(); ++k) record[k] = input.Take<unsigned char>();
  const std::vector<unsigned char> before = record;

  unsigned char* recordAt = (flags & kNoRecord) != 0 ? nullptr : record.data() + shift;
  CheckingModel checking(gravity, recordAt, mode);
  CQXSolSys real;
  CQXSolSys* model = (flags & kRealModel) != 0 ? &real : &checking;
  if ((flags & kNoModel) != 0) model = nullptr;

  int lines = 0;
  SetDebugSink(CountLine, &lines);
  SSO_ID id = object;
  const int result = CommonInterfaces::ConvertDBRecord(id, (flags & kNoDatabase) != 0 ? nullptr : &database,
                                                       recordAt, model, mode);
  SetDebugSink(nullptr, nullptr);

  fuzz::Require(result >= -1 && result <= 1, "the result is one of three");
  fuzz::Require(lines == (result == -1 ? 1 : 0), "an unusable record, and nothing else, prints one line");
  fuzz::Require(id == object, "the identifier stays");
  fuzz::Require(record == before, "the record stays");
  const bool handedOver = result == 1 && mode >= 0 && mode <= 3 && model == &checking;
  fuzz::Require(checking.m_Calls == (handedOver ? 1 : 0), "what is converted is handed over once");
  return 0;
}
