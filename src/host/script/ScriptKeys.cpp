#include "host/script/ScriptKeys.h"

#include <QKeySequence>

using namespace Qt::StringLiterals;

namespace kesta::host {
namespace {

// What Qt calls "PgUp" and "PgDown" stands in full on many a keyboard.
QString QtName(const QString& name)
{
    QString known = name;
    return known.replace(u"PageUp"_s, u"PgUp"_s, Qt::CaseInsensitive)
        .replace(u"PageDown"_s, u"PgDown"_s, Qt::CaseInsensitive);
}

// What the key types: itself, unless a modifier makes a command of it.
QString TypedText(const QString& name, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    if (modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return {};
    const bool isCharacter = name.size() == 1 || name.at(name.size() - 2) == u'+';
    if (key == Qt::Key_Space || !isCharacter)
        return key == Qt::Key_Space && !modifiers ? u" "_s : QString();
    return modifiers & Qt::ShiftModifier ? QString(name.back().toUpper()) : QString(name.back());
}

} // namespace

std::optional<ScriptKey> ScriptKeyNamed(const QString& name)
{
    const QKeySequence sequence = QKeySequence::fromString(QtName(name), QKeySequence::PortableText);
    if (sequence.count() != 1)
        return std::nullopt;
    const Qt::Key key = sequence[0].key();
    const Qt::KeyboardModifiers modifiers = sequence[0].keyboardModifiers();
    if (key == Qt::Key_unknown || key == Qt::Key(0))
        return std::nullopt;
    const bool isBackward = key == Qt::Key_Tab && modifiers & Qt::ShiftModifier; // what a keyboard sends for it
    return ScriptKey{.key = isBackward ? Qt::Key_Backtab : key,
                     .modifiers = static_cast<int>(modifiers.toInt()),
                     .text = TypedText(name, key, modifiers)};
}

} // namespace kesta::host
