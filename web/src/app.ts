// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import { startSky } from './core/start';
import { FrameMeter } from './hands/frame_meter';
import { Hands } from './hands/hands';
import { keepOffline } from './offline/keep';

// The page, put together: the sky first, then what stands around it.
async function start(): Promise<void> {
  const stage = await startSky('en');
  if (!stage) return;
  stage.change({ julianDate: Date.now() / 86400000 + 2440587.5 });
  const hands = new Hands(stage);
  new FrameMeter(stage);
  keepOffline();
  Object.assign(window, { stage, hands }); // for the console and the tests
}

void start();
