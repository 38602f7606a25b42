// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
import assert from 'node:assert/strict';
import { test } from 'node:test';
import { loadSource } from './source.mjs';

const calendar = await loadSource('state/calendar.ts');
const zones = await loadSource('state/zones.ts');
const address = await loadSource('state/address.ts');
const storage = await loadSource('state/storage.ts');
const changes = await loadSource('state/changes.ts');
const { Clock } = await loadSource('state/clock.ts');
const { Model } = await loadSource('state/model.ts');
const steps = await loadSource('panels/time_steps.ts');

// Meeus, Astronomical Algorithms, chapter 7: Julian dates of noon.
for (const [year, month, day, number] of [
  [2000, 1, 1, 2451545],
  [1999, 1, 1, 2451180],
  [1600, 1, 1, 2305448],
  [1582, 10, 15, 2299161],
  [1582, 10, 4, 2299160],
  [837, 4, 10, 2026872],
  [-122, 1, 1, 1676498],
  [-1000, 7, 12, 1356001],
  [-4712, 1, 1, 0],
]) {
  test(`${year}-${month}-${day} is day ${number}`, () => {
    assert.equal(calendar.dayNumber({ year, month, day }), number);
    assert.deepEqual(calendar.dateOfDay(number), { year, month, day });
  });
}

test('October 1582 has 21 days, and the 10th is none of them', () => {
  assert.equal(calendar.daysInMonth(1582, 10), 21);
  assert.equal(calendar.isDate({ year: 1582, month: 10, day: 10 }), false);
});

test('1500 was a leap year, 1900 was none', () => {
  assert.equal(calendar.daysInMonth(1500, 2), 29);
  assert.equal(calendar.daysInMonth(1900, 2), 28);
});

test('22 November 2026 is a Sunday', () => {
  assert.equal(calendar.weekday({ year: 2026, month: 11, day: 22 }), 6);
});

const at = (text) => calendar.julianFromUnix(Date.parse(text));
const read = (julian) => new Date(calendar.unixFromJulian(julian)).toISOString();
const civil = (year, month, day, hour = 0, minute = 0, second = 0) => ({
  year,
  month,
  day,
  hour,
  minute,
  second,
});

test('clocks of a zone have its daylight saving', () => {
  assert.equal(zones.localTime(at('2026-07-01T12:00Z'), 'Europe/Berlin').hour, 14);
  assert.equal(zones.localTime(at('2026-01-01T12:00Z'), 'Europe/Berlin').hour, 13);
});

test('a time that the clocks show twice is the earlier', () => {
  assert.equal(
    read(zones.julianFromLocal(civil(2026, 10, 25, 2, 30), 'Europe/Berlin')),
    '2026-10-25T00:30:00.000Z',
  );
});

test('a time that the clocks skip is later by what they skip', () => {
  assert.equal(
    read(zones.julianFromLocal(civil(2026, 3, 29, 2, 30), 'Europe/Berlin')),
    '2026-03-29T01:30:00.000Z',
  );
});

test('an offset of half an hour of daylight saving is known', () => {
  assert.equal(zones.offsetText('Australia/Lord_Howe', at('2026-01-01T00:00Z')), 'UT+11:00');
  assert.equal(zones.offsetText('Australia/Lord_Howe', at('2026-07-01T00:00Z')), 'UT+10:30');
});

test('a zone that nobody knows has the clocks of Universal Time', () => {
  assert.equal(zones.isZone('Mars/Olympus'), false);
  assert.equal(zones.localTime(at('2026-01-01T12:00Z'), 'Mars/Olympus').hour, 12);
});

const kView = {
  latitude: -33.86785, longitude: 151.20732, place: 'Sydney, a/b & c', zone: 'Australia/Sydney', moment: at('2026-01-15T22:00:30Z'),
  azimuth: 12.34, altitude: -5.6, zoom: 1.5, style: 'night', language: 'ru', object: { kind: 0x73746172, number: 2491 },
}; // prettier-ignore

test('a view goes through an address and back', () => {
  const back = address.parseAddress(address.formatAddress(kView));
  assert.ok(Math.abs(back.moment - kView.moment) < 1e-8);
  assert.ok(Math.abs(back.latitude - kView.latitude) < 1e-3);
  const rough = { moment: 0, latitude: 0, longitude: 0 };
  assert.deepEqual({ ...back, ...rough }, { ...kView, ...rough });
});

test('a moment before Christ goes through an address', () => {
  const moment = calendar.julianFromUnix(calendar.clockFromCivil(civil(-584, 5, 28, 16)));
  assert.ok(
    Math.abs(address.parseAddress(address.formatAddress({ ...kView, moment })).moment - moment) < 1e-8,
  );
});

test('decimals follow the zoom, so that a link is off by less than half a pixel', () => {
  for (const zoom of [0.25, 1, 30, 1000, 10000]) {
    const view = { ...kView, zoom, azimuth: 123.456789012, altitude: 23.456789012 };
    const back = address.parseAddress(address.formatAddress(view));
    const pixel = 37 / zoom / Math.hypot(1920 / 2, 1080 / 2);
    assert.ok(Math.abs(back.azimuth - view.azimuth) < pixel / 2);
    assert.ok(Math.abs(back.altitude - view.altitude) < pixel / 2);
  }
});

