// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The small description files of the data root in the forms that the library reads, each made from a table
// below the source folder. All return the bytes of the file and throw SourceError when the source is not as
// it should be.
#pragma once

#include <filesystem>
#include <string>

namespace skydata {

// docs/formats/planets_and_moons.md. A gap in the planets or in a planet's moons is an error: what stands
// behind it would never be reached.
std::string MakePlanetsAndMoons(const std::filesystem::path& source);

// docs/formats/sky_images.md: binary, big-endian.
std::string MakeConstellationImages(const std::filesystem::path& source);
std::string MakeMilkyWayImages(const std::filesystem::path& source);
std::string MakeDeepskyImages(const std::filesystem::path& source);  // text

// docs/formats/object_articles.md: binary, little-endian, sorted; galaxies under the number that they are
// looked up by.
std::string MakeArticles(const std::filesystem::path& source);

// docs/formats/flight_objects.md. The distances are binary, little-endian, the numbers of each kind sorted:
// all stars with a parallax, and the objects of the table.
std::string MakeDistances(const std::filesystem::path& source);
std::string MakeFlightObjects(const std::filesystem::path& source);

// docs/formats/observation_times.md
std::string MakeObservationTimes(const std::filesystem::path& source);

// docs/formats/panoramas.md. The pictures stand beside the table.
std::string MakePanoramas(const std::filesystem::path& source);

}  // namespace skydata
