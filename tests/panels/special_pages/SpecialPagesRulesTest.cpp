#include "panels/special_pages/SpecialPagesCommands.h"
#include "panels/special_pages/SpecialPagesSummary.h"
#include "panels/special_pages/editors/ImageShiftRules.h"
#include "panels/special_pages/editors/PageDescriptions.h"
#include "panels/special_pages/editors/PageTextRules.h"
#include "pde/interface/TicketKeys.h"
#include "pde/ticket/TicketUtilities.h"
#include "support/Accessories.h"
#include "support/CurrentPrinter.h"
#include "support/Recorders.h"
#include "support/TestTexts.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kesta::special_pages {
namespace {

Insert MakeInsert(SInt32 page, SInt32 quantity = 1)
{
    Insert insert;
    DefaultStock(insert.stock(), JobContext::Insert);
    insert.setStartPage(page);
    insert.setQuantity(quantity);
    return insert;
}

ExceptionPage MakeException(SInt32 start, SInt32 end, SInt32 plex = kUnset)
{
    ExceptionPage exception;
    DefaultStock(exception.stock(), JobContext::ExceptionPage);
    exception.setStartPage(start);
    exception.setEndPage(end);
    exception.setPlex(plex);
    return exception;
}

CoverSlot MakeCover(SInt32 sides = kCoverBlank, SInt32 color = kUnset)
{
    auto cover = std::make_unique<Cover>();
    DefaultStock(cover->stock(), JobContext::Cover);
    cover->setSidesImaged(sides);
    cover->stock().setColor(color);
    return cover;
}

class SpecialPagesTest : public testing::Test {
protected:
    void addInserts(const std::vector<Insert>& inserts) { set.inserts.add(PointersTo(inserts)); }
    void addExceptions(const std::vector<ExceptionPage>& pages) { set.exceptions.add(PointersTo(pages)); }
    void setDuplexing(SInt32 value) { WriteTicketValue(TicketWriter(settings, "test"), key::PMDuplexing, value); }
    void setBooklet(bool on) { settings.set("test", key::BookletLayout, on); }
    QString summary(const SpecialPage& page) const { return CopySpecialPageSummary(bundle, page, &settings); }
    // "3-7 SpecialPageSummaryException", a row each.
    QStringList rows() const
    {
        const PageTexts texts(bundle, set, &settings);
        QStringList shown;
        for (const SpecialPage* page : RowsOf(set)) {
            QString pages, type;
            EXPECT_EQ(texts.cell(*page, 0, pages), noErr);
            EXPECT_EQ(texts.cell(*page, 1, type), noErr);
            shown << pages + u' ' + type.sliced(QStringLiteral("SpecialPageSummary").size());
        }
        return shown;
    }

