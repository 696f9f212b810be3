#include "toolkit/windows/WindowPlace.h"

#include "platform/system/UserPreferences.h"
#include "toolkit/windows/FitToScreen.h"

#include <QEvent>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <optional>
#include <utility>

namespace kesta {
namespace {

constexpr char kWindowsFile[] = "com.kesta.print.windows.plist"; // of sizes in points, by the window
constexpr char kWidth[] = "Width";
constexpr char kHeight[] = "Height";

QString KeyOf(const QWidget& window)
{
    return window.objectName().isEmpty() ? QString()
                                         : window.property("controlSignature").toString() + u'.' + window.objectName();
}

std::optional<QSize> ReadSize(const QString& key)
{
    const std::optional<Dictionary> windows = CopyUserPreferences(kWindowsFile);
    const Dictionary* entry = windows ? windows->dictionary(key) : nullptr;
    const auto side = [&](const char* name) {
        const Number* number = entry ? entry->number(name) : nullptr;
        return number ? number->as<SInt64>().value_or(0) : 0;
    };
    const SInt64 width = side(kWidth);
    const SInt64 height = side(kHeight);
    constexpr SInt64 kMost = 1 << 16; // no screen is larger
    if (width < 1 || height < 1 || width > kMost || height > kMost)
        return std::nullopt;
    return QSize(static_cast<int>(width), static_cast<int>(height));
}

void WriteSize(const QString& key, QSize size)
{
    std::optional<Dictionary> windows = CopyUserPreferences(kWindowsFile);
    if (!windows)
        return;
    windows->set(key, Dictionary{{kWidth, Number::Index(size.width())}, {kHeight, Number::Index(size.height())}});
    WriteUserPreferences(kWindowsFile, *windows);
}

// On the front window's screen with all of it that the screen has room for.
QPoint CenteredOn(const QWidget& front, QSize size)
{
    QRect place(QPoint(), size);
    place.moveCenter(front.frameGeometry().center());
    const QScreen* screen = front.screen();
    const QRect room = screen ? screen->availableGeometry() : place;
    const auto within = [](int at, int first, int last) { return std::clamp(at, first, std::max(first, last)); };
    return {within(place.left(), room.left(), room.right() + 1 - size.width()),
            within(place.top(), room.top(), room.bottom() + 1 - size.height())};
}

// Notes sizes that come from outside of the program, and keeps the last one when the window goes.
class SizeKeeper : public QObject {
public:
    explicit SizeKeeper(QWidget& window) : QObject(&window) { window.installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto& window = static_cast<const QWidget&>(*watched);
        if (event->type() == QEvent::Resize && event->spontaneous() && window.isVisible())
            byUser_ = !(window.windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen));
        if (event->type() == QEvent::Hide && !event->spontaneous() && std::exchange(byUser_, false))
            WriteSize(KeyOf(window), window.size());
        return false;
    }

private:
    bool byUser_ = false;
};

} // namespace

void PlaceBefore(QWidget& window, const QWidget* front)
{
    if (!front || !front->windowHandle())
        return;
    if (!window.parentWidget()) {
        if ((window.windowFlags() & Qt::WindowType_Mask) == Qt::Window)
            window.setWindowFlags(Qt::Dialog); // window managers know the parents of dialogs only
        window.winId();                        // makes its native window
        window.windowHandle()->setTransientParent(front->windowHandle());
    }
    if (!window.testAttribute(Qt::WA_Moved))
        window.move(CenteredOn(*front, window.size()));
}

void RememberSize(QWidget& window)
{
    const QString key = KeyOf(window);
    if (key.isEmpty())
        return;
    if (const std::optional<QSize> size = ReadSize(key))
        window.resize(size->expandedTo(window.minimumSizeHint()).boundedTo(RoomOnScreen(window)));
    new SizeKeeper(window);
}

} // namespace kesta
