#include "toolkit/windows/ToolkitServices.h"

#include "platform/system/FileChooser.h"
#include "platform/system/HelpViewer.h"
#include "platform/system/Notices.h"
#include "toolkit/windows/AlertWindow.h"
#include "toolkit/windows/HelpWindow.h"
#include "toolkit/windows/ModalLoop.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>

namespace kesta {
namespace {

class NoticeWindows : public Notices {
public:
    void show(const Notice& notice) override
    {
        const QString ok = QCoreApplication::translate("QPlatformTheme", "OK");
        ask({.title = notice.title,
             .message = notice.message,
             .buttons = {notice.button.isEmpty() ? ok : notice.button}});
    }
    int ask(const Alert& alert) override { return AlertWindow(alert).run(); }
};

class HelpWindows : public HelpViewer {
public:
    // A window of the one in front: a modal window blocks all but its own.
    OSStatus show(const QString& file, const QString& anchor) override
    {
        if (!QFileInfo(file).isFile())
            return kMissingArgument;
        QWidget* front = FrontWindow();
        if (window_ && window_->parentWidget() != front && window_ != front)
            delete window_;
        if (!window_)
            window_ = new HelpWindow(front);
        window_->showPage(file, anchor);
        return noErr;
    }

private:
    QPointer<HelpWindow> window_;
};

// The desktop's own file dialog, which asks before it replaces a file.
class FileDialogs : public FileChooser {
public:
    std::optional<QString> open(const FileQuestion& question) override
    {
        return Chosen(
            QFileDialog::getOpenFileName(FrontWindow(), question.title, Proposal(question), Filter(question)));
    }
    std::optional<QString> save(const FileQuestion& question) override
    {
        return Chosen(
            QFileDialog::getSaveFileName(FrontWindow(), question.title, Proposal(question), Filter(question)));
    }

private:
    static QString Proposal(const FileQuestion& question) { return QDir(question.folder).filePath(question.name); }
    static QString Filter(const FileQuestion& question) { return question.patterns.join(u' '); }
    static std::optional<QString> Chosen(const QString& path)
    {
        return path.isEmpty() ? std::nullopt : std::optional(path);
    }
};

} // namespace

void InstallToolkitServices()
{
    static NoticeWindows notices;
    static HelpWindows help;
    static FileDialogs files;
    Notices::install(&notices);
    HelpViewer::install(&help);
    FileChooser::install(&files);
}

} // namespace kesta
