// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What the settings of the data root are called in the panel of layers, in English, German and Russian. A
// field that the table lacks is called as the scene calls it, so that a new setting is in the panel before it
// has a caption.

type Captions = readonly [en: string, de: string, ru: string];

const kLanguages = ['en', 'de', 'ru'];

const kSections: Readonly<Record<string, Captions>> = {
  star: ['Stars', 'Sterne', 'Звёзды'],
  clst: ['Star clusters', 'Sternhaufen', 'Звёздные скопления'],
  gala: ['Galaxies', 'Galaxien', 'Галактики'],
  nebu: ['Nebulae', 'Nebel', 'Туманности'],
  dsnv: ['Other deep-sky objects', 'Andere Deep-Sky-Objekte', 'Другие объекты дальнего космоса'],
  plnt: ['Sun and planets', 'Sonne und Planeten', 'Солнце и планеты'],
  moon: ['Moons', 'Monde', 'Спутники планет'],
  astr: ['Asteroids', 'Asteroiden', 'Астероиды'],
  comt: ['Comets', 'Kometen', 'Кометы'],
  scft: ['Satellites', 'Satelliten', 'Искусственные спутники'],
  cnst: ['Constellations', 'Sternbilder', 'Созвездия'],
  grid: ['Grids, horizon, Milky Way', 'Gitter, Horizont, Milchstraße', 'Сетки, горизонт, Млечный Путь'],
};

const kShown: Captions = ['Shown', 'Gezeigt', 'Показывать'];
const kNames: Captions = ['Names', 'Namen', 'Названия'];
const kMore: Captions = [
  'More of them (tenths of a magnitude)',
  'Mehr davon (Zehntel Größenklassen)',
  'Больше их (десятые зв. величины)',
];
const kMoreNames: Captions = [
  'More names (tenths of a magnitude)',
  'Mehr Namen (Zehntel Größenklassen)',
  'Больше названий (десятые зв. величины)',
];
const kPhases: Captions = ['Phases', 'Phasen', 'Фазы'];
const kAxes: Captions = ['Axes and equators', 'Achsen und Äquatoren', 'Оси и экваторы'];
const kLines: Captions = ['Lines on the disc', 'Linien auf der Scheibe', 'Линии на диске'];
const kFeatures: Captions = ['Names on the surface', 'Namen auf der Oberfläche', 'Названия на поверхности'];

// By name, with the section before it where the same name means something else there.
const kFields: Readonly<Record<string, Captions>> = {
  Draw: kShown,
  ClusterDraw: kShown,
  GalaxyDraw: kShown,
  CloudsDraw: kShown,
  NonOpticDraw: kShown,
  ShowLabel: kNames,
  ClusterLabel: kNames,
  GalaxyLabel: kNames,
  CloudsLabel: kNames,
  NonOpticLabel: kNames,
  StarZoomDependShow: kMore,
  SCZoomDependShow: kMore,
  GLZoomDependShow: kMore,
  NBZoomDependShow: kMore,
  NOZoomDependShow: kMore,
  PlntZoomDependShow: kMore,
  MoonZoomDependShow: kMore,
  AstrZoomDependShow: kMore,
  ComtZoomDependShow: kMore,
  USCOZoomDependShow: kMore,
  StarZoomDependLabel: kMoreNames,
  SCZoomDependLabel: kMoreNames,
  GLZoomDependLabel: kMoreNames,
  NBZoomDependLabel: kMoreNames,
  NOZoomDependLabel: kMoreNames,
  PlntZoomDependLabel: kMoreNames,
  MoonZoomDependLabel: kMoreNames,
  AstrZoomDependLabel: kMoreNames,
  ComtZoomDependLabel: kMoreNames,
  USCOZoomDependLabel: kMoreNames,
  PlanetPhases: kPhases,
  MoonPhases: kPhases,
  PlanetGuides: kAxes,
  MoonGuides: kAxes,
  PlanetGrid: kLines,
  MoonGrid: kLines,
  PlanetFeatures: kFeatures,
  MoonFeatures: kFeatures,
  CommonName: ['Proper names first', 'Eigennamen zuerst', 'Сначала собственные имена'],
  LatAbbreviation: ['Letters without the constellation', 'Buchstaben ohne Sternbild', 'Буквы без созвездия'],
  MagnitudeOn: ['Magnitude beside the name', 'Helligkeit neben dem Namen', 'Блеск рядом с именем'],
  ShowBinary: ['Double stars marked', 'Doppelsterne markiert', 'Отмечать двойные'],
  ShowVariable: ['Variable stars marked', 'Veränderliche markiert', 'Отмечать переменные'],
  ShowWithPlanets: [
    'Stars with planets marked',
    'Sterne mit Planeten markiert',
    'Отмечать звёзды с планетами',
  ],
  VisMagnitude: ['Magnitude', 'Helligkeit', 'Блеск'],
  ColorIndexBV: ['Colour index B−V', 'Farbindex B−V', 'Показатель цвета B−V'],
  'star.CatalogType': [
    'Catalogues: HR, HIP, Bayer, Flamsteed',
    'Kataloge: HR, HIP, Bayer, Flamsteed',
    'Каталоги: HR, HIP, Байер, Флемстид',
  ],
  CatalogType: [
    'Catalogues: Messier, NGC, IC, none',
    'Kataloge: Messier, NGC, IC, keiner',
    'Каталоги: Мессье, NGC, IC, никакой',
  ],
  SpectrType: ['Spectral classes', 'Spektralklassen', 'Спектральные классы'],
  SpectrTypeUndef: ['Without a spectral class too', 'Auch ohne Spektralklasse', 'И без спектрального класса'],
  LuminosityUndef: [
    'Without a luminosity class too',
    'Auch ohne Leuchtkraftklasse',
    'И без класса светимости',
  ],
  'NGC-IC': ['NGC and IC numbers', 'NGC- und IC-Nummern', 'Номера NGC и IC'],
  LargestDimension: ['Size, degrees', 'Größe, Grad', 'Размер, градусы'],
  Type: ['Types', 'Arten', 'Типы'],
  PlanetCelPath: ['Paths among the stars', 'Bahnen zwischen den Sternen', 'Пути среди звёзд'],
  PlanetLocPath: ['Paths over the horizon', 'Bahnen über dem Horizont', 'Пути над горизонтом'],
  ShowAsterBelt: ['The belt', 'Der Gürtel', 'Пояс'],
  AsterGroups: ['Groups', 'Gruppen', 'Группы'],
  AsterLabels: ['Names in the belt', 'Namen im Gürtel', 'Названия в поясе'],
  NoradNumber: ['Catalogue numbers', 'Katalognummern', 'Номера каталога'],
  PatternsVisible: ['Figures', 'Figuren', 'Фигуры'],
  BoundariesVisible: ['Boundaries', 'Grenzen', 'Границы'],
  ImagesVisible: ['Pictures', 'Bilder', 'Картинки'],
  ImagesBrightness: ['Brightness of the pictures, %', 'Helligkeit der Bilder, %', 'Яркость картинок, %'],
  LabelsVisible: kNames,
  LatinGenitive: ['Names in the genitive', 'Namen im Genitiv', 'Названия в родительном падеже'],
  EnglishName: ['Language of the names', 'Sprache der Namen', 'Язык названий'],
  Horizon: ['Ground', 'Boden', 'Земля'],
  HorizonDraw: ['Line of the horizon', 'Linie des Horizonts', 'Линия горизонта'],
  Compass: ['Compass', 'Himmelsrichtungen', 'Стороны света'],
  RADecGrid: ['Equatorial grid', 'Äquatoriales Gitter', 'Экваториальная сетка'],
  RADecEquator: ['Celestial equator', 'Himmelsäquator', 'Небесный экватор'],
  EclGrid: ['Ecliptic grid', 'Ekliptikales Gitter', 'Эклиптическая сетка'],
  EclEquator: ['Ecliptic', 'Ekliptik', 'Эклиптика'],
  GalGrid: ['Galactic grid', 'Galaktisches Gitter', 'Галактическая сетка'],
  Grid: ['Horizontal grid', 'Horizontgitter', 'Горизонтальная сетка'],
  Meridian: ['Meridian', 'Meridian', 'Меридиан'],
  Poles: ['Poles and nodes', 'Pole und Knoten', 'Полюсы и узлы'],
  MilkyWayVisible: ['Milky Way', 'Milchstraße', 'Млечный Путь'],
  SkyDirt: ['Air', 'Luft', 'Воздух'],
};

