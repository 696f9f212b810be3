#include "model/FullColorOptions.h"

#include <algorithm>
#include <array>

namespace kesta {
namespace {

constexpr SInt32 kGreatestAdjustment = 100; // and its negative the least
constexpr SInt32 kGreatestTrapping = 20;

bool IsAdjustment(SInt32 value)
{
    return value == kUnset || (value >= -kGreatestAdjustment && value <= kGreatestAdjustment);
}

bool IsTrappingAdjustment(SInt32 value)
{
    return value == kUnset || (value >= 0 && value <= kGreatestTrapping);
}

bool HasNameLength(const std::optional<QString>& name)
{
    return !name || name->size() <= kLongestProfileName;
}

template <class T> OSStatus Get(const T& field, T* out)
{
    if (!out)
        return kMissingArgument;
    *out = field;
    return noErr;
}

template <class T> OSStatus Set(T& field, const T& value, bool isValid = true)
{
    if (!isValid)
        return kMissingArgument;
    field = value;
    return noErr;
}

OSStatus GetProfile(const ColorProfile& profile, SInt32 namedKind, SInt32* kind, std::optional<QString>* name)
{
    if (!kind || !name)
        return kMissingArgument;
    *kind = profile.kind;
    if (profile.kind == namedKind)
        *name = profile.name;
    return noErr;
}

OSStatus SetProfile(ColorProfile& profile, SInt32 namedKind, SInt32 kind, const std::optional<QString>& name)
{
    if (kind != namedKind)
        return Set(profile, {kind, std::nullopt});
    return Set(profile, {kind, name}, name && HasNameLength(name));
}

} // namespace

OSStatus FullColorOptions::lightness(SInt32* value) const
{
    return Get(fields_.lightness, value);
}

OSStatus FullColorOptions::setLightness(SInt32 value)
{
    return Set(fields_.lightness, value, IsAdjustment(value));
}

OSStatus FullColorOptions::contrast(SInt32* value) const
{
    return Get(fields_.contrast, value);
}

OSStatus FullColorOptions::setContrast(SInt32 value)
{
    return Set(fields_.contrast, value, IsAdjustment(value));
}

OSStatus FullColorOptions::saturation(SInt32* value) const
{
    return Get(fields_.saturation, value);
}

OSStatus FullColorOptions::setSaturation(SInt32 value)
{
    return Set(fields_.saturation, value, IsAdjustment(value));
}

OSStatus FullColorOptions::colorCast(SInt32* cyanRed, SInt32* magentaGreen, SInt32* yellowBlue) const
{
    if (!cyanRed || !magentaGreen || !yellowBlue)
        return kMissingArgument;
    *cyanRed = fields_.cyanRed;
    *magentaGreen = fields_.magentaGreen;
    *yellowBlue = fields_.yellowBlue;
    return noErr;
}

OSStatus FullColorOptions::setColorCast(SInt32 cyanRed, SInt32 magentaGreen, SInt32 yellowBlue)
{
    const std::array casts{cyanRed, magentaGreen, yellowBlue};
    if (!std::ranges::all_of(casts, IsAdjustment))
        return kMissingArgument;
    fields_.cyanRed = cyanRed;
    fields_.magentaGreen = magentaGreen;
    fields_.yellowBlue = yellowBlue;
    return noErr;
}

OSStatus FullColorOptions::trapping(SInt32* value) const
{
    return Get(fields_.trapping, value);
}

OSStatus FullColorOptions::setTrapping(SInt32 value)
{
    return Set(fields_.trapping, value);
}

OSStatus FullColorOptions::trappingAdjustment(SInt32* slowDirection, SInt32* fastDirection) const
{
    if (!slowDirection || !fastDirection)
        return kMissingArgument;
    *slowDirection = fields_.trappingSlowDirection;
    *fastDirection = fields_.trappingFastDirection;
    return noErr;
}

OSStatus FullColorOptions::setTrappingAdjustment(SInt32 slowDirection, SInt32 fastDirection)
{
    if (!IsTrappingAdjustment(slowDirection) || !IsTrappingAdjustment(fastDirection))
        return kMissingArgument;
    fields_.trappingSlowDirection = slowDirection;
    fields_.trappingFastDirection = fastDirection;
    return noErr;
}

OSStatus FullColorOptions::blackOverprint(SInt32* value) const
{
    return Get(fields_.blackOverprint, value);
}

OSStatus FullColorOptions::setBlackOverprint(SInt32 value)
{
    return Set(fields_.blackOverprint, value);
}

OSStatus FullColorOptions::trc(Text* curve) const
{
    return Get(fields_.trc, curve);
}

OSStatus FullColorOptions::setTRC(const Text& curve)
{
    return Set(fields_.trc, curve);
}

OSStatus FullColorOptions::rgbImagesProfile(SInt32* kind, Text* name) const
{
    return GetProfile(fields_.rgbImagesProfile, kNamedRGBProfile, kind, name);
}

OSStatus FullColorOptions::setRGBImagesProfile(SInt32 kind, const Text& name)
{
    return SetProfile(fields_.rgbImagesProfile, kNamedRGBProfile, kind, name);
}

OSStatus FullColorOptions::rgbTextAndGraphicsProfile(SInt32* kind, Text* name) const
{
    return GetProfile(fields_.rgbTextAndGraphicsProfile, kNamedRGBProfile, kind, name);
}

OSStatus FullColorOptions::setRGBTextAndGraphicsProfile(SInt32 kind, const Text& name)
{
    return SetProfile(fields_.rgbTextAndGraphicsProfile, kNamedRGBProfile, kind, name);
}

OSStatus FullColorOptions::cmykImagesProfile(SInt32* kind, Text* name) const
{
    return GetProfile(fields_.cmykImagesProfile, kNamedCMYKProfile, kind, name);
}

OSStatus FullColorOptions::setCMYKImagesProfile(SInt32 kind, const Text& name)
{
    return SetProfile(fields_.cmykImagesProfile, kNamedCMYKProfile, kind, name);
}

OSStatus FullColorOptions::cmykTextAndGraphicsProfile(SInt32* kind, Text* name) const
{
    return GetProfile(fields_.cmykTextAndGraphicsProfile, kNamedCMYKProfile, kind, name);
}

OSStatus FullColorOptions::setCMYKTextAndGraphicsProfile(SInt32 kind, const Text& name)
{
    return SetProfile(fields_.cmykTextAndGraphicsProfile, kNamedCMYKProfile, kind, name);
}

OSStatus FullColorOptions::destinationProfile(SInt32* kind, Text* name) const
{
    return GetProfile(fields_.destinationProfile, kNamedDestinationProfile, kind, name);
}

OSStatus FullColorOptions::setDestinationProfile(SInt32 kind, const Text& name)
{
    return SetProfile(fields_.destinationProfile, kNamedDestinationProfile, kind, name);
}

OSStatus FullColorOptions::grayImagesProfile(Text* name) const
{
    return Get(fields_.grayImagesProfile, name);
}

OSStatus FullColorOptions::setGrayImagesProfile(const Text& name)
{
    return Set(fields_.grayImagesProfile, name, HasNameLength(name));
}

OSStatus FullColorOptions::grayTextAndGraphicsProfile(Text* name) const
{
    return Get(fields_.grayTextAndGraphicsProfile, name);
}

OSStatus FullColorOptions::setGrayTextAndGraphicsProfile(const Text& name)
{
    return Set(fields_.grayTextAndGraphicsProfile, name, HasNameLength(name));
}

OSStatus FullColorOptions::imageObjectRendering(SInt32* intent) const
{
    return Get(fields_.imageObjectRendering, intent);
}

OSStatus FullColorOptions::setImageObjectRendering(SInt32 intent)
{
    return Set(fields_.imageObjectRendering, intent);
}

OSStatus FullColorOptions::textObjectRendering(SInt32* intent) const
{
    return Get(fields_.textObjectRendering, intent);
}

OSStatus FullColorOptions::setTextObjectRendering(SInt32 intent)
{
    return Set(fields_.textObjectRendering, intent);
}

OSStatus FullColorOptions::graphicObjectRendering(SInt32* intent) const
{
    return Get(fields_.graphicObjectRendering, intent);
}

OSStatus FullColorOptions::setGraphicObjectRendering(SInt32 intent)
{
    return Set(fields_.graphicObjectRendering, intent);
}

} // namespace kesta
