#include "panels/advanced/AboutFacts.h"

#include "pde/ticket/LocalizedText.h"
#include "platform/plugins/Bundle.h"
#include "printer/InstallableOptions.h"
#include "printer/PPDFacts.h"

namespace kesta {

AboutFacts CopyAboutFacts(const Bundle& bundle, ppd_file_t* ppd)
{
    const QString* version = bundle.info.string("CFBundleShortVersionString");
    return {.version = version ? LocalizedFormat(bundle, "About Version", {*version}) : QString(),
            .model = PPDCopyModelName(ppd).value_or(QString()),
            .accessories = PPDCopyFittedAccessories(ppd),
            .picture = CopyDeviceMimicFilename()};
}

QString AccessoriesText(const Bundle& bundle, const QStringList& accessories)
{
    return accessories.isEmpty() ? LocalizedString(bundle, "None") : accessories.join(u'\n');
}

} // namespace kesta
