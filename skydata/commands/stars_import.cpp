// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <iostream>
#include <memory>

#include "skydata/commands/command.h"
#include "skydata/files/source_error.h"
#include "skydata/stars/import.h"
#include "skydata/strings/show.h"
#include "utils/program.h"

namespace skydata {
namespace {

struct Arguments {
  std::string file, output, data;
};

int ImportStarFile(const Arguments& arguments, std::ostream& output, std::ostream& errors) {
  const std::filesystem::path data =
      arguments.data.empty() ? FindDataRoot() : std::filesystem::path(arguments.data);
  const std::filesystem::path to = arguments.output.empty() ? data / "catalogs" / "deep_stars.tiles"
                                                            : std::filesystem::path(arguments.output);
  StarImport counts;
  {
    ProgressBar progress(&errors == &std::cerr && IsErrorTerminal() ? &errors : nullptr);
    counts = ImportStars(arguments.file, data, to, progress);
  }
  output << to.string() << ": " << counts.read - counts.known << " stars of " << counts.read << ", "
         << counts.known << " are drawn already";
  if (counts.placeless > 0) output << "; " << counts.placeless << " more without a place";
  output << '\n';
  return kDone;
}

}  // namespace

Action DeclareStarsImport(ArgumentList& command) {
  const auto arguments = std::make_shared<Arguments>();
  command.Take("FILE", arguments->file, "index file (FITS) or table (TSV, CSV) of stars").Require();
  command
      .Take("--output", arguments->output,
            "tile catalog to make; else catalogs/deep_stars.tiles of the data root, where the programs "
            "look, as they do in a work area")
      .Form("FILE");
  command.Take("--data", arguments->data, "data root whose stars are left out; else that beside this program")
      .Form("ROOT");
  return [arguments](std::ostream& output, std::ostream& errors) {
    return ImportStarFile(*arguments, output, errors);
  };
}

}  // namespace skydata
