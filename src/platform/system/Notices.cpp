#include "platform/system/Notices.h"

#include "platform/system/Installed.h"

#include <cstdio>

namespace kesta {
namespace {

void Print(const QString& title, const QString& message)
{
    std::fprintf(stderr, "%s%s%s\n", qPrintable(title), title.isEmpty() || message.isEmpty() ? "" : ": ",
                 qPrintable(message));
}

class PrintedNotices : public Notices {
public:
    void show(const Notice& notice) override { Print(notice.title, notice.message); }
    int ask(const Alert& alert) override
    {
        Print(alert.title, alert.message);
        return CancelButtonOf(alert);
    }
};

} // namespace

Notices* Notices::install(Notices* notices)
{
    return InstalledOr<Notices, PrintedNotices>().install(notices);
}

Notices& GetNotices()
{
    return InstalledOr<Notices, PrintedNotices>().current();
}

int CancelButtonOf(const Alert& alert)
{
    const int last = static_cast<int>(alert.buttons.size()) - 1;
    return alert.cancelButton >= 0 && alert.cancelButton <= last ? alert.cancelButton : last;
}

} // namespace kesta
