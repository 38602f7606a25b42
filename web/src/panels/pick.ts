// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import type { Model } from '../state/model';

const kReach = 6,
  kFingerReach = 18; // CSS pixels beside an object that still mean it
const kMiddle = 0.06; // of the picture's smaller side around its middle

// A tap on the sky, at a pixel of the view, opens the panel of what lies there; beside everything it closes
// the panel.
export async function pickAt(model: Model, x: number, y: number, isFinger: boolean): Promise<void> {
  const { stage } = model;
  const reach = ((isFinger ? kFingerReach : kReach) * stage.view.width) / stage.canvas.clientWidth;
  const [object] = await stage.sky.pick(x, y, reach);
  if (object || model.object) model.select(object ?? null);
}

// The same for the keyboard: what lies nearest to the middle.
export async function pickMiddle(model: Model): Promise<void> {
  const { width, height } = model.stage.view;
  const [object] = await model.sky.pick(width / 2, height / 2, Math.min(width, height) * kMiddle);
  if (object) model.select(object);
}
