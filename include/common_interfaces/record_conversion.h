// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// From the records of databases and of the user's lists into the solar-system model. Field names, encodings
// and units kind by kind: docs/record_conversion.md.
#pragma once

#include "astro/object_id.h"
#include "common_interfaces/api.h"

class CQXSolSys;

namespace CommonInterfaces {

class BaseDB;

// What becomes of a converted record: which operation of CQXSolSys receives it.
enum ConversionMode : short {
  kConvertAimObject = 0,         // SetAimObject: the object that the view is centred on
  kConvertLocateObject = 1,      // SetLocateObject: the object searched for
  kConvertAdditionalObject = 2,  // SetAdditionalObject: one more object whose position is wanted
  kConvertIntegration = 3        // InitIntegr: the object whose orbit is to be integrated numerically
};

// The result of ConvertDBRecord.
enum ConversionResult : int {
  kConversionUnusable = -1,    // nothing was handed over; one diagnostic line says why
  kConversionUnknownKind = 0,  // nothing was done
  kConversionDone = 1          // converted, and handed over where the mode is one of ConversionMode
};

// Converts one record of the object `id` and hands it to `solSys`, as one of the records of
// astro/object_records.h.
//
//   "star" "uSTR"                         the current record of `db`       StarRecord
//   "gala" "nebu" "clst" "dsnv" "uDSO"    the current record of `db`       DeepskyRecord
//   "cnst"                                the current record of `db`       ConstellationRecord
//   "comt" "astr"                         the current record of `db`       OrbitalElements
//   "comt" "astr" in mode 2               `record`, the pointer itself, whatever the model takes it for
//   "scft"                                the same in every mode
//   "fAST" "fCOM" "fSCO" "uSCO"           `record`, OrbitalElements in the units of the user's lists:
//                                         degrees, the mean motion of two-line elements in revolutions a day
//   any other, "uNEB", "uCLS" and "uGAL" among them: nothing is done, 0
//
// A missing field of a database record leaves the default of its target: magnitudes kUnknownStarMagnitude, of
// deep-sky objects kUnknownDeepskyMagnitude; everything else as the records say, mostly 0. So does one that
// is not a finite number or has a type code that is none. Every numeric encoding is accepted for every field,
// at any address.
//
// Unusable are: a null `solSys`; a null `db` or `record` where the kind needs it; a centre of a constellation
// that has no direction; elements of the user's lists without a finite mean motion (a central body that the
// model does not know, numbers that are not finite, a <= 0, e < 0). What the model itself refuses it refuses
// on its own.
//
// `record` is never changed, need not be aligned for the kinds of the user's lists, and must hold a whole
// OrbitalElements there. Nothing is kept: all pointers stay the caller's. One thread at a time for `db` and
// `solSys`.
COMMON_INTERFACES_API int ConvertDBRecord(SSO_ID& id, BaseDB* db, unsigned char* record, CQXSolSys* solSys,
                                          short mode);

// Hands `data`, as it is, to the operation of `solSys` that the mode names (ConversionMode). Any other mode
// does nothing. A null `solSys` prints one line and does nothing.
COMMON_INTERFACES_API void SetDataToSolSys(const SSO_ID& id, void* data, CQXSolSys* solSys, short mode);

}  // namespace CommonInterfaces
