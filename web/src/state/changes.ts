// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The user's settings as the changes that make them of the defaults: what the browser keeps, and what taking
// them back means.

import type { PanelField } from '../core/panel_messages';

type Setting = Pick<PanelField, 'section' | 'name' | 'values' | 'isOn'>;

const pathOf = (field: Setting): string => `${field.section}.${field.name}`;

// The change that gives a field the values and the switch of this one.
const changeTo = (field: Setting): string => `${pathOf(field)}=${field.values}${field.isOn ? ':on' : ':off'}`;

// What makes `to` of `from`. Fields whose values are too long to be told are passed over.
export function differences(from: readonly Setting[], to: readonly Setting[]): string[] {
  const known = new Map(from.map((field) => [pathOf(field), field]));
  return to.flatMap((field) => {
    const before = known.get(pathOf(field));
    if (!before || field.values === '') return [];
    if (before.values !== field.values) {
      return [field.isOn === before.isOn ? `${pathOf(field)}=${field.values}` : changeTo(field)];
    }
    return before.isOn === field.isOn ? [] : [`${pathOf(field)}:${field.isOn ? 'on' : 'off'}`];
  });
}
