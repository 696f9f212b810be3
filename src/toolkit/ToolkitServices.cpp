#include "toolkit/ToolkitServices.h"

#include "platform/HelpViewer.h"
#include "platform/Notices.h"
#include "toolkit/AlertWindow.h"
#include "toolkit/HelpWindow.h"
#include "toolkit/ModalLoop.h"

#include <QApplication>
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
        QWidget* front = FrontModalWindow() ? FrontModalWindow() : QApplication::activeWindow();
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

} // namespace

void InstallToolkitServices()
{
    static NoticeWindows notices;
    static HelpWindows help;
    Notices::install(&notices);
    HelpViewer::install(&help);
}

} // namespace kesta
