#include "panels/advanced/AboutDialog.h"
#include "panels/advanced/AdvancedPanel.h"
#include "panels/booklet_watermark/booklet/BookletDialog.h"
#include "panels/color_options/ColorOptionsPanel.h"
#include "panels/image_options/ImageOptionsPanel.h"
#include "panels/paper_output/JobTypeSetups.h"
#include "panels/paper_output/PaperOutputPanel.h"
#include "panels/special_pages/SpecialPagesPanel.h"
#include "panels/special_pages/editors/CoversHandler.h"
#include "panels/special_pages/editors/ExceptionsHandler.h"
#include "panels/special_pages/editors/ImageShiftDialog.h"
#include "panels/special_pages/editors/InsertsHandler.h"
#include "panels/special_pages/paper/AdvancedStockDialog.h"
#include "panels/special_pages/paper/CustomStockSizeDialog.h"
#include "panels/special_pages/paper/PreCutTabStockSetup.h"
#include "panels/special_pages/paper/SeparatorsDialog.h"
#include "panels/special_pages/paper/StockDescriptionSetup.h"
#include "panels/special_pages/paper/StockTypeSetupDialog.h"
#include "pde/shell/PDEShell.h"
#include "platform/plugins/Bundle.h"
#include "support/TestTexts.h"
#include "toolkit/controls/PopupButton.h"
#include "toolkit/controls/SliderField.h"
#include "toolkit/windows/InterfaceFile.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QDirIterator>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QXmlStreamReader>

#include <memory>
#include <set>

using namespace Qt::StringLiterals;

