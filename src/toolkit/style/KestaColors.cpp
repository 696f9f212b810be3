#include "toolkit/style/KestaColors.h"

#include <QGuiApplication>
#include <QPalette>

namespace kesta {
namespace {

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
    colors.dark = colors.window.lightness() < colors.text.lightness();
    colors.pane = colors.dark ? Mix(colors.window, colors.text, 0.04) : Mix(colors.window, colors.base, 0.80);
    colors.text2 = Mix(colors.text, colors.window, 0.30);
    colors.disabled = Mix(colors.text, colors.window, 0.58);
    colors.hairline = Mix(colors.window, colors.text, 0.11);
    colors.border = Mix(colors.window, colors.text, 0.25);
    colors.field = Mix(colors.window, colors.text, 0.50);
    colors.error = colors.dark ? QColor(0xFF, 0x8A, 0x80) : QColor(0xB3, 0x26, 0x1E);
    colors.caution = colors.dark ? QColor(0xF2, 0xB8, 0x4B) : QColor(0x8A, 0x5A, 0x00);
    return colors;
}

} // namespace

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
