#include "panels/special_pages/PreCutTabStockSetup.h"

#include "panels/special_pages/TabStockRules.h"
#include "pde/DialogCommands.h"
#include "toolkit/InterfaceFile.h"
#include "toolkit/SpinField.h"

namespace kesta {

OSStatus RunModalPreCutTabStockSetup(const Bundle& bundle, DialogMode, JobContext, Stock& stock, ModalResult& result)
{
    using namespace precuttab;
    const std::unique_ptr<QWidget> window = CreateWindowFromNib(bundle, "PreCutTabStockSetup", "PreCutTabStockSetup");
    auto* field = FindControlAs<SpinField>(window.get(), {kSignature, kSequenceField});
    if (!field)
        return kInterfaceFileUnreadable;
    field->setLimits(kTabSequenceLimits.least, kTabSequenceLimits.most);
    field->setNumber(TabsInSequence(stock));
    field->selectAll();
    SetControlText(FindControl(window.get(), {kSignature, kSequenceLimits}), TabSequenceLimitsText(bundle));
    result = RunModalDialog(bundle, *window, {});
    if (result == ModalResult::OK)
        stock.setModulus(field->number());
    return noErr;
}

} // namespace kesta
