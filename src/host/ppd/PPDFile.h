#pragma once

#include "platform/printsystem/PPDFile.h"

#include <vector>

namespace kesta::host {

// Marks what was marked before the host's turn.
struct PPDMarksBack {
    std::shared_ptr<ppd_file_t> shared = {};
    std::vector<ppd_choice_t*> marked = {};

    void operator()(ppd_file_t* ppd) const;
};

struct PPDFile {
    std::unique_ptr<ppd_file_t, PPDMarksBack> ppd; // with its defaults marked
    Message problem;                               // empty, or why it can't be read
};

// The PPD as the process has it open, for the host's turn: the plug-in's marks are there again when it is over.
PPDFile OpenPPDFile(const QString& path);

} // namespace kesta::host
