#include "gallery/GalleryWindow.h"

#include "toolkit/controls/ColorSwatch.h"
#include "toolkit/controls/HistoryComboBox.h"
#include "toolkit/controls/ListView.h"
#include "toolkit/controls/MenuButton.h"
#include "toolkit/controls/SpinField.h"
#include "toolkit/controls/TextInput.h"
#include "toolkit/windows/InterfaceFile.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace kesta::gallery {
namespace {

template <class Widget> Widget& Get(const QWidget& window, SInt32 number)
{
    return *FindControlAs<Widget>(&window, {kGallery, number});
}

Menu MenuOf(std::initializer_list<QString> titles)
{
    Menu menu;
    SInt32 value = 0;
    for (const QString& title : titles)
        menu.items.push_back({.title = title, .value = ++value});
    return menu;
}

Menu FinishingMenu()
{
    return {.items = {{.title = u"No staples"_s, .command = "Stp0"_code},
                      {.title = u"2 staples"_s, .command = "Stp2"_code, .checked = true},
                      {.separator = true},
                      {.title = u"3 holes"_s, .command = "Hol3"_code, .checked = true},
                      {.title = u"Z fold"_s, .command = "FldZ"_code, .enabled = false},
                      {.title = u"Binding"_s, .submenu = {{.title = u"Left"_s, .command = "Blft"_code, .value = 7}}},
                      {.separator = true},
                      {.title = u"Booklet Creation…"_s, .command = "Bkcr"_code}}};
}

} // namespace

Bundle GalleryBundle()
{
    Dictionary texts;
    for (const char* key : {"Print",
                            "Printer",
                            "Copies",
                            "Pages",
                            "Orientation",
                            "Portrait",
                            "Landscape",
                            "Previous",
                            "Next",
                            "Job type",
                            "Set Up…",
                            "Paper",
                            "Choose Paper",
                            "Two-sided printing",
                            "Finishing",
                            "Choose Finishing",
                            "Help",
                            "Save Settings",
                            "Recipients",
                            "Cover Sheet",
                            "Options",
                            "Add Covers…",
                            "Add Inserts…",
                            "List",
                            "Type",
                            "Settings",
                            "Passcode",
                            "Name",
                            "Creep",
                            "Color",
                            "Printer Web Pages",
                            "Draw outlines",
                            "Save a copy",
                            "On",
                            "Off",
                            "Stapling",
                            "Notes",
                            "Panel"})
        texts.set(key, key);
    texts.set("OK Command", "OK");
    texts.set("Cancel Command", "Cancel");
    texts.set("Help Command", "Help");
    texts.set("Digits", "4 to 10 digits");
    texts.set("Empty", "Add covers, inserts or exceptions to fill this list.");
    texts.set("Line", "25 copies, pages 1-4, 7 · Secure Print · Blue, hole punched · Two-sided · 2 staples, 3 holes");
    return {.resourcesPath = u"" GALLERY_INTERFACE ""_s, .strings = Dictionary{{"Localizable", texts}}};
}

std::unique_ptr<QWidget> MakeGalleryWindow()
{
    std::unique_ptr<QWidget> window = CreateWindowFromNib(GalleryBundle(), "Gallery", "Window");
    Get<PopupButton>(*window, 1).setMenu(MenuOf({u"Veltra 4200, second floor"_s, u"Veltra 4300"_s}));
    Get<SpinField>(*window, 2).setNumber(25);
    Get<HistoryComboBox>(*window, 3).setFixedEntries({{u"All"_s, 1}});
    Get<HistoryComboBox>(*window, 3).setTypedText(u"1-4, 7"_s);
    Get<PopupButton>(*window, 16).setMenu(MenuOf({u"Paper/Output"_s, u"Advanced"_s}));
    Get<PopupButton>(*window, 101).setMenu(MenuOf({u"Secure Print"_s, u"Normal Print"_s, u"Saved Job"_s}));
    Get<QLabel>(*window, 103).setText(u"- Blue\n- Hole punched"_s);
    Get<MenuButton>(*window, 104).setMenu(MenuOf({u"Letter"_s, u"A4"_s}));
    Get<PopupButton>(*window, 105).setMenu(MenuOf({u"Two-sided, bound on the long edge"_s}));
    Get<QLabel>(*window, 106).setText(u"- 2 staples\n- 3 holes\n- No fold"_s);
    Get<MenuButton>(*window, 107).setMenu(FinishingMenu());
    return window;
}

std::unique_ptr<QWidget> MakeGalleryControls()
{
    std::unique_ptr<QWidget> window = CreateWindowFromNib(GalleryBundle(), "Gallery", "Controls");
    auto& list = Get<ListView>(*window, 23);
    list.setColumns({{.title = u"Pages"_s},
                     {.title = u"Type"_s},
                     {.title = u"Settings"_s, .minimumWidth = 450, .stretches = true}});
    list.setRows({{{u"Front"_s, u"Cover"_s, u"Printed; Goldenrod; Cardstock"_s}, 1},
                  {{u"3-7"_s, u"Exception"_s, u"One-sided; Letter; Yellow; Recycled"_s}, 2},
                  {{u"12"_s, u"Insert"_s, u"Sheets [1]; Inserter tray"_s}, 3}});
    list.setSelectedRows({1});
    Get<QLineEdit>(*window, 24).setText(u"1234"_s);
    Get<HistoryComboBox>(*window, 25).setFixedEntries({{u"Use document name"_s, 1}});
    Get<HistoryComboBox>(*window, 25).setHistory({u"Report"_s, u"Letter"_s});
    Get<HistoryComboBox>(*window, 25).setFixedValue(1);
    Get<SpinField>(*window, 26).setLimits(0, 10, 1);
    Get<SpinField>(*window, 26).setNumber(5);
    Get<ColorSwatch>(*window, 27).setColor(QColor(0x2E, 0x5A, 0xC8));
    Get<PopupButton>(*window, 33).setMenu(MenuOf({u"2 staples"_s}));
    return window;
}

} // namespace kesta::gallery
