#include "panels/booklet_watermark/BookletWatermarkOptions.h"

#include "pde/interface/TicketKeys.h"
#include "printer/FinishingKinds.h"
#include "support/CurrentPrinter.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kesta::booklet_watermark {
namespace {

const QStringList kNames{u"Draft"_s, u"Confidential"_s, u"draft"_s};

class BookletWatermarkOptionsTest : public testing::Test {
protected:
    ~BookletWatermarkOptionsTest() override { previousSelection() = 0; }

    void read() { ReadTicket(options, settings, ppd, kNames); }
    void write(BookletScope scope = BookletScope::Written)
    {
        WriteTicket(options, settings, ppd, kNames, scope, [this](const QString& name) {
            converted << name;
            return font;
        });
    }
    void set(const char* key, Value value) { settings.set(kPrintingManagerClient, key, std::move(value)); }
    std::optional<SInt32> number(const char* key) const { return ReadTicketValue(settings, key); }
    // All three places of it agree.
    SInt32 duplex() const
    {
        const SInt32 choice = PPDGetTicketValueForChoiceOrDefault(ppd, settings, "Duplex").value_or(0);
        EXPECT_EQ(number(key::PMDuplexing), choice);
        EXPECT_EQ(number(key::FinishingDuplex), choice);
        return choice;
    }
    void setDuplex(SInt32 value)
    {
        PPDSetChoiceForTicketValue(settings, "Duplex", value);
        WriteTicketValue(TicketWriter(settings, kPrintingManagerClient), key::PMDuplexing, value);
        WriteTicketValue(TicketWriter(settings, kPrintingManagerClient), key::FinishingDuplex, value);
    }
    void turn(SInt32 layout)
    {
        options.booklet.layout = layout;
        write();
    }

