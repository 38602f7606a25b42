// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

namespace scene {

// What keeps an object from being drawn; several may be true at once.
enum Obstacle : unsigned {
  kKindOff = 1,         // its section or its kind is switched off
  kFiltered = 2,        // a filter of its section rejects it
  kTooFaint = 4,        // fainter than the drawing limit of its class
  kBelowHorizon = 8,    // while a horizon is shown
  kOutside = 16,        // its disc or symbol does not reach into the window
  kNoPlace = 32,        // nobody can tell where the body is at that moment
  kSkyTooBright = 64,   // the sky there, or the air low above the horizon, hides it
  kBesidePlanet = 128,  // a moon that at this zoom falls together with the dot of its planet
  kFarSide = 256,       // a feature of a surface that is turned away, or too near to the limb
  kTooSmall = 512,      // a feature, or the disc that it is on, is too small in the picture to have a name
  kInNight = 1024,      // the Sun does not shine on the feature
  kBehindLand = 2048    // hidden by the landscape that is painted
};

}  // namespace scene
