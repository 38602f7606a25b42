// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The panels that open beside the sky, on a phone above its lower edge. One is open on each side, on a phone
// one in all. Escape closes the one that was opened last, and the focus goes back to where it was.

import type { Texts } from '../text/en';
import { bindTexts } from '../text/captions';
import { make, newId, setLabel, iconButton } from './dom';
import { makeIcon } from './icons';

export type Side = 'left' | 'right';

const kPhone = window.matchMedia('(max-width: 720px)');

const open: Drawer[] = []; // the one that was opened last at the end

export class Drawer {
  readonly root: HTMLElement;
  readonly title: HTMLHeadingElement;
  readonly body: HTMLElement;
  onOpen: () => void = () => {};
  onClose: () => void = () => {};
  readonly side: Side;
  #opener: Element | null = null;
  #button: HTMLButtonElement | null = null;

  constructor(side: Side, caption: (texts: Texts) => string) {
    this.side = side;
    const id = newId();
    this.title = make('h2', { id, tabIndex: -1 });
    this.body = make('div', { className: 'drawer-body' });
    const close = iconButton(makeIcon('close'), () => this.close());
    this.root = make(
      'section',
      { className: `drawer ${side}`, hidden: true },
      make('header', {}, this.title, close),
      this.body,
    );
    this.root.setAttribute('aria-labelledby', id);
    bindTexts((texts) => {
      this.title.textContent = caption(texts);
      setLabel(close, texts.close, 'Escape');
    });
  }

  get isOpen(): boolean {
    return !this.root.hidden;
  }

  // A button that opens and closes the drawer.
  attach(button: HTMLButtonElement): void {
    this.#button = button;
    button.setAttribute('aria-expanded', 'false');
    button.onclick = () => (this.isOpen ? this.close() : this.open());
  }

  // The focus goes in, unless `isQuiet`.
  open(isQuiet = false): void {
    for (const other of [...open]) {
      if (other !== this && (kPhone.matches || other.side === this.side)) other.close(true);
    }
    if (!this.isOpen) {
      this.#opener = document.activeElement;
      this.root.hidden = false;
      this.#button?.setAttribute('aria-expanded', 'true');
      open.push(this);
      document.body.classList.add(`has-${this.side}`);
    }
    if (!isQuiet) this.title.focus();
    this.onOpen();
  }

  // `isQuiet`: the focus stays where it is.
  close(isQuiet = false): void {
    if (!this.isOpen) return;
    const had = this.root.contains(document.activeElement);
    this.root.hidden = true;
    this.#button?.setAttribute('aria-expanded', 'false');
    open.splice(open.indexOf(this), 1);
    if (!open.some((other) => other.side === this.side)) document.body.classList.remove(`has-${this.side}`);
    if (had && !isQuiet) (this.#opener as HTMLElement | null)?.focus?.();
    this.onClose();
  }
}

// Closes the drawer that was opened last. False: none was open.
export function closeLastDrawer(): boolean {
  const last = open.at(-1);
  last?.close();
  return last !== undefined;
}

// The middle, in pixels of the page, of what a sheet leaves of the sky; null where no sheet is open.
export function middleAboveSheet(): { x: number; y: number } | null {
  const last = open.at(-1);
  if (!last || !kPhone.matches) return null;
  return { x: window.innerWidth / 2, y: last.root.getBoundingClientRect().top / 2 };
}
