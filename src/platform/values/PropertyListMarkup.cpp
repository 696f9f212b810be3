#include "platform/values/PropertyListMarkup.h"

#include <algorithm>
#include <limits>

namespace kesta {
namespace {

constexpr qsizetype kLongestDoctype = 301; // characters after its name

bool IsSpace(QChar character)
{
    return character == u' ' || (character >= u'\t' && character <= u'\r');
}

bool IsInPlainDoctype(QChar character)
{
    return character != u'[' && character != u']' && character != u'<' && character != u'>';
}

bool IsInElementName(QChar character)
{
    return !IsSpace(character) && !QStringView(u"<>/!?").contains(character);
}

bool IsInVersion(QChar character)
{
    return (character >= u'0' && character <= u'9') || character == u'.';
}

// Reads a tag from left to right; what does not fit is not consumed. By hand, because a regular expression engine is
// half a megabyte of every process that reads a list.
struct TagText {
    QStringView rest;

    bool take(QStringView literal)
    {
        const bool fits = rest.startsWith(literal);
        if (fits)
            rest = rest.sliced(literal.size());
        return fits;
    }
    // How many characters of the kind there were, at most so many are consumed.
    template <class Kind> qsizetype takeAll(Kind kind, qsizetype most = std::numeric_limits<qsizetype>::max())
    {
        const auto end = std::find_if_not(rest.begin(), rest.begin() + std::min(most, rest.size()), kind);
        const qsizetype count = end - rest.begin();
        rest = rest.sliced(count);
        return count;
    }
};

bool IsPlainDoctype(TagText tag)
{
    if (!tag.take(u"<!DOCTYPE") || tag.takeAll(IsSpace) == 0 || !tag.take(u"plist"))
        return false;
    if (!tag.rest.isEmpty() && IsSpace(tag.rest.front()))
        tag.takeAll(IsInPlainDoctype, kLongestDoctype);
    return tag.take(u">");
}

bool HasAttributes(TagText tag)
{
    return tag.take(u"<") && tag.takeAll(IsInElementName) > 0 && tag.takeAll(IsSpace) > 0 && !tag.rest.isEmpty() &&
           tag.rest.front() != u'/' && tag.rest.front() != u'>';
}

bool TakeQuote(TagText& tag)
{
    return tag.take(u"\"") || tag.take(u"'");
}

bool IsPlainPlistTag(TagText tag)
{
    if (!tag.take(u"<plist") || tag.takeAll(IsSpace) == 0 || !tag.take(u"version"))
        return false;
    tag.takeAll(IsSpace);
    if (!tag.take(u"="))
        return false;
    tag.takeAll(IsSpace);
    if (!TakeQuote(tag) || tag.takeAll(IsInVersion, 10) == 0 || !TakeQuote(tag))
        return false;
    tag.takeAll(IsSpace);
    return tag.take(u">");
}

// Any DOCTYPE but a plain one is refused before the XML reader sees it, so that no entity can be declared.
std::optional<ForeignMarkup> ForeignDoctype(QStringView text)
{
    const QStringView declaration = u"<!DOCTYPE";
    const qsizetype first = text.indexOf(declaration, 0, Qt::CaseInsensitive);
    if (first < 0)
        return std::nullopt;
    const bool isPlain = IsPlainDoctype({text.sliced(first)});
    const qsizetype second = text.indexOf(declaration, first + 1, Qt::CaseInsensitive);
    if (isPlain && second < 0)
        return std::nullopt;
    return ForeignMarkup{isPlain ? second : first, QStringLiteral("only a plain DOCTYPE named plist is accepted")};
}

// Any attribute but the version of plist is refused likewise: the XML reader's time grows with their square.
std::optional<ForeignMarkup> ForeignAttribute(QStringView text)
{
    for (qsizetype at = 0; (at = text.indexOf(u'<', at)) >= 0; ++at) {
        const TagText tag{text.sliced(at)};
        if (HasAttributes(tag) && !IsPlainPlistTag(tag))
            return ForeignMarkup{at, QStringLiteral("an element with attributes")};
    }
    return std::nullopt;
}

} // namespace

std::optional<ForeignMarkup> FindForeignMarkup(QStringView text)
{
    const std::optional<ForeignMarkup> doctype = ForeignDoctype(text);
    return doctype ? doctype : ForeignAttribute(text);
}

} // namespace kesta
