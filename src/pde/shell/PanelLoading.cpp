#include "pde/shell/PanelLoading.h"

#include "pde/interface/PanelOperations.h"
#include "pde/ticket/LocalizedText.h"
#include "platform/plugins/Bundle.h"
#include "product/PanelInterfaces.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kesta::shell {
namespace {

constexpr char kLibraryRootVariable[] = "KESTA_LIBRARY_ROOT";

std::vector<std::string>& FunctionNames()
{
    static std::vector<std::string> names(_PanelInterfaces.begin(), _PanelInterfaces.end());
    return names;
}

BundleOrError BundleOfPanel(const Bundle& plugIn, std::string_view functionName)
{
    const auto own = std::ranges::find(_PanelPlugIns, functionName, &PanelPlugIn::functionName);
    if (own == _PanelPlugIns.end())
        return {&plugIn};
    return LoadBundleAt(GetPanelPlugInPath(plugIn, QString::fromUtf8(own->path)));
}

} // namespace

const std::vector<std::string>& GetPanelFunctionNames()
{
    return FunctionNames();
}

void SetPanelFunctionNames(std::vector<std::string> names)
{
    if (names.empty())
        names.assign(_PanelInterfaces.begin(), _PanelInterfaces.end());
    FunctionNames() = std::move(names);
}

QString GetPanelPlugInPath(const Bundle& plugIn, const QString& path)
{
    const QString chosenRoot = qEnvironmentVariable(kLibraryRootVariable);
    if (!chosenRoot.isEmpty())
        return chosenRoot + path;
    const QString beside = QFileInfo(plugIn.path).absolutePath() + path;
    return QFileInfo::exists(beside) || !QFileInfo::exists(path) ? beside : path;
}

PanelFunctionOrProblem FindPanelFunction(const Bundle& plugIn, const std::string& functionName)
{
    const auto [bundle, error] = BundleOfPanel(plugIn, functionName);
    const QString name = QString::fromStdString(functionName);
    if (!bundle)
        return {nullptr, LocalizedFormat(plugIn, "Panel Not Loaded", {name, Sentence(error, HostTexts())})};
    if (const BundleFunction function = FunctionNamed(*bundle, name))
        return {reinterpret_cast<PanelInterfaceFunction>(function), {}};
    return {nullptr, LocalizedFormat(plugIn, "Panel Not Found", {name, bundle->path})};
}

std::optional<QString> FindPanelProblem(const Bundle* plugIn)
{
    if (!plugIn)
        return u"No plug-in %1 is loaded."_s.arg(QLatin1StringView(kPlugInIdentifier));
    for (const std::string& name : GetPanelFunctionNames()) {
        if (const auto [function, problem] = FindPanelFunction(*plugIn, name); !function)
            return problem;
    }
    return std::nullopt;
}

} // namespace kesta::shell
