// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import { saveAs } from '../state/files';
import type { Model } from '../state/model';
import { kStyles } from '../state/address';
import { bindTexts, texts } from '../text/captions';
import { make } from './dom';

const kMostBytes = 1 << 20; // a session has some kilobytes

// The view, the settings and the marks as a file that skyview opens too.
export async function saveSession(model: Model): Promise<void> {
  const text = await model.sky.formatSession();
  saveAs('sky.session', new Blob([text], { type: 'text/plain' }));
}

// Shows what a session of skyview or of this page holds, in its own language where the page has that.
export async function openSession(model: Model, file: Blob): Promise<void> {
  if (file.size > kMostBytes) throw new Error(`${file.size} B > ${kMostBytes} B`);
  const { sky, stage } = model;
  const { view, language, place, zone, style } = await sky.readSession(await file.text());
  const { width, height, ...seen } = view;
  model.follow(null);
  stage.change(seen);
  await model.setPlace({
    latitude: view.latitude,
    longitude: view.longitude,
    name: place,
    zone: zone || 'UTC',
  });
  const languages = await sky.getLanguages();
  if (language !== model.language && languages.some(({ code }) => code === language))
    await model.setLanguage(language);
  await model.setStyle(kStyles.find((name) => name === style) ?? 'screen');
  await model.settingsChanged();
  await model.favouritesChanged();
  model.onNote.emit(texts().sessionOpened);
}

// A session that is dropped anywhere on the page opens.
export function openDroppedSessions(model: Model): HTMLElement {
  const target = make('div', { className: 'drop', hidden: true });
  bindTexts((captions) => (target.textContent = captions.dropHere));
  const show = (event: DragEvent): void => {
    if (!event.dataTransfer?.types.includes('Files')) return;
    event.preventDefault();
    target.hidden = false;
  };
  window.addEventListener('dragenter', show);
  window.addEventListener('dragover', show);
  window.addEventListener('dragleave', (event) => (target.hidden ||= event.relatedTarget === null));
  window.addEventListener('drop', (event) => {
    event.preventDefault();
    target.hidden = true;
    const file = event.dataTransfer?.files[0];
    if (file) model.run(openSession(model, file));
  });
  return target;
}
