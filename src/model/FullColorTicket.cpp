#include "model/FullColorOptions.h"

#include "pde/RecordFields.h"
#include "pde/TicketUtilities.h"

#include <array>

namespace kesta {
namespace {

using F = FullColorFields;

constexpr char kColorCastKey[] = "FCColorCast";
constexpr char kTrappingKey[] = "FCTrapping";
constexpr SInt32 kTrappingOn = 1;

bool IsTrapping(const F& fields, SInt32 direction)
{
    return fields.trapping == kTrappingOn && direction != kUnset;
}

bool HasFastDirection(const F& fields)
{
    return IsTrapping(fields, fields.trappingFastDirection);
}

bool HasSlowDirection(const F& fields)
{
    return IsTrapping(fields, fields.trappingSlowDirection);
}

bool TicketHasTrapping(const F&, const Dictionary& ticket)
{
    return CFDictionaryGetNumber<SInt32>(ticket, kTrappingKey).has_value();
}

template <const auto& key> bool TicketHasShortName(const F&, const Dictionary& ticket)
{
    const QString* name = ticket.string(key);
    return name && name->size() <= kLongestProfileName;
}

constexpr char kGrayImagesKey[] = "GrayImagesProfile";
constexpr char kGrayTextKey[] = "GrayTextAndGraphicsProfile";

// clang-format off
constexpr Field<F> kFields[] = {
//   key                        field                           written           read
    {"FCLightness",             &F::lightness},
    {"FCContrast",              &F::contrast},
    {"FCSaturation",            &F::saturation},
    {kTrappingKey,              &F::trapping},
    {"FCTrappingFastDirection", &F::trappingFastDirection,      HasFastDirection, TicketHasTrapping},
    {"FCTrappingSlowDirection", &F::trappingSlowDirection,      HasSlowDirection, TicketHasTrapping},
    {"FCBlackOverprint",        &F::blackOverprint},
    {"FCTRC",                   &F::trc},
    {kGrayImagesKey,            &F::grayImagesProfile,          whenSet,          TicketHasShortName<kGrayImagesKey>},
    {kGrayTextKey,              &F::grayTextAndGraphicsProfile, whenSet,          TicketHasShortName<kGrayTextKey>},
    {"ImageRendering",          &F::imageObjectRendering},
    {"TextRendering",           &F::textObjectRendering},
    {"GraphicRendering",        &F::graphicObjectRendering},
};

constexpr Field<F> kColorCastFields[] = {
    {"FCCyanRed",      &F::cyanRed},
    {"FCMagentaGreen", &F::magentaGreen},
    {"FCYellowBlue",   &F::yellowBlue},
};
// clang-format on

struct ProfileField {
    const char* key;
    ColorProfile F::*member;
    SInt32 namedKind;
};

constexpr auto kProfiles = std::to_array<ProfileField>({
    {"RGBImagesProfile", &F::rgbImagesProfile, kNamedRGBProfile},
    {"RGBTextAndGraphicsProfile", &F::rgbTextAndGraphicsProfile, kNamedRGBProfile},
    {"CMYKImagesProfile", &F::cmykImagesProfile, kNamedCMYKProfile},
    {"CMYKTextAndGraphicsProfile", &F::cmykTextAndGraphicsProfile, kNamedCMYKProfile},
    {"DestinationProfile", &F::destinationProfile, kNamedDestinationProfile},
});
static_assert(CoversEveryField<F>(kFields, std::size(kColorCastFields) + kProfiles.size()));

void WriteColorCast(const F& fields, Dictionary& ticket)
{
    if (fields.cyanRed == kUnset || fields.magentaGreen == kUnset || fields.yellowBlue == kUnset)
        return;
    Dictionary cast;
    WriteFields(fields, kColorCastFields, cast);
    ticket.set(kColorCastKey, std::move(cast));
}

void WriteProfile(const ColorProfile& profile, const ProfileField& field, Dictionary& ticket)
{
    if (profile.kind != kUnset && profile.kind != field.namedKind)
        WriteTicketValue(ticket, field.key, profile.kind);
    if (profile.kind == field.namedKind && profile.name)
        ticket.set(field.key, *profile.name);
}

void ReadProfile(ColorProfile& profile, const ProfileField& field, const Dictionary& ticket)
{
    if (const auto kind = CFDictionaryGetNumber<SInt32>(ticket, field.key))
        profile = {*kind, *kind == field.namedKind ? profile.name : std::nullopt};
    const QString* name = ticket.string(field.key);
    if (name && name->size() <= kLongestProfileName)
        profile = {field.namedKind, *name};
}

} // namespace

Dictionary FullColorOptions::asTicket() const
{
    Dictionary ticket;
    WriteFields(fields_, kFields, ticket);
    WriteColorCast(fields_, ticket);
    for (const ProfileField& field : kProfiles)
        WriteProfile(fields_.*field.member, field, ticket);
    return ticket;
}

void FullColorOptions::fromTicket(const Dictionary& ticket)
{
    fields_.trapping = fields_.trappingFastDirection = fields_.trappingSlowDirection = kUnset;
    ReadFields(fields_, kFields, ticket);
    if (const Dictionary* cast = ticket.dictionary(kColorCastKey))
        ReadFields(fields_, kColorCastFields, *cast);
    for (const ProfileField& field : kProfiles)
        ReadProfile(fields_.*field.member, field, ticket);
}

} // namespace kesta
