// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// E. Everhart, An efficient integrator that uses Gauss-Radau spacings, in Dynamics of Comets: Their Origin
// and Evolution (Carusi & Valsecchi, editors), 185, 1985. Within a step of length T the acceleration is a
// polynomial of the seventh degree of h = 0 to 1, a(h) = a0 + b0 h + b1 h^2 + ... + b6 h^7, found from its
// values at eight spacings that make the state at the end of the step right to the fifteenth order. The
// control of the step is that of Rein & Spiegel 2015 (Monthly Notices of the Royal Astronomical Society 446,
// 1424), which needs no unit of length or time.
#include "companions/astro/orbits/orbit_integrator.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "companions/astro/geometry/finite.h"

namespace astro_internal {
namespace {

constexpr int kDegree = 7;
constexpr int kAxes = 3;
constexpr int kMostSweeps = 12;
constexpr double kLeastRatio =
    0.7;  // a step is done again when it should have been shorter than this part of it
constexpr double kGreatestRatio = 3.0;  // how much longer the next step may be
constexpr double kSweepShare = 0.1;  // the sweeps end when they change less than this part of the tolerance
constexpr double kFirstStep = 0.02;  // of the time that the body takes for its distance

// Gauss-Radau spacings of the eight points (Everhart 1985, table 2; the nodes
// of the quadrature with a fixed first point).
constexpr double kSpacing[kDegree + 1] = {0.0,
                                          0.0562625605369221464656521910318,
                                          0.180240691736892364987579942780,
                                          0.352624717113169637373907769648,
                                          0.547153626330555383001448554766,
                                          0.734210177215410531523210605558,
                                          0.885320946839095768090359771030,
                                          0.977520613561287501891174488626};

using Coefficients = double[kDegree][kAxes];

struct Tables {
  // Powers of h in the k-th product h (h - h1) ... (h - hk) of Newton's form: the factor of h^(j + 1).
  std::array<std::array<double, kDegree>, kDegree> power{};
  std::array<std::array<double, kDegree>, kDegree> binomial{};  // (j + 1) over (k + 1)
};

constexpr Tables MakeTables() {
  Tables tables;
  for (int k = 0; k < kDegree; ++k) {
    for (int j = 0; j <= k; ++j) {
      const double above = j > 0 ? tables.power[k - 1][j - 1] : 0.0;
      const double left = j < k ? tables.power[k - 1][j] : 0.0;
      tables.power[k][j] = k == 0 ? 1.0 : above - kSpacing[k] * left;
    }
  }
  for (int j = 0; j < kDegree; ++j) {
    double value = j + 1.0;
    for (int k = 0; k <= j; ++k) {
      tables.binomial[k][j] = value;
      value = value * (j - k) / (k + 2.0);
    }
  }
  return tables;
}
constexpr Tables kTables = MakeTables();

// A sum that carries what rounding cuts off (Kahan 1965): thousands of steps add to the same few numbers.
struct Sum {
  double value = 0.0;
  double rest = 0.0;

  void Add(double term) {
    const double corrected = term + rest;
    const double sum = value + corrected;
    rest = corrected - (sum - value);
    value = sum;
  }
};

// The local error of a step grows with the sixteenth power of its length, the last term with the seventh.
double LastTermTarget(double tolerance) { return std::pow(tolerance, 7.0 / 16.0); }

class Integration {
 public:
  Integration(const OrbitState& state, double t, OrbitAcceleration acceleration, void* context)
      : m_Acceleration(acceleration), m_Context(context) {
    m_Time.value = t;
    for (int axis = 0; axis < kAxes; ++axis) {
      m_Position[axis].value = state.position[axis];
      m_Velocity[axis].value = state.velocity[axis];
    }
  }

  enum class Outcome { kGood, kTooLong, kStopped };

  // The acceleration where the body is now. False: there is none.
  bool Begin() {
    double place[kAxes];
    for (int axis = 0; axis < kAxes; ++axis) place[axis] = m_Position[axis].value;
    return m_Acceleration(m_Time.value, place, m_Start, m_Context) && AreFinite(m_Start);
  }

