// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "astro/coordinates.h"
#include "astro/object_id.h"
#include "common_interfaces/api.h"
#include "common_interfaces/camera_state.h"
#include "common_interfaces/date.h"
#include "common_interfaces/daylight_savings.h"
#include "common_interfaces/projection.h"
#include "common_interfaces/zoom_dependence.h"
#include "utils/geometry.h"

namespace CommonInterfaces {

class RecordReader;
class SettingsData;

// From where, when and in which direction the sky is seen: observer, location, time, time zone, viewing
// direction, projection, zoom, and the limiting magnitudes that follow from the zoom.
//
// Usage: construct, CreateDefault, SetWinRect; then ReadSelf restores a saved view.
//
// A camera belongs to one thread at a time. Nothing throws but std::bad_alloc, when memory runs out: camera
// and files are then as they were, but WriteSelf and WriteSelfAll may have appended their record. Angles
// are radians, vectors three doubles, matrices nine doubles in row order. Pointers passed in are read or
// written during the call only.
//
// Matrices
//
// The view matrix V takes a vector of the frame that the view angles count in (the base plane's, for example
// the horizon) into the frame of the picture: r = MV3prod(V, v). Its rows are orthonormal and right-handed.
// Row 2 is the viewing direction; row 0 points to the left edge of the picture (longitudes grow to the left,
// as on the sky seen from inside), row 1 to its upper edge. A positive slope turns the picture
// counter-clockwise: what was up moves to the left.
//
// The reduction matrix R takes a catalogue (J2000) direction into the frame of V; its owner sets it. C = V R
// takes a catalogue direction into the frame of the picture.
//
// Pixels
//
// The forward projection counts y UP from the bottom of the window, the back-projection takes y DOWN from the
// top. The two are deliberately mirrored: a pixel (x, y) that Pix2Vec turned into v is projected back to (x,
// H - y).
class COMMON_INTERFACES_API Camera : private CameraState {
 public:
  // Where the limits and their corrections come from, row by row; filled before main and never changed.
  static constexpr int s_ZoomDependDescSize = kZoomDependRows;
  static const ZoomDependDesc s_ZoomDependDesc[s_ZoomDependDescSize];

  // `owner` is the word under which this camera's own blocks stand in settings files. The camera owns a
  // settings object over "filters.data"; CreateDefault reads it, the constructor does not.
  explicit Camera(unsigned owner);

  // Deliberately copies nothing: the new camera is empty (members at their initial values, not even the day
  // of J2000) and has no settings object, so it can be neither read nor written. To copy a camera, construct
  // and assign.
  Camera(const Camera& other);

  // Copies every member except the settings object: each camera keeps its own, or none.
  Camera& operator=(const Camera& other);

  virtual ~Camera();

  // The camera file (docs/formats/camera_record.md)

  // Restores the camera from the section `camr` of the settings file `file`, or, with a null `file`, from the
  // defaults in "filters.data". `id` CAMR (0x43414D52) reads the camera's own record, the identifier of a
  // moving type that type's. A named file that holds no record of that identifier is searched for a view that
  // WriteSelf or WriteSelfAll saved as `id`, then for one saved under the camera's owner word.
  //
  // False when the file cannot be read or yields no section `camr`: then the camera is unchanged. A missing
  // field, or one of another width or element count, leaves its member as it was; no message. The view matrix
  // and the limiting magnitudes follow the restored values. The projection scale deliberately does not follow
  // the restored zoom: until SetWinRect, SetZoom or CreateDefault computes it again it stays as it was. A
  // null `file` restores no daylight-saving rule.
  bool ReadSelf(const char* file, unsigned id);

  // Appends the short record (time, location on the Earth, time step) to `file` under `id`, and switches the
  // FST mode on. The record always names the Earth as observer, whoever the observer is: deliberate. Before
  // the first ReadSelf or CreateDefault the settings object has no fields to write. `id` stays the id of the
  // settings object.
  //
  // Two writes of one id to one file leave two records and the first is the one that is read, and whether a
  // record was written is not told: whoever keeps views for the user calls SaveSelf.
  void WriteSelf(const char* file, int id);

  // The same with everything in the table of docs/formats/camera_record.md.
  void WriteSelfAll(const char* file, int id);

  // The same records, each once and whole or not at all, in the place of an older one of that id
  // (SettingsData::Save). False, with one line and file and camera as they were, when that fails, and when
  // the settings object lacks a field of the record; false without a line for a camera without a settings
  // object.
  bool SaveSelf(const char* file, int id);
  bool SaveSelfAll(const char* file, int id);

