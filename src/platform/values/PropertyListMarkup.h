#pragma once

#include <QString>

#include <optional>

namespace kesta {

struct ForeignMarkup {
    qsizetype offset = 0; // in UTF-16 units
    QString problem;
};

// The first markup that a property list has no use for and an XML reader would take: a DOCTYPE other than the plain one
// named plist, a second DOCTYPE, an attribute other than the version of plist. Takes linear time.
std::optional<ForeignMarkup> FindForeignMarkup(QStringView text);

} // namespace kesta
