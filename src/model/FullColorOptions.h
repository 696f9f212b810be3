#pragma once

#include "platform/values/Value.h"

namespace kesta {

// A profile of the printer's by number, or, with the kind that means so, one by name.
struct ColorProfile {
    SInt32 kind = kUnset;
    std::optional<QString> name = {};

    bool operator==(const ColorProfile&) const = default;
};

// The kinds that name a profile.
inline constexpr SInt32 kNamedRGBProfile = 5;
inline constexpr SInt32 kNamedCMYKProfile = 3;
inline constexpr SInt32 kNamedDestinationProfile = 2;

inline constexpr qsizetype kLongestProfileName = 255; // UTF-16 units

struct FullColorFields {
    SInt32 lightness = kUnset;
    SInt32 contrast = kUnset;
    SInt32 saturation = kUnset;
    SInt32 cyanRed = kUnset;
    SInt32 magentaGreen = kUnset;
    SInt32 yellowBlue = kUnset;
    SInt32 trapping = kUnset;
    SInt32 trappingFastDirection = kUnset;
    SInt32 trappingSlowDirection = kUnset;
    SInt32 blackOverprint = kUnset;
    std::optional<QString> trc = {};
    ColorProfile rgbImagesProfile = {};
    ColorProfile rgbTextAndGraphicsProfile = {};
    ColorProfile cmykImagesProfile = {};
    ColorProfile cmykTextAndGraphicsProfile = {};
    std::optional<QString> grayImagesProfile = {};
    std::optional<QString> grayTextAndGraphicsProfile = {};
    ColorProfile destinationProfile = {};
    SInt32 imageObjectRendering = kUnset;
    SInt32 textObjectRendering = kUnset;
    SInt32 graphicObjectRendering = kUnset;

    bool operator==(const FullColorFields&) const = default;
};

// The color settings of a job. Numbers are kUnset for not set; texts and names may be absent.
//
// Getters answer noErr, or kMissingArgument when a place for the answer is missing, and then store nothing. Setters
// answer noErr, or kMissingArgument for a value out of range, and then change nothing.
class FullColorOptions {
public:
    using Text = std::optional<QString>;

    FullColorOptions() = default;
    explicit FullColorOptions(const Dictionary& ticket) { fromTicket(ticket); }

    // -100 to 100 or unset.
    OSStatus lightness(SInt32* value) const;
    OSStatus setLightness(SInt32 value);
    OSStatus contrast(SInt32* value) const;
    OSStatus setContrast(SInt32 value);
    OSStatus saturation(SInt32* value) const;
    OSStatus setSaturation(SInt32 value);
    OSStatus colorCast(SInt32* cyanRed, SInt32* magentaGreen, SInt32* yellowBlue) const;
    OSStatus setColorCast(SInt32 cyanRed, SInt32 magentaGreen, SInt32 yellowBlue);

    OSStatus trapping(SInt32* value) const;
    OSStatus setTrapping(SInt32 value);
    // 0 to 20 or unset; a ticket keeps them for trapping 1 only.
    OSStatus trappingAdjustment(SInt32* slowDirection, SInt32* fastDirection) const;
    OSStatus setTrappingAdjustment(SInt32 slowDirection, SInt32 fastDirection);
    OSStatus blackOverprint(SInt32* value) const;
    OSStatus setBlackOverprint(SInt32 value);
    OSStatus trc(Text* curve) const;
    OSStatus setTRC(const Text& curve);

    // The name belongs to the named kind, which needs one of at most 255 characters; for other kinds it is neither kept
    // nor given.
    OSStatus rgbImagesProfile(SInt32* kind, Text* name) const;
    OSStatus setRGBImagesProfile(SInt32 kind, const Text& name = {});
    OSStatus rgbTextAndGraphicsProfile(SInt32* kind, Text* name) const;
    OSStatus setRGBTextAndGraphicsProfile(SInt32 kind, const Text& name = {});
    OSStatus cmykImagesProfile(SInt32* kind, Text* name) const;
    OSStatus setCMYKImagesProfile(SInt32 kind, const Text& name = {});
    OSStatus cmykTextAndGraphicsProfile(SInt32* kind, Text* name) const;
    OSStatus setCMYKTextAndGraphicsProfile(SInt32 kind, const Text& name = {});
    OSStatus destinationProfile(SInt32* kind, Text* name) const;
    OSStatus setDestinationProfile(SInt32 kind, const Text& name = {});

    // At most 255 characters, or none.
    OSStatus grayImagesProfile(Text* name) const;
    OSStatus setGrayImagesProfile(const Text& name);
    OSStatus grayTextAndGraphicsProfile(Text* name) const;
    OSStatus setGrayTextAndGraphicsProfile(const Text& name);

    OSStatus imageObjectRendering(SInt32* intent) const;
    OSStatus setImageObjectRendering(SInt32 intent);
    OSStatus textObjectRendering(SInt32* intent) const;
    OSStatus setTextObjectRendering(SInt32 intent);
    OSStatus graphicObjectRendering(SInt32* intent) const;
    OSStatus setGraphicObjectRendering(SInt32 intent);

    // Only what is set.
    Dictionary asTicket() const;

    // A key that is present replaces its field, without a check of numbers against the setters' ranges; one that is
    // absent leaves it, but for trapping and its directions, which are cleared. Names that are too long are ignored.
    void fromTicket(const Dictionary& ticket);

    bool operator==(const FullColorOptions&) const = default;

private:
    FullColorFields fields_;
};

} // namespace kesta
