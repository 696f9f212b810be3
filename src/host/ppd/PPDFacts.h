#pragma once

#include "host/job/PrinterFacts.h"

namespace kesta::host {

// What the PPD says; of one that can't be read, why.
PrinterFacts ReadPPDFacts(const QString& ppdPath);

// The sheet of the page size among the choices (option keyword to choice keyword), else of the PPD's default one.
std::optional<PaperRect> ReadPaper(const QString& ppdPath, const Dictionary& choices);

} // namespace kesta::host
