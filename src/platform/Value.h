#pragma once

#include "platform/Number.h"

#include <QAnyStringView>
#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <concepts>
#include <initializer_list>
#include <map>
#include <type_traits>
#include <variant>
#include <vector>

namespace kesta {

class Value;
using Array = std::vector<Value>;

// Keys are exact and case-sensitive. Copies are deep; an entry keeps its address until it is removed.
class Dictionary {
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
    const Array* array(QAnyStringView key) const;
    const QString* string(QAnyStringView key) const;
    std::optional<bool> boolean(QAnyStringView key) const;

    void set(QAnyStringView key, Value value);
    void remove(QAnyStringView key);
    std::size_t count() const;

    bool operator==(const Dictionary&) const;

private:
    struct Less {
        using is_transparent = void;
        bool operator()(QAnyStringView a, QAnyStringView b) const { return QAnyStringView::compare(a, b) < 0; }
    };
    std::map<QString, Value, Less> items_;
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
    Value(QDateTime date);
    Value(Array array);
    Value(Dictionary dictionary);

    // Each is null when the value is of another kind.
    const bool* boolean() const { return std::get_if<bool>(&content_); }
    const Number* number() const { return std::get_if<Number>(&content_); }
    const QString* string() const { return std::get_if<QString>(&content_); }
    const QByteArray* data() const { return std::get_if<QByteArray>(&content_); }
    const QDateTime* date() const { return std::get_if<QDateTime>(&content_); }
    const Array* array() const { return std::get_if<Array>(&content_); }
    const Dictionary* dictionary() const { return std::get_if<Dictionary>(&content_); }
    Dictionary* dictionary() { return std::get_if<Dictionary>(&content_); }

    bool operator==(const Value&) const;

private:
    std::variant<bool, Number, QString, QByteArray, QDateTime, Array, Dictionary> content_;
};

struct Dictionary::Item {
    QAnyStringView key;
    Value value;
};

} // namespace kesta
