// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Orbits: where the input begins with "t", the lines behind that are two-line elements; with "c" too, once
// their checksums are put right, so that mutations come farther; otherwise it is the numbers of an element
// set as they lie in memory, whatever they are, for the two-body motion and for the satellite model.
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>

#include "astro/satellite.h"
#include "astro/two_body.h"
#include "fuzz/scratch.h"

namespace {

using fuzz::Require;

// Minutes: within a day, half a month, five years back, and what no clock shows.
constexpr double kMinutes[] = {0.0, 100.0, -1439.5, 20000.0, -2.6e6, 1e300, NAN};

bool IsFinite(const double v[3]) { return std::isfinite(v[0]) && std::isfinite(v[1]) && std::isfinite(v[2]); }

void AskModel(const OrbitalElements& elements) {
  const SatelliteModel model(elements);
  for (const double minutes : kMinutes) {
    double position[3] = {7.0, 7.0, 7.0};
    double velocity[3] = {8.0, 8.0, 8.0};
    const SatelliteFault fault = model.GetState(minutes, position, velocity);
    if (fault == SatelliteFault::kNone || fault == SatelliteFault::kDecayed) {
      Require(IsFinite(position) && IsFinite(velocity), "a state is made of numbers");
    } else {
      Require(position[0] == 7.0 && velocity[2] == 8.0, "a fault leaves the results alone");
    }
  }
}

void AskTwoBodies(const OrbitalElements& elements) {
  const OrbitPlane plane = MakeOrbitPlane(elements);
  for (const double days : {0.0, -1.0, 40000.0, 1e300}) {
    double position[3] = {7.0, 7.0, 7.0};
    double velocity[3] = {8.0, 8.0, 8.0};
    if (ComputeTwoBodyState(elements, plane, elements.epoch + days, position, velocity)) {
      Require(IsFinite(position) && IsFinite(velocity), "a state is made of numbers");
    } else {
      Require(position[0] == 7.0 && velocity[2] == 8.0, "what is no orbit leaves the results alone");
    }
  }
  Require(!(SolveKeplerEllipse(elements.e, elements.M0) == HUGE_VAL), "an eccentric anomaly is no infinity");
  SolveKeplerHyperbola(elements.e, elements.M0);
  Require(!(std::fabs(SolveBarker(elements.M0)) > 3.1416), "a true anomaly is within half a turn");
}

void PutChecksumRight(std::string& line) {
  if (line.size() < 69) return;
  int sum = 0;
  for (std::size_t i = 0; i < 68; ++i)
    sum += line[i] >= '0' && line[i] <= '9' ? line[i] - '0' : (line[i] == '-' ? 1 : 0);
  line[68] = static_cast<char>('0' + sum % 10);
}

void ReadLines(const std::string& text, bool isRepaired) {
  const std::size_t end = text.find('\n');
  std::string line1 = text.substr(0, end);
  std::string line2 = end == std::string::npos ? "" : text.substr(end + 1);
  if (isRepaired) {
    PutChecksumRight(line1);
    PutChecksumRight(line2);
  }
  OrbitalElements elements;
  int number = -7;
  std::string error;
  if (!ParseTwoLineElements(line1, line2, elements, number, error)) {
    Require(error.starts_with("line ") && error.find('\n') == std::string::npos, "an error is one line");
    Require(number == -7 && elements.tag == 0, "an error leaves the results alone");
    return;
  }
  Require(error.empty() && elements.tag == kTwoLineTag, "elements are ready for the model");
  Require(number >= 0 && number <= 339999, "catalogue numbers have five places");
  Require(elements.e >= 0.0 && elements.e < 1.0 && std::isfinite(elements.n) &&
              std::isfinite(elements.dragTerm) && elements.epoch > 2435838.0 && elements.epoch < 2472367.0,
          "what was read is in range");
  AskModel(elements);
}

void TakeNumbers(const std::uint8_t* data, std::size_t size) {
  double numbers[9] = {};
  std::memcpy(numbers, data, size < sizeof numbers ? size : sizeof numbers);
  OrbitalElements elements;
  elements.e = numbers[0];
  elements.n = numbers[1];
  elements.a = numbers[2];
  elements.i = numbers[3];
  elements.om = numbers[4];
  elements.w = numbers[5];
  elements.M0 = numbers[6];
  elements.epoch = numbers[7];
  elements.dragTerm = numbers[8];
  AskTwoBodies(elements);
  elements.tag = kTwoLineTag;
  elements.elementSet = kTwoLineElements;
  AskModel(elements);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  if (data[0] == 't' || data[0] == 'c')
    ReadLines(std::string(reinterpret_cast<const char*>(data + 1), size - 1), data[0] == 'c');
  else
    TakeNumbers(data + 1, size - 1);
  return 0;
}
