// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import type { Model } from '../state/model';
import { languageCode } from '../text/captions';
import { make } from './dom';
import { makeSwitch } from './field_control';

type Captions = readonly [en: string, de: string, ru: string];

// Options that are on or off: their value when the switch is on, and whether a set option means that it is
// off.
const kSwitches: readonly { name: string; value: string; isTurned?: boolean; captions: Captions }[] = [
  { name: 'sky', value: 'none', isTurned: true, captions: ['Day, twilight and moonlight', 'Tag, Dämmerung und Mondlicht', 'День, сумерки и свет Луны'] },
  { name: 'landscape', value: 'none', isTurned: true, captions: ['Landscape', 'Landschaft', 'Пейзаж'] },
  { name: 'orbits', value: 'planets', captions: ['Orbits of the planets', 'Bahnen der Planeten', 'Орбиты планет'] },
  { name: 'showers', value: 'on', captions: ['Radiants of meteor showers', 'Radianten von Meteorströmen', 'Радианты метеорных потоков'] },
  { name: 'legend', value: 'on', captions: ['Legend', 'Legende', 'Легенда'] },
  { name: 'telrad', value: 'on', captions: ['Telrad circles', 'Telrad-Kreise', 'Круги Telrad'] },
]; // prettier-ignore

const kBortle: Captions = ['Dark sky, Bortle class', 'Dunkelheit des Ortes, Bortle', 'Темнота неба, Бортль'];

const choose = (captions: Captions): string =>
  captions[['en', 'de', 'ru'].indexOf(languageCode())] ?? captions[0];

// What the scene is shown with beside its settings.
export async function makeOptions(model: Model): Promise<HTMLElement[]> {
  const rows: HTMLElement[] = [];
  for (const { name, value, isTurned = false, captions } of kSwitches) {
    const isSet = (await model.sky.getOption(name)) === value;
    const set = (isOn: boolean): void => model.run(model.setOption(name, isOn === isTurned ? '' : value));
    rows.push(makeSwitch(`option-${name}`, choose(captions), isSet !== isTurned, set));
  }
  rows.push(makeBortle(model, await model.sky.getOption('bortle')));
  for (const row of rows) row.classList.add('option');
  return rows;
}

function makeBortle(model: Model, value: string): HTMLElement {
  const select = make('select', { id: 'option-bortle' }, make('option', { value: '' }, '–'));
  for (let step = 1; step <= 9; ++step) select.append(make('option', { value: String(step) }, String(step)));
  select.value = value;
  select.onchange = () => model.run(model.setOption('bortle', select.value));
  return make(
    'label',
    { className: 'switch' },
    make('span', { className: 'caption' }, choose(kBortle)),
    select,
  );
}
