// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Elements of the page in one expression each.

type Child = Node | string | null;
type Properties<Name extends keyof HTMLElementTagNameMap> = Partial<
  Omit<HTMLElementTagNameMap[Name], 'style' | 'dataset' | 'classList'>
>;

export function make<Name extends keyof HTMLElementTagNameMap>(
  name: Name,
  properties: Properties<Name> = {},
  ...children: Child[]
): HTMLElementTagNameMap[Name] {
  const element = document.createElement(name);
  Object.assign(element, properties);
  element.append(...children.filter((child) => child !== null));
  return element;
}

const kSvg = 'http://www.w3.org/2000/svg';

export function makeSvg(
  name: string,
  attributes: Record<string, string | number>,
  ...children: Node[]
): SVGElement {
  const element = document.createElementNS(kSvg, name);
  for (const [key, value] of Object.entries(attributes)) element.setAttribute(key, String(value));
  element.append(...children);
  return element;
}

// A button with a picture in place of words; the words are its label and what a pointer that rests shows.
export function iconButton(icon: SVGElement, onClick: () => void): HTMLButtonElement {
  const button = make('button', { type: 'button', className: 'icon-button', onclick: onClick });
  button.append(icon);
  return button;
}

export function setLabel(element: HTMLElement, label: string, key = ''): void {
  element.ariaLabel = label;
  element.title = key ? `${label} (${key})` : label;
  if (key) element.setAttribute('aria-keyshortcuts', key);
}

let lastId = 0;
export const newId = (): string => `id${++lastId}`;

// Calls `work` at most once in `ms`, the last time with the newest state.
export function throttle(work: () => void, ms: number): () => void {
  let timer = 0;
  return () => {
    if (timer) return;
    timer = window.setTimeout(() => {
      timer = 0;
      work();
    }, ms);
  };
}
