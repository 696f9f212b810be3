#include "panels/special_pages/paper/PreCutTabStockSetup.h"

#include "panels/special_pages/paper/LimitedFields.h"
#include "panels/special_pages/paper/TabStockRules.h"
#include "pde/forms/DialogCommands.h"
#include "toolkit/controls/SpinField.h"
#include "toolkit/windows/InterfaceFile.h"

namespace kesta {

OSStatus RunModalPreCutTabStockSetup(const Bundle& bundle, DialogMode, JobContext, Stock& stock, ModalResult& result)
{
    using namespace precuttab;
    const std::unique_ptr<QWidget> window = CreateWindowFromNib(bundle, "PreCutTabStockSetup", "PreCutTabStockSetup");
    auto* field = FindControlAs<SpinField>(window.get(), {kSignature, kSequenceField});
    if (!field)
        return kInterfaceFileUnreadable;
    ShowNumber(*field, TabsInSequence(stock), kTabSequenceLimits);
    field->selectAll();
    SetControlText(FindControl(window.get(), {kSignature, kSequenceLimits}), TabSequenceLimitsText(bundle));
    const EventHandler holding =
        EnableOKWhile(*window, [field] { return MarkUnlessWithin(field, kTabSequenceLimits); });
    result = RunModalDialog(bundle, *window, {});
    if (result == ModalResult::OK)
        stock.setModulus(field->number());
    return noErr;
}

} // namespace kesta