// What holds for every interface file below resources/, and what the code asks of each.
namespace kesta {
namespace {

struct ExpectedControls {
    const char* interfaceFile;
    const char* window;
    FourCharCode signature;
    std::vector<SInt32> numbers;
};

const std::vector<SInt32> kBookletFolds{booklet::kFoldLabel, booklet::kFoldNoneRadio, booklet::kFoldRadio,
                                        booklet::kFoldAndStapleRadio};
const std::vector<SInt32> kBookletLayout{booklet::kLayoutOffRadio, booklet::kLayoutOnRadio, booklet::kDrawOutlinesBox,
                                         booklet::kNewSizeLabel,   booklet::kNewSizePopup,  booklet::kGutterLabel,
                                         booklet::kGutterField,    booklet::kGutterRange,   booklet::kCreepLabel,
                                         booklet::kCreepField,     booklet::kCreepRange,    booklet::kIllustration};

std::vector<SInt32> CoverControls(SInt32 column)
{
    std::vector<SInt32> numbers{editors::kJobPicture, editors::kJobSummary, editors::kDefaultsButton,
                                covers::kOptionPicture, covers::kOptionPopup};
    for (const covers::Control number :
         {covers::kColumn, covers::kSidesPicture, covers::kSidesPopup, covers::kPaperPicture, covers::kPaperButton,
          covers::kPaperSummary, covers::kTrayPopup, covers::kTrayHint})
        numbers.push_back(number + column);
    return numbers;
}

// A panel or dialog that comes adds its line.
const ExpectedControls kExpectedControls[] = {
    {"PDE_Shell",
     "Window",
     shell::kSignature,
     {shell::kShellPane, shell::kPanelFrame, shell::kPanelArea, shell::kPanelChoice, shell::kPreviousButton,
      shell::kNextButton}},
    {"AdvancedPanel",
     "Advanced",
     advanced::kSignature,
     {advanced::kBookletOrderPopup, advanced::kOutputOptionsPopup, advanced::kBannerPopup,
      advanced::kRequestOffsetLabel, advanced::kRequestOffsetPopup, advanced::kMirrorPopup,
      advanced::kOptimizationPopup, advanced::kAboutButton, advanced::kWebLinksButton}},
    {"Paper_Output",
     "Panel",
     paper_output::kSignature,
     {paper_output::kJobTypeView,      paper_output::kPaperView,        paper_output::kTwoSidedView,
      paper_output::kStaplingView,     paper_output::kPunchView,        paper_output::kOfficeFinishingRow,
      paper_output::kFinishingView,    paper_output::kDestinationView,  paper_output::kQualityView,
      paper_output::kJobTypePicture,   paper_output::kJobTypePopup,     paper_output::kJobTypeSetupButton,
      paper_output::kPaperPicture,     paper_output::kPaperSummary,     paper_output::kStockMenuButton,
      paper_output::kTwoSidedPicture,  paper_output::kTwoSidedLabel,    paper_output::kTwoSidedPopup,
      paper_output::kStaplePicture,    paper_output::kStaplePopup,      paper_output::kPunchPicture,
      paper_output::kPunchPopup,       paper_output::kFinishingPicture, paper_output::kFinishingMenuButton,
      paper_output::kFinishingSummary, paper_output::kDestinationLabel, paper_output::kDestinationPopup,
      paper_output::kQualityPicture,   paper_output::kQualityPopup}},
    {"SpecialPages",
     "SpecialPages",
     special_pages::kSignature,
     {special_pages::kList, special_pages::kAddCoversButton, special_pages::kAddInsertsButton,
      special_pages::kAddExceptionsButton, special_pages::kEditButton, special_pages::kDeleteButton,
      special_pages::kDeleteAllButton, special_pages::kUndoButton, special_pages::kMoveUpButton,
      special_pages::kMoveDownButton, special_pages::kHint}},
    {"SpecialPages", "Covers", covers::kSignature, CoverControls(0)},
    {"SpecialPages", "Covers", covers::kSignature, CoverControls(covers::kBack)},
    {"SpecialPages",
     "Inserts",
     inserts::kSignature,
     {editors::kPageLabel, editors::kPageField, editors::kPageHint, editors::kPaperPicture, editors::kPaperSummary,
      editors::kPaperButton, editors::kJobPicture, editors::kJobSummary, editors::kDefaultsButton,
      inserts::kOptionPicture, inserts::kOptionPopup, inserts::kQuantityField, inserts::kQuantityHint}},
    {"SpecialPages",
     "Office Exceptions",
     exceptions::kSignature,
     {editors::kPageLabel, editors::kPageField, editors::kPageHint, editors::kPaperPicture, editors::kPaperSummary,
      editors::kPaperButton, editors::kJobPicture, editors::kJobSummary, editors::kDefaultsButton, exceptions::kTabs,
      exceptions::kPaperPane, exceptions::kImagePane, exceptions::kTwoSidedPicture, exceptions::kTwoSidedPopup,
      exceptions::kShiftPicture, exceptions::kShiftSummary, exceptions::kShiftButton}},
    {"SpecialPages",
     "ImageShift",
     imageshift::kSignature,
     {imageshift::kScene, imageshift::kShiftCheckBox, imageshift::kAlikeCheckBox, imageshift::kHorizontalLabel,
      imageshift::kVerticalLabel, imageshift::kSide1Label, imageshift::kSide2Label, imageshift::kHorizontal1,
      imageshift::kVertical1, imageshift::kHorizontal2, imageshift::kVertical2, imageshift::kLimits,
      imageshift::kDirections, imageshift::kUnitsLabel, imageshift::kUnitsPopup, imageshift::kSceneSide1,
      imageshift::kSceneSide2}},
    {"About",
     "About",
     about::kSignature,
     {about::kPicture, about::kVersionText, about::kModelText, about::kAccessoriesText}},
    {"StockDescriptionSetup",
     "StockDescriptionSetup",
     stockdescription::kSignature,
     {stockdescription::kDescriptionField, stockdescription::kIcon}},
    {"CustomStockSizeDialog",
     "CustomStockSize",
     customsize::kSignature,
     {customsize::kWidthField, customsize::kWidthLimits, customsize::kLengthField, customsize::kLengthLimits,
      customsize::kUnitsPopup, customsize::kPreview, customsize::kDefaultsButton}},
    {"PreCutTabStockSetup",
     "PreCutTabStockSetup",
     precuttab::kSignature,
     {precuttab::kSequenceField, precuttab::kSequenceLimits, precuttab::kPicture}},
    {"StockTypeSetupDialog",
     "TabStockSetup",
     tabstock::kSignature,
     {tabstock::kSequenceField, tabstock::kSequenceLimits, tabstock::kShiftPopup, tabstock::kShiftLabel,
      tabstock::kShiftField, tabstock::kUnitsPopup, tabstock::kSequencePicture, tabstock::kShiftPicture}},
    {"SeparatorsDialog",
     "Separators",
     separators::kSignature,
     {separators::kOptionPopup, separators::kColorLabel, separators::kColorPopup, separators::kPicture,
      separators::kDefaultsButton}},
    {"AdvancedStockDialog",
     "AdvancedStock",
     advancedstock::kSignature,
     {advancedstock::kSizePopup, advancedstock::kColorPopup, advancedstock::kTypePopup, advancedstock::kPunchedPopup,
      advancedstock::kWeightField, advancedstock::kDescriptionField, advancedstock::kIcon}},
    {"ImageOptionsPanel",
     "Panel",
     image_options::kSignature,
     {image_options::kQualityPopup, image_options::kQualityIllustration, image_options::kMirrorCheckBox,
      image_options::kInvertIllustration}},
    {"Utilities", "CustomValue", "Util"_code, {1}},
    {"SecurePrint",
     "SecurePrint",
     jobtypes::kSecurePrintSignature,
     {jobtypes::kPasscodeLabel, jobtypes::kPasscodeField, jobtypes::kPasscodeLimits, jobtypes::kConfirmationLabel,
      jobtypes::kConfirmationField, jobtypes::kConfirmationLimits}},
    {"DelayedPrint", "DelayedPrint", jobtypes::kDelayedPrintSignature, {jobtypes::kTimeField}},
    {"SavedJob",
     "withPasscode",
     jobtypes::kSavedJobSignature,
     {jobtypes::kPasscodeLabel, jobtypes::kPasscodeField, jobtypes::kPasscodeLimits, jobtypes::kConfirmationLabel,
      jobtypes::kConfirmationField, jobtypes::kConfirmationLimits, jobtypes::kSaveRadio, jobtypes::kSavePrintRadio,
      jobtypes::kJobNameBox, jobtypes::kFolderBox, jobtypes::kSecureCheckBox, jobtypes::kFormatPicture}},
    {"BookletCreation", "BookletFinishingOptions", booklet::kSignature, kBookletFolds},
    {"BookletCreation", "BookletFinishingOptions", booklet::kSignature, kBookletLayout},
    {"BookletCreation", "BookletOptions", booklet::kSignature, kBookletLayout},
    {"BookletCreation", "BookletCreation", booklet::kSignature, kBookletFolds},
    {"BookletCreation", "BookletCreation", booklet::kSignature, kBookletLayout},
};

QByteArray ContentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The English texts of a catalogue's source, by table.
Dictionary TextsOf(const QString& catalogue)
{
    Dictionary tables;
    QXmlStreamReader xml(ContentOf(catalogue));
    QString table, key;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"name") {
            table = xml.readElementText();
            tables.set(table, Dictionary());
        } else if (xml.name() == u"source") {
            key = xml.readElementText();
        } else if (xml.name() == u"translation") {
            tables.dictionary(table)->set(key, xml.readElementText(QXmlStreamReader::IncludeChildElements));
        }
    }
    EXPECT_FALSE(xml.hasError()) << catalogue.toStdString() << ": " << xml.errorString().toStdString();
    return tables;
}

