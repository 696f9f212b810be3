#include "model/FullColorOptions.h"

#include "pde/ticket/RecordFields.h"
#include "pde/ticket/TicketUtilities.h"

#include <array>

namespace kesta {
namespace {

using C = FullColorFields;

constexpr char kColorCastKey[] = "FCColorCast";
constexpr char kTrappingKey[] = "FCTrapping";
constexpr SInt32 kTrappingOn = 1;

bool IsTrapping(const C& fields, SInt32 direction)
{
    return fields.trapping == kTrappingOn && direction != kUnset;
}

bool HasFastDirection(const C& fields)
{
    return IsTrapping(fields, fields.trappingFastDirection);
}

bool HasSlowDirection(const C& fields)
{
    return IsTrapping(fields, fields.trappingSlowDirection);
}

bool TicketHasTrapping(const C&, const Dictionary& ticket)
{
    return CFDictionaryGetNumber<SInt32>(ticket, kTrappingKey).has_value();
}

template <const auto& key> bool TicketHasShortName(const C&, const Dictionary& ticket)
{
    const QString* name = ticket.string(key);
    return name && name->size() <= kLongestProfileName;
}

constexpr char kGrayImagesKey[] = "GrayImagesProfile";
constexpr char kGrayTextKey[] = "GrayTextAndGraphicsProfile";

// clang-format off
constexpr Field<C> kColorFields[] = {
//   key                        field                           written           read
    {"FCLightness",             &C::lightness},
    {"FCContrast",              &C::contrast},
    {"FCSaturation",            &C::saturation},
    {kTrappingKey,              &C::trapping},
    {"FCTrappingFastDirection", &C::trappingFastDirection,      HasFastDirection, TicketHasTrapping},
    {"FCTrappingSlowDirection", &C::trappingSlowDirection,      HasSlowDirection, TicketHasTrapping},
    {"FCBlackOverprint",        &C::blackOverprint},
    {"FCTRC",                   &C::trc},
    {kGrayImagesKey,            &C::grayImagesProfile,          whenSet,          TicketHasShortName<kGrayImagesKey>},
    {kGrayTextKey,              &C::grayTextAndGraphicsProfile, whenSet,          TicketHasShortName<kGrayTextKey>},
    {"ImageRendering",          &C::imageObjectRendering},
    {"TextRendering",           &C::textObjectRendering},
    {"GraphicRendering",        &C::graphicObjectRendering},
};

constexpr Field<C> kColorCastFields[] = {
    {"FCCyanRed",      &C::cyanRed},
    {"FCMagentaGreen", &C::magentaGreen},
    {"FCYellowBlue",   &C::yellowBlue},
};
// clang-format on

struct ProfileField {
    const char* key;
    ColorProfile C::*member;
    SInt32 namedKind;
};

constexpr auto kProfiles = std::to_array<ProfileField>({
    {"RGBImagesProfile", &C::rgbImagesProfile, kNamedRGBProfile},
    {"RGBTextAndGraphicsProfile", &C::rgbTextAndGraphicsProfile, kNamedRGBProfile},
    {"CMYKImagesProfile", &C::cmykImagesProfile, kNamedCMYKProfile},
    {"CMYKTextAndGraphicsProfile", &C::cmykTextAndGraphicsProfile, kNamedCMYKProfile},
    {"DestinationProfile", &C::destinationProfile, kNamedDestinationProfile},
});
static_assert(CoversEveryField<C>(kColorFields, std::size(kColorCastFields) + kProfiles.size()));

void WriteColorCast(const C& fields, Dictionary& ticket)
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
    WriteFields(fields_, kColorFields, ticket);
    WriteColorCast(fields_, ticket);
    for (const ProfileField& field : kProfiles)
        WriteProfile(fields_.*field.member, field, ticket);
    return ticket;
}

void FullColorOptions::fromTicket(const Dictionary& ticket)
{
    fields_.trapping = fields_.trappingFastDirection = fields_.trappingSlowDirection = kUnset;
    ReadFields(fields_, kColorFields, ticket);
    if (const Dictionary* cast = ticket.dictionary(kColorCastKey))
        ReadFields(fields_, kColorCastFields, *cast);
    for (const ProfileField& field : kProfiles)
        ReadProfile(fields_.*field.member, field, ticket);
}

} // namespace kesta
