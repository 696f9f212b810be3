#include "platform/values/NumberText.h"

#include <QByteArray>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace kesta {
namespace {

// The whole text as a number, nothing when there is more in it or it is out of range.
template <class T> std::optional<T> WholeNumber(QStringView text)
{
    const QByteArray digits = text.toLatin1();
    const char* const end = digits.constData() + digits.size();
    T value = 0;
    const auto [rest, error] = std::from_chars(digits.constData(), end, value);
    return error == std::errc() && rest == end ? std::optional(value) : std::nullopt;
}

std::optional<Float64> MagnitudeFromText(QStringView text)
{
    if (text.compare(u"inf", Qt::CaseInsensitive) == 0 || text.compare(u"infinity", Qt::CaseInsensitive) == 0)
        return std::numeric_limits<Float64>::infinity();
    if (text.isEmpty() || !QStringView(u".0123456789").contains(text.front()))
        return std::nullopt;
    return WholeNumber<Float64>(text);
}

template <class Real> QString TextFromReal(Real value)
{
    if (std::isnan(value))
        return QStringLiteral("nan");
    if (std::isinf(value))
        return value < 0 ? QStringLiteral("-infinity") : QStringLiteral("+infinity");
    std::array<char, 32> digits{};
    const auto [end, error] = std::to_chars(digits.begin(), digits.end(), value);
    return QString::fromLatin1(digits.data(), end - digits.data());
}

} // namespace

std::optional<Number> IntegerFromText(QStringView text)
{
    text = text.trimmed();
    const bool hasPlus = text.startsWith(u'+') && !text.startsWith(u"+-");
    const std::optional<SInt64> value = WholeNumber<SInt64>(hasPlus ? text.mid(1) : text);
    return value ? std::optional(Number::Index(*value)) : std::nullopt;
}

std::optional<Number> RealFromText(QStringView text)
{
    text = text.trimmed();
    if (text.compare(u"nan", Qt::CaseInsensitive) == 0)
        return Number::Float64(std::numeric_limits<Float64>::quiet_NaN());
    const bool isNegative = text.startsWith(u'-');
    const std::optional<Float64> magnitude =
        MagnitudeFromText(isNegative || text.startsWith(u'+') ? text.mid(1) : text);
    if (!magnitude)
        return std::nullopt;
    return Number::Float64(isNegative ? -*magnitude : *magnitude);
}

QString TextFromNumber(const Number& number)
{
    switch (number.type()) {
    case Number::Type::kFloat32:
        return TextFromReal(number.as<Float32>().value_or(0));
    case Number::Type::kFloat64:
        return TextFromReal(number.as<Float64>().value_or(0));
    default:
        return QString::number(number.as<SInt64>().value_or(0));
    }
}

} // namespace kesta
