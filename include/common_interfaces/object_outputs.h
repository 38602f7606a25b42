// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What drawing left behind for every visible star and deep-sky object of a frame: where it stands in the
// window and what was drawn for it, so that picking, labels and tooltips find it without projecting it again.
// The drawing modules fill these records; the order and width of the fields and their values on construction
// are fixed, since modules built apart share them.
//
// Records live in an OutputPool, `new (pool) StarOutput`, or on the heap, `new StarOutput`. The pool form
// cannot throw: it gives null, and no constructor runs, when the pool is exhausted. It has no matching delete
// on purpose, because memory of a pool is given back only as a whole. One thread, that of the pool. A class
// with an `operator new` of its own hides the language's, so the usual forms stand beside it and do what they
// always do: `new (std::nothrow) StarOutput` gives null without memory, `new (place) StarOutput` constructs
// in memory of the caller's.
#pragma once

#include <cstddef>
#include <new>

#include "common_interfaces/api.h"
#include "common_interfaces/output_pool.h"

namespace CommonInterfaces {

// Where an object stands in the window.
struct ScreenPlace {
  float x;       // pixels from the left
  float y;       // pixels from the bottom, upwards
  float radius;  // pixels; what the pointer must hit
  float angle;   // radians from the centre of the view
};
static_assert(sizeof(ScreenPlace) == 16);

// The part that all objects share.
class COMMON_INTERFACES_API BaseOutput {
 public:
  BaseOutput();
  virtual ~BaseOutput();
  BaseOutput(const BaseOutput&);
  BaseOutput& operator=(const BaseOutput&);

  unsigned m_Frame = 0;      // number of the frame that filled the record; 0: none yet
  ScreenPlace m_Place{};     // all zero until projected
  unsigned char m_OnScreen;  // 1 inside the window, 0 outside; not set on construction: projecting writes it
  int m_LabelIndex = -1;     // index into the frame's labels; -1: no label
  bool m_Drawn = false;      // something was drawn for the object
};
static_assert(sizeof(void*) != 4 || sizeof(BaseOutput) == 36);

// What drawing left behind for a star.
class COMMON_INTERFACES_API StarOutput : public BaseOutput {
 public:
  StarOutput();
  ~StarOutput() override;
  StarOutput(const StarOutput&);
  StarOutput(StarOutput&&) noexcept;
  StarOutput& operator=(const StarOutput&);
  StarOutput& operator=(StarOutput&&) noexcept;

  static void* operator new(std::size_t size);
  static void* operator new(std::size_t size, const std::nothrow_t& tag) noexcept;
  static void* operator new(std::size_t size, void* place) noexcept;
  static void* operator new(std::size_t size, OutputPool& pool) noexcept;
  static void operator delete(void* memory) noexcept;
  static void operator delete(void* memory, const std::nothrow_t& tag) noexcept;
  static void operator delete(void* memory, void* place) noexcept;

  unsigned char m_AsDisc;  // 1 drawn as a disc, 0 as a point; not set on construction: drawing writes it
  unsigned char m_Highlighted = 0;  // 1 when drawn with the mark of the chosen star
};
static_assert(sizeof(void*) != 4 || sizeof(StarOutput) == 36);

// The picture of a deep-sky object as it was drawn. A plain record without construction defaults.
struct COMMON_INTERFACES_API DeepskyImageDrawData {
  double m_CornerX[4];  // window pixels from the left: top left, top right, bottom right, bottom left corner
  double m_CornerY[4];  // window pixels from the bottom, same order
  double m_CenterX;     // window pixels, the catalogue position
  double m_CenterY;
  double m_NorthAngle;  // radians from "up" in the window to north on the picture, counterclockwise
  double m_PixelScale;  // window pixels per pixel of the picture
  double m_Opacity;     // 0 invisible to 1 opaque

  static void* operator new(std::size_t size);
  static void* operator new(std::size_t size, const std::nothrow_t& tag) noexcept;
  static void* operator new(std::size_t size, void* place) noexcept;
  static void* operator new(std::size_t size, OutputPool& pool) noexcept;
  static void operator delete(void* memory) noexcept;
  static void operator delete(void* memory, const std::nothrow_t& tag) noexcept;
  static void operator delete(void* memory, void* place) noexcept;
};
static_assert(sizeof(DeepskyImageDrawData) == 13 * 8);
static_assert(offsetof(DeepskyImageDrawData, m_Opacity) == 12 * 8);

// The model of a deep-sky object as it was placed in the scene. A plain record without construction defaults.
struct COMMON_INTERFACES_API Deepsky3DDrawData {
  double m_Center[3];       // parsecs from the observer, J2000 axes
  double m_Orientation[3];  // radians: longitude and latitude of the model's pole, turn about it, J2000 axes
  double m_Diameter;        // parsecs

  static void* operator new(std::size_t size);
  static void* operator new(std::size_t size, const std::nothrow_t& tag) noexcept;
  static void* operator new(std::size_t size, void* place) noexcept;
  static void* operator new(std::size_t size, OutputPool& pool) noexcept;
  static void operator delete(void* memory) noexcept;
  static void operator delete(void* memory, const std::nothrow_t& tag) noexcept;
  static void operator delete(void* memory, void* place) noexcept;
};
static_assert(sizeof(Deepsky3DDrawData) == 7 * 8);
static_assert(offsetof(Deepsky3DDrawData, m_Diameter) == 6 * 8);

// A copy shares both pointers with its original. The destructor deletes the image draw data, so of all copies
// only one may be destroyed with the pointer in it: set it to null in the others first.
class COMMON_INTERFACES_API DeepskyOutput : public BaseOutput {
 public:
  DeepskyOutput();
  ~DeepskyOutput() override;
  DeepskyOutput(const DeepskyOutput&);
  DeepskyOutput& operator=(const DeepskyOutput&);

  static void* operator new(std::size_t size);
  static void* operator new(std::size_t size, const std::nothrow_t& tag) noexcept;
  static void* operator new(std::size_t size, void* place) noexcept;
  static void* operator new(std::size_t size, OutputPool& pool) noexcept;
  static void operator delete(void* memory) noexcept;
  static void operator delete(void* memory, const std::nothrow_t& tag) noexcept;
  static void operator delete(void* memory, void* place) noexcept;

  bool m_SymbolDrawn = false;                       // the object's symbol or outline was drawn
  float m_MajorSize = -1.0f;                        // pixels, the outline's long axis; -1: not computed
  float m_MinorSize = -1.0f;                        // pixels, the outline's short axis; -1: not computed
  unsigned m_Color = 0;                             // of the symbol, 0xAARRGGBB
  bool m_ImageDrawn = false;                        // a picture was drawn
  unsigned m_Texture = 0;                           // the drawing side's name of the picture; 0: none
  char m_ImageLetter = ' ';                         // which picture of several; blank: the only one
  DeepskyImageDrawData* m_ImageDrawData = nullptr;  // owned: made with `new`, never placed in a pool
  Deepsky3DDrawData* m_ModelDrawData = nullptr;     // not owned
};
static_assert(sizeof(void*) != 4 || sizeof(DeepskyOutput) == 68);

}  // namespace CommonInterfaces
