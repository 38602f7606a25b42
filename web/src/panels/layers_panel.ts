// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import type { PanelField } from '../core/panel_messages';
import { FieldType } from '../core/panel_messages';
import { differences } from '../state/changes';
import type { Model } from '../state/model';
import { kKeptOptions } from '../state/model';
import { bindTexts, languageCode, texts } from '../text/captions';
import { sectionCaption } from '../text/field_captions';
import { make } from './dom';
import { Drawer } from './drawer';
import { captionOf, makeFieldControl } from './field_control';
import { makeOptions } from './option_controls';

// What most people look for, in this order.
const kQuick = [
  'cnst.PatternsVisible', 'cnst.LabelsVisible', 'cnst.BoundariesVisible', 'star.ShowLabel', 'grid.MilkyWayVisible',
  'grid.RADecGrid', 'grid.Grid', 'grid.EclEquator', 'grid.Horizon', 'grid.Compass',
]; // prettier-ignore

const pathOf = ({ section, name }: PanelField): string => `${section}.${name}`;

// The scene's settings: the panel is made of its fields, so that a new one is there before anybody thinks of
// the page.
export class LayersPanel {
  readonly drawer = new Drawer('right', (captions) => captions.layers);
  #model: Model;
  #search = make('input', { type: 'search', autocomplete: 'off' });
  #list = make('div');
  #fields: PanelField[] = [];
  #open = new Set<string>(); // sections

  constructor(model: Model) {
    this.#model = model;
    const reset = make('button', { type: 'button' });
    reset.onclick = () => model.run(this.#reset());
    this.#search.oninput = () => this.#draw();
    this.drawer.body.append(this.#search, this.#list, reset);
    bindTexts((captions) => {
      this.#search.ariaLabel = captions.layerSearch;
      this.#search.placeholder = captions.layerSearch;
      reset.textContent = captions.reset;
    });
    this.drawer.onOpen = () => model.run(this.refresh());
    model.onSettings.on(() => model.run(this.refresh()));
    model.onLanguage.on(() => model.run(this.refresh()));
  }

  async refresh(): Promise<void> {
    if (!this.drawer.isOpen) return;
    const options = await makeOptions(this.#model);
    this.#fields = (await this.#model.sky.getPanelFields()).filter(({ type }) => type !== FieldType.other);
    this.#draw(options);
  }

  #draw(options: HTMLElement[] | null = null): void {
    const wanted = this.#search.value.trim().toLocaleLowerCase();
    const focused = document.activeElement?.id;
    const kept = options ?? [...this.#list.querySelectorAll<HTMLElement>('.option')];
    const sections = wanted ? this.#find(wanted) : [this.#makeQuick(kept), ...this.#makeSections()];
    this.#list.replaceChildren(...sections);
    if (focused) document.getElementById(focused)?.focus();
  }

  #find(wanted: string): HTMLElement[] {
    const language = languageCode();
    const found = this.#fields.filter((field) =>
      `${captionOf(field)} ${field.name} ${sectionCaption(field.section, language)}`
        .toLocaleLowerCase()
        .includes(wanted),
    );
    if (found.length === 0) return [make('p', { className: 'line' }, texts().noLayer)];
    return found.map((field) =>
      makeFieldControl(this.#model, field, sectionCaption(field.section, language), 'f'),
    );
  }

  #makeQuick(options: HTMLElement[]): HTMLElement {
    const fields = kQuick.flatMap((path) => this.#fields.filter((field) => pathOf(field) === path));
    const asideOf = ({ section }: PanelField): string =>
      section === 'grid' ? '' : sectionCaption(section, languageCode());
    const controls = fields.map((field) => makeFieldControl(this.#model, field, asideOf(field), 'q'));
    return make('section', { className: 'quick' }, make('h3', {}, texts().quick), ...controls, ...options);
  }

  #makeSections(): HTMLElement[] {
    const names = [...new Set(this.#fields.map(({ section }) => section))];
    return names.map((section) => {
      const fields = this.#fields.filter((field) => field.section === section);
      const details = make(
        'details',
        { open: this.#open.has(section) },
        make('summary', {}, sectionCaption(section, languageCode())),
      );
      details.append(...fields.map((field) => makeFieldControl(this.#model, field, '', 's')));
      details.ontoggle = () => (details.open ? this.#open.add(section) : this.#open.delete(section));
      return details;
    });
  }

  // Fields that differ from the data root's go back, and so do the options.
  async #reset(): Promise<void> {
    const { sky, defaults } = this.#model;
    const now = await sky.getPanelFields();
    for (const change of differences(now, defaults)) await sky.changeSetting(change);
    for (const option of kKeptOptions) await sky.setOption(option, '');
    await this.#model.settingsChanged();
    this.#model.onNote.emit(texts().resetDone);
  }
}
