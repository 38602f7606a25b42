// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "skyview/options/view_group.h"
#include "skyview/session/diagnostics.h"
#include "skyview/session/view_state.h"

namespace skyview {

// Makes of the city that --place names the place, and its time zone that of the view unless --zone says
// another. Of several cities of that name the one with the most inhabitants is meant, and a diagnostic line
// names it and the others. The place is called as the city was asked for; in Russian by its name in Cyrillic
// letters, if it has one. The roots must be set. Fails for a city that is not known.
ViewResult TakeCity(ViewOptions& view, const std::string& language, Diagnostics& diagnostics);

}  // namespace skyview
