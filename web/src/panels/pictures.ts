// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import { FrameList } from '../core/frame_list';
import { saveAs } from '../state/files';
import type { Model } from '../state/model';

// The canvas as it is painted next, in the device's pixels.
export async function savePng(model: Model): Promise<void> {
  const blob = await model.stage.toBlob();
  if (!blob) throw new Error('PNG');
  saveAs('sky.png', blob);
}

// The same display list, in a form that scales.
export async function saveSvg(model: Model): Promise<void> {
  const { writeSvg } = await import('../draw/svg');
  const { frame } = model.stage;
  if (!frame) return;
  const text = await writeSvg(new FrameList(frame.buffer.slice(0)), frame.view);
  saveAs('sky.svg', new Blob([text], { type: 'image/svg+xml' }));
}
