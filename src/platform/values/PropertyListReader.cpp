#include "platform/values/PropertyList.h"

#include "platform/values/DateText.h"
#include "platform/values/NumberText.h"
#include "platform/values/PropertyListMarkup.h"

#include <QStringDecoder>
#include <QXmlStreamReader>

namespace kesta {
namespace {

constexpr qsizetype kLongestError = 200; // in characters: element names come from outside

QString ErrorAt(qint64 line, qint64 column, const QString& what)
{
    return QStringLiteral("line %1, column %2: %3").arg(line).arg(column).arg(what.simplified().left(kLongestError));
}

QString ErrorAtOffset(QStringView text, qsizetype offset, const QString& what)
{
    const QStringView before = text.first(offset);
    return ErrorAt(before.count(u'\n') + 1, offset - before.lastIndexOf(u'\n'), what);
}

std::optional<QString> TextItself(QStringView text)
{
    return text.toString();
}

// Reads one list; the first error stops it for good.
class Reader {
public:
    Reader(const QString& text, const PropertyListLimits& limits) : xml_(text), limits_(limits)
    {
        xml_.setNamespaceProcessing(false);
    }

    PropertyListResult read()
    {
        std::optional<Value> root = readDocument();
        if (!error_.isEmpty())
            return {std::nullopt, error_};
        return {std::move(root), QString()};
    }

private:
    std::optional<Value> readDocument();
    std::optional<Value> readValue();
    std::optional<Value> readContent(QStringView element);
    std::optional<Value> readArray();
    std::optional<Value> readDictionary();
    bool readEntry(Dictionary& dictionary);
    std::optional<Value> readData();
    std::optional<Value> readTruth(bool truth);
    template <class Content>
    std::optional<Value> parse(std::optional<Content> (*parser)(QStringView), const char* error);
    std::optional<QString> readText();
    bool nextElement();

    std::nullopt_t fail(const QString& what)
    {
        if (error_.isEmpty())
            error_ = ErrorAt(xml_.lineNumber(), xml_.columnNumber() + 1, what);
        return std::nullopt;
    }
    std::nullopt_t fail(const char* what) { return fail(QString::fromLatin1(what)); }