  // Reads the default record, ReadSelf(null, CAMR); when that fails sets the built-in defaults and computes
  // the projection scale from them. See GetWinDiag for an oddity of these defaults.
  void CreateDefault();

  // Time. The camera's clock runs in Universal Time.

  // Dynamical time (TT): the stored day and fraction plus delta T. `t.type` stays as the caller had it.
  void GetTime(_Date& t) const;
  // Day, fraction and type as stored.
  void GetUniversalTime(_Date& t) const;
  // Both store day, fraction (Universal Time) and type as given, compute delta T again and raise the
  // time-changed flag. That SetTime does not take what GetTime gives is deliberate.
  void SetTime(_Date t);
  void SetUniversalTime(_Date t);
  bool IsTimeChanged() const { return m_TimeChanged; }
  void ClearTimeChanged() { m_TimeChanged = false; }

  // The FST mode as files keep it: while it is not 0 the view follows the system's clock.
  char GetFST_Mode() const { return static_cast<char>(m_FST); }
  void SetFST_Mode(char mode) { m_FST = static_cast<signed char>(mode); }
  // Whether the owner offers that mode to the user; the defaults do. The camera only keeps it.
  bool IsFST_Offered() const { return m_FST_Offered != 0; }
  void SetFST_Offered(bool offered) { m_FST_Offered = offered; }

  // Time zone. Names are those of the IANA database, at most 63 characters.

  const char* GetTimeZoneName() const { return m_TimeZoneName; }
  // A null name empties the zone name, one of 64 or more characters is ignored. With `clearDisplay` the
  // display name becomes empty too, even when `name` was ignored.
  void SetTimeZoneName(const char* name, bool clearDisplay);
  // A display name that is not empty takes precedence over the zone name, for the offset too. Null and long
  // names as above.
  void SetDisplayTimeZoneName(const char* name);
  // The display name; when it is empty the zone name with `fallback`, null without. The pointer is the
  // camera's, valid until the next setter.
  const char* GetDisplayTimeZoneName(bool fallback) const;
  // Local time minus Universal Time in days, as last computed.
  double GetLocUTCdelta() const { return m_LocUTCDelta; }
  // Computes it for the camera's time from the display name, else from the zone name; 0 when both are empty.
  void UpdateLocUTCDeltaFromTimeZone();

  // The daylight-saving rule: copies the record in (null: nothing happens); the embedded record, valid as
  // long as the camera.
  void SetDST(const DaylightSavingsData* dst);
  DaylightSavingsData* GetDST() { return &m_DST; }

  // Observer and location

  // 0 to 11: how the observer moves; 0 stands on a surface.
  char GetMovingType() const { return static_cast<char>(m_ObsMovingType); }

  // Changes it: the camera record of that type (docs/formats/camera_record.md) takes the place of the
  // camera's state, where the settings hold one. Types 6, 7, 8 and 11 have no record: only the type changes.
  // A type that is none is refused with one line.
  //
  // Whatever the record says, the time (and so delta T), the FST mode and the time zone stay. With `keep` so
  // do zoom, longitude, latitude and unit of a place on a surface, and the view angles where the new record
  // counts them from the same plane. A locked direction stays locked on its object, with its zoom. Without a
  // lock, types 1 and 3 name the planet or moon that was left as the centre object and raise "first look", so
  // that the owner turns to it, and type 4 locks the direction on the observer object.
  //
  // Who comes back finds the view again: the camera remembers the planet or moon it was last at (the Sun
  // only by types 0 and 1 or when there was no other), the place on it, and with `keep` the direction in
  // which each type was left. The planet is put back when the new record names the Earth, which stands for
  // "where you were". The place is put back when the new type is 0 or 1: longitude and latitude of one that
  // is left in this very call on whatever body the record names, one of an earlier call on its own body only;
  // the distance and its unit when an earlier call left that body in that type. With `keep` the direction
  // comes back, with its plane, unless the present one counts from that plane anyway. The observer-changed
  // flag is raised; the zoom-changed flag when the zoom differs.
  void SetMovingType(char type, bool keep);

