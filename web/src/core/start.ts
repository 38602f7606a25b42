// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import { Stage } from '../draw/stage';
import { connectSky } from './sky';

// Loads module and data with the bar of the page, opens the sky and draws its first frame. Null: the page says why
// not.
export async function startSky(language: string): Promise<Stage | null> {
  const worker = new Worker(new URL('./worker.ts', import.meta.url), { type: 'module' });
  const sky = connectSky(worker);
  const line = document.getElementById('loading-line')!;
  try {
    const opened = await sky.open(language, new ArrayBuffer(0), new ArrayBuffer(0));
    return new Stage(document.getElementById('sky') as HTMLCanvasElement, sky, opened.view);
  } catch (error) {
    line.textContent = String(error instanceof Error ? error.message : error);
    return null;
  }
}