    QXmlStreamReader xml_;
    PropertyListLimits limits_;
    QString error_;
    qsizetype values_ = 0;
    int depth_ = 0;
};

// Moves to the next child's start; false at the parent's end or after an error. Stray text is an error.
bool Reader::nextElement()
{
    while (error_.isEmpty()) {
        switch (xml_.readNext()) {
        case QXmlStreamReader::StartElement:
            return true;
        case QXmlStreamReader::EndElement:
        case QXmlStreamReader::EndDocument:
            return false;
        case QXmlStreamReader::Characters:
            if (!xml_.isWhitespace())
                fail("text outside of a value");
            break;
        case QXmlStreamReader::Invalid:
            fail(xml_.errorString());
            break;
        case QXmlStreamReader::EntityReference:
            fail("an entity that is not known");
            break;
        default: // the declaration, the DOCTYPE, comments
            break;
        }
    }
    return false;
}

std::optional<Value> Reader::readDocument()
{
    if (!nextElement())
        return fail("not a property list: no element");
    if (xml_.qualifiedName() != u"plist")
        return fail("not a property list: the root element is not plist");
    if (!nextElement())
        return fail("the property list has no value");
    std::optional<Value> root = readValue();
    if (error_.isEmpty() && nextElement())
        return fail("the property list has more than one value");
    if (error_.isEmpty() && nextElement()) // after the end of plist
        return fail("more after the property list");
    return root;
}

// The value whose start has just been read, to its end.
std::optional<Value> Reader::readValue()
{
    if (++values_ > limits_.values)
        return fail("too many values");
    if (++depth_ > limits_.depth)
        return fail("nested too deeply");
    std::optional<Value> value = readContent(xml_.qualifiedName());
    --depth_;
    return error_.isEmpty() ? std::move(value) : std::nullopt;
}

std::optional<Value> Reader::readContent(QStringView element)
{
    if (element == u"dict")
        return readDictionary();
    if (element == u"array")
        return readArray();
    if (element == u"string")
        return parse(TextItself, "");
    if (element == u"integer")
        return parse(IntegerFromText, "not an integer of 64 bits");
    if (element == u"real")
        return parse(RealFromText, "not a number, or out of range");
    if (element == u"date")
        return parse(DateFromText, "not a date in the form 2031-02-28T23:59:59Z");
    if (element == u"data")
        return readData();
    if (element == u"true" || element == u"false")
        return readTruth(element == u"true");
    return fail(QStringLiteral("unknown element %1").arg(element));
}

std::optional<Value> Reader::readArray()
{
    Array array;
    while (nextElement()) {
        std::optional<Value> value = readValue();
        if (!value)
            return std::nullopt;
        array.push_back(*std::move(value));
    }
    return Value(std::move(array));
}

std::optional<Value> Reader::readDictionary()
{
    Dictionary dictionary;
    while (nextElement()) {
        if (!readEntry(dictionary))
            return std::nullopt;
    }
    return Value(std::move(dictionary));
}

bool Reader::readEntry(Dictionary& dictionary)
{
    if (xml_.qualifiedName() != u"key")
        fail("a value without a key");
    const std::optional<QString> key = readText();
    if (key && dictionary.find(*key))
        fail(QStringLiteral("the key \"%1\" stands twice").arg(key->left(kLongestError / 2)));
    if (!error_.isEmpty())
        return false;
    if (!nextElement() || xml_.qualifiedName() == u"key") {
        fail("a key without a value");
        return false;
    }
    std::optional<Value> value = readValue();
    if (!value)
        return false;
    dictionary.set(*key, *std::move(value));
    return true;
}

// All text to the element's end.
std::optional<QString> Reader::readText()
{
    QString text;
    while (error_.isEmpty()) {
        switch (xml_.readNext()) {
        case QXmlStreamReader::Characters:
            text += xml_.text();
            break;
        case QXmlStreamReader::EndElement:
            return text;
        case QXmlStreamReader::StartElement:
            return fail("an element within a text");
        case QXmlStreamReader::Invalid:
            return fail(xml_.errorString());
        case QXmlStreamReader::EntityReference:
            return fail("an entity that is not known");
        default: // comments
            break;
        }
    }
    return std::nullopt;
}

template <class Content>
std::optional<Value> Reader::parse(std::optional<Content> (*parser)(QStringView), const char* error)
{
    const std::optional<QString> text = readText();
    if (!text)
        return std::nullopt;
    std::optional<Content> content = parser(*text);
    if (!content)
        return fail(error);
    return Value(*std::move(content));
}

std::optional<Value> Reader::readData()
{
    std::optional<QString> text = readText();
    if (!text)
        return std::nullopt;
    text->removeIf([](QChar unit) { return unit == u' ' || unit == u'\t' || unit == u'\n' || unit == u'\r'; });
    const auto decoded = QByteArray::fromBase64Encoding(text->toUtf8(), QByteArray::AbortOnBase64DecodingErrors);
    if (text->size() % 4 != 0 || !decoded)
        return fail("the data is not base64");
    return Value(decoded.decoded);
}

std::optional<Value> Reader::readTruth(bool truth)
{
    const std::optional<QString> text = readText();
    if (text && !text->trimmed().isEmpty())
        return fail("text in a true or false");
    return text ? std::optional(Value(truth)) : std::nullopt;
}

} // namespace

PropertyListResult ParsePropertyList(const QByteArray& xml, const PropertyListLimits& limits)
{
    if (xml.size() > limits.bytes)
        return {std::nullopt, ErrorAt(1, 1, QStringLiteral("larger than %1 bytes").arg(limits.bytes))};
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(xml);
    if (decoder.hasError())
        return {std::nullopt, ErrorAt(1, 1, QStringLiteral("not UTF-8"))};
    if (const std::optional<ForeignMarkup> foreign = FindForeignMarkup(text))
        return {std::nullopt, ErrorAtOffset(text, foreign->offset, foreign->problem)};
    return Reader(text, limits).read();
}

} // namespace kesta
