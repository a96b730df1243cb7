// From a job's options to the printer settings that they mean.
#pragma once

#include "filter/Setting.h"

#include <cups/ppd.h>
#include <string>
#include <vector>

namespace bv {

struct JobSettings
{
    // What has to stand in each document, whatever else it says about these options.
    Settings settings;
    // Sentences about options that could not be taken as they are; the PPD's choice stands in their place.
    std::vector<std::string> warnings;
};

// The settings of a job with these options, as a filter gets them in its fifth argument. Options that say nothing are
// at the PPD's defaults.
//
// A Quick Color that stands for a preset decides about all settings of images, text, graphics and simulation, Economy
// Print included. The free one leaves them to the job: there, an option whose companion KEYWORDCustom is true and whose
// companion KEYWORDCustomFilename names a profile on the printer becomes that profile. A job that asks for gray by
// print-color-mode is made gray by the printer's own option.
//
// Marks the choices in the PPD, which is borrowed.
JobSettings jobSettings(ppd_file_t *ppd, const char *options);

} // namespace bv
