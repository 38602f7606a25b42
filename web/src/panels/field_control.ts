// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A control for a field of the settings, by what the field holds.

import type { PanelField } from '../core/panel_messages';
import { FieldType } from '../core/panel_messages';
import type { Model } from '../state/model';
import { languageCode, texts } from '../text/captions';
import { fieldCaption, valueCaption } from '../text/field_captions';
import { make } from './dom';

export const captionOf = ({ section, name, title }: PanelField): string =>
  fieldCaption(section, name, languageCode()) ?? (title || name);

// `aside`: the section, where the list does not say it. `place`: tells the same field in two lists apart.
export function makeFieldControl(model: Model, field: PanelField, aside: string, place: string): HTMLElement {
  const path = `${field.section}.${field.name}`;
  const row = make('div', { className: 'setting' });
  const set = (values: string): void => model.run(model.changeSetting(`${path}=${values}`));
  const id = `${place}-${path}`;
  row.append(...makeControls(field, id, set));
  if (aside) row.querySelector('.caption')?.append(make('small', {}, aside));
  if (!field.acts) row.querySelector('.caption')?.append(make('small', {}, texts().undrawn));
  return row;
}

const kAngles = new Set(['LargestDimension']);
const degreesOf = (radians: string): string => String(Number(((Number(radians) * 180) / Math.PI).toFixed(6)));

type SetValues = (values: string) => void;

function makeControls(field: PanelField, id: string, set: SetValues): HTMLElement[] {
  if (field.type === FieldType.toggle && field.count > 1) return makeSwitches(field, id, set);
  if (field.type === FieldType.toggle)
    return [makeSwitch(id, captionOf(field), field.values === '1', (on) => set(on ? '1' : '0'))];
  if (field.type === FieldType.sum) return makeSum(field, id, set);
  if (field.choices.length > 0 && field.count === 1) return [makeChoice(field, id, set)];
  return makeNumbers(field, id, set);
}

export function makeSwitch(
  id: string,
  caption: string,
  isOn: boolean,
  onChange: (isOn: boolean) => void,
): HTMLElement {
  const input = make('input', { id, type: 'checkbox', role: 'switch', checked: isOn });
  input.onchange = () => onChange(input.checked);
  return make('label', { className: 'switch' }, make('span', { className: 'caption' }, caption), input);
}

// Several of them: all as one filter, which has a switch of its own.
function makeSwitches(field: PanelField, id: string, set: SetValues): HTMLElement[] {
  const values = field.values.split(',');
  const [caption, names = ''] = captionOf(field).split(': ');
  const filter = makeSwitch(id, `${caption} (${texts().isFilter})`, field.isOn, (on) =>
    set(`${field.values}${on ? ':on' : ':off'}`),
  );
  const parts = values.map((value, index) =>
    makeSwitch(`${id}-${index}`, names.split(', ')[index] ?? String(index + 1), value === '1', (on) =>
      set(values.map((old, at) => (at === index ? (on ? '1' : '0') : old)).join(',')),
    ),
  );
  return [filter, make('div', { className: 'parts' }, ...parts)];
}

// One switch for each power of two; the caption of a sum of one is that of the field alone.
function makeSum(field: PanelField, id: string, set: SetValues): HTMLElement[] {
  const sum = Number(field.values);
  const parts = field.choices.filter((part) => part > 0 && (part & (part - 1)) === 0);
  return parts.map((part) => {
    const name =
      parts.length > 1
        ? `${captionOf(field)}: ${valueCaption(field.name, part, languageCode())}`
        : captionOf(field);
    return makeSwitch(`${id}-${part}`, name, (sum & part) !== 0, (on) =>
      set(String(on ? sum | part : sum & ~part)),
    );
  });
}

function makeChoice(field: PanelField, id: string, set: SetValues): HTMLElement {
  const select = make('select', { id });
  for (const value of field.choices) {
    select.append(make('option', { value: String(value) }, valueCaption(field.name, value, languageCode())));
  }
  select.value = field.values;
  select.onchange = () => set(select.value);
  return make(
    'label',
    { className: 'switch' },
    make('span', { className: 'caption' }, captionOf(field)),
    select,
  );
}

// Numbers, one or several; a filter has a switch of its own before them.
function makeNumbers(field: PanelField, id: string, set: SetValues): HTMLElement[] {
  // Angles are kept in radians and shown in degrees, which a change takes with "deg" behind them.
  const isAngle = kAngles.has(field.name);
  const values = field.values.split(',').map((value) => (isAngle ? degreesOf(value) : value));
  const inputs = values.map((value, index) => {
    const input = make('input', { id: `${id}-${index}`, type: 'number', step: 'any', value });
    if (Number.isFinite(field.least)) input.min = String(field.least);
    if (Number.isFinite(field.most)) input.max = String(field.most);
    input.ariaLabel = values.length > 1 ? `${captionOf(field)} ${index + 1}` : captionOf(field);
    return input;
  });
  const tell = (isOn: string): void => {
    if (inputs.every((input) => input.value !== '' && input.validity.valid))
      set(inputs.map((input) => input.value + (isAngle ? 'deg' : '')).join(',') + isOn);
  };
  for (const input of inputs) input.onchange = () => tell('');
  const numbers = make('div', { className: 'numbers' }, ...inputs);
  if (field.type !== FieldType.range) {
    return [
      make('div', { className: 'switch' }, make('span', { className: 'caption' }, captionOf(field)), numbers),
    ];
  }
  const filter = makeSwitch(id, `${captionOf(field)} (${texts().isFilter})`, field.isOn, (on) =>
    tell(on ? ':on' : ':off'),
  );
  return [filter, numbers];
}
