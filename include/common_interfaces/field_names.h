// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The field-name vocabulary that the library shares with the application: every name that it knows a settings
// or database field by, with its name id. The tables below are the only place where the names stand.
//
//   settings.GetFieldElement(FieldIds::StarZoomDependShow, &correction, 0);
//   FindFieldName(1151502876)   // "Dec", for a tool that shows ids
//
// Adding a name: one entry in the table of its group, and its count below. Names are frozen once files have
// been written with them, since files keep their hashes.
#pragma once

#include "common_interfaces/api.h"
#include "utils/text.h"

// X(identifier, "name"). The identifier is the name itself except where the name is none in C++:
//   "NGC-IC" is NGC_IC, "3D-FlightMarker" is FlightMarker3D, and the empty name (id 0) is NoName.
// clang-format off
// Display and filter switches.
#define COMMON_INTERFACES_DISPLAY_FIELD_NAMES(X) \
  X(ShowFavoOnly, "ShowFavoOnly") X(AsterGroups, "AsterGroups") X(AsterLabels, "AsterLabels")               \
  X(ShowUndef, "ShowUndef") X(LabelsDiameter, "LabelsDiameter") X(LabelsShowUndef, "LabelsShowUndef")       \
  X(ShowNearest, "ShowNearest") X(NoradNumber, "NoradNumber") X(Designator, "Designator")                   \
  X(ShowDeepSpace, "ShowDeepSpace") X(HorizonDraw, "HorizonDraw") X(Horizon, "Horizon")                     \
  X(Numbering, "Numbering") X(Grid, "Grid") X(RADecGrid, "RADecGrid") X(EclGrid, "EclGrid")                 \
  X(GalGrid, "GalGrid") X(Meridian, "Meridian") X(Poles, "Poles") X(Compass, "Compass")                     \
  X(SpectrTypeUndef, "SpectrTypeUndef") X(LuminosityUndef, "LuminosityUndef") X(ShowLabel, "ShowLabel")     \
  X(MagnitudeOn, "MagnitudeOn") X(ZoomDependShow, "ZoomDependShow") X(ZoomDependLabel, "ZoomDependLabel")   \
  X(CatalogType, "CatalogType") X(ShowLabelUndef, "ShowLabelUndef") X(CloudsDraw, "CloudsDraw")             \
  X(CloudsLabel, "CloudsLabel") X(CommonName, "CommonName") X(NGC_IC, "NGC-IC")                             \
  X(ClusterDraw, "ClusterDraw") X(ClusterLabel, "ClusterLabel") X(GalaxyDraw, "GalaxyDraw")                 \
  X(GalaxyLabel, "GalaxyLabel") X(NonOpticDraw, "NonOpticDraw") X(NonOpticLabel, "NonOpticLabel")           \
  X(BoundariesVisible, "BoundariesVisible") X(ImagesVisible, "ImagesVisible")                               \
  X(LabelsVisible, "LabelsVisible") X(PatternsVisible, "PatternsVisible")                                   \
  X(ImagesBrightness, "ImagesBrightness") X(EclNumbering, "EclNumbering")                                   \
  X(EclAxesNumbering, "EclAxesNumbering") X(GalNumbering, "GalNumbering")                                   \
  X(GalAxesNumbering, "GalAxesNumbering") X(TimeStatus, "TimeStatus") X(LocationStatus, "LocationStatus")   \
  X(ViewStatus, "ViewStatus") X(PlanetPhases, "PlanetPhases") X(PlanetGuides, "PlanetGuides")               \
  X(PlanetGrid, "PlanetGrid") X(PlanetFeatures, "PlanetFeatures") X(HorizonCountry, "HorizonCountry")       \
  X(PlanetCelPath, "PlanetCelPath") X(PlanetLocPath, "PlanetLocPath") X(PlanetPath, "PlanetPath")           \
  X(SkyDirt, "SkyDirt") X(ShowBinary, "ShowBinary") X(ShowVariable, "ShowVariable")                         \
  X(ShowWithPlanets, "ShowWithPlanets") X(Separation, "Separation") X(MagDifference, "MagDifference")       \
  X(Saturation, "Saturation") X(VariableDraw, "VariableDraw") X(MoonPhases, "MoonPhases")                   \
  X(MoonGuides, "MoonGuides") X(MoonGrid, "MoonGrid") X(MoonFeatures, "MoonFeatures")                       \
  X(Celestial, "Celestial") X(Local, "Local") X(PathLen, "PathLen") X(SunGuides, "SunGuides")               \
  X(SunGrid, "SunGrid") X(DrawAs, "DrawAs") X(NameAs, "NameAs") X(Band, "Band")                             \
  X(BlackAndWhite, "BlackAndWhite") X(Brightness, "Brightness") X(Marker, "Marker")                         \
  X(TelescopeMarker, "TelescopeMarker") X(DSSMarker, "DSSMarker") X(FlightMarker3D, "3D-FlightMarker")      \
  X(Flip, "Flip") X(SolarEclipseMap, "SolarEclipseMap") X(EclEquator, "EclEquator")                         \
  X(RADecEquator, "RADecEquator") X(Sound, "Sound") X(AngleType, "AngleType")                               \
  X(LatAbbreviation, "LatAbbreviation") X(CatalogName, "CatalogName") X(LatinGenitive, "LatinGenitive")     \
  X(EnglishName, "EnglishName") X(UsnoDownload, "UsnoDownload") X(Autofilters, "Autofilters")               \
  X(Draw, "Draw") X(ShowAsterBelt, "ShowAsterBelt") X(IntegrationFlag, "IntegrationFlag")

