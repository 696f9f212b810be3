#include "pde/menus/BundleUtilities.h"

#include "platform/plugins/Bundle.h"
#include "platform/plugins/HelpBook.h"
#include "platform/system/SafeFile.h"
#include "platform/values/PropertyList.h"

#include <QFile>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace kesta {

OSStatus DisplayHelp(const Bundle& bundle, const QString& page, const QString& anchor)
{
    if (!bundle.info.string(kCFBundleHelpBookName))
        return kMissingArgument;
    return OpenHelp(bundle, page, anchor);
}

const Bundle* LoadPrivateBundle(const Bundle& bundle, const QString& plugInName)
{
    if (!IsPlainFileName(plugInName) || bundle.path.isEmpty())
        return nullptr;
    const Bundle* found = LoadBundleAt(bundle.path + "/Contents/PlugIns/"_L1 + plugInName + ".plugin"_L1).bundle;
    return found && !LoadCode(*found) ? found : nullptr;
}

std::optional<Value> CreatePropertiesFromXMLFile(const QUrl& url)
{
    QFile file(url.toLocalFile());
    if (!url.isLocalFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const PropertyListLimits limits;
    return ParsePropertyList(file.read(limits.bytes + 1), limits).value;
}

} // namespace kesta
