#include "panels/special_pages/editors/EditorControls.h"

#include "panels/special_pages/paper/StockIcon.h"
#include "pde/forms/TextFieldUtilities.h"
#include "pde/menus/MenuUtilities.h"
#include "toolkit/controls/Controls.h"
#include "toolkit/controls/MenuButton.h"
#include "toolkit/controls/PictureView.h"
#include "toolkit/controls/TextInput.h"

#include <QPushButton>

#include <algorithm>
#include <limits>

namespace kesta::editors {
namespace {

void LimitPageField(QWidget* field)
{
    if (auto* line = qobject_cast<QLineEdit*>(field))
        line->setMaxLength(std::numeric_limits<int>::max()); // of itself it cuts, slowly, what is to be refused whole
    LimitInputLengthAndCharacters(field, {.minimumLength = 1,
                                          .maximumLength = kLongestPageText,
                                          .allowedCharacters = QString::fromLatin1(kPageTextCharacters)});
}

} // namespace

void ShowJobStock(const Bundle& bundle, const QWidget& window, FourCharCode signature, const Stock* jobStock)
{
    ShowStockSummary(bundle, FindControl(&window, {signature, kJobSummary}), jobStock, JobContext::Job);
    if (auto* picture = FindControlAs<PictureView>(&window, {signature, kJobPicture}))
        picture->setPictures(StockIconPictures(jobStock));
}

void FocusPageField(const QWidget& window, FourCharCode signature)
{
    if (QLineEdit* field = FindTextField(&window, {signature, kPageField})) {
        field->setFocus();
        field->selectAll();
    }
}

void EnableOK(const QWidget& window, bool enabled)
{
    SetControlEnabled(GetWindowDefaultButton(window), enabled);
}

void RefusePages(const Bundle& bundle, QWidget* field, OSStatus status)
{
    ShowRefusal(status, bundle);
    if (field && field->isEnabled())
        SetInvalid(field, true);
}

void ShowTicketValue(PopupButton* popup, SInt32 value, const QString& foreignTitle)
{
    if (!popup)
        return;
    Menu menu = popup->menu();
    std::erase_if(menu.items, [](const MenuItem& item) { return item.checked; }); // the one of a value before
    const bool isOffered = std::ranges::any_of(menu.items, [&](const MenuItem& item) { return item.value == value; });
    if (!isOffered)
        menu.items.push_back({.title = foreignTitle, .value = value, .enabled = false, .checked = true});
    popup->setMenu(std::move(menu));
    SetPopupButtonToTicketValue(popup, value);
}

void InitializePageEditor(_StockMenuCommandEventHandlerData& paper, const QWidget& window, FourCharCode signature,
                          const Stock* jobStock)
{
    LimitPageField(FindControl(&window, {signature, kPageField}));
    ShowJobStock(*paper.bundle, window, signature, jobStock);
    paper.summaryView = FindControl(&window, {signature, kPaperSummary});
    paper.iconView = FindControlAs<PictureView>(&window, {signature, kPaperPicture});
    InitializeStockMenuButton(FindControlAs<MenuButton>(&window, {signature, kPaperButton}), paper);
    ShowStock(paper);
}

bool ChoseTabStock(const CommandEvent& command, const Stock& stock)
{
    return command.command == kStockTypeCommand &&
           (stock.type() == kStockTypeTabStock || stock.type() == kStockTypeHeavyTabStock);
}

} // namespace kesta::editors
