// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/coordinates.h"
#include "astro/vectors.h"
#include "common_interfaces/camera.h"
#include "utils/one_thread.h"

namespace CommonInterfaces {
namespace {

void ScaleToUnit(double* v) {
  const double scale = 1.0 / Vmod(v, 3);
  for (int i = 0; i < 3; ++i) v[i] *= scale;
}

}  // namespace

void Camera::Reduct2CamShort(const short* in, double* out) const {
  const ReadsObject use(this, "Camera");
  double v[3];
  for (int i = 0; i < 3; ++i) v[i] = in[i] / 32767.0;
  Reduct2CamDouble(v, out, false);
}

// V stands on the right, so its transpose is applied: not the projection's transform, and kept so on purpose.
void Camera::Reduct2CamDouble(const double* in, double* out, bool normalised) const {
  const ReadsObject use(this, "Camera");
  double v[3] = {in[0], in[1], in[2]};
  if (!normalised) ScaleToUnit(v);
  double u[3];
  MV3prod(m_ReductionMatrix, v, u);
  V3Mprod(u, m_ViewMatrix, out);
}

void Camera::ReductRADec2CamDouble(double ra, double dec, double* out) const {
  const double spherical[3] = {1.0, ra, dec};
  double v[3];
  sfp1(spherical, v);
  ScaleToUnit(v);
  MV3prod(m_ReductionMatrix, v, out);
}

void Camera::RADec_RADec2K(double ra, double dec, double* ra2k, double* dec2k) const {
  const double spherical[3] = {1.0, ra, dec};
  double w[3], u[3];
  sfp1(spherical, w);
  V3Mprod(w, m_ReductionMatrix, u);
  psf(u, 1.0, *ra2k, *dec2k);
}

}  // namespace CommonInterfaces
