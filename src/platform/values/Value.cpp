#include "platform/values/Value.h"

#include <utility>

namespace kesta {

Dictionary::Dictionary() = default;
Dictionary::Dictionary(const Dictionary&) = default;
Dictionary::Dictionary(Dictionary&&) noexcept = default;
Dictionary& Dictionary::operator=(const Dictionary&) = default;
Dictionary& Dictionary::operator=(Dictionary&&) noexcept = default;
Dictionary::~Dictionary() = default;

bool Dictionary::operator==(const Dictionary& other) const
{
    return items_ == other.items_;
}

Dictionary::Dictionary(std::initializer_list<Item> items)
{
    for (const Item& item : items)
        set(item.key, item.value);
}

const Value* Dictionary::find(QAnyStringView key) const
{
    const auto found = items_.find(key);
    return found == items_.end() ? nullptr : &found->second;
}

Value* Dictionary::find(QAnyStringView key)
{
    return const_cast<Value*>(std::as_const(*this).find(key));
}

namespace {

// Null when there is no value or it is of another kind.
template <class T> const T* OfKind(const Value* value, const T* (Value::*kind)() const)
{
    return value ? (value->*kind)() : nullptr;
}

template <class T> T* OfKind(Value* value, T* (Value::*kind)())
{
    return value ? (value->*kind)() : nullptr;
}

} // namespace

const Dictionary* Dictionary::dictionary(QAnyStringView key) const
{
    return OfKind<Dictionary>(find(key), &Value::dictionary);
}

Dictionary* Dictionary::dictionary(QAnyStringView key)
{
    return OfKind<Dictionary>(find(key), &Value::dictionary);
}

const Array* Dictionary::array(QAnyStringView key) const
{
    return OfKind<Array>(find(key), &Value::array);
}

Array* Dictionary::array(QAnyStringView key)
{
    return OfKind<Array>(find(key), &Value::array);
}

const Number* Dictionary::number(QAnyStringView key) const
{
    return OfKind<Number>(find(key), &Value::number);
}

const QString* Dictionary::string(QAnyStringView key) const
{
    return OfKind<QString>(find(key), &Value::string);
}

const QByteArray* Dictionary::data(QAnyStringView key) const
{
    return OfKind<QByteArray>(find(key), &Value::data);
}

std::optional<bool> Dictionary::boolean(QAnyStringView key) const
{
    const Value* value = find(key);
    if (!value || !value->boolean())
        return std::nullopt;
    return *value->boolean();
}

void Dictionary::set(QAnyStringView key, Value value)
{
    items_.insert_or_assign(key.toString(), std::move(value));
}

void Dictionary::remove(QAnyStringView key)
{
    if (const auto found = items_.find(key); found != items_.end())
        items_.erase(found);
}

std::size_t Dictionary::count() const
{
    return items_.size();
}

Dictionary::Items::const_iterator Dictionary::begin() const
{
    return items_.begin();
}

Dictionary::Items::const_iterator Dictionary::end() const
{
    return items_.end();
}

Value::Value(Number number) : content_(number) {}
Value::Value(QString string) : content_(std::move(string)) {}
Value::Value(const char* utf8) : content_(QString::fromUtf8(utf8)) {}
Value::Value(QByteArray data) : content_(std::move(data)) {}
Value::Value(Date date) : content_(date) {}
Value::Value(Array array) : content_(std::move(array)) {}
Value::Value(Dictionary dictionary) : content_(std::move(dictionary)) {}

bool Value::operator==(const Value& other) const
{
    return content_ == other.content_;
}

} // namespace kesta
