#pragma once

#include "panels/booklet_watermark/WatermarkList.h"
#include "platform/system/FileChooser.h"
#include "support/Recorders.h"

#include <QCoreApplication>
#include <QFile>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <QWidget>

namespace kesta::test {

// An empty watermark store, and preferences, while it lives.
class OwnStore {
public:
    OwnStore()
    {
        qputenv("KESTA_DATA_ROOT", QFile::encodeName(folder.path()));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));
    }
    ~OwnStore()
    {
        qunsetenv("KESTA_DATA_ROOT");
        qunsetenv("XDG_CONFIG_HOME");
        booklet_watermark::listOfWatermarks().clear();
    }

    QTemporaryDir folder;
};

// Notes notices and alerts and answers alerts with the button of that position.
struct AnsweringNotices : RecordingNotices {
    int answer = 0;
    int ask(const Alert& alert) override
    {
        titles << alert.title;
        messages << alert.message;
        return answer;
    }
};

// Always chooses the same file.
struct ChosenFile : FileChooser {
    std::optional<QString> path;

    std::optional<QString> open(const FileQuestion&) override { return path; }
    std::optional<QString> save(const FileQuestion&) override { return std::nullopt; }

private:
    const WhileInstalled<FileChooser> installed_{*this};
};

inline void TypeInto(QWidget& field, const QString& text)
{
    for (const QChar character : text) {
        QKeyEvent key(QEvent::KeyPress, Qt::Key_unknown, {}, QString(character));
        QCoreApplication::sendEvent(&field, &key);
    }
}

} // namespace kesta::test
