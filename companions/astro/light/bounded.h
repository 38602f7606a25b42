// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

namespace astro {

// The value within its range; what is not a number is the lower end.
inline double Bounded(double value, double least, double most) {
  return value > most ? most : value >= least ? value : least;
}

}  // namespace astro