  // The object on or around which the observer is; (-1, -1) until defaults or a file give one.
  const SSO_ID& GetObserver() const { return m_Observer; }
  // Does nothing when kind and number are the current observer's; else copies the whole identifier and raises
  // the observer-changed flag.
  void SetObserver(SSO_ID observer);
  // Replaces the name in the observer's identifier (at most 79 bytes are kept; null empties it) and clears
  // the observer-changed flag: the owner's answer to that flag.
  void SetObserverName(const char* name);
  bool IsObserverChanged() const { return m_ObserverChanged; }

  unsigned char GetObsLocatType() const { return m_ObsLocatType; }  // 2 by default
  void SetObsLocatType(unsigned char type) { m_ObsLocatType = type; }

  // The place, about the observer object's centre: distance in au (the unit code only says how it is shown),
  // longitude east positive, latitude, coordinate-system code.
  const SphCoor& GetLocation() const { return m_Location; }
  void SetLocation(SphCoor location) { m_Location = location; }
  const std::string& GetLocationName() const { return m_LocationName; }
  // Null: empty. The home of the observer, where there is one, takes the name too (at most 255 bytes).
  void SetLocationName(const char* name);
  bool IsBelowSurface() const { return m_BelowSurface; }
  void SetBelowSurface(bool below) { m_BelowSurface = below; }

  // Viewing direction

  // Stores the angles with a cleared flag byte, builds the view matrix from them and clears "first look".
  void SetRA_Dec(SphViewCoor angles);
  const SphViewCoor& GetViewAngles() const { return m_ViewAngles; }
  // The view centre in J2000: kept for the owner, who computes it.
  void SetRA_Dec2K(double ra, double dec);
  void GetRA_Dec2K(double& ra, double& dec) const;

  // The object that the view is centred on; (-1, -1) when there is none. SetCenterView copies it, marks it as
  // set, clears "first look" and returns true; while the centre-view lock is set it returns false and changes
  // nothing.
  const SSO_ID& GetCenterObject() const { return m_CenterObject; }
  bool SetCenterView(SSO_ID object);
  void SetCenterViewLock(bool lock) { m_CenterViewLock = lock; }
  bool IsCenterObjectSet() const { return m_CenterObjectSet; }
  void ClearCenterObjectSet() { m_CenterObjectSet = false; }
  // True after a file said that the view has yet to be turned to the centre object.
  bool IsFirstLook() const { return m_FirstLook != 0; }
  bool IsDirectionLocked() const { return m_DirLock != 0; }
  void SetDirectionLock(bool lock) { m_DirLock = lock; }

  unsigned char GetBasePlane() const {
    return m_BasePlane;
  }  // the plane that the angles count from; 1: horizon
  void SetBasePlane(unsigned char plane) { m_BasePlane = plane; }
  unsigned char GetAimingDispType() const {
    return m_AimingDispType;
  }  // how the direction is shown; 0 by default
  void SetAimingDispType(unsigned char type) { m_AimingDispType = type; }

  // Matrices (see the top of the class)

  // angles = (longitude, latitude, slope).
  static void InitCameraMatrix(const double* angles, double* matrix);
  // The inverse: longitude and slope in [0, 2 pi), latitude in [-pi/2, pi/2]. At latitude +-pi/2, where only
  // their sum or difference is defined, the slope is 0 and the longitude takes it all. The arrays may be the
  // same.
  static void CalcAnglesFromCameraMatrix(const double* matrix, double* angles);
  // Sets R (copied) and computes C.
  void SetReductionMatrix(const double matrix[9]);

  // Projection, stereographic about the view axis. The per-object operations neither allocate nor fail.

  // The pixel of a unit vector in the frame of V, y up from the bottom. Whole pixels are relative to the
  // centre (W >> 1, H >> 1), doubles to (W * 0.5, H * 0.5): half a pixel apart in an odd window. Nothing is
  // rejected: a direction behind the observer gives very large coordinates, which saturate in whole pixels.
  // The one direction without a picture (exactly opposite, or a vector that is not finite) gives coordinates
  // that are not numbers, and in whole pixels the lowest int; the caller culls.
  COMMON_INTERFACES_INLINE void RA_Dec2Pix(const double* v, tPoint<int>* p) const {
    double left, up;
    Project(m_ViewPicture, m_Scale, v[0], v[1], v[2], left, up);
    p->x = WholePixel(m_WinRect.left >> 1, -left);
    p->y = WholePixel(m_WinRect.top >> 1, up);
  }
  COMMON_INTERFACES_INLINE void RA_Dec2PixD(const double* v, tPoint<double>* p) const {
    *p = ProjectBy(m_ViewPicture, v);
  }
  // The same for a J2000 unit vector.
  COMMON_INTERFACES_INLINE void RA_Dec2K2PixD(const double* v, tPoint<double>* p) const {
    *p = ProjectBy(m_ComboPicture, v);
  }

