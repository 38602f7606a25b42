// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import type { SkyObject } from '../core/messages';
import type { ObjectDay } from '../core/panel_messages';
import type { Model } from '../state/model';
import { julianFromLocal, localTime } from '../state/zones';
import { fill, texts } from '../text/captions';
import { makeSvg } from './dom';
import { formatNumber } from './format';

const kSamples = 97; // a quarter of an hour apart
const kWidth = 288,
  kHeight = 84,
  kBase = 56; // the horizon stands at kBase; below it 90 degrees take what is left

const yOf = (altitude: number): number =>
  altitude > 0 ? kBase - (altitude / 90) * (kBase - 4) : kBase - (altitude / 90) * (kHeight - kBase - 4);

// The altitude of an object from midnight to midnight, the moment of the view marked.
export async function makeDayCurve(model: Model, object: SkyObject, day: ObjectDay): Promise<SVGElement> {
  const { zone } = model.place;
  const moment = model.stage.view.julianDate;
  const civil = localTime(moment, zone);
  const begin = julianFromLocal({ ...civil, hour: 0, minute: 0, second: 0 }, zone);
  const altitudes = await model.sky.sampleAltitudes(object, begin, begin + 1, kSamples);
  const points = [...altitudes].flatMap((altitude, index) =>
    Number.isNaN(altitude)
      ? []
      : [`${((index / (kSamples - 1)) * kWidth).toFixed(1)},${yOf(altitude).toFixed(1)}`],
  );
  const now = Math.min(Math.max(moment - begin, 0), 1);
  const at = now * (kSamples - 1);
  const before = altitudes[Math.floor(at)],
    after = altitudes[Math.ceil(at)];
  const altitude = before + (after - before) * (at % 1);
  const highest = Number.isNaN(day.transitAltitude) ? Math.max(...altitudes) : day.transitAltitude;
  const hours = [6, 12, 18].map((hour) =>
    makeSvg('line', {
      x1: (hour / 24) * kWidth,
      x2: (hour / 24) * kWidth,
      y1: 0,
      y2: kHeight,
      class: 'tick',
    }),
  );
  return makeSvg(
    'svg',
    {
      viewBox: `0 0 ${kWidth} ${kHeight}`,
      class: 'curve',
      role: 'img',
      'aria-label': fill(texts().curve, formatNumber(highest, 0)),
    },
    makeSvg('rect', { x: 0, y: kBase, width: kWidth, height: kHeight - kBase, class: 'below' }),
    ...hours,
    makeSvg('polyline', { points: points.join(' '), class: 'path' }),
    makeSvg('line', { x1: now * kWidth, x2: now * kWidth, y1: 0, y2: kHeight, class: 'now' }),
    ...(Number.isNaN(altitude)
      ? []
      : [makeSvg('circle', { cx: now * kWidth, cy: yOf(altitude), r: 3.5, class: 'dot' })]),
  );
}