// A bundle of the resources with its English texts.
Bundle BundleOf(const QString& folder)
{
    const QString name = QFileInfo(folder).fileName();
    return {.resourcesPath = folder, .strings = TextsOf(u"%1/translations/%2_en.ts"_s.arg(folder, name))};
}

QStringList InterfaceFiles()
{
    QStringList files;
    for (QDirIterator all(QStringLiteral(TEST_RESOURCES "/.."), {u"*.ui"_s}, QDir::Files, QDirIterator::Subdirectories);
         all.hasNext();)
        files << QFileInfo(all.next()).canonicalFilePath();
    return files;
}

bool IsInput(const QWidget& widget)
{
    const bool isPartOfAnother = qobject_cast<const QDialogButtonBox*>(widget.parentWidget()) ||
                                 qobject_cast<const QComboBox*>(widget.parentWidget()) ||
                                 qobject_cast<const QAbstractSpinBox*>(widget.parentWidget()) ||
                                 qobject_cast<const QAbstractItemView*>(widget.parentWidget()) ||
                                 qobject_cast<const QTabBar*>(widget.parentWidget());
    return !isPartOfAnother &&
           (qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QLineEdit*>(&widget) ||
            qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QAbstractSpinBox*>(&widget) ||
            qobject_cast<const QAbstractItemView*>(&widget) || qobject_cast<const QPlainTextEdit*>(&widget));
}

