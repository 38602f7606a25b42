// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT

// Whoever wants to know of something is told, in the order in which they asked.
export class Signal<Value = void> {
  #listeners: ((value: Value) => void)[] = [];

  on(listener: (value: Value) => void): void {
    this.#listeners.push(listener);
  }

  emit(value: Value): void {
    for (const listener of this.#listeners) listener(value);
  }
}
