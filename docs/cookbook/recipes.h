// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <common_interfaces/common_interfaces.h>
#include <scene/scene.h>
#include <utils/utils.h>

// What every recipe finds ready: the sky of a data root, and a camera that looks at Orion over Frankfurt on
// 15 January 2026 at 22:00 Universal Time.
struct Kitchen {
  scene::SkyCatalogs& catalogs;
  CommonInterfaces::Camera& camera;
};

// views.cpp
void Aim(Kitchen& kitchen);
void FindWhereAPixelLooks(Kitchen& kitchen);
void FollowAPlanet(Kitchen& kitchen);
void KeepTheView(Kitchen& kitchen);
void RunTwoCameras(Kitchen& kitchen);

// sky.cpp
void ListWhatIsVisible(Kitchen& kitchen);
void SayWhyNot(Kitchen& kitchen);
void LiftByTheAir(Kitchen& kitchen);
void FindWhatWasClicked(Kitchen& kitchen);
void MarkAPlace(Kitchen& kitchen);

// moments.cpp
void FindRisings(Kitchen& kitchen);
void FindFullMoons(Kitchen& kitchen);
void ChooseForTonight(Kitchen& kitchen);
void WorkBesideTheFrame(Kitchen& kitchen);

// keeping.cpp
void ReadSettings(Kitchen& kitchen);
void FilterTheSky(Kitchen& kitchen);
void ReadACatalog(Kitchen& kitchen);

// hosting.cpp
void TakeTheErrors(Kitchen& kitchen);
void CountAllocations(Kitchen& kitchen);
void PutAModelInItsPlace(Kitchen& kitchen);
