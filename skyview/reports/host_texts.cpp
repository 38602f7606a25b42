// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/reports/host_texts.h"

#include <cstddef>
#include <iterator>

#include "utils/code_page.h"
#include "utils/locale.h"

namespace skyview {
namespace {

using CommonInterfaces::TextUse;

constexpr int kMaxLength = 200;  // bytes; a line of the report stays readable

constexpr TextUse kHostTexts[] = {
    {900000, 900000, "", kMaxLength, true, "skyview: name of the program"},
    {900001, 900002, "s", kMaxLength, true, "skyview: place, coordinates"},
    {900003, 900004, "s", kMaxLength, true, "skyview: date, centre of the view"},
    {900005, 900005, "ss", kMaxLength, true, "skyview: direction, compass point"},
    {900006, 900006, "sss", kMaxLength, true, "skyview: Universal Time, its caption, clock time and date"},
    {900007, 900007, "sssss", kMaxLength, true, "skyview: local time likewise, zone and offset"},
    {900008, 900008, "f", kMaxLength, true, "skyview: refraction at the centre, degrees"},
    {900009, 900009, "sfff", kMaxLength, true, "skyview: class and its magnitude limits"},
    {900010, 900011, "d", kMaxLength, true, "skyview: numbers of objects drawn"},
    {900012, 900013, "f", kMaxLength, true, "skyview: zoom of a list of limits"},
    {900014, 900014, "sfff", kMaxLength, true, "skyview: class and its limits in that list"},
    {900021, 900030, "", kMaxLength, true, "skyview: classes of objects"},
    {900100, 900111, "", kMaxLength, true, "skyview: the Earth as a place, names of bodies"},
    {900201, 900201, "d", kMaxLength, true, "skyview: heading of the favourites"},
    {900211, 900211, "sd", kMaxLength, true, "skyview: heading of the meteor showers"},
    {900212, 900212, "ssddcd", kMaxLength, true, "skyview: meteor shower and its radiant"},
    {900213, 900213, "ff", kMaxLength, true, "skyview: azimuth and altitude of a radiant"},
    {900214, 900214, "", kMaxLength, true, "skyview: that a shower has its maximum"},
    {900215, 900216, "d", kMaxLength, true, "skyview: days from the maximum of a shower"},
    {900221, 900226, "", kMaxLength, true, "skyview: captions of what is known of a body"},
    {900300, 900300, "d", kMaxLength, true, "skyview: number of bodies drawn"},
    {900301, 900301, "sfs", kMaxLength, true, "skyview: the Sun, magnitude and size"},
    {900302, 900302, "sfsds", kMaxLength, true, "skyview: body, magnitude, size, percent lit, phase"},
    {900303, 900305, "f", kMaxLength, true, "skyview: sizes of discs"},
    {900306, 900306, "sff", kMaxLength, true, "skyview: lunar eclipse, magnitudes in umbra and penumbra"},
    {900307, 900307, "sf", kMaxLength, true, "skyview: solar eclipse, its magnitude"},
    {900308, 900308, "", kMaxLength, true, "skyview: solar eclipse that is not seen"},
    {900309, 900309, "sfs", kMaxLength, true, "skyview: satellite, distance, whether it is lit"},
    {900310, 900311, "", kMaxLength, true, "skyview: whether a satellite is lit"},
    {900312, 900312, "", kMaxLength, true, "skyview: that the model of the planets does not hold"},
    {900315, 900320, "", kMaxLength, true, "skyview: kinds of eclipses"},
    {900321, 900328, "", kMaxLength, true, "skyview: phases of the Moon"},
    {900331, 900338, "", kMaxLength, true, "skyview: phases of planets"},
    {900341, 900343, "s", kMaxLength, true, "skyview: where an object is"},
    {900344, 900345, "f", kMaxLength, true, "skyview: its altitude with refraction, its magnitude"},
    {900346, 900346, "sd", kMaxLength, true, "skyview: its size and percent lit"},
    {900347, 900347, "s", kMaxLength, true, "skyview: its size"},
    {900348, 900350, "sf", kMaxLength, true, "skyview: its rise, transit and set"},
    {900351, 900355, "", kMaxLength, true, "skyview: that it does none of these"},
    {900361, 900362, "", kMaxLength, true, "skyview: axes of a light curve"},
    {900371, 900374, "", kMaxLength, true, "skyview: what is shown when neither view nor time is given"},
    {900401, 900420, "", kMaxLength, true, "skyview: points and circles of the sky"},
    {900431, 900431, "ff", kMaxLength, true, "skyview: hidden by the sky, its limit and the magnitude"},
    {900432, 900432, "", kMaxLength, true, "skyview: hidden by daylight"},
    {900520, 900526, "", kMaxLength, true, "skyview: legend of a chart"},
    {900527, 900529, "", kMaxLength, true, "captions of what is known of an object"},
    {900530, 900530, "s", kMaxLength, true, "why an object is not drawn: its section is off"},
    {900531, 900531, "", kMaxLength, true, "why: asterisms are off"},
    {900532, 900533, "s", kMaxLength, true, "why: its kind is off, or never drawn"},
    {900534, 900534, "", kMaxLength, true, "why: it has no place"},
    {900535, 900535, "ffss", kMaxLength, true, "why: zoom, limit, its magnitude, from which zoom on"},
    {900536, 900538, "f", kMaxLength, true, "why: its magnitude, zoom"},
    {900539, 900540, "", kMaxLength, true, "why: at every zoom, at none"},
    {900541, 900543, "f", kMaxLength, true, "why: altitude, degrees from the centre"},
    {900544, 900544, "ff", kMaxLength, true, "why: where to look"},
    {900545, 900551, "", kMaxLength, true, "why: what hides it; its label"},
    {900552, 900552, "fs", kMaxLength, true, "why: limit of labels, from which zoom on"},
    {900553, 900553, "s", kMaxLength, true, "why: labels of a section"},
    {900554, 900554, "", kMaxLength, true, "why: no room for its label"},
    {900555, 900556, "s", kMaxLength, true, "why: filter, section"},
    {900557, 900559, "", kMaxLength, true, "why: memory; that it is drawn; kind of an object"},
    {900560, 900563, "", kMaxLength, true, "skyview: asterism, kinds of features of surfaces"},
    {900564, 900565, "ff", kMaxLength, true, "skyview: place of a feature on its body"},
    {900566, 900566, "fs", kMaxLength, true, "skyview: extent of a feature"},
    {900567, 900568, "f", kMaxLength, true, "skyview: height of the Sun over a feature"},
    {900569, 900570, "f", kMaxLength, true, "skyview: side of the body that a feature is on"},
    {900571, 900571, "sffff", kMaxLength, true, "skyview: pair of a double star"},
    {900572, 900572, "f", kMaxLength, true, "skyview: aperture that separates a pair"},
    {900670, 900670, "s", kMaxLength, true, "skyview: title of the chart of Jupiter's moons"},
    {900671, 900672, "", kMaxLength, true, "skyview: east and west"},
    {900673, 900673, "s", kMaxLength, true, "skyview: what stands below that chart"},
    {900674, 900674, "ss", kMaxLength, true, "skyview: a night, its two dates"},
    {900675, 900675, "sss", kMaxLength, true, "skyview: place, zone and offset of a night"},
    {900676, 900682, "", kMaxLength, true, "skyview: twilights"},
    {900684, 900688, "sss", kMaxLength, true, "skyview: how dark a night becomes"},
    {900689, 900689, "s", kMaxLength, true, "skyview: hours without the Moon"},
    {900690, 900690, "", kMaxLength, true, "skyview: that the Moon is up all the time"},
    {900691, 900691, "sdfs", kMaxLength, true, "skyview: the Moon of a night"},
    {900692, 900702, "", kMaxLength, true, "skyview: heads of the tables of a night"},
    {900703, 900704, "f", kMaxLength, true, "skyview: binoculars, telescope"},
    {900705, 900710, "", kMaxLength, true, "skyview: heads of the tables of a night"},
    {900711, 900712, "d", kMaxLength, true, "skyview: days from the maximum of a shower"},
    {900713, 900718, "", kMaxLength, true, "skyview: satellites and moons of a night"},
    {900719, 900719, "d", kMaxLength, true, "skyview: heading of the next days"},
    {900720, 900723, "", kMaxLength, true, "skyview: cells of the tables of a night"},
    {900724, 900724, "dd", kMaxLength, true, "skyview: hours and minutes"},
    {900725, 900725, "", kMaxLength, true, "skyview: kind of an object"},
    {900730, 900730, "s", kMaxLength, true, "skyview: event, body"},
    {900731, 900731, "sf", kMaxLength, true, "skyview: event, body and altitude"},
    {900732, 900732, "s", kMaxLength, true, "skyview: event, body"},
    {900733, 900748, "", kMaxLength, true, "skyview: twilights, seasons, phases of the Moon"},
    {900749, 900750, "f", kMaxLength, true, "skyview: event, distance of the Moon"},
    {900751, 900752, "", kMaxLength, true, "skyview: nodes of the Moon"},
    {900753, 900755, "sf", kMaxLength, true, "skyview: eclipse, kind and magnitude"},
    {900756, 900757, "s", kMaxLength, true, "skyview: occultation, body"},
    {900758, 900760, "ssf", kMaxLength, true, "skyview: event, two bodies and an angle"},
    {900761, 900763, "s", kMaxLength, true, "skyview: conjunctions with the Sun"},
    {900764, 900766, "sf", kMaxLength, true, "skyview: oppositions and elongations"},
    {900767, 900768, "s", kMaxLength, true, "skyview: stations"},
    {900769, 900771, "sf", kMaxLength, true, "skyview: apsides, greatest brilliancy"},
    {900772, 900772, "s", kMaxLength, true, "skyview: transit of a planet"},
    {900773, 900774, "sf", kMaxLength, true, "skyview: satellite pass, shower"},
    {900775, 900775, "ss", kMaxLength, true, "skyview: moon and what it does"},
    {900776, 900776, "", kMaxLength, true, "skyview: kind of a solar eclipse"},
    {900777, 900778, "ds", kMaxLength, true, "skyview: titles of the almanac of a year"},
    {900779, 900779, "s", kMaxLength, true, "skyview: what stands below its chart"},
    {900780, 900784, "", kMaxLength, true, "skyview: parts of that almanac"},
    {900785, 900786, "s", kMaxLength, true, "skyview: labels of the lines of its chart"},
};

}  // namespace

const TextUse* GetHostTexts(int* count) {
  *count = static_cast<int>(std::size(kHostTexts));
  return kHostTexts;
}

std::string Localize(HostText text, std::initializer_list<CommonInterfaces::FormatArgument> arguments) {
  return CommonInterfaces::FormatLocalizedText(static_cast<unsigned>(text), arguments);
}

}  // namespace skyview
