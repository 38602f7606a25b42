// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace skyview {

// What the description files say of a planet, the Sun or a moon, UTF-8: kind, number, what it moves around,
// its moons, its gazetteer and its panoramas. `name` is one of the description or, of the planets, the Sun
// and the Moon, of the language; upper and lower case, accents and blanks do not matter. Nothing when there
// is no such body or no description: `error` is then one line, with similar names. What the libraries say of
// a body that has no gazetteer is taken out of `diagnostics`, where their lines arrive.
std::optional<std::string> DescribeBody(const std::string& name, std::vector<std::string>& diagnostics,
                                        std::string& error);

}  // namespace skyview
