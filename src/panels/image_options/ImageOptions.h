#pragma once

#include "model/InvertImage.h"
#include "pde/menus/Binding.h"

#include <array>

namespace kesta::image_options {

// The numbers of the controls in ImageOptionsPanel/Panel. The invert section's own controls are optional, and the
// window has neither: the mirror check box is the panel's.
inline constexpr FourCharCode kSignature = "ImgO"_code;
enum Control : SInt32 {
    kQualityPopup = 101,
    kQualityIllustration = 102,
    kMirrorCheckBox = 103,
    kInvertIllustration = 104,
    kNegativeInvertControl = 105, // optional
    kMirrorInvertControl = 106,   // optional
};

// What the panel edits. The initial values are those before the first Sync.
struct ImageOptions {
    SInt32 quality = 0; // ticket value
    II_Options invert;

    bool operator==(const ImageOptions&) const = default;
};

inline constexpr auto kBindings = std::to_array<Binding<ImageOptions>>({
    {kQualityPopup, kMember<&ImageOptions::quality>, {.option = PPDKeyword("JCLPrintQuality")}},
    {kMirrorCheckBox,
     {[](const ImageOptions& options) -> SInt32 { return options.invert.mirrorImage; },
      [](ImageOptions& options, SInt32 value) { options.invert.mirrorImage = value != 0; }}},
});

// Which of the invert section's own controls there are. On the way to the ticket the presence of such a control, not
// its value, sets its flag.
struct InvertControls {
    bool negative = false;
    bool mirror = false;
};

// The PPD, which may be null, has the default of a quality that the ticket does not choose. What no choice stands for
// is left as it is in the ticket.
void ReadQuality(ImageOptions& options, const Ticket& settings, ppd_file_t* ppd);
void WriteQuality(const ImageOptions& options, Ticket& settings);

// A ticket without the dictionary has neither flag.
void ReadInvertImage(ImageOptions& options, const Ticket& settings);
void WriteInvertImage(ImageOptions& options, const InvertControls& controls, Ticket& settings);

// File names of the illustrations; an empty one for none.
QString InvertIllustration(const II_Options& options);
QString QualityIllustration(SInt32 quality);

} // namespace kesta::image_options
