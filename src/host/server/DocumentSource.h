#pragma once

#include "host/server/BackgroundTask.h"

#include "platform/values/Message.h"

#include <QByteArrayList>
#include <QFile>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace kesta::host {

// One document of a job: a regular file, open for reading at its start.
struct Document {
    std::unique_ptr<QFile> file;
    QString name;    // for people: without folders; "(stdin)" for standard input
    qint64 size = 0; // bytes, never 0
};

struct DocumentList {
    std::vector<Document> documents = {};
    Message problem = {}; // empty, or why nothing can be printed; then there are no documents
};

// Why the first of these files that can't be printed can't be, as far as that is seen from outside: nothing is opened,
// because a pipe can be read only once. Nothing when there is no such file.
std::optional<Message> FindFileProblem(const QByteArrayList& paths);

// Opens local files, or reads standard input to its end when there are none. What is not a regular file (a pipe) is
// copied to a private temporary file first. A cancelled copy ends with a problem.
DocumentList OpenDocuments(const QByteArrayList& paths, Cancellation& cancellation);

} // namespace kesta::host
