// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Recipes about the program around the libraries.
#include <cstdio>
#include <cstdlib>
#include <new>
#include <string>

#include "recipes.h"

void TakeTheErrors(Kitchen&) {
  std::string log;
  // Before other threads print. A text is one line with its end, valid during the call.
  SetDebugSink([](const char* text, void* context) { static_cast<std::string*>(context)->append(text); },
               &log);
  const float tooMany = 3.0f;
  CommonInterfaces::SettingsData settings(1, FourCC("FLTR"), "filters.data");
  settings.Read(nullptr);
  settings.SetFieldElement(FourCC("star"), GetUniqueID("VisMagnitude"), &tooMany, 2);  // it has two
  SetDebugSink(nullptr, nullptr);                                                      // standard error again
  std::printf("%s", log.c_str());
}

namespace {

long g_Allocations = 0;

}  // namespace

void* operator new(std::size_t size) {
  ++g_Allocations;
  if (void* const memory = std::malloc(size ? size : 1)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

void CountAllocations(Kitchen& kitchen) {
  const scene::ShownKinds shown;
  const scene::SkyMarkers markers;
  scene::FrameMaker maker(kitchen.camera, kitchen.catalogs, shown, scene::ObjectFilters::None(), markers);
  maker.Prepare();
  maker.Compute();  // the first one takes what all others need
  for (const char* round : {"first", "second"}) {
    const long before = g_Allocations;
    for (int frame = 0; frame < 10; ++frame) {
      scene::LookTo({160.0 + frame, 30.0}, kitchen.camera);
      maker.Prepare();
      maker.Compute();
    }
    std::printf("%s ten frames: %ld\n", round, g_Allocations - before);
  }
}

// The library hands objects to whatever model it is given.
void PutAModelInItsPlace(Kitchen&) {
  class MyModel : public CQXSolSys {
   public:
    bool SetAimObject(const SSO_ID& id, const void*) override {
      std::printf("aims at %s %d\n", scene::GetCodeText(id.kind).c_str(), id.number);
      return true;
    }
  } model;
  CommonInterfaces::SetDataToSolSys(SSO_ID(FourCC("plnt"), 5), nullptr, &model,
                                    CommonInterfaces::kConvertAimObject);
}
