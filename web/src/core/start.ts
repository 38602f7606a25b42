// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import { Stage } from '../draw/stage';
import { loadFiles } from './loading';
import { connectSky } from './sky';

// The bundle of worker.ts, which the build names (web/tools/build.mjs).
declare const kWorkerFile: string;

// Loads module and data with the bar of the page, opens the sky in that language and draws its first frame.
// Null: the page says why not, in one line.
export async function startSky(language: string): Promise<Stage | null> {
  const loading = document.getElementById('loading')!;
  const line = document.getElementById('loading-line')!;
  const bar = document.getElementById('loading-bar') as HTMLProgressElement;
  try {
    const sky = connectSky(new Worker(new URL(kWorkerFile, document.baseURI), { type: 'module' }));
    const { module, pack } = await loadFiles((part) => (bar.value = part));
    const opened = await sky.open(language, module, pack);
    const stage = new Stage(document.getElementById('sky') as HTMLCanvasElement, sky, opened.view);
    stage.onFrame(() => (loading.hidden = true));
    sky.events.onFrameFailure = (text) => (line.textContent = text);
    return stage;
  } catch (error) {
    bar.hidden = true;
    line.textContent = error instanceof Error ? error.message : String(error);
    line.setAttribute('role', 'alert');
    return null;
  }
}
