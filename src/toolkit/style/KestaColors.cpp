#include "toolkit/style/KestaColors.h"

#include <QGuiApplication>

#include <algorithm>
#include <cmath>
#include <vector>

namespace kesta {
namespace {

constexpr double kLeastOfTexts = 4.5; // contrast that small texts need
constexpr double kLeastOfLabels = 5;
constexpr double kLeastOfParts = 3; // that parts of controls need
constexpr double kLeastOfDisabled = 2;
constexpr double kDisabledShare = 0.58; // of the ground in a disabled text

double Luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

// The colour with as little of the other as it takes to stand out from all grounds; the other one where none does.
QColor Moved(const QColor& color, const QColor& toward, const std::vector<QColor>& grounds, double contrast)
{
    constexpr int kSteps = 20;
    for (int step = 0; step < kSteps; ++step) {
        const QColor mixed = Mix(color, toward, double(step) / kSteps);
        if (std::ranges::all_of(grounds, [&](const QColor& ground) { return Contrast(mixed, ground) >= contrast; }))
            return mixed;
    }
    return toward;
}

KestaColors MixedFrom(const QPalette& palette)
{
    const auto active = [&palette](QPalette::ColorRole role) { return palette.color(QPalette::Active, role); };
    KestaColors colors;
    colors.window = active(QPalette::Window);
    colors.text = active(QPalette::WindowText);
    colors.base = active(QPalette::Base);
    colors.button = active(QPalette::Button);
    colors.accent = active(QPalette::Highlight);
    colors.onAccent = active(QPalette::HighlightedText);
    if (Contrast(colors.onAccent, colors.accent) < kLeastOfParts)
        colors.onAccent =
            Contrast(Qt::white, colors.accent) < Contrast(Qt::black, colors.accent) ? Qt::black : Qt::white;
    colors.onBase = active(QPalette::Text);
    colors.onButton = active(QPalette::ButtonText);
    colors.dark = colors.window.lightness() < colors.text.lightness();
    colors.pane = colors.dark ? Mix(colors.window, colors.text, 0.04) : Mix(colors.window, colors.base, 0.80);
    colors.text2 =
        Moved(Mix(colors.text, colors.window, 0.30), colors.text, {colors.window, colors.pane}, kLeastOfLabels);
    colors.disabled = Mix(colors.text, colors.window, kDisabledShare);
    colors.hairline = Mix(colors.window, colors.text, 0.11);
    colors.border = Mix(colors.window, colors.text, 0.25);
    colors.field = Mix(colors.window, colors.text, 0.50);
    colors.disabledOnBase = Mix(colors.onBase, colors.base, kDisabledShare);
    colors.disabledOnButton = Mix(colors.onButton, colors.button, kDisabledShare);
    colors.placeholder = Moved(Mix(colors.onBase, colors.base, 0.45), colors.onBase, {colors.base}, kLeastOfTexts);
    colors.ring =
        Moved(colors.accent, colors.text, {colors.window, colors.pane, colors.base, colors.button}, kLeastOfParts);
    colors.error = colors.dark ? QColor(0xFF, 0x8A, 0x80) : QColor(0xB3, 0x26, 0x1E);
    colors.caution = colors.dark ? QColor(0xF2, 0xB8, 0x4B) : QColor(0x8A, 0x5A, 0x00);
    return colors;
}

} // namespace

double Contrast(const QColor& color, const QColor& other)
{
    const double one = Luminance(color);
    const double two = Luminance(other);
    const double darker = std::min(one, two);
    const double lighter = std::max(one, two);
    return (lighter + 0.05) / (darker + 0.05);
}

QPalette Readable(QPalette palette)
{
    const KestaColors colors = MixedFrom(palette);
    const auto mend = [&](QPalette::ColorRole role, const QColor& ground, const QColor& instead) {
        if (Contrast(palette.color(QPalette::Disabled, role), ground) < kLeastOfDisabled)
            palette.setColor(QPalette::Disabled, role, instead);
    };
    mend(QPalette::WindowText, colors.window, colors.disabled);
    mend(QPalette::Text, colors.base, colors.disabledOnBase);
    mend(QPalette::ButtonText, colors.button, colors.disabledOnButton);
    const QColor link = Moved(palette.color(QPalette::Active, QPalette::Link), colors.text,
                              {colors.window, colors.pane}, kLeastOfLabels);
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::PlaceholderText, colors.placeholder);
        palette.setColor(group, QPalette::Link, link);
    }
    palette.setColor(QPalette::Disabled, QPalette::PlaceholderText, colors.disabledOnBase);
    return palette;
}

QColor Mix(const QColor& color, const QColor& other, double share)
{
    const auto mixed = [share](int from, int to) { return qRound(from + (to - from) * share); };
    return {mixed(color.red(), other.red()), mixed(color.green(), other.green()), mixed(color.blue(), other.blue())};
}

KestaColors ColorsOf(const QPalette& palette)
{
    static qint64 key = -1;
    static KestaColors colors;
    if (key != palette.cacheKey()) {
        colors = MixedFrom(palette);
        key = palette.cacheKey();
    }
    return colors;
}

KestaColors CurrentColors()
{
    return ColorsOf(QGuiApplication::palette());
}

} // namespace kesta
