#pragma once

#include "platform/plugins/Bundle.h"

#include <QTranslator>

#include <memory>
#include <vector>

namespace kesta {

// The texts of one bundle in the languages of its user, the preferred one first.
class Catalogues {
public:
    // Those of the folder's files NAME_LOCALE.qm that the user's languages name; unreadable ones count as absent.
    Catalogues(const QString& folder, const QString& name);

    std::optional<QString> text(QAnyStringView key, QAnyStringView table, int count) const;
    QString language() const; // of the preferred catalogue; empty without one

private:
    std::vector<std::unique_ptr<QTranslator>> translators_;
};

// The shared object of one bundle. It stays loaded: what it left behind in the process may still point into it.
class BundleCode {
public:
    explicit BundleCode(QString path) : path_(std::move(path)) {}

    // Loads it on the first call; nothing on success, otherwise a sentence, the same on every call.
    std::optional<Message> load();
    BundleFunction function(const QString& name) const; // null when there is none, or before loading

private:
    QString path_;
    void* handle_ = nullptr;
    std::optional<Message> error_;
};

class BundleParts {
public:
    Catalogues catalogues;
    BundleCode code;
};

// What LoadBundleAt reads, before it is registered.
struct OpenedBundle {
    std::optional<Bundle> bundle;
    Message error = {};
};
OpenedBundle OpenBundle(const QString& path);

} // namespace kesta
