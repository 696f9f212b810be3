#pragma once

#include "platform/values/Number.h"

#include <QAnyStringView>
#include <QByteArray>
#include <QString>

#include <concepts>
#include <initializer_list>
#include <map>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

namespace kesta {

class Value;
using Array = std::vector<Value>;

// A moment, in whole seconds since 1970-01-01T00:00:00 UTC; seconds before it are negative.
struct Date {
    SInt64 seconds = 0;

    bool operator==(const Date&) const = default;
};

// Keys are exact and case-sensitive. Copies are deep; an entry keeps its address until it is removed.
class Dictionary {
    struct Less {
        using is_transparent = void;
        bool operator()(QAnyStringView a, QAnyStringView b) const { return QAnyStringView::compare(a, b) < 0; }
    };
    using Items = std::map<QString, Value, Less>;

public:
    struct Item;

    Dictionary();
    Dictionary(std::initializer_list<Item> items);
    Dictionary(const Dictionary&);
    Dictionary(Dictionary&&) noexcept;
    Dictionary& operator=(const Dictionary&);
    Dictionary& operator=(Dictionary&&) noexcept;
    ~Dictionary();

    // Null when the key is absent.
    const Value* find(QAnyStringView key) const;
    Value* find(QAnyStringView key);

    // Null or nothing also when the entry is of another kind.
    const Dictionary* dictionary(QAnyStringView key) const;
    Dictionary* dictionary(QAnyStringView key);
    const Array* array(QAnyStringView key) const;
    Array* array(QAnyStringView key);
    const Number* number(QAnyStringView key) const;
    const QString* string(QAnyStringView key) const;
    const QByteArray* data(QAnyStringView key) const;
    std::optional<bool> boolean(QAnyStringView key) const;

    void set(QAnyStringView key, Value value);
    void remove(QAnyStringView key);
    std::size_t count() const;

    // Key and value of every entry, in order of the keys' UTF-16 units: for (const auto& [key, value] : dictionary)
    Items::const_iterator begin() const;
    Items::const_iterator end() const;

    bool operator==(const Dictionary&) const;

private:
    Items items_;
};

// One entry of a ticket or property list. There is no empty value: what is absent is not there.
class Value {
public:
    Value(std::same_as<bool> auto truth) : content_(truth) {} // no pointer turns into a boolean
    template <class T>
    requires(std::is_arithmetic_v<T> && !std::same_as<T, bool>) Value(T)
    = delete; // a number names its stored type: Number::Index(5)
    Value(Number number);
    Value(QString string);
    Value(const char* utf8);
    Value(QByteArray data);
    Value(Date date);
    Value(Array array);
    Value(Dictionary dictionary);

    // Each is null when the value is of another kind.
    const bool* boolean() const { return std::get_if<bool>(&content_); }
    const Number* number() const { return std::get_if<Number>(&content_); }
    const QString* string() const { return std::get_if<QString>(&content_); }
    const QByteArray* data() const { return std::get_if<QByteArray>(&content_); }
    const Date* date() const { return std::get_if<Date>(&content_); }
    const Array* array() const { return std::get_if<Array>(&content_); }
    Array* array() { return std::get_if<Array>(&content_); }
    const Dictionary* dictionary() const { return std::get_if<Dictionary>(&content_); }
    Dictionary* dictionary() { return std::get_if<Dictionary>(&content_); }

    // Calls the visitor with what the value is.
    template <class Visitor> decltype(auto) visit(Visitor&& visitor) const
    {
        return std::visit(std::forward<Visitor>(visitor), content_);
    }

    bool operator==(const Value&) const;

private:
    std::variant<bool, Number, QString, QByteArray, Date, Array, Dictionary> content_;
};

struct Dictionary::Item {
    QAnyStringView key;
    Value value;
};

} // namespace kesta
