// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A field that suggests while somebody types: arrow keys go through the suggestions, Enter takes one, Escape
// closes them. Answers that come late, when something else stands in the field, are dropped.

import { make, newId } from './dom';

export interface Choice<Value> {
  value: Value;
  text: string;
  aside: string; // behind it, smaller
}

export interface ComboboxOptions<Value> {
  suggest(text: string): Promise<Choice<Value>[]>;
  choose(choice: Choice<Value>): void;
  // Enter where nothing is suggested.
  onNothing(text: string): void;
  onFailure(text: string): void;
  onCount(count: number): void; // for whoever reads them out
}

const kWait = 60; // milliseconds between the last key and the question

export class Combobox<Value> {
  readonly input: HTMLInputElement;
  readonly list: HTMLUListElement;
  readonly root: HTMLElement;
  #options: ComboboxOptions<Value>;
  #choices: Choice<Value>[] = [];
  #active = -1;
  #asked = 0;
  #timer = 0;

  constructor(options: ComboboxOptions<Value>) {
    this.#options = options;
    this.list = make('ul', { id: newId(), className: 'suggestions', role: 'listbox', hidden: true });
    this.input = make('input', {
      type: 'text',
      autocomplete: 'off',
      spellcheck: false,
      role: 'combobox',
      enterKeyHint: 'search',
    });
    this.input.setAttribute('aria-autocomplete', 'list');
    this.input.setAttribute('aria-controls', this.list.id);
    this.#expand(false);
    this.root = make('div', { className: 'combobox' }, this.input, this.list);
    this.input.oninput = () => {
      this.#active = -1; // what was suggested for another text is not meant
      clearTimeout(this.#timer);
      this.#timer = window.setTimeout(() => void this.#ask(), kWait);
    };
    this.input.onkeydown = (event) => this.#takeKey(event);
    this.input.onblur = () => this.#expand(false);
    this.input.onfocus = () => this.#expand(this.#choices.length > 0);
  }

  // What follows a choice that another name of it should stand for.
  clear(text = ''): void {
    this.input.value = text;
    this.#show([]);
  }

  async #ask(): Promise<void> {
    const asked = ++this.#asked;
    const text = this.input.value.trim();
    try {
      const choices = text === '' ? [] : await this.#options.suggest(text);
      if (asked !== this.#asked) return;
      this.#show(choices);
      if (text !== '') this.#options.onCount(choices.length);
    } catch (reason) {
      this.#options.onFailure(reason instanceof Error ? reason.message : String(reason));
    }
  }

  #show(choices: Choice<Value>[]): void {
    this.#choices = choices;
    this.#active = -1;
    this.input.removeAttribute('aria-activedescendant');
    this.list.replaceChildren(...choices.map((choice, index) => this.#makeItem(choice, index)));
    this.#expand(choices.length > 0 && document.activeElement === this.input);
  }

  #makeItem(choice: Choice<Value>, index: number): HTMLElement {
    const item = make('li', { id: `${this.list.id}-${index}`, role: 'option', ariaSelected: 'false' },
      make('span', {}, choice.text), make('small', {}, choice.aside)); // prettier-ignore
    // Before the field loses the focus and the list goes.
    item.onpointerdown = (event) => {
      event.preventDefault();
      this.#choose(choice);
    };
    return item;
  }

  #expand(isOpen: boolean): void {
    this.list.hidden = !isOpen;
    this.input.setAttribute('aria-expanded', String(isOpen));
  }

  #choose(choice: Choice<Value>): void {
    this.clear();
    this.#options.choose(choice);
  }

  // Enter before the answer is there waits for it.
  async #enter(): Promise<void> {
    const text = this.input.value.trim();
    if (text === '') return;
    if (this.#active < 0) {
      clearTimeout(this.#timer);
      await this.#ask();
    }
    const choice = this.#choices[Math.max(this.#active, 0)];
    if (choice) this.#choose(choice);
    else this.#options.onNothing(text);
  }

  #takeKey(event: KeyboardEvent): void {
    if (event.key === 'Enter') {
      event.preventDefault();
      void this.#enter();
    } else if (event.key === 'Escape' && !this.list.hidden) {
      event.stopPropagation();
      this.#expand(false);
    } else if (event.key === 'ArrowDown' || event.key === 'ArrowUp') {
      event.preventDefault();
      this.#move(event.key === 'ArrowDown' ? 1 : -1);
    }
  }

  #move(by: number): void {
    const count = this.#choices.length;
    if (count === 0) return;
    this.#expand(true);
    this.#active = (this.#active + by + (this.#active < 0 && by < 0 ? 1 : 0) + count) % count;
    [...this.list.children].forEach((item, index) => (item.ariaSelected = String(index === this.#active)));
    const item = this.list.children[this.#active];
    item.scrollIntoView({ block: 'nearest' });
    this.input.setAttribute('aria-activedescendant', item.id);
  }
}
