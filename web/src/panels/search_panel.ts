// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import type { Suggestion } from '../core/panel_messages';
import type { Model } from '../state/model';
import { bindTexts, fill, texts } from '../text/captions';
import { Combobox } from './combobox';
import { make } from './dom';
import { makeIcon } from './icons';
import type { Status } from './status';

const kMost = 8;

// The search field: names in all languages, letters, catalogue numbers. What is chosen is centred and its
// panel opened.
export function makeSearch(model: Model, status: Status): { root: HTMLElement; input: HTMLInputElement } {
  const box = new Combobox<Suggestion>({
    suggest: async (text) => {
      const found = await model.sky.suggest(text, kMost);
      return found.map((value) => ({ value, text: titleOf(value), aside: value.kind }));
    },
    choose: ({ value }) => {
      box.input.blur();
      model.select(value.object);
      model.run(model.centre(value.object));
    },
    onNothing: () => status.say(texts().nothingFound),
    onFailure: (text) => model.onFailure.emit(text),
    onCount: (count) => status.whisper(count ? fill(texts().suggestionCount, count) : texts().nothingFound),
  });
  box.input.setAttribute('aria-keyshortcuts', '/');
  const root = make(
    'div',
    { className: 'search glass', role: 'search' },
    make('span', { className: 'lens' }),
    box.root,
  );
  root.firstElementChild?.append(makeIcon('search'));
  bindTexts((captions) => {
    box.input.ariaLabel = captions.search;
    box.input.placeholder = captions.searchHint;
    box.list.ariaLabel = captions.suggestions;
  });
  return { root, input: box.input };
}

// The name that was looked for, before the one that it is known by.
const titleOf = ({ name, title }: Suggestion): string => (name === title ? title : `${name} · ${title}`);
