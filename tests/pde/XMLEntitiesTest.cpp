#include "pde/ticket/XMLEntities.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

struct Case {
    QString escaped, plain;
};

TEST(XMLEntities, Unescapes)
{
    const Case cases[] = {
        {u"&#65;&#x42;"_s, u"AB"_s},
        {u"&#x1f600;"_s, u"\U0001F600"_s},
        {u"&#xD83D;&#xde00;"_s, u"\U0001F600"_s}, // up to U+FFFF each is one unit
        {u"&#57343;"_s, QString(QChar(0xDFFF))},
        {u"a&#0;b"_s, QStringView(u"a\0b", 3).toString()},
        {u"&lt;a b=&quot;&apos;&amp;&gt;"_s, u"<a b=\"'&>"_s},
        {u"&amp;lt;"_s, u"&lt;"_s}, // what was unescaped is not looked at again
        {u"a&foo;b"_s, u"a&foo;b"_s},
        {u"&LT;"_s, u"&LT;"_s},
        {u"x&#65"_s, u"xA"_s}, // a missing semicolon
        {u"x&amp"_s, u"x&"_s},
        {u"x&foo"_s, u"x&foo"_s},
        {u"&&amp;"_s, u"&&amp;"_s}, // the name runs from the first ampersand to the semicolon
        {u"&"_s, u"&"_s},
        {u"&;"_s, u"&;"_s},
        {u"plain"_s, u"plain"_s},
        {u""_s, u""_s},
    };
    for (const Case& one : cases)
        EXPECT_EQ(XMLCreateStringByUnescapingEntities(one.escaped), one.plain);
}

TEST(XMLEntities, WhatIsNoCharacterStaysAsItWasWritten)
{
    for (const QString& text :
         {u"&#;"_s, u"&#x;"_s, u"&#x110000;"_s, u"&#4294967361;"_s /* 2^32 + 65 */, u"&#18446744073709551681;"_s,
          u"&#6a;"_s, u"&#X41;"_s, u"&#xG;"_s, u"&#-65;"_s, u"&# 65;"_s})
        EXPECT_EQ(XMLCreateStringByUnescapingEntities(text), text);
    EXPECT_EQ(XMLCreateStringByUnescapingEntities(u"&#x10FFFF;&#xFFFF;"), QString::fromUcs4(U"\U0010FFFF\xFFFF", 2));
}

TEST(XMLEntities, ExtrasWinOverTheKnownNames)
{
    const Dictionary extras{{"copy", "(c)"}, {"amp", "and"}, {"lt", Array{}}};
    EXPECT_EQ(XMLCreateStringByUnescapingEntities(u"&copy;&amp;&gt;&lt;", extras), u"(c)and>&lt;");
}

TEST(XMLEntities, TakesTimeInProportionToTheText)
{
    QElapsedTimer timer;
    timer.start();
    XMLCreateStringByUnescapingEntities(QString(2'000'000, u'&'));
    XMLCreateStringByUnescapingEntities(u"&#"_s + QString(2'000'000, u'9'));
    XMLCreateStringByUnescapingEntities(u"&#0;"_s.repeated(500'000));
    EXPECT_LT(timer.elapsed(), 5'000);
}

} // namespace
} // namespace kesta
