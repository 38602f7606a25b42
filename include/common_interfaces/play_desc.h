// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Plays: running changes of time, view and place, as the camera describes them. The camera keeps at most one
// description per type of play; whoever draws the frames moves the camera by it.
#pragma once

#include "astro/object_id.h"

namespace CommonInterfaces {

// One bit each. What a view play turns and a location play moves is its owner's choice; the camera tells the
// groups apart. Numbers are frozen.
enum PlayTypes : int {
  kPlayTime = 0x1,
  kPlayView1 = 0x2,
  kPlayView2 = 0x4,
  kPlayView3 = 0x8,
  kPlayView4 = 0x40,
  kPlayLocation1 = 0x80,
  kPlayLocation2 = 0x100,
  kPlayLocation3 = 0x200,
  kPlayLocation4 = 0x400,
  kPlayLocation5 = 0x800,
  kPlayLocation6 = 0x1000,
  kPlayLocation7 = 0x2000,
};

// Numbers are frozen. An owner may use further ones: Camera::StopAnyPlay turns them into kPlayStopped.
enum PlayAction : int {
  kPlayNone = 0,     // never set
  kPlayHeld = 1,     // described, and left alone by StopAnyPlay
  kPlayRunning = 2,  // the only action that counts as playing
  kPlayStopped = 3,
};

// The description of one play.
struct PlayDesc {
  int type = 0;        // PlayTypes
  int action = 0;      // PlayAction
  double first = 0.0;  // the values' units are the owner's
  double second = 0.0;
  double third = -1.0;
  unsigned char hasMoreValues = 0;  // 0: only `first` was given
  SSO_ID object;                    // empty unless given
  int reserved = 0;
};

}  // namespace CommonInterfaces
