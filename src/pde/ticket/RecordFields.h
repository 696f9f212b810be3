#pragma once

#include "pde/ticket/CFAdditions.h"

#include <span>
#include <string_view>

namespace kesta {

// A record's dictionary form as a table: one row a field, in the order in which the fields are read.
//
//     constexpr Field<CoverFields> kCoverFields[] = {
//         {"StartPage",   &CoverFields::startPage,   always},
//         {"SidesImaged", &CoverFields::sidesImaged, always},
//     };
//     static_assert(CoversEveryField<CoverFields>(kCoverFields));
//
// Numbers travel as numbers of index type. An entry of another type, or a number that 32 bits do not hold, counts as
// absent.

struct AlwaysRule {};
struct WhenSetRule {};
struct NeverRule {};
inline constexpr AlwaysRule always;
inline constexpr WhenSetRule
    whenSet; // a number other than kUnset, a true flag, a text that isn't empty, one that is there
inline constexpr NeverRule never;

template <class Record> class WriteRule {
public:
    using Condition = bool (*)(const Record&);
    constexpr WriteRule(AlwaysRule) : isAlways_(true) {}
    constexpr WriteRule(WhenSetRule) {}
    constexpr WriteRule(Condition condition) : condition_(condition) {}

    bool allows(const Record& record, bool isSet) const { return condition_ ? condition_(record) : isAlways_ || isSet; }

private:
    bool isAlways_ = false;
    Condition condition_ = nullptr;
};

template <class Record> class ReadRule {
public:
    using Condition = bool (*)(const Record& readSoFar, const Dictionary& ticket);
    constexpr ReadRule(AlwaysRule) {}
    constexpr ReadRule(NeverRule) : isNever_(true) {}
    constexpr ReadRule(Condition condition) : condition_(condition) {}

    bool allows(const Record& readSoFar, const Dictionary& ticket) const
    {
        return condition_ ? condition_(readSoFar, ticket) : !isNever_;
    }

private:
    bool isNever_ = false;
    Condition condition_ = nullptr;
};

template <class Record> using Member =
    std::variant<SInt32 Record::*, bool Record::*, QString Record::*, std::optional<QString> Record::*>;

template <class Record> struct Field {
    const char* key;
    Member<Record> member;
    WriteRule<Record> written = whenSet;
    ReadRule<Record> read = always;
};

namespace detail {

using FieldRef = std::variant<SInt32*, bool*, QString*, std::optional<QString>*>;
using ConstFieldRef = std::variant<const SInt32*, const bool*, const QString*, const std::optional<QString>*>;

bool IsSet(ConstFieldRef field);
Value ToValue(ConstFieldRef field);
void FromTicket(FieldRef field, const Dictionary& ticket, const char* key); // absent: the field stays
void Unset(FieldRef field);
bool IsSame(ConstFieldRef a, ConstFieldRef b, Qt::CaseSensitivity texts);

template <class Ref, class AnyRecord, class Record> Ref Bind(AnyRecord& record, const Field<Record>& field)
{
    return std::visit([&](auto member) -> Ref { return &(record.*member); }, field.member);
}

} // namespace detail

template <class Record> using Fields = std::span<const Field<std::type_identity_t<Record>>>;

template <class Record> void WriteFields(const Record& record, Fields<Record> fields, Dictionary& ticket)
{
    for (const auto& field : fields) {
        const auto member = detail::Bind<detail::ConstFieldRef>(record, field);
        if (field.written.allows(record, detail::IsSet(member)))
            ticket.set(field.key, detail::ToValue(member));
    }
}

// A field whose key is absent stays as it was.
template <class Record> void ReadFields(Record& record, Fields<Record> fields, const Dictionary& ticket)
{
    for (const auto& field : fields)
        if (field.read.allows(record, ticket))
            detail::FromTicket(detail::Bind<detail::FieldRef>(record, field), ticket, field.key);
}

template <class Record> void UnsetFields(Record& record, Fields<Record> fields)
{
    for (const auto& field : fields)
        detail::Unset(detail::Bind<detail::FieldRef>(record, field));
}

template <class Record>
bool SameFields(const Record& a, const Record& b, Fields<Record> fields, Qt::CaseSensitivity texts)
{
    for (const auto& field : fields)
        if (!detail::IsSame(detail::Bind<detail::ConstFieldRef>(a, field),
                            detail::Bind<detail::ConstFieldRef>(b, field), texts))
            return false;
    return true;
}

namespace detail {

struct AnyField {
    template <class T> operator T() const;
};

template <class Record, class... Members> consteval std::size_t CountFields()
{
    if constexpr (requires { Record{Members{}..., AnyField{}}; })
        return CountFields<Record, Members..., AnyField>();
    else
        return sizeof...(Members);
}

} // namespace detail

// True when each member of the record but the given number has exactly one row and no key stands twice.
template <class Record> consteval bool CoversEveryField(std::span<const Field<Record>> fields, std::size_t others = 0)
{
    for (auto field = fields.begin(); field != fields.end(); ++field)
        for (auto other = field + 1; other != fields.end(); ++other)
            if (field->member == other->member || std::string_view(field->key) == other->key)
                return false;
    return fields.size() + others == detail::CountFields<Record>();
}

} // namespace kesta
