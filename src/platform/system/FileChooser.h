#pragma once

#include "platform/system/Service.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace kesta {

struct FileQuestion {
    QString title;
    QString folder = {};       // where to begin; empty for the last one
    QString name = {};         // proposed, for saving
    QStringList patterns = {}; // "*.tif"; none for all files
};

class FileChooser {
public:
    using Interface = FileChooser;
    virtual ~FileChooser() = default;

    // The chosen path; nothing when the user cancels.
    virtual std::optional<QString> open(const FileQuestion& question) = 0;
    virtual std::optional<QString> save(const FileQuestion& question) = 0;

    // What GetFileChooser() answers from now on; null for the one without windows. Returns what was installed before,
    // null for none.
    static FileChooser* install(FileChooser* chooser);
};

// Without windows nothing is ever chosen.
FileChooser& GetFileChooser();

} // namespace kesta
