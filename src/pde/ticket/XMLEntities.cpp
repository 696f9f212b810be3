#include "pde/ticket/XMLEntities.h"

#include <array>
#include <optional>
#include <utility>

namespace kesta {
namespace {

constexpr auto kKnownEntities = std::to_array<std::pair<const char*, const char*>>({
    {"amp", "&"},
    {"quot", "\""},
    {"lt", "<"},
    {"gt", ">"},
    {"apos", "'"},
});

Dictionary WithKnownEntities(Dictionary entities)
{
    for (const auto& [name, value] : kKnownEntities) {
        if (!entities.find(name))
            entities.set(name, value);
    }
    return entities;
}

int DigitValue(QChar digit)
{
    const char16_t unit = digit.unicode();
    if (unit >= u'0' && unit <= u'9')
        return unit - u'0';
    if (unit >= u'a' && unit <= u'f')
        return unit - u'a' + 10;
    if (unit >= u'A' && unit <= u'F')
        return unit - u'A' + 10;
    return 16;
}

// The character behind "65" or "x41"; half of a surrogate pair counts as one.
std::optional<char32_t> ReferencedCharacter(QStringView reference)
{
    const bool hexadecimal = reference.startsWith(u'x');
    const int base = hexadecimal ? 16 : 10;
    const QStringView digits = reference.sliced(hexadecimal ? 1 : 0);
    char32_t value = 0;
    for (const QChar digit : digits) {
        const int digitValue = DigitValue(digit);
        if (digitValue >= base)
            return std::nullopt;
        value = value * base + digitValue;
        if (value > QChar::LastValidCodePoint)
            return std::nullopt; // before it can overflow
    }
    return digits.isEmpty() ? std::nullopt : std::optional(value);
}

// What an entity stands for, given without ampersand and semicolon.
std::optional<QString> Replacement(QStringView entity, const Dictionary& entities)
{
    if (!entity.startsWith(u'#')) {
        const QString* value = entities.string(entity);
        return value ? std::optional(*value) : std::nullopt;
    }
    const std::optional<char32_t> character = ReferencedCharacter(entity.sliced(1));
    if (!character)
        return std::nullopt;
    return QChar::requiresSurrogates(*character) ? QString::fromUcs4(&*character, 1)
                                                 : QString(QChar(static_cast<char16_t>(*character)));
}

} // namespace

QString XMLCreateStringByUnescapingEntities(QStringView text, const Dictionary& extras)
{
    const Dictionary entities = WithKnownEntities(extras);
    QString result;
    while (!text.isEmpty()) {
        const qsizetype ampersand = text.indexOf(u'&');
        if (ampersand < 0)
            break;
        result += text.first(ampersand);
        text = text.sliced(ampersand);

        const qsizetype semicolon = text.indexOf(u';');
        const qsizetype end = semicolon < 0 ? text.size() : semicolon;
        const qsizetype written = semicolon < 0 ? end : end + 1;
        if (const std::optional<QString> value = Replacement(text.sliced(1, end - 1), entities))
            result += *value;
        else
            result += text.first(written);
        text = text.sliced(written);
    }
    return result += text;
}

} // namespace kesta
