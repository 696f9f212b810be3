#include "model/ImageShift.h"
#include "panels/special_pages/paper/AdvancedStockDialog.h"
#include "panels/special_pages/paper/CustomStockSizeDialog.h"
#include "panels/special_pages/paper/PreCutTabStockSetup.h"
#include "panels/special_pages/paper/SeparatorsDialog.h"
#include "panels/special_pages/paper/StockDescriptionSetup.h"
#include "panels/special_pages/paper/StockTypeSetupDialog.h"
#include "panels/special_pages/paper/TabStockRules.h"
#include "pde/forms/DialogCommands.h"
#include "pde/menus/MenuUtilities.h"
#include "support/CurrentPrinter.h"
#include "support/Recorders.h"
#include "support/TestTexts.h"
#include "support/User.h"
#include "toolkit/controls/PictureView.h"
#include "toolkit/controls/SpinField.h"
#include "toolkit/controls/TextInput.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPixmap>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

using test::ModalUser;
using test::Press;

// The dialogs on the product's printer, in a country of its choice.
class PaperDialogsTest : public testing::Test {
protected:
    PaperDialogsTest()
    {
        bundle.info.set(kCFBundleHelpBookName, "Help");
        bundle.info.set("CFBundleHelpBookFolder", "Help");
        gCurrentUnits = SizeUnits::NotChosen;
        QLocale::setDefault(QLocale(u"en_US"_s));
    }
    ~PaperDialogsTest() override { QLocale::setDefault(QLocale::c()); }

    static SpinField& spin(QWidget& window, FourCharCode signature, SInt32 number)
    {
        return *FindControlAs<SpinField>(&window, {signature, number});
    }
    static PopupButton* popup(QWidget& window, FourCharCode signature, SInt32 number)
    {
        return FindPopupButton(&window, {signature, number});
    }
    static QStringList pictures(QWidget& window, ControlID id)
    {
        return FindControlAs<PictureView>(&window, id)->pictures();
    }

    const test::CurrentPrinter printer;
    Bundle bundle = test::BundleWithAllTexts();
    const test::RecordingNotices notices;
    const test::RecordingHelp help;
    ModalUser user;
    ModalResult result{};
    Stock stock;
};

class CustomSizeDialogTest : public PaperDialogsTest {
protected:
    static SpinField& width(QWidget& window) { return spin(window, customsize::kSignature, customsize::kWidthField); }
    static SpinField& length(QWidget& window) { return spin(window, customsize::kSignature, customsize::kLengthField); }
    static PopupButton* units(QWidget& window)
    {
        return popup(window, customsize::kSignature, customsize::kUnitsPopup);
    }
    void run() { EXPECT_EQ(RunModalCustomStockSizeDialog(bundle, result, size), noErr); }

    PaperSize size;
};

TEST_F(CustomSizeDialogTest, StartsFromTheCountrysUsualSize)
{
    user.then([](QWidget& window) { Press(window, kCommandOK); });
    run();
    EXPECT_EQ(result, ModalResult::OK);
    EXPECT_EQ(size, (PaperSize{21590, 27940}));

    gCurrentUnits = SizeUnits::NotChosen;
    size = {};
    QLocale::setDefault(QLocale(u"de_DE"_s));
    user.then([](QWidget& window) {
        EXPECT_EQ(width(window).text(), u"210,0"_s);
        EXPECT_EQ(length(window).number(), 2970);
        Press(window, kCommandHelp);
        Press(window, kCommandCancel);
    });
    run();
    EXPECT_EQ(result, ModalResult::Cancel);
    EXPECT_EQ(size, PaperSize{}) << "OK alone changes it";
    EXPECT_TRUE(help.files.value(0).endsWith(u"Paper_Output/Paper/idh_other_paper_type.htm"_s));
}

TEST_F(CustomSizeDialogTest, TheUnitsChosenAreThoseOfTheNextDialog)
{
    user.then([](QWidget& window) {
        EXPECT_TRUE(test::Pick(units(window), 2));
        EXPECT_EQ(width(window).number(), 2159);
        EXPECT_EQ(length(window).number(), 2794);
        Press(window, kCommandOK);
    });
    run();
    EXPECT_EQ(size, (PaperSize{21590, 27940}));
    size = {21000, 29700};
    user.then([](QWidget& window) {
        EXPECT_EQ(GetPopupButtonTicketValue(units(window)), 2);
        EXPECT_TRUE(test::Pick(units(window), 1));
        EXPECT_TRUE(test::Pick(units(window), 2));
        EXPECT_EQ(width(window).number(), 2100) << "there and back";
        Press(window, kCommandDefaults);
        EXPECT_EQ(GetPopupButtonTicketValue(units(window)), 1);
        EXPECT_EQ(length(window).number(), 1100);
        Press(window, kCommandCancel);
    });
    run();
    EXPECT_EQ(size, (PaperSize{21000, 29700}));
    EXPECT_EQ(gCurrentUnits, SizeUnits::Inches) << "also of a cancelled one";
}