    const Bundle bundle = test::BundleWithAllTexts();
    const test::CurrentPrinter printer;
    Ticket settings;
    SpecialPageSet set;
};

TEST_F(SpecialPagesTest, RowsStandInTheOrderOfTheJob)
{
    EXPECT_TRUE(rows().isEmpty());
    addInserts({MakeInsert(7), MakeInsert(0), MakeInsert(3)});
    addExceptions({MakeException(5, 5), MakeException(3, 4), MakeException(9, 2)});
    set.frontCover = MakeCover();
    set.backCover = MakeCover();
    EXPECT_EQ(rows(), (QStringList{u"SpecialPageSummaryFront Cover"_s, u"SpecialPageSummaryBefore1 Insert"_s,
                                   u"Page Range In List 3 4 Exception"_s, u"3 Insert"_s, u"5 Exception"_s,
                                   u"7 Insert"_s, u"9 Exception"_s, u"SpecialPageSummaryBack Cover"_s}));
    QString text;
    EXPECT_EQ(PageTexts(bundle, set, &settings).cell(*set.frontCover, kColumnCount, text), kNoSuchColumn);
    const CoverSlot stranger = MakeCover();
    EXPECT_EQ(PageTexts(bundle, set, &settings).cell(*stranger, 0, text), noErr);
    EXPECT_EQ(text, QString());
}

TEST_F(SpecialPagesTest, ASummaryNamesWhatIsSet)
{
    Insert insert = MakeInsert(4, 12);
    EXPECT_EQ(summary(insert), u"Sheets In List InsertSummaryQuantity 12"_s);
    Stock& stock = insert.stock();
    stock.setSize(kStockSizeLetter);
    stock.setColor(kStockColorYellow);
    stock.setCustomName(u"Dividers"_s);
    const QString start = u"Paper Name In List Paper Name Label Dividers; Sheets In List InsertSummaryQuantity 12; "_s;
    const QString paper = start + u"Letter (8.5 x 11 in); "_s;
    stock.setType(kStockTypeRecycled);
    EXPECT_EQ(summary(insert), paper + u"Yellow; Recycled"_s);
    for (const SInt32 tabs : {kStockTypeTabStock, kStockTypePrecutTab}) {
        stock.setType(tabs);
        stock.setModulus(5);
        EXPECT_EQ(summary(insert),
                  paper + (tabs == kStockTypeTabStock ? u"Yellow; Tabs (5)"_s : u"Yellow; StockTypePrecutTab (5)"_s));
    }
    stock.setType(kStockTypeHeavyTabStock);
    stock.setModulus(0);
    EXPECT_EQ(summary(insert), paper + u"Yellow; Heavyweight tabs"_s);
    stock.setType(kStockTypeOrdered);
    stock.setCustomType(u"Sets"_s);
    stock.setModulus(3);
    stock.setColor(kStockColorText);
    stock.setCustomColor(u"Teal"_s);
    EXPECT_EQ(summary(insert), paper + u"Teal; Sets (3)"_s);
    stock.setType(kStockTypeText);
    EXPECT_EQ(summary(insert), paper + u"Teal; Sets"_s);
    stock.setSource(3);
    EXPECT_EQ(summary(insert) + u"; "_s, start);
    const test::WithAccessories fitted{{"Option2", "DClass_BK"}};
    stock.setSource(kStockSourcePostPrintInserter);
    EXPECT_EQ(summary(insert), start + u"Tray 8 Inserter Value"_s);
}

TEST_F(SpecialPagesTest, APlexAndTheSidesOfACoverAreNamedByTheJob)
{
    EXPECT_EQ(summary(MakeException(1, 2)), QString());
    EXPECT_EQ(summary(MakeException(1, 2, 3)), u"DuplexShort"_s);
    EXPECT_EQ(summary(MakeException(1, 2, 9)), u"Unknown Setting 9"_s);

    struct {
        SInt32 duplexing, sides;
        QString text;
    } const cases[] = {{3, 4, u"CoverPrinted"_s},           {2, 2, u"CoverPrinted"_s}, {1, 4, u"CoverPrinted"_s},
                       {1, 1, u"CoverBlankorPreprinted"_s}, {1, 2, u"CoverPrinted"_s}, {2, 3, u"CoverPrintedBack"_s},
                       {2, 8, u"Unknown Setting 8"_s}};
    EXPECT_EQ(summary(*MakeCover()), QString()) << "no two-sided setting in the ticket";
    for (const auto& one : cases) {
        setDuplexing(one.duplexing);
        EXPECT_EQ(summary(*MakeCover(one.sides)), one.text) << one.duplexing << ' ' << one.sides;
    }
    EXPECT_EQ(CopySpecialPageSummary(bundle, *MakeCover(4), nullptr), u"CoverPrinted"_s) << "no job";
}

TEST_F(SpecialPagesTest, EditorsAndScreenReadersAreToldMore)
{
    Insert insert = MakeInsert(4, 2);
    EXPECT_EQ(CreateInsertAttributesDescription(bundle, insert), u"Sheets Described InsertSummaryQuantity 2"_s);
    insert.stock().setColor(kStockColorBlue);
    EXPECT_EQ(CreateInsertAttributesDescription(bundle, insert),
              u"Sheets Described InsertSummaryQuantity 2;  - Blue"_s);
    ExceptionPage exception = MakeException(3, 7, 1);
    exception.stock().setColor(kStockColorYellow);
    EXPECT_EQ(CreateExceptionAttributesDescription(bundle, exception), u"Simplex;  - Yellow"_s);
    EXPECT_EQ(PageTexts(bundle, set, &settings).spoken(exception, 3, 7),
              u"Spoken Special Page 3 7 Spoken Page Range 3 7 SpecialPageSummaryException Simplex; Yellow"_s);
    addExceptions({exception});
    addInserts({insert});
    set.backCover = MakeCover();
    EXPECT_EQ(PageTexts(bundle, set, &settings).phrases(),
              (QStringList{u"Back Cover Summary"_s, u"One Insert Summary"_s,
                           u"Exception Range On Summary Page Range In List 3 7 yellow"_s}));
}

// Dragging ends where pressing Move Up or Move Down again and again would, and goes nowhere else.
TEST_F(SpecialPagesTest, ARowIsDraggedWhereMovingWouldGetIt)
{
    addInserts({MakeInsert(0), MakeInsert(2), MakeInsert(4), MakeInsert(6), MakeInsert(8)});
    addExceptions({MakeException(3, 3), MakeException(7, 7)});
    for (std::size_t from = 0; from < 7; ++from) {
        for (int before = 0; before <= 7; ++before) {
            SCOPED_TRACE(testing::Message() << from << " before " << before);
            SpecialPageSet moved = CloneOf(set);
            const SpecialPages rows = RowsOf(moved);
            SpecialPages expected = moved.inserts.pages();
            const auto place = std::ranges::find(expected, rows[from]);
            const auto target = expected.begin() +
                                std::count_if(rows.begin(), rows.begin() + before,
                                              [](const SpecialPage* one) { return dynamic_cast<const Insert*>(one); });
            const bool passesFirst = place != expected.begin() && target == expected.begin();
            const bool isPossible = place != expected.end() && target != place && target != place + 1 && !passesFirst;
            const std::optional<SInt32> steps = StepsTo(moved, rows, *rows[from], before);
            ASSERT_EQ(steps.has_value(), isPossible);
            if (!steps)
                continue;
            Move(moved, *rows[from], *steps);
            target > place ? std::rotate(place, place + 1, target) : std::rotate(target, place, place + 1);
            EXPECT_EQ(moved.inserts.pages(), expected);
        }
    }
}

TEST_F(SpecialPagesTest, PageTextsBecomePagesOrAreRefused)
{
    std::vector<Insert> inserts;
    EXPECT_EQ(MakeInserts(MakeInsert(1, 3), kAfterPage, u"3-5, 0"_s, inserts), noErr);
    EXPECT_EQ(MakeInserts(MakeInsert(1), kBeforePage1, u"no pages at all"_s, inserts), noErr);
    EXPECT_EQ(MakeInserts(MakeInsert(1), kAfterPage, u"1-, 1-, 1-"_s, inserts), kTooManyPages);
    std::vector<SInt32> starts;
    for (const Insert& insert : inserts)
        starts.push_back(insert.startPage());
    EXPECT_EQ(starts, (std::vector<SInt32>{3, 4, 5, 0, 0}));
    EXPECT_EQ(inserts[1].quantity(), 3);

    addExceptions({MakeException(10, 20), MakeException(30, 30)});
    const SpecialPage* edited = set.exceptions.pages()[0];
    struct {
        const char* text;
        const SpecialPage* edited;
        OSStatus status;
    } const cases[] = {
        {"3-5, 9", nullptr, noErr},
        {"20", nullptr, kPageRangeConflict},
        {"1-9, 21-29, 31-", nullptr, noErr},
        {"21-30", nullptr, kPageRangeConflict},
        {"5-40", nullptr, kPageRangeConflict},
        {"9-20", edited, noErr},
        {"9-30", edited, kPageRangeConflict},
        {"1-3, 5, 3", nullptr, kPageRangeConflict},
        {"0-3", nullptr, kInvalidPageNumbers},
        {"7-3", nullptr, kInvalidRangeOrder},
        {"100000", nullptr, kPageNumberAboveLimit},
        {" , ", nullptr, kInvalidPageRanges},
        {"1-99999, 1, 1", nullptr, kTooManyPages},
    };
    for (const auto& one : cases) {
        std::vector<ExceptionPage> made;
        EXPECT_EQ(MakeExceptions(MakeException(0, 0), QString::fromLatin1(one.text), set.exceptions, one.edited, made),
                  one.status)
            << one.text;
        EXPECT_EQ(made.empty(), one.status != noErr);
    }
}

TEST_F(SpecialPagesTest, EachRefusalHasItsWords)
{
    const test::RecordingNotices notices;
    for (const OSStatus code : {kPageNumberAboveLimit, kPageRangeConflict, OSStatus{7}, kTooManyPages})
        SpecialPagesUserNotification(code, bundle);
    for (const OSStatus code : {kInvalidPageNumbers, kTooManyPages, kMoreThanJobCarries})
        ShowRefusal(code, bundle);
    EXPECT_EQ(notices.titles,
              (QStringList{u"Page Number Limit Title"_s, u"PageRangeConflictTitle"_s, u"Invalid Page Numbers Title"_s,
                           u"Too Many Pages Title"_s, u"Too Many Special Pages Title"_s}));
    EXPECT_EQ(notices.messages[0], u"Page Number Limit 5"_s);
}

TEST_F(SpecialPagesTest, WhatAJobCantCarryChangesNothing)
{
    addInserts({MakeInsert(2)});
    QStringList calls;
    EditorCalls panel{.saveUndoState = [&] { calls << u"undo"_s; },
                      .rebuildList = [&] { calls << u"list"_s; },
                      .canCarry = [&](const SpecialPageList& changed) { return changed.count() < 3; }};
    const std::vector<Insert> two{MakeInsert(4), MakeInsert(1)};
    EXPECT_EQ(PlacePages(set.inserts, nullptr, PointersTo(two), panel), kMoreThanJobCarries);
    EXPECT_TRUE(calls.isEmpty());
    EXPECT_EQ(rows(), QStringList{u"2 Insert"_s});
    EXPECT_EQ(PlacePages(set.inserts, set.inserts.pages()[0], PointersTo(two), panel), noErr);
    EXPECT_EQ(calls, (QStringList{u"undo"_s, u"list"_s}));
    EXPECT_EQ(rows(), (QStringList{u"1 Insert"_s, u"4 Insert"_s}));
}

TEST_F(SpecialPagesTest, CoversAreWhatTheOptionSays)
{
    Covers covers;
    EXPECT_EQ(CoverOptionOf(covers), kNoCovers);
    ApplyCoverOption(covers, kBackCoverOnly, 1, 5);
    EXPECT_EQ(CoverOptionOf(covers), kBackCoverOnly);
    EXPECT_EQ(covers.back->stock().source(), 5) << "the back cover's own tray";
    ApplyCoverOption(covers, kSameCovers, 1, 5);
    EXPECT_EQ(CoverOptionOf(covers), kSameCovers);
    EXPECT_EQ(covers.back->stock().source(), 1);
    covers.back->stock().setColor(kStockColorRed);
    EXPECT_EQ(CoverOptionOf(covers), kDifferentCovers);
    FollowFront(covers, kDifferentCovers);
    EXPECT_EQ(covers.back->stock().color(), kStockColorRed);

    Cover& cover = *covers.front;
    cover.stock().setSize(kStockSizeLetter);
    SetSidesImaged(cover, kCoverPrintedFront);
    EXPECT_EQ(cover.stock().size(), kUnset);
    EXPECT_FALSE(CanChooseSize(cover));
    EXPECT_EQ(CoverSidesPicture(&cover), u"SpclPgs_CoversPrinting-FrontSide.gif"_s);
    EXPECT_EQ(CoverSidesPicture(nullptr), u"SpclPgs_CoversPrinting-Blank.gif"_s);

    SetTray(cover, kAutomaticTray);
    EXPECT_EQ(cover.stock().source(), kAutomaticTray);
    cover.stock().setColor(kStockColorBlue);
    SetTray(cover, 3);
    EXPECT_EQ(TrayOf(cover), 3);
    SetTray(cover, kAutomaticTray);
    EXPECT_EQ(cover.stock().source(), kUnset) << "the chosen paper counts";
    EXPECT_EQ(TrayOf(cover), kAutomaticTray);
    EXPECT_TRUE(IsCoverOptionOffered(kSameCovers, true) && !IsCoverOptionOffered(kFrontCoverOnly, true));
}

TEST_F(SpecialPagesTest, KeptCoversStayTheSameObjects)
{
    CoverSlot front = MakeCover(), back;
    const Cover* object = front.get();
    Covers edited = CloneOf(front, back);
    ApplyCoverOption(edited, kSameCovers, 0, 0);
    edited.front->setSidesImaged(4);
    KeepCovers(std::move(edited), front, back);
    EXPECT_EQ(front.get(), object);
    EXPECT_EQ(front->sidesImaged(), 4);
    EXPECT_TRUE(back);
    KeepCovers({}, front, back);
    EXPECT_FALSE(front || back);
}

TEST_F(SpecialPagesTest, TheTicketComesBackAndIsLeftEmpty)
{
    addInserts({MakeInsert(3, 2), MakeInsert(0)});
    addExceptions({MakeException(5, 9, 2)});
    set.frontCover = MakeCover(4, kStockColorGoldenrod);
    EXPECT_EQ(WriteTicket(set, settings), noErr);
    SpecialPageSet other;
    EXPECT_TRUE(ReadTicket(other, settings));
    Ticket again;
    WriteTicket(other, again);
    EXPECT_EQ(again.values(), settings.values());
    RemoveAll(set);
    WriteTicket(set, settings);
    EXPECT_EQ(settings.values().count(), 0U) << "no empty lists";
    EXPECT_TRUE(ReadTicket(other, settings));
    EXPECT_TRUE(IsEmpty(other));
}

TEST_F(SpecialPagesTest, ABookletHasOneCoverForBothSides)
{
    set.frontCover = MakeCover(kCoverBlank, kStockColorRed);
    set.backCover = MakeCover(kCoverBlank, kStockColorBlue);
    WriteTicket(set, settings);
    setBooklet(true);
    EXPECT_TRUE(ReadTicket(set, settings));
    EXPECT_EQ(set.backCover->stock().color(), kStockColorRed);
    const Cover* back = set.backCover.get();
    WriteTicket(set, settings);
    EXPECT_FALSE(settings.values().find(key::SpecialPagesBackCover));
    EXPECT_FALSE(ReadTicket(set, settings));
    setBooklet(false);
    EXPECT_FALSE(ReadTicket(set, settings));
    EXPECT_EQ(set.backCover.get(), back);
    WriteTicket(set, settings);
    EXPECT_TRUE(settings.values().find(key::SpecialPagesBackCover));
    settings.remove("com.kesta.print", key::SpecialPagesBackCover);
    EXPECT_TRUE(ReadTicket(set, settings)) << "now it is gone indeed";
    EXPECT_FALSE(set.backCover);
}

TEST_F(SpecialPagesTest, DamagedTicketsGiveWhatCanBeRead)
{
    const auto page = [](SInt32 start) {
        Dictionary dictionary;
        WriteTicketValue(dictionary, "StartPage", start);
        return dictionary;
    };
    Dictionary reversed = page(9);
    WriteTicketValue(reversed, "EndPage", 2);
    Dictionary cover{{"Stock", "a text"}, {"SidesImaged", "four"}};
    settings.set("x", key::SpecialPagesFrontCover, cover);
    settings.set("x", key::SpecialPagesBackCover, Array());
    settings.set("x", key::SpecialPagesInsertList, "a text");
    settings.set("x", key::SpecialPagesExceptionList, Array{reversed, "a text", page(9), page(-5), Dictionary()});
    EXPECT_TRUE(ReadTicket(set, settings));
    EXPECT_EQ(rows(), (QStringList{u"SpecialPageSummaryFront Cover"_s, u"Page Range In List -5 -1 Exception"_s,
                                   u"0 Exception"_s, u"9 Exception"_s}));
    Array many(100'000, page(4));
    settings.set("x", key::SpecialPagesInsertList, std::move(many));
    EXPECT_TRUE(ReadTicket(set, settings));
    EXPECT_EQ(set.inserts.count(), 100'000U);
    Remove(set, set.inserts.pages());
    EXPECT_EQ(set.inserts.count(), 0U);
}

TEST_F(SpecialPagesTest, AnImageShiftKeepsItsUnitsAndIsSummedUp)
{
    _IS_Options options;
    EXPECT_EQ(ImageShiftSummary(bundle, options), u"Shift Off"_s);
    EXPECT_EQ(ShiftSettingsOf(options, SizeUnits::Millimetres).units, SizeUnits::Millimetres);
    ShiftSettings shift{.isOn = true, .areAlike = false, .units = SizeUnits::Inches, .side1 = {5, 0}, .side2 = {-5, 2}};
    ApplyShiftSettings(shift, options);
    EXPECT_EQ(options.option, 1);
    EXPECT_EQ(ShiftSettingsOf(options, SizeUnits::Millimetres), shift);
    EXPECT_EQ(ImageShiftSummary(bundle, options),
              u"- Shift Of Side 1 Shift Right Shift In Inches 0.5\n"
              "- Shift Of Side 2 Shift Left Shift In Inches 0.5, Shift Up Shift In Inches 0.2"_s);
    SwitchShiftUnits(shift, SizeUnits::Millimetres);
    EXPECT_EQ(shift.side1, (ShiftOfSide{13, 0}));
    shift.areAlike = true;
    FollowSide1(shift);
    ApplyShiftSettings(shift, options);
    EXPECT_EQ(ImageShiftSummary(bundle, options), u"- Shift Of Both Sides Shift Right Shift In Millimeters 13"_s);
    shift.isOn = false;
    ApplyShiftSettings(shift, options);
    EXPECT_EQ(options.option, kUnset);
    EXPECT_EQ(ShiftedPrint(QRectF(0, 0, 10, 10), {10, 5}, SizeUnits::Inches, 8).topLeft(), QPointF(16, -8));
}

} // namespace
} // namespace kesta::special_pages
