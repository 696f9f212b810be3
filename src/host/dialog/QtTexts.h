#pragma once

#include <memory>

class QTranslator;

namespace kesta {
struct Bundle;
}

namespace kesta::host {

// Qt's own texts (of a file dialog, of a field's menu) in the language of the bundle's texts, so that a window speaks
// one language only. They count while the answer lives; null when that language is English or Qt's catalogue of it is
// not installed.
std::unique_ptr<QTranslator> InstallQtTexts(const Bundle& texts);

} // namespace kesta::host