class InterfaceFileTest : public testing::TestWithParam<QString> {
protected:
    // .../<bundle>/<interface file>/<window>.ui
    QFileInfo window{GetParam()};
    QFileInfo interfaceFile{window.path()};
    const Bundle bundle = BundleOf(interfaceFile.path());
    const std::unique_ptr<QWidget> root =
        CreateWindowFromNib(bundle, interfaceFile.fileName(), window.completeBaseName());

    // As it opens.
    void show()
    {
        EqualizeTrailingWidths(*root);
        root->show();
        QCoreApplication::sendPostedEvents();
    }
};

TEST_P(InterfaceFileTest, KeepsToTheSpacings)
{
    const std::set<int> scale{0, 4, 8, 12, 16, 24};
    const std::set<QString> spacings{u"spacing"_s, u"horizontalSpacing"_s, u"verticalSpacing"_s};
    QXmlStreamReader xml(ContentOf(GetParam()));
    int looked = 0;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != u"property")
            continue;
        const QString name = xml.attributes().value(u"name"_s).toString();
        if (!name.endsWith(u"Margin") && !spacings.contains(name))
            continue;
        xml.readNextStartElement();
        const int value = xml.readElementText().toInt();
        EXPECT_TRUE(scale.contains(value)) << name.toStdString() << ' ' << value << " in line " << xml.lineNumber();
        ++looked;
    }
    EXPECT_FALSE(xml.hasError());
    EXPECT_GT(looked, 0) << "spacings are said, not left to the style";
}

TEST_P(InterfaceFileTest, HasAllItsTexts)
{
    ASSERT_TRUE(root);
    QList<QWidget*> widgets = root->findChildren<QWidget*>();
    widgets.push_front(root.get());
    const QString missing = QString::fromLatin1(kStringNotFound);
    for (const QWidget* widget : widgets) {
        const auto* label = qobject_cast<const QLabel*>(widget);
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        const QString text = label ? label->text() : button ? button->text() : QString();
        for (const QString& shown : {text, widget->toolTip(), widget->accessibleName(), widget->windowTitle()})
            EXPECT_NE(shown, missing) << widget->objectName().toStdString() << " ("
                                      << widget->property("localizableKey").toString().toStdString() << ')';
    }
}

TEST_P(InterfaceFileTest, NamesEveryInputAndLetsTheKeyboardReachIt)
{
    ASSERT_TRUE(root);
    std::set<const QWidget*> reached;
    for (const QWidget* widget = root->nextInFocusChain(); widget != root.get(); widget = widget->nextInFocusChain())
        reached.insert(widget);
    for (const QWidget* widget : root->findChildren<QWidget*>()) {
        if (!IsInput(*widget) || widget->window() != root.get()) // lists of combo boxes are windows of their own
            continue;
        const std::string name = widget->objectName().toStdString() + ' ' + widget->metaObject()->className();
        EXPECT_FALSE(ControlName(*widget).isEmpty()) << name;
        EXPECT_TRUE(widget->focusPolicy() & Qt::TabFocus) << name;
        EXPECT_TRUE(reached.contains(widget)) << name;
    }
}

QRect PlaceOf(const QWidget& widget)
{
    return {widget.mapTo(widget.window(), QPoint()), widget.size()};
}