  // The same for `count` unit vectors, one after the other, to as many pixels. Whatever is a number has the
  // bits that the single call gives, on every processor. Vectors and pixels must not overlap; nothing happens
  // for a count of 0 or less.
  void BatchRA_Dec2PixD(const double* v, tPoint<double>* p, int count) const;
  void BatchRA_Dec2K2PixD(const double* v, tPoint<double>* p, int count) const;

  // The unit vector in the frame of V, or its longitude [0, 2 pi) and latitude, seen at a pixel whose y
  // counts DOWN from the top. Not a number while the camera has no window.
  void Pix2Vec(const tPoint<int>& p, double* v) const;
  void Pix2RA_Dec(const tPoint<int>& p, double& ra, double& dec) const;

  // The size in pixels, at the centre of the view, of an angular size in radians; VisRad2Pix is at least 1.
  double VisRad2Pix(double angle) const;
  double VisRad2PixD(double angle) const;

  // A catalogue vector to the frame of the picture and back by V: out = (R in) V. Reduct2CamShort takes
  // components in 1/32767 and scales them to length 1, Reduct2CamDouble does so unless `normalised`. That V
  // is applied from the right, transposed compared with the projection, is deliberate. `in` and `out` may be
  // the same array.
  void Reduct2CamShort(const short* in, double* out) const;
  void Reduct2CamDouble(const double* in, double* out, bool normalised) const;
  // The unit vector, in the frame of V, of a J2000 position.
  void ReductRADec2CamDouble(double ra, double dec, double* out) const;
  // Longitude and latitude in the frame of V to J2000.
  void RADec_RADec2K(double ra, double dec, double* ra2k, double* dec2k) const;

  // Zoom

  // The angle that the reference half-diagonal spans at zoom 1, radians (37 degrees). This very decimal is
  // the definition: saved views are drawn with it.
  static constexpr double s_ZoomOneAngle = 0.6457718232379;
  double GetZoom() const { return m_Zoom; }
  // When it differs by more than 1e-10 from the current zoom: stores it, raises the zoom-changed flag,
  // computes scale and limiting magnitudes. Any value is taken; only positive ones give a picture.
  void SetZoom(double zoom);
  bool IsZoomChanged() const { return m_ZoomChanged; }
  void ClearZoomChanged() { m_ZoomChanged = false; }
  // A second zoom kept for the owner, 10 by default; the camera does nothing with it.
  double GetSecondZoom() const { return m_SecondZoom; }
  void SetSecondZoom(double zoom) { m_SecondZoom = zoom; }
  // The angle across GetWinDiag(), and across the finder, in radians.
  double GetFieldOfView() const;
  double GetFinderSizeAngle() const;
  short GetFinderSize() const { return m_FinderSize; }  // pixels, 20 by default
  void SetFinderSize(short size) { m_FinderSize = size; }

  // Window

  // left: width W, top: height H, right and bottom: reference width and height, pixels. The reference
  // half-diagonal carries the zoom: at zoom 1 it spans 37 degrees from the view axis, whatever the window.
  void SetWinRect(tRect<int> r);
  void GetWinRect(tRect<int>* r) const;
  tPoint<int> GetWinSize() const;
  tPoint<int> GetWinCentre() const;  // (W >> 1, H >> 1)
  // Half the diagonal of the window after SetWinRect, but the whole diagonal after the built-in defaults of
  // CreateDefault until the next SetWinRect: a deliberate difference. Pixels.
  double GetWinDiag() const { return m_WinDiagonal; }

  // Limiting magnitudes (zoom_dependence.h). A class is a four-character code such as "star".

  // The correction of a row, in codes. Setting one does not refresh the limits. Rows are 0 to 19; another row
  // reads 0 and sets nothing.
  void SetMagCorrection(int row, float correction);
  float GetMagCorrection(int row) const;
  // Takes all corrections from the sections and fields that the table names, 0 for a missing one or one that
  // is not of 16 bits, and refreshes the limits. The current section of `settings` stays. Null: all 0.
  void FillMagCorrectionsVector(SettingsData* settings);
  // One correction changed: `value` points to its signed 16-bit value (null: none). The limits are refreshed
  // in every case, also for an id that is not in the table.
  void RefreshLimitMagnitude(int fieldId, int unused, const void* value);
  void RefreshLimitingMagnitudes();

