#pragma once

#include "host/job/JobOptions.h"

#include <QString>

namespace kesta::host {

struct OptionList {
    QString text = {};    // one option a line: "Keyword/Text: choice *current choice"
    Message problem = {}; // empty, or why the PPD can't be read
};

// What the printer offers, in the form of `lpoptions -l`; the choices of "marked" are the current ones, else the PPD's
// defaults.
OptionList ListOptions(const QString& ppdPath, const JobOptions& marked);

} // namespace kesta::host