// Corrections of the limiting magnitudes, one pair (objects, labels) for each class of objects; their order
// is that of the rows of the camera's zoom-dependent table.
#define COMMON_INTERFACES_ZOOM_FIELD_NAMES(X) \
  X(StarZoomDependShow, "StarZoomDependShow") X(StarZoomDependLabel, "StarZoomDependLabel")                 \
  X(SCZoomDependShow, "SCZoomDependShow") X(SCZoomDependLabel, "SCZoomDependLabel")                         \
  X(GLZoomDependShow, "GLZoomDependShow") X(GLZoomDependLabel, "GLZoomDependLabel")                         \
  X(NBZoomDependShow, "NBZoomDependShow") X(NBZoomDependLabel, "NBZoomDependLabel")                         \
  X(NOZoomDependShow, "NOZoomDependShow") X(NOZoomDependLabel, "NOZoomDependLabel")                         \
  X(PlntZoomDependShow, "PlntZoomDependShow") X(PlntZoomDependLabel, "PlntZoomDependLabel")                 \
  X(MoonZoomDependShow, "MoonZoomDependShow") X(MoonZoomDependLabel, "MoonZoomDependLabel")                 \
  X(AstrZoomDependShow, "AstrZoomDependShow") X(AstrZoomDependLabel, "AstrZoomDependLabel")                 \
  X(ComtZoomDependShow, "ComtZoomDependShow") X(ComtZoomDependLabel, "ComtZoomDependLabel")                 \
  X(USCOZoomDependShow, "USCOZoomDependShow") X(USCOZoomDependLabel, "USCOZoomDependLabel")

