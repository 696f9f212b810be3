#include "toolkit/KestaStyle.h"

#include "toolkit/KestaProxyStyle.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QScrollArea>
#include <QStyleOption>
#include <QTextBrowser>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

constexpr int kControlHeight = 28; // points, as are all here
constexpr int kButtonInset = 14;
constexpr int kButtonWidth = 84;
constexpr int kIconButtonWidth = 32;
constexpr int kRowHeight = 26;
constexpr int kTileHeight = 68;
constexpr int kPageMargin = 16;
constexpr int kSpacing = 8;
constexpr int kIndicator = 16;

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
    palette.setColor(QPalette::PlaceholderText, Mix(text, window, 0.45));
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

// Whether a scroll bar is that of a page that has a margin for it, not of a list.
bool LiesInMargin(const QWidget* bar)
{
    const QWidget* container = bar ? bar->parentWidget() : nullptr;
    const QWidget* scrolled = container ? container->parentWidget() : nullptr;
    if (const auto* text = qobject_cast<const QTextBrowser*>(scrolled))
        return text->document()->documentMargin() >= kScrollBarWidth;
    const auto* area = qobject_cast<const QScrollArea*>(scrolled);
    const QLayout* page = area && area->widget() ? area->widget()->layout() : nullptr;
    return page && page->contentsMargins().right() >= kScrollBarWidth;
}

int ControlHeight(const QStyleOption* option)
{
    return std::max(kControlHeight, (option ? option->fontMetrics.height() : 0) + 10);
}

QSize ButtonSize(const QStyleOptionButton& button, const QSize& contents, const QByteArray& look)
{
    if (look == "tile")
        return QSize(contents.width() + 3 * 12, kTileHeight).expandedTo({0, contents.height() + 16});
    const bool hasText = !button.text.isEmpty();
    const int width = hasText ? std::max(contents.width() + 2 * kButtonInset, kButtonWidth) : kIconButtonWidth;
    return {width, ControlHeight(&button)};
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
    if (own)
        QApplication::setPalette(OwnPalette(dark));
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

void KestaProxyStyle::unpolish(QWidget* widget)
{
    QProxyStyle::unpolish(widget);
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

int KestaProxyStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
        return kPageMargin;
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return kSpacing;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
    case PM_ButtonIconSize:
    case PM_SmallIconSize:
    case PM_SliderLength:
        return LookOf(widget) == "tile" ? 48 : kIndicator;
    case PM_SliderThickness:
    case PM_SliderControlThickness:
        return kSliderHandle;
    case PM_ScrollBarExtent:
        return kScrollBarWidth;
    case PM_ScrollView_ScrollBarOverlap: // so that nothing gets narrower
        return LiesInMargin(widget) ? kScrollBarWidth : 0;
    case PM_MenuPanelWidth:
        return 1;
    case PM_MenuVMargin:
        return 4;
    case PM_MenuHMargin:
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
    case PM_ButtonDefaultIndicator:
    case PM_TabBarBaseOverlap:
        return 0;
    case PM_MenuButtonIndicator:
        return 20;
    case PM_TabBarTabHSpace:
        return 24;
    case PM_TabBarTabVSpace:
        return 12;
    case PM_DefaultFrameWidth:
        if (LookOf(widget) == "pane")
            return 0; // its hairlines lie on the edge
        return qobject_cast<const QAbstractScrollArea*>(widget) ? 2 : 1;
    case PM_FocusFrameHMargin:
        return kTextInset - 1; // item views add one themselves
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize KestaProxyStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                        const QWidget* widget) const
{
    switch (type) {
    case CT_PushButton:
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option))
            return ButtonSize(*button, size, LookOf(widget));
        break;
    case CT_ToolButton:
        return {std::max(size.width() + kTextInset, kIconButtonWidth), ControlHeight(option)};
    case CT_ComboBox: {
        const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        const int cursorRoom = combo && combo->editable ? kTextInset : 0;
        return {size.width() + kTextInset + kArrowWidth + cursorRoom, ControlHeight(option)};
    }
    case CT_SpinBox:
        return {size.width() + kTextInset + kStepperWidth, ControlHeight(option)};
    case CT_LineEdit:
        return {size.width() + 2 * kTextInset, ControlHeight(option)};
    case CT_CheckBox:
    case CT_RadioButton: // room for the focus ring
        return QProxyStyle::sizeFromContents(type, option, size, widget) + QSize(kTextInset, 4);
    case CT_MenuItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option))
            return MenuItemSize(*item, size);
        break;
    case CT_HeaderSection: {
        const QSize section = QProxyStyle::sizeFromContents(type, option, size, widget);
        return {section.width() + kTextInset, std::max(kRowHeight, section.height())};
    }
    case CT_ItemViewItem: {
        const QSize item = QProxyStyle::sizeFromContents(type, option, size, widget);
        return {item.width() + kTextInset, std::max(kRowHeight, item.height())};
    }
    default:
        break;
    }
    return QProxyStyle::sizeFromContents(type, option, size, widget);
}

} // namespace kesta
