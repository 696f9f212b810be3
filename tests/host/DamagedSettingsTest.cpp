// Settings files that are well-formed and make no sense: the dialog opens as if they said nothing.

#include "host/FileContent.h"
#include "host/ProgramFixture.h"

#include "pde/interface/TicketKeys.h"
#include "platform/values/PropertyList.h"

#include <QDir>
#include <QRegularExpression>

#include <limits>
#include <typeinfo>

using namespace Qt::StringLiterals;

namespace {

namespace key = kesta::key;
using kesta::Array;
using kesta::Date;
using kesta::Dictionary;
using kesta::Number;
using kesta::Value;
using kesta::test::Content;
using kesta::test::Ended;
using kesta::test::ProgramTest;

// The first group of each match in the sources.
QStringList InSources(const QString& pattern, const QStringList& files)
{
    QStringList found;
    for (const QString& file : files) {
        const QString source = QString::fromUtf8(Content(QStringLiteral(SOURCES) + u'/' + file));
        for (auto match = QRegularExpression(pattern).globalMatch(source); match.hasNext();)
            found << match.next().captured(1);
    }
    return found;
}

QStringList Texts(std::initializer_list<const char*> texts)
{
    QStringList list;
    for (const char* text : texts)
        list << QString::fromLatin1(text);
    return list;
}

Dictionary Under(const QStringList& keys, const Value& value)
{
    Dictionary entries;
    for (const QString& key : keys)
        entries.set(key, value);
    return entries;
}

bool AreOfOneKind(const Value& a, const Value& b)
{
    const auto kind = [](const Value& value) {
        return value.visit([]<class Kind>(const Kind&) -> const std::type_info& { return typeid(Kind); }).hash_code();
    };
    return kind(a) == kind(b);
}

class DamagedSettingsTest : public ProgramTest {
protected:
    // Walks through the panels and the dialogs that show what the settings say.
    const QByteArray visit = "sync to-tickets\ndump seen.plist\nsummary\n"
                             "panel ColorOptions\npanel Advanced\npanel PaperOutput\n"
                             "command Bkcr\npress \"Cancel Command\"\ncommand Xsep\npress \"Cancel Command\"\n"
                             "choose \"Job Type:\" SavedJob\nkey Escape\nchoose \"Job Type:\" SecurePrint\nkey Escape\n"
                             "choose \"Job Type:\" DelayedPrint\nkey Escape\nsync to-tickets\ncancel";

