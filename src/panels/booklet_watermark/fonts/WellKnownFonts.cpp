#include "panels/booklet_watermark/fonts/WellKnownFonts.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace kesta::booklet_watermark {
namespace {

struct WellKnownFont {
    std::u16string_view name; // PostScript name up to the hyphen
    std::u16string_view family;
};

// Metric aliases of the font configuration are for families, not for PostScript names.
constexpr auto kWellKnown = std::to_array<WellKnownFont>({
    {u"Arial", u"Arial"},
    {u"ArialMT", u"Arial"},
    {u"ArialNarrow", u"Arial Narrow"},
    {u"BookmanOldStyle", u"Bookman Old Style"},
    {u"Calibri", u"Calibri"},
    {u"Cambria", u"Cambria"},
    {u"CenturySchoolbook", u"Century Schoolbook"},
    {u"Courier", u"Courier"},
    {u"CourierNewPS", u"Courier New"},
    {u"CourierNewPSMT", u"Courier New"},
    {u"Georgia", u"Georgia"},
    {u"Helvetica", u"Helvetica"},
    {u"HelveticaNeue", u"Helvetica"},
    {u"Palatino", u"Palatino"},
    {u"Times", u"Times"},
    {u"TimesNewRomanPS", u"Times New Roman"},
    {u"TimesNewRomanPSMT", u"Times New Roman"},
    {u"Verdana", u"Verdana"},
});
static_assert(kWellKnown.size() == 18);

} // namespace

FontDescription DescribeFont(const QString& postScriptName)
{
    const QStringView base = QStringView(postScriptName).left(postScriptName.indexOf(u'-'));
    const QStringView style = QStringView(postScriptName).sliced(base.size());
    FontDescription description;
    const auto known = std::ranges::find(
        kWellKnown, std::u16string_view(base.utf16(), static_cast<std::size_t>(base.size())), &WellKnownFont::name);
    if (known != kWellKnown.end())
        description.family = QStringView(known->family).toString();
    description.isBold = style.contains(u"bold", Qt::CaseInsensitive) || style.contains(u"black", Qt::CaseInsensitive);
    description.isSlanted =
        style.contains(u"italic", Qt::CaseInsensitive) || style.contains(u"oblique", Qt::CaseInsensitive);
    return description;
}

} // namespace kesta::booklet_watermark