  // The limit for objects and for labels: truncated to a whole code, or exact. 0 for an unknown class.
  unsigned char GetDarkMagObject(int cls) const;
  float GetDarkMagObjectF(int cls) const;
  unsigned char GetDarkMagLabel(int cls) const;
  float GetDarkMagLabelF(int cls) const;
  // The drawing threshold: the limit without its correction, plus the draw offset of the class, at most 254.
  // The whole code of a negative threshold wraps to a large byte (-1 gives 255): deliberate, callers rely on
  // it. The exact form has no lower bound. 0 for an unknown class.
  unsigned char GetDarkMagDraw(int cls) const;
  float GetDarkMagDrawF(int cls) const;
  // The zoom at which objects of that user type (object_kinds.h) and magnitude begin to be drawn, corrections
  // left aside; -1 for an unknown type.
  double CalcZoomForShowObject(int userType, double mag) const;

  // What is shown far from the Sun, by moving type and distance.
  bool IsShowStars() const;
  bool IsShowClusters() const;
  bool IsShowNebulae() const;
  bool IsShowSSObjects() const;
  bool IsShowOurGalaxy() const;
  bool IsDeepSpace() const;
  bool IsSkySectorsFiltration(int cls) const;

  // Homes: for each observer object where one stood, where one looked and when. They are read from
  // "home_params.ini" (docs/formats/home_params.md) by the constructor, which takes time zone and location
  // name from the Earth's.

  // Writes all homes to "home_params.ini" in the work area. A file that cannot be written whole stays as it
  // was, with one line, and so does one that the homes were loaded from and that could not be read whole, for
  // an error or for damage in it, as long as it is there. A home without a location part names no observer in
  // the file and is lost there.
  void SaveHomeParams();
  // The same, and tells: false when the homes are not in the file.
  bool StoreHomeParams();
  // Stores parts (HomeParts) of the current state in the home of the observer; other parts stay. Only while
  // moving type is 0. The time is not stored, and an earlier one removed, while the FST mode is on: the view
  // then follows the clock. The time zone is kept for the Earth alone.
  void StoreParams(int mask);
  // The home of that object, null for none; the camera's, valid until homes are stored or loaded.
  const HomeParameters* FindHome(const SSO_ID& observer) const;
  // All of them, by observer; likewise.
  const std::map<SSO_ID, HomeParameters>& GetHomes() const { return m_Homes; }

  // The last state at each observer object in each moving type, in memory only. Stored under the pending
  // moving type where there is one (not -1); found by object and by the moving type in obs.fourth.
  void StoreTempParams();
  bool FindTempParams(HomeParameters* out, const SSO_ID& obs) const;
  bool ClearTempParams(const SSO_ID& obs);
  int GetPendingMovingType() const { return m_PendingMovingType; }
  void SetPendingMovingType(int type) { m_PendingMovingType = type; }

  // Whether the observer stands on the Earth closer to its home than `tolerance` (km; so 0 is never close
  // enough). Distances count as heights above the ellipsoid, converted by their unit codes: deliberate, they
  // are au elsewhere. Without a home one line, and the place (0, 0) at height 0 counts as home.
  bool IsHome(float tolerance) const;
  // With true: back to the Earth's home, what it holds of place, view and time. The moving type is set anew
  // even if it is the home's already, so what the home does not hold comes from that type's record
  // (SetMovingType, the record chosen for the home's observer). The home's moment is restored when it holds
  // one and the FST mode is off (else the clock decides), its time zone in any case. The flight object, the
  // centre object and the lock are cleared; a home that was locked on an object locks on it again. Without a
  // home of the Earth one line, and nothing more changes than the flight object. Both: IsGoingHome answers
  // `go` until the next call.
  void GoHome(bool go);
  bool IsGoingHome() const { return m_GoingHome; }

  // Plays (play_desc.h). Setting one replaces the description of its type. Nothing here moves the camera.
  void SetPlay(PlayTypes type, PlayAction action, double first);
  void SetPlay(PlayTypes type, PlayAction action, double first, double second);
  void SetPlay(PlayTypes type, PlayAction action, double first, double second, double third);
  void SetPlay(PlayTypes type, PlayAction action, double first, double second, double third,
               const SSO_ID& object);
  // A default description for a type that was never set.
  PlayDesc GetPlay(PlayTypes type) const;
  bool IsPlay(PlayTypes type) const;
  bool IsViewPlay() const;
  bool IsLocationPlay() const;
  bool IsAnyPlay() const;  // a time play counts while the FST mode is off
  bool Is3DFlightPlay() const;
  void StopAnyPlay();

