// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import type { Texts } from '../text/en';
import { bindTexts, texts } from '../text/captions';
import { make } from './dom';
import { closeLastDrawer } from './drawer';

export interface Key {
  key: string; // as KeyboardEvent has it
  shown?: string; // in the list, where that is another
  caption: keyof Texts;
  act(): void;
}

// What the hands do with keys themselves (web/src/hands), for the list alone.
const kHands: readonly [shown: string, caption: keyof Texts][] = [
  ['← ↑ → ↓', 'keyTurn'],
  ['+ −', 'keyZoom'],
  ['f', 'keyMeter'],
];

const isTyping = (target: EventTarget | null): boolean =>
  target instanceof HTMLElement &&
  (target.matches('input:not([type=checkbox]):not([type=radio]), select, textarea') ||
    target.isContentEditable);

// A blank presses the button that has the focus, and so does Enter.
const isPressing = (event: KeyboardEvent): boolean =>
  (event.key === ' ' || event.key === 'Enter') &&
  event.target instanceof HTMLElement &&
  event.target.matches('button, summary, a, [role=switch], input');

// Keys that work wherever the focus is, but where somebody types. Escape closes what was opened last.
export function listenToKeys(keys: readonly Key[]): void {
  window.addEventListener('keydown', (event) => {
    if (event.ctrlKey || event.metaKey || event.altKey) return;
    if (event.key === 'Escape') return void closeLastDrawer();
    if (isTyping(event.target) || isPressing(event)) return;
    const key = keys.find((one) => one.key === event.key);
    if (!key) return;
    event.preventDefault();
    key.act();
  });
}

// The panel of all keys.
export function makeHelp(keys: readonly Key[]): HTMLDialogElement {
  const title = make('h2', { id: 'help-title' });
  const list = make('dl', { className: 'keys' });
  const close = make('button', { type: 'button' });
  const dialog = make('dialog', { className: 'help glass' }, title, list, close);
  dialog.setAttribute('aria-labelledby', title.id);
  close.onclick = () => dialog.close();
  dialog.onclick = (event) => event.target === dialog && dialog.close();
  bindTexts((captions) => {
    title.textContent = captions.help;
    close.textContent = captions.close;
    const rows: [string, keyof Texts][] = [
      ...keys.map(({ key, shown, caption }): [string, keyof Texts] => [shown ?? key, caption]),
      ...kHands,
      ['Esc', 'keyEscape'],
    ];
    list.replaceChildren(
      ...rows.flatMap(([key, caption]) => [
        make('dt', {}, make('kbd', {}, key)),
        make('dd', {}, texts()[caption]),
      ]),
    );
  });
  return dialog;
}
