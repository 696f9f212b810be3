#include "toolkit/windows/WindowSummary.h"

#include "support/TestTexts.h"
#include "toolkit/controls/MenuButton.h"
#include "toolkit/controls/PopupButton.h"
#include "toolkit/controls/SliderField.h"
#include "toolkit/controls/SpinField.h"
#include "toolkit/controls/SummaryTextView.h"

#include <gtest/gtest.h>

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

TEST(WindowSummary, TellsWhatIsNotTheDefaultInItsOrder)
{
    QWidget window;
    auto* panel = new QWidget(&window);
    auto* view = new SummaryTextView(panel);
    auto* holes = new PopupButton(panel);
    auto* sides = new PopupButton(panel);
    for (PopupButton* popup : {holes, sides})
        popup->setMenu({.items = {{.title = u"None"_s, .value = 5}, {.title = u"Two"_s, .value = 7}}});
    ShowInSummary(holes, 4, 5);
    ShowInSummary(sides, 3, 5);
    ShowInSummary(view, 4, u"- No staples\n- No fold\n"_s);
    ShowInSummary(static_cast<PopupButton*>(nullptr), 2, 5);

    view->setText(u"- No staples\n- Folded\nKind: own"_s);
    EXPECT_EQ(WindowSummary(window), (QStringList{u"Folded, Kind: own"_s}));
    holes->setValue(2);
    sides->setValue(2);
    EXPECT_EQ(WindowSummary(window), (QStringList{u"Two"_s, u"Folded, Kind: own, Two"_s}));
    holes->hide();
    panel->hide(); // another one is in front
    ShowInSummary(sides, 3, 5, u"sides: %1"_s);
    EXPECT_EQ(WindowSummary(window), (QStringList{u"sides: Two"_s, u"Folded, Kind: own"_s}));
    ShowInSummary(sides, 3, 5, u"turned"_s);
    EXPECT_EQ(WindowSummary(window).front(), u"turned"_s);
    ShowInSummary(sides, 3, 5, u"%1"_s);
    EXPECT_EQ(WindowSummary(window), (QStringList{u"Two"_s, u"Folded, Kind: own"_s}));
}

TEST(WindowSummary, NamesWhatIsNotOffered)
{
    QWidget window;
    auto* popup = new PopupButton(&window);
    popup->setMenu({.items = {{.title = u"None"_s, .value = 5}, {.title = u"Two"_s, .value = 7}}}, 4);
    popup->setAccessibleName(u"Holes"_s);
    ShowInSummary(popup, 1, 9);
    popup->showExtra({.title = u"Nine"_s, .value = 9});
    EXPECT_EQ(WindowSummary(window), QStringList()) << "a way of saying the default";
    popup->showExtra({.title = u"Nine, not here"_s, .value = 9, .notOffered = true, .instead = 2});
    EXPECT_EQ(popup->menu().count(), 3);
    EXPECT_EQ(popup->maximum(), 4);
    EXPECT_EQ(WindowSummary(window), QStringList(WithCaution(u"Nine, not here"_s)));
    ASSERT_EQ(FindNotOffered(window).size(), 1U);
    EXPECT_EQ(FindNotOffered(window).front().label, u"Holes"_s);
    EXPECT_EQ(FindNotOffered(window).front().instead, u"Two"_s);
    EXPECT_FALSE(popup->chooseItem(3));
    popup->hide();
    EXPECT_EQ(WindowSummary(window).size(), 1) << "in the job it is all the same";

    popup->setEnabled(false); // another panel is in front
    ReplaceNotOffered(window);
    EXPECT_EQ(popup->selectedItem()->value, 7);
    EXPECT_EQ(popup->menu().count(), 2) << "it can't be chosen anew";
    EXPECT_TRUE(FindNotOffered(window).empty());
}

TEST(WindowSummary, NamesNumbersBeyondTheLimitsAndItemsOfSubmenus)
{
    QWidget window;
    auto* slider = new SliderField(&window);
    slider->setMaximum(100);
    slider->setAccessibleName(u"Lightness"_s);
    slider->nameParts();
    slider->setNumber(250);
    auto* paper = new MenuButton(&window);
    const MenuItem teal{.title = u"Teal, not here"_s, .value = 2, .checked = true, .notOffered = true, .instead = 1};
    const MenuItem white{.title = u"White"_s, .command = "Sclr"_code, .value = 1};
    paper->setMenu({.items = {{.title = u"Size"_s}, {.title = u"Color"_s, .submenu = {white, teal}}}});
    paper->setAccessibleName(u"Paper"_s);
    EXPECT_EQ(WindowSummary(window), (QStringList{WithCaution(u"Lightness 250"_s), WithCaution(u"Teal, not here"_s)}));

    const std::vector<NotOffered> found = FindNotOffered(window);
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].label + found[0].shown + found[0].instead, u"PaperTeal, not hereWhite"_s);
    EXPECT_EQ(found[1].label + found[1].shown + found[1].instead, u"Lightness250100"_s);
    SInt32 lightness = 0, color = 0;
    const EventHandler moved = InstallEventHandler(*slider, [&](const HitEvent& hit) {
        lightness = hit.value;
        return EventResult::Handled;
    });
    const EventHandler chosen = InstallEventHandler(*paper, [&](const CommandEvent& command) {
        color = command.ticketValue;
        return EventResult::Handled;
    });
    ReplaceNotOffered(window);
    EXPECT_EQ(lightness, 100);
    EXPECT_EQ(slider->field().text(), u"100"_s);
    EXPECT_EQ(color, 1);
}

TEST(WindowSummary, TellsOfAMenuOnceWhatASummaryTellsToo)
{
    QWidget window;
    auto* view = new SummaryTextView(&window);
    auto* menu = new MenuButton(&window);
    const auto item = [](const QString& title) {
        return MenuItem{.title = title, .checked = true, .notOffered = true};
    };
    menu->setMenu({.items = {item(u"Holes"_s), item(u"Fold"_s)}});
    ShowInSummary(view, 4, QString());
    view->setText(u"- "_s + WithCaution(u"Holes"_s));
    EXPECT_EQ(WindowSummary(window), (QStringList{WithCaution(u"Holes"_s), WithCaution(u"Fold"_s)}));
}

TEST(SummaryTextView, KeepsRoomForItsUsualLines)
{
    QWidget panel;
    auto* column = new QVBoxLayout(&panel);
    auto* row = new QHBoxLayout;
    auto* view = new SummaryTextView;
    column->addLayout(row);
    column->addStretch();
    row->addWidget(view);
    view->setLines(3);
    view->setText(u"- one"_s);
    panel.resize(200, 400);
    panel.show();
    EXPECT_GE(view->height(), 3 * view->fontMetrics().height());
}

} // namespace
} // namespace kesta
