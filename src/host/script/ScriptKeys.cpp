#include "host/script/ScriptKeys.h"

#include <QStringList>

#include <array>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

struct NamedCode {
    const char* name;
    int code;
};

constexpr auto kKeys = std::to_array<NamedCode>({
    {"Return", Qt::Key_Return}, {"Enter", Qt::Key_Enter},
    {"Escape", Qt::Key_Escape}, {"Esc", Qt::Key_Escape},
    {"Tab", Qt::Key_Tab},       {"Backtab", Qt::Key_Backtab},
    {"Space", Qt::Key_Space},   {"Backspace", Qt::Key_Backspace},
    {"Delete", Qt::Key_Delete}, {"Insert", Qt::Key_Insert},
    {"Home", Qt::Key_Home},     {"End", Qt::Key_End},
    {"PageUp", Qt::Key_PageUp}, {"PageDown", Qt::Key_PageDown},
    {"Left", Qt::Key_Left},     {"Right", Qt::Key_Right},
    {"Up", Qt::Key_Up},         {"Down", Qt::Key_Down},
    {"F1", Qt::Key_F1},         {"F2", Qt::Key_F2},
    {"F3", Qt::Key_F3},         {"F4", Qt::Key_F4},
    {"F5", Qt::Key_F5},         {"F6", Qt::Key_F6},
    {"F7", Qt::Key_F7},         {"F8", Qt::Key_F8},
    {"F9", Qt::Key_F9},         {"F10", Qt::Key_F10},
    {"F11", Qt::Key_F11},       {"F12", Qt::Key_F12},
});

constexpr auto kModifiers = std::to_array<NamedCode>({
    {"Ctrl", Qt::ControlModifier},
    {"Shift", Qt::ShiftModifier},
    {"Alt", Qt::AltModifier},
    {"Meta", Qt::MetaModifier},
});

template <std::size_t N> std::optional<int> CodeNamed(const std::array<NamedCode, N>& table, const QString& name)
{
    for (const NamedCode& row : table) {
        if (name.compare(QLatin1StringView(row.name), Qt::CaseInsensitive) == 0)
            return row.code;
    }
    return std::nullopt;
}

// A printable character is its own key; with Ctrl or Alt it types nothing.
ScriptKey CharacterKey(QChar character, int modifiers)
{
    ScriptKey key{.key = character.toUpper().unicode(), .modifiers = modifiers};
    if (!(modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)))
        key.text = modifiers & Qt::ShiftModifier ? character.toUpper() : character;
    return key;
}

} // namespace

std::optional<ScriptKey> ScriptKeyNamed(const QString& name)
{
    QStringList parts = name.split(u'+');
    if (name == u"+" || name.endsWith(u"++"_s)) // the plus key itself
        parts = parts.mid(0, parts.size() - 2) << u"+"_s;
    int modifiers = 0;
    const QString last = parts.takeLast();
    for (const QString& part : parts) {
        const std::optional<int> modifier = CodeNamed(kModifiers, part);
        if (!modifier)
            return std::nullopt;
        modifiers |= *modifier;
    }
    if (last.size() == 1 && last.front().isPrint())
        return CharacterKey(last.front(), modifiers);
    const std::optional<int> key = CodeNamed(kKeys, last);
    if (!key)
        return std::nullopt;
    if (*key == Qt::Key_Tab && modifiers & Qt::ShiftModifier) // what a keyboard sends for it
        return ScriptKey{.key = Qt::Key_Backtab, .modifiers = modifiers};
    ScriptKey press{.key = *key, .modifiers = modifiers};
    if (*key == Qt::Key_Space && !modifiers)
        press.text = u" "_s;
    return press;
}

} // namespace kesta::host
