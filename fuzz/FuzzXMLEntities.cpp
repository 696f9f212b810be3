// A text with entities, alone and with entities of its own: the lines "name=value" before the first empty one.

#include "Input.h"
#include "pde/ticket/XMLEntities.h"

#include <QStringList>

using namespace kesta;
using fuzz::Require;

namespace {

Dictionary Entities(const QString& lines)
{
    Dictionary entities;
    for (const QString& line : lines.split(u'\n'))
        entities.set(line.section(u'=', 0, 0), line.section(u'=', 1));
    return entities;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString input = QString::fromUtf8(fuzz::Bytes(data, size));
    Require(XMLCreateStringByUnescapingEntities(input).size() <= input.size());
    Require(XMLCreateStringByUnescapingEntities(input.toHtmlEscaped()) == input);

    const qsizetype gap = input.indexOf(u"\n\n");
    if (gap < 0)
        return 0;
    const Dictionary entities = Entities(input.first(gap));
    const QString text = input.sliced(gap + 2);
    Require(text.contains(u'&') || XMLCreateStringByUnescapingEntities(text, entities) == text);
    XMLCreateStringByUnescapingEntities(text, entities);
    return 0;
}