// What single values of a field stand for.
const kValues: Readonly<Record<string, Captions>> = {
  'RADecGrid.1': ['of date', 'des Datums', 'на дату'],
  'RADecGrid.2': ['J2000', 'J2000', 'J2000'],
  'RADecEquator.1': ['of date', 'des Datums', 'на дату'],
  'RADecEquator.2': ['J2000', 'J2000', 'J2000'],
  'GalGrid.1': ['grid', 'Gitter', 'сетка'],
  'GalGrid.2': ['equator', 'Äquator', 'экватор'],
  'GalGrid.0': ['none', 'keins', 'нет'],
  'Meridian.1': ['meridian', 'Meridian', 'меридиан'],
  'Meridian.2': ['prime vertical', 'Erster Vertikal', 'первый вертикал'],
  'Poles.1': ['of the equator', 'des Äquators', 'экватора'],
  'Poles.2': ['of the ecliptic', 'der Ekliptik', 'эклиптики'],
  'Poles.4': ['of the Galaxy', 'der Galaxis', 'Галактики'],
  'Poles.8': ['zenith and nadir', 'Zenit und Nadir', 'зенит и надир'],
  'Poles.16': ['paths of precession', 'Wege der Präzession', 'пути прецессии'],
  'SkyDirt.1': ['refraction', 'Refraktion', 'рефракция'],
  'SkyDirt.2': ['extinction', 'Extinktion', 'поглощение'],
  'PatternsVisible.1': ['figures', 'Figuren', 'фигуры'],
  'PatternsVisible.2': ['asterisms', 'Asterismen', 'астеризмы'],
  'EnglishName.0': ['of the texts', 'der Texte', 'как у текстов'],
  'EnglishName.1': ['English', 'Englisch', 'английский'],
  'EnglishName.2': ['Latin', 'Latein', 'латинский'],
};

function choose(captions: Captions | undefined, language: string): string | null {
  return captions ? (captions[kLanguages.indexOf(language)] ?? captions[0]) : null;
}

export const sectionCaption = (section: string, language: string): string =>
  choose(kSections[section], language) ?? section;

export const fieldCaption = (section: string, name: string, language: string): string | null =>
  choose(kFields[`${section}.${name}`] ?? kFields[name], language);

export const valueCaption = (name: string, value: number, language: string): string =>
  choose(kValues[`${name}.${value}`], language) ?? String(value);