TEST_F(CustomSizeDialogTest, ASizeOutsideTheLimitsIsRefusedAndCorrected)
{
    user.then([](QWidget& window) {
        width(window).selectAll();
        TypeIntoField(width(window).findChild<QLineEdit*>(), u"20"_s);
        length(window).setNumber(100);
        Press(window, kCommandOK);
    });
    user.then([this](QWidget& window) {
        EXPECT_EQ(notices.titles.size(), 1);
        EXPECT_EQ(width(window).number(), 1300);
        EXPECT_EQ(length(window).number(), 388);
        length(window).stepBy(-1);
        width(window).stepBy(3);
        EXPECT_EQ(length(window).number(), 388);
        EXPECT_EQ(width(window).number(), 1300);
        length(window).findChild<QLineEdit*>()->clear();
        Press(window, kCommandOK);
    });
    user.then([this](QWidget& window) {
        EXPECT_EQ(notices.titles.size(), 2) << "an empty field is none of the sizes";
        EXPECT_TRUE(length(window).hasAcceptableInput());
        length(window).setNumber(388);
        Press(window, kCommandOK);
    });
    run();
    EXPECT_EQ(size, (PaperSize{33020, 9855}));
}

TEST_F(CustomSizeDialogTest, ThePreviewIsTheSheet)
{
    user.then([](QWidget& window) {
        QWidget* preview = FindControl(&window, {customsize::kSignature, customsize::kPreview});
        preview->resize(144, 144);
        const QImage image = preview->grab().toImage();
        const QRect paper = PreviewRect(image.size(), 850, 1100, 1900);
        EXPECT_EQ(image.pixelColor(paper.center()), QColor(Qt::white));
        EXPECT_EQ(image.pixelColor(paper.topLeft()), QColor(Qt::black));
        EXPECT_EQ(image.pixelColor(paper.bottomRight()), QColor(Qt::black));
        EXPECT_NE(image.pixelColor(paper.topLeft() - QPoint(1, 1)), QColor(Qt::black));
        Press(window, kCommandCancel);
    });
    run();
}

TEST_F(PaperDialogsTest, TheDescriptionIsTheUsersWithinItsLength)
{
    using namespace stockdescription;
    stock.setDescription(u"before"_s);
    user.then([](QWidget& window) {
        QLineEdit* field = FindTextField(&window, {kSignature, kDescriptionField});
        EXPECT_EQ(field->text(), u"before"_s);
        field->selectAll();
        for (const QString& text : {QString(256, u'x'), QString(255, u'y')})
            TypeIntoField(field, text);
        Press(window, kCommandHelp);
        Press(window, kCommandOK);
    });
    EXPECT_EQ(RunModalStockDescriptionSetup(bundle, DialogMode::Edit, JobContext::Job, stock, result), noErr);
    EXPECT_EQ(stock.description(), QString(255, u'y'));
    EXPECT_TRUE(help.files.value(0).endsWith(u"paper_output/paper/db_new_edit_named_paper_d.htm"_s));

    user.then([](QWidget& window) {
        EXPECT_EQ(FieldText(FindTextField(&window, {kSignature, kDescriptionField})), QString());
        Press(window, kCommandCancel);
    });
    RunModalStockDescriptionSetup(bundle, DialogMode::Add, JobContext::Job, stock, result);
    EXPECT_EQ(stock.description(), QString(255, u'y'));
}

TEST_F(PaperDialogsTest, PrecutTabsComeInThreesUntilOKSaysOtherwise)
{
    const auto tabsAfter = [&](FourCharCode command, std::optional<SInt32> typed = {}) {
        user.then([=](QWidget& window) {
            if (typed)
                spin(window, precuttab::kSignature, precuttab::kSequenceField).setNumber(*typed);
            Press(window, command);
        });
        RunModalPreCutTabStockSetup(bundle, DialogMode::Add, JobContext::Insert, stock, result);
        return stock.modulus();
    };
    EXPECT_EQ(tabsAfter(kCommandCancel, 5), kUnset);
    EXPECT_EQ(tabsAfter(kCommandOK), 3);
    EXPECT_EQ(tabsAfter(kCommandOK, 254), 254);

    user.then([](QWidget& window) {
        SpinField& field = spin(window, precuttab::kSignature, precuttab::kSequenceField);
        for (const QString& unusable : {u"0"_s, QString(), u"255"_s}) {
            field.selectAll();
            field.findChild<QLineEdit*>()->insert(unusable);
            EXPECT_FALSE(GetWindowDefaultButton(window)->isEnabled()) << unusable.toStdString();
        }
        field.stepBy(1);
        EXPECT_EQ(field.number(), 254);
        EXPECT_TRUE(GetWindowDefaultButton(window)->isEnabled());
        Press(window, kCommandCancel);
    });
    RunModalPreCutTabStockSetup(bundle, DialogMode::Add, JobContext::Insert, stock, result);
}

