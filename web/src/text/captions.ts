// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The captions in the language that is shown, and everybody who shows one. A language of the data root that
// the page has no captions for is shown with English ones.

import { de } from './de';
import type { Texts } from './en';
import { en } from './en';
import { ru } from './ru';

const kTables: Readonly<Record<string, Texts>> = { de, en, ru };

let shown: Texts = en;
let code = 'en';
const bound: ((texts: Texts) => void)[] = [];

export const texts = (): Texts => shown;
// For the browser's own forms of dates and numbers.
export const languageCode = (): string => code;

// Calls `apply` now and at each change of the language, as long as the page is there.
export function bindTexts(apply: (texts: Texts) => void): void {
  bound.push(apply);
  apply(shown);
}

export function setTexts(language: string): void {
  code = language;
  shown = kTables[language] ?? en;
  for (const apply of bound) apply(shown);
}

// "{0} of {1}" with what is filled in.
export const fill = (text: string, ...values: (string | number)[]): string =>
  text.replace(/\{(\d)\}/g, (_, index: string) => String(values[Number(index)] ?? ''));

// The first of the browser's languages that there are captions for.
export const ownLanguage = (wanted: readonly string[]): string =>
  wanted.map((tag) => tag.slice(0, 2).toLowerCase()).find((tag) => tag in kTables) ?? 'en';
