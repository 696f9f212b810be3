#include "panels/advanced/AboutDialog.h"

#include "panels/advanced/AboutFacts.h"
#include "pde/forms/DialogCommands.h"
#include "toolkit/controls/PictureView.h"
#include "toolkit/windows/InterfaceFile.h"

namespace kesta {
namespace {

void ShowFacts(const Bundle& bundle, const AboutFacts& facts, QWidget& dialog)
{
    const auto control = [&](about::Control number) { return FindControl(&dialog, {about::kSignature, number}); };
    if (auto* picture = qobject_cast<PictureView*>(control(about::kPicture)))
        picture->setPicture(facts.picture);
    SetControlText(control(about::kVersionText), facts.version);
    SetControlText(control(about::kModelText), facts.model);
    SetControlText(control(about::kAccessoriesText), AccessoriesText(bundle, facts.accessories));
}

} // namespace

OSStatus RunModalAboutDialog(const Bundle& bundle, ppd_file_t* ppd)
{
    const std::unique_ptr<QWidget> dialog = CreateWindowFromNib(bundle, "About", "About");
    if (!dialog)
        return kInterfaceFileUnreadable;
    ShowFacts(bundle, CopyAboutFacts(bundle, ppd), *dialog);
    RunModalDialog(bundle, *dialog, {});
    return noErr;
}

} // namespace kesta
