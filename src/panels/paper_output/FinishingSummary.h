#pragma once

#include "panels/paper_output/FinishingMenus.h"
#include "panels/paper_output/PaperOutputOptions.h"

namespace kesta::paper_output {

// The finishing summary: one line "- TEXT" for each kind of finishing that there is.
QString CreateFinishingString(const Bundle& bundle, const PaperOutputOptions& options,
                              const FinishingAccessories& accessories);

// The paper's summary, with a line about the sheets between transparencies where there are any.
QString AppendSeparatorSummary(const QString& summary, const Bundle& bundle, ppd_file_t* ppd, SInt32 separatorCount,
                               const Stock& separatorStock);

// The paper's summary as the panel shows it.
QString PaperSummary(const Bundle& bundle, ppd_file_t* ppd, const PaperOutputOptions& options);

} // namespace kesta::paper_output
