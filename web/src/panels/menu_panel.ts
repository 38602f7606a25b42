// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import { saveAs } from '../state/files';
import type { Model } from '../state/model';
import type { Style } from '../state/address';
import { kStyles } from '../state/address';
import { bindTexts, fill, texts } from '../text/captions';
import type { Texts } from '../text/en';
import { iconButton, make, setLabel } from './dom';
import { Drawer } from './drawer';
import { makeIcon } from './icons';
import { savePng, saveSvg } from './pictures';
import { openSession, saveSession } from './session_files';

const kStyleCaptions: Record<Style, keyof Texts> = {
  screen: 'styleScreen', night: 'styleNight', print: 'stylePrint', photo: 'stylePhoto',
}; // prettier-ignore

// Style, language, pictures, sessions, favourites.
export class MenuPanel {
  readonly drawer = new Drawer('right', (captions) => captions.menu);
  #model: Model;
  #favourites = make('ul', { className: 'favourites' });
  #link = make('input', { type: 'text', readOnly: true, hidden: true });

  constructor(model: Model, address: () => string) {
    this.#model = model;
    this.drawer.body.append(
      this.#makeStyles(),
      this.#makeLanguages(),
      this.#makeGroup(
        'picture',
        ['savePng', () => savePng(model)],
        ['saveSvg', () => saveSvg(model)],
        ['fullScreen', toggleFullScreen],
      ),
      this.#makeGroup(
        'session',
        ['saveSession', () => saveSession(model)],
        ['openSession', () => this.#choose()],
        ['share', () => this.#share(address())],
      ),
      this.#link,
      this.#makeGroup('favourites', ['saveFavourites', () => this.#saveFavourites()]),
      this.#favourites,
    );
    bindTexts((captions) => (this.#link.ariaLabel = captions.shareByHand));
    this.drawer.onOpen = () => model.run(this.#list());
    model.onFavourites.on(() => model.run(this.#list()));
    model.onLanguage.on(() => model.run(this.#list()));
  }

  #makeStyles(): HTMLElement {
    const group = make('fieldset', { className: 'choices' }, make('legend'));
    const radios = kStyles.map((style) => {
      const input = make('input', { type: 'radio', name: 'style', value: style });
      input.onchange = () => this.#model.run(this.#model.setStyle(style));
      group.append(make('label', {}, input, make('span')));
      return input;
    });
    const show = (): void => radios.forEach((radio) => (radio.checked = radio.value === this.#model.style));
    this.#model.onStyle.on(show);
    bindTexts((captions) => {
      group.firstElementChild!.textContent = captions.style;
      radios.forEach(
        (radio, index) => (radio.nextElementSibling!.textContent = captions[kStyleCaptions[kStyles[index]]]),
      );
    });
    show();
    return group;
  }

  // The languages that the data root has, each called as it calls itself.
  #makeLanguages(): HTMLElement {
    const select = make('select');
    const caption = make('span', { className: 'caption' });
    bindTexts((captions) => (caption.textContent = captions.language));
    select.onchange = () => this.#model.run(this.#model.setLanguage(select.value));
    const fillIn = async (): Promise<void> => {
      const languages = await this.#model.sky.getLanguages();
      select.replaceChildren(
        ...languages.map(({ code, name }) => make('option', { value: code, lang: code }, name)),
      );
      select.value = this.#model.language;
    };
    this.#model.run(fillIn());
    this.#model.onLanguage.on((language) => (select.value = language));
    return make('label', { className: 'switch' }, caption, select);
  }

  #makeGroup(title: keyof Texts, ...actions: [keyof Texts, () => Promise<void> | void][]): HTMLElement {
    const heading = make('h3');
    const buttons = actions.map(([caption, act]) => {
      const button = make('button', { type: 'button' });
      button.onclick = () => this.#model.run(Promise.resolve().then(act));
      bindTexts((captions) => (button.textContent = captions[caption]));
      return button;
    });
    bindTexts((captions) => (heading.textContent = captions[title]));
    return make('div', { className: 'group' }, heading, make('div', { className: 'buttons' }, ...buttons));
  }

  // Without the right to the clipboard the link stands in a field.
  async #share(address: string): Promise<void> {
    try {
      await navigator.clipboard.writeText(address);
      this.#model.onNote.emit(texts().shared);
    } catch {
      this.#link.hidden = false;
      this.#link.value = address;
      this.#link.select();
    }
  }

  #choose(): void {
    const input = make('input', { type: 'file' });
    input.onchange = () => input.files?.[0] && this.#model.run(openSession(this.#model, input.files[0]));
    input.click();
  }

  async #saveFavourites(): Promise<void> {
    saveAs('favourites.txt', new Blob([await this.#model.sky.formatFavourites()], { type: 'text/plain' }));
  }

  async #list(): Promise<void> {
    if (!this.drawer.isOpen) return;
    const { sky } = this.#model;
    const favourites = await sky.getFavourites();
    const items = favourites.map(({ object, name }) => {
      const open = make('button', { type: 'button' }, name);
      open.onclick = () => {
        this.#model.select(object);
        this.#model.run(this.#model.centre(object));
      };
      const remove = iconButton(makeIcon('close'), () =>
        this.#model.run(sky.mark(object, false).then(() => this.#model.favouritesChanged())),
      );
      setLabel(remove, fill(texts().remove, name));
      return make('li', {}, open, remove);
    });
    if (items.length === 0) items.push(make('li', { className: 'line' }, texts().noFavourites));
    this.#favourites.replaceChildren(...items);
  }
}

export async function toggleFullScreen(): Promise<void> {
  if (document.fullscreenElement) await document.exitFullscreen();
  else await document.documentElement.requestFullscreen();
}
