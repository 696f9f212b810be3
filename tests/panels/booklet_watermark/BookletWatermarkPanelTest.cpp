#include "panels/booklet_watermark/BookletWatermarkPanel.h"

#include "panels/PanelFixture.h"
#include "panels/booklet_watermark/OwnStore.h"
#include "panels/booklet_watermark/watermark/WatermarkEditor.h"
#include "panels/booklet_watermark/watermark/WatermarkStore.h"
#include "pde/interface/TicketKeys.h"
#include "pde/menus/MenuUtilities.h"
#include "printer/FinishingKinds.h"

#include <QDir>
#include <QImage>
#include <QPixmap>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace kesta::booklet_watermark {
namespace {

using test::ModalUser;
using test::Pick;
using test::PickCommand;
using test::Press;

class BookletWatermarkPanelTest : public test::PanelTest {
protected:
    BookletWatermarkPanelTest() : PanelTest(GetBookletWatermarkPanelInterface, kSignature, test::BundleWithAllTexts())
    {
        pane.resize(600, 500);
    }
    ~BookletWatermarkPanelTest() override { previousSelection() = 0; }

    PopupButton* watermarks() { return popup(kWatermarkPopup); }
    QString chosen() { return watermarks()->text(); }
    QString textOf(Control number) { return control(number)->property("text").toString(); }
    bool isShown(Control number) { return control(number)->isVisibleTo(&pane); }
    // As it is seen, and what comes right after.
    QImage look()
    {
        const QImage picture = control(kPreview)->grab().toImage();
        QCoreApplication::processEvents();
        return picture;
    }
    // In the editor: types the text and presses OK.
    static void write(ModalUser& user, const QString& text)
    {
        user.then([text](QWidget& window) {
            auto& field = *FindTextField(&window, {editor::kSignature, editor::kTextField});
            field.clear();
            test::TypeInto(field, text);
        });
        user.then([](QWidget& window) { Press(window, kCommandOK); });
    }

