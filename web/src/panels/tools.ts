// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import { bindTexts } from '../text/captions';
import type { Texts } from '../text/en';
import { iconButton, make, setLabel } from './dom';
import type { Drawer } from './drawer';
import type { Icon } from './icons';
import { makeIcon } from './icons';

export interface Tool {
  icon: Icon;
  caption: keyof Texts;
  key: string;
  drawer?: Drawer;
  act?: () => void;
}

// The row of buttons that open what stands beside the sky.
export function makeTools(tools: readonly Tool[]): HTMLElement {
  const root = make('nav', { className: 'tools glass' });
  for (const { icon, caption, key, drawer, act } of tools) {
    const button = iconButton(makeIcon(icon), act ?? (() => {}));
    drawer?.attach(button);
    bindTexts((captions) => setLabel(button, captions[caption], key));
    root.append(button);
  }
  bindTexts((captions) => (root.ariaLabel = captions.tools));
  return root;
}
