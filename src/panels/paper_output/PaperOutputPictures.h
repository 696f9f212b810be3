#pragma once

#include "panels/paper_output/PaperOutputOptions.h"

namespace kesta::paper_output {

// File names of the pictures that show the choices; empty, drawing nothing, where there is no picture.
QString JobTypePicture(SInt32 jobType);
QString TwoSidedPicture(const PaperOutputOptions& options);
QString StaplePicture(SInt32 staple);
QString PunchPicture(SInt32 punch);
QString FinishingPicture(const PaperOutputOptions& options); // of all finishing together
QString OutputColorPicture(SInt32 printQuality);

} // namespace kesta::paper_output
