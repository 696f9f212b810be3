#pragma once

#include <functional>

namespace kesta {

class SpecialPageList;

// What the panel does for its editors; an editor calls each only once the user has accepted with OK.
struct EditorCalls {
    std::function<void()> saveUndoState = [] {};
    std::function<void()> rebuildList = [] {};
    // Whether a job can carry the special pages when this list takes the place of the one that is edited.
    std::function<bool(const SpecialPageList& changed)> canCarry = [](const SpecialPageList&) { return true; };
};

} // namespace kesta
