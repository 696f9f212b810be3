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

// Where panels lie that are plug-ins of their own: $KESTA_LIBRARY_ROOT, else the folder that holds the plug-in. When
// nobody chose a root and such a plug-in is not there, it is looked for under its path as it is.
QString GetLibraryRoot(const Bundle& plugIn);

struct PanelFunctionOrProblem {
    PanelInterfaceFunction function = nullptr;
    QString problem; // a sentence that names what is missing and where it was looked for, when there is no function
};
PanelFunctionOrProblem FindPanelFunction(const Bundle& plugIn, const std::string& functionName);

// What keeps the panels from loading; nothing when every function can be found. No plug-in is a problem, too.
std::optional<QString> FindPanelProblem(const Bundle* plugIn);

} // namespace shell
} // namespace kesta
