// Saves a picture of the dialogs that no dialog script gets at yet, for people to look at:
//     dialog_gallery PLUG_IN OUT_DIR
// KESTA_COLOR_SCHEME=dark gives dark ones, QT_SCALE_FACTOR=2 those at 2x, LC_ALL another language.

#include "model/ImageShift.h"
#include "panels/booklet_watermark/booklet/BookletDialog.h"
#include "panels/special_pages/paper/AdvancedStockDialog.h"
#include "panels/special_pages/paper/CustomStockSizeDialog.h"
#include "panels/special_pages/paper/PreCutTabStockSetup.h"
#include "panels/special_pages/paper/SeparatorsDialog.h"
#include "panels/special_pages/paper/StockDescriptionSetup.h"
#include "panels/special_pages/paper/StockMenu.h"
#include "panels/special_pages/paper/StockTypeSetupDialog.h"
#include "platform/plugins/Bundle.h"
#include "platform/plugins/Sentence.h"
#include "printer/FinishingKinds.h"
#include "printer/InstallableOptions.h"
#include "printer/PPDUtilities.h"
#include "product/InstalledFeatures.h"
#include "support/Accessories.h"
#include "support/CurrentPrinter.h"
#include "toolkit/controls/Controls.h"
#include "toolkit/controls/MenuButton.h"
#include "toolkit/controls/PictureView.h"
#include "toolkit/controls/SummaryTextView.h"
#include "toolkit/style/KestaStyle.h"
#include "toolkit/style/Pictures.h"
#include "toolkit/windows/ModalLoop.h"

#include <QApplication>
#include <QDir>
#include <QGridLayout>
#include <QLocale>

#include <cstdio>
#include <functional>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

class Gallery {
public:
    Gallery(const Bundle& bundle, const QDir& folder) : bundle_(bundle), folder_(folder) {}

    // Runs the dialog, saves it as the user would find it, or has left it, and cancels.
    template <class Run> void add(const QString& name, Run run, const std::function<void(QWidget&)>& use = {})
    {
        SetModalIdleAction([this, name, use](QWidget& window) {
            if (use)
                use(window);
            save(window, name);
            EndModalLoop(window, ModalResult::Cancel);
        });
        ModalResult result{};
        if (run(bundle_, result) != noErr)
            complete_ = false;
        SetModalIdleAction(nullptr);
    }
    void save(QWidget& window, const QString& name)
    {
        const QString file = folder_.filePath(name + ".png"_L1);
        const bool saved = window.grab().save(file);
        std::printf("%s %s\n", saved ? "saved" : "could not save", qUtf8Printable(file));
        complete_ = complete_ && saved;
    }
    bool isComplete() const { return complete_; }

private:
    const Bundle& bundle_;
    QDir folder_;
    bool complete_ = true;
};

Stock MakeStock(SInt32 type, SInt32 color, SInt32 size = kUnset)
{
    Stock stock;
    stock.setSize(size);
    stock.setType(type);
    stock.setColor(color);
    return stock;
}

