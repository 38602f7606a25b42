// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The values of a camera record by key. Reading and writing walk the same lists, so that the two cannot drift
// apart.
#pragma once

#include "camera/camera_codes.h"
#include "camera/camera_fields.h"
#include "common_interfaces/camera_state.h"

namespace CommonInterfaces {

// The field of the key, or null unless it holds exactly `count` elements of `width` bytes.
SettingField* FindRecordField(SettingsData& settings, const char* key, unsigned width, unsigned count);

// Takes values from fields. A missing or misshapen field leaves its variable as it was and gives false.
class RecordReader {
 public:
  explicit RecordReader(SettingsData& settings) : m_Settings(settings) {}

  template <class T>
  bool Value(const char* key, T& value) {
    return Take(key, &value, sizeof(T), 1);
  }
  template <class T, unsigned N>
  bool Values(const char* key, T (&values)[N]) {
    return Take(key, values, sizeof(T), N);
  }

 private:
  bool Take(const char* key, void* out, unsigned width, unsigned count);
  SettingsData& m_Settings;
};

// Puts values into fields that exist already and have the right shape; the others stay as they are.
class RecordWriter {
 public:
  explicit RecordWriter(SettingsData& settings) : m_Settings(settings) {}

  // Whether there was a field for every value so far.
  bool IsWhole() const { return m_Whole; }

  template <class T>
  void Value(const char* key, const T& value) {
    Put(key, &value, sizeof(T), 1);
  }
  template <class T, unsigned N>
  void Values(const char* key, const T (&values)[N]) {
    Put(key, values, sizeof(T), N);
  }

 private:
  void Put(const char* key, const void* in, unsigned width, unsigned count);
  SettingsData& m_Settings;
  bool m_Whole = true;
};

// The groups of keys, in the order of the record (docs/formats/camera_record.md).

template <class Exchange, class State>
void ExchangeTime(Exchange& exchange, State& state) {
  exchange.Value("m_JT", state.m_JT);
  exchange.Value("m_TJ", state.m_TJ);
  exchange.Value("timeType", state.m_TimeType);
  exchange.Value("FST", state.m_FST);
}

template <class Exchange, class Object>
void ExchangeObserver(Exchange& exchange, Object& object) {
  exchange.Value("m_ObsObjType", object.kind);
  exchange.Value("m_ObsObjID", object.number);
}

template <class Exchange, class Location>
void ExchangePlace(Exchange& exchange, Location& location) {
  exchange.Value("m_fi", location.lat);
  exchange.Value("m_lam", location.lon);
  exchange.Value("m_dist", location.dist);
  exchange.Value("m_distUnits", location.distUnits);
}

template <class Exchange, class State, class FirstLook>
void ExchangeDirection(Exchange& exchange, State& state, FirstLook& firstLook) {
  exchange.Value("m_dirLock", state.m_DirLock);
  exchange.Value("m_FirstLook", firstLook);
  exchange.Value("m_dirObjType", state.m_CenterObject.kind);
  exchange.Value("m_dirObjID", state.m_CenterObject.number);
  exchange.Value("m_AimingDispType", state.m_AimingDispType);
  exchange.Value("m_alp", state.m_ViewAngles.lon);
  exchange.Value("m_bet", state.m_ViewAngles.lat);
  exchange.Value("m_slp", state.m_ViewAngles.slope);
  exchange.Value("m_BasePlane", state.m_BasePlane);
}

struct StepKeys {
  CameraStep step;
  const char* value;
  const char* unit;  // null: the step has none
};
inline constexpr StepKeys kStepKeys[] = {
    {CameraStep::kTime, "m_TimeStep", "m_TimeStepUnits"},
    {CameraStep::kRotate, "m_RotateStep", "m_RotStepUnits"},
    {CameraStep::kAimAlp, "m_AimStepAlp", "m_AimStepAlpUnits"},
    {CameraStep::kAimBet, "m_AimStepBet", "m_AimStepBetUnits"},
    {CameraStep::kPosLon, "m_PosStepLon", "m_PosStepLonUnits"},
    {CameraStep::kPosLat, "m_PosStepLat", "m_PosStepLatUnits"},
    {CameraStep::kHeight, "m_HeightStep", "m_DistStepUnits"},
    {CameraStep::kZoom, "m_ZoomStep", nullptr},
    {CameraStep::k3DFlight, "m_3DFlightStep", "m_3DFlightStepUnits"},
};
static_assert(sizeof kStepKeys / sizeof kStepKeys[0] == kCameraSteps);

template <class Exchange, class Steps>
void ExchangeStep(Exchange& exchange, const StepKeys& keys, Steps& steps) {
  auto& size = steps[static_cast<int>(keys.step)];
  exchange.Value(keys.value, size.value);
  if (keys.unit != nullptr) exchange.Value(keys.unit, size.unit);
}

// The daylight-saving rule: files keep most of it in 16 bits.
void ReadDaylightSavings(RecordReader& reader, DaylightSavingsData& dst);
void WriteDaylightSavings(RecordWriter& writer, const DaylightSavingsData& dst);

}  // namespace CommonInterfaces
