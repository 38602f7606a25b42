// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Lines for the user: some are seen for a moment and read out, some are read out alone.

import { make } from './dom';

const kShownFor = 6000; // milliseconds

export class Status {
  readonly root: HTMLElement;
  #toast = make('div', { className: 'toast glass', role: 'status', hidden: true });
  #voice = make('div', { className: 'unseen' });
  #timer = 0;

  constructor() {
    this.#voice.setAttribute('aria-live', 'polite');
    this.root = make('div', {}, this.#toast, this.#voice);
  }

  say(text: string): void {
    clearTimeout(this.#timer);
    this.#toast.textContent = text;
    this.#toast.hidden = false;
    this.#timer = window.setTimeout(() => (this.#toast.hidden = true), kShownFor);
  }

  // For screen readers.
  whisper(text: string): void {
    this.#voice.textContent = text;
  }
}
