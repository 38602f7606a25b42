// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import { FactKind } from '../core/panel_messages';
import type { Model } from '../state/model';
import { fill, texts } from '../text/captions';
import { formatNumber } from './format';
import type { Status } from './status';

const kReach = 0.06; // of the picture's smaller side around its middle

// Reads what stands in the middle of the picture, when the view has come to rest and the sky has the focus:
// name, magnitude and altitude of an object, else the direction.
export function announceMiddle(model: Model, status: Status): void {
  let last = '';
  const read = async (): Promise<void> => {
    if (document.activeElement !== model.stage.canvas) return;
    const text = await describeMiddle(model);
    if (text !== last) status.whisper(text);
    last = text;
  };
  model.stage.onRest(() => model.run(read()));
  model.stage.canvas.addEventListener('focus', () => model.run(read()));
}

async function describeMiddle(model: Model): Promise<string> {
  const { sky, stage } = model;
  const { width, height } = stage.view;
  const captions = texts();
  const [object] = await sky.pick(width / 2, height / 2, Math.min(width, height) * kReach);
  if (!object) {
    const spot = await sky.describePixel(width / 2, height / 2);
    const name = spot.constellation || captions.middleOfSky;
    return fill(
      captions.announceNothing,
      name,
      formatNumber(spot.azimuth, 0),
      formatNumber(spot.altitude, 0),
    );
  }
  const facts = await sky.getFacts(object);
  const sight = await sky.observe(object).catch(() => null); // what has no place has a name
  const parts = [facts.find((fact) => fact.kind === FactKind.kind)?.text ?? ''];
  if (sight && Number.isFinite(sight.magnitude))
    parts.push(fill(captions.magnitude, formatNumber(sight.magnitude, 1)));
  if (sight && Number.isFinite(sight.altitude))
    parts.push(fill(captions.altitude, formatNumber(sight.altitude, 0)));
  const name = facts.find((fact) => fact.kind === FactKind.name)?.text ?? '';
  return fill(captions.announceObject, name, parts.filter((part) => part !== '').join(', '));
}
