#include "panels/color_options/ColorSettings.h"

#include <algorithm>
#include <array>

namespace kesta::color_options {
namespace {

using Record = FullColorOptions;
using Text = FullColorOptions::Text;

constexpr SInt32 kTrappingOn = 1;
constexpr SInt32 kNamedText = 1;

// Numbered as profiles of the color industry number them.
constexpr auto _RenderingIntentMap = std::to_array<SettingRow>({
    {"PrinterDefault", kUnset},
    {"Perceptual", 0},
    {"Relative Colorimetric", 1},
    {"Saturation Intent", 2},
    {"Absolute Colorimetric", 3},
});
constexpr auto _SwitchMap = std::to_array<SettingRow>({
    {"PrinterDefault", kUnset},
    {"Off", 0},
    {"On", 1},
});
static_assert(_RenderingIntentMap.size() == 5 && _SwitchMap.size() == 3);

template <auto getter> SInt32 Get(const Record& record)
{
    SInt32 value = kUnset;
    (record.*getter)(&value);
    return value;
}

template <auto setter> void Set(Record& record, SInt32 value)
{
    (record.*setter)(value);
}

// Of the panel's options, by functions of the record in them.
template <auto get, auto set>
constexpr Access<ColorOptions> kOfRecord{[](const ColorOptions& options) { return get(options.record); },
                                         [](ColorOptions& options, SInt32 value) { set(options.record, value); }};
template <auto getter, auto setter> constexpr Access<ColorOptions> kRecord = kOfRecord<Get<getter>, Set<setter>>;

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

template <std::size_t which> void SetCast(Record& record, SInt32 value)
{
    if (value == kUnset) {
        record.setColorCast(kUnset, kUnset, kUnset);
        return;
    }
    std::array<SInt32, 3> cast = CastOf(record);
    for (SInt32& one : cast)
        one = one == kUnset ? 0 : std::clamp(one, -100, 100);
    cast[which] = value;
    record.setColorCast(cast[0], cast[1], cast[2]);
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

void SetSlowDirection(Record& record, SInt32 value)
{
    record.setTrappingAdjustment(value, InTrappingRange(GetFastDirection(record)));
}

void SetFastDirection(Record& record, SInt32 value)
{
    record.setTrappingAdjustment(InTrappingRange(GetSlowDirection(record)), value);
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
constexpr BindingRule kIntent{.map = _RenderingIntentMap, .other = "Other Value"};
constexpr BindingRule kSwitch{.map = _SwitchMap, .other = "Other Value"};

} // namespace

// clang-format off
const std::array<Binding<ColorOptions>, 13> kBindings{{
    {kLightness,        kRecord<&R::lightness, &R::setLightness>},
    {kContrast,         kRecord<&R::contrast, &R::setContrast>},
    {kSaturation,       kRecord<&R::saturation, &R::setSaturation>},
    {kCyanRed,          kOfRecord<GetCast<0>, SetCast<0>>},
    {kMagentaGreen,     kOfRecord<GetCast<1>, SetCast<1>>},
    {kYellowBlue,       kOfRecord<GetCast<2>, SetCast<2>>},
    {kFastDirection,    kOfRecord<GetFastDirection, SetFastDirection>},
    {kSlowDirection,    kOfRecord<GetSlowDirection, SetSlowDirection>},
    {kImageRendering,   kRecord<&R::imageObjectRendering, &R::setImageObjectRendering>, kIntent},
    {kTextRendering,    kRecord<&R::textObjectRendering, &R::setTextObjectRendering>, kIntent},
    {kGraphicRendering, kRecord<&R::graphicObjectRendering, &R::setGraphicObjectRendering>, kIntent},
    {kTrapping,         kRecord<&R::trapping, &R::setTrapping>, kSwitch},
    {kBlackOverprint,   kRecord<&R::blackOverprint, &R::setBlackOverprint>, kSwitch},
}};
// clang-format on
static_assert(kBindings.size() + kNames.size() == 21); // the record's fields

std::span<const NameSetting> NameSettings()
{
    return kNames;
}

namespace {

// The first six numbers are those that the swatches show.
Bindings<ColorOptions> Adjustable()
{
    return Bindings<ColorOptions>(kBindings).first(6);
}

} // namespace

bool HasAdjustments(const ColorOptions& options)
{
    return std::ranges::any_of(Adjustable(), [&](const auto& one) { return one.value.get(options) != kUnset; });
}

void ResetAdjustments(ColorOptions& options)
{
    for (const Binding<ColorOptions>& one : Adjustable())
        one.value.set(options, kUnset);
}

bool UsesTrappingDirections(const FullColorOptions& record)
{
    return Get<&Record::trapping>(record) == kTrappingOn;
}

} // namespace kesta::color_options
