// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import type { Model } from '../state/model';

const kReach = { mouse: 6, touch: 18 }; // CSS pixels beside an object that still mean it
const kStill = 6; // CSS pixels that a hand may move in a click

// A click or tap on the sky opens the panel of what lies there; beside everything it closes the panel.
export function pickOnClick(model: Model): void {
  const { canvas } = model.stage;
  let down: PointerEvent | null = null;
  let hands = 0;
  canvas.addEventListener('pointerdown', (event) => {
    ++hands;
    down = event.isPrimary && event.button === 0 ? event : null;
  });
  const leave = (): void => void (hands = Math.max(hands - 1, 0));
  canvas.addEventListener('pointercancel', leave);
  canvas.addEventListener('pointerup', (event) => {
    leave();
    if (!down || hands > 0) return;
    const isStill = Math.hypot(event.clientX - down.clientX, event.clientY - down.clientY) < kStill;
    down = null;
    if (isStill) model.run(pickAt(model, event.clientX, event.clientY, event.pointerType === 'touch' ? kReach.touch : kReach.mouse));
  });
}

async function pickAt(model: Model, clientX: number, clientY: number, reach: number): Promise<void> {
  const { stage } = model;
  const { x, y } = stage.toPixels(clientX, clientY);
  const [object] = await stage.sky.pick(x, y, (reach * stage.view.width) / stage.canvas.clientWidth);
  if (object || model.object) model.select(object ?? null);
}

// The same for the keyboard: what lies nearest to the middle.
export async function pickMiddle(model: Model): Promise<void> {
  const { width, height } = model.stage.view;
  const reach = Math.min(width, height) * 0.06;
  const [object] = await model.sky.pick(width / 2, height / 2, reach);
  if (object) model.select(object);
}
