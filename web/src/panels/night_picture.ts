// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import { makeSvg } from './dom';

export const kSamples = 97;
const kWidth = 320,
  kHeight = 72,
  kHorizon = 46;

const planet = 0x706c6e74; // "plnt"
const moon = 0x6d6f6f6e; // "moon"
// As the scene numbers them.
export const kBodies = { sun: { kind: planet, number: 10 }, moon: { kind: moon, number: 301 } } as const;

// How much of the night's darkness an altitude of the Sun has: 0 by day, 1 from the end of astronomical
// twilight on.
const darkness = (altitude: number): number => Math.min(Math.max(-altitude / 18, 0), 1);

// How dark it is, as a gradient over the colour of the day.
function makeDarkness(sun: Float64Array): SVGElement[] {
  const stops = [...sun].map((altitude, index) =>
    makeSvg('stop', {
      offset: (index / (sun.length - 1)).toFixed(4),
      class: 'dark',
      'stop-opacity': Number.isNaN(altitude) ? 0 : darkness(altitude).toFixed(3),
    }),
  );
  return [
    makeSvg('linearGradient', { id: 'darkness' }, ...stops),
    makeSvg('rect', { x: 0, y: 0, width: kWidth, height: kHeight, fill: 'url(#darkness)' }),
  ];
}

function makePath(altitudes: Float64Array, name: string): SVGElement {
  const points = [...altitudes].flatMap((altitude, index) => {
    if (Number.isNaN(altitude)) return [];
    const y =
      altitude > 0
        ? kHorizon - (altitude / 90) * (kHorizon - 3)
        : kHorizon - (altitude / 90) * (kHeight - kHorizon);
    return [`${((index / (altitudes.length - 1)) * kWidth).toFixed(1)},${y.toFixed(1)}`];
  });
  return makeSvg('polyline', { points: points.join(' '), class: name });
}

// The Sun's altitude from the beginning to the end of the night, evenly spread, and the Moon's.
export function drawNight(sun: Float64Array, moonAltitudes: Float64Array): SVGElement {
  return makeSvg(
    'svg',
    { viewBox: `0 0 ${kWidth} ${kHeight}`, preserveAspectRatio: 'none', 'aria-hidden': 'true' },
    makeSvg('rect', { x: 0, y: 0, width: kWidth, height: kHeight, class: 'daylight' }),
    ...makeDarkness(sun),
    makeSvg('line', { x1: 0, x2: kWidth, y1: kHorizon, y2: kHorizon, class: 'horizon' }),
    makePath(sun, 'sun'),
    makePath(moonAltitudes, 'moon'),
  );
}