// Fields of database records.
#define COMMON_INTERFACES_RECORD_FIELD_NAMES(X) \
  X(RA, "RA") X(Dec, "Dec") X(RADec, "RADec") X(Type, "Type") X(Magnitude, "Magnitude")                     \
  X(VisMagnitude, "VisMagnitude") X(BlueMagnitude, "BlueMagnitude") X(AbsMagnitude, "AbsMagnitude")         \
  X(PropMotion, "PropMotion") X(PropMotionRA, "PropMotionRA") X(PropMotionDec, "PropMotionDec")             \
  X(SpectrType, "SpectrType") X(Luminosity, "Luminosity") X(VarCatalogID, "VarCatalogID")                   \
  X(NumberComponents, "NumberComponents") X(NumberPlanets, "NumberPlanets")                                 \
  X(ColorIndexBV, "ColorIndexBV") X(HubbleType, "HubbleType") X(LargestDimension, "LargestDimension")       \
  X(SmallestDimension, "SmallestDimension") X(AngularDiameter, "AngularDiameter")                           \
  X(OpticalDiameter, "OpticalDiameter") X(Diameter, "Diameter") X(Radius, "Radius")                         \
  X(RadialVelocity, "RadialVelocity") X(Parallax, "Parallax") X(Distance, "Distance")                       \
  X(JulianDate, "JulianDate") X(JulianDate_d, "JulianDate_d") X(JulianTime, "JulianTime")                   \
  X(JulianTime_d, "JulianTime_d") X(a, "a") X(e, "e") X(i, "i") X(om, "om") X(w, "w") X(M0, "M0")           \
  X(BestObsTime, "BestObsTime") X(SlopeParam, "SlopeParam") X(n, "n") X(Hy, "Hy") X(y, "y") X(A1, "A1")     \
  X(A2, "A2") X(A3, "A3") X(PerihelionDist, "PerihelionDist") X(PerihelionTime, "PerihelionTime")           \
  X(Period, "Period") X(OrbitType, "OrbitType") X(CentralBodyId, "CentralBodyId")                           \
  X(LinkToName, "LinkToName") X(Bayer, "Bayer") X(Flamsteed, "Flamsteed") X(FK5id, "FK5id")                 \
  X(BSC5id, "BSC5id") X(HipparcosID, "HipparcosID") X(HD_ID, "HD_ID") X(VarName, "VarName")                 \
  X(TychoID, "TychoID") X(USNObID, "USNObID") X(GaiaId, "GaiaId") X(CatalogNumber, "CatalogNumber")         \
  X(Label, "Label") X(ProperName, "ProperName") X(MessierNumber, "MessierNumber")                           \
  X(NGC_ICnumber, "NGC_ICnumber") X(CatalogId, "CatalogId") X(CatalogName2, "CatalogName2")                 \
  X(CaldwellNumber, "CaldwellNumber") X(UGC_number, "UGC_number") X(MCG_number, "MCG_number")               \
  X(Designation, "Designation") X(AddInfoAddress, "AddInfoAddress")                                         \
  X(DoublePartAddress, "DoublePartAddress") X(PlanetPartAddress, "PlanetPartAddress") X(AddRA, "AddRA")     \
  X(AddDec, "AddDec") X(MilkyWayVisible, "MilkyWayVisible") X(Labels, "Labels") X(Number, "Number")         \
  X(CenterVector, "CenterVector") X(SpacecraftType, "SpacecraftType") X(NoName, "")
// clang-format on

namespace CommonInterfaces {

// The name ids.
struct FieldIds {
#define COMMON_INTERFACES_FIELD_ID(identifier, name) static constexpr int identifier = ::MakeUniqueID(name);
  COMMON_INTERFACES_DISPLAY_FIELD_NAMES(COMMON_INTERFACES_FIELD_ID)
  COMMON_INTERFACES_ZOOM_FIELD_NAMES(COMMON_INTERFACES_FIELD_ID)
  COMMON_INTERFACES_RECORD_FIELD_NAMES(COMMON_INTERFACES_FIELD_ID)
#undef COMMON_INTERFACES_FIELD_ID
};

// The tables that names stand in.
enum class FieldGroup { kDisplay, kZoomDependent, kRecord };

inline constexpr int kDisplayFieldNames = 99;
inline constexpr int kZoomFieldNames = 20;
inline constexpr int kRecordFieldNames = 83;
inline constexpr int kFieldNames = kDisplayFieldNames + kZoomFieldNames + kRecordFieldNames;

// One name of the vocabulary.
struct FieldName {
  const char* name;
  FieldGroup group;
  int id;  // GetUniqueID(name)
};

// All kFieldNames names in the order of the tables. The library owns them; any thread may call it. Cannot
// fail.
COMMON_INTERFACES_API const FieldName* GetFieldNames();

// The name with that id, "" for id 0; null for an id that is not in the vocabulary. No two names share an id.
COMMON_INTERFACES_API const char* FindFieldName(int id);

}  // namespace CommonInterfaces