test('other parts of a fragment stay', () => {
  assert.deepEqual(address.foreignPairs('at=1,2&debug=1&look=3,4&zoom=1&x'), ['debug=1', 'x']);
  assert.match(address.formatAddress(kView, ['debug=1']), /&debug=1$/);
});

for (const [name, fragment] of [
  ['nothing', ''],
  ['no zoom', 'at=1,2&look=3,4'],
  ['a latitude beyond the pole', 'at=91,2&look=3,4&zoom=1'],
  ['an altitude that is no number', 'at=1,2&look=3,x&zoom=1'],
  ['a third coordinate', 'at=1,2,3&look=3,4&zoom=1'],
  ['a zoom too large', 'at=1,2&look=3,4&zoom=10001'],
  ['a zone that nobody knows', 'at=1,2&look=3,4&zoom=1&zone=Mars/Olympus'],
  ['a date that is none', 'at=1,2&look=3,4&zoom=1&time=2026-13-01T00:00Z'],
  ['a style that is none', 'at=1,2&look=3,4&zoom=1&style=pink'],
  ['a key twice', 'at=1,2&look=3,4&zoom=1&zoom=2'],
  ['a broken escape', 'at=1,2&look=3,4&zoom=1&place=%E0%A4%A'],
  ['an object without a number', 'at=1,2&look=3,4&zoom=1&object=star'],
]) {
  test(`an address with ${name} is no view`, () => assert.equal(address.parseAddress(fragment), null));
}

const makeKeeper = (entry) => ({ entry, getItem: () => entry, setItem(_, text) { this.entry = text; } }); // prettier-ignore

test('what is kept comes back, member by member', () => {
  const keeper = makeKeeper(null);
  const kept = {
    language: 'de',
    style: 'night',
    place: { latitude: 1, longitude: 2, name: 'x', zone: 'UTC' },
    changes: ['a.b=1'],
    options: { sky: 'none' },
    favourites: 'x',
  };
  storage.keep(keeper, kept);
  assert.deepEqual(storage.readKept(makeKeeper(keeper.entry)), kept);
});

for (const [name, entry, rest] of [
  ['no JSON', '{', {}],
  ['a number', '7', {}],
  ['null', 'null', {}],
  [
    'a latitude of 100',
    '{"place":{"latitude":100,"longitude":0,"name":"","zone":""},"language":"de"}',
    { language: 'de' },
  ],
  ['changes that are none', '{"changes":"x","style":"pink","options":[1]}', { options: {} }],
  ['numbers among the changes', '{"changes":[1,"star.Draw=0"]}', { changes: ['star.Draw=0'] }],
]) {
  test(`an entry of the storage with ${name} takes nothing from the rest`, () => {
    assert.deepEqual(storage.readKept(makeKeeper(entry)), rest);
  });
}

test('a storage that refuses is told', () => {
  const full = { getItem: () => null, setItem: () => { throw new Error('full'); } }; // prettier-ignore
  assert.equal(storage.keep(full, { language: 'de' }), false);
});

test('settings that differ become the changes that make them', () => {
  const field = (section, name, values, isOn = false) => ({ section, name, values, isOn });
  const from = [
    field('star', 'Draw', '1'),
    field('star', 'VisMagnitude', '-2,6'),
    field('grid', 'Grid', '0'),
    field('cnst', 'X', ''),
  ];
  const to = [
    field('star', 'Draw', '0'),
    field('star', 'VisMagnitude', '-2,4', true),
    field('grid', 'Grid', '0'),
    field('cnst', 'X', ''),
  ];
  assert.deepEqual(changes.differences(from, to), ['star.Draw=0', 'star.VisMagnitude=-2,4:on']);
  assert.deepEqual(changes.differences(to, from), ['star.Draw=1', 'star.VisMagnitude=-2,6:off']);
});

// A clock whose device's clock the test turns.
function makeClock() {
  const device = { now: Date.parse('2026-01-15T22:00Z') };
  return { device, clock: new Clock(() => device.now) };
}

test('a clock goes with the device until another moment is set', () => {
  const { device, clock } = makeClock();
  device.now += 5000;
  assert.equal(read(clock.moment), '2026-01-15T22:00:05.000Z');
  clock.set(at('2000-01-01T12:00Z'));
  device.now += 5000;
  assert.equal(read(clock.moment), '2000-01-01T12:00:00.000Z');
  assert.equal(clock.isLive, false);
});

test('a clock plays a day a second, and backwards', () => {
  const { device, clock } = makeClock();
  clock.play(86400);
  device.now += 2000;
  assert.equal(read(clock.moment), '2026-01-17T22:00:00.000Z');
  clock.play(-3600);
  device.now += 1000;
  assert.equal(read(clock.moment), '2026-01-17T21:00:00.000Z');
  clock.play(0);
  device.now += 1000;
  assert.equal(read(clock.moment), '2026-01-17T21:00:00.000Z');
});

