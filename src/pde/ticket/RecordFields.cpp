#include "pde/ticket/RecordFields.h"

namespace kesta::detail {
namespace {

bool Has(SInt32 number)
{
    return number != kUnset;
}

bool Has(bool flag)
{
    return flag;
}

bool Has(const QString& text)
{
    return !text.isEmpty();
}

bool Has(const std::optional<QString>& text)
{
    return text.has_value();
}

Value Stored(SInt32 number)
{
    return Number::Index(number);
}

Value Stored(bool flag)
{
    return flag;
}

Value Stored(const QString& text)
{
    return text;
}

Value Stored(const std::optional<QString>& text)
{
    return text.value_or(QString());
}

std::optional<SInt32> Read(SInt32, const Dictionary& ticket, const char* key)
{
    return CFDictionaryGetNumber<SInt32>(ticket, key);
}

std::optional<bool> Read(bool, const Dictionary& ticket, const char* key)
{
    return ticket.boolean(key);
}

const QString* Read(const std::optional<QString>&, const Dictionary& ticket, const char* key)
{
    return ticket.string(key);
}

} // namespace

bool IsSet(ConstFieldRef field)
{
    return std::visit([](const auto* content) { return Has(*content); }, field);
}

Value ToValue(ConstFieldRef field)
{
    return std::visit([](const auto* content) { return Stored(*content); }, field);
}

void FromTicket(FieldRef field, const Dictionary& ticket, const char* key)
{
    std::visit(
        [&](auto* content) {
            if (const auto read = Read(*content, ticket, key))
                *content = *read;
        },
        field);
}

void Unset(FieldRef field)
{
    std::visit([]<class T>(T* content) { *content = T(); }, field);
    if (SInt32** number = std::get_if<SInt32*>(&field))
        **number = kUnset;
}

bool IsSame(ConstFieldRef a, ConstFieldRef b, Qt::CaseSensitivity texts)
{
    if (const auto* text = std::get_if<const QString*>(&a))
        return (*text)->compare(*std::get<const QString*>(b), texts) == 0;
    return std::visit([&](const auto* content) { return *content == *std::get<decltype(content)>(b); }, a);
}

} // namespace kesta::detail