class TabStockDialogTest : public PaperDialogsTest {
protected:
    static PopupButton* shiftPopup(QWidget& window)
    {
        return popup(window, tabstock::kSignature, tabstock::kShiftPopup);
    }
    static PopupButton* units(QWidget& window) { return popup(window, tabstock::kSignature, tabstock::kUnitsPopup); }
    static QString text(QWidget& window, SInt32 number)
    {
        return qobject_cast<QLabel*>(FindControl(&window, {tabstock::kSignature, number}))->text();
    }
    static SpinField& shiftField(QWidget& window) { return spin(window, tabstock::kSignature, tabstock::kShiftField); }
    void run() { EXPECT_EQ(RunModalTabStockSetupDialog(bundle, stock, shift, result), noErr); }

    _IS_Options shift;
};

TEST_F(TabStockDialogTest, OKTakesTheTemplateAndCancelNothing)
{
    QLocale::setDefault(QLocale(u"de_DE"_s));
    user.then([](QWidget& window) {
        EXPECT_TRUE(test::Pick(shiftPopup(window), kTabShiftA4Template));
        EXPECT_FALSE(shiftField(window).isEnabled());
        spin(window, tabstock::kSignature, tabstock::kSequenceField).setNumber(7);
        Press(window, kCommandOK);
    });
    run();
    const _IS_Options template13{.option = 1, .inches = false, .X1 = 13};
    EXPECT_EQ(shift, template13);
    EXPECT_EQ(stock.modulus(), 7);
    user.then([](QWidget& window) {
        EXPECT_TRUE(test::Pick(shiftPopup(window), kTabShiftNone));
        Press(window, kCommandHelp);
        Press(window, kCommandCancel);
    });
    run();
    EXPECT_EQ(shift, template13);
    EXPECT_TRUE(help.files.value(0).endsWith(u"M_Tab_Mrgin_Shift_Setup.htm"_s));
}

TEST_F(TabStockDialogTest, ACustomShiftIsShownInTheUnitsChosen)
{
    shift.option = 1;
    shift.inches = false;
    shift.X1 = 20;
    user.then([](QWidget& window) {
        EXPECT_EQ(GetPopupButtonTicketValue(shiftPopup(window)), kTabShiftCustom);
        EXPECT_EQ(shiftField(window).text(), u"0.8"_s);
        EXPECT_TRUE(shiftField(window).isEnabled() && units(window)->isEnabled());
        EXPECT_EQ(text(window, tabstock::kShiftLimits), u"Min-Max Inches -1.5 1.5"_s);
        shiftField(window).setNumber(15);
        shiftField(window).stepBy(1);
        EXPECT_TRUE(test::Pick(units(window), 2));
        EXPECT_EQ(shiftField(window).text(), u"38"_s);
        EXPECT_EQ(text(window, tabstock::kShiftLimits), u"Min-Max Millimeters -38 38"_s);
        shiftField(window).setNumber(30);
        Press(window, kCommandOK);
    });
    run();
    EXPECT_EQ(shift, (_IS_Options{.option = 1, .inches = false, .X1 = 30}));
}