    test::CurrentPrinter printer{QStringLiteral(KESTA_PPD)};
    ppd_file_t* const ppd = PPDGetCurrent();
    Ticket settings;
    BookletWatermarkOptions options;
    ConvertedFont font;
    QStringList converted;
};

TEST_F(BookletWatermarkOptionsTest, EveryFieldIsWrittenAndComesBack)
{
    const test::WithFeatures fitted({u"BookletFoldKey"_s});
    set(key::JobLevelStock, Dictionary{{"Size", Number::Index(204)}, {"Color", Number::Index(1)}});
    font.subsetName = u"KS-DejaVuSans-KS"_s;
    const Booklet booklet{.fold = kFoldBi,
                          .layout = kBookletLayoutOn,
                          .drawOutlines = kDrawPageBorders,
                          .newPaperSize = 4,
                          .gutter = 30,
                          .creep = 7};
    const WatermarkChoice watermark{.item = 3, .layer = kLayerForeground, .pages = kFirstPageOnly};
    options.booklet = booklet;
    options.watermark = watermark;
    write();
    EXPECT_EQ(converted, QStringList{u"Confidential"_s});
    EXPECT_EQ(settings.client(key::BookletForceNewSize), QLatin1StringView(kPlaceholderClient));
    EXPECT_EQ(*settings.values().string(key::WatermarkSubsetFontName), u"KS-DejaVuSans-KS"_s);
    EXPECT_EQ(settings.values().dictionary(key::JobLevelStock)->count(), 2u) << "the rest of the stock stays";
    EXPECT_EQ(duplex(), 3);

    options = {};
    read();
    EXPECT_EQ(options.booklet, booklet);
    EXPECT_EQ(options.watermark, watermark);

    options.booklet.newPaperSize = kUnset;
    options.booklet.fold = kNotFinished;
    font = {};
    write();
    EXPECT_FALSE(settings.values().dictionary(key::JobLevelStock)->find("Size"));
    EXPECT_EQ(settings.values().boolean(key::BookletForceNewSize), false);
    EXPECT_FALSE(settings.values().find(key::WatermarkSubsetFontName)) << "no font program came of it";
}

TEST_F(BookletWatermarkOptionsTest, ABookletForcesTheShortEdgeAndGivesTheSidesBackOnce)
{
    setDuplex(2);
    turn(kBookletLayoutOn);
    EXPECT_EQ(duplex(), 3);
    turn(kBookletLayoutOff);
    EXPECT_EQ(duplex(), 2);
    EXPECT_EQ(previousSelection(), 0) << "nothing is left for another job";
    setDuplex(1);
    write();
    EXPECT_EQ(duplex(), 1) << "what the user picks later stands";

    setDuplex(2);
    turn(kBookletLayoutOn);
    write();
    turn(kBookletLayoutOff);
    EXPECT_EQ(duplex(), 3) << "the second write took the forced one for the user's";
}

TEST_F(BookletWatermarkOptionsTest, WhoeverEndsTheBookletElsewhereKeepsTheSides)
{
    setDuplex(2);
    turn(kBookletLayoutOn);
    set(key::BookletLayout, false);
    setDuplex(1);
    read();
    write();
    EXPECT_EQ(duplex(), 1);

    turn(kBookletLayoutOn);
    options.booklet.layout = kBookletLayoutOff;
    WriteBookletAtOnce(options, settings);
    EXPECT_EQ(duplex(), 1) << "and a user here gets them at once";
}

TEST_F(BookletWatermarkOptionsTest, AnotherJobKeepsItsSidesAndTheNextPrinterGivesThemBack)
{
    setDuplex(2);
    turn(kBookletLayoutOn);
    options = {};
    read();
    turn(kBookletLayoutOff);
    EXPECT_EQ(duplex(), 2) << "begun with the printer before";

    turn(kBookletLayoutOn);
    options = {};
    set(key::BookletLayout, false);
    setDuplex(1);
    read();
    write();
    EXPECT_EQ(duplex(), 1) << "a job that was no booklet";
}

TEST_F(BookletWatermarkOptionsTest, ABookletsFoldIsAFinishingAndAnotherOneStays)
{
    const auto after = [this](SInt32 fold, SInt32 before) {
        set(key::FinishingOptions, Number::Index(before));
        options.booklet.fold = fold;
        write();
        return number(key::FinishingOptions);
    };
    EXPECT_EQ(after(kFoldBi, 9), 24);
    EXPECT_EQ(after(kFoldBiStaple, 0), 24);
    EXPECT_EQ(after(kNotFinished, 24), 0);
    EXPECT_EQ(after(19, 40), 40);
    EXPECT_EQ(PPDCopyCurrentChoice(settings, "KSFold"), u"C"_s);
    EXPECT_EQ(after(0, 9), 9);
    EXPECT_EQ(PPDCopyCurrentChoice(settings, "KSFold"), u"C"_s) << "of no fold nothing is written";
}

TEST_F(BookletWatermarkOptionsTest, OneSheetIsBothCoversOfABooklet)
{
    const Dictionary cover{{"StartPage", Number::Index(1)}, {"SidesImaged", Number::Index(4)}};
    const Dictionary other{{"StartPage", Number::Index(1)}, {"SidesImaged", Number::Index(1)}};
    const auto keepsBack = [&](const Dictionary& back, SInt32 layout) {
        set(key::SpecialPagesFrontCover, cover);
        set(key::SpecialPagesBackCover, back);
        turn(layout);
        return settings.values().find(key::SpecialPagesBackCover) != nullptr;
    };
    EXPECT_TRUE(keepsBack(cover, kBookletLayoutOff));
    EXPECT_TRUE(keepsBack(other, kBookletLayoutOn));
    EXPECT_FALSE(keepsBack(cover, kBookletLayoutOn));
}

TEST_F(BookletWatermarkOptionsTest, APanelThatWasNeverOpenedWritesTheWatermarkOnly)
{
    setDuplex(2);
    options.booklet.layout = kBookletLayoutOn;
    options.watermark.item = 2;
    write(BookletScope::Left);
    EXPECT_FALSE(settings.values().find(key::BookletLayout));
    EXPECT_EQ(duplex(), 2);
    EXPECT_EQ(*settings.values().string(key::WatermarkName), u"Draft"_s);
}

TEST_F(BookletWatermarkOptionsTest, WithoutAWatermarkLayerAndPagesStay)
{
    options.watermark = {.item = 2, .layer = kLayerBackground, .pages = kFirstPageOnly};
    write();
    options.watermark = {};
    font.subsetName = u"left over"_s;
    write();
    EXPECT_FALSE(settings.values().find(key::WatermarkName));
    EXPECT_FALSE(settings.values().find(key::WatermarkSubsetFontName));
    EXPECT_EQ(number(key::WatermarkOption), kLayerBackground);
    EXPECT_EQ(number(key::WatermarkFirstPageOnly), 1);
    EXPECT_EQ(converted.size(), 1) << "there is no font to make";
}

TEST_F(BookletWatermarkOptionsTest, AWatermarkIsFoundByItsNameFirstExactlyThenInAnyCase)
{
    const auto found = [this](const char* name) {
        set(key::WatermarkName, name);
        read();
        return options.watermark.item;
    };
    EXPECT_EQ(found("draft"), 4);
    EXPECT_EQ(found("DRAFT"), 2);
    EXPECT_EQ(found("confidential"), 3);
    EXPECT_EQ(options.watermark.missing, QString());
    EXPECT_EQ(found("Secret"), kNoWatermarkItem);
    EXPECT_EQ(options.watermark.missing, u"Secret"_s);
    write();
    EXPECT_FALSE(settings.values().find(key::WatermarkName));
    read();
    EXPECT_EQ(options.watermark, WatermarkChoice());
}

TEST_F(BookletWatermarkOptionsTest, ThePageIsTheWholePaperAsTheJobIsTurned)
{
    Ticket format;
    EXPECT_EQ(ReadPageSize(format), QSizeF(612, 792));
    const auto size = [&](double bottom, double right, SInt32 orientation) {
        format.set("host", key::PMUnadjustedPaperRect,
                   Array{Number::Float64(0), Number::Float64(0), Number::Float64(bottom), Number::Float64(right)});
        format.set("host", key::PMOrientation, Number::Index(orientation));
        return ReadPageSize(format);
    };
    EXPECT_EQ(size(842, 595, 1), QSizeF(595, 842));
    EXPECT_EQ(size(842, 595, 2), QSizeF(842, 595));
    EXPECT_EQ(size(842, 595, 3), QSizeF(842, 595)) << "upside down is turned, too";
    EXPECT_EQ(size(842, 595, 4), QSizeF(595, 842)) << "and the other side is not";
    EXPECT_EQ(size(1e9, 595, 1), QSizeF(612, 792));
    EXPECT_EQ(size(-5, 595, 1), QSizeF(612, 792));
}

TEST(WatermarkMenuTest, ListsTheWatermarksBehindTheFirstItemAndMarksWhatIsChosen)
{
    const Bundle bundle = test::BundleWithAllTexts();
    Menu menu = WatermarkMenu(bundle, kNames);
    QStringList shown;
    for (const MenuItem& item : menu.items)
        shown << (item.separator ? u"--"_s : item.title + (item.submenu.empty() ? u""_s : u" >"_s));
    EXPECT_EQ(shown.join(u", "_s),
              u"NoWatermark, Draft, Confidential, draft, --, Options >, New..., Edit..., Delete"_s);
    for (SInt32 item = 0; item < 7; ++item)
        EXPECT_EQ(WatermarkOfItem(kNames, item), item >= 2 && item <= 4 ? kNames[item - 2] : QString()) << item;

    const auto marks = [&](const WatermarkChoice& choice) {
        MarkWatermarkMenu(menu, choice);
        QString marked;
        for (const MenuItem& item : FindItem(menu.items, kEditCommand) ? menu.items : std::vector<MenuItem>())
            for (const MenuItem& option : item.submenu)
                marked += option.separator ? u"|"_s : option.checked ? u"x"_s : option.enabled ? u"o"_s : u"-"_s;
        return marked + (FindItem(menu.items, kEditCommand)->enabled ? u" edit"_s : u""_s) +
               (FindItem(menu.items, kDeleteCommand)->enabled ? u" delete"_s : u""_s);
    };
    EXPECT_EQ(marks({}), u"-x-|x-"_s) << "marked, but nothing to choose for";
    EXPECT_EQ(marks({.item = 2, .layer = kLayerForeground, .pages = kFirstPageOnly}), u"oox|ox edit delete"_s);
    EXPECT_EQ(marks({.item = 2, .layer = kAllPages, .pages = kFirstPageOnly}), u"ooo|ox edit delete"_s)
        << "of settings from elsewhere";

    WatermarkChoice choice;
    for (const SInt32 value : {kLayerBackground, kFirstPageOnly})
        ChooseLayerOrPages(choice, value);
    EXPECT_EQ(choice, (WatermarkChoice{.layer = kLayerBackground, .pages = kFirstPageOnly}));
    EXPECT_EQ(LayerSummary(bundle, choice), QString());
    choice.item = 2;
    EXPECT_EQ(LayerSummary(bundle, choice), u"Watermark On Page 1 WatermarkBackground"_s);
    choice.layer = kAllPages;
    EXPECT_EQ(LayerSummary(bundle, choice), u"Watermark On Page 1 4"_s);
}

} // namespace
} // namespace kesta::booklet_watermark
