#include "pde/forms/ViewUtilities.h"
#include "pde/menus/LocalizationUtilities.h"
#include "pde/menus/MenuUtilities.h"
#include "platform/system/UserPreferences.h"
#include "product/Westmarch2.h"
#include "support/Accessories.h"
#include "support/TestTexts.h"
#include "toolkit/controls/TabControl.h"
#include "toolkit/windows/InterfaceFile.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

QStringList TitlesOf(const PopupButton& popup)
{
    QStringList titles;
    for (const MenuItem& item : popup.menu().items)
        titles << item.title;
    return titles;
}

TEST(PopupButtons, TheMaximumCountsTheRowsThatAreLeftOut)
{
    const Bundle bundle = test::BundleWithTexts({"Normal Print"});
    const test::WithFeatures fitted({u"JobStorage"_s});
    PopupButton popup;
    EXPECT_EQ(PopulatePopupButtonFromMap(bundle, &popup, _JobTypeMap, JobContext::Job), 6);
    EXPECT_EQ(popup.menu().count(), 5);
    EXPECT_EQ(popup.maximum(), 6);
    PopulatePopupButtonFromMap(bundle, &popup, _PlexMap, JobContext::Job);
    EXPECT_EQ(popup.menu().count(), 3) << "refilled";
    EXPECT_EQ(PopulatePopupButtonFromMap(bundle, nullptr, _PlexMap, JobContext::Job), 0);
}

TEST(PopupButtons, AValueThatNoItemStandsForKeepsTheSelection)
{
    PopupButton popup;
    EXPECT_EQ(GetPopupButtonTicketValue(&popup), 0);
    EXPECT_FALSE(SetPopupButtonToTicketValue(nullptr, 1));
    PopulatePopupButtonFromMap(Bundle(), &popup, _PlexMap, JobContext::Job);
    EXPECT_TRUE(SetPopupButtonToTicketValue(&popup, 3));
    EXPECT_FALSE(SetPopupButtonToTicketValue(&popup, 4));
    EXPECT_EQ(GetPopupButtonTicketValue(&popup), 3);
}

class HistoryMenuTest : public testing::Test {
protected:
    HistoryMenuTest() { qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit()); }
    ~HistoryMenuTest() override { qunsetenv("XDG_CONFIG_HOME"); }
    int fill(const HistoryItems& history)
    {
        return PopulatePopupButtonFromMapAndHistory(bundle, &popup, _PlexMap, JobContext::Job, history, "Row "_code);
    }

    QTemporaryDir folder;
    const Bundle bundle = test::BundleWithTexts({"Simplex", "Duplex", "DuplexShort"});
    PopupButton popup;
};

TEST_F(HistoryMenuTest, EarlierTextsComeAfterTheGivenItem)
{
    ASSERT_TRUE(WriteUserPreferences(kInputHistoryFile,
                                     {{"names", Array{"newest", "older", Number::Index(5)}}, {"broken", "no array"}}));
    EXPECT_EQ(fill({.key = "names", .insertAfter = 1, .command = "Hist"_code}), 5);
    EXPECT_EQ(TitlesOf(popup), (QStringList{u"Simplex"_s, u"newest"_s, u"older"_s, u"Duplex"_s, u"DuplexShort"_s}));
    EXPECT_EQ(popup.maximum(), 5);
    EXPECT_EQ(popup.menu().items[2].command, "Hist"_code);
    EXPECT_EQ(popup.menu().items[3].command, "Row "_code);

    fill({.key = "names", .insertAfter = 99});
    EXPECT_EQ(TitlesOf(popup).last(), u"older") << "at the end";
    fill({.key = "names", .insertAfter = 0});
    EXPECT_EQ(TitlesOf(popup).first(), u"newest");
    EXPECT_EQ(fill({.key = "broken"}), 3);
    EXPECT_EQ(fill({.key = "unknown"}), 3);
    EXPECT_EQ(fill({}), 3);
}

TEST(LocalizedTexts, AreSetWithTheirArgumentsOrNotAtAll)
{
    Bundle bundle;
    bundle.strings.set("Localizable", Dictionary{{"range", "%2 down to %1"}});
    QLabel label;
    QPushButton button;
    Menu menu{.items = {{.title = u"a"_s}, {.title = u"b"_s}}};
    SetLocalizedStaticText(bundle, "range", &label, {u"1"_s, u"9"_s});
    SetLocalizedControlTitle(bundle, "unknown", &button);
    SetLocalizedWindowTitle(bundle, "range", &label, {u"1"_s, u"2"_s});
    SetLocalizedMenuTitle(bundle, "range", &menu, 2, {u"3"_s, u"4"_s});
    SetLocalizedMenuTitle(bundle, "range", &menu, 3);
    SetLocalizedMenuTitle(bundle, "range", &menu, 0);
    EXPECT_EQ(label.text(), u"9 down to 1");
    EXPECT_EQ(button.text(), u"STRING NOT FOUND");
    EXPECT_EQ(label.windowTitle(), u"2 down to 1");
    EXPECT_EQ(menu.items[0].title, u"a");
    EXPECT_EQ(menu.items[1].title, u"4 down to 3");

    SetLocalizedStaticText(bundle, {}, &label);
    SetLocalizedStaticText(bundle, "range", nullptr);
    EXPECT_EQ(label.text(), u"9 down to 1");
}

TEST(Views, TheTabsPaneAloneIsShown)
{
    QWidget window;
    TabControl tabs(&window);
    tabs.setTitles({u"a"_s, u"b"_s});
    QWidget first(&window), second(&window);
    QWidget* const panes[] = {&first, &second, nullptr};
    tabs.setValue(2);
    UpdateTabControl(&tabs, panes);
    EXPECT_TRUE(first.isHidden());
    EXPECT_FALSE(first.isEnabled());
    EXPECT_FALSE(second.isHidden());
    UpdateTabControl(nullptr, panes);
    EXPECT_FALSE(second.isHidden());
}

TEST(Views, AViewIsUnpackedBelowWhatIsThere)
{
    QWidget target;
    QWidget window;
    int offset = 10;
    for (const SInt32 number : {1, 2}) {
        auto* view = new QWidget(&window);
        SetControlID(*view, {"View"_code, number});
        auto* button = new QPushButton(QString::number(number));
        button->setFixedHeight(20);
        auto* layout = new QVBoxLayout(view);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(button);
    }
    AppendViewFromWindowAndUnpack(target, window, {"View"_code, 2}, offset);
    AppendViewFromWindowAndUnpack(target, window, {"View"_code, 1}, offset);
    AppendViewFromWindowAndUnpack(target, window, {"View"_code, 3}, offset);
    EXPECT_EQ(offset, 50);
    const auto buttons = target.findChildren<QPushButton*>();
    ASSERT_EQ(buttons.size(), 2);
    target.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(buttons[0]->text(), u"2");
    EXPECT_LT(buttons[0]->mapTo(&target, QPoint()).y(), buttons[1]->mapTo(&target, QPoint()).y());
}

TEST(Views, ASummaryNeedsAText)
{
    QLabel label(u"before"_s);
    EXPECT_EQ(UpdateSummaryTextView(&label, QString()), kMissingArgument);
    EXPECT_EQ(label.text(), u"before");
    EXPECT_EQ(UpdateSummaryTextView(&label, u""_s), noErr);
    EXPECT_EQ(label.text(), u"");
    const QString whole = QString(5000, u'x') + u'.';
    EXPECT_EQ(UpdateSummaryTextView(&label, whole), noErr);
    EXPECT_EQ(label.text(), whole);
}

} // namespace
} // namespace kesta
