// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The page, put together: the sky first, then what stands around it.

import { startSky } from './core/start';
import { FrameMeter } from './hands/frame_meter';
import { Hands } from './hands/hands';
import { keepOffline } from './offline/keep';
import { announceMiddle } from './panels/announcer';
import { middleAboveSheet } from './panels/drawer';
import { listenToKeys, makeHelp } from './panels/keys';
import type { Key } from './panels/keys';
import { LayersPanel } from './panels/layers_panel';
import { MenuPanel, toggleFullScreen } from './panels/menu_panel';
import { ObjectPanel } from './panels/object_panel';
import { pickAt, pickMiddle } from './panels/pick';
import { PlacePanel } from './panels/place_panel';
import { makeSearch } from './panels/search_panel';
import { openDroppedSessions } from './panels/session_files';
import { Status } from './panels/status';
import { TimeBar } from './panels/time_bar';
import { TimePanel } from './panels/time_panel';
import { makeTools } from './panels/tools';
import { make } from './panels/dom';
import { addressOf, keepAddress } from './state/link';
import { Model } from './state/model';
import { begin, beginningOf } from './state/beginning';
import { findStorage, readKept } from './state/storage';
import { bindTexts, fill, ownLanguage, setTexts, texts } from './text/captions';

function makeKeys(
  model: Model,
  bar: TimeBar,
  search: HTMLInputElement,
  panels: Record<string, { drawer: PlacePanel['drawer'] }>,
  help: () => void,
): Key[] {
  const toggle = (name: string) => (): void => {
    const { drawer } = panels[name];
    if (drawer.isOpen) drawer.close();
    else drawer.open();
  };
  return [
    { key: '/', caption: 'keySearch', act: () => (search.focus(), search.select()) },
    { key: 'Enter', caption: 'keyPick', act: () => model.run(pickMiddle(model)) },
    { key: 'c', caption: 'keyCentre', act: () => model.object && model.run(model.centre(model.object)) },
    { key: ' ', shown: '␣', caption: 'keyPlay', act: () => bar.toggle(1) },
    { key: 'b', caption: 'keyBack', act: () => bar.toggle(-1) },
    { key: ',', caption: 'stepBack', act: () => bar.step(-1) },
    { key: '.', caption: 'stepOn', act: () => bar.step(1) },
    { key: 'n', caption: 'keyNow', act: () => model.clock.goLive() },
    { key: 't', caption: 'timeAndDate', act: toggle('time') },
    { key: 'p', caption: 'place', act: toggle('place') },
    { key: 'l', caption: 'layers', act: toggle('layers') },
    { key: 'm', caption: 'menu', act: toggle('menu') },
    {
      key: 'r',
      caption: 'styleNight',
      act: () => model.run(model.setStyle(model.style === 'night' ? 'screen' : 'night')),
    },
    { key: 'F', shown: 'Shift F', caption: 'fullScreen', act: () => model.run(toggleFullScreen()) },
    { key: '?', caption: 'help', act: help },
  ];
}

// Everything around the sky, in the order in which the focus goes through it.
function makePage(model: Model): void {
  const status = new Status();
  const search = makeSearch(model, status);
  const bar = new TimeBar(model);
  const object = new ObjectPanel(model);
  const panels = {
    time: new TimePanel(model),
    place: new PlacePanel(model),
    layers: new LayersPanel(model),
    menu: new MenuPanel(model, () => addressOf(model)),
  };
  const keys: Key[] = [];
  let help: HTMLDialogElement | null = null;
  const showHelp = (): void => help?.showModal();
  keys.push(...makeKeys(model, bar, search.input, panels, showHelp));
  help = makeHelp(keys);
  listenToKeys(keys);
  panels.time.drawer.attach(bar.opener);
  const tools = makeTools([
    { icon: 'place', caption: 'place', key: 'p', drawer: panels.place.drawer },
    { icon: 'layers', caption: 'layers', key: 'l', drawer: panels.layers.drawer },
    { icon: 'menu', caption: 'menu', key: 'm', drawer: panels.menu.drawer },
    { icon: 'help', caption: 'help', key: '?', act: showHelp },
  ]);
  const page = document.getElementById('page') as HTMLElement;
  const top = make('header', { className: 'top' }, search.root, tools);
  const foot = make('footer', { className: 'foot' }, bar.root);
  const drawers = [object.drawer, ...Object.values(panels).map(({ drawer }) => drawer)];
  page.append(top, ...drawers.map(({ root }) => root), foot, status.root, help, openDroppedSessions(model));
  model.onFailure.on((text) => status.say(fill(texts().failed, text)));
  model.onNote.on((text) => status.say(text));
  model.sky.events.onLog = (text) => noteLog(text, status);
  announceMiddle(model, status);
  bindTexts((captions) => {
    document.title = captions.title;
    model.stage.canvas.ariaLabel = captions.sky;
  });
}

// The module has no zones of its own: the page has the clocks of places from the browser.
const kNoZone = /^Time zone .* not found/;

function noteLog(text: string, status: Status): void {
  if (kNoZone.test(text)) console.info(text);
  else status.say(fill(texts().noted, text));
}

function tick(model: Model): void {
  model.clock.tick();
  requestAnimationFrame(() => tick(model));
}

async function start(): Promise<void> {
  const storage = findStorage();
  const kept = readKept(storage);
  const beginning = beginningOf(window.location.hash.slice(1), kept);
  const language = ownLanguage([beginning.language ?? '', ...navigator.languages]);
  document.documentElement.lang = language;
  setTexts(language);
  const stage = await startSky(language);
  if (!stage) return;
  new FrameMeter(stage);
  const hands = new Hands(stage);
  const model = new Model(stage, hands.mover, storage, language);
  hands.onTap = (x, y, event) => model.run(pickAt(model, x, y, event.pointerType === 'touch'));
  model.findMiddle = () => {
    const { x, y } = middleAboveSheet() ?? { x: window.innerWidth / 2, y: window.innerHeight / 2 };
    return stage.toPixels(x, y);
  };
  makePage(model);
  await begin(model, beginning).catch((reason: unknown) => model.onFailure.emit(String(reason)));
  keepAddress(model);
  model.select(beginning.object);
  tick(model);
  keepOffline();
  Object.assign(window, { stage, hands, model }); // for the console and the tests
}

start().catch((reason: unknown) => {
  const line = document.getElementById('loading-line') as HTMLElement;
  line.textContent = String(reason);
  line.setAttribute('role', 'alert');
});
