#include "platform/values/Number.h"

#include <cmath>
#include <concepts>
#include <utility>

namespace kesta {
namespace {

constexpr Float64 kTwoTo63 = 9223372036854775808.0;

template <std::integral To> std::optional<To> Convert(SInt64 value)
{
    if (std::in_range<To>(value))
        return static_cast<To>(value);
    return std::nullopt;
}

template <std::integral To> std::optional<To> Convert(Float64 value)
{
    if (!(value >= -kTwoTo63 && value < kTwoTo63) || std::trunc(value) != value) // also refuses NaN
        return std::nullopt;
    return Convert<To>(static_cast<SInt64>(value));
}

template <std::floating_point To> std::optional<To> Convert(SInt64 value)
{
    const To converted = static_cast<To>(value);
    if (Convert<SInt64>(Float64{converted}) == value)
        return converted;
    return std::nullopt;
}

template <std::floating_point To> std::optional<To> Convert(Float64 value)
{
    const To converted = static_cast<To>(value);
    if (converted == value || std::isnan(value))
        return converted;
    return std::nullopt;
}

} // namespace

template <class T> std::optional<T> Number::as() const
{
    return std::visit([](auto value) { return Convert<T>(value); }, content_);
}

template std::optional<kesta::SInt32> Number::as() const;
template std::optional<kesta::SInt64> Number::as() const;
template std::optional<kesta::Float32> Number::as() const;
template std::optional<kesta::Float64> Number::as() const;

} // namespace kesta
