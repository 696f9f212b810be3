#include "panels/special_pages/paper/StockDescriptionSetup.h"

#include "panels/special_pages/paper/StockIcon.h"
#include "pde/forms/DialogCommands.h"
#include "pde/forms/TextFieldUtilities.h"
#include "toolkit/controls/PictureView.h"
#include "toolkit/windows/InterfaceFile.h"

namespace kesta {

OSStatus RunModalStockDescriptionSetup(const Bundle& bundle, DialogMode mode, JobContext, Stock& stock,
                                       ModalResult& result)
{
    using namespace stockdescription;
    static constexpr QLatin1StringView kHelpPage("paper_output/paper/db_new_edit_named_paper_d.htm");
    const std::unique_ptr<QWidget> window =
        CreateWindowFromNib(bundle, "StockDescriptionSetup", "StockDescriptionSetup");
    QLineEdit* field = FindTextField(window.get(), {kSignature, kDescriptionField});
    if (!field)
        return kInterfaceFileUnreadable;
    LimitInputLengthAndCharacters(field, {.maximumLength = kMostDescriptionLength});
    if (mode == DialogMode::Edit)
        field->setText(stock.description());
    if (auto* icon = FindControlAs<PictureView>(window.get(), {kSignature, kIcon}))
        icon->setPictures(StockIconPictures(&stock));
    field->setFocus();
    result = RunModalDialog(bundle, *window, kHelpPage);
    if (result == ModalResult::OK)
        stock.setDescription(field->text().left(kMostDescriptionLength));
    return noErr;
}

} // namespace kesta
