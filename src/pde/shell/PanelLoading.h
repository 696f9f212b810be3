#pragma once

#include "pde/interface/PanelInterface.h"
#include "platform/values/Types.h"

#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace kesta {

struct Bundle;

namespace shell {

// The interface functions of the panels to load, in order: the product's, unless others were set.
const std::vector<std::string>& GetPanelFunctionNames();
void SetPanelFunctionNames(std::vector<std::string> names); // an empty list: the product's again

// Where a panel lies that is a plug-in of its own: its path below $KESTA_LIBRARY_ROOT, else below the folder that holds
// the plug-in. When nobody chose a root and nothing is there, its path as it is, if something is there.
QString GetPanelPlugInPath(const Bundle& plugIn, const QString& path);

struct PanelFunctionOrProblem {
    PanelInterfaceFunction function = nullptr;
    QString problem; // a sentence that names what is missing and where it was looked for, when there is no function
};
PanelFunctionOrProblem FindPanelFunction(const Bundle& plugIn, const std::string& functionName);

// What keeps the panels from loading; nothing when every function can be found. No plug-in is a problem, too.
std::optional<QString> FindPanelProblem(const Bundle* plugIn);

} // namespace shell
} // namespace kesta
