// SPDX-License-Identifier: GPL-2.0-or-later
// Converts a job's options to printer settings.
#pragma once

#include "filter/Setting.h"

#include <cups/ppd.h>
#include <string>
#include <vector>

namespace bv {

struct JobSettings
{
    // The settings to put into each document. They replace the document's own settings of the same options.
    Settings settings;
    // Sentences about options that could not be used. The PPD's choice is used instead.
    std::vector<std::string> warnings;
};

// Returns the settings of a job. `options` has the format of a filter's fifth argument. Options that are missing have
// the PPD's default.
// A Quick Color that is a preset sets all options of images, text, graphics and simulation, including Economy Print.
// With the manual Quick Color, the job's own choices stay. If an option's companion KEYWORDCustom is true and
// KEYWORDCustomFilename names a profile on the printer, the option is set to this profile. If print-color-mode asks for
// gray, the printer's own gray option is turned on.
// Marks the choices in the PPD. The PPD is borrowed.
JobSettings jobSettings(ppd_file_t *ppd, const char *options);

} // namespace bv