  double FirstStep() const {
    double distance = 0.0, speed = 0.0, pull = 0.0;
    for (int axis = 0; axis < kAxes; ++axis) {
      distance = std::hypot(distance, m_Position[axis].value);
      speed = std::hypot(speed, m_Velocity[axis].value);
      pull = std::hypot(pull, m_Start[axis]);
    }
    return kFirstStep * std::fmin(distance / speed, std::sqrt(distance / pull));
  }

  // Tries a step. `ratio` becomes the length that keeps the error at the tolerance, in steps of this one.
  Outcome Try(double step, double tolerance, double& ratio) {
    Predict(step);
    if (!Sweep(step, std::fmax(kSweepShare * tolerance, 1e-16))) return Outcome::kStopped;
    ratio = std::pow(LastTermTarget(tolerance) / LastTermShare(), 1.0 / kDegree);
    if (!std::isfinite(m_B[kDegree - 1][0] + m_B[kDegree - 1][1] + m_B[kDegree - 1][2])) ratio = 0.0;
    ratio = std::clamp(ratio, 0.1, kGreatestRatio);
    return ratio < kLeastRatio ? Outcome::kTooLong : Outcome::kGood;
  }

  // Takes the step that was tried.
  void Advance(double step) {
    for (int axis = 0; axis < kAxes; ++axis) {
      double place = 0.0, motion = 0.0;
      for (int k = kDegree - 1; k >= 0; --k) {
        place += m_B[k][axis] / ((k + 2.0) * (k + 3.0));
        motion += m_B[k][axis] / (k + 2.0);
      }
      m_Position[axis].Add(step * step * (place + 0.5 * m_Start[axis]));
      m_Position[axis].Add(step * m_Velocity[axis].value);
      m_Position[axis].Add(step * m_Velocity[axis].rest);
      m_Velocity[axis].Add(step * (motion + m_Start[axis]));
    }
    m_Time.Add(step);
    m_LastStep = step;
    std::copy(&m_B[0][0], &m_B[0][0] + kDegree * kAxes, &m_LastB[0][0]);
    std::copy(&m_Predicted[0][0], &m_Predicted[0][0] + kDegree * kAxes, &m_LastPredicted[0][0]);
  }

  double GetTime() const { return m_Time.value; }
  OrbitState GetState() const {
    OrbitState state;
    for (int axis = 0; axis < kAxes; ++axis) {
      state.position[axis] = m_Position[axis].value;
      state.velocity[axis] = m_Velocity[axis].value;
    }
    return state;
  }

 private:
  // The polynomial of the last step, continued into this one, with the
  // correction that the last prediction needed.
  void Predict(double step) {
    const double ratio = m_LastStep == 0.0 ? 0.0 : step / m_LastStep;
    for (int axis = 0; axis < kAxes; ++axis) {
      double scale = 1.0;
      for (int k = 0; k < kDegree; ++k) {
        scale *= ratio;
        double sum = 0.0;
        for (int j = k; j < kDegree; ++j) sum += kTables.binomial[k][j] * m_LastB[j][axis];
        m_Predicted[k][axis] = scale * sum;
        m_B[k][axis] =
            m_LastStep == 0.0 ? 0.0 : m_Predicted[k][axis] + (m_LastB[k][axis] - m_LastPredicted[k][axis]);
      }
    }
    FromPowersToNewton();
  }

  // The divided differences that belong to the powers in m_B.
  void FromPowersToNewton() {
    for (int axis = 0; axis < kAxes; ++axis) {
      for (int k = kDegree - 1; k >= 0; --k) {
        double value = m_B[k][axis];
        for (int j = k + 1; j < kDegree; ++j) value -= m_Newton[j][axis] * kTables.power[j][k];
        m_Newton[k][axis] = value;
      }
    }
  }

  void PlaceAt(double h, double step, double place[kAxes]) const {
    for (int axis = 0; axis < kAxes; ++axis) {
      double sum = 0.0;
      for (int k = kDegree - 1; k >= 0; --k) sum = h * (sum + m_B[k][axis] / ((k + 2.0) * (k + 3.0)));
      const double path = h * step * (m_Velocity[axis].value + h * step * (sum + 0.5 * m_Start[axis]));
      place[axis] = m_Position[axis].value + (path + m_Position[axis].rest);
    }
  }

