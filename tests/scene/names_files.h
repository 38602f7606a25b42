// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/temp_dir.h"

namespace host_test {

// Names, asterisms, gazetteers, cities and pairs beside the objects of the small sky (small_root.h), whose
// stars get Hipparcos numbers for it. Coordinates in radians.
inline void WriteNames(const test_support::TempDir& dir) {
  dir.Write("data/catalogs/stars.txt",
            "Number:i32\tRA:f64\tDec:f64\tVisMagnitude:f32\tProperName:text\tBayer:text\tHipparcosID:i32\n"
            "7001\t4.8736\t0.6769\t0.03\tVega\tα Lyr\t91262\n"
            "2061\t1.5497\t0.1293\t0.5\tBetelgeuse\tα Ori\t27989\n"
            "1713\t1.3724\t-0.1431\t0.12\tRigel\tβ Ori\t24436\n"
            "5054\t3.5078\t0.9587\t2.27\tMizar\tζ UMa\t65378\n");
  dir.Write("data/catalogs/names.txt",
            "Object:text\tLanguage:text\tProperName:text\n"
            "HIP 91262\tde\tWega\nHIP 91262\tru\tВега\nHIP 91262\ten\tHarp Star\n"
            "HIP 27989\tde\tBeteigeuze\nHIP 27989\tde\tSchulterstern\nHIP 27989\tru\tБетельгейзе\n"
            "M 45\tde\tPlejaden\nM 45\tru\tПлеяды\nM 45\ten\tSeven Sisters\n"
            "cnst Ori\tde\tHimmelsjäger\ncnst Ori\tru\tОрион\n"
            "astm Belt\tde\tGürtel des Orion\nastm Belt\ten\tThree Kings\n"
            "plnt 2\ten\tEvening Star\nHIP 99\ten\tNobody\n");
  dir.Write("data/catalogs/asterisms.txt",
            "Key:text\tProperName:text\tPriority:i32\n"
            "Belt\tOrion's Belt\t1\nHunter\tHunter\t2\nEmpty\tEmpty\t1\n");
  dir.Write("data/catalogs/asterism_lines.txt",
            "Key:text\tNumber:i32\tRA:f64\tDec:f64\n"
            "Belt\t1\t1.4487\t-0.0052\nBelt\t1\t1.4670\t-0.0210\nBelt\t1\t1.4868\t-0.0339\n"
            "Hunter\t1\t1.5497\t0.1293\nHunter\t1\t1.3724\t-0.1431\nHunter\t2\t1.4\t0.1\n");
  dir.Write("data/gazetteers/moon_features.txt",
            "ProperName:text\tType:text\tLatitude:f64\tLongitude:f64\tDiameter:f32\n"
            "Tycho\tCrater\t-0.7557\t-0.1958\t85.3\n"
            "Tycho A\tSatellite feature\t-0.6970\t-0.2100\t29.0\n"
            "Copernicus\tCrater\t0.1679\t-0.3505\t96.1\n"
            "Vega\tCrater\t-0.7926\t1.1043\t73.5\n"
            "Mare Imbrium\tMare\t0.6060\t-0.2602\t1146\n"
            "Rima Long\tRima\t0.0100\t0.0200\t200\n"
            "Tsiolkovskiy\tCrater\t-0.3525\t2.2532\t184\n"
            "Luna 9\tLanding site\t0.1244\t-1.1236\t\n");
  dir.Write("data/gazetteers/mars_features.txt",
            "ProperName:text\tType:text\tLatitude:f64\tLongitude:f64\tDiameter:f32\n"
            "Copernicus\tCrater\t-0.8524\t-2.9467\t301.8\n"
            "Olympus Mons\tMons\t0.3255\t-2.3352\t610\n");
  dir.Write("data/catalogs/cities.txt",
            "ProperName:text\tOtherNames:text\tCountry:text\tCountryName:text\tLatitude:f64\tLongitude:f64\t"
            "Height:f32\tPopulation:i32\tZone:text\n"
            "Sydney\t\tCA\tCanada\t0.8051\t-1.0503\t\t105968\tAmerica/Glace_Bay\n"
            "Sydney\tСидней\tAU\tAustralia\t-0.59106\t2.63892\t58\t4627345\tAustralia/Sydney\n"
            "Munich\tMünchen; Мюнхен\tDE\tGermany\t0.84008\t0.20204\t524\t1260391\tEurope/Berlin\n"
            "Washington, D.C.\tWashington\tUS\tUnited States\t0.67895\t-1.34465\t6\t601723\t"
            "America/New_York\n");
  dir.Write("data/catalogs/double_stars.txt",
            "BrightStarID:i32\tHipparcosID:i32\tDiscoverer:text\tPair:text\tMagnitude1:f32\tMagnitude2:f32\t"
            "Separation:f64\tPairAngle:f64\n"
            "5054\t65378\tSTF 1744\tAB\t2.27\t3.95\t6.98e-05\t2.6529\n"
            "7001\t\t\tAC\t0.03\t\t3e-4\t3.2\n");
}

}  // namespace host_test
