#pragma once

#include <memory>

class QTranslator;

namespace kesta {
struct Bundle;
}

namespace kesta::host {

// Qt's own texts (of a file dialog, of a field's menu) in the language of the bundle's texts, so that a window speaks
// one language only; the usual buttons in the bundle's words where Qt lacks that language. They count while the answer
// and the bundle live; null when that language is English.
std::unique_ptr<QTranslator> InstallQtTexts(const Bundle& texts);

} // namespace kesta::host