  // Sweeps over the points until the polynomial stands. False: the acceleration said stop.
  bool Sweep(double step, double sufficient) {
    double lastChange = HUGE_VAL;
    for (int sweep = 0; sweep < kMostSweeps; ++sweep) {
      m_Largest = 0.0;
      double change = 0.0;
      for (int point = 1; point <= kDegree; ++point) {
        double place[kAxes], pull[kAxes];
        PlaceAt(kSpacing[point], step, place);
        if (!m_Acceleration(m_Time.value + kSpacing[point] * step, place, pull, m_Context)) return false;
        for (int axis = 0; axis < kAxes; ++axis) {
          m_Largest = std::fmax(m_Largest, std::fabs(pull[axis]));
          const double difference = Correct(point, axis, pull[axis]);
          if (point == kDegree) change = std::fmax(change, std::fabs(difference));
        }
      }
      if (!(change > sufficient * m_Largest) || (sweep > 2 && change >= lastChange)) break;
      lastChange = change;
    }
    return true;
  }

  // Takes the acceleration found at a point into the polynomial; by how much
  // the last divided difference changed.
  double Correct(int point, int axis, double pull) {
    double value = (pull - m_Start[axis]) / kSpacing[point];
    for (int k = 1; k < point; ++k) value = (value - m_Newton[k - 1][axis]) / (kSpacing[point] - kSpacing[k]);
    const double difference = value - m_Newton[point - 1][axis];
    m_Newton[point - 1][axis] = value;
    for (int k = 0; k < point; ++k) m_B[k][axis] += difference * kTables.power[point - 1][k];
    return difference;
  }

  // The last term of the polynomial as a share of the acceleration; not zero.
  double LastTermShare() const {
    double last = 0.0;
    for (int axis = 0; axis < kAxes; ++axis) last = std::fmax(last, std::fabs(m_B[kDegree - 1][axis]));
    return std::fmax(last / m_Largest, 1e-30);
  }

  OrbitAcceleration m_Acceleration;
  void* m_Context;
  Sum m_Time, m_Position[kAxes], m_Velocity[kAxes];
  double m_Start[kAxes] = {};  // the acceleration at the beginning of the step
  double m_Largest = 0.0;      // the largest component of it within the step
  double m_LastStep = 0.0;     // 0: none yet
  Coefficients m_B = {}, m_Newton = {}, m_Predicted = {}, m_LastB = {}, m_LastPredicted = {};
};

}  // namespace

bool IntegrateOrbit(OrbitState& state, double& t, double t1, const IntegrationLimits& limits,
                    OrbitAcceleration acceleration, void* context) {
  if (t == t1) return true;
  if (!std::isfinite(t1 - t)) return false;
  Integration integration(state, t, acceleration, context);
  if (!integration.Begin()) return false;
  const double tolerance = limits.tolerance >= 1e-16 ? std::fmin(limits.tolerance, 1e-3) : 1e-16;
  const double direction = t1 > t ? 1.0 : -1.0;
  double length = integration.FirstStep();
  if (!(length > 0.0)) length = std::fabs(t1 - t);  // at rest, at the origin, or not a number

  for (int steps = 0; steps < limits.maxSteps; ++steps) {
    const double left = std::fabs(t1 - t);
    const bool isLast = length >= left;
    const double step = direction * (isLast ? left : length);
    if (t + step == t) return false;
    double ratio = 0.0;
    const auto outcome = integration.Try(step, tolerance, ratio);
    if (outcome == Integration::Outcome::kStopped) return false;
    length = std::fabs(step) * ratio;
    if (outcome == Integration::Outcome::kTooLong) continue;
    integration.Advance(step);
    state = integration.GetState();
    t = isLast ? t1 : integration.GetTime();
    if (isLast) return true;
    if (!integration.Begin()) return false;
  }
  return false;
}

}  // namespace astro_internal
