#pragma once

#include "printer/PPDUtilities.h"

#include <QStringList>

namespace kesta {

struct Bundle;

// What the About dialog says, in the user's words.
struct AboutFacts {
    QString version;         // a sentence
    QString model;           // as the PPD names it; empty when it does not
    QStringList accessories; // the fitted ones, in the order of the PPD
    QString picture;         // file name

    bool operator==(const AboutFacts&) const = default;
};
AboutFacts CopyAboutFacts(const Bundle& bundle, ppd_file_t* ppd);

// One accessory a line, or a word for none.
QString AccessoriesText(const Bundle& bundle, const QStringList& accessories);

} // namespace kesta