TEST_F(TabStockDialogTest, AShiftBeyondTheLimitsIsShownAndHoldsOKBack)
{
    shift = {.option = 1, .inches = false, .X1 = 60};
    user.then([](QWidget& window) {
        const QPushButton& ok = *GetWindowDefaultButton(window);
        EXPECT_EQ(shiftField(window).text(), u"2.4"_s);
        EXPECT_TRUE(shiftField(window).property("invalid").toBool());
        EXPECT_FALSE(ok.isEnabled());
        EXPECT_TRUE(test::Pick(shiftPopup(window), kTabShiftLetterTemplate));
        EXPECT_TRUE(ok.isEnabled()) << "the field does not count";
        EXPECT_FALSE(shiftField(window).property("invalid").toBool());
        EXPECT_TRUE(test::Pick(shiftPopup(window), kTabShiftCustom));
        auto* typed = shiftField(window).findChild<QLineEdit*>();
        for (const auto& [text, isUsable] : {std::pair(u"2"_s, false), {u"-"_s, false}, {u"1.2"_s, true}}) {
            typed->selectAll();
            TypeIntoField(typed, text);
            EXPECT_EQ(ok.isEnabled(), isUsable) << text.toStdString();
            EXPECT_NE(shiftField(window).property("invalid").toBool(), isUsable) << text.toStdString();
            test::Pick(units(window), 2);
            test::Pick(units(window), 1);
            EXPECT_EQ(ok.isEnabled(), isUsable) << "there and back";
        }
        Press(window, kCommandOK);
    });
    run();
    EXPECT_EQ(shift.X1, 30);
}

TEST_F(TabStockDialogTest, NoneSaysThatItEndsTheWholeShift)
{
    const auto says = [](QWidget& window) {
        return !FindControl(&window, {tabstock::kSignature, tabstock::kShiftEndsHint})->isHidden();
    };
    user.then([&](QWidget& window) {
        EXPECT_FALSE(says(window)) << "there is none";
        Press(window, kCommandCancel);
    });
    run();
    shift = {.option = 1, .inches = false, .X1 = 13, .Y2 = 4};
    user.then([&](QWidget& window) {
        EXPECT_FALSE(says(window));
        EXPECT_TRUE(test::Pick(shiftPopup(window), kTabShiftNone));
        EXPECT_TRUE(says(window));
        Press(window, kCommandOK);
    });
    run();
    EXPECT_EQ(shift.option, kUnset);
}

TEST_F(PaperDialogsTest, SeparatorsEndWithTheDefaultsAndCancelChangesNothing)
{
    using namespace separators;
    SInt32 option = kSeparatorsPrinted;
    stock.setColor(kStockColorGreen);
    const auto press = [&](FourCharCode end) {
        user.then([=](QWidget& window) {
            Press(window, kCommandDefaults);
            EXPECT_FALSE(popup(window, kSignature, kColorPopup)->isEnabled());
            Press(window, kCommandHelp);
            Press(window, end);
        });
        EXPECT_EQ(RunModalSeparatorsDialog(bundle, option, stock, result), noErr);
        return option;
    };
    EXPECT_EQ(press(kCommandCancel), kSeparatorsPrinted);
    EXPECT_TRUE(help.files.value(0).endsWith(u"idh_transparency_separator_options.htm"_s));
    EXPECT_EQ(press(kCommandOK), kSeparatorsNone);
    EXPECT_EQ(stock.color(), kStockColorGreen) << "no separators, no colour";
}

class AdvancedStockDialogTest : public PaperDialogsTest {
protected:
    static PopupButton* choice(QWidget& window, SInt32 number)
    {
        return popup(window, advancedstock::kSignature, number);
    }
    void run() { EXPECT_EQ(RunModalAdvancedStockDialog(bundle, JobContext::Insert, stock, result), noErr); }
};

TEST_F(AdvancedStockDialogTest, OKTakesEveryField)
{
    using namespace advancedstock;
    stock.setColor(kUnset);
    user.then([](QWidget& window) {
        for (const SInt32 number : {kSizePopup, kColorPopup, kTypePopup, kPunchedPopup})
            EXPECT_EQ(GetPopupButtonTicketValue(choice(window, number)), kUnset);
        test::Pick(choice(window, kSizePopup), kStockSizeA4);
        test::Pick(choice(window, kTypePopup), kStockTypeTransparency);
        EXPECT_EQ(GetPopupButtonTicketValue(choice(window, kColorPopup)), kStockColorClear);
        test::Pick(choice(window, kPunchedPopup), kStockPunched);
        EXPECT_EQ(pictures(window, {kSignature, kIcon}),
                  QStringList({u"Paper_Plain-Clear.gif"_s, u"Paper_Overlay-HolePunched.gif"_s}));
        SpinField& weight = spin(window, kSignature, kWeightField);
        weight.selectAll();
        TypeIntoField(weight.findChild<QLineEdit*>(), u"120"_s);
        FindTextField(&window, {kSignature, kDescriptionField})->setText(u"for slides"_s);
        Press(window, kCommandOK);
    });
    run();
    Stock expected;
    expected.setSize(kStockSizeA4);
    expected.setType(kStockTypeTransparency);
    expected.setPunched(kStockPunched);
    expected.setWeight(120);
    expected.setDescription(u"for slides"_s);
    EXPECT_EQ(stock, expected);
}

