#include "panels/special_pages/editors/ImageShiftRules.h"

#include "pde/ticket/LocalizedText.h"
#include "platform/plugins/Bundle.h"

#include <QStringList>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

constexpr SInt32 kShiftIsSet = 1;
constexpr double kExaggeration = 2;
constexpr double kMillimetresPerInch = 25.4;
constexpr double kTenths = 10;

SInt32 InUnits(SInt32 offset, SizeUnits units)
{
    return units == SizeUnits::Inches ? TabShiftToInches(offset) : TabShiftToMillimetres(offset);
}

ShiftOfSide InUnits(const ShiftOfSide& side, SizeUnits units)
{
    const FieldLimits limits = TabShiftLimits(units);
    return {limits.clamped(InUnits(side.horizontal, units)), limits.clamped(InUnits(side.vertical, units))};
}

QString Distance(const Bundle& bundle, SInt32 offset, bool inches)
{
    const SInt32 distance = offset == kUnset ? 0 : std::abs(offset);
    return LocalizedFormat(bundle, inches ? "Shift In Inches" : "Shift In Millimeters",
                           {CreateLocalizedCFStringFromNumberWithDecimals(distance, inches ? 1 : 0)});
}

QString SideText(const Bundle& bundle, const ShiftOfSide& side, bool inches)
{
    QStringList moves;
    if (side.horizontal != 0)
        moves << LocalizedFormat(bundle, side.horizontal > 0 ? "Shift Right" : "Shift Left",
                                 {Distance(bundle, side.horizontal, inches)});
    if (side.vertical != 0)
        moves << LocalizedFormat(bundle, side.vertical > 0 ? "Shift Up" : "Shift Down",
                                 {Distance(bundle, side.vertical, inches)});
    return moves.isEmpty() ? LocalizedString(bundle, "Shift Nowhere") : moves.join(u", "_s);
}

} // namespace

ShiftSettings ShiftSettingsOf(const _IS_Options& options, SizeUnits usualUnits)
{
    ShiftSettings settings{.isOn = options.option != kUnset};
    settings.side1 = {options.X1, options.Y1};
    settings.side2 = {options.X2, options.Y2};
    settings.areAlike = settings.side1 == settings.side2;
    settings.units = options.inches ? SizeUnits::Inches : SizeUnits::Millimetres;
    if (!settings.isOn && settings.areAlike && settings.side1 == ShiftOfSide())
        settings.units = usualUnits;
    return settings;
}

void ApplyShiftSettings(const ShiftSettings& settings, _IS_Options& options)
{
    options.option = settings.isOn ? kShiftIsSet : kUnset;
    options.inches = settings.units == SizeUnits::Inches;
    options.X1 = settings.side1.horizontal;
    options.Y1 = settings.side1.vertical;
    options.X2 = settings.side2.horizontal;
    options.Y2 = settings.side2.vertical;
    options.valid = true;
}

void SwitchShiftUnits(ShiftSettings& settings, SizeUnits units)
{
    if (units == settings.units)
        return;
    settings.units = units;
    settings.side1 = InUnits(settings.side1, units);
    settings.side2 = InUnits(settings.side2, units);
}

void FollowSide1(ShiftSettings& settings)
{
    if (settings.areAlike)
        settings.side2 = settings.side1;
}

QString ImageShiftSummary(const Bundle& bundle, const _IS_Options& options)
{
    const ShiftSettings settings = ShiftSettingsOf(options, SizeUnits::Inches);
    if (!settings.isOn)
        return LocalizedString(bundle, "Shift Off");
    const QString side1 = SideText(bundle, settings.side1, options.inches);
    if (settings.areAlike)
        return u"- "_s + LocalizedFormat(bundle, "Shift Of Both Sides", {side1});
    const QString side2 = SideText(bundle, settings.side2, options.inches);
    return u"- "_s + LocalizedFormat(bundle, "Shift Of Side 1", {side1}) + u"\n- "_s +
           LocalizedFormat(bundle, "Shift Of Side 2", {side2});
}

QRectF ShiftedPrint(const QRectF& unshifted, const ShiftOfSide& side, SizeUnits units, double pointsPerInch)
{
    const double perUnit = kExaggeration * pointsPerInch / (units == SizeUnits::Inches ? kTenths : kMillimetresPerInch);
    return unshifted.translated(side.horizontal * perUnit, -side.vertical * perUnit);
}

} // namespace kesta
