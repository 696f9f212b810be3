#include "platform/values/PropertyList.h"

#include "platform/values/DateText.h"
#include "platform/values/NumberText.h"

#include <QXmlStreamWriter>

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
    const bool isReal = number.type() == Number::Type::kFloat32 || number.type() == Number::Type::kFloat64;
    WriteElement(xml, isReal ? "real" : "integer", TextFromNumber(number));
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
