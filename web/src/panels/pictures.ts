// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import { saveAs } from '../state/files';
import type { Model } from '../state/model';

// The canvas as it is painted next, in the device's pixels.
export async function savePng(model: Model): Promise<void> {
  const blob = await model.stage.toPng();
  saveAs('sky.png', blob);
}

// The same display list, in a form that scales.
export async function saveSvg(model: Model): Promise<void> {
  const { writeSvg } = await import('../draw/svg');
  saveAs('sky.svg', new Blob([await writeSvg(model.stage.list, model.stage.view)], { type: 'image/svg+xml' }));
}
