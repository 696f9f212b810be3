#pragma once

#include "model/InvertImage.h"
#include "printer/PPDUtilities.h"

namespace kesta::image_options {

// What the panel edits. The initial values are those before the first Sync.
struct ImageOptions {
    SInt32 quality = 0; // ticket value
    II_Options invert;

    bool operator==(const ImageOptions&) const = default;
};

// Which of the invert section's own controls there are. On the way to the ticket the presence of such a control, not
// its value, sets its flag.
struct InvertControls {
    bool negative = false;
    bool mirror = false;
};

// The PPD, which may be null, has the default of a quality that the ticket does not choose.
void ReadQuality(ImageOptions& options, const Ticket& settings, ppd_file_t* ppd);
void WriteQuality(const ImageOptions& options, Ticket& settings);

// A ticket without the dictionary has neither flag.
void ReadInvertImage(ImageOptions& options, const Ticket& settings);
void WriteInvertImage(ImageOptions& options, const InvertControls& controls, Ticket& settings);

// File names of the illustrations; an empty one for none.
QString InvertIllustration(const II_Options& options);
QString QualityIllustration(SInt32 quality);

} // namespace kesta::image_options