TEST_F(AdvancedStockDialogTest, CancelLeavesAllAndWhatNoMenuHasIsKept)
{
    using namespace advancedstock;
    stock.setType(kStockTypeOrdered);
    stock.setWeight(10'000);
    const Stock before = stock;
    user.then([](QWidget& window) {
        test::Pick(choice(window, kColorPopup), kStockColorRed);
        Press(window, kCommandCancel);
    });
    run();
    EXPECT_EQ(stock, before);
    user.then([](QWidget& window) {
        EXPECT_EQ(GetPopupButtonTicketValue(choice(window, kTypePopup)), kStockTypeOrdered);
        Press(window, kCommandOK);
    });
    run();
    EXPECT_EQ(stock, before);
}

TEST_F(AdvancedStockDialogTest, WhatNoMenuHasIsNamed)
{
    using namespace advancedstock;
    stock = Stock(Dictionary{{"Size", Number::Index(9999)},
                             {"Type", Number::Index(kStockTypeOrdered)},
                             {"CustomType", "Dividers"},
                             {"Modulus", Number::Index(5)},
                             {"Color", Number::Index(kStockColorText)},
                             {"CustomColor", "teal"},
                             {"Punched", Number::Index(7)},
                             {"Weight", Number::Index(10'000)}});
    const Stock before = stock;
    user.then([](QWidget& window) {
        const auto shown = [&](SInt32 number) { return choice(window, number)->text(); };
        EXPECT_EQ(shown(kSizePopup), u"Unknown Setting 9999"_s);
        EXPECT_EQ(shown(kTypePopup), u"Dividers (5)"_s);
        EXPECT_EQ(shown(kColorPopup), u"teal"_s);
        EXPECT_EQ(shown(kPunchedPopup), u"Unknown Setting 7"_s);
        EXPECT_EQ(spin(window, kSignature, kWeightField).number(), 10'000);
        const int items = choice(window, kColorPopup)->menu().count();
        EXPECT_FALSE(choice(window, kColorPopup)->chooseItem(1)) << "not anew";
        EXPECT_TRUE(test::Pick(choice(window, kPunchedPopup), kStockPunched));
        EXPECT_TRUE(test::Pick(choice(window, kPunchedPopup), kUnset));
        EXPECT_EQ(choice(window, kPunchedPopup)->menu().count(), 3);
        EXPECT_EQ(choice(window, kColorPopup)->menu().count(), items);
        Press(window, kCommandOK);
    });
    run();
    EXPECT_EQ(stock.color(), before.color());
    EXPECT_EQ(stock.customType(), before.customType());
    EXPECT_EQ(stock.size(), before.size());
}

TEST_F(AdvancedStockDialogTest, ACustomSizeIsAskedForInItsOwnDialog)
{
    using namespace advancedstock;
    stock.setSize(kStockSizeA4);
    user.then([](QWidget& window) {
        test::Pick(choice(window, kSizePopup), kStockSizeCustom);
        EXPECT_EQ(GetPopupButtonTicketValue(choice(window, kSizePopup)), kStockSizeA4) << "cancelled";
        test::Pick(choice(window, kSizePopup), kStockSizeCustom);
        Press(window, kCommandOK);
    });
    user.then([](QWidget& window) { Press(window, kCommandCancel); });
    user.then([](QWidget& window) { Press(window, kCommandOK); });
    run();
    EXPECT_EQ(stock.size(), kStockSizeCustom);
    EXPECT_EQ(stock.width(), 21590);
    EXPECT_EQ(stock.length(), 27940);
}

TEST_F(PaperDialogsTest, WithoutTheirWindowsNothingHappens)
{
    const Bundle nowhere{.resourcesPath = u"/nowhere"_s, .strings = {}};
    constexpr JobContext kJob = JobContext::Job;
    _IS_Options shift;
    PaperSize size;
    SInt32 option = kSeparatorsBlank;
    for (const OSStatus status : {RunModalCustomStockSizeDialog(nowhere, result, size),
                                  RunModalStockDescriptionSetup(nowhere, DialogMode::Add, kJob, stock, result),
                                  RunModalPreCutTabStockSetup(nowhere, DialogMode::Add, kJob, stock, result),
                                  RunModalTabStockSetupDialog(nowhere, stock, shift, result),
                                  RunModalSeparatorsDialog(nowhere, option, stock, result),
                                  RunModalAdvancedStockDialog(nowhere, kJob, stock, result)})
        EXPECT_EQ(status, kInterfaceFileUnreadable);
}

} // namespace
} // namespace kesta
