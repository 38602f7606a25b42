// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import type { SkyObject } from '../core/messages';
import type { Reason } from '../core/panel_messages';
import type { Model } from '../state/model';
import { bindTexts, texts } from '../text/captions';
import { make } from './dom';

// Why an object is drawn as it is, or is not drawn, and the changes of settings that would show it. Asked for
// when somebody opens it.
export class ReasonList {
  readonly root = make('details', { className: 'why' });
  #model: Model;
  #list = make('ul');
  #object: SkyObject | null = null;

  constructor(model: Model) {
    this.#model = model;
    const summary = make('summary');
    this.root.append(summary, this.#list);
    bindTexts((captions) => (summary.textContent = captions.why));
    this.root.ontoggle = () => this.#object && model.run(this.refresh(this.#object));
  }

  clear(): void {
    this.#list.replaceChildren();
  }

  async refresh(object: SkyObject): Promise<void> {
    this.#object = object;
    if (!this.root.open) return;
    const reasons = await this.#model.sky.explain(object);
    if (object === this.#object)
      this.#list.replaceChildren(...reasons.map((reason) => this.#makeItem(reason)));
  }

  #makeItem({ text, fix }: Reason): HTMLElement {
    const item = make('li', {}, text);
    if (fix) {
      const button = make('button', { type: 'button', className: 'small', title: fix }, texts().fix);
      button.onclick = () => this.#model.run(this.#model.changeSetting(fix));
      item.append(button);
    }
    return item;
  }
}
