#include "toolkit/style/KestaStyle.h"

#include "toolkit/style/DesktopScheme.h"
#include "toolkit/style/KestaProxyStyle.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

QPalette OwnPalette(bool dark)
{
    const auto pick = [dark](QRgb light, QRgb darkColor) { return QColor(dark ? darkColor : light); };
    QPalette palette;
    const QColor window = pick(0xEFF1F4, 0x1F2226);
    const QColor text = pick(0x1F242B, 0xE9EBEE);
    const QColor disabled = Mix(text, window, 0.58);
    const QColor accent = pick(0x4A5EE4, 0x5468EC);
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::Base, pick(0xFFFFFF, 0x191C1F));
    palette.setColor(QPalette::AlternateBase, pick(0xF7F8FA, 0x1F2226));
    palette.setColor(QPalette::Button, pick(0xFFFFFF, 0x343840));
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, dark ? QColor(0x9DAAF8) : accent);
    palette.setColor(QPalette::ToolTipBase, pick(0x1F242B, 0x343840));
    palette.setColor(QPalette::ToolTipText, pick(0xFFFFFF, 0xE9EBEE));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, disabled);
    }
    palette.setColor(QPalette::Disabled, QPalette::Base, Mix(window, palette.color(QPalette::Base), 0.5));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, Mix(window, text, 0.2));
    palette.setColor(QPalette::Light, Mix(window, Qt::white, 0.3));
    palette.setColor(QPalette::Midlight, Mix(window, Qt::white, 0.15));
    palette.setColor(QPalette::Mid, Mix(window, text, 0.2));
    palette.setColor(QPalette::Dark, Mix(window, text, 0.35));
    palette.setColor(QPalette::Shadow, Qt::black);
    return palette;
}

// Whether the colours are the toolkit's defaults, so that no desktop has a say in them.
bool IsNobodysPalette(const QPalette& palette, const QPalette& defaults)
{
    return std::ranges::all_of(std::initializer_list<QPalette::ColorRole>{QPalette::Window, QPalette::WindowText,
                                                                          QPalette::Base, QPalette::Button,
                                                                          QPalette::Highlight},
                               [&](QPalette::ColorRole role) { return palette.color(role) == defaults.color(role); });
}

// A desktop's palette comes through the style, which mends it; one that code has set does not.
void MakeReadable()
{
    const QPalette palette = QApplication::palette();
    if (const QPalette readable = Readable(palette); readable != palette)
        QApplication::setPalette(readable);
}

void SetTextColor(QWidget& widget, const QColor& color, const QColor& disabled)
{
    QPalette palette; // of these roles alone, so that the others follow the application's
    palette.setColor(QPalette::WindowText, color);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, disabled);
    widget.setPalette(palette);
}

void ApplyLook(QWidget& widget, const QByteArray& look)
{
    const KestaColors colors = CurrentColors();
    if (look == "label" || look == "hint" || look == "summary") {
        SetTextColor(widget, colors.text2, colors.disabled);
    } else if (look == "title") {
        QFont font = widget.font();
        font.setWeight(QFont::DemiBold);
        widget.setFont(font);
    } else if (look == "pane") {
        QPalette palette;
        palette.setColor(QPalette::Window, colors.pane);
        widget.setPalette(palette);
        widget.setAutoFillBackground(true);
        if (auto* frame = qobject_cast<QFrame*>(&widget))
            frame->setFrameStyle(frame->frameStyle()); // takes up the frame width of its look
    }
}

// Labels and numbers go by the direction of their text; beside their controls and arrows they must go by the window's.
template <class Aligned> void AlignByWindow(Aligned& widget)
{
    const Qt::Alignment alignment = widget.alignment();
    if (widget.isRightToLeft() && alignment & Qt::AlignLeft && !(alignment & Qt::AlignAbsolute))
        widget.setAlignment((alignment & Qt::AlignVertical_Mask) | Qt::AlignRight | Qt::AlignAbsolute);
}

void PolishAgain(QWidget& widget)
{
    widget.style()->unpolish(&widget);
    widget.style()->polish(&widget);
    widget.update();
}

} // namespace

QByteArray LookOf(const QWidget* widget)
{
    return widget ? widget->property("look").toString().toLatin1() : QByteArray();
}

void SetLook(QWidget& widget, const char* look)
{
    widget.setProperty("look", QString::fromLatin1(look));
    widget.setPalette(QPalette());
    widget.setFont(QFont());
    PolishAgain(widget);
}

void InstallKestaStyle(QApplication& application)
{
    const bool installed = dynamic_cast<KestaProxyStyle*>(application.style());
    if (!installed && application.style()->name().compare("fusion"_L1, Qt::CaseInsensitive) != 0)
        return;
    const QByteArray scheme = qgetenv("KESTA_COLOR_SCHEME");
    const bool wished = scheme == "dark" || scheme == "light";
    const QPalette before = QApplication::palette();
    const bool own = wished || IsNobodysPalette(before, application.style()->standardPalette());
    const bool dark = wished ? scheme == "dark" : ColorsOf(before).dark;
    if (!installed) {
        QApplication::setStyle(new KestaProxyStyle(own));
        application.installEventFilter(application.style());
    }
    own ? UseOwnPalette(dark) : MakeReadable();
    if (own && !wished && !installed)
        FollowDesktopScheme(application);
}

void UseOwnPalette(bool dark)
{
    QApplication::setPalette(Readable(OwnPalette(dark)));
}

void KestaProxyStyle::polish(QPalette& palette)
{
    QProxyStyle::polish(palette);
    palette = Readable(palette);
}

KestaProxyStyle::KestaProxyStyle(bool ownPalette) : QProxyStyle(u"fusion"_s), ownPalette_(ownPalette) {}

void KestaProxyStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    ApplyLook(*widget, LookOf(widget));
    if (auto* label = qobject_cast<QLabel*>(widget))
        AlignByWindow(*label);
    else if (auto* number = qobject_cast<QAbstractSpinBox*>(widget))
        AlignByWindow(*number);
    if (widget->focusPolicy() != Qt::NoFocus)
        widget->setAttribute(Qt::WA_Hover);
}

// Colours of looks are mixes of the palette's, so they follow it.
void KestaProxyStyle::followPalette()
{
    for (QWidget* widget : QApplication::allWidgets()) {
        if (!LookOf(widget).isEmpty())
            PolishAgain(*widget);
    }
}

void KestaProxyStyle::underlineShortcuts(bool underlined)
{
    if (std::exchange(shortcutsUnderlined_, underlined) == underlined)
        return;
    for (QWidget* widget : QApplication::allWidgets())
        widget->update();
}

bool KestaProxyStyle::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ApplicationPaletteChange:
        if (watched == QCoreApplication::instance())
            followPalette();
        break;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt)
            underlineShortcuts(event->type() == QEvent::KeyPress);
        break;
    case QEvent::WindowDeactivate: // where the release would go unseen
        underlineShortcuts(false);
        break;
    default:
        break;
    }
    return false;
}

int KestaProxyStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                               QStyleHintReturn* data) const
{
    switch (hint) {
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
    case SH_ComboBox_Popup: // a list below the field, not a menu over it
        return 0;
    case SH_UnderlineShortcut:
        return shortcutsUnderlined_;
    case SH_DialogButtonLayout:
        if (ownPalette_) // no desktop that has an order of its own
            return 3;    // QDialogButtonBox::GnomeLayout
        break;
    default:
        break;
    }
    return QProxyStyle::styleHint(hint, option, widget, data);
}

} // namespace kesta
