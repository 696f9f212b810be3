#include "pde/RecordFields.h"

namespace kesta::detail {
namespace {

template <class... Cases> struct Overloaded : Cases... {
    using Cases::operator()...;
};

template <class Field, class Read> void Assign(Field& field, const Read& read)
{
    if (read)
        field = *read;
}

} // namespace

bool IsSet(ConstFieldRef field)
{
    return std::visit(Overloaded{[](const SInt32* number) { return *number != kUnset; },
                                 [](const bool* flag) { return *flag; },
                                 [](const QString* text) { return !text->isEmpty(); },
                                 [](const std::optional<QString>* text) { return text->has_value(); }},
                      field);
}

Value ToValue(ConstFieldRef field)
{
    return std::visit(Overloaded{[](const SInt32* number) { return Value(Number::Index(*number)); },
                                 [](const bool* flag) { return Value(*flag); },
                                 [](const QString* text) { return Value(*text); },
                                 [](const std::optional<QString>* text) { return Value(text->value_or(QString())); }},
                      field);
}

void FromTicket(FieldRef field, const Dictionary& ticket, const char* key)
{
    std::visit(Overloaded{[&](SInt32* number) { Assign(*number, CFDictionaryGetNumber<SInt32>(ticket, key)); },
                          [&](bool* flag) { Assign(*flag, ticket.boolean(key)); },
                          [&](auto* text) { Assign(*text, ticket.string(key)); }},
               field);
}

void Unset(FieldRef field)
{
    std::visit(Overloaded{[](SInt32* number) { *number = kUnset; }, []<class T>(T* other) { *other = T(); }}, field);
}

bool IsSame(ConstFieldRef a, ConstFieldRef b, Qt::CaseSensitivity texts)
{
    if (const auto* text = std::get_if<const QString*>(&a))
        return (*text)->compare(*std::get<const QString*>(b), texts) == 0;
    return std::visit([&](const auto* field) { return *field == *std::get<decltype(field)>(b); }, a);
}

} // namespace kesta::detail
