#include "panels/color_options/ColorSettings.h"

#include <algorithm>
#include <array>

namespace kesta::color {
namespace {

using Record = FullColorOptions;
using Text = FullColorOptions::Text;

constexpr SInt32 kTrappingOn = 1;
constexpr SInt32 kNamedText = 1;

template <auto getter> SInt32 Get(const Record& record)
{
    SInt32 value = kUnset;
    (record.*getter)(&value);
    return value;
}

template <auto setter> OSStatus Set(Record& record, SInt32 value)
{
    return (record.*setter)(value);
}

std::array<SInt32, 3> CastOf(const Record& record)
{
    std::array<SInt32, 3> cast{};
    record.colorCast(&cast[0], &cast[1], &cast[2]);
    return cast;
}

template <std::size_t which> SInt32 GetCast(const Record& record)
{
    return CastOf(record)[which];
}

template <std::size_t which> OSStatus SetCast(Record& record, SInt32 value)
{
    if (value == kUnset)
        return record.setColorCast(kUnset, kUnset, kUnset);
    std::array<SInt32, 3> cast = CastOf(record);
    for (SInt32& one : cast)
        one = one == kUnset ? 0 : std::clamp(one, -100, 100);
    cast[which] = value;
    return record.setColorCast(cast[0], cast[1], cast[2]);
}

SInt32 GetSlowDirection(const Record& record)
{
    SInt32 slow = kUnset, fast = kUnset;
    record.trappingAdjustment(&slow, &fast);
    return slow;
}

SInt32 GetFastDirection(const Record& record)
{
    SInt32 slow = kUnset, fast = kUnset;
    record.trappingAdjustment(&slow, &fast);
    return fast;
}

SInt32 InTrappingRange(SInt32 value)
{
    return value == kUnset ? kUnset : std::clamp(value, 0, 20);
}

OSStatus SetSlowDirection(Record& record, SInt32 value)
{
    return record.setTrappingAdjustment(value, InTrappingRange(GetFastDirection(record)));
}

OSStatus SetFastDirection(Record& record, SInt32 value)
{
    return record.setTrappingAdjustment(InTrappingRange(GetSlowDirection(record)), value);
}

template <auto getter> ColorProfile GetProfile(const Record& record)
{
    ColorProfile profile;
    (record.*getter)(&profile.kind, &profile.name);
    return profile;
}

template <auto setter> OSStatus SetProfile(Record& record, const ColorProfile& profile)
{
    return (record.*setter)(profile.kind, profile.name);
}

template <auto getter> ColorProfile GetName(const Record& record)
{
    Text name;
    (record.*getter)(&name);
    return {name ? kNamedText : kUnset, name};
}

template <auto setter> OSStatus SetName(Record& record, const ColorProfile& profile)
{
    return (record.*setter)(profile.kind == kNamedText ? profile.name : std::nullopt);
}

// clang-format off
using R = Record;
constexpr auto kNumbers = std::to_array<NumberSetting>({
    {kLightness,     Get<&R::lightness>,  Set<&R::setLightness>},
    {kContrast,      Get<&R::contrast>,   Set<&R::setContrast>},
    {kSaturation,    Get<&R::saturation>, Set<&R::setSaturation>},
    {kCyanRed,       GetCast<0>,          SetCast<0>},
    {kMagentaGreen,  GetCast<1>,          SetCast<1>},
    {kYellowBlue,    GetCast<2>,          SetCast<2>},
    {kFastDirection, GetFastDirection,    SetFastDirection},
    {kSlowDirection, GetSlowDirection,    SetSlowDirection},
});

constexpr auto kChoices = std::to_array<NumberSetting>({
    {kImageRendering,   Get<&R::imageObjectRendering>,   Set<&R::setImageObjectRendering>},
    {kTextRendering,    Get<&R::textObjectRendering>,    Set<&R::setTextObjectRendering>},
    {kGraphicRendering, Get<&R::graphicObjectRendering>, Set<&R::setGraphicObjectRendering>},
    {kTrapping,         Get<&R::trapping>,               Set<&R::setTrapping>},
    {kBlackOverprint,   Get<&R::blackOverprint>,         Set<&R::setBlackOverprint>},
});

constexpr auto kNames = std::to_array<NameSetting>({
    {kRGBImages,           kNamedRGBProfile,         GetProfile<&R::rgbImagesProfile>,           SetProfile<&R::setRGBImagesProfile>},
    {kRGBTextAndGraphics,  kNamedRGBProfile,         GetProfile<&R::rgbTextAndGraphicsProfile>,  SetProfile<&R::setRGBTextAndGraphicsProfile>},
    {kCMYKImages,          kNamedCMYKProfile,        GetProfile<&R::cmykImagesProfile>,          SetProfile<&R::setCMYKImagesProfile>},
    {kCMYKTextAndGraphics, kNamedCMYKProfile,        GetProfile<&R::cmykTextAndGraphicsProfile>, SetProfile<&R::setCMYKTextAndGraphicsProfile>},
    {kGrayImages,          kNamedText,               GetName<&R::grayImagesProfile>,             SetName<&R::setGrayImagesProfile>},
    {kGrayTextAndGraphics, kNamedText,               GetName<&R::grayTextAndGraphicsProfile>,    SetName<&R::setGrayTextAndGraphicsProfile>},
    {kDestination,         kNamedDestinationProfile, GetProfile<&R::destinationProfile>,         SetProfile<&R::setDestinationProfile>},
    {kToneCurve,           kNamedText,               GetName<&R::trc>,                           SetName<&R::setTRC>},
});
// clang-format on
static_assert(kNumbers.size() == 8 && kChoices.size() == 5 && kNames.size() == 8); // the record's 21 fields

// The first six numbers are those that the swatches show.
constexpr std::span<const NumberSetting> kAdjustments(kNumbers.data(), 6);
static_assert(kAdjustments.back().control == kYellowBlue);

} // namespace

std::span<const NumberSetting> NumberSettings()
{
    return kNumbers;
}

std::span<const NumberSetting> ChoiceSettings()
{
    return kChoices;
}

std::span<const NameSetting> NameSettings()
{
    return kNames;
}

bool HasAdjustments(const FullColorOptions& record)
{
    return std::ranges::any_of(kAdjustments, [&](const NumberSetting& one) { return one.get(record) != kUnset; });
}

void ResetAdjustments(FullColorOptions& record)
{
    for (const NumberSetting& one : kAdjustments)
        one.set(record, kUnset);
}

bool UsesTrappingDirections(const FullColorOptions& record)
{
    return Get<&Record::trapping>(record) == kTrappingOn;
}

} // namespace kesta::color
