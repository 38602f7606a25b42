// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The pictures on buttons: strokes in a square of 24 units, in the colour of the text.

import { makeSvg } from './dom';

const kPaths = {
  search: 'M10.5 4a6.5 6.5 0 1 0 0 13a6.5 6.5 0 1 0 0-13M15.5 15.5 20 20',
  close: 'M6 6 18 18M18 6 6 18',
  layers: 'M12 4 21 9 12 14 3 9zM3.5 13 12 17.5 20.5 13M3.5 17 12 21.5 20.5 17',
  place:
    'M12 21.5C8 16.5 6 13 6 10a6 6 0 0 1 12 0c0 3-2 6.500-6 11.500zM12 7.800a2.200 2.200 0 1 0 0 4.400a2.200 2.200 0 1 0 0-4.400',
  time: 'M12 3.500a8.500 8.500 0 1 0 0 17a8.500 8.500 0 1 0 0-17M12 7.500V12l3.200 2.200',
  menu: 'M4 7H20M4 12H20M4 17H20',
  help: 'M12 3.500a8.500 8.500 0 1 0 0 17a8.500 8.500 0 1 0 0-17M9.500 9.700a2.500 2.500 0 1 1 3.600 2.300c-.8.4-1.100.8-1.100 1.700M12 16.300v.2',
  play: 'M8 5.500 18.500 12 8 18.500z',
  playBack: 'M16 5.500 5.500 12 16 18.500z',
  pause: 'M8.500 5.500V18.500M15.500 5.500V18.500',
  stepBack: 'M14.500 6 8.500 12 14.500 18',
  stepOn: 'M9.500 6 15.500 12 9.500 18',
  centre:
    'M12 2.500V7M12 17V21.500M2.500 12H7M17 12H21.500M12 8.500a3.500 3.500 0 1 0 0 7a3.500 3.500 0 1 0 0-7',
  follow: 'M4 9V4H9M15 4H20V9M20 15V20H15M9 20H4V15M12 10a2 2 0 1 0 0 4a2 2 0 1 0 0-4',
  star: 'M12 3.800l2.500 5.300 5.800.7-4.300 4 1.200 5.700-5.200-2.900-5.200 2.900 1.200-5.700-4.300-4 5.800-.7z',
  night: 'M19.500 14.500A8 8 0 0 1 9.500 4.500a8 8 0 1 0 10 10z',
  full: 'M4 9V4H9M15 4H20V9M20 15V20H15M9 20H4V15',
  here: 'M12 5.500a6.500 6.500 0 1 0 0 13a6.500 6.500 0 1 0 0-13M12 2.500V5.500M12 18.500V21.500M2.500 12H5.500M18.500 12H21.500',
} as const;

export type Icon = keyof typeof kPaths;

export function makeIcon(name: Icon): SVGElement {
  return makeSvg(
    'svg',
    { viewBox: '0 0 24 24', class: 'icon', 'aria-hidden': 'true', focusable: 'false' },
    makeSvg('path', { d: kPaths[name] }),
  );
}
