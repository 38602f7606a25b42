// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <string>

#include "astro/constants.h"
#include "camera/camera_codes.h"
#include "camera/camera_record.h"
#include "camera/state_guard.h"
#include "common_interfaces/camera.h"
#include "common_interfaces/settings_data.h"
#include "utils/debug.h"
#include "utils/one_thread.h"
#include "utils/text.h"

namespace CommonInterfaces {
namespace {

// The object that moving type 9 travels around, whatever number a file names.
constexpr int kGalaxyNumber = 0x3D000000;

bool ReadRecord(SettingsData& settings, const char* file) {
  if (!settings.Read(file)) return false;
  settings.SetCurSection(kCameraSection);
  return settings.GetCurSection() == kCameraSection;
}

// Whether the file has no record of that identifier, which reading it looks for first. What a saved view
// holds may look like the key of one.
bool LacksRecord(SettingsData& settings, const char* file, unsigned id) {
  return !SettingsData::HoldsBlock(file, id, settings.GetID()) &&
         !SettingsData::HoldsBlock(file, id, SettingsData::kDefaultsTag);
}

}  // namespace

bool Camera::ReadSelf(const char* file, unsigned id) {
  const ChangesObject use(this, "Camera");
  if (m_Settings == nullptr) return false;
  if (id == kCameraSettingsId) {
    if (ReadFrom(*m_Settings, file, id)) return true;
    // What is left of a damaged file must not be saved with the next view.
    if (file != nullptr) m_Settings->Read(nullptr);
    return false;
  }
  SettingsData settings(m_Owner, id, kSettingsFile);
  return ReadFrom(settings, file, id);
}

bool Camera::ReadFrom(SettingsData& settings, const char* file, unsigned id) {
  if (ReadRecord(settings, file)) {
    ApplyRecord(settings, file != nullptr);
    return true;
  }
  if (file == nullptr || !LacksRecord(settings, file, id)) return false;
  // The first that is there decides: a damaged view is not to be taken for another one.
  for (const unsigned viewId : {id, m_Owner})
    if (SettingsData::HoldsBlock(file, kCameraSettingsId, viewId)) return ReadSavedView(file, viewId);
  return false;
}

// WriteSelf and WriteSelfAll save under the camera's identifier and the view's id, where a record of a moving
// type is looked for under its own identifier: this finds them again. Never defaults, which would pass for
// any view.
bool Camera::ReadSavedView(const char* file, unsigned viewId) {
  SettingsData settings(viewId, kCameraSettingsId, kSettingsFile);
  if (!ReadRecord(settings, file)) return false;
  ApplyRecord(settings, true);
  return true;
}

void Camera::ApplyRecord(SettingsData& settings, bool namedFile) {
  StateGuard guard(State());
  RecordReader reader(settings);
  reader.Value("m_FinderSize", m_FinderSize);
  ExchangeTime(reader, State());
  UpdateDeltaT();
  reader.Value("m_Zoom", m_Zoom);
  RefreshLimitingMagnitudes();
  ReadObserver(reader, namedFile);
  reader.Value("m_ObsLocatType", m_ObsLocatType);
  reader.Value("m_DispCoorSysObserver", m_DispCoorSysObserver);
  ExchangePlace(reader, m_Location);
  m_Location.coorSys = m_DispCoorSysObserver;
  ExchangeDirection(reader, State(), m_FirstLook);
  RebuildViewMatrix();
  for (const StepKeys& keys : kStepKeys) ExchangeStep(reader, keys, m_Steps);
  if (namedFile) ReadDaylightSavings(reader, m_DST);
  guard.SetThrough();
}

void Camera::ReadObserver(RecordReader& reader, bool namedFile) {
  reader.Value("m_ObsMovingType", m_ObsMovingType);
  ExchangeObserver(reader, m_Observer);
  if (m_ObsMovingType == kMovingAroundGalaxy && m_Observer.kind == FourCC("gala"))
    m_Observer.number = kGalaxyNumber;
  m_ObserverChanged = true;
  m_Observer.name[0] = '\0';
  if (namedFile) m_Observer.fourth = 1;
}

void Camera::WriteSelf(const char* file, int id) {
  const ChangesObject use(this, "Camera");
  if (m_Settings == nullptr) return;
  PutShortRecord(id);
  m_Settings->Write(file);
}

void Camera::WriteSelfAll(const char* file, int id) {
  const ChangesObject use(this, "Camera");
  if (m_Settings == nullptr) return;
  PutRecord(id);
  m_Settings->Write(file);
}

bool Camera::SaveSelf(const char* file, int id) {
  const ChangesObject use(this, "Camera");
  if (m_Settings == nullptr) return false;
  const signed char fst = m_FST;
  const bool isSaved = SaveRecord(PutShortRecord(id), file);
  if (!isSaved) m_FST = fst;
  return isSaved;
}

bool Camera::SaveSelfAll(const char* file, int id) {
  const ChangesObject use(this, "Camera");
  return m_Settings != nullptr && SaveRecord(PutRecord(id), file);
}

bool Camera::SaveRecord(bool whole, const char* file) {
  if (whole) return m_Settings->Save(file);
  PrintDebugString("View not saved in file %s: the camera's settings lack fields of it\n", file ? file : "");
  return false;
}

bool Camera::PutShortRecord(int id) {
  StateGuard guard(State());
  m_Settings->SetID(static_cast<unsigned>(id));
  m_FST = 1;
  RecordWriter writer(*m_Settings);
  ExchangeTime(writer, State());
  // Always the Earth: a short record is a place and a time on it, wherever the observer happens to be.
  const SSO_ID& earth = astro::kEarth;
  ExchangeObserver(writer, earth);
  ExchangePlace(writer, m_Location);
  ExchangeStep(writer, kStepKeys[0], m_Steps);
  guard.SetThrough();
  return writer.IsWhole();
}

bool Camera::PutRecord(int id) {
  StateGuard guard(State());
  m_Settings->SetID(static_cast<unsigned>(id));
  m_DispCoorSysObserver = m_Location.coorSys;
  RecordWriter writer(*m_Settings);
  writer.Value("m_FinderSize", m_FinderSize);
  ExchangeTime(writer, State());
  writer.Value("m_Zoom", m_Zoom);
  writer.Value("m_ObsMovingType", m_ObsMovingType);
  ExchangeObserver(writer, m_Observer);
  writer.Value("m_ObsLocatType", m_ObsLocatType);
  writer.Value("m_DispCoorSysObserver", m_DispCoorSysObserver);
  ExchangePlace(writer, m_Location);
  // A restored view turns to its centre object first; the camera's own flag is not what a file keeps.
  const unsigned char firstLook = m_CenterObject.number != -1 && m_CenterObject.kind != -1;
  ExchangeDirection(writer, State(), firstLook);
  for (const StepKeys& keys : kStepKeys) ExchangeStep(writer, keys, m_Steps);
  WriteDaylightSavings(writer, m_DST);
  guard.SetThrough();
  return writer.IsWhole();
}

}  // namespace CommonInterfaces
