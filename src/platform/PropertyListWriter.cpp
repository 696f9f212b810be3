#include "platform/PropertyList.h"

#include "platform/DateText.h"

#include <QXmlStreamWriter>

#include <array>
#include <charconv>
#include <cmath>
#include <map>

namespace kesta {
namespace {

bool IsLegal(char32_t character)
{
    return character >= 0x20 ? character != 0xFFFE && character != 0xFFFF
                             : character == '\t' || character == '\n' || character == '\r';
}

// The text with U+FFFD for all that XML cannot hold.
QString LegalText(QString text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        if (unit.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
            ++i;
        else if (unit.isSurrogate() || !IsLegal(unit.unicode()))
            text[i] = QChar::ReplacementCharacter;
    }
    return text;
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

void WriteText(QXmlStreamWriter& xml, const QString& text)
{
    const QString legal = LegalText(text);
    qsizetype begin = 0;
    for (qsizetype end = 0; (end = legal.indexOf(u'\r', begin)) >= 0; begin = end + 1) {
        xml.writeCharacters(QStringView(legal).sliced(begin, end - begin).toString());
        xml.writeEntityReference(QStringLiteral("#13")); // a bare one would be read as a line feed
    }
    xml.writeCharacters(legal.sliced(begin));
}

void WriteElement(QXmlStreamWriter& xml, const char* name, const QString& text)
{
    xml.writeStartElement(QString::fromLatin1(name));
    if (!text.isEmpty())
        WriteText(xml, text);
    xml.writeEndElement();
}

// Writes a value by its kind.
struct ValueWriter {
    QXmlStreamWriter& xml;

    void operator()(bool truth) const
    {
        xml.writeEmptyElement(truth ? QStringLiteral("true") : QStringLiteral("false"));
    }
    void operator()(const QString& text) const { WriteElement(xml, "string", text); }
    void operator()(const QByteArray& data) const { WriteElement(xml, "data", QString::fromLatin1(data.toBase64())); }
    void operator()(Date date) const { WriteElement(xml, "date", TextFromDate(date)); }
    void operator()(const Number& number) const;
    void operator()(const Array& array) const;
    void operator()(const Dictionary& dictionary) const;
};

void ValueWriter::operator()(const Number& number) const
{
    switch (number.type()) {
    case Number::Type::kFloat32:
        return WriteElement(xml, "real", TextFromReal(number.as<Float32>().value_or(0)));
    case Number::Type::kFloat64:
        return WriteElement(xml, "real", TextFromReal(number.as<Float64>().value_or(0)));
    default:
        return WriteElement(xml, "integer", QString::number(number.as<SInt64>().value_or(0)));
    }
}

void ValueWriter::operator()(const Array& array) const
{
    xml.writeStartElement(QStringLiteral("array"));
    for (const Value& value : array)
        value.visit(*this);
    xml.writeEndElement();
}

void ValueWriter::operator()(const Dictionary& dictionary) const
{
    xml.writeStartElement(QStringLiteral("dict"));
    std::map<QString, const Value*> legal; // the replaced characters may change the order
    for (const auto& [key, value] : dictionary)
        legal.try_emplace(LegalText(key), &value);
    for (const auto& [key, value] : legal) {
        WriteElement(xml, "key", key);
        value->visit(*this);
    }
    xml.writeEndElement();
}

} // namespace

QByteArray WritePropertyList(const Value& root)
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(-1); // one tab
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("plist"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("1.0"));
    root.visit(ValueWriter{xml});
    xml.writeEndDocument();
    return bytes;
}

} // namespace kesta
