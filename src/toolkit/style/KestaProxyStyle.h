#pragma once

#include "toolkit/style/KestaColors.h"

#include <QProxyStyle>

class QStyleOptionButton;
class QStyleOptionHeader;
class QStyleOptionMenuItem;
class QStyleOptionSlider;
class QStyleOptionTab;

namespace kesta {

// Text beside which a control keeps this much free, in points.
inline constexpr int kTextInset = 8;
inline constexpr int kArrowWidth = 28;
inline constexpr int kStepperWidth = 24;
inline constexpr int kSliderHandle = 16;
inline constexpr int kScrollBarWidth = 12;

// What InstallKestaStyle installs. Looks are in KestaStyle.cpp, sizes in KestaStyleMetrics.cpp and KestaStyleParts.cpp,
// drawing in KestaStyleControls.cpp, KestaStyleSliders.cpp and KestaStyleMenus.cpp.
class KestaProxyStyle : public QProxyStyle {
public:
    explicit KestaProxyStyle(bool ownPalette);

    using QProxyStyle::polish;
    void polish(QWidget* widget) override;
    void polish(QPalette& palette) override;

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    bool eventFilter(QObject* watched, QEvent* event) override; // of the application

private:
    void followPalette();
    void underlineShortcuts(bool underlined); // as long as Alt is held
    void drawButtonLabel(const QStyleOptionButton& button, QPainter& painter, const QWidget* widget) const;
    bool drawFrame(const QStyleOption& option, QPainter& painter, const QWidget* widget) const;

    const bool ownPalette_;
    bool shortcutsUnderlined_ = false;
};

// The look property of a widget, empty without one.
QByteArray LookOf(const QWidget* widget);

void DrawMenuItem(const QStyleOptionMenuItem& item, QPainter& painter);
QSize MenuItemSize(const QStyleOptionMenuItem& item, const QSize& contents);
void DrawHeaderSection(const QStyleOptionHeader& section, QPainter& painter);
void DrawSlider(const QStyleOptionSlider& slider, QPainter& painter, const QRect& handle);
void DrawScrollBar(const QStyleOptionSlider& bar, QPainter& painter, const QRect& handle);
QRect ScrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part);
void DrawTab(const QStyleOptionTab& tab, QPainter& painter);

} // namespace kesta