void AddStockDialogs(Gallery& gallery)
{
    Stock stock = MakeStock(kStockTypeTabStock, kStockColorBlue, kStockSizeA4);
    stock.setDescription(u"For the annual report"_s);
    gallery.add(u"description"_s, [&](const Bundle& bundle, ModalResult& result) {
        return RunModalStockDescriptionSetup(bundle, DialogMode::Edit, JobContext::Insert, stock, result);
    });
    gallery.add(u"precut-tabs"_s, [&](const Bundle& bundle, ModalResult& result) {
        return RunModalPreCutTabStockSetup(bundle, DialogMode::Add, JobContext::Insert, stock, result);
    });
    gallery.add(u"advanced-stock"_s, [&](const Bundle& bundle, ModalResult& result) {
        return RunModalAdvancedStockDialog(bundle, JobContext::Insert, stock, result);
    });
    Stock foreign = MakeStock(kStockTypeOrdered, kStockColorText, 9999);
    foreign.setCustomType(u"Dividers"_s);
    foreign.setCustomColor(u"Teal"_s);
    foreign.setWeight(10'000);
    gallery.add(u"advanced-stock-foreign"_s, [&](const Bundle& bundle, ModalResult& result) {
        return RunModalAdvancedStockDialog(bundle, JobContext::Insert, foreign, result);
    });
    for (const SInt32 millimetres : {13, 20, 60}) {
        _IS_Options shift{.option = 1, .inches = false, .X1 = millimetres};
        const auto run = [&](const Bundle& bundle, ModalResult& result) {
            return RunModalTabStockSetupDialog(bundle, stock, shift, result);
        };
        gallery.add(u"tab-stock-%1"_s.arg(millimetres), run);
        gallery.add(u"tab-stock-none"_s, run, [](QWidget& window) {
            FindPopupButton(&window, {tabstock::kSignature, tabstock::kShiftPopup})->chooseItem(1);
        });
    }
}

void AddSizesAndSeparators(Gallery& gallery)
{
    for (const SizeUnits units : {SizeUnits::Inches, SizeUnits::Millimetres}) {
        gCurrentUnits = units;
        PaperSize size;
        gallery.add(u"custom-size-%1"_s.arg(static_cast<SInt32>(units)),
                    [&](const Bundle& bundle, ModalResult& result) {
                        return RunModalCustomStockSizeDialog(bundle, result, size);
                    });
    }
    for (SInt32 option : {kSeparatorsNone, kSeparatorsBlank, kSeparatorsPrinted}) {
        Stock stock = MakeStock(kStockTypeStandard, kStockColorYellow);
        gallery.add(u"separators-%1"_s.arg(option), [&](const Bundle& bundle, ModalResult& result) {
            return RunModalSeparatorsDialog(bundle, option, stock, result);
        });
    }
}

void AddBooklets(Gallery& gallery)
{
    Booklet booklet{.fold = kFoldBiStaple, .layout = kBookletLayoutOn, .drawOutlines = kDrawPageBorders, .creep = 5};
    const auto run = [&booklet](const Bundle& bundle, ModalResult&) {
        RunModalBookletOptionsDialog(bundle, booklet);
        return noErr;
    };
    {
        const test::WithFeatures fitted({u"BookletFoldKey"_s});
        gallery.add(u"booklet-options-finishing"_s, run);
    }
    const test::WithFeatures none({});
    gallery.add(u"booklet-options"_s, run);
}

// Paper icons with their summaries, and the menu's button.
void AddPapers(Gallery& gallery, const Bundle& bundle)
{
    QWidget window;
    window.resize(800, 400);
    auto* grid = new QGridLayout(&window);
    std::vector<Stock> stocks{MakeStock(kStockTypeTransparency, kStockColorClear),
                              MakeStock(kStockTypeEnvelopes, kStockColorGoldenrod),
                              MakeStock(kStockTypePunched, kStockColorYellow),
                              MakeStock(kStockTypeHeavyTabStock, kStockColorGreen),
                              MakeStock(kStockTypeHeavyLabels, kStockColorWhite),
                              MakeStock(kStockTypeExtraHeavyPlusReloaded, kStockColorRed),
                              MakeStock(kStockTypeLetterhead, kStockColorIvory),
                              MakeStock(kStockTypeArchival, kStockColorGray),
                              MakeStock(kStockTypeCustom7, kStockColorPink),
                              MakeStock(kStockTypeHeavyGlossReloaded, kStockColorBlue)};
    std::vector<_StockMenuCommandEventHandlerData> data(stocks.size());
    for (std::size_t i = 0; i < stocks.size(); ++i) {
        auto* icon = new PictureView(&window);
        icon->setFolder(PictureFolder(bundle));
        auto* summary = new SummaryTextView(&window);
        auto* button = new MenuButton(&window);
        button->setText(u"Choose Paper"_s);
        data[i].bundle = &bundle;
        data[i].stock = &stocks[i];
        data[i].summaryView = summary;
        data[i].iconView = icon;
        InitializeStockMenuButton(button, data[i]);
        ShowStock(data[i]);
        const int row = static_cast<int>(i) / 2;
        const int column = static_cast<int>(i) % 2 * 3;
        grid->addWidget(icon, row, column);
        grid->addWidget(summary, row, column + 1);
        grid->addWidget(button, row, column + 2);
        grid->setColumnStretch(column + 1, 1);
    }
    gallery.save(window, u"papers"_s);
}

} // namespace
} // namespace kesta

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    if (argc != 3 || !QDir().mkpath(QString::fromLocal8Bit(argv[2]))) {
        std::fprintf(stderr, "usage: dialog_gallery PLUG_IN OUT_DIR\n");
        return 1;
    }
    const kesta::BundleOrError loaded = kesta::LoadBundleAt(QString::fromLocal8Bit(argv[1]));
    if (!loaded.bundle) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(kesta::Sentence(loaded.error, kesta::HostTexts())));
        return 1;
    }
    QApplication::setLayoutDirection(QLocale(kesta::TextsLanguage(*loaded.bundle)).textDirection());
    kesta::InstallKestaStyle(*qApp);
    const kesta::test::CurrentPrinter printer{QStringLiteral(KESTA_PPD)};
    kesta::LoadInstallableOptions(kesta::PPDGetCurrent(), kesta::InstalledFeatures);
    kesta::Gallery gallery(*loaded.bundle, QDir(QString::fromLocal8Bit(argv[2])));
    kesta::AddStockDialogs(gallery);
    kesta::AddSizesAndSeparators(gallery);
    kesta::AddBooklets(gallery);
    kesta::AddPapers(gallery, *loaded.bundle);
    kesta::UnloadInstallableOptions();
    return gallery.isComplete() ? 0 : 1;
}
