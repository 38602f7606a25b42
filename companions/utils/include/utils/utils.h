// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Everything the companion library utils exports.
#pragma once

#include "utils/bytes.h"
#include "utils/calendar.h"
#include "utils/characters.h"
#include "utils/checksum.h"
#include "utils/clock.h"
#include "utils/code_page.h"
#include "utils/contained_call.h"
#include "utils/debug.h"
#include "utils/file.h"
#include "utils/file_presence.h"
#include "utils/geometry.h"
#include "utils/incomplete_files.h"
#include "utils/json.h"
#include "utils/locale.h"
#include "utils/mapped_file.h"
#include "utils/near_names.h"
#include "utils/numbers.h"
#include "utils/one_thread.h"
#include "utils/path.h"
#include "utils/program.h"
#include "utils/progress_bar.h"
#include "utils/replace_file.h"
#include "utils/text.h"
#include "utils/timezone.h"
#include "utils/version.h"
#include "utils/whole_file.h"