test('a clock stops at the last year that the library knows', () => {
  const { device, clock } = makeClock();
  clock.set(at('9999-12-29T12:00:00Z'));
  clock.play(86400);
  device.now += 10000;
  clock.tick();
  assert.equal(clock.rate, 0);
  assert.equal(read(clock.moment).slice(0, 10), '9999-12-30');
});

test('a clock tells nothing that no pixel would show', () => {
  const { device, clock } = makeClock();
  let told = 0;
  clock.play(1);
  clock.onTick.on(() => ++told);
  for (let i = 0; i < 60; ++i) {
    device.now += 16;
    clock.tick();
  }
  assert.equal(told, 0);
  device.now += 100;
  clock.tick();
  assert.equal(told, 1);
});

const step = (caption) => steps.kSteps.find((one) => one.caption === caption);

for (const [name, from, caption, count, to] of [
  [
    'an hour over the change of the clocks is an hour',
    '2026-03-29T00:30Z',
    'hour',
    1,
    '2026-03-29T01:30:00.000Z',
  ],
  [
    'a day over the change keeps the time of the clocks',
    '2026-03-28T22:00Z',
    'dayStep',
    1,
    '2026-03-29T21:00:00.000Z',
  ],
  ['a day back over the change too', '2026-10-25T22:00Z', 'dayStep', -1, '2026-10-24T21:00:00.000Z'],
  ['a week before midnight keeps the day', '2026-03-27T22:45Z', 'week', 1, '2026-04-03T21:45:00.000Z'],
  [
    'a month after 31 January is the end of February',
    '2026-01-31T12:00Z',
    'month',
    1,
    '2026-02-28T12:00:00.000Z',
  ],
  ['a month before January is December', '2026-01-15T12:00Z', 'month', -1, '2025-12-15T12:00:00.000Z'],
  ['a year after 29 February is 28 February', '2028-02-29T12:00Z', 'year', 1, '2029-02-28T12:00:00.000Z'],
]) {
  test(`a step: ${name}`, () =>
    assert.equal(read(steps.takeStep(at(from), step(caption), count, 'Europe/Berlin')), to));
}

test('a sidereal day is shorter by 3 minutes 55.9 seconds', () => {
  const passed =
    steps.takeStep(at('2026-01-15T12:00Z'), step('siderealDay'), 1, 'UTC') - at('2026-01-15T12:00Z');
  assert.ok(Math.abs((1 - passed) * 86400 - 235.909) < 0.01);
});

// A worker that does one thing after another, each when the page has heard of the one before.
function makeScene() {
  const fields = [{ section: 'grid', name: 'RADecGrid', values: '0', isOn: true }];
  const options = { legend: '' };
  const calls = {
    getPanelFields: () => fields.map((field) => ({ ...field })),
    getOption: (name) => options[name] ?? '',
    setOption: (name, value) => void (options[name] = value),
    changeSetting: (change) => {
      if (!change.startsWith('grid.RADecGrid=')) throw new Error(`unknown: ${change}`);
      fields[0].values = change.split('=')[1];
    },
  };
  let done = Promise.resolve();
  const ask = (work) => (done = done.catch(() => {}).then(() => new Promise(setImmediate)).then(work));
  const sky = new Proxy({}, { get: (_, name) => (...args) => ask(() => calls[name](...args)) }); // prettier-ignore
  return { sky, ask, defaults: calls.getPanelFields() };
}

async function changeWhileWatching(change) {
  const entries = new Map();
  const keeper = { getItem: (key) => entries.get(key) ?? null, setItem: (key, text) => entries.set(key, text) };
  const { sky, ask, defaults } = makeScene();
  const frames = [];
  const refresh = () => ask(() => new Promise(setImmediate)).then(() => frames.push(storage.readKept(keeper)));
  const stage = { sky, refresh, view: { julianDate: 2451545 }, onView() {} };
  const model = new Model(stage, null, keeper, 'en');
  model.defaults = defaults;
  let failure = '';
  model.onFailure.on((text) => (failure = text));
  model.run(change(model));
  await ask(() => {});
  return { frames, failure };
}

test('a setting that is seen is kept already', async () => {
  const { frames, failure } = await changeWhileWatching((model) => model.changeSetting('grid.RADecGrid=1'));
  assert.deepEqual(frames, [{ changes: ['grid.RADecGrid=1'], options: {} }]);
  assert.equal(failure, '');
});

test('an option that is seen is kept already', async () => {
  const { frames } = await changeWhileWatching((model) => model.setOption('legend', 'on'));
  assert.deepEqual(frames, [{ changes: [], options: { legend: 'on' } }]);
});

test('a setting that the scene refuses is told, and nothing of it is kept', async () => {
  const { frames, failure } = await changeWhileWatching((model) => model.changeSetting('grid.Nothing=1'));
  assert.equal(failure, 'unknown: grid.Nothing=1');
  assert.deepEqual(frames, [{ changes: [], options: {} }]);
});