    Ended open(const Dictionary& settings) const
    {
        QFile file(folder.filePath(u"damaged.plist"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(WritePropertyList(settings)) > 0);
        file.close();
        QFile::remove(folder.filePath(u"seen.plist"_s));
        return play(visit, {u"--settings"_s, u"damaged.plist"_s});
    }
    Dictionary seen() const
    {
        const auto read = kesta::ParsePropertyList(Content(folder.filePath(u"seen.plist"_s)));
        const Dictionary* root = read.value ? read.value->dictionary() : nullptr;
        EXPECT_TRUE(root) << read.error.toStdString();
        return root ? *root : Dictionary();
    }
    // Each entry of the part, and perhaps others.
    void expectSeen(const Dictionary& clean, const char* part) const
    {
        const Dictionary now = seen();
        ASSERT_TRUE(clean.dictionary(part) && now.dictionary(part)) << part;
        for (const auto& [key, value] : *clean.dictionary(part)) {
            if (carried.contains(key))
                continue;
            const Value* found = now.dictionary(part)->find(key);
            EXPECT_TRUE(found && *found == value)
                << key.toStdString() << (found ? WritePropertyList(*found).left(1000) : "").toStdString();
        }
    }

    // Numbers that no control shows, or whose pop-up keeps its choice: they come out as they came in.
    const QStringList carried = Texts({key::AdvancedBookletLayoutOrder, key::BannerPage, key::FinishingBindValue,
                                       key::FinishingOffset, key::FinishingOffsetEnableSubset, key::FinishingOptions,
                                       key::FinishingOutputColor, key::FinishingSlipSheet, key::PrintingOptimization});
    const QStringList keys = InSources(u"\"(com\\.[^\"]+)\""_s,
                                       {u"pde/interface/TicketKeys.h"_s, u"platform/printsystem/PrintSystemKeys.h"_s});
    const QStringList fields =
        InSources(u"\\{\"([A-Za-z0-9]+)\", +&"_s, {u"model/Stock.cpp"_s, u"model/FullColorTicket.cpp"_s}) +
        Texts({key::JobTypeNumber, key::JobTypeMediaType, key::JobTypeUseJobName, key::JobTypeSaveDisposition,
               key::JobTypeDelayedPrintTime, key::JobTypeSavedJobName, key::JobTypeSavedJobLocation,
               key::JobTypeSecurePrintPassword, key::InvertMirrorImage});
};

TEST_F(DamagedSettingsTest, WrongKindsAndRangesUnderEveryKeyCountAsNothing)
{
    ASSERT_GT(keys.size(), 40);
    ASSERT_GT(fields.size(), 40);
    const Ended untouched = open({{"PMPrintSettingsTicket", Dictionary()}});
    ASSERT_EQ(untouched.status, 0) << untouched.errors.toStdString();
    const Dictionary clean = seen();

    Value deep(Array{});
    for (int depth = 0; depth < 40; ++depth)
        deep = Array{deep};
    const std::vector<std::pair<const char*, Value>> wrongs{
        {"a text", "?"},
        {"a truth", true},
        {"a large number", Number::Index(std::numeric_limits<qint64>::max())},
        {"a number beyond all choices", Number::Index(1'000'000'000)},
        {"a negative number", Number::Index(-7)},
        {"the least number", Number::Index(std::numeric_limits<qint64>::min())},
        {"no number", Number::Float64(std::numeric_limits<double>::quiet_NaN())},
        {"an endless number", Number::Float64(-std::numeric_limits<double>::infinity())},
        {"a fraction", Number::Float64(1.5)},
        {"bytes", QByteArray(1000, '\xff')},
        {"a moment", Date{-1}},
        {"a nest", deep},
        {"an empty record", Dictionary()},
    };
    for (const auto& [name, wrong] : wrongs) {
        SCOPED_TRACE(name);
        Dictionary damaged = Under(keys, wrong);
        for (const auto& [key, value] : *clean.dictionary("PMPrintSettingsTicket"))
            if (!value.number() && AreOfOneKind(value, wrong))
                damaged.remove(key); // it would be right
        if (wrong.string())
            damaged.remove(key::WatermarkName); // any text is a name
        if (wrong.dictionary()) {
            for (const char* cover : {key::SpecialPagesFrontCover, key::SpecialPagesBackCover})
                damaged.remove(cover); // a cover of which nothing is said
        }
        const Ended ended = open(
            {{"PMPrintSettingsTicket", damaged}, {"PMPageFormatTicket", damaged}, {"PMPrinterInfoTicket", damaged}});
        EXPECT_EQ(ended.status, 0);
        EXPECT_EQ(ended.errors, QString());
        const bool isShown = ended.output.contains(u", not on this printer"_s); // a number as such
        EXPECT_TRUE(isShown || ended.output == untouched.output) << ended.output.toStdString();
        for (const char* part : {"PMPrintSettingsTicket", "PMPageFormatTicket", "PPD"})
            expectSeen(clean, part);

        for (const Value& record : {Value(Under(fields, wrong)), Value(Array{Under(fields, wrong)})}) {
            const Ended inside = open({{"PMPrintSettingsTicket", Under(keys, record)}});
            EXPECT_EQ(inside.status, 0);
            EXPECT_EQ(inside.errors, QString());
            expectSeen(clean, "PPD");
        }
    }
}

TEST_F(DamagedSettingsTest, TenMegabytesInOneText)
{
    const QString text(10'000'000, u'x');
    for (const char* field : {"SavedJobName", "SecurePrintPassword", "CustomName", "CustomType"}) {
        const Dictionary record{{field, text}, {"UseJobName", false}, {"Type", Number::Index(7)}};
        const Ended ended = open({{"PMPrintSettingsTicket", Dictionary{{"com.kesta.print.JobType", record}}}});
        EXPECT_EQ(ended.status, 0) << field << ended.errors.toStdString();
        const Ended stock = open({{"PMPrintSettingsTicket", Dictionary{{"com.kesta.print.JobLevelStock", record}}}});
        EXPECT_EQ(stock.status, 0) << field << stock.errors.toStdString();
        EXPECT_LT(stock.output.size(), 3000);
    }
}

TEST_F(DamagedSettingsTest, ChoicesThatThePrinterLacksAreNotPrinted)
{
    const Dictionary choices = Under({u"Duplex"_s, u"KSFold"_s, u"KSPunch"_s, u"MediaColor"_s, u"MediaType"_s,
                                      u"OutputBin"_s, u"PageSize"_s, u"StapleLocation"_s, u"NoOption"_s},
                                     u"Nonsense"_s);
    const Ended opened = open({{"PPD", choices}});
    EXPECT_EQ(opened.status, 0) << opened.errors.toStdString();
    EXPECT_TRUE(opened.output.contains(u"Nonsense, not on this printer"_s)) << opened.output.toStdString();
    const Ended ended = play("print\npress \"Accept Changes\"\npress \"Leave Out\"",
                             {u"--settings"_s, u"damaged.plist"_s, u"--save-settings"_s, u"saved.plist"_s});
    EXPECT_EQ(ended.status, 0) << ended.errors.toStdString();
    const QByteArray saved = Content(folder.filePath(u"saved.plist"_s));
    EXPECT_TRUE(saved.contains("<key>PPD</key>") && !saved.contains("Nonsense"));
}

} // namespace
