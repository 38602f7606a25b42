// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import { startSky } from './core/start';

// The page, put together: the sky first, then what stands around it.
async function start(): Promise<void> {
  await startSky();
}

void start();