  void Set3DFlightObject(const SSO_ID& object) { m_FlightObject = object; }
  // False, and `out` as it was, when there is none.
  bool Get3DFlightObject(SSO_ID* out) const;
  void SetQuickOI_id(const SSO_ID& object) { m_QuickOI = object; }
  void GetQuickOI_id(SSO_ID& object) const { object = m_QuickOI; }

  // Markers (marker_info.h). A marker with an identifier that is there replaces that one and goes to the end;
  // finder markers (-1) are only ever added. Deleting takes the first with that identifier.
  void AddOIMarker(const MARKER_INFO& marker);
  void DeleteOIMarker(const MARKER_INFO& marker);
  // Projects every marker but the finders to whole pixels; one outside the window, whose edges belong to it,
  // gets (-1, -1). A marker's y is H minus the projection's y: deliberate, like that of the back-projection.
  void UpdateOIMarkers();
  void ClearOIMarkerList() { m_OIMarkers.clear(); }
  // The camera's own list; its markers may be changed in place.
  std::vector<MARKER_INFO>* GetOIMarkerList() { return &m_OIMarkers; }
  // Whether a finder marker was added and not deleted since; clearing the list does not count.
  bool IsOnScreenFinder() const { return m_OnScreenFinder; }

  // Steps of the interactive controls. The unit of the zoom step is always 0.
  CameraStepSize GetStep(CameraStep step) const;
  void SetStep(CameraStep step, CameraStepSize size);

 protected:
  // C = V R. Whoever changes V or R calls it.
  void UpdateComboMatrix();

 private:
  tPoint<double> ProjectBy(const PictureMatrix& matrix, const double* v) const {
    double left, up;
    Project(matrix, m_Scale, v[0], v[1], v[2], left, up);
    return {m_WinCentre.x - left, up + m_WinCentre.y};
  }
  // The centre plus an offset truncated towards 0, as if the integers had no bounds.
  static int WholePixel(int centre, double offset) {
    // The centre is half of an int: sums with such an offset are ints.
    constexpr double kNear = 1e9;
    return offset > -kNear && offset < kNear ? centre + static_cast<int>(offset) : FarPixel(centre, offset);
  }
  static int FarPixel(int centre, double offset);
  void TurnHome(bool go);
  CameraState& State() { return *this; }
  bool ReadFrom(SettingsData& settings, const char* file, unsigned id);
  bool ReadSavedView(const char* file, unsigned viewId);
  void ApplyRecord(SettingsData& settings, bool namedFile);
  void ReadObserver(RecordReader& reader, bool namedFile);
  // Put the record into the settings object, under `id`; whether there was a field for everything.
  bool PutShortRecord(int id);
  bool PutRecord(int id);
  bool SaveRecord(bool whole, const char* file);
  void SetBuiltInDefaults();
  void SetDefaultDirection();
  void SetDefaultSteps();
  void SetJ2000();
  void UpdateDeltaT();
  void RebuildViewMatrix();
  void UpdateScale();
  void UpdateDiagonalsOfDefaults();
  float DrawThreshold(int row) const;
  bool IsWithinShownRadius(double radius) const;
  void LoadHomes();
  void StorePlace(HomeParameters& home) const;
  void StoreView(HomeParameters& home) const;
  void StoreTime(HomeParameters& home) const;
  void ApplyHome(const HomeParameters& home);
  void ReleaseDirection();
  void GoToPlace(const HomeParameters& home);
  void LookAsAt(const HomeParameters& home);
  // A change of moving type with the record that is for the observer `goal`.
  void ChangeMovingType(int type, bool keep, const SSO_ID& goal);
  void ChangeTypeAndObserver(int type, int locationType, const SSO_ID& observer);
  bool IsOnSurface() const;
  void LeaveBehind(bool keep);
  void PutBackObserver();
  void PutBackPlace(int type, bool leftNow);
  void PutBackDirection(int type, const LeftBehind::Direction& before);
  void TurnAfterChange(int type, bool wasLocked, const SSO_ID& lockedOn);

  unsigned m_Owner = 0;
  std::unique_ptr<SettingsData> m_Settings;
};

}  // namespace CommonInterfaces