TEST_P(InterfaceFileTest, FocusGoesInReadingOrder)
{
    ASSERT_TRUE(root);
    show();
    const QWidget* previous = nullptr;
    for (const QWidget* widget = root->nextInFocusChain(); widget != root.get(); widget = widget->nextInFocusChain()) {
        if (!IsInput(*widget) || widget->window() != root.get() || !widget->isVisible()) // a pane behind another
            continue;
        if (previous) {
            const QRect before = PlaceOf(*previous), here = PlaceOf(*widget);
            EXPECT_TRUE(here.top() > before.bottom() || here.left() > before.right())
                << widget->objectName().toStdString() << " after " << previous->objectName().toStdString();
        }
        previous = widget;
    }
}

// Every text half as long again, in a large font: what a label or button asks for, it gets.
TEST_P(InterfaceFileTest, LongTextsAreNotCutOff)
{
    ASSERT_TRUE(root);
    QFont large = root->font();
    large.setPointSize(15);
    root->setFont(large);
    std::vector<QWidget*> texts;
    for (QWidget* widget : root->findChildren<QWidget*>()) {
        const auto* label = qobject_cast<QLabel*>(widget);
        const auto* button = qobject_cast<QAbstractButton*>(widget);
        const QString text = label ? label->text() : button ? button->text() : QString();
        if (text.isEmpty() || qobject_cast<PopupButton*>(widget) || !widget->isVisibleTo(root.get()))
            continue; // pop-ups elide; a pane behind another has no place yet
        SetControlText(widget, text + text.left(text.size() / 2 + 1));
        texts.push_back(widget);
    }
    show();
    for (const QWidget* widget : texts) {
        const QSize least = widget->minimumSizeHint();
        const int height = widget->hasHeightForWidth() ? widget->heightForWidth(widget->width()) : least.height();
        EXPECT_GE(widget->height(), height) << widget->objectName().toStdString();
        EXPECT_GE(widget->width(), least.width()) << widget->objectName().toStdString();
    }
}

std::string NameOfFile(const testing::TestParamInfo<QString>& info)
{
    const QFileInfo window(info.param);
    const QFileInfo interfaceFile(window.path());
    std::string name =
        (QFileInfo(interfaceFile.path()).fileName() + interfaceFile.fileName() + u'_' + window.completeBaseName())
            .toStdString();
    std::erase_if(name, [](unsigned char c) { return !std::isalnum(c) && c != '_'; });
    return name;
}

INSTANTIATE_TEST_SUITE_P(All, InterfaceFileTest, testing::ValuesIn(InterfaceFiles()), NameOfFile);

TEST(InterfaceFiles, OfOtherPlugInsHoldTheirControls)
{
    const auto root = CreateWindowFromNib(BundleOf(QStringLiteral(TEST_RESOURCES "/../ColorOptions")),
                                          "ColorOptionsPanel", "ColorOptions");
    ASSERT_TRUE(root);
    const auto expectControl = [&](color::Control number) {
        EXPECT_TRUE(FindControl(root.get(), {color::kSignature, number})) << number;
    };
    for (const color::NumberSetting& setting : color::NumberSettings()) {
        expectControl(setting.control);
        const auto* slider = FindControlAs<SliderField>(root.get(), {color::kSignature, setting.control});
        EXPECT_TRUE(!slider || (slider->minimum() == -100 && slider->maximum() == 100)) << setting.control;
    }
    for (const color::NumberSetting& setting : color::ChoiceSettings())
        expectControl(setting.control);
    for (const color::NameSetting& setting : color::NameSettings())
        expectControl(setting.control);
    for (const color::Control number : {color::kBeforeStrip, color::kAfterStrip, color::kResetButton})
        expectControl(number);
}

TEST(InterfaceFiles, HoldEveryControlThatTheCodeAsksFor)
{
    const Bundle bundle = BundleOf(QStringLiteral(TEST_RESOURCES));
    for (const ExpectedControls& expected : kExpectedControls) {
        const auto root = CreateWindowFromNib(bundle, expected.interfaceFile, expected.window);
        ASSERT_TRUE(root) << expected.interfaceFile;
        for (const SInt32 number : expected.numbers)
            EXPECT_TRUE(FindControl(root.get(), {expected.signature, number})) << expected.window << ' ' << number;
    }
}

} // namespace
} // namespace kesta