    test::OwnStore store;
    test::AnsweringNotices notices;
};

TEST_F(BookletWatermarkPanelTest, WhatTheUserPicksReachesTheTicketAndComesBack)
{
    open();
    EXPECT_FALSE(popup(kBordersPopup)->isEnabled());
    EXPECT_TRUE(Pick(popup(kLayoutPopup), kBookletLayoutOn));
    EXPECT_EQ(ticket.values().boolean(key::BookletLayout), true) << "at once";
    EXPECT_TRUE(Pick(popup(kBordersPopup), kDrawPageBorders));
    EXPECT_EQ(picture(kIllustration), u"BookletCreation_Booklet-Outlines.gif"_s);
    EXPECT_TRUE(PickCommand(watermarks(), kSavedWatermarkCommand));
    EXPECT_TRUE(watermarks()->chooseItem(6, 3)) << "in the submenu of the options";
    EXPECT_TRUE(watermarks()->chooseItem(6, 6));
    EXPECT_EQ(textOf(kLayerHint), u"Watermark On Page 1 WatermarkForeground"_s);
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(*ticket.values().string(key::WatermarkName), u"DraftWatermark"_s);
    EXPECT_TRUE(ticket.values().string(key::WatermarkSubsetFontName)->startsWith(u"KS-"_s));
    const Dictionary written = ticket.values(), choices = ticket.ppdDict();
    ASSERT_EQ(sync(true), noErr);
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(ticket.values(), written) << "read back and written the same";
    EXPECT_EQ(ticket.ppdDict(), choices);

    EXPECT_TRUE(Pick(popup(kLayoutPopup), kBookletLayoutOff));
    EXPECT_TRUE(PickCommand(watermarks(), kNoWatermarkCommand));
    EXPECT_EQ(textOf(kLayerHint), QString());
    ticket.set(kPrintingManagerClient, key::BookletLayout, true);
    ASSERT_EQ(sync(true), noErr);
    EXPECT_EQ(GetPopupButtonTicketValue(popup(kLayoutPopup)), kBookletLayoutOn);
    EXPECT_EQ(GetPopupButtonTicketValue(popup(kBordersPopup)), kDrawPageBorders);
    EXPECT_EQ(chosen(), u"DraftWatermark"_s);
    EXPECT_EQ(textOf(kLayerHint), u"Watermark On Page 1 WatermarkForeground"_s);
}

TEST_F(BookletWatermarkPanelTest, ALockSaysWhyAndLeavesTheBookletWritten)
{
    ticket.set(kPrintingManagerClient, key::BookletLayout, true);
    open();
    EXPECT_FALSE(isShown(kLockRow));
    PPDSetCurrentChoice(ticket, OptionOf(Finishing::Staple), "DualLandscape");
    ASSERT_EQ(sync(true), noErr);
    EXPECT_FALSE(popup(kLayoutPopup)->isEnabled());
    EXPECT_EQ(textOf(kLockReason), u"Booklet Locked By Staple"_s);
    EXPECT_FALSE(isShown(kSpecialPagesLink)) << "they are not the reason";
    ticket.set(kPrintingManagerClient, key::SpecialPagesInsertList, Array{Dictionary()});
    ASSERT_EQ(sync(true), noErr);
    EXPECT_EQ(textOf(kLockReason), u"Booklet Locked By Pages List Of One Locking Inserts"_s);
    EXPECT_TRUE(isShown(kSpecialPagesLink));
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(ReadTicketValue(ticket, key::FinishingDuplex), 3);
}

TEST_F(BookletWatermarkPanelTest, BeforeItIsOpenedItHoldsTheWatermarkAlone)
{
    ticket.set(kPrintingManagerClient, key::WatermarkName, "COPYWATERMARK");
    ASSERT_EQ(initialize(), noErr);
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(*ticket.values().string(key::WatermarkName), u"CopyWatermark"_s);
    EXPECT_FALSE(ticket.values().find(key::BookletLayout));
}

TEST_F(BookletWatermarkPanelTest, OutOfSightItTakesTheLayoutThatAnotherPanelHasChosen)
{
    open();
    EXPECT_TRUE(Pick(popup(kLayoutPopup), kBookletLayoutOn));
    ticket.set(kPrintingManagerClient, key::BookletLayout, false);
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(ticket.values().boolean(key::BookletLayout), false);

    pane.show();
    EXPECT_TRUE(Pick(popup(kLayoutPopup), kBookletLayoutOn));
    ticket.set(kPrintingManagerClient, key::BookletLayout, false); // written by a panel that knew of nothing
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(ticket.values().boolean(key::BookletLayout), true);
}

TEST_F(BookletWatermarkPanelTest, ThePreviewShowsTheWatermarkAndSaysWhatIsDifferent)
{
    open();
    const QImage blank = look();
    EXPECT_TRUE(PickCommand(watermarks(), kSavedWatermarkCommand));
    EXPECT_NE(look(), blank);
    EXPECT_TRUE(textOf(kNote).startsWith(u"Font Substituted ArialMT "_s)) << textOf(kNote).toStdString();
    EXPECT_TRUE(isShown(kNoteRow));
    EXPECT_TRUE(PickCommand(watermarks(), kNoWatermarkCommand));
    EXPECT_EQ(look(), blank);
    EXPECT_FALSE(isShown(kNoteRow));

    pageFormat.set("host", key::PMOrientation, Number::Index(2));
    ASSERT_EQ(sync(true), noErr);
    EXPECT_NE(look(), blank) << "the page lies now";

    ticket.set(kPrintingManagerClient, key::WatermarkName, "<b>Secret</b>");
    ASSERT_EQ(sync(true), noErr);
    EXPECT_EQ(textOf(kNote), u"Watermark Not Here <b>Secret</b>"_s);
    EXPECT_EQ(control(kNote)->property("textFormat").toInt(), Qt::PlainText) << "a name is no markup";
}

TEST_F(BookletWatermarkPanelTest, NewWatermarksJoinTheMenuAndASecondOfANameAsksFirst)
{
    open();
    ModalUser user;
    user.then([](QWidget& window) {
        EXPECT_FALSE(GetWindowDefaultButton(window)->isEnabled()) << "nothing to print yet";
        Press(window, kCommandCancel);
    });
    EXPECT_TRUE(PickCommand(watermarks(), kNewCommand));
    EXPECT_EQ(chosen(), u"NoWatermark"_s);

    write(user, u"Secret"_s);
    EXPECT_TRUE(PickCommand(watermarks(), kNewCommand));
    EXPECT_EQ(chosen(), u"Secret"_s);
    EXPECT_EQ(watermarks()->value(), 5) << "before the line";
    EXPECT_EQ(loadWatermarkList(kWatermarkFile)->last(), u"Secret"_s);
    ASSERT_EQ(sync(false), noErr);
    EXPECT_EQ(*ticket.values().string(key::WatermarkName), u"Secret"_s);

    notices.answer = 1;
    write(user, u"DraftWatermark"_s);
    user.then([](QWidget& window) { Press(window, kCommandCancel); });
    EXPECT_TRUE(PickCommand(watermarks(), kEditCommand));
    EXPECT_EQ(notices.titles, QStringList{u"Replace Watermark Header"_s});
    EXPECT_EQ(chosen(), u"Secret"_s) << "no left the editor open, and cancel all as it was";

    notices.answer = 0;
    write(user, u"WatermarkListEntries"_s);
    user.then([](QWidget& window) { Press(window, kCommandCancel); });
    EXPECT_TRUE(PickCommand(watermarks(), kEditCommand));
    EXPECT_EQ(notices.messages.last(), u"Watermark Name Reserved WatermarkListEntries"_s);

    write(user, u"DraftWatermark"_s);
    EXPECT_TRUE(PickCommand(watermarks(), kEditCommand));
    EXPECT_EQ(chosen(), u"DraftWatermark"_s);
    EXPECT_EQ(listOfWatermarks().join(u' '), u"ConfidentialWatermark CopyWatermark DraftWatermark"_s);
}

TEST_F(BookletWatermarkPanelTest, DeletingAsksAndTheFontGoesWithItsLastWatermark)
{
    open();
    saveWatermarkList(kWatermarkFile, QStringList{u"DraftWatermark"_s});
    removeWatermarkData(kWatermarkFile, u"CopyWatermark");
    removeWatermarkData(kWatermarkFile, u"ConfidentialWatermark");
    EXPECT_TRUE(PickCommand(watermarks(), kSavedWatermarkCommand));
    ASSERT_EQ(sync(false), noErr);
    const QString font = *ticket.values().string(key::WatermarkSubsetFontName);
    const auto hasFont = [&] {
        QByteArray program;
        loadFontData(kWatermarkFile, font, program);
        return !program.isEmpty();
    };
    ASSERT_TRUE(hasFont());
    notices.answer = 1;
    EXPECT_TRUE(PickCommand(watermarks(), kDeleteCommand));
    EXPECT_EQ(notices.messages, QStringList{u"Delete Watermark Message DraftWatermark"_s});
    EXPECT_EQ(chosen(), u"DraftWatermark"_s);
    notices.answer = 0;
    EXPECT_TRUE(PickCommand(watermarks(), kDeleteCommand));
    EXPECT_EQ(chosen(), u"NoWatermark"_s);
    EXPECT_TRUE(loadWatermarkList(kWatermarkFile)->isEmpty());
    EXPECT_FALSE(hasFont());
    EXPECT_FALSE(PickCommand(watermarks(), kDeleteCommand)) << "nothing is left to delete";
}

TEST_F(BookletWatermarkPanelTest, AWatermarkThatSomebodyElseRemovedLeavesTheMenuWithAWord)
{
    open();
    removeWatermarkData(kWatermarkFile, u"DraftWatermark");
    EXPECT_TRUE(PickCommand(watermarks(), kSavedWatermarkCommand));
    EXPECT_EQ(notices.messages, QStringList{u"Watermark Gone Message DraftWatermark"_s});
    EXPECT_EQ(chosen(), u"NoWatermark"_s);
    EXPECT_TRUE(PickCommand(watermarks(), kSavedWatermarkCommand));
    EXPECT_EQ(chosen(), u"ConfidentialWatermark"_s);

    removeWatermarkData(kWatermarkFile, u"ConfidentialWatermark");
    EXPECT_TRUE(watermarks()->chooseItem(5, 1)) << "its layer";
    EXPECT_EQ(notices.messages.last(), u"Watermark Gone Message ConfidentialWatermark"_s);
    EXPECT_EQ(chosen(), u"NoWatermark"_s);
}

TEST_F(BookletWatermarkPanelTest, WithoutTheStoreEachUseOfAWatermarkSaysThatItIsGone)
{
    open();
    EXPECT_TRUE(QDir(store.folder.path()).removeRecursively());
    EXPECT_TRUE(PickCommand(watermarks(), kSavedWatermarkCommand));
    look();
    EXPECT_EQ(textOf(kNote), u"Watermark Not Here DraftWatermark"_s);
    ASSERT_EQ(sync(false), noErr);
    EXPECT_FALSE(ticket.values().find(key::WatermarkSubsetFontName));
    EXPECT_TRUE(PickCommand(watermarks(), kEditCommand));
    EXPECT_EQ(notices.messages, QStringList{u"Watermark Gone Message DraftWatermark"_s});
    EXPECT_EQ(chosen(), u"NoWatermark"_s);
    EXPECT_EQ(watermarks()->menu().items[1].title, u"ConfidentialWatermark"_s);
}

TEST_F(BookletWatermarkPanelTest, OnesOwnWatermarksAreOfferedWhenThePanelIsFirstSeen)
{
    qputenv("XDG_DATA_HOME", QFile::encodeName(store.folder.path()));
    qputenv("KESTA_DATA_ROOT", "/nowhere");
    _WatermarkData own;
    own.text.set(u"Mine"_s);
    own.isText = 1;
    saveWatermarkData(kWatermarkFile, own);
    saveWatermarkList(kWatermarkFile, QStringList{u"Mine"_s});
    qputenv("KESTA_DATA_ROOT", QFile::encodeName(store.folder.path()));
    open();
    EXPECT_TRUE(notices.titles.isEmpty());
    look();
    EXPECT_EQ(notices.messages, QStringList{u"Own Watermarks Message Mine"_s});
    EXPECT_EQ(watermarks()->menu().items[4].title, u"Mine"_s);
    EXPECT_EQ(chosen(), u"NoWatermark"_s);
    EXPECT_TRUE(PickCommand(watermarks(), kSavedWatermarkCommand));
    look();
    EXPECT_EQ(notices.titles.size(), 1) << "once";
    qunsetenv("XDG_DATA_HOME");
}

// A window would find nobody to answer it.
TEST_F(BookletWatermarkPanelTest, TheArrowKeysOpenNoWindow)
{
    open();
    ModalUser nobody;
    for (int step = 0; step < 12; ++step) {
        QKeyEvent down(QEvent::KeyPress, Qt::Key_End, {});
        QCoreApplication::sendEvent(watermarks(), &down);
        QKeyEvent next(QEvent::KeyPress, Qt::Key_Down, {});
        QCoreApplication::sendEvent(watermarks(), &next);
    }
    EXPECT_TRUE(notices.titles.isEmpty());
    EXPECT_FALSE(chosen().endsWith(u"..."_s)) << chosen().toStdString();
}

} // namespace
} // namespace kesta::booklet_watermark
