// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import type { CivilDate } from '../state/calendar';
import { dateOfDay, dayNumber, daysInMonth, isDate, kLeastYear, kMostYear, weekday } from '../state/calendar';
import { bindTexts, texts } from '../text/captions';
import { iconButton, make, setLabel } from './dom';
import { formatDate, formatYear, monthName, weekdayNames } from './format';
import { makeIcon } from './icons';

// Days of a month to choose from, in the calendar that was in use: arrow keys go by days and weeks, Page Up
// and Page Down by months. Years may be before Christ, which the browser's own pickers do not know.
export class CalendarGrid {
  readonly root = make('div', { className: 'calendar' });
  onChoose: (date: CivilDate) => void = () => {};
  #chosen: CivilDate = { year: 2000, month: 1, day: 1 };
  #caption = make('h3');
  #grid = make('div', { className: 'days', role: 'grid' });

  constructor() {
    const previous = iconButton(makeIcon('stepBack'), () => this.#turn(-1));
    const next = iconButton(makeIcon('stepOn'), () => this.#turn(1));
    this.root.append(make('div', { className: 'calendar-head' }, previous, this.#caption, next), this.#grid);
    this.#caption.setAttribute('aria-live', 'polite');
    this.#grid.onkeydown = (event) => this.#takeKey(event);
    bindTexts((captions) => {
      setLabel(previous, captions.previousMonth);
      setLabel(next, captions.nextMonth);
      this.#draw(false);
    });
  }

  show(date: CivilDate): void {
    const { year, month, day } = this.#chosen;
    if (date.year === year && date.month === month && date.day === day) return;
    this.#chosen = { year: date.year, month: date.month, day: date.day };
    this.#draw(this.#grid.contains(document.activeElement));
  }

  #choose(date: CivilDate): void {
    if (date.year < kLeastYear || date.year > kMostYear) return;
    this.onChoose(date);
  }

  // Another month, on the same day of it or the last that it has.
  #turn(months: number): void {
    const { year, month, day } = this.#chosen;
    const index = year * 12 + month - 1 + months;
    const to = { year: Math.floor(index / 12), month: (((index % 12) + 12) % 12) + 1, day };
    while (!isDate(to)) --to.day;
    this.#choose(to);
  }

  #takeKey(event: KeyboardEvent): void {
    const days: Record<string, number> = { ArrowLeft: -1, ArrowRight: 1, ArrowUp: -7, ArrowDown: 7 };
    const by = days[event.key];
    if (by) this.#choose(dateOfDay(dayNumber(this.#chosen) + by));
    else if (event.key === 'PageUp') this.#turn(-1);
    else if (event.key === 'PageDown') this.#turn(1);
    else return;
    event.preventDefault();
    event.stopPropagation();
  }

  #draw(hasFocus: boolean): void {
    const { year, month } = this.#chosen;
    this.#caption.textContent = `${monthName(month)} ${formatYear(year)}`;
    this.#grid.ariaLabel = texts().timeAndDate;
    const names = weekdayNames().map(({ short, long }) =>
      make('span', { role: 'columnheader', ariaLabel: long }, short),
    );
    const first = { year, month, day: 1 };
    const days = Array.from({ length: daysInMonth(year, month) }, (_, index) =>
      dateOfDay(dayNumber(first) + index),
    );
    const rows: HTMLElement[] = [make('div', { role: 'row' }, ...names)];
    let cells: HTMLElement[] = Array.from({ length: weekday(first) }, () =>
      make('span', { role: 'gridcell' }),
    );
    for (const date of days) {
      cells.push(this.#makeDay(date));
      if (cells.length < 7) continue;
      rows.push(make('div', { role: 'row' }, ...cells));
      cells = [];
    }
    if (cells.length) rows.push(make('div', { role: 'row' }, ...cells));
    this.#grid.replaceChildren(...rows);
    if (hasFocus) this.#grid.querySelector<HTMLElement>('[aria-selected=true] button')?.focus();
  }

  #makeDay(date: CivilDate): HTMLElement {
    const isChosen = date.day === this.#chosen.day;
    const button = make(
      'button',
      { type: 'button', ariaLabel: formatDate(date), tabIndex: isChosen ? 0 : -1 },
      String(date.day),
    );
    button.onclick = () => this.#choose(date);
    return make('span', { role: 'gridcell', ariaSelected: String(isChosen) }, button);
  }
}
